#include "chart/angles.h"

#include <gtest/gtest.h>

namespace tolvanis {
namespace {

// The theory's ten decimals of pi and its ten millionth of a degree for zero set the tolerance.
TEST(Angles, PolarFormAllRound) {
    const struct {
        double x, y, degrees, radius;
    } cases[] = {
        {1, 0, 0, 1},    {1, 1, 45, std::sqrt(2.0)},    {0, 1, 90, 1},   {-3, 4, 126.869897645844, 5},
        {-1, 0, 180, 1}, {-1, -1, 225, std::sqrt(2.0)}, {0, -2, 270, 2}, {3, -4, 306.869897645844, 5}};
    for (const auto& c : cases) {
        const Polar polar = RectToPolar(c.x, c.y);
        EXPECT_NEAR(RadToDeg(polar.angle), c.degrees, 2e-7) << c.x << ' ' << c.y;
        EXPECT_NEAR(polar.r, c.radius, 1e-15);
        const Rect back = PolarToRect(polar.r, polar.angle);
        EXPECT_NEAR(back.x, c.x, 2e-8);
        EXPECT_NEAR(back.y, c.y, 2e-8);
    }
}

TEST(Angles, NormalisedAnglesStayBelow360) {
    const struct {
        double angle, normalised;
    } cases[] = {{0, 0}, {360, 0}, {-1e-17, 0}, {-90, 270}, {725, 5}, {-725, 355}, {359.999, 359.999}};
    for (const auto& c : cases) EXPECT_DOUBLE_EQ(Norm360(c.angle), c.normalised) << c.angle;
    EXPECT_DOUBLE_EQ(PackedToDecimal(40.45), 40.75);
    EXPECT_DOUBLE_EQ(SignedPackedToDecimal(-73.59), -(73 + 59 / 60.0));
    EXPECT_NEAR(ArcCos(0), kPi / 2, 1e-12);
    EXPECT_NEAR(ArcSin(1), kPi / 2, 1e-9);
}

TEST(Angles, TheShorterWayRoundHasASign) {
    const struct {
        double from, to, way;
    } cases[] = {{10, 30, 20},   {30, 10, -20},  {350, 20, 30},     {20, 350, -30},
                 {0, 180, -180}, {180, 0, -180}, {-170, 190, 0},    {725, 0, -5},
                 {0, 179, 179},  {0, 181, -179}, {90, 269.5, 179.5}};
    for (const auto& c : cases) EXPECT_DOUBLE_EQ(SignedArc(c.from, c.to), c.way) << c.from << ' ' << c.to;
}

}  // namespace
}  // namespace tolvanis
