#pragma once
// From orbital elements to heliocentric and geocentric directions.

#include <optional>

#include "astro/elements.h"
#include "astro/pluto_series.h"

namespace tolvanis {

// The eccentric anomaly in degrees for a mean anomaly in degrees, by Newton's method until a step is below
// 1e-7 degree. Nothing when the eccentricity lies outside 0 <= e < 1 or the iteration does not settle.
std::optional<double> SolveKepler(double meanAnomaly, double eccentricity);

// Heliocentric ecliptic longitude and latitude (degrees) and radius (AU) of a body on its orbit, or nothing
// where Kepler's equation has no solution.
std::optional<HeliocentricPosition> SolveOrbit(const OrbitalElements& elements);

struct EclipticDirection {
    double longitude = 0.0;  // degrees, 0 <= x < 360
    double latitude = 0.0;   // degrees
};

// The geocentric direction of a body, without light time or aberration.
EclipticDirection GeocentricDirection(const HeliocentricPosition& body, const HeliocentricPosition& earth);

}  // namespace tolvanis
