#pragma once
// The desktop program's command line.

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/result.h"

namespace tolvanis {

inline constexpr std::string_view kDesktopUsage =
    "Usage: tolvanis [--app-dir DIR]\n"
    "       tolvanis --wheel FILE [--type american|european|ring] [--size N]\n"
    "                [--now | --birth RECORD | --names FILE --name NAME]\n"
    "                [--place FILE:CITY | --at PLACE [--zone HOURS]] [--houses CODE]\n"
    "                [--theory classic|modern] [--app-dir DIR]\n"
    "Natal astrology: charts, wheels and reports.\n"
    "\n"
    "  --app-dir DIR  the directory of OPTIONS.OPT and the other data files\n"
    "  --wheel FILE   write a chart wheel as FILE.svg, .pdf or .png, without opening\n"
    "                 a window, and exit; the birth is given as to tolvanis-chart\n"
    "  --type TYPE    american (the default), european or ring\n"
    "  --size N       width and height of the picture in pixels, 100 to 10000 (1000)\n"
    "  --help         print this text and exit\n"
    "  --version      print the version and exit\n";

struct DesktopArguments {
    std::optional<std::string> appDirectory;
    bool help = false;
    bool version = false;
    bool wheel = false;  // a picture is asked for instead of windows: ParseWheelArguments reads the rest
};

// The arguments after the program's name. Help and version go before everything else, wherever they stand. A
// fault says what is wrong with the arguments.
Result<DesktopArguments> ParseDesktopArguments(std::span<const std::string_view> arguments);

}  // namespace tolvanis
