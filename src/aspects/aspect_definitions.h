#pragma once
// The aspects: their codes, angles, names and orbs, and the decision which aspect a separation forms.

#include <array>
#include <span>
#include <string_view>

namespace tolvanis {

// Aspect codes; 1 means no aspect.
enum AspectCode : int {
    kNoAspect = 1,
    kConjunction,
    kSextile,
    kSquare,
    kTrine,
    kOpposition,
    kParallel,
    kSemiSextile,
    kSemiSquare,
    kSesquisquare,
    kQuincunx,
    kSemiQuintile,
    kNonagen,
    kQuintile,
    kTrecile,
    kBiQuintile,
    kSeptile,
};

struct AspectDefinition {
    AspectCode code;
    double angle;           // degrees; a parallel has none
    int orbSlot;            // of the options table and of an orbs file
    std::string_view name;  // as the aspect displays write it
};

// The definition of a code from kConjunction to kSeptile.
const AspectDefinition& DefinitionOf(AspectCode code);

// The order in which the grid tests the aspects: a later match replaces an earlier one, so the conjunction
// wins.
inline constexpr std::array kGridSearch = {kSextile,    kSquare,       kTrine,    kOpposition, kSemiSextile,
                                           kSemiSquare, kSesquisquare, kQuincunx, kConjunction};
// The same with the five aspects of the quintile and nonagen families.
inline constexpr std::array kFullGridSearch = {
    kSextile,  kSquare,       kTrine,   kOpposition, kSemiSextile, kSemiSquare, kSesquisquare,
    kQuincunx, kSemiQuintile, kNonagen, kQuintile,   kTrecile,     kBiQuintile, kConjunction};

// The shorter arc between two longitudes, 0 to 180 degrees.
double Separation(double longitudeA, double longitudeB);

struct AspectMatch {
    AspectCode code = kNoAspect;
    double fromExact = 0.0;  // separation less the aspect's angle, degrees
};

// The last of the aspects `codes` whose orb the separation meets. orbs[slot] are degrees, compared
// inclusively and in single precision; an opposition needs only its lower bound, a conjunction only its upper
// one.
AspectMatch MatchAspect(double separation, std::span<const AspectCode> codes, std::span<const float> orbs);

}  // namespace tolvanis
