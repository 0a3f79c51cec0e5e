#pragma once
// From the birth data to the chart's frame of time and sky.

#include <string>

#include "astro/modern/earth_orientation.h"
#include "chart/natal_data.h"
#include "text/dates.h"

namespace tolvanis {

// Everything the rest of a chart needs of the moment and the place.
struct TimeFrame {
    tolvanis::Theory Theory = tolvanis::Theory::Classic;
    double DeltaT = 0.0;            // seconds, modern theory only
    modern::Nutation Nutation;      // modern theory only
    double UtDayFraction = 0.0;     // Universal Time in days of the civil date; may exceed 1 or be negative
    double JulianDayNumber = 0.0;   // of the civil date, at noon
    double JulianDay = 0.0;         // of the instant
    double Centuries = 0.0;         // Julian centuries of 36525 days from 1900 January 0.5
    double LatitudeRad = 0.0;       // north positive
    double LongitudeDegrees = 0.0;  // west positive
    double RAMC = 0.0;              // radians, right ascension of the Midheaven
    double ObliquityDegrees = 0.0;  // of date: mean, in the modern theory true
    double Obliquity = 0.0;         // radians
    double Midheaven = 0.0;         // degrees
    double Ascendant = 0.0;         // degrees
    double ZenithEclipticLatitude = 0.0;  // radians
    int SiderealHours = 0;                // for display; 12 hours on where the latitude is south
    int SiderealMinutes = 0;
    int SiderealSeconds = 0;
};

// Mean obliquity of the ecliptic of date in degrees, from centuries since 1900 January 0.5 (Newcomb 1895).
double MeanObliquity(double centuries);

// The frame of a birth by its theory. Classic sidereal time is Newcomb's, with the time of day inside the
// centuries, and the obliquity the mean one; modern sidereal time is apparent and the obliquity true (IAU
// 2006 precession, IAU 2000B nutation). The Ascendant is the zenith's ecliptic longitude plus 90 degrees.
TimeFrame ComputeTimeFrame(const NatalData& natal);

// The Julian day of terrestrial time of a modern frame.
double TerrestrialDay(const TimeFrame& frame);

// "05H  07M  09S "
std::string SiderealTimeText(const TimeFrame& frame);

}  // namespace tolvanis
