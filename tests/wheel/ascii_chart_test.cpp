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

// Worked out by hand: eight points crowd the eleventh house, where the North Node is not written and takes
// no place; South Node and Part of Fortune, alone and late in their houses, take the fifth place.
TEST(AsciiChart, DrawsToTheCharacter) {
    const std::array<std::string, kAsciiRows> expected = {
        "                 07 AQU             07 CAP             07 SAG                  ",
        "         *                            *                            *           ",
        "            *  UR22Aqu                *                         *              ",
        "               SA20Aqu                * PF05Cap              *                 ",
        "     07 PIS    JU18Aqu                *                   *        07 SCO      ",
        "          *    MA16Aqu                *                *          *            ",
        "              *  VE14Aqu*             *             *MO15Sco  *                ",
        "                  *    ME12Aqu        *          *        *                    ",
        "                      *SU10Aqu*       *       *       *                        ",
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
    EXPECT_EQ(At(rows, 9, 4), "MO10Pis") << "the node takes no place";
    EXPECT_EQ(At(rows, 14, 4), "MA04Pis") << "runs on into the first house's places";
    EXPECT_EQ(At(rows, 17, 4), "SU01Pis");
}

// Eight points and a node in one house: the node must not push a planet out of it.
TEST(AsciiChart, ACrowdedHouseKeepsItsPlanets) {
    const std::string born = "Crowded,5 Feb 1962,8.10,A,0,000.10,51.30";
    const NatalData natal = NatalOf(born);
    const auto rows = DrawAsciiChart(MakeWheelSnapshot(natal, ChartOf(born)));
    for (const char* planet : {"SU", "MO", "ME", "VE", "MA", "JU", "SA"}) {
        EXPECT_THAT(rows,
                    ::testing::Contains(::testing::ContainsRegex(std::string(planet) + "[0-9]+(Aqu|Cap)")));
    }
}

// Seven points in a house stand, the highest longitude first, at the published places of its slots.
TEST(AsciiChart, EverySlotHasItsPlace) {
    constexpr int kPlaces[12][14] = {{14, 4, 15, 4, 16, 4, 17, 4, 18, 4, 15, 13, 16, 13},
                                     {19, 13, 20, 11, 21, 11, 22, 11, 23, 11, 17, 19, 18, 19},
                                     {18, 27, 19, 27, 20, 26, 21, 26, 22, 26, 23, 26, 24, 26},
                                     {24, 36, 23, 36, 22, 36, 21, 36, 20, 36, 19, 35, 18, 35},
                                     {23, 51, 22, 51, 21, 51, 20, 51, 19, 49, 18, 43, 17, 43},
                                     {18, 57, 17, 57, 16, 57, 15, 57, 14, 57, 15, 49, 14, 49},
                                     {12, 57, 11, 57, 10, 57, 9, 57, 8, 57, 12, 49, 11, 49},
                                     {7, 49, 6, 51, 5, 51, 4, 51, 3, 51, 9, 43, 8, 43},
                                     {8, 35, 7, 35, 6, 36, 5, 36, 4, 36, 3, 36, 2, 36},
                                     {2, 26, 3, 26, 4, 26, 5, 26, 6, 26, 7, 27, 8, 27},
                                     {3, 11, 4, 11, 5, 11, 6, 11, 7, 13, 8, 19, 9, 19},
                                     {8, 4, 9, 4, 10, 4, 11, 4, 12, 4, 11, 13, 12, 13}};
    constexpr std::array kLetters = {"SU", "ME", "VE", "MA", "JU", "SA", "UR"};
    for (int house = 1; house <= 12; ++house) {
        WheelSnapshot chart = EqualHouses(0.0);
        for (int point = kNeptune; point <= kPartOfFortune; ++point)
            Put(chart, point, 30.0 * (house + 5) + point);
        for (int point = kSun; point <= kUranus; ++point) Put(chart, point, 30.0 * house - 2.0 * point);
        const auto rows = DrawAsciiChart(chart);
        for (int slot = 0; slot < 7; ++slot) {
            const int* place = &kPlaces[house - 1][2 * slot];
            EXPECT_EQ(At(rows, place[0], place[1], 2), kLetters[static_cast<std::size_t>(slot)])
                << "house " << house << " slot " << slot;
        }
    }
}

// However crowded, every planet is written, and no row grows or shrinks.
TEST(AsciiChart, AllInOneHouseAreWritten) {
    for (int house = 1; house <= 12; ++house) {
        WheelSnapshot chart = EqualHouses(0.0);
        for (int point = 1; point <= kChartPointCount; ++point) Put(chart, point, 30.0 * (house - 1) + point);
        const auto rows = DrawAsciiChart(chart);
        EXPECT_THAT(rows, ::testing::Each(::testing::SizeIs(79)));
        for (const char* text :
             {"SU01", "ME02", "VE03", "MA04", "JU05", "SA06", "UR07", "NE08", "PL09", "MO10", "PF13"}) {
            EXPECT_THAT(rows, ::testing::Contains(::testing::HasSubstr(text))) << "house " << house;
        }
    }
}

}  // namespace
}  // namespace tolvanis
