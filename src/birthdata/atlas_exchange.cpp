#include "birthdata/atlas_exchange.h"

#include "text/fields.h"

namespace tolvanis {
namespace {

constexpr std::string NatalEntry::*kBoxes[] = {&NatalEntry::year, &NatalEntry::month, &NatalEntry::day,
                                               &NatalEntry::birthHour, &NatalEntry::birthMinute};

}  // namespace

Environment AtlasEnvironment(const NatalEntry& entry, const Path& appDirectory) {
    std::string birth;
    for (const auto box : kBoxes) birth += entry.*box + " ";
    birth += entry.pm ? 'P' : 'A';
    return {{kAtlasBirthVariable, birth}, {std::string(kDirectoryVariable), appDirectory.string()}};
}

NatalEntry BirthOfEnvironment(std::string_view value) {
    NatalEntry entry;
    const std::vector<std::string> parts = SplitAt(value, ' ');
    if (parts.size() != std::size(kBoxes) + 1) return entry;
    for (std::size_t i = 0; i < std::size(kBoxes); ++i) entry.*kBoxes[i] = parts[i];
    entry.pm = parts.back() == "P";
    return entry;
}

std::string ExchangeText(const AtlasPlace& place, int offset) {
    const double hours = EntryZoneOf(offset, place.place.degreesEast).hours;
    return place.FullName() + "\r\n" + CoordinateText(place.Latitude(), kLatitudeForm) + "\r\n" +
           CoordinateText(place.Longitude(), kLongitudeForm) + "\r\n\r\n" + ZoneHoursText(hours) + "\r\n";
}

}  // namespace tolvanis
