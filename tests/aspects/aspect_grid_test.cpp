#include "aspects/aspect_grid.h"

#include <gmock/gmock.h>

#include <cmath>

#include "support.h"

namespace tolvanis {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

// Points without order; the tests place the Sun and the Moon.
ChartPositions Spread() {
    ChartPositions chart;
    for (int point = 1; point <= kChartPointCount; ++point) {
        chart.PointLongitude[point] = std::fmod(3.217 * point * point, 360.0);
        chart.PointDeclination[point] = 2.0 * point;
    }
    return chart;
}

std::vector<std::string> GridOf(const ChartPositions& chart, const Options& options) {
    DataBuffer buffer;
    WriteAspectGrid(buffer, chart, FindAspects(chart, options), options);
    return buffer.ListingLines();
}

TEST(AspectGrid, LastMatchWinsAndBoundsCount) {
    const struct {
        std::string_view what;
        double sun, moon;
        std::vector<std::pair<int, float>> orbs;
        int code;
    } cases[] = {
        {"over 0 Aries", 359, 1, {{1, 2}}, kConjunction},
        {"on the bound", 10, 18, {{1, 8}}, kConjunction},
        {"past the bound", 10, 18.001, {{1, 8}}, kNoAspect},
        {"conjunction beats semi-sextile", 0, 9, {{1, 10}, {7, 30}}, kConjunction},
        {"trine after square", 0, 105, {{3, 15}, {4, 15}}, kTrine},
        {"square on its upper bound", 0, 97, {{3, 7}}, kSquare},
        {"lower bound of an opposition", 0, 172, {{5, 8}}, kOpposition},
        {"opposition across", 350, 171, {{5, 1}}, kOpposition},
        {"quintile with the switch", 0, 72, {{13, 1}, {16, 1}}, kQuintile},
        {"no quintile without", 0, 72, {{13, 1}, {16, 2}}, kNoAspect},
        {"an orb of 0", 0, 60, {}, kSextile},
        // 60 + 5.9 is just above the single 65.9, the separation 65.9 rounds to the same single.
        {"single precision", 0, 65.9, {{2, 5.9F}}, kSextile},
    };
    for (const auto& c : cases) {
        ChartPositions chart = Spread();
        chart.PointLongitude[kSun] = c.sun;
        chart.PointLongitude[kMoon] = c.moon;
        Options options;
        for (int n = 1; n <= 15; ++n) options[n] = 0;
        for (const auto& [n, orb] : c.orbs) options[n] = orb;
        EXPECT_EQ(FindAspects(chart, options).CodeAt(1, 2), c.code) << c.what;
    }
}

TEST(AspectGrid, ParallelsByDeclination) {
    ChartPositions chart = Spread();
    Options options;
    options[6] = 1;
    const struct {
        double sun, moon;
        std::string_view cell;
    } cases[] = {{10, -10.5, " CP  "},
                 {10, 10.5, " P   "},
                 {-10, -11, " P   "},
                 {10, 11.1, "---  "},
                 {0, -0.5, " CP  "}};
    for (const auto& c : cases) {
        chart.PointDeclination[kSun] = c.sun;
        chart.PointDeclination[kMoon] = c.moon;
        const std::string moonRow = GridOf(chart, options)[5];
        EXPECT_EQ(moonRow.substr(moonRow.size() - 5), c.cell) << c.sun << ' ' << c.moon;
    }
}

TEST(AspectGrid, LegendFollowsTheSwitch) {
    Options options;
    EXPECT_THAT(GridOf(Spread(), options), Not(Contains(HasSubstr("bi-quintile"))));
    options[16] = 2;
    EXPECT_THAT(GridOf(Spread(), options), Contains("  144  = bi-quintile"));
}

TEST(AspectGrid, MinutesCarryInTheList) {
    ChartPositions chart = Spread();
    Options options;
    options[2] = 6;
    chart.PointLongitude[kSun] = 0;
    chart.PointLongitude[kMoon] = 64.9999;
    EXPECT_THAT(GridOf(chart, options), Contains("  Sun        Moon        65d 00m          5d 00m"));
    chart.PointLongitude[kMoon] = 54.5;
    EXPECT_THAT(GridOf(chart, options), Contains("  Sun        Moon        54d 30m          5d 30m"));
}

}  // namespace
}  // namespace tolvanis
