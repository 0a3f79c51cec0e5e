#pragma once
// The place part of a natal entry, as a cities file or an atlas gives it.

#include <optional>
#include <string>

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

// Writes the place into an entry; a coordinate that is not known leaves its boxes as they are. The time zone
// keeps its sign whatever the hemisphere.
void FillPlace(NatalEntry& entry, const Place& place);

// Decimal degrees, negative in the east and in the south.
double DegreesOf(const Coordinate& coordinate);

// The coordinate that a text describes by its degrees and minutes, each with the leading-number reading.
Coordinate CoordinateOf(std::string_view degrees, std::string_view minutes, bool negative);

}  // namespace tolvanis
