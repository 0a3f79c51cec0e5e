#include "app/command_data.h"

#include "app/app_directory.h"
#include "app/options_file.h"

namespace tolvanis {

Result<CommandData> OpenCommandData(const std::optional<std::string>& appDirectory) {
    const Result<DataFiles> files = ApplicationDirectory(HintsOfProcess(appDirectory), FirstStart::LeaveAsIs);
    if (!files) return files.fault();
    CommandData data{*files, {}, {}};
    if (const Result<void> read = LoadOptions(*files, data.options); !read) return read.fault();
    const Result<int> lines = ReadOptions(*files, data.options);
    if (lines && *lines < kOptionCount) {
        data.note = files->Own(kOptionsFileName).string() + " ends after " + std::to_string(*lines) + " of " +
                    std::to_string(kOptionCount) + " lines; the options behind count as 0";
    }
    return data;
}

}  // namespace tolvanis
