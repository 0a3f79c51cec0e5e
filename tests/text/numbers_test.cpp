#include "text/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace tolvanis {
namespace {

TEST(Numbers, LeadingNumberTakesTheLongestPrefix) {
    const struct {
        std::string_view text;
        double value;
    } cases[] = {{"", 0},
                 {"  12.5 label", 12.5},
                 {"+4", 4},
                 {".5", 0.5},
                 {"5.", 5},
                 {"-.25x", -0.25},
                 {".", 0},
                 {"1.2.3", 1.2},
                 {"12-3", 12},
                 {"1e2", 100},
                 {"1D-2", 0.01},
                 {"1e+", 1},
                 {"\t7", 7},
                 {"1,5", 1},
                 {"0x10", 0},
                 {"nan", 0},
                 {"1e999", std::numeric_limits<double>::max()},
                 {"-1e999", std::numeric_limits<double>::lowest()},
                 {"1e-999", 0},
                 {"-1e99999999999999999999", std::numeric_limits<double>::lowest()},
                 {"1e-99999999999999999999", 0}};
    for (const auto& c : cases) EXPECT_EQ(LeadingNumber(c.text), c.value) << '"' << c.text << '"';

    // What no number of this size can hold is 0 or the largest, however it is written.
    const std::string zeros(400, '0');
    EXPECT_EQ(LeadingNumber("0." + zeros + "1"), 0.0);
    EXPECT_EQ(LeadingNumber("1" + zeros), std::numeric_limits<double>::max());
    EXPECT_EQ(LeadingNumber("1" + zeros + "e-90"), std::numeric_limits<double>::max());
    EXPECT_EQ(LeadingNumber("0." + zeros + "1e90"), LeadingNumber("1e-311"));
    EXPECT_EQ(LeadingNumber("0." + zeros + "1e-2000000000"), 0.0);
}

TEST(Numbers, EntireNumberRefusesAnythingElse) {
    EXPECT_EQ(EntireNumber(" -5.75 "), -5.75);
    for (const auto* text : {"", " ", "5h", "5 5", "-", "1,5", "x5"}) {
        EXPECT_FALSE(EntireNumber(text)) << '"' << text << '"';
    }
}

TEST(Numbers, RoundingTo16BitsIsHalfToEvenAndBounded) {
    const struct {
        double value;
        int rounded;
    } cases[] = {{0.5, 0},         {1.5, 2},       {2.5, 2},         {-0.5, 0},
                 {-1.5, -2},       {2.4999, 2},    {32766.5, 32766}, {40000, 32767},
                 {-40000, -32768}, {1e300, 32767}, {std::nan(""), 0}};
    for (const auto& c : cases) EXPECT_EQ(RoundToInt16(c.value), c.rounded) << c.value;
}

TEST(Numbers, PlainAndClassicText) {
    EXPECT_EQ(NumberText(5.0), "5");
    EXPECT_EQ(NumberText(-0.0), "0");
    EXPECT_EQ(NumberText(0.1F), "0.1");
    EXPECT_EQ(NumberText(1e21), "1000000000000000000000");
    EXPECT_EQ(ClassicNumberText(8.5), " 8.5");
    EXPECT_EQ(ClassicNumberText(-1.0), "-1");
    EXPECT_EQ(ClassicNumberText(0.0), " 0");
}

TEST(Numbers, DigitMasks) {
    const struct {
        double value;
        std::string_view mask, text;
    } cases[] = {{5, "00", "05"},
                 {0, "00", "00"},
                 {0, "#0", "0"},
                 {59.6, "#0", "60"},
                 {30.000000001, "#0", "30"},
                 {5, "##0.0", "5.0"},
                 {5.25, "##0.0", "5.3"},
                 {-0.04, "##0.0", "0.0"},
                 {40.45, "##0.00", "40.45"},
                 {0.3, "##0.00", "0.30"},
                 {0.005, "#0.00", "0.01"},
                 {9.05, "##.#0", "9.05"},
                 {0.3, "##.#0", ".30"},
                 {73.59, "#00#.#0", "073.59"},
                 {-2.21, "#00#.#0", "-002.21"},
                 {-33.52, "#0#.#0", "-33.52"},
                 {5.07, "#0#.#0", "05.07"},
                 {99.999, "#0.00", "100.00"},
                 {1e15, "##0.0", "1000000000000000.0"},
                 {2.675, "##0.00", "2.68"},
                 {1.5, "##0.0#", "1.5"},
                 {0, "##", ""}};
    for (const auto& c : cases) EXPECT_EQ(FormatMask(c.value, c.mask), c.text) << c.value << ' ' << c.mask;
    EXPECT_EQ(FormatMask(0.145F, "##0.00"), "0.15") << "judged on the shortest text of the single value";
}

TEST(Numbers, Padding) {
    const struct {
        std::string_view text;
        std::string_view three;
        std::string_view four;
    } cases[] = {{"5", "  5", "   5"},   {"10", " 10", "  10"},        {"100", "100", " 100"},
                 {"-5", "  -5", "  -5"}, {"-10", "  -10", " -10"},     {"-100", "  -100", "-100"},
                 {"0", "  0", "   0"},   {"-0,5", "  -0,5", "  -0,5"}, {"5.5", "  5.5", "   5.5"}};
    for (const auto& c : cases) {
        EXPECT_EQ(PadToThree(c.text), c.three) << c.text;
        EXPECT_EQ(PadSignedToFour(c.text), c.four) << c.text;
    }
}

}  // namespace
}  // namespace tolvanis
