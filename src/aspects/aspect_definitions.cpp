#include "aspects/aspect_definitions.h"

#include <cmath>

namespace tolvanis {
namespace {

constexpr std::array<AspectDefinition, 16> kDefinitions = {{
    {kConjunction, 0, 1, "Conjunct"},
    {kSextile, 60, 2, "Sextile"},
    {kSquare, 90, 3, "Square"},
    {kTrine, 120, 4, "Trine"},
    {kOpposition, 180, 5, "Opposite"},
    {kParallel, 0, 6, "PARALLEL"},
    {kSemiSextile, 30, 7, "S.Sextile"},
    {kSemiSquare, 45, 8, "S.Square"},
    {kSesquisquare, 135, 9, "Ses.Square"},
    {kQuincunx, 150, 10, "Quincunx"},
    {kSemiQuintile, 36, 11, "S.Quintile"},
    {kNonagen, 40, 12, "Nonagen"},
    {kQuintile, 72, 13, "Quintile"},
    {kTrecile, 108, 14, "Trecile"},
    {kBiQuintile, 144, 15, "BiQuintile"},
    {kSeptile, 360.0 / 7.0, 16, "Septile"},
}};

bool Meets(double separation, const AspectDefinition& aspect, float orb) {
    const auto single = static_cast<float>(separation);
    if (aspect.code == kConjunction) return single <= orb;
    const auto lower = static_cast<float>(aspect.angle - double{orb});
    const auto upper = static_cast<float>(aspect.angle + double{orb});
    return lower <= single && (aspect.code == kOpposition || single <= upper);
}

}  // namespace

const AspectDefinition& DefinitionOf(AspectCode code) {
    return kDefinitions[static_cast<std::size_t>(code - kConjunction)];
}

double Separation(double longitudeA, double longitudeB) {
    const double difference = std::abs(longitudeA - longitudeB);
    return difference > 180.0 ? 360.0 - difference : difference;
}

AspectMatch MatchAspect(double separation, std::span<const AspectCode> codes, std::span<const float> orbs) {
    AspectMatch match;
    for (const AspectCode code : codes) {
        const AspectDefinition& aspect = DefinitionOf(code);
        if (Meets(separation, aspect, orbs[static_cast<std::size_t>(aspect.orbSlot)])) {
            match = {code, separation - aspect.angle};
        }
    }
    return match;
}

}  // namespace tolvanis
