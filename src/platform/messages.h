#pragma once
// The one seam through which the program speaks to its user. The desktop shows message boxes; tests answer.

#include <string>

namespace tolvanis {

enum class MessageIcon { None, Information, Warning, Question, Stop };
enum class Answer { Yes, No, Cancel };

class Messages {
  public:
    virtual ~Messages() = default;

    // Shows a text with one OK button.
    virtual void Tell(const std::string& title, const std::string& text, MessageIcon icon) = 0;
    // Asks with Yes and No; true for Yes, while closing the box is No. `preset` is what Enter alone answers:
    // No where Yes gives something up.
    virtual bool AskYesNo(const std::string& title, const std::string& text, Answer preset = Answer::Yes) = 0;
    // Asks with Yes, No and Cancel; Cancel is the default button.
    virtual Answer AskYesNoCancel(const std::string& title, const std::string& text) = 0;
    // Asks for a line of text; empty when the user cancels.
    virtual std::string AskText(const std::string& title, const std::string& prompt) = 0;
};

}  // namespace tolvanis
