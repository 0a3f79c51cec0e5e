#pragma once
// Messages as message boxes.

#include "platform/messages.h"

namespace tolvanis {

class MessageBoxes : public Messages {
  public:
    void Tell(const std::string& title, const std::string& text, MessageIcon icon) override;
    bool AskYesNo(const std::string& title, const std::string& text) override;
    Answer AskYesNoCancel(const std::string& title, const std::string& text) override;
    std::string AskText(const std::string& title, const std::string& prompt) override;
};

}  // namespace tolvanis
