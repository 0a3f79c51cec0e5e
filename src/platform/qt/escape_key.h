#pragma once
// Where the Esc key leads.

#include <QWidget>
#include <functional>

namespace tolvanis {

// From here on an Esc that nothing inside the window has a use for does this.
void LeadEscapeTo(QWidget& window, std::function<void()> there);

}  // namespace tolvanis
