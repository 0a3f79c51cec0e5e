#pragma once
// The arguments of tolvanis-chart.

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "app/birth_arguments.h"

namespace tolvanis {

enum class OutputFormat { Text, Json, Ascii, Report };

struct ChartRequest : BirthArguments {
    std::optional<OutputFormat> format;  // else Text
    std::optional<std::string> output;   // else standard output
    bool checkZones = false;  // list the records whose zone is not the one in force, instead of charts
    bool help = false;
    bool version = false;
};

// The request that the arguments make; with nothing that names a birth, the present moment's chart. Help and
// version go before everything else, wherever they stand. A fault says what is wrong with the arguments.
Result<ChartRequest> ParseCommandLine(std::span<const std::string_view> arguments);

extern const std::string_view kUsage;

}  // namespace tolvanis
