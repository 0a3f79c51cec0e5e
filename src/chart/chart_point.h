#pragma once
// The fifteen points of a chart, their order and their names.

#include <array>
#include <string>
#include <string_view>

namespace tolvanis {

// Chart points count from 1 in this order everywhere, in tables and in files.
enum ChartPoint : int {
    kSun = 1,
    kMercury,
    kVenus,
    kMars,
    kJupiter,
    kSaturn,
    kUranus,
    kNeptune,
    kPluto,
    kMoon,
    kNorthNode,
    kSouthNode,
    kPartOfFortune,
    kAscendant,
    kMidheaven,
};
inline constexpr int kChartPointCount = 15;

// A table with one entry for each chart point, indexed from 1.
template <typename T>
struct PerPoint {
    std::array<T, kChartPointCount> values{};

    constexpr T& operator[](int point) { return values[static_cast<std::size_t>(point - 1)]; }
    constexpr const T& operator[](int point) const { return values[static_cast<std::size_t>(point - 1)]; }
    friend bool operator==(const PerPoint&, const PerPoint&) = default;
};

// Grid order: the order in which listings, grids and reports show the points, the Moon second.
inline constexpr std::array<int, kChartPointCount> kGridOrder = {
    kSun,     kMoon,  kMercury,   kVenus,     kMars,          kJupiter,   kSaturn,   kUranus,
    kNeptune, kPluto, kNorthNode, kSouthNode, kPartOfFortune, kAscendant, kMidheaven};

// Names in grid order, position 1 to 15.
inline constexpr std::array<std::string_view, kChartPointCount> kGridNames = {
    "Sun",     "Moon",  "Mercury",    "Venus",      "Mars",     "Jupiter",   "Saturn",   "Uranus",
    "Neptune", "Pluto", "North Node", "South Node", "P. of F.", "Ascendant", "Midheaven"};

// The chart point at a grid position, 1 to 15, and its name.
constexpr int GridPoint(int position) {
    return kGridOrder[static_cast<std::size_t>(position - 1)];
}
constexpr std::string_view GridName(int position) {
    return kGridNames[static_cast<std::size_t>(position - 1)];
}

// The grid position of a chart point, and its name as the grid writes it.
int GridPosition(int point);
std::string_view PointName(int point);

// The ten-character name of a chart point in the listing: "SUN       ".
std::string_view ListingPointName(int point);

inline constexpr std::array<std::string_view, 12> kSignNames = {
    "Aries", "Taurus",  "Gemini",      "Cancer",    "Leo",      "Virgo",
    "Libra", "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces"};

// The name of a sign, 1 to 12.
constexpr std::string_view SignName(int sign) {
    return kSignNames[static_cast<std::size_t>(sign - 1)];
}

// "ARI" to "PIS" for signs 1 to 12.
std::string SignAbbreviation(int sign);

// The sign, 1 to 12, of a longitude in degrees, 0 <= longitude < 360.
int SignOf(double longitude);

}  // namespace tolvanis
