#pragma once
// The series of the modern theory; the tables are made by tools/modern_tables.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tolvanis::modern {

// A series gives longitude, latitude and radius, each a sum over powers of the time. The terms stand in that
// order, and `counts` says how many there are of each quantity and power.
using TermCounts = std::array<std::array<std::uint16_t, 6>, 3>;

// amplitude * cos(phase + rate * t), t in thousands of Julian years from J2000.0.
struct PlanetTerm {
    double amplitude;  // radians or astronomical units
    double phase;      // radians
    double rate;       // radians in a thousand years
};
struct PlanetSeries {
    std::span<const PlanetTerm> terms;
    TermCounts counts;
};
extern const PlanetSeries kMercurySeries;
extern const PlanetSeries kVenusSeries;
extern const PlanetSeries kEarthSeries;
extern const PlanetSeries kMarsSeries;

// amplitude * sin(argument[0] + argument[1] * t + ...), t in Julian centuries from J2000.0.
struct MoonTerm {
    double amplitude;  // arc seconds or kilometres
    std::array<double, 5> argument;
};
struct MoonSeries {
    std::span<const MoonTerm> terms;
    TermCounts counts;
    std::array<double, 5> meanLongitude;  // radians, from the departure point of J2000.0
};
extern const MoonSeries kMoonSeries;

// cosine * cos(rates[rate] * t) + sine * sin(rates[rate] * t), t as for a PlanetTerm. Many terms share a
// rate.
struct GiantTerm {
    std::int64_t cosine;  // units of 1e-11 radian or astronomical unit
    std::int64_t sine;
    std::uint16_t rate;
};
struct GiantSeries {
    std::span<const GiantTerm> terms;
    std::span<const double> rates;
    TermCounts counts;
    std::array<std::array<double, 6>, 3> secular;  // polynomials of the time
};
extern const GiantSeries kJupiterSeries;
extern const GiantSeries kSaturnSeries;
extern const GiantSeries kUranusSeries;
extern const GiantSeries kNeptuneSeries;

// Chebyshev coefficients of a barycentric place, ICRS, units of 1e-9 astronomical unit.
struct OrbitCoefficient {
    std::int64_t x;
    std::int64_t y;
    std::int64_t z;
};
// Pieces of equal length from kOrbitsBegin to kOrbitsEnd, each with the same number of coefficients.
struct OrbitPieces {
    std::span<const OrbitCoefficient> coefficients;
    std::size_t perPiece;
};
inline constexpr double kOrbitsBegin = 2305447.5;  // 1600 January 1
inline constexpr double kOrbitsEnd = 2524593.5;    // 2200 January 1
extern const OrbitPieces kJupiterOrbit;
extern const OrbitPieces kSaturnOrbit;
extern const OrbitPieces kUranusOrbit;
extern const OrbitPieces kNeptuneOrbit;
extern const OrbitPieces kPlutoOrbit;

}  // namespace tolvanis::modern
