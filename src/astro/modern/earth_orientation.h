#pragma once
// How the Earth and its orbit are turned: precession, nutation, obliquity and sidereal time.

#include "astro/modern/vectors.h"

namespace tolvanis::modern {

// IAU 2000B (McCarthy and Luzum 2003), radians; the rate of the longitude is per day. `tt` is the Julian day
// of terrestrial time everywhere in this file.
struct Nutation {
    double longitude = 0.0;
    double obliquity = 0.0;
    double longitudeRate = 0.0;
};
Nutation ComputeNutation(double tt);

// The mean obliquity of date in radians, IAU 2006 (Capitaine, Wallace and Chapront 2003).
double MeanObliquityOfDate(double tt);

// From the axes of the ICRS to the ecliptic and equinox of date, IAU 2006 precession in the angles of
// Fukushima and Williams, with the frame bias (Wallace and Capitaine 2006). The equinox is the mean or the
// true one.
Rotation MeanEclipticOfDate(double tt);
Rotation TrueEclipticOfDate(double tt, const Nutation& nutation);

// General precession in longitude, IAU 2006, radians a day.
double PrecessionRate(double tt);

// Greenwich apparent sidereal time in radians, 0 <= x < 2 pi: Earth rotation angle and IAU 2006 precession,
// with the equation of the equinoxes and its largest complementary terms. `ut` is the Julian day of UT1.
double GreenwichApparentSiderealTime(double ut, double tt, const Nutation& nutation);

}  // namespace tolvanis::modern
