#include "cli/command_line.h"

#include <array>

namespace tolvanis {

const std::string_view kUsage =
    "Usage: tolvanis-chart [--now | --birth RECORD | --names FILE [--name NAME]]\n"
    "                      [--place FILE:CITY | --at PLACE [--zone HOURS]]\n"
    "                      [--houses CODE] [--theory classic|modern] [--format FORMAT]\n"
    "                      [--app-dir DIR] [--output FILE] [--check-zones]\n"
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
    "  --at PLACE       a place of the atlas with the zone in force there at that time;\n"
    "                   \"city\", \"city, region\", \"city, country\" or all three; where\n"
    "                   several have one name, they are listed, and a line of the list,\n"
    "                   with its coordinates, names one:\n"
    "                   --birth \"Ann Smith,22 Sep 1949,9.05,A\" --at \"Atlanta, GA\"\n"
    "  --zone HOURS     settles the zone where a time came twice or did not exist\n"
    "  --check-zones    with --names: list every record whose zone is not the one in\n"
    "                   force at its place; 1 is the exit status when there are any\n"
    "  --houses CODE    P Placidus, R Regiomontanus, K Koch, C Campanus, O Porphyry,\n"
    "                   EA Equal - Ascendant, EM Equal - MC, M Meridian, I Morinus\n"
    "  --theory NAME    classic, the theory of the program, or modern: positions that agree\n"
    "                   with modern ephemerides to about a second of arc; without\n"
    "                   it, option 26 decides\n"
    "  --format FORMAT  text (the listing), json (one object a line), ascii\n"
    "                   (the wheel drawn in characters) or report (the natal report in\n"
    "                   pages, a form feed after each)\n"
    "  --app-dir DIR    the directory that holds OPTIONS.OPT\n"
    "  --output FILE    write there instead of to standard output\n"
    "  --help           print this and end\n"
    "  --version        print the version and end\n"
    "\n"
    "Exit status: 0 all computed; 1 a record was refused or a file failed (see standard\n"
    "error), the others were computed; 2 wrong usage.\n";

namespace {

struct FormatName {
    std::string_view name;
    OutputFormat format;
};
constexpr std::array kFormats = {
    FormatName{"text", OutputFormat::Text}, FormatName{"json", OutputFormat::Json},
    FormatName{"ascii", OutputFormat::Ascii}, FormatName{"report", OutputFormat::Report}};

Result<void> SetFormat(ChartRequest& request, const std::string& name) {
    for (const FormatName& known : kFormats) {
        if (known.name != name) continue;
        request.format = known.format;
        return {};
    }
    return Fault{"unknown format \"" + name + "\" (text, json, ascii or report)"};
}

Result<void> TakeArgument(ArgumentReader& reader, ChartRequest& request) {
    const Result<bool> taken = TakeBirthArgument(reader, request);
    if (!taken) return taken.fault();
    if (*taken) return {};
    if (reader.Is("--check-zones")) {
        request.checkZones = true;
        return {};
    }
    if (reader.name() != "--format" && reader.name() != "--output") return reader.Unknown();
    const Result<std::string> value = reader.Value();
    if (!value) return value.fault();
    if (reader.name() == "--format") return SetFormat(request, *value);
    request.output = *value;
    return {};
}

}  // namespace

Result<ChartRequest> ParseCommandLine(std::span<const std::string_view> arguments) {
    ChartRequest request;
    request.help = Contains(arguments, "--help") || Contains(arguments, "-h");
    request.version = Contains(arguments, "--version");
    if (request.help || request.version) return request;
    for (ArgumentReader reader(arguments); reader.Next();) {
        if (const Result<void> once = reader.CheckOnce(); !once) return once.fault();
        if (const Result<void> taken = TakeArgument(reader, request); !taken) return taken.fault();
    }
    if (const Result<void> together = CheckBirthArguments(request); !together) return together.fault();
    if (request.checkZones && !request.namesFile) return Fault{"--check-zones needs --names"};
    if (request.checkZones && (request.format || request.houses || request.theory))
        return Fault{"--check-zones computes no charts: it goes without --format, --houses and --theory"};
    return request;
}

}  // namespace tolvanis
