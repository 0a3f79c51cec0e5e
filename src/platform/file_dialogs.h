#pragma once
// The seam through which the program asks the user for files. The desktop shows dialogs; tests answer.

#include <optional>
#include <string>

#include "platform/files.h"
#include "platform/messages.h"

namespace tolvanis {

struct SaveRequest {
    Path directory;            // where the dialog starts
    std::string proposedName;  // "Ann.DOC"
    std::string filterName;    // "Data Files"
    std::string pattern;       // "*.DOC"
    std::string extension;     // added to a name without one: "doc"
};

class FileDialogs {
  public:
    virtual ~FileDialogs() = default;

    // Lets the user choose an existing file that fits the pattern ("*.FIL"); `currentPath` is the file in
    // use, which is selected where it is listed. Returns the full path, or empty text when the user cancels.
    virtual std::string ChooseFile(const std::string& pattern, const std::string& currentPath) = 0;

    // Asks where to save, and before overwriting a file. Returns the full path, or empty text when the user
    // cancels.
    virtual std::string ChooseSaveFile(const SaveRequest& request) = 0;
};

// Asks where to save and gives the very file that the user has named. Where the directory holds the same name
// in another letter case, the user says whether that file is overwritten. Nothing when the user cancels.
std::optional<Path> ChooseOutput(FileDialogs& dialogs, Messages& messages, const SaveRequest& request);

}  // namespace tolvanis
