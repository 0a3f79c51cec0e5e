#include "platform/file_dialogs.h"

namespace tolvanis {

std::optional<Path> ChooseOutput(FileDialogs& dialogs, Messages& messages, const SaveRequest& request) {
    const std::string chosen = dialogs.ChooseSaveFile(request);
    if (chosen.empty()) return std::nullopt;
    const Path file(chosen);
    const std::optional<Path> other = OtherSpelling(file);
    if (!other) return file;
    const Answer answer = messages.AskYesNoCancel(
        "Warning!", "There is a file called " + other->filename().string() +
                        " already. Do you want to overwrite it?\r\n\r\nAnswering 'NO' will save as " +
                        file.filename().string() + " and leave the other file as it is.");
    if (answer == Answer::Cancel) return std::nullopt;
    return answer == Answer::Yes ? *other : file;
}

}  // namespace tolvanis
