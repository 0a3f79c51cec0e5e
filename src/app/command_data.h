#pragma once
// What a command without windows works with.

#include <optional>
#include <string>

#include "chart/options.h"
#include "platform/clock.h"
#include "platform/data_files.h"

namespace tolvanis {

struct CommandData {
    DataFiles files;
    Options options;
    HostTime time;
    std::string note;  // that the options file ends early, or empty
};

// The application directory and its options; nothing is written. A fault says what is missing or damaged.
Result<CommandData> OpenCommandData(const std::optional<std::string>& appDirectory, const HostTime& time);

}  // namespace tolvanis
