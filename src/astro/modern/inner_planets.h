#pragma once
// Mercury, Venus, the Earth and Mars: VSOP87 (Bretagnon and Francou 1988).

#include <array>

#include "astro/modern/vectors.h"

namespace tolvanis::modern {

enum class InnerPlanet { Mercury, Venus, Earth, Mars };
inline constexpr std::size_t kInnerPlanetCount = 4;

// Heliocentric motions, ICRS; `tdb` is the Julian day of barycentric dynamical time.
std::array<Motion, kInnerPlanetCount> InnerPlanetMotions(double tdb);

// Their masses in units of the Sun's, the Moon with the Earth (IAU 1976).
inline constexpr std::array<double, kInnerPlanetCount> kInnerPlanetMasses = {1 / 6023600.0, 1 / 408523.71,
                                                                             1 / 328900.56, 1 / 3098708.0};

}  // namespace tolvanis::modern
