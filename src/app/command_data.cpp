#include "app/command_data.h"

#include "app/app_directory.h"
#include "app/options_file.h"

namespace tolvanis {

Result<CommandData> OpenCommandData(const std::optional<std::string>& appDirectory) {
    const Result<DataFiles> files = ApplicationDirectory(HintsOfProcess(appDirectory), FirstStart::LeaveAsIs);
    if (!files) return files.fault();
    CommandData data{*files, {}};
    if (const Result<void> read = LoadOptions(*files, data.options); !read) return read.fault();
    return data;
}

}  // namespace tolvanis
