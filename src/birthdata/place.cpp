#include "birthdata/place.h"

#include "text/numbers.h"

namespace tolvanis {

void FillPlace(NatalEntry& entry, const Place& place) {
    if (place.longitude) {
        entry.longDeg = place.longitude->degrees;
        entry.longMin = place.longitude->minutes;
        entry.east = place.longitude->negative;
    }
    if (place.latitude) {
        entry.latDeg = place.latitude->degrees;
        entry.latMin = place.latitude->minutes;
        entry.south = place.latitude->negative;
    }
    entry.timeZone = place.timeZone;
}

Coordinate CoordinateOf(std::string_view degrees, std::string_view minutes, bool negative) {
    return {NumberText(LeadingNumber(degrees)), NumberText(LeadingNumber(minutes)), negative};
}

}  // namespace tolvanis
