#include "birthdata/zone_case.h"

#include <algorithm>
#include <tuple>

#include "text/fields.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr std::size_t kFieldCount = 8;  // without the clocks

auto Order(const CalendarDate& date) {
    return std::tuple(date.year, date.month, date.day);
}

bool Holds(const std::vector<std::string>& names, std::string_view name) {
    return names.empty() || std::ranges::find(names, name) != names.end();
}

std::vector<std::string> Words(std::string_view field) {
    if (field.empty()) return {};
    return SplitAt(field, ' ');
}

}  // namespace

bool ZoneCase::Fits(const CalendarDate& date, std::string_view countryCode, std::string_view regionCode,
                    std::string_view zone) const {
    if (country != countryCode || Order(date) < Order(from) || Order(to) < Order(date)) return false;
    return date.month >= firstMonth && date.month <= lastMonth && Holds(regions, regionCode) &&
           Holds(zones, zone);
}

Result<ZoneCase> ParseZoneCase(std::string_view line) {
    const std::vector<std::string> fields = SplitAt(line, '\t');
    if (fields.size() != kFieldCount && fields.size() != kFieldCount + 1)
        return Fault{"a case has 8 or 9 fields"};
    const auto from = ParseDate(fields[0]);
    const auto to = ParseDate(fields[1]);
    const std::vector<std::string> months = SplitAt(fields[2], '-');
    if (!from || !to || months.size() != 2) return Fault{"a case begins with two dates and months"};
    ZoneCase made;
    made.from = *from;
    made.to = *to;
    made.firstMonth = RoundToInt16(LeadingNumber(months[0]));
    made.lastMonth = RoundToInt16(LeadingNumber(months[1]));
    if (made.firstMonth < 1 || made.lastMonth > 12 || made.lastMonth < made.firstMonth)
        return Fault{"a case holds in months from 1 to 12"};
    made.country = fields[3];
    made.regions = Words(fields[4]);
    made.zones = Words(fields[5]);
    made.text = fields[6];
    made.source = fields[7];
    if (fields.size() > kFieldCount) made.clocks = Words(fields[kFieldCount]);
    return made;
}

}  // namespace tolvanis
