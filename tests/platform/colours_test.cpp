// Colours against the figures that the accessibility guidelines' own tools give.
#include "platform/colours.h"

#include <gtest/gtest.h>

namespace tolvanis {
namespace {

TEST(Colours, ContrastIsThatOfTheGuidelines) {
    const struct {
        int rgb;
        double onWhite;
    } cases[] = {{0xFFFFFF, 1.0},  {0x000000, 21.0}, {0x777777, 4.48}, {0x767676, 4.54},
                 {0xFF0000, 4.00}, {0x008000, 5.14}, {0x0000FF, 8.59}, {0x0A0A0A, 19.80}};
    for (const auto& test : cases) {
        EXPECT_NEAR(Contrast(Rgb(test.rgb), kWhite), test.onWhite, 0.005) << std::hex << test.rgb;
        EXPECT_EQ(Contrast(Rgb(test.rgb), kWhite), Contrast(kWhite, Rgb(test.rgb)));
    }
}

// Every colour of the palette becomes legible on every other, and stays as it is where it is so already.
TEST(Colours, LegibleColoursReachTheirContrast) {
    for (int ground = 0; ground < 16; ++ground) {
        for (int colour = 0; colour < 16; ++colour) {
            const int legible = Legible(colour, ground, kTextContrast);
            EXPECT_GE(Contrast(legible, ground), kTextContrast) << colour << " on " << ground;
            EXPECT_EQ(legible == colour, Contrast(colour, ground) >= kTextContrast);
        }
    }
}

}  // namespace
}  // namespace tolvanis
