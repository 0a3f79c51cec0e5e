// The chart in characters.
#include "wheel/ascii_chart.h"

#include <gmock/gmock.h>

#include "wheel/wheel_support.h"

namespace tolvanis {
namespace {

// The text at a row and column, both counted from 1, the column from behind the margin.
std::string At(const std::array<std::string, kAsciiRows>& rows, int row, int column, std::size_t length = 7) {
    return rows[static_cast<std::size_t>(row - 1)].substr(static_cast<std::size_t>(column + 4), length);
}

// Worked out by hand: eight points crowd the eleventh house, where the North Node keeps its place but is not
// written; South Node and Part of Fortune, alone and late in their houses, take the fifth place.
TEST(AsciiChart, DrawsToTheCharacter) {
    const std::array<std::string, kAsciiRows> expected = {
        "                 07 AQU             07 CAP             07 SAG                  ",
        "         *                            *                            *           ",
        "            *                         *                         *              ",
        "               UR22Aqu                * PF05Cap              *                 ",
        "     07 PIS    SA20Aqu                *                   *        07 SCO      ",
        "          *    JU18Aqu                *                *          *            ",
        "              *  MA16Aqu*             *             *MO15Sco  *                ",
        "        SU10Aqu   *    VE14Aqu        *          *        *                    ",
        "                      *ME12Aqu*       *       *       *                        ",
        "                          *      * ** * ** *      *                            ",
        "                              *               *                                ",
        "                             *                 *                               ",
        "     07 ARI ******************                 ******************* 07 LIB      ",
        "        NE10Ari              *                 *                               ",
        "                              *               *                                ",
        "                          *      * ** * ** *      *                            ",
        "                      *       *       *       *       *                        ",
        "                  *        *          *          *        *                    ",
        "              *         *             *             *SN25Leo  *                ",
        "          *          *                *                *          *            ",
        "     07 TAU       *                   *                   *        07 VIR      ",
        "               *                      *                      *                 ",
        "            *                         *                         *              ",
        "         *                            * PL10Can                    *           ",
        "                 07 GEM             07 CAN             07 LEO                  ",
    };
    WheelSnapshot chart = EqualHouses(7.0);
    const std::array<double, kPartOfFortune> longitudes = {310, 312.5, 314, 316, 318, 320, 322,
                                                           10,  100,   225, 325, 145, 275};
    for (int point = kSun; point <= kPartOfFortune; ++point) {
        Put(chart, point, longitudes[static_cast<std::size_t>(point - 1)]);
    }
    const auto rows = DrawAsciiChart(chart);
    for (std::size_t row = 0; row < rows.size(); ++row) EXPECT_EQ(rows[row], expected[row]) << row + 1;
}

TEST(AsciiChart, CrowdedHousesLeaveOutNodesAndRunOn) {
    WheelSnapshot chart = EqualHouses(0.0);
    for (int point = 1; point <= kChartPointCount; ++point) Put(chart, point, 330.5 + point);  // the twelfth
    Put(chart, kSouthNode, 161.0);
    const auto rows = DrawAsciiChart(chart);
    EXPECT_THAT(rows, ::testing::Each(::testing::Not(::testing::HasSubstr("NN"))));
    EXPECT_THAT(rows, ::testing::Contains(::testing::HasSubstr("SN11Vir")));
    EXPECT_EQ(At(rows, 8, 4), "PF13Pis");
    EXPECT_EQ(At(rows, 10, 4), "MO10Pis") << "the node's place stays empty";
    EXPECT_EQ(At(rows, 14, 4), "JU05Pis") << "runs on into the first house's places";
    EXPECT_EQ(At(rows, 18, 4), "SU01Pis");
}

TEST(AsciiChart, AllInOneHouseEnds) {
    for (int house = 1; house <= 12; ++house) {
        WheelSnapshot chart = EqualHouses(0.0);
        for (int point = 1; point <= kChartPointCount; ++point) Put(chart, point, 30.0 * (house - 1) + point);
        EXPECT_EQ(DrawAsciiChart(chart).size(), 25u);
    }
}

}  // namespace
}  // namespace tolvanis
