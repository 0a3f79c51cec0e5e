#pragma once
// The seam through which the program asks the user for files. The desktop shows dialogs; tests answer.

#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/messages.h"

namespace tolvanis {

struct SaveRequest {
    Path directory;                         // where the dialog starts
    std::string proposedName;               // "Ann.DOC"
    std::string filterName;                 // "Data Files"
    std::string pattern;                    // "*.DOC"
    std::string extension;                  // added to a name that ends in none of the pattern's: "doc"
    std::vector<std::string> foreign = {};  // other endings (".jpg") that are taken as they are typed
};

// The file name as it is saved: with the request's extension where it has neither one of the pattern's, in
// either letter case, nor a foreign one ("Dr. Ann" is saved as "Dr. Ann.doc").
std::string NameWithExtension(const std::string& name, const SaveRequest& request);

// A name that a directory can hold: at most 255 bytes, cut before its extension at a whole character.
std::string FittingFileName(const std::string& name);

class FileDialogs {
  public:
    virtual ~FileDialogs() = default;

    // Lets the user choose an existing file that fits the pattern ("*.FIL"); `currentPath` is the file in
    // use, which is selected where it is listed. Returns the full path, or empty text when the user cancels.
    virtual std::string ChooseFile(const std::string& pattern, const std::string& currentPath) = 0;

    // As ChooseFile, for a record that is going to be added to the file: a current file that does not exist
    // yet can be chosen too, and where there is none, none is chosen beforehand.
    virtual std::string ChooseFileToAddTo(const std::string& pattern, const std::string& currentPath) = 0;

    // Asks where to save, and before overwriting the file that is going to be written. Returns the full path,
    // its extension added, or empty text when the user cancels.
    virtual std::string ChooseSaveFile(const SaveRequest& request) = 0;
};

// Asks where to save, proposing a name that fits, and gives the very file that the user has named. Where the
// directory holds the same name in another letter case, the user says whether that file is overwritten.
// Nothing when the user cancels.
std::optional<Path> ChooseOutput(FileDialogs& dialogs, Messages& messages, const SaveRequest& request);

}  // namespace tolvanis
