#pragma once
// The buttons of all windows.

#include <QPushButton>

namespace tolvanis {

// A button that Enter presses as the space bar does, also outside dialogs. In a dialog the look of the
// default button goes with the focus from button to button; the one that has the focus is marked. `caption`
// may mark an access key.
QPushButton* MakePushButton(const char* objectName, const QString& caption);

}  // namespace tolvanis
