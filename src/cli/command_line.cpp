#include "cli/command_line.h"

#include <array>
#include <functional>

namespace tolvanis {

const std::string_view kUsage =
    "Usage: tolvanis-chart [--now | --birth RECORD | --names FILE [--name NAME]]\n"
    "                      [--place FILE:CITY] [--houses CODE] [--format text|json]\n"
    "                      [--app-dir DIR] [--output FILE]\n"
    "\n"
    "Computes natal charts and prints them.\n"
    "\n"
    "  --now            the present moment at the home location (the default)\n"
    "  --birth RECORD   one birth: name,dd mmm yyyy,h.mm,A|P,zone,longitude,latitude\n"
    "                   zone in decimal hours and longitude positive west, latitude\n"
    "                   positive north, both as degrees.minutes:\n"
    "                   \"Ann Smith,22 Sep 1949,9.05,A,5,073.59,40.45\"\n"
    "  --names FILE     every record of a names file\n"
    "  --name NAME      only the first record with this name\n"
    "  --place FILE:CITY\n"
    "                   longitude, latitude and zone (standard time, never daylight\n"
    "                   saving) of a place in a cities file, looked up as given and then\n"
    "                   in the directory of the data; CITY is \"city\" or \"city,region\".\n"
    "                   For --now, and for a --birth, where the place replaces the last\n"
    "                   three fields, which may be missing:\n"
    "                   --birth \"Ann Smith,22 Sep 1949,9.05,A\" --place \"GA_MA.LL:Macon,GA\"\n"
    "  --houses CODE    P Placidus, R Regiomontanus, K Koch, C Campanus, O Porphyry,\n"
    "                   EA Equal - Ascendant, EM Equal - MC, M Meridian, I Morinus\n"
    "  --format FORMAT  text (the listing) or json (one object a line)\n"
    "  --app-dir DIR    the directory that holds OPTIONS.OPT\n"
    "  --output FILE    write there instead of to standard output\n"
    "  --help           print this and end\n"
    "  --version        print the version and end\n"
    "\n"
    "Exit status: 0 all computed; 1 a record was refused or a file failed (see standard\n"
    "error), the others were computed; 2 wrong usage.\n";

namespace {

Result<void> SetHouses(ChartRequest& request, const std::string& code) {
    request.houses = HouseSystemOfCode(code);
    if (!request.houses) return Fault{"unknown house system \"" + code + "\" (P R K C O EA EM M I)"};
    return {};
}

Result<void> SetFormat(ChartRequest& request, const std::string& format) {
    if (format == "text") {
        request.format = OutputFormat::Text;
    } else if (format == "json") {
        request.format = OutputFormat::Json;
    } else {
        return Fault{"unknown format \"" + format + "\" (text or json)"};
    }
    return {};
}

Result<void> SetPlace(ChartRequest& request, const std::string& place) {
    const std::size_t colon = place.rfind(':');
    if (colon == std::string::npos || colon == 0 || colon + 1 == place.size()) {
        return Fault{"--place needs FILE:CITY, not \"" + place + "\""};
    }
    request.place = PlaceRequest{place.substr(0, colon), place.substr(colon + 1)};
    return {};
}

struct Option {
    std::string_view name;
    Result<void> (*set)(ChartRequest&, const std::string&);
};

template <std::optional<std::string> ChartRequest::*member>
Result<void> Set(ChartRequest& request, const std::string& value) {
    request.*member = value;
    return {};
}

constexpr std::array kOptions = {
    Option{"--birth", Set<&ChartRequest::birth>},
    Option{"--names", Set<&ChartRequest::namesFile>},
    Option{"--name", Set<&ChartRequest::name>},
    Option{"--place", SetPlace},
    Option{"--houses", SetHouses},
    Option{"--format", SetFormat},
    Option{"--app-dir", Set<&ChartRequest::appDirectory>},
    Option{"--output", Set<&ChartRequest::output>},
};

const Option* FindOption(std::string_view name) {
    for (const Option& option : kOptions) {
        if (option.name == name) return &option;
    }
    return nullptr;
}

Result<void> CheckTogether(const ChartRequest& request, bool now) {
    const int sources = int{now} + int{request.birth.has_value()} + int{request.namesFile.has_value()};
    if (sources > 1) return Fault{"only one of --now, --birth and --names can be given"};
    if (request.name && !request.namesFile) return Fault{"--name needs --names"};
    if (request.place && request.namesFile) return Fault{"--place goes with --birth or --now only"};
    return {};
}

}  // namespace

Result<ChartRequest> ParseCommandLine(std::span<const std::string_view> arguments) {
    ChartRequest request;
    bool now = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        std::string_view argument = arguments[i];
        if (argument == "--now") {
            now = true;
            continue;
        }
        if (argument == "--help" || argument == "-h") {
            request.help = true;
            return request;
        }
        if (argument == "--version") {
            request.version = true;
            return request;
        }
        const std::size_t equals = argument.starts_with("--") ? argument.find('=') : std::string_view::npos;
        const Option* option = FindOption(argument.substr(0, equals));
        if (option == nullptr) return Fault{"unknown argument \"" + std::string(argument) + "\""};
        std::string value;
        if (equals != std::string_view::npos) {
            value = argument.substr(equals + 1);
        } else if (i + 1 < arguments.size()) {
            value = arguments[++i];
        } else {
            return Fault{std::string(argument) + " needs a value"};
        }
        if (const Result<void> set = option->set(request, value); !set) return Fault{set.message()};
    }
    if (const Result<void> together = CheckTogether(request, now); !together)
        return Fault{together.message()};
    return request;
}

}  // namespace tolvanis
