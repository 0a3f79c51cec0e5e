#include "astro/moon_series.h"

#include <array>

#include "chart/angles.h"

namespace tolvanis {
namespace {

// Mean arguments in degrees.
struct Arguments {
    double moonAnomaly;  // M'
    double sunAnomaly;   // M
    double latitude;     // F, from the node
    double elongation;   // D, from the Sun
    double node;         // Omega
};

// One argument Mp M' + M M + F F + D D + Om Omega, and the amplitude in arc seconds with which its sine
// enters each quantity: the longitude, the nutation in longitude, the argument S of the latitude, the true
// node.
struct Term {
    int mp, m, f, d, om;
    double longitude, nutation, latitudeArgument, trueNode;
};

constexpr std::array<Term, 75> kTerms = {{
    {1, 0, 0, 0, 0, 22639.55, 0.071, 0, 0},
    {2, 0, 0, 0, 0, 769.02, 0, 0, 0},
    {0, 0, 0, 1, 0, -125.15, 0, 0, 0},
    {0, 0, 0, 2, 0, 2369.912, 0, 0, -442},
    {0, 1, 0, 0, 0, -668.15, 0.143, 541, -541},
    {0, 0, 2, 0, 0, -411.61, 0, 412, 423},
    {2, 0, 0, -2, 0, -211.66, 0, 0, 0},
    {-1, 0, 0, 2, 0, 4586.47, 0, 0, 0},
    {1, 0, 0, 2, 0, 191.95, 0, 0, 0},
    {0, -1, 0, 2, 0, 165.15, 0, 0, 0},
    {-1, -1, 0, 2, 0, 205.96, 0, 0, 0},
    {1, 1, 0, 0, 0, -109.67, 0, 0, 0},
    {1, -1, 0, 0, 0, 147.69, 0, 0, 0},
    {0, 0, 2, -2, 0, -55.17, 0, 0, 5392},
    {1, 0, 2, 0, 0, -45.099, 0, 0, 0},
    {1, 0, -2, 0, 0, 39.53, 0, 0, 0},
    {-1, 0, 0, 4, 0, 38.43, 0, 0, 0},
    {3, 0, 0, 0, 0, 36.12, 0, 0, 0},
    {-2, 0, 0, 4, 0, 30.77, 0, 0, 0},
    {1, -1, 0, -2, 0, 28.48, 0, 0, 0},
    {0, 1, 0, 2, 0, -24.42, 0, 0, 0},
    {1, 0, 0, -1, 0, 18.61, 0, 0, 0},
    {0, 1, 0, 1, 0, 18.02, 0, 0, 0},
    {1, -1, 0, 2, 0, 14.58, 0, 0, 0},
    {2, 0, 0, 2, 0, 14.39, 0, 0, 0},
    {0, 0, 0, 4, 0, 13.9, 0, 0, 0},
    {3, 0, 0, -2, 0, -13.19, 0, 0, 0},
    {2, -1, 0, 0, 0, 9.7, 0, 0, 0},
    {1, 0, -2, -2, 0, 9.37, 0, 0, 0},
    {2, 1, 0, -2, 0, -8.63, 0, 0, 0},
    {1, 0, 0, 1, 0, -8.47, 0, 0, 0},
    {0, 2, 0, -2, 0, -8.096, 0, 0, 0},
    {2, 1, 0, 0, 0, -7.65, 0, 0, 0},
    {0, 2, 0, 0, 0, -7.49, 0, 0, 0},
    {1, 2, 0, -2, 0, -7.41, 0, 0, 0},
    {1, 0, -2, 2, 0, -6.38, 0, 0, 0},
    {0, 0, 2, 2, 0, -5.74, 0, 0, 0},
    {1, 1, 0, -4, 0, -4.39, 0, 0, 0},
    {2, 0, 2, 0, 0, -3.99, 0, 0, 0},
    {1, 0, 0, -3, 0, 3.22, 0, 0, 0},
    {1, 1, 0, 2, 0, -2.92, 0, 0, 0},
    {2, 1, 0, -4, 0, -2.74, 0, 0, 0},
    {2, -1, 0, -2, 0, -2.49, 0, 0, 0},
    {1, -2, 0, 0, 0, 2.58, 0, 0, 0},
    {1, -2, 0, -2, 0, 2.53, 0, 0, 0},
    {0, 1, 2, -2, 0, -2.15, 0, 0, 0},
    {1, 0, 0, 4, 0, 1.98, 0, 0, 0},
    {4, 0, 0, 0, 0, 1.94, 0, 0, 0},
    {0, 1, 0, -4, 0, -1.88, 0, 0, 0},
    {2, 0, 0, -1, 0, 1.75, 0, 0, 0},
    {0, 1, -2, 2, 0, -1.44, 0, 0, 0},
    {2, 0, -2, 0, 0, -1.298, 0, 0, -291},
    {1, 1, 0, 1, 0, 1.27, 0, 0, 0},
    {2, 0, 0, -3, 0, 1.23, 0, 0, 0},
    {3, 0, 0, -4, 0, -1.19, 0, 0, 0},
    {2, -1, 0, 2, 0, 1.18, 0, 0, 0},
    {1, 2, 0, 0, 0, -1.17, 0, 0, 0},
    {1, -1, 0, -1, 0, -1.09, 0, 0, 0},
    {3, 0, 0, 2, 0, 1.06, 0, 0, 0},
    {2, 0, 0, 1, 0, -0.59, 0, 0, 0},
    {1, 0, 2, 2, 0, -0.99, 0, 0, 0},
    {4, 0, 0, -2, 0, -0.95, 0, 0, 0},
    {2, 0, 0, -6, 0, -0.57, 0, 0, 0},
    {1, -1, 0, -4, 0, 0.64, 0, 0, 0},
    {0, 1, 0, -1, 0, 0.56, 0, 0, 0},
    {1, -2, 0, 2, 0, 0.76, 0, 0, 0},
    {0, 0, 2, -1, 0, 0.58, 0, 0, 0},
    {3, 1, 0, 0, 0, -0.55, 0, 0, 0},
    {3, -1, 0, 0, 0, 0.68, 0, 0, 0},
    {2, 0, 2, -2, 0, 0.557, 0, 0, 0},
    {2, 0, -2, -2, 0, 0.538, 0, 0, 0},
    {0, 0, 0, 0, 1, 0, -17.2, 0, 0},
    {0, 0, 0, 0, 2, 0, 0.206, 0, 0},
    {0, 0, 2, -2, 2, 0, -1.319, 0, 0},
    {0, 0, 2, 0, 2, 0, -0.227, 0, 0},
}};

// Terms added to the latitude itself, arc seconds.
struct LatitudeTerm {
    double amplitude;
    int mp, m, f, d;
};

constexpr std::array<LatitudeTerm, 7> kLatitudeTerms = {{
    {-526.1, 0, 0, 1, -2},
    {44.3, 1, 0, 1, -2},
    {-30.6, -1, 0, 1, -2},
    {-22.6, 0, 1, 1, -2},
    {11.0, 0, -1, 1, -2},
    {-24.6, -2, 0, 1, 0},
    {20.6, -1, 0, 1, 0},
}};

double Cubic(double t, double c0, double c1, double c2, double c3) {
    return Norm360(c0 + c1 * t + c2 * t * t + c3 * t * t * t);
}

}  // namespace

MoonPosition ComputeMoon(double centuries) {
    const double t = centuries;
    const double mean = Cubic(t, 270.434164, 481267.883142, -0.001133, 0.0000019);
    const double sun = Cubic(t, 279.696678, 36000.768925, 0.000303, 0.0);
    Arguments a{};
    a.moonAnomaly = Cubic(t, 296.104608, 477198.849108, 0.009192, 0.0000144);
    a.sunAnomaly = Cubic(t, 358.475833, 35999.04975, -0.00015, -0.0000033);
    a.node = Cubic(t, 259.183275, -1934.142008, 0.002078, 0.0000022);
    a.elongation = mean - sun;
    a.latitude = mean - a.node;

    double longitude = 0.0;
    double nutation = 0.0;
    double latitudeArgument = 0.0;
    double trueNode = 0.0;
    for (const Term& term : kTerms) {
        const double sine = SinDeg(term.mp * a.moonAnomaly + term.m * a.sunAnomaly + term.f * a.latitude +
                                   term.d * a.elongation + term.om * a.node);
        longitude += term.longitude * sine;
        nutation += term.nutation * sine;
        latitudeArgument += term.latitudeArgument * sine;
        trueNode += term.trueNode * sine;
    }
    const double s = a.latitude + (longitude + latitudeArgument) / 3600.0;
    double latitude = 18519.7 * SinDeg(s);
    for (const LatitudeTerm& term : kLatitudeTerms) {
        latitude += term.amplitude * SinDeg(term.mp * a.moonAnomaly + term.m * a.sunAnomaly +
                                            term.f * a.latitude + term.d * a.elongation);
    }
    return {Norm360(mean + (longitude + nutation) / 3600.0), latitude / 3600.0, a.node,
            Norm360(a.node + trueNode / 3600.0)};
}

}  // namespace tolvanis
