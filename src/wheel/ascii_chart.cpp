#include "wheel/ascii_chart.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "output/zodiac_text.h"
#include "text/numbers.h"
#include "wheel/wheel_placement.h"

namespace tolvanis {
namespace {

constexpr int kLeftMargin = 5;
constexpr int kLastPoint = kPartOfFortune;
constexpr std::string_view kPointLetters = "SUMEVEMAJUSAURNEPLMONNSNPF";

struct Place {
    int row;
    int column;
};

// Seven places a house; what runs out of the twelfth goes on in the first.
constexpr std::array<Place, 84> kSlotPlaces = {{
    {14, 4},  {15, 4},  {16, 4},  {17, 4},  {18, 4},  {15, 13}, {16, 13},  // 1
    {19, 13}, {20, 11}, {21, 11}, {22, 11}, {23, 11}, {17, 19}, {18, 19},  // 2
    {18, 27}, {19, 27}, {20, 26}, {21, 26}, {22, 26}, {23, 26}, {24, 26},  // 3
    {24, 36}, {23, 36}, {22, 36}, {21, 36}, {20, 36}, {19, 35}, {18, 35},  // 4
    {23, 51}, {22, 51}, {21, 51}, {20, 51}, {19, 49}, {18, 43}, {17, 43},  // 5
    {18, 57}, {17, 57}, {16, 57}, {15, 57}, {14, 57}, {15, 49}, {14, 49},  // 6
    {12, 57}, {11, 57}, {10, 57}, {9, 57},  {8, 57},  {12, 49}, {11, 49},  // 7
    {7, 49},  {6, 51},  {5, 51},  {4, 51},  {3, 51},  {9, 43},  {8, 43},   // 8
    {8, 35},  {7, 35},  {6, 36},  {5, 36},  {4, 36},  {3, 36},  {2, 36},   // 9
    {2, 26},  {3, 26},  {4, 26},  {5, 26},  {6, 26},  {7, 27},  {8, 27},   // 10
    {3, 11},  {4, 11},  {5, 11},  {6, 11},  {7, 13},  {8, 19},  {9, 19},   // 11
    {8, 4},   {9, 4},   {10, 4},  {11, 4},  {12, 4},  {11, 13}, {12, 13},  // 12
}};

// By listing position, tenth house first.
constexpr std::array<Place, 12> kCuspPlaces = {{{1, 32},
                                                {1, 13},
                                                {5, 1},
                                                {13, 1},
                                                {21, 1},
                                                {25, 13},
                                                {25, 32},
                                                {25, 51},
                                                {21, 63},
                                                {13, 63},
                                                {5, 63},
                                                {1, 51}}};

// "*" from a place on, `count` of them, one step apart.
struct StarRow {
    Place first;
    Place step;
    int count;
};
constexpr std::array kStars = {
    // Axes, across and down.
    StarRow{{13, 8}, {0, 1}, 18},
    StarRow{{13, 43}, {0, 1}, 19},
    StarRow{{2, 34}, {1, 0}, 9},
    StarRow{{16, 34}, {1, 0}, 9},
    // Box.
    StarRow{{12, 25}, {2, 0}, 2},
    StarRow{{12, 43}, {2, 0}, 2},
    StarRow{{10, 31}, {0, 1}, 2},
    StarRow{{16, 31}, {0, 1}, 2},
    StarRow{{10, 36}, {0, 1}, 2},
    StarRow{{16, 36}, {0, 1}, 2},
    // Diagonals.
    StarRow{{11, 26}, {-1, -4}, 6},
    StarRow{{10, 29}, {-1, -3}, 9},
    StarRow{{15, 26}, {1, -4}, 6},
    StarRow{{16, 29}, {1, -3}, 9},
    StarRow{{11, 42}, {-1, 4}, 6},
    StarRow{{10, 39}, {-1, 3}, 9},
    StarRow{{15, 42}, {1, 4}, 6},
    StarRow{{16, 39}, {1, 3}, 9},
};

class AsciiGrid {
  public:
    AsciiGrid() { rows_.fill(std::string(kAsciiColumns, ' ')); }

