#include "aspects/aspect_definitions.h"

#include <gtest/gtest.h>

namespace tolvanis {
namespace {

// Each aspect is a fraction of the circle and takes its orb from a slot of its own.
TEST(AspectDefinitions, FractionsOfTheCircleWithinTheirOrbs) {
    const struct {
        AspectCode code;
        int part, of, slot;
    } cases[] = {{kConjunction, 0, 1, 1},    {kSextile, 1, 6, 2},      {kSquare, 1, 4, 3},
                 {kTrine, 1, 3, 4},          {kOpposition, 1, 2, 5},   {kSemiSextile, 1, 12, 7},
                 {kSemiSquare, 1, 8, 8},     {kSesquisquare, 3, 8, 9}, {kQuincunx, 5, 12, 10},
                 {kSemiQuintile, 1, 10, 11}, {kNonagen, 1, 9, 12},     {kQuintile, 1, 5, 13},
                 {kTrecile, 3, 10, 14},      {kBiQuintile, 2, 5, 15},  {kSeptile, 1, 7, 16}};
    std::array<float, 18> orbs{};
    for (std::size_t slot = 1; slot < orbs.size(); ++slot) orbs[slot] = static_cast<float>(slot) * 0.25F;
    for (const auto& c : cases) {
        const double exact = 360.0 * c.part / c.of;
        const double orb = 0.25 * c.slot;
        const std::array only = {c.code};
        for (const double off : {-orb - 0.01, 0.01 - orb, 0.0, orb - 0.01, orb + 0.01}) {
            const double separation = exact + off;
            if (separation < 0.0 || separation > 180.0) continue;
            const AspectMatch match = MatchAspect(separation, only, orbs);
            EXPECT_EQ(match.code, std::abs(off) < orb ? c.code : kNoAspect) << c.code << ' ' << off;
            EXPECT_NEAR(match.fromExact, match.code != kNoAspect ? off : 0.0, 1e-12) << c.code;
        }
    }
}

}  // namespace
}  // namespace tolvanis
