#include "app/options_file.h"

#include <algorithm>

namespace tolvanis {

Result<int> ReadOptions(const DataFiles& files, Options& options) {
    return ReadNumberLines(files.Own(kOptionsFileName), options.table());
}

Result<void> RestoreOptions(const DataFiles& files) {
    const Result<std::string> content = ReadBytes(files.Find(kOptionsMasterName));
    if (!content) return content.fault();
    return ReplaceFile(files.Own(kOptionsFileName), *content);
}

Result<void> LoadOptions(const DataFiles& files, Options& options) {
    if (const Result<int> read = ReadOptions(files, options); !read) return read.fault();
    const bool any = std::ranges::any_of(options.table(), [](float value) { return value != 0.0F; });
    if (!any) return Fault{"The file " + files.Own(kOptionsFileName).string() + " holds no options."};
    return {};
}

}  // namespace tolvanis
