#pragma once
// Running the command that writes a chart wheel as a picture.

#include <span>
#include <string_view>

#include "app/exit_status.h"
#include "app/wheel_command.h"

namespace tolvanis {

// Does what the arguments ask for without opening a window or needing a display. Faults go to standard error.
// `programArguments` are those of main().
ExitStatus RunWheelCommand(std::span<const std::string_view> arguments, const HostTime& time,
                           char** programArguments);

}  // namespace tolvanis
