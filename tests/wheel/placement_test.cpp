// Where planet glyphs stand: slots, crowding, collisions and the European gaps, worked out by hand.
#include "wheel/wheel_placement.h"

#include <gmock/gmock.h>

#include "wheel/wheel_support.h"

namespace tolvanis {
namespace {

using ::testing::ElementsAre;

const PlacedGlyph& Of(const std::vector<PlacedGlyph>& glyphs, int point) {
    return *std::ranges::find(glyphs, point, &PlacedGlyph::point);
}

// The slots of the points of the first house, whose offsets are given; all other points stand elsewhere.
std::vector<int> SlotsFor(const std::vector<double>& offsets) {
    WheelSnapshot chart = SpreadChart(100.0);
    for (int point = 1; point <= kChartPointCount; ++point) {
        if (chart.PointHouse[point] == 1) Put(chart, point, 130.0 + 10.0 + point);
    }
    for (std::size_t i = 0; i < offsets.size(); ++i) Put(chart, static_cast<int>(i) + 1, 100.0 + offsets[i]);
    const auto glyphs = PlaceGlyphs(chart, ChartType::American);
    std::vector<int> slots;
    for (std::size_t i = 0; i < offsets.size(); ++i)
        slots.push_back(Of(glyphs, static_cast<int>(i) + 1).slot);
    return slots;
}

TEST(Placement, SlotsOfOneHouse) {
    const struct {
        const char* what;
        std::vector<double> offsets;
        std::vector<int> slots;
    } cases[] = {
        {"on the cusp", {0.0}, {0}},
        {"a hair in front of a seventh and on it", {4.28, 4.29}, {0, 1}},
        {"the last seventh holds one", {29.9}, {6}},
        {"two in the last seventh: the first makes room", {27.0, 29.0}, {5, 6}},
        {"three in the last seventh", {26.0, 27.0, 29.0}, {4, 5, 6}},
        {"two together in front push on", {1.0, 2.0}, {0, 1}},
        {"a pile in the middle", {14.0, 14.1, 14.2, 14.3}, {3, 4, 5, 6}},
        {"a late pile of five fills the house from behind", {20.0, 21.0, 22.0, 23.0, 24.0}, {2, 3, 4, 5, 6}},
        {"one on the cusp and a late pile of five", {0.0, 18.0, 19.0, 20.0, 21.0, 22.0}, {0, 2, 3, 4, 5, 6}},
        {"seven fill the house", {0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0}, {0, 1, 2, 3, 4, 5, 6}},
        {"the eighth runs on", {0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0}, {0, 1, 2, 3, 4, 5, 6, 7}},
    };
    for (const auto& c : cases) EXPECT_EQ(SlotsFor(c.offsets), c.slots) << c.what;
}

TEST(Placement, ZeroAriesInsideAHouseKeepsTheOrder) {
    WheelSnapshot chart = SpreadChart(340.0);
    for (int point = 1; point <= kChartPointCount; ++point) {
        if (chart.PointHouse[point] == 1) Put(chart, point, 20.0);
    }
    Put(chart, kVenus, 5.0);
    Put(chart, kMars, 355.0);
    Put(chart, kSun, 340.0 - 1.0 / 72000.0);  // a hair in front of the cusp that it belongs to
    chart.PointHouse[kSun] = 1;
    const std::vector<int> order = PlacementOrder(chart);
    EXPECT_THAT(std::vector<int>(order.begin(), order.begin() + 3), ElementsAre(kSun, kMars, kVenus));
    const auto glyphs = PlaceGlyphs(chart, ChartType::American);
    EXPECT_EQ(Of(glyphs, kSun).angle, 180.0);
    EXPECT_EQ(Of(glyphs, kMars).angle, 192.0);   // 15 of 30 degrees: slot 3
    EXPECT_EQ(Of(glyphs, kVenus).angle, 200.0);  // 25 of 30: slot 5
}

TEST(Placement, EightInAHouseHideNodeAndFortuneAndPassATakenSlot) {
    WheelSnapshot chart = SpreadChart(0.0);
    for (int point = 1; point <= kPluto; ++point)
        Put(chart, point, 331.0 + 0.1 * point);  // nine in the twelfth
    Put(chart, kMoon, 45.0);
    Put(chart, kNorthNode, 150.0);
    Put(chart, kSouthNode, 332.5);
    Put(chart, kPartOfFortune, 333.0);
    Put(chart, kAscendant, 0.0);
    Put(chart, kMidheaven, 270.0);
    const auto glyphs = PlaceGlyphs(chart, ChartType::American);
    std::vector<int> slots;
    for (const int point : {kSaturn, kUranus, kNeptune, kPluto, kSouthNode, kPartOfFortune}) {
        slots.push_back(Of(glyphs, point).slot);
        EXPECT_EQ(Of(glyphs, point).drawn, point <= kPluto) << point;
    }
    // The Ascendant holds the first slot of the first house, which follows the seventh of the twelfth.
    EXPECT_THAT(slots, ElementsAre(5, 6, 8, 9, 10, 11));
    EXPECT_EQ(Of(glyphs, kNeptune).angle, 153.0 + 32.0);
    EXPECT_TRUE(Of(glyphs, kNorthNode).drawn);
}

TEST(Placement, AnglesBeyondTheTurnFoldBack) {
    WheelSnapshot chart = SpreadChart(0.0);
    Put(chart, kSun, 179.9);  // last slot of the sixth house, which starts at 335
    EXPECT_EQ(Of(PlaceGlyphs(chart, ChartType::American), kSun).angle, 359.0);
    for (int point = kSun; point <= kPluto; ++point) Put(chart, point, 170.0 + 0.5 * point);
    for (const PlacedGlyph& glyph : PlaceGlyphs(chart, ChartType::American)) {
        EXPECT_GE(glyph.angle, 0.0);
        EXPECT_LT(glyph.angle, 360.0);
    }
}

TEST(Placement, EuropeanGlyphsStandAtTheirTrueAnglesFourDegreesApart) {
    WheelSnapshot chart = EqualHouses(100.0);
    for (int point = 1; point <= kChartPointCount; ++point) Put(chart, point, 300.0 + 9.0 * point);
    Put(chart, kSun, 203.0);
    Put(chart, kMercury, 206.0);  // 3 degrees on: moved to 4
    Put(chart, kVenus, 204.0);    // between them
    Put(chart, kMars, 214.9);     // clear of all three
    const auto glyphs = PlaceGlyphs(chart, ChartType::European);
    EXPECT_NEAR(Of(glyphs, kSun).angle, 283.0, 1e-9);
    EXPECT_NEAR(Of(glyphs, kVenus).angle, 287.0, 1e-9);
    EXPECT_NEAR(Of(glyphs, kMercury).angle, 291.0, 1e-9);
    EXPECT_NEAR(Of(glyphs, kMars).angle, 295.0, 1e-9);
}

TEST(Placement, EuropeanGlyphsClearEachOtherAcrossTheAscendant) {
    WheelSnapshot chart = EqualHouses(0.0);
    for (int point = 1; point <= kChartPointCount; ++point) Put(chart, point, 20.0 * point);
    Put(chart, kAscendant, 0.0);
    Put(chart, kMidheaven, 270.0);
    Put(chart, kSun, 358.0);
    Put(chart, kMoon, 355.0);
    const auto glyphs = PlaceGlyphs(chart, ChartType::European);
    // Moon and Sun keep 4 degrees already; moving the Ascendant alone is less than moving both back.
    EXPECT_NEAR(Of(glyphs, kMoon).angle, 175.0, 1e-9);
    EXPECT_NEAR(Of(glyphs, kSun).angle, 179.0, 1e-9);
    EXPECT_NEAR(Of(glyphs, kAscendant).angle, 183.0, 1e-9);
    Put(chart, kMoon, 300.5);
    EXPECT_NEAR(Of(PlaceGlyphs(chart, ChartType::European), kSun).angle, 176.0, 1e-9);
}

// However the points fall: gaps of 4 degrees all the way round, and zodiacal order.
TEST(Placement, EuropeanGapsHoldForAnyCrowd) {
    for (const double spread : {0.0, 0.3, 1.7, 3.9, 11.0}) {
        for (double ascendant = 0.0; ascendant < 360.0; ascendant += 13.7) {
            WheelSnapshot chart = EqualHouses(ascendant);
            for (int point = 1; point <= kChartPointCount; ++point) Put(chart, point, 341.0 + spread * point);
            Put(chart, kSouthNode, chart.PointLongitude[kNorthNode] + 180.0);
            Put(chart, kAscendant, ascendant);
            std::vector<double> drawn;
            for (const PlacedGlyph& glyph : PlaceGlyphs(chart, ChartType::European)) {
                if (glyph.drawn) drawn.push_back(glyph.angle);
            }
            double turn = 0.0;
            for (std::size_t i = 0; i < drawn.size(); ++i) {
                const double gap = Norm360(drawn[(i + 1) % drawn.size()] - drawn[i] + 1e-7) - 1e-7;
                EXPECT_GE(gap, 4.0 - 1e-6) << spread << " " << ascendant;
                turn += gap;
            }
            EXPECT_NEAR(turn, 360.0, 1e-4) << "out of order at " << spread << " " << ascendant;
        }
    }
}

// The ring draws every point, in zodiacal order, around the middle of the true angles of its crowd.
TEST(Placement, RingGlyphsSpreadAroundTheirTrueAngles) {
    WheelSnapshot chart = EqualHouses(100.0);
    for (int point = 1; point <= kChartPointCount; ++point) Put(chart, point, 110.0 + 20.0 * point);
    EXPECT_NEAR(Of(PlaceGlyphs(chart, ChartType::ZodiacRing), kSun).angle, 210.0, 1e-9) << "alone: true";
    for (int point = kSun; point <= kMoon; ++point)
        Put(chart, point, 99.0 + 0.2 * point);  // about the Ascendant
    const auto glyphs = PlaceGlyphs(chart, ChartType::ZodiacRing);
    double middle = 0.0;
    for (int point = kSun; point <= kMoon; ++point) {
        EXPECT_TRUE(Of(glyphs, point).drawn);
        middle += Of(glyphs, point).angle / 10.0;
        if (point == kSun) continue;
        const double gap = Of(glyphs, point).angle - Of(glyphs, point - 1).angle;
        EXPECT_GT(gap, 4.9);
        EXPECT_LT(gap, 6.0);
    }
    EXPECT_NEAR(middle, 180.0 + 0.1, 0.5) << "to both sides alike";
}

}  // namespace
}  // namespace tolvanis
