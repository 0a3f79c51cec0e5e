#include "birthdata/place.h"

#include "text/numbers.h"

namespace tolvanis {

std::optional<CoordinateParts> SplitCoordinate(std::string_view text, const CoordinateForm& form) {
    const std::size_t letter = text.find_first_of(form.letters);
    if (letter == std::string_view::npos) return std::nullopt;
    const bool negative = text[letter] == form.letters[1];
    if (text.find(form.letters[negative ? 0 : 1]) != std::string_view::npos) return std::nullopt;
    return CoordinateParts{text.substr(0, letter), text.substr(letter + 1), negative};
}

bool IsWithin(const CoordinateParts& parts, const CoordinateForm& form) {
    const double minutes = LeadingNumber(parts.minutes);
    return minutes < 60.0 && LeadingNumber(parts.degrees) + minutes / 60.0 <= form.mostDegrees;
}

std::string CoordinateText(const Coordinate& coordinate, const CoordinateForm& form) {
    const int minutes = RoundToInt16(LeadingNumber(coordinate.minutes));
    return coordinate.degrees + form.letters[coordinate.negative ? 1 : 0] + TwoDigits(minutes);
}

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
