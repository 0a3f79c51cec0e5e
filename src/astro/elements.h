#pragma once
// The mean orbital elements of the planets. Angles in degrees, distances in AU.

#include <array>

namespace tolvanis {

// Elements at one instant.
struct OrbitalElements {
    double meanAnomaly = 0.0;
    double semiMajorAxis = 0.0;
    double eccentricity = 0.0;
    double inclination = 0.0;
    double perihelion = 0.0;  // argument of perihelion
    double node = 0.0;        // longitude of the ascending node
};

// An element and its rate a century.
struct Linear {
    double at0, rate;
    constexpr double At(double t) const { return at0 + rate * t; }
};

struct Cubic {
    double c0, c1, c2, c3;
    constexpr double At(double t) const { return c0 + c1 * t + c2 * t * t + c3 * t * t * t; }
};

// Elements referred to J2000.0, T in Julian centuries from J2000.0; the rates contain the precession.
struct InnerPlanetElements {
    double semiMajorAxis;
    Linear eccentricity, inclination, node, perihelionLongitude, meanAnomaly;
};

// Elements for the mean equinox of date, T in Julian centuries from 1900 January 0.5.
struct OuterPlanetElements {
    Cubic meanLongitude;
    double semiMajorAxis;
    Cubic eccentricity, inclination, perihelion, node;
};

// Earth, Mercury, Venus, Mars.
inline constexpr std::array<InnerPlanetElements, 4> kInnerElements = {{
    {1.000000031, {0.016709, -0.000042}, {0, 0}, {0, 0}, {102.94, 1.7192}, {357.5256, 35999.0498}},
    {0.387099,
     {0.205634, 0.00002},
     {7.0048, 0.0019},
     {48.331, 1.185},
     {77.4552, 1.5555},
     {174.7947, 149472.5153}},
    {0.723332,
     {0.006773, -0.000048},
     {3.3946, 0.001},
     {76.68, 0.9},
     {131.5718, 1.408},
     {50.4071, 58517.8039}},
    {1.523692,
     {0.093405, 0.000092},
     {1.8496, -0.0007},
     {49.557, 0.771},
     {336.059, 1.8408},
     {19.3879, 19139.8585}},
}};

// Earth, Jupiter, Saturn, Uranus, Neptune. The Earth's mean longitude is the Sun's.
inline constexpr std::array<OuterPlanetElements, 5> kOuterElements = {{
    {{279.696678, 36000.768925, 0.0003025, 0},
     1.0000002,
     {0.01675104, -0.0000418, -0.000000126, 0},
     {0, 0, 0, 0},
     {101.22085, 1.71917, 0.0004525, 0.0000033},
     {0, 0, 0, 0}},
    {{238.049257, 3036.301986, 0.0003347, -0.00000165},
     5.202561,
     {0.04833475, 0.00016418, -0.0000004676, -0.0000000017},
     {1.308736, -0.0056961, 0.0000039, 0},
     {273.277558, 0.5994317, 0.00070405, 0.00000508},
     {99.443414, 1.01053, 0.00035222, -0.00000851}},
    {{266.564377, 1223.509884, 0.0003245, -0.0000058},
     9.554747,
     {0.05589232, -0.0003455, -0.000000728, 0.00000000074},
     {2.492519, -0.0039189, -0.00001549, 0.00000004},
     {338.3078, 1.0852207, 0.00097854, 0.00000992},
     {112.790414, 0.8731951, -0.00015218, -0.00000531}},
    {{244.19747, 429.863546, 0.000316, -0.0000006},
     19.21814,
     {0.0463444, -0.00002658, 0.000000077, 0},
     {0.772464, 0.0006253, 0.0000395, 0},
     {98.071581, 0.985765, -0.0010745, -0.00000061},
     {73.477111, 0.4986678, 0.0013117, 0}},
    {{84.457994, 219.885914, 0.0003205, -0.0000006},
     30.10957,
     {0.00899704, 0.00000633, -0.000000002, 0},
     {1.779242, -0.0095436, -0.0000091, 0},
     {276.045975, 0.3256394, 0.00014095, 0.000004113},
     {130.681389, 1.098935, 0.00024987, -0.000004718}},
}};

}  // namespace tolvanis
