#include "app/desktop_arguments.h"

#include <algorithm>

#include "app/birth_arguments.h"

namespace tolvanis {
Result<DesktopArguments> ParseDesktopArguments(std::span<const std::string_view> arguments) {
    DesktopArguments parsed;
    parsed.help = Contains(arguments, "--help") || Contains(arguments, "-h");
    parsed.version = Contains(arguments, "--version");
    parsed.wheel = std::ranges::any_of(arguments, [](std::string_view argument) {
        return argument == "--wheel" || argument.starts_with("--wheel=");
    });
    if (parsed.help || parsed.version || parsed.wheel) return parsed;
    for (ArgumentReader reader(arguments); reader.Next();) {
        if (const Result<void> once = reader.CheckOnce(); !once) return once.fault();
        if (reader.name() != "--app-dir") return reader.Unknown();
        const Result<std::string> directory = reader.Value();
        if (!directory) return directory.fault();
        parsed.appDirectory = *directory;
    }
    return parsed;
}

}  // namespace tolvanis
