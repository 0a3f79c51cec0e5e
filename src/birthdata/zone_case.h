#pragma once
// Cases in which the clocks of some places are known to have differed from the zone's record, or are
// disputed.

#include <string>
#include <string_view>
#include <vector>

#include "platform/result.h"
#include "text/dates.h"

namespace tolvanis {

struct ZoneCase {
    CalendarDate from;  // the first day
    CalendarDate to;    // the last day
    int firstMonth = 1;
    int lastMonth = 12;
    std::string country;               // two letters
    std::vector<std::string> regions;  // codes; empty for the whole country
    std::vector<std::string> zones;    // names; empty for all
    std::string text;                  // what was in dispute, as a sentence
    std::string source;
    std::vector<std::string> clocks;  // zones that people there live by side by side, or empty

    bool Fits(const CalendarDate& date, std::string_view countryCode, std::string_view regionCode,
              std::string_view zone) const;
};

// The case of a line: from, to, months, country, regions, zones, text, source and, where there are some,
// clocks, with tabs between them.
Result<ZoneCase> ParseZoneCase(std::string_view line);

}  // namespace tolvanis
