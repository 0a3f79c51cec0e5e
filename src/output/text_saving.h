#pragma once
// Save and Save As of the texts that the program makes.

#include <functional>
#include <string>

#include "platform/file_dialogs.h"
#include "platform/messages.h"

namespace tolvanis {

// A text to be saved.
struct TextToSave {
    bool empty = false;                    // there is nothing to write
    std::function<SaveRequest()> request;  // what Save As asks; called only when it asks
    std::function<std::string()> content;  // the whole file
};

// Writes into the file chosen last, whichever window chose it, and asks for one where none has been chosen or
// the last one could not be written. Where the file holds a text with which the new one does not begin (the
// report of another person, say), Save asks before it overwrites that. That there is nothing to write, or
// that the file cannot be written, is told; a cancelled question leaves everything as it is.
class TextSaving {
  public:
    TextSaving(std::string& SaveFileName, Messages& messages, FileDialogs& dialogs)
        : SaveFileName_(SaveFileName), messages_(messages), dialogs_(dialogs) {}

    void Save(const TextToSave& text);
    void SaveAs(const TextToSave& text);

  private:
    bool HasText(const TextToSave& text);
    Answer MayOverwrite(std::string_view content);
    void Write(const std::string& content);

    std::string& SaveFileName_;
    Messages& messages_;
    FileDialogs& dialogs_;
};

}  // namespace tolvanis
