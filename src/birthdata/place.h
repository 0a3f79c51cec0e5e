#pragma once
// The place part of a natal entry, as a cities file or an atlas gives it.

#include <optional>
#include <string>
#include <string_view>

#include "birthdata/natal_entry.h"

namespace tolvanis {

struct Coordinate {
    std::string degrees;  // as plain numbers
    std::string minutes;
    bool negative = false;  // east or south

    friend bool operator==(const Coordinate&, const Coordinate&) = default;
};

struct Place {
    std::optional<Coordinate> longitude;
    std::optional<Coordinate> latitude;
    std::string timeZone;  // decimal hours, west positive, as a plain number

    friend bool operator==(const Place&, const Place&) = default;
};

// How texts hold a longitude or a latitude: with one of two letters, the second for the east or the south,
// and up to so many degrees.
struct CoordinateForm {
    std::string_view letters;
    int mostDegrees;
};
inline constexpr CoordinateForm kLongitudeForm = {"WE", 180};
inline constexpr CoordinateForm kLatitudeForm = {"NS", 90};

// What a text has in front of its letter and behind; nothing where it does not hold exactly one of the two.
struct CoordinateParts {
    std::string_view degrees;
    std::string_view minutes;
    bool negative = false;
};
std::optional<CoordinateParts> SplitCoordinate(std::string_view text, const CoordinateForm& form);

// Whether parts that are numbers lie within the form: less than 60 minutes, and with them no more than the
// degrees it goes up to.
bool IsWithin(const CoordinateParts& parts, const CoordinateForm& form);

// Degrees, letter and two digits of minutes: 84W05.
std::string CoordinateText(const Coordinate& coordinate, const CoordinateForm& form);

// Writes the place into an entry; a coordinate that is not known leaves its boxes as they are. The time zone
// keeps its sign whatever the hemisphere.
void FillPlace(NatalEntry& entry, const Place& place);

// Decimal degrees, negative in the east and in the south.
double DegreesOf(const Coordinate& coordinate);

// The coordinate that a text describes by its degrees and minutes, each with the leading-number reading.
Coordinate CoordinateOf(std::string_view degrees, std::string_view minutes, bool negative);

}  // namespace tolvanis
