#pragma once
// Jupiter, Saturn, Uranus, Neptune and Pluto.

#include <array>

#include "astro/modern/inner_planets.h"

namespace tolvanis::modern {

inline constexpr std::size_t kOuterPlanetCount = 5;

// Heliocentric motions, ICRS; `tdb` is the Julian day of barycentric dynamical time, `inner` the motions of
// the inner planets then. From 1600 to 2200 an integration of Newton's law fitted to JPL's ephemerides,
// which holds the centre of mass of the Sun and the inner planets; earlier and later VSOP87 in full, and for
// Pluto the series of 1885 to 2099 that the classic theory uses (`OuterOrbitsAreIntegrated` is false then).
std::array<Motion, kOuterPlanetCount> OuterPlanetMotions(double tdb,
                                                         const std::array<Motion, kInnerPlanetCount>& inner);

bool OuterOrbitsAreIntegrated(double tdb);

// Their masses with those of their moons, in units of the Sun's.
inline constexpr std::array<double, kOuterPlanetCount> kOuterPlanetMasses = {
    1 / 1047.348625, 1 / 3497.9018, 1 / 22902.944, 1 / 19412.237, 1 / 136045556.0};

}  // namespace tolvanis::modern
