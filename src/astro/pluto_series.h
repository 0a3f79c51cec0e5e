#pragma once
// Pluto's heliocentric position.

namespace tolvanis {

struct HeliocentricPosition {
    double longitude = 0.0;  // degrees
    double latitude = 0.0;   // degrees
    double radius = 0.0;     // AU
};

// Goffin, Meeus and Steyaert's series for Pluto (Astronomy and Astrophysics 155, 323, 1986), mean equinox
// 1950.0. Given: Julian centuries of 36525 days from 1900 January 0.5. Meant for 1885 to 2099; earlier it
// drifts, by 0.4 degree in the 1850s and more than a degree before 1800.
HeliocentricPosition ComputePlutoHeliocentric(double centuries);

}  // namespace tolvanis
