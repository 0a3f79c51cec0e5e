#include "app/app_directory.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "app/options_file.h"
#include "platform/file_replacing.h"
#include "text/columns.h"

namespace tolvanis {
namespace {

namespace fs = std::filesystem;

// The endings of the files that a user edits or picks from a list.
constexpr std::array<std::string_view, 5> kUsersFiles = {".FIL", ".LL", ".OPT", ".ORB", ".NAM"};

bool IsUsersFile(const Path& file) {
    return std::ranges::find(kUsersFiles, UpperCase(file.extension().string())) != kUsersFiles.end();
}

std::optional<std::string> Environment(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0' ? std::optional<std::string>(value) : std::nullopt;
}

bool HasOptions(const Path& directory) {
    return !directory.empty() && IsReadableFile(directory / kOptionsFileName);
}

// Copies every delivered file of the user's kinds that `target` does not have under any spelling of its name.
Result<void> FillFrom(const Path& source, const Path& target) {
    std::error_code error;
    fs::create_directories(target, error);
    if (error) return Fault{"Cannot make the directory " + target.string() + ": " + error.message() + "."};
    for (fs::directory_iterator entry(source, error), end; !error && entry != end; entry.increment(error)) {
        if (!entry->is_regular_file(error) || !IsUsersFile(entry->path())) continue;
        const std::string name = entry->path().filename().string();
        if (IsNameTaken(FindFile(target, name))) continue;
        const Result<std::string> content = ReadBytes(entry->path());
        if (!content) return content.fault();
        if (const Result<void> copied = ReplaceFile(target / name, *content); !copied) return copied;
    }
    if (error) return Fault{"Cannot read the directory " + source.string() + ": " + error.message() + "."};
    return {};
}

}  // namespace

DirectoryHints HintsOfProcess(std::optional<std::string> fromCommandLine) {
    DirectoryHints hints;
    hints.fromCommandLine = std::move(fromCommandLine);
    hints.fromEnvironment = Environment(kDirectoryVariable);
    std::error_code error;
    hints.programDirectory = fs::read_symlink("/proc/self/exe", error).parent_path();
    const auto home = Environment("HOME");
    const auto data = Environment("XDG_DATA_HOME");
    if (data && Path(*data).is_absolute()) {
        hints.userDirectory = Path(*data) / "tolvanis";
    } else if (home) {
        hints.userDirectory = Path(*home) / ".local" / "share" / "tolvanis";
    }
    return hints;
}

Path InstalledDataDirectory(const Path& programDirectory) {
    const Path candidates[] = {programDirectory.parent_path() / "share" / "tolvanis", TOLVANIS_DATA_DIR};
    for (const Path& candidate : candidates) {
        if (HasOptions(candidate)) return candidate;
    }
    return {};
}

Result<DataFiles> ApplicationDirectory(const DirectoryHints& hints, FirstStart firstStart) {
    const Path installed = InstalledDataDirectory(hints.programDirectory);
    for (const auto& given : {hints.fromCommandLine, hints.fromEnvironment}) {
        if (!given) continue;
        const Path directory = FindPath(PathFromText(*given));
        std::error_code error;
        if (!fs::is_directory(directory, error)) return Fault{"There is no directory " + *given + "."};
        return DataFiles(AbsolutePath(directory), installed, DataFiles::Directory::Named);
    }
    if (HasOptions(hints.programDirectory)) {
        return DataFiles(hints.programDirectory, installed, DataFiles::Directory::Named);
    }
    if (firstStart == FirstStart::LeaveAsIs) {
        const bool ready = HasOptions(hints.userDirectory) || installed.empty();
        return DataFiles(ready ? hints.userDirectory : installed, installed, DataFiles::Directory::OfUser);
    }
    if (hints.userDirectory.empty()) return Fault{"There is no home directory to keep the data files in."};
    if (!installed.empty()) {
        if (const auto filled = FillFrom(installed, hints.userDirectory); !filled) return filled.fault();
    }
    return DataFiles(hints.userDirectory, installed, DataFiles::Directory::OfUser);
}

}  // namespace tolvanis
