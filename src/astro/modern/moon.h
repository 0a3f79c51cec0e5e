#pragma once
// The Moon: ELP/MPP02 (Chapront and Francou 2003), fitted to DE405.

#include "astro/modern/vectors.h"

namespace tolvanis::modern {

// Geocentric motion, ICRS, astronomical units; `tdb` is the Julian day of barycentric dynamical time.
Motion MoonMotion(double tdb);

// The mean ascending node in degrees, mean equinox of date (Simon and others 1994).
double MeanNode(double tdb);

}  // namespace tolvanis::modern
