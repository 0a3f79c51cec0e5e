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

}  // namespace
}  // namespace tolvanis
