#pragma once
// Messages as message boxes.

#include <QString>

#include "platform/messages.h"

namespace tolvanis {

// The text of a message with places to break lines in names that are too long for a line of a message box.
QString WithBreaksInLongNames(const QString& text);

class MessageBoxes : public Messages {
  public:
    void Tell(const std::string& title, const std::string& text, MessageIcon icon) override;
    bool AskYesNo(const std::string& title, const std::string& text, Answer preset) override;
    Answer AskYesNoCancel(const std::string& title, const std::string& text) override;
    std::string AskText(const std::string& title, const std::string& prompt) override;
};

}  // namespace tolvanis
