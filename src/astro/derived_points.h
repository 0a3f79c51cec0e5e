#pragma once
// What completes a chart once the cusps and planets are known.

#include "astro/time_frame.h"
#include "chart/chart_positions.h"

namespace tolvanis {

// The four auxiliary angles in degrees; Co-Ascendant and Polar Ascendant after Munkasey. At the equator a
// latitude of -0.00001 radians stands in for 0.
struct AuxiliaryAngles {
    double Vertex = 0.0;
    double EquatorialAscendant = 0.0;
    double CoAscendant = 0.0;
    double PolarAscendant = 0.0;
};
AuxiliaryAngles ComputeAuxiliaryAngles(const TimeFrame& frame);

// Moon + Ascendant - Sun, the same by day and by night; degrees.
double PartOfFortune(double sun, double moon, double ascendant);

// The house, 1 to 12, of a longitude. A point within a tenth of an arc second in front of a cusp belongs to
// the house that begins there.
int HouseOf(double longitude, const HouseCusps& cusps);

// The declination in degrees of an ecliptic direction, all in degrees.
double DeclinationOf(double longitude, double latitude, double obliquity);

}  // namespace tolvanis
