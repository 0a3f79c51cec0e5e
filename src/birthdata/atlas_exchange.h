#pragma once
// What passes between the program and an atlas: files of fixed names, and the birth's date and time in the
// environment, where another atlas does not look.

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "birthdata/zone_advice.h"

namespace tolvanis {

inline constexpr std::string_view kAtlasProgram = "ATLAS.EXE";
inline constexpr std::string_view kAtlasPathFile = "PCATPATH.TXT";
inline constexpr std::string_view kAtlasExchangeFile = "TSRTEMP.TXT";

// The variable that holds date and time: 1949-09-22 9:05 A.M. as "1949 9 22 9 5 A".
inline constexpr const char* kAtlasBirthVariable = "TOLVANIS_BIRTH";

using Environment = std::vector<std::pair<std::string, std::string>>;

// The variables for the look-up of an entry's place.
Environment AtlasEnvironment(const NatalEntry& entry, const Path& appDirectory);

// Date and time of such a variable in an entry that holds nothing else; what cannot be read stays empty.
NatalEntry BirthOfEnvironment(std::string_view value);

// The five lines of the exchange file, each with CR LF: place, latitude, longitude, an empty one, zone.
std::string ExchangeText(const AtlasPlace& place, int offset);

}  // namespace tolvanis
