#include "astro/pluto_series.h"

#include <array>

#include "chart/angles.h"

namespace tolvanis {
namespace {

// For the argument j J + s S + p P: the coefficients of its sine and cosine in the longitude and the latitude
// (1e-6 degree) and in the radius vector (1e-6 AU).
struct Term {
    int j, s, p;
    double lonSin, lonCos, latSin, latCos, radSin, radCos;
};

constexpr std::array<Term, 32> kTerms = {{
    {0, 0, 1, -19977972, 19667536, -5323113, -15024245, 6623876, 6955990},
    {0, 0, 2, 987114, -4939350, 3497557, 1735457, -1181808, -54836},
    {0, 0, 3, 577978, 1226898, -1059559, 299464, 163227, -139603},
    {0, 0, 4, -334695, -201966, 189102, -285383, -3644, 48144},
    {0, 0, 5, 130519, -29025, 14231, 101218, -6268, -8851},
    {0, 0, 6, -39851, 28968, -29164, -27461, 3111, -408},
    {0, 1, -1, 20387, -9832, 4935, 11282, -621, 2223},
    {0, 1, 0, -3986, -4954, 312, -128, 438, 450},
    {0, 1, 1, -5817, -3365, 2057, -904, -153, 61},
    {0, 1, 2, -3903, 2895, 19, -674, -3, 79},
    {0, 1, 3, -738, 3443, -307, -576, 50, 54},
    {0, 2, -2, 1234, 472, -65, 39, -54, -22},
    {0, 2, -1, 1101, -894, -97, 208, 84, -48},
    {0, 2, 0, 625, -1214, 0, -160, -30, 61},
    {1, -1, 0, 2485, -486, -177, 259, 26, -39},
    {1, -1, 1, 852, -1407, 15, 235, -19, -40},
    {1, 0, -3, -948, 1073, 578, -293, -321, 42},
    {1, 0, -2, -2309, -1024, -294, 694, 797, -792},
    {1, 0, -1, 7047, 770, 156, 201, -4, 4564},
    {1, 0, 0, 1184, -344, 294, 829, 852, 855},
    {1, 0, 1, 394, -55, -123, -31, -88, -82},
    {1, 0, 2, 119, -264, 0, 0, 21, -12},
    {1, 0, 3, -46, -156, 0, 0, -14, 6},
    {1, 0, 4, -77, -33, 0, 0, 0, 0},
    {1, 1, -3, -34, -26, 0, 0, 0, 0},
    {1, 1, -2, -43, 0, 0, 0, 0, 0},
    {1, 1, -1, -15, 21, 0, 0, 0, 0},
    {2, 0, -3, 10, 22, 0, 0, -6, 6},
    {2, 0, -2, -57, -32, 0, 0, 0, 0},
    {2, 0, -1, 158, -43, 0, 0, 25, 107},
    {2, 0, 0, 0, 0, 0, 0, 25, 16},
    {2, 1, -2, 0, 0, 0, 0, 13, -23},
}};

}  // namespace

HeliocentricPosition ComputePlutoHeliocentric(double centuries) {
    const double t = centuries;
    const double jupiter = Norm360(238.74 + 3034.9057 * t);
    const double saturn = Norm360(267.26 + 1222.1138 * t);
    const double pluto = Norm360(93.48 + 144.96 * t);
    double longitude = 0.0;
    double latitude = 0.0;
    double radius = 0.0;
    for (const Term& term : kTerms) {
        const SinCos a = SinCosDeg(term.j * jupiter + term.s * saturn + term.p * pluto);
        longitude += term.lonSin * a.sin + term.lonCos * a.cos;
        latitude += term.latSin * a.sin + term.latCos * a.cos;
        radius += term.radSin * a.sin + term.radCos * a.cos;
    }
    return {93.297471 + 144.96 * t + longitude / 1e6, latitude / 1e6 - 3.909434, radius / 1e6 + 40.724725};
}

}  // namespace tolvanis
