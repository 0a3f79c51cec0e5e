#include "astro/sun_series.h"

#include <array>

#include "chart/angles.h"

namespace tolvanis {
namespace {

// amplitude * cos(M * sun + V * venus + Ma * mars + J * jupiter + S * saturn + phase); arc seconds, degrees.
struct PlanetaryTerm {
    double amplitude;
    double sun, venus, mars, jupiter, saturn;
    double phase;
};

constexpr std::array<PlanetaryTerm, 35> kPlanetaryTerms = {{
    {4.838, -1, 1, 0, 0, 0, 299.102}, {0.116, -1, 2, 0, 0, 0, 148.9},   {5.526, -2, 2, 0, 0, 0, 148.313},
    {2.497, -3, 2, 0, 0, 0, 315.943}, {0.666, -3, 3, 0, 0, 0, 177.71},  {1.559, -4, 3, 0, 0, 0, 345.253},
    {1.024, -5, 3, 0, 0, 0, 318.15},  {0.210, -4, 4, 0, 0, 0, 206.2},   {0.144, -5, 4, 0, 0, 0, 195.4},
    {0.152, -6, 4, 0, 0, 0, 343.8},   {0.123, -7, 5, 0, 0, 0, 195.3},   {0.154, -8, 5, 0, 0, 0, 359.6},
    {0.273, 1, 0, -1, 0, 0, 217.7},   {2.043, 2, 0, -2, 0, 0, 343.888}, {1.770, 1, 0, -2, 0, 0, 200.402},
    {0.129, 3, 0, -3, 0, 0, 294.2},   {0.425, 2, 0, -3, 0, 0, 338.88},  {0.500, 3, 0, -4, 0, 0, 105.18},
    {0.585, 2, 0, -4, 0, 0, 334.06},  {0.204, 3, 0, -5, 0, 0, 100.8},   {0.154, 4, 0, -6, 0, 0, 227.4},
    {0.101, 3, 0, -6, 0, 0, 96.3},    {0.106, 4, 0, -7, 0, 0, 222.7},   {0.163, 2, 0, 0, -1, 0, 198.6},
    {7.208, 1, 0, 0, -1, 0, 179.532}, {2.600, 0, 0, 0, -1, 0, 263.217}, {2.731, 2, 0, 0, -2, 0, 87.145},
    {1.610, 1, 0, 0, -2, 0, 109.493}, {0.164, 3, 0, 0, -3, 0, 170.5},   {0.556, 2, 0, 0, -3, 0, 82.65},
    {0.210, 1, 0, 0, -3, 0, 98.5},    {0.419, 1, 0, 0, 0, -1, 100.58},  {0.320, 0, 0, 0, 0, -1, 269.46},
    {0.108, 2, 0, 0, 0, -2, 290.6},   {0.112, 1, 0, 0, 0, -2, 293.6},
}};

// amplitude * sin(M * sun + D * elongation + M' * moon); arc seconds.
struct LunarTerm {
    double amplitude;
    double sun, elongation, moon;
};

constexpr std::array<LunarTerm, 4> kLunarTerms = {{
    {6.454, 0, 1, 0},
    {0.177, 0, 1, 1},
    {-0.424, 0, 1, -1},
    {0.172, -1, 1, 0},
}};

double LongPeriodTerms(double t) {
    return 6.4 * SinDeg(231.19 + 20.2 * t) + 0.266 * SinDeg(31.8 + 119.0 * t) +
           (1.882 - 0.016 * t) * SinDeg(57.24 + 150.27 * t) + 0.202 * SinDeg(315.6 + 893.3 * t);
}

double EquationOfCentre(double t, double anomaly) {
    return (6910.057 - 17.24 * t) * SinDeg(anomaly) + (72.338 - 0.361 * t) * SinDeg(2.0 * anomaly) +
           1.054 * SinDeg(3.0 * anomaly);
}

double PlanetaryTerms(double t, double anomaly) {
    const double venus = Norm360(212.45 + 58517.493 * t);
    const double mars = Norm360(319.58 + 19139.977 * t);
    // The great inequality of Jupiter and Saturn moves Jupiter's mean anomaly.
    const double inequality = 1300.0 / 3600.0 * SinDeg(133.775 + 39.804 * t);
    const double jupiter = Norm360(225.28 + 3034.583 * t + inequality);
    const double saturn = Norm360(175.6 + 1221.794 * t);
    double sum = 0.0;
    for (const PlanetaryTerm& term : kPlanetaryTerms) {
        sum += term.amplitude * CosDeg(term.sun * anomaly + term.venus * venus + term.mars * mars +
                                       term.jupiter * jupiter + term.saturn * saturn + term.phase);
    }
    return sum;
}

double LunarTerms(double t, double anomaly) {
    const double elongation = Norm360(350.737486 + 445267.114217 * t);
    const double moon = Norm360(296.104608 + 477198.849108 * t);
    double sum = 0.0;
    for (const LunarTerm& term : kLunarTerms) {
        sum += term.amplitude * SinDeg(term.sun * anomaly + term.elongation * elongation + term.moon * moon);
    }
    return sum;
}

}  // namespace

double SunLongitude(double centuries) {
    const double t = centuries;
    const double mean = 279.6966778 + 36000.0 * t + 2768.13 / 3600.0 * t + 1.089 / 3600.0 * t * t;
    const double anomaly = Norm360(358.4758333 + 35999.0 * t + 179.1 / 3600.0 * t - 0.54 / 3600.0 * t * t);
    const double seconds = LongPeriodTerms(t) + EquationOfCentre(t, anomaly) + PlanetaryTerms(t, anomaly) +
                           LunarTerms(t, anomaly);
    const double aberrationAndNutation = -0.00569 - 0.00479 * SinDeg(259.18 - 1934.142 * t);
    return Norm360(mean + seconds / 3600.0 + aberrationAndNutation);
}

}  // namespace tolvanis
