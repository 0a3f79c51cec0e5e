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

double DegreesOf(const Coordinate& coordinate) {
    const double value = LeadingNumber(coordinate.degrees) + LeadingNumber(coordinate.minutes) / 60.0;
    return coordinate.negative ? -value : value;
}

Coordinate CoordinateOf(std::string_view degrees, std::string_view minutes, bool negative) {
    return {NumberText(LeadingNumber(degrees)), NumberText(LeadingNumber(minutes)), negative};
}

}  // namespace tolvanis
