#include "app/desktop_arguments.h"

namespace tolvanis {

Result<DesktopArguments> ParseDesktopArguments(std::span<const std::string_view> arguments) {
    constexpr std::string_view kAppDir = "--app-dir";
    DesktopArguments parsed;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--help" || argument == "-h") {
            parsed.help = true;
        } else if (argument == "--version") {
            parsed.version = true;
        } else if (argument == kAppDir) {
            if (++i == arguments.size()) return Fault{"--app-dir needs a directory"};
            parsed.appDirectory = std::string(arguments[i]);
        } else if (argument.starts_with("--app-dir=")) {
            parsed.appDirectory = std::string(argument.substr(kAppDir.size() + 1));
        } else {
            return Fault{"unknown argument " + std::string(argument)};
        }
    }
    return parsed;
}

}  // namespace tolvanis
