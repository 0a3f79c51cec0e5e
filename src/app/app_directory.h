#pragma once
// Which directory is the application directory.

#include <optional>
#include <string>

#include "platform/data_files.h"

namespace tolvanis {

struct DirectoryHints {
    std::optional<std::string> fromCommandLine;  // --app-dir
    std::optional<std::string> fromEnvironment;  // TOLVANIS_DIR
    Path programDirectory;                       // where the program file lies
    Path userDirectory;                          // the user's data directory for this program
};

// The hints of this process; the environment gives TOLVANIS_DIR, XDG_DATA_HOME and HOME.
DirectoryHints HintsOfProcess(std::optional<std::string> fromCommandLine);

// The data delivered with the program: share/tolvanis beside the program's bin directory, or the directory it
// was installed to. Empty when there is none.
Path InstalledDataDirectory(const Path& programDirectory);

enum class FirstStart { LeaveAsIs, FillUserDirectory };

// The application directory: the command line's, the environment's, the program's own when it holds
// OPTIONS.OPT (a portable copy), else the user's. With FillUserDirectory the user's directory is made and
// receives the delivered files that a user edits or picks from a list (names, cities, options, orbs, header)
// where it does not have them yet; with LeaveAsIs a user's directory without OPTIONS.OPT gives way to the
// installed data, and nothing is written. A fault says what could not be made.
Result<DataFiles> ApplicationDirectory(const DirectoryHints& hints, FirstStart firstStart);

}  // namespace tolvanis
