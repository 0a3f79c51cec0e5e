#pragma once
// A text area for whole files in the listing font.

#include <QPlainTextEdit>
#include <string>

namespace tolvanis {

// Tab moves on to the next control.
QPlainTextEdit* MakeTextArea(const char* objectName, const char* accessibleName);

// Shows a text with CR LF line ends, without change marks.
void SetAreaText(QPlainTextEdit& area, const std::string& text);

// The text with CR LF line ends, every other character as it is.
std::string AreaText(const QPlainTextEdit& area);

}  // namespace tolvanis