    void Write(Place place, std::string_view text) {
        const auto column = static_cast<std::size_t>(place.column + kLeftMargin - 1);
        rows_[static_cast<std::size_t>(place.row - 1)].replace(column, text.size(), text);
    }

    const std::array<std::string, kAsciiRows>& rows() const { return rows_; }

  private:
    std::array<std::string, kAsciiRows> rows_;
};

void WriteStars(AsciiGrid& grid) {
    for (const StarRow& stars : kStars) {
        for (int i = 0; i < stars.count; ++i) {
            grid.Write({stars.first.row + i * stars.step.row, stars.first.column + i * stars.step.column},
                       "*");
        }
    }
}

void WriteCusps(AsciiGrid& grid, const HouseCusps& cusps) {
    for (int position = 1; position <= 12; ++position) {
        const Place place = kCuspPlaces[static_cast<std::size_t>(position - 1)];
        const ZodiacPlace cusp = SplitZodiac(cusps[position]);
        grid.Write(place, TwoDigits(cusp.degrees));
        grid.Write({place.row, place.column + 3}, SignAbbreviation(cusp.sign));
    }
}

void WritePoint(AsciiGrid& grid, Place place, int point, double longitude) {
    const ZodiacPlace zodiac = SplitZodiac(longitude);
    grid.Write(place, kPointLetters.substr(static_cast<std::size_t>(2 * point - 2), 2));
    grid.Write({place.row, place.column + 2}, TwoDigits(zodiac.degrees));
    grid.Write({place.row, place.column + 4}, SignName(zodiac.sign).substr(0, 3));
}

// The written points by house, turned until no house is split between the end and the start.
std::vector<int> AsciiOrder(const WheelSnapshot& chart) {
    std::vector<int> order = PlacementOrder(chart, kLastPoint);
    for (int moves = 1; moves < kLastPoint; ++moves) {
        if (chart.PointHouse[order.front()] != chart.PointHouse[order.back()]) break;
        std::rotate(order.begin(), order.end() - 1, order.end());
    }
    return order;
}

PerPoint<int> WheelSlots(const WheelSnapshot& chart) {
    PerPoint<int> slots;
    for (const PlacedGlyph& glyph : PlaceGlyphs(chart, ChartType::American)) slots[glyph.point] = glyph.slot;
    return slots;
}

void WritePoints(AsciiGrid& grid, const WheelSnapshot& chart) {
    constexpr int kLatePlace = 4;
    const std::array<int, 12> counts = PointsPerHouse(chart, kLastPoint);
    const PerPoint<int> wheelSlots = WheelSlots(chart);
    const std::vector<int> order = AsciiOrder(chart);
    int lastHouse = 0;
    int nextSlot = 0;
    for (auto entry = order.rbegin(); entry != order.rend(); ++entry) {
        const int point = *entry;
        const int house = chart.PointHouse[point];
        const int inHouse = counts[static_cast<std::size_t>(house - 1)];
        if (std::exchange(lastHouse, house) != house) nextSlot = 0;
        if (inHouse > kSlotsPerHouse && (point == kNorthNode || point == kSouthNode)) continue;
        int slot = nextSlot++;
        if (inHouse == 1 && wheelSlots[point] >= kLatePlace) slot = kLatePlace;
        const auto place = static_cast<std::size_t>((house - 1) * kSlotsPerHouse + slot);
        WritePoint(grid, kSlotPlaces[place % kSlotPlaces.size()], point, chart.PointLongitude[point]);
    }
}

}  // namespace

std::array<std::string, kAsciiRows> DrawAsciiChart(const WheelSnapshot& chart) {
    AsciiGrid grid;
    WriteStars(grid);
    WriteCusps(grid, chart.HouseCusps);
    WritePoints(grid, chart);
    return grid.rows();
}

void WriteAsciiChart(DataBuffer& buffer, const WheelSnapshot& chart) {
    for (const std::string& line : chart.TitleLines) buffer.AppendLine(std::string(5, ' ') + line);
    for (const std::string& row : DrawAsciiChart(chart)) buffer.AppendLine(row);
}

}  // namespace tolvanis
