#pragma once
// Apparent places of the Sun, the Moon and the planets.

#include "astro/modern/earth_orientation.h"
#include "chart/chart_point.h"

namespace tolvanis::modern {

// Degrees, ecliptic and true equinox of date.
struct ApparentPlace {
    double longitude = 0.0;  // 0 <= x < 360
    double latitude = 0.0;
    double dailyMotion = 0.0;  // of the longitude, a day
};

struct ApparentSky {
    PerPoint<ApparentPlace> bodies;  // Sun to Pluto and the Moon
    ApparentPlace meanNode;
    double trueNode = 0.0;            // ascending node of the orbit that the Moon describes at the instant
    bool plutoFromOldSeries = false;  // the date lies outside the years of the integrated orbit
};

// As seen from the Earth's centre: light time, deflection of light by the Sun, annual aberration, precession
// and nutation. `tt` is the Julian day of terrestrial time and `nutation` that of the same instant.
ApparentSky ComputeApparentSky(double tt, const Nutation& nutation);

}  // namespace tolvanis::modern
