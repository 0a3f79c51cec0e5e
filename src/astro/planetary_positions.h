#pragma once
// Geocentric positions of the Sun, Moon and planets for the instant of a chart.

#include "astro/time_frame.h"
#include "chart/chart_positions.h"
#include "platform/result.h"

namespace tolvanis {

// Fills of `chart`: PointLongitude 1 to 13, PointLatitude and PointDeclination 1 to 10, NextDayLongitude,
// RetrogradeFlags and TrueNodeLongitude, from the frame's Julian day, centuries, obliquity, nutation and
// Ascendant.
//
// Classic theory: longitudes are degrees of the mean equinox of date, geometric (no light time, no Delta T);
// only the Sun's and the Moon's series carry terms for nutation, and the Sun's for aberration. Orbits: mean
// elements of J2000 with rates that contain the precession for Mercury, Venus and Mars; mean elements of 1900
// with the perturbations of Astronomical Formulae for Calculators (Meeus) for Jupiter to Neptune; Pluto from
// its own series, carried from 1950.0 by 1.33 degrees a century. Retrograde means a smaller longitude one day
// later, for Mercury to Pluto.
//
// Modern theory: apparent places, see astro/modern/apparent_places.h. Retrograde means a negative daily
// motion; NextDayLongitude is the longitude and the daily motion of the instant.
//
// A fault says for which body the computation overflowed or did not settle.
Result<void> ComputePlanetaryPositions(const TimeFrame& frame, ChartPositions& chart);

}  // namespace tolvanis
