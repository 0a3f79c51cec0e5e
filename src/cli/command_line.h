#pragma once
// The arguments of tolvanis-chart.

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "chart/house_system.h"
#include "platform/result.h"

namespace tolvanis {

enum class OutputFormat { Text, Json };

// A place of a cities file.
struct PlaceRequest {
    std::string file;
    std::string city;  // or "city,region"
};

struct ChartRequest {
    std::optional<std::string> birth;  // one record in the names-file form
    std::optional<std::string> namesFile;
    std::optional<std::string> name;  // of one record of the names file
    std::optional<PlaceRequest> place;
    std::optional<HouseSystem> houses;  // else the one that option 27 names
    OutputFormat format = OutputFormat::Text;
    std::optional<std::string> appDirectory;
    std::optional<std::string> output;  // else standard output
    bool help = false;
    bool version = false;
};

// The request that the arguments make; with nothing that names a birth, the present moment's chart. A fault
// says what is wrong with the arguments.
Result<ChartRequest> ParseCommandLine(std::span<const std::string_view> arguments);

extern const std::string_view kUsage;

}  // namespace tolvanis
