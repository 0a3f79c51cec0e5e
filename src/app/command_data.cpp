#include "app/command_data.h"

#include "app/app_directory.h"
#include "app/options_file.h"

namespace tolvanis {

Result<CommandData> OpenCommandData(const std::optional<std::string>& appDirectory, const HostTime& time) {
    const Result<DataFiles> files = ApplicationDirectory(HintsOfProcess(appDirectory), FirstStart::LeaveAsIs);
    if (!files) return files.fault();
    CommandData data{*files, {}, time, {}};
    const Result<int> lines = LoadOptions(*files, data.options);
    if (!lines) return lines.fault();
    data.note = OptionsNote(*files, *lines);
    return data;
}

}  // namespace tolvanis
