#pragma once

namespace tolvanis {

// Lets screen readers take every plain top-level widget for a window, so that they tell its title when it
// comes to the front. Qt itself does so for dialogs and main windows only. Repeated calls do nothing.
void MakeWindowsAccessible();

}  // namespace tolvanis
