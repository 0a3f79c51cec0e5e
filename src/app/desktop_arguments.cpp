#include "app/desktop_arguments.h"

#include <algorithm>

#include "app/birth_arguments.h"

namespace tolvanis {
namespace {

bool Hold(std::span<const std::string_view> arguments, std::string_view wanted) {
    return std::ranges::find(arguments, wanted) != arguments.end();
}

}  // namespace

Result<DesktopArguments> ParseDesktopArguments(std::span<const std::string_view> arguments) {
    DesktopArguments parsed;
    parsed.help = Hold(arguments, "--help") || Hold(arguments, "-h");
    parsed.version = Hold(arguments, "--version");
    parsed.wheel = std::ranges::any_of(arguments, [](std::string_view argument) {
        return argument == "--wheel" || argument.starts_with("--wheel=");
    });
    if (parsed.help || parsed.version || parsed.wheel) return parsed;
    for (ArgumentReader reader(arguments); reader.Next();) {
        if (reader.name() != "--app-dir") return reader.Unknown();
        const Result<std::string> directory = reader.Value();
        if (!directory) return directory.fault();
        parsed.appDirectory = *directory;
    }
    return parsed;
}

}  // namespace tolvanis
