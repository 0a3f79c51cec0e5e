#pragma once
// Where the glyphs of the chart points stand on the wheel.

#include <array>
#include <string_view>
#include <vector>

#include "wheel/wheel_data.h"
#include "wheel/wheel_snapshot.h"

namespace tolvanis {

// American: twelve equal sectors, each with seven slots for glyphs. European: everything at its true angle
// from the Ascendant. Zodiac ring: the same, with the zodiac as a graduated ring.
enum class ChartType { American = 0, European = 1, ZodiacRing = 2 };

// The type that a number of the settings file names: every value but 1 and 2 is American.
constexpr ChartType ChartTypeOf(int typeChart) {
    if (typeChart == 2) return ChartType::ZodiacRing;
    return typeChart == 1 ? ChartType::European : ChartType::American;
}

// The type's name in the command line.
inline constexpr std::array<std::string_view, 3> kChartTypeNames = {"american", "european", "ring"};

inline constexpr int kSlotsPerHouse = 7;

// The wheel angle of a longitude, 0 <= a < 360: the cusp of the first house at 180, anticlockwise.
double WheelAngle(double longitude, const HouseCusps& cusps);

// How many of the points 1 to `lastPoint` each house holds; entry h - 1 belongs to house h.
std::array<int, 12> PointsPerHouse(const WheelSnapshot& chart, int lastPoint = kChartPointCount);

// The points 1 to `lastPoint` by house, first house first, and within a house in zodiacal order from its
// cusp.
std::vector<int> PlacementOrder(const WheelSnapshot& chart, int lastPoint = kChartPointCount);

struct PlacedGlyph {
    int point = kSun;
    int house = 1;
    int slot = 0;        // counted from the house's first; 7 and more lie in the houses that follow
    double angle = 0.0;  // wheel degrees, 0 <= a < 360
    bool drawn = true;   // a house of more than seven points shows neither South Node nor Part of Fortune
};

// Places all points, in placement order. American glyphs stand in the slots: each in the seventh of its house
// that it lies in, moved so that the points behind it still fit and so that no slot is taken twice. European
// glyphs stand at their true angles, 4 degrees or more apart all the way round, in zodiacal order, moved as
// little as that takes; glyphs that are not drawn need no room. Glyphs of the zodiac ring are all drawn, to
// both sides of their true angles and as near to them as the room for their labels allows.
std::vector<PlacedGlyph> PlaceGlyphs(const WheelSnapshot& chart, ChartType type);

}  // namespace tolvanis
