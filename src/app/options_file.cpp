#include "app/options_file.h"

#include <algorithm>

namespace tolvanis {

Result<int> ReadOptions(const Path& applicationDirectory, Options& options) {
    return ReadNumberLines(FindFile(applicationDirectory, kOptionsFileName), options.table());
}

Path OptionsMaster(const Path& applicationDirectory, const Path& installedDirectory) {
    for (const Path& directory : {applicationDirectory, installedDirectory}) {
        const Path master = FindFile(directory, kOptionsMasterName);
        if (!directory.empty() && IsReadableFile(master)) return master;
    }
    return {};
}

Result<void> RestoreOptions(const Path& applicationDirectory, const Path& master) {
    const Result<std::string> content = ReadBytes(master);
    if (!content) return Fault{content.message()};
    return ReplaceFile(FindFile(applicationDirectory, kOptionsFileName), *content);
}

bool HoldsOptions(const Options& options) {
    return std::ranges::any_of(options.table(), [](float value) { return value != 0.0F; });
}

}  // namespace tolvanis
