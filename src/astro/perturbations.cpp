#include "astro/perturbations.h"

#include <span>

#include "chart/angles.h"

namespace tolvanis {
namespace {

// The factors of the terms: 1, and the sine and cosine of each argument in the order of ArgumentsAt.
enum Factor : std::size_t {
    kOne,
    kSinV,
    kCosV,
    kSin2V,
    kCos2V,
    kSinW,
    kCosW,
    kSinZeta,
    kCosZeta,
    kSin2Zeta,
    kCos2Zeta,
    kSin3Zeta,
    kCos3Zeta,
    kSin4Zeta,
    kCos4Zeta,
    kSin5Zeta,
    kCos5Zeta,
    kSinPsi,
    kCosPsi,
    kSin2Psi,
    kCos2Psi,
    kSin3Psi,
    kCos3Psi,
    kSinQ,
    kCosQ,
    kSin2Q,
    kCos2Q,
    kSin3Q,
    kCos3Q,
    kSin4Q,
    kCos4Q,
    kSinH,
    kCosH,
    kSin2H,
    kCos2H,
    kSinG,
    kCosG,
    kSinSLessP,
    kCosSLessP,
    kSin2SLessQ,
    kCos2SLessQ,
    kSin3SLessQ,
    kCos3SLessQ,
    kSinGLessP,
    kCosGLessP,
    kSinGLessQ,
    kCosGLessQ,
    kSinGLessS,
    kCosGLessS,
    kSin2GLess2S,
    kCos2GLess2S,
    kSin3GLess3S,
    kCos3GLess3S,
    kSin3GLess2S,
    kCos3GLess2S,
    kFactorCount,
};

// (c0 + c1 nu + c2 nu^2) * first * second
struct Term {
    double c0, c1, c2;
    Factor first, second;
};

// A in degrees, B in degrees, De in 1e-7, Da in 1e-6 AU, Dlon in degrees.
constexpr std::array<Term, 23> kJupiterA = {{
    {0.331364, -0.010281, -0.004692, kSinV, kOne},
    {0.003228, -0.064436, 0.002075, kCosV, kOne},
    {-0.003083, -0.000275, 0.000489, kSin2V, kOne},
    {0.002472, 0, 0, kSinW, kOne},
    {0.013619, 0, 0, kSinZeta, kOne},
    {0.018472, 0, 0, kSin2Zeta, kOne},
    {0.006717, 0, 0, kSin3Zeta, kOne},
    {0.002775, 0, 0, kSin4Zeta, kOne},
    {0.007275, -0.001253, 0, kSinZeta, kSinQ},
    {0.006417, 0, 0, kSin2Zeta, kSinQ},
    {0.002439, 0, 0, kSin3Zeta, kSinQ},
    {-0.033839, -0.001125, 0, kCosZeta, kSinQ},
    {-0.003767, 0, 0, kCos2Zeta, kSinQ},
    {-0.035681, -0.001208, 0, kSinZeta, kCosQ},
    {-0.004261, 0, 0, kSin2Zeta, kCosQ},
    {0.002178, 0, 0, kCosQ, kOne},
    {-0.006333, 0.001161, 0, kCosZeta, kCosQ},
    {-0.006675, 0, 0, kCos2Zeta, kCosQ},
    {-0.002664, 0, 0, kCos3Zeta, kCosQ},
    {-0.002572, 0, 0, kSinZeta, kSin2Q},
    {-0.003567, 0, 0, kSin2Zeta, kSin2Q},
    {0.002094, 0, 0, kCosZeta, kCos2Q},
    {0.003342, 0, 0, kCos2Zeta, kCos2Q},
}};

constexpr std::array<Term, 18> kJupiterB = {{
    {0.007192, -0.003147, 0, kSinV, kOne},
    {-0.020428, -0.000675, 0.000197, kCosV, kOne},
    {0.007269, 0.000672, 0, kSinZeta, kSinQ},
    {-0.004344, 0, 0, kSinQ, kOne},
    {0.034036, 0, 0, kCosZeta, kSinQ},
    {0.005614, 0, 0, kCos2Zeta, kSinQ},
    {0.002964, 0, 0, kCos3Zeta, kSinQ},
    {0.037761, 0, 0, kSinZeta, kCosQ},
    {0.006158, 0, 0, kSin2Zeta, kCosQ},
    {-0.006603, 0, 0, kCosZeta, kCosQ},
    {-0.005356, 0, 0, kSinZeta, kSin2Q},
    {0.002722, 0, 0, kSin2Zeta, kSin2Q},
    {0.004483, 0, 0, kCosZeta, kSin2Q},
    {-0.002642, 0, 0, kCos2Zeta, kSin2Q},
    {0.004403, 0, 0, kSinZeta, kCos2Q},
    {-0.002536, 0, 0, kSin2Zeta, kCos2Q},
    {0.005547, 0, 0, kCosZeta, kCos2Q},
    {-0.002689, 0, 0, kCos2Zeta, kCos2Q},
}};

constexpr std::array<Term, 29> kJupiterDe = {{
    {3606, 130, -43, kSinV, kOne},   {1289, -580, 0, kCosV, kOne},     {-6764, 0, 0, kSinZeta, kSinQ},
    {-1110, 0, 0, kSin2Zeta, kSinQ}, {-224, 0, 0, kSin3Zeta, kSinQ},   {-204, 0, 0, kSinQ, kOne},
    {1284, 116, 0, kCosZeta, kSinQ}, {188, 0, 0, kCos2Zeta, kSinQ},    {1460, 130, 0, kSinZeta, kCosQ},
    {224, 0, 0, kSin2Zeta, kCosQ},   {-817, 0, 0, kCosQ, kOne},        {6074, 0, 0, kCosZeta, kCosQ},
    {992, 0, 0, kCos2Zeta, kCosQ},   {508, 0, 0, kCos3Zeta, kCosQ},    {230, 0, 0, kCos4Zeta, kCosQ},
    {108, 0, 0, kCos5Zeta, kCosQ},   {-956, -73, 0, kSinZeta, kSin2Q}, {448, 0, 0, kSin2Zeta, kSin2Q},
    {137, 0, 0, kSin3Zeta, kSin2Q},  {-997, 108, 0, kCosZeta, kSin2Q}, {480, 0, 0, kCos2Zeta, kSin2Q},
    {148, 0, 0, kCos3Zeta, kSin2Q},  {-956, 99, 0, kSinZeta, kCos2Q},  {490, 0, 0, kSin2Zeta, kCos2Q},
    {158, 0, 0, kSin3Zeta, kCos2Q},  {179, 0, 0, kCos2Q, kOne},        {1024, 75, 0, kCosZeta, kCos2Q},
    {-437, 0, 0, kCos2Zeta, kCos2Q}, {-132, 0, 0, kCos3Zeta, kCos2Q},
}};

constexpr std::array<Term, 11> kJupiterDa = {{
    {-263, 0, 0, kCosV, kOne},
    {205, 0, 0, kCosZeta, kOne},
    {693, 0, 0, kCos2Zeta, kOne},
    {312, 0, 0, kCos3Zeta, kOne},
    {147, 0, 0, kCos4Zeta, kOne},
    {299, 0, 0, kSinZeta, kSinQ},
    {181, 0, 0, kCos2Zeta, kSinQ},
    {204, 0, 0, kSin2Zeta, kCosQ},
    {111, 0, 0, kSin3Zeta, kCosQ},
    {-337, 0, 0, kCosZeta, kCosQ},
    {-111, 0, 0, kCos2Zeta, kCosQ},
}};

constexpr std::array<Term, 24> kSaturnA = {{
    {-0.814181, 0.018150, 0.016714, kSinV, kOne},
    {-0.010497, 0.160906, -0.004100, kCosV, kOne},
    {0.007581, 0, 0, kSin2V, kOne},
    {-0.007986, 0, 0, kSinW, kOne},
    {-0.148811, 0, 0, kSinZeta, kOne},
    {-0.040786, 0, 0, kSin2Zeta, kOne},
    {-0.015208, 0, 0, kSin3Zeta, kOne},
    {-0.006339, 0, 0, kSin4Zeta, kOne},
    {-0.006244, 0, 0, kSinQ, kOne},
    {0.008931, 0.002728, 0, kSinZeta, kSinQ},
    {-0.016500, 0, 0, kSin2Zeta, kSinQ},
    {-0.005775, 0, 0, kSin3Zeta, kSinQ},
    {0.081344, 0.003206, 0, kCosZeta, kSinQ},
    {0.015019, 0, 0, kCos2Zeta, kSinQ},
    {0.085581, 0.002494, 0, kSinZeta, kCosQ},
    {0.025328, -0.003117, 0, kCosZeta, kCosQ},
    {0.014394, 0, 0, kCos2Zeta, kCosQ},
    {0.006319, 0, 0, kCos3Zeta, kCosQ},
    {0.006369, 0, 0, kSinZeta, kSin2Q},
    {0.009156, 0, 0, kSin2Zeta, kSin2Q},
    {0.007525, 0, 0, kSin3Psi, kSin2Q},
    {-0.005236, 0, 0, kCosZeta, kCos2Q},
    {-0.007736, 0, 0, kCos2Zeta, kCos2Q},
    {-0.007528, 0, 0, kCos3Psi, kCos2Q},
}};

constexpr std::array<Term, 17> kSaturnB = {{
    {0.077108, 0.007186, -0.001533, kSinV, kOne},
    {0.045803, -0.014766, -0.000536, kCosV, kOne},
    {-0.007075, 0, 0, kSinZeta, kOne},
    {-0.075825, 0, 0, kSinZeta, kSinQ},
    {-0.024839, 0, 0, kSin2Zeta, kSinQ},
    {-0.008631, 0, 0, kSin3Zeta, kSinQ},
    {-0.072586, 0, 0, kCosQ, kOne},
    {-0.150383, 0, 0, kCosZeta, kCosQ},
    {0.026897, 0, 0, kCos2Zeta, kCosQ},
    {0.010053, 0, 0, kCos3Zeta, kCosQ},
    {-0.013597, -0.001719, 0, kSinZeta, kSin2Q},
    {-0.007742, 0.001517, 0, kCosZeta, kSin2Q},
    {0.013586, -0.001375, 0, kCos2Zeta, kSin2Q},
    {-0.013667, 0.001239, 0, kSinZeta, kCos2Q},
    {0.011981, 0, 0, kSin2Zeta, kCos2Q},
    {0.014861, 0.001136, 0, kCosZeta, kCos2Q},
    {-0.013064, -0.001628, 0, kCos2Zeta, kCos2Q},
}};

constexpr std::array<Term, 49> kSaturnDe = {{
    {-7927, 2548, 91, kSinV, kOne},    {13381, 1226, -253, kCosV, kOne},   {248, -121, 0, kSin2V, kOne},
    {-305, -91, 0, kCos2V, kOne},      {412, 0, 0, kSin2Zeta, kOne},       {12415, 0, 0, kSinQ, kOne},
    {390, -617, 0, kSinZeta, kSinQ},   {165, -204, 0, kSin2Zeta, kSinQ},   {26599, 0, 0, kCosZeta, kSinQ},
    {-4687, 0, 0, kCos2Zeta, kSinQ},   {-1870, 0, 0, kCos3Zeta, kSinQ},    {-821, 0, 0, kCos4Zeta, kSinQ},
    {-377, 0, 0, kCos5Zeta, kSinQ},    {497, 0, 0, kCos2Psi, kSinQ},       {163, -611, 0, kCosQ, kOne},
    {-12696, 0, 0, kSinZeta, kCosQ},   {-4200, 0, 0, kSin2Zeta, kCosQ},    {-1503, 0, 0, kSin3Zeta, kCosQ},
    {-619, 0, 0, kSin4Zeta, kCosQ},    {-268, 0, 0, kSin5Zeta, kCosQ},     {-282, -1306, 0, kCosZeta, kCosQ},
    {-86, 230, 0, kCos2Zeta, kCosQ},   {461, 0, 0, kSin2Psi, kCosQ},       {-350, 0, 0, kSin2Q, kOne},
    {2211, -286, 0, kSinZeta, kSin2Q}, {-2208, 0, 0, kSin2Zeta, kSin2Q},   {-568, 0, 0, kSin3Zeta, kSin2Q},
    {-346, 0, 0, kSin4Zeta, kSin2Q},   {-2780, -222, 0, kCosZeta, kSin2Q}, {2022, 263, 0, kCos2Zeta, kSin2Q},
    {248, 0, 0, kCos3Zeta, kSin2Q},    {242, 0, 0, kSin3Psi, kSin2Q},      {467, 0, 0, kCos3Psi, kSin2Q},
    {-490, 0, 0, kCos2Q, kOne},        {-2842, -279, 0, kSinZeta, kCos2Q}, {128, 226, 0, kSin2Zeta, kCos2Q},
    {224, 0, 0, kSin3Zeta, kCos2Q},    {-1594, 282, 0, kCosZeta, kCos2Q},  {2162, -207, 0, kCos2Zeta, kCos2Q},
    {561, 0, 0, kCos3Zeta, kCos2Q},    {343, 0, 0, kCos4Zeta, kCos2Q},     {469, 0, 0, kSin3Psi, kCos2Q},
    {-242, 0, 0, kCos3Psi, kCos2Q},    {-205, 0, 0, kSinZeta, kSin3Q},     {262, 0, 0, kSin3Zeta, kSin3Q},
    {208, 0, 0, kCosZeta, kCos3Q},     {-271, 0, 0, kCos3Zeta, kCos3Q},    {-382, 0, 0, kCos3Zeta, kSin4Q},
    {-376, 0, 0, kSin3Zeta, kCos4Q},
}};

constexpr std::array<Term, 36> kSaturnDa = {{
    {0, 572, 0, kSinV, kOne},        {2933, 0, 0, kCosV, kOne},        {33629, 0, 0, kCosZeta, kOne},
    {-3081, 0, 0, kCos2Zeta, kOne},  {-1423, 0, 0, kCos3Zeta, kOne},   {-671, 0, 0, kCos4Zeta, kOne},
    {-320, 0, 0, kCos5Zeta, kOne},   {1098, 0, 0, kSinQ, kOne},        {-2812, 0, 0, kSinZeta, kSinQ},
    {688, 0, 0, kSin2Zeta, kSinQ},   {-393, 0, 0, kSin3Zeta, kSinQ},   {-228, 0, 0, kSin4Zeta, kSinQ},
    {2138, 0, 0, kCosZeta, kSinQ},   {-999, 0, 0, kCos2Zeta, kSinQ},   {-642, 0, 0, kCos3Zeta, kSinQ},
    {-325, 0, 0, kCos4Zeta, kSinQ},  {-890, 0, 0, kCosQ, kOne},        {2206, 0, 0, kSinZeta, kCosQ},
    {-1590, 0, 0, kSin2Zeta, kCosQ}, {-647, 0, 0, kSin3Zeta, kCosQ},   {-344, 0, 0, kSin4Zeta, kCosQ},
    {2885, 0, 0, kCosZeta, kCosQ},   {2172, 102, 0, kCos2Zeta, kCosQ}, {296, 0, 0, kCos3Zeta, kCosQ},
    {-267, 0, 0, kSin2Zeta, kSin2Q}, {-778, 0, 0, kCosZeta, kSin2Q},   {495, 0, 0, kCos2Zeta, kSin2Q},
    {250, 0, 0, kCos3Zeta, kSin2Q},  {-856, 0, 0, kSinZeta, kCos2Q},   {441, 0, 0, kSin2Zeta, kCos2Q},
    {296, 0, 0, kCos2Zeta, kCos2Q},  {211, 0, 0, kCos3Zeta, kCos2Q},   {-427, 0, 0, kSinZeta, kSin3Q},
    {398, 0, 0, kSin3Zeta, kSin3Q},  {344, 0, 0, kCosZeta, kCos3Q},    {-427, 0, 0, kCos3Zeta, kCos3Q},
}};

constexpr std::array<Term, 5> kUranusA = {{
    {0.864319, -0.001583, 0, kSinH, kOne},
    {0.082222, -0.006833, 0, kCosH, kOne},
    {0.036017, 0, 0, kSin2H, kOne},
    {-0.003019, 0, 0, kCos2H, kOne},
    {0.008122, 0, 0, kSinW, kOne},
}};

constexpr std::array<Term, 3> kUranusB = {{
    {0.120303, 0, 0, kSinH, kOne},
    {0.019472, -0.000947, 0, kCosH, kOne},
    {0.006197, 0, 0, kSin2H, kOne},
}};

constexpr std::array<Term, 3> kUranusDe = {{
    {-3349, 163, 0, kSinH, kOne},
    {20981, 0, 0, kCosH, kOne},
    {1311, 0, 0, kCos2H, kOne},
}};

constexpr std::array<Term, 1> kUranusDa = {{
    {-3825, 0, 0, kCosH, kOne},
}};

constexpr std::array<Term, 10> kUranusDlon = {{
    {0.010122, -0.000988, 0, kSin2SLessQ, kOne},
    {-0.038581, 0.002031, -0.001910, kCos2SLessQ, kOne},
    {0.034964, -0.001038, 0.000868, kCos3SLessQ, kOne},
    {0.005594, 0, 0, kSin3GLess2S, kOne},
    {-0.014808, 0, 0, kSinSLessP, kOne},
    {-0.005794, 0, 0, kSinPsi, kOne},
    {0.002347, 0, 0, kCosPsi, kOne},
    {0.009872, 0, 0, kSinGLessS, kOne},
    {0.008803, 0, 0, kSin2GLess2S, kOne},
    {-0.004308, 0, 0, kSin3GLess3S, kOne},
}};

constexpr std::array<Term, 3> kNeptuneA = {{
    {-0.589833, 0.001089, 0, kSinH, kOne},
    {-0.056094, 0.004658, 0, kCosH, kOne},
    {-0.024286, 0, 0, kSin2H, kOne},
}};

constexpr std::array<Term, 4> kNeptuneB = {{
    {0.024039, 0, 0, kSinH, kOne},
    {-0.025303, 0, 0, kCosH, kOne},
    {0.006206, 0, 0, kSin2H, kOne},
    {-0.005992, 0, 0, kCos2H, kOne},
}};

constexpr std::array<Term, 4> kNeptuneDe = {{
    {4389, 0, 0, kSinH, kOne},
    {4262, 0, 0, kCosH, kOne},
    {1129, 0, 0, kSin2H, kOne},
    {1089, 0, 0, kCos2H, kOne},
}};

constexpr std::array<Term, 3> kNeptuneDa = {{
    {-817, 0, 0, kSinH, kOne},
    {8189, 0, 0, kCosH, kOne},
    {781, 0, 0, kCos2H, kOne},
}};

constexpr std::array<Term, 5> kNeptuneDlon = {{
    {-0.009556, 0, 0, kSinGLessP, kOne},
    {-0.005178, 0, 0, kSinGLessQ, kOne},
    {0.002572, 0, 0, kSin2GLess2S, kOne},
    {-0.002972, 0, 0, kCos2GLess2S, kSinG},
    {-0.002833, 0, 0, kSin2GLess2S, kCosG},
}};

struct Series {
    std::span<const Term> a, b, de, da, dlon;
};

constexpr Series kSeries[] = {
    {kJupiterA, kJupiterB, kJupiterDe, kJupiterDa, {}},
    {kSaturnA, kSaturnB, kSaturnDe, kSaturnDa, {}},
    {kUranusA, kUranusB, kUranusDe, kUranusDa, kUranusDlon},
    {kNeptuneA, kNeptuneB, kNeptuneDe, kNeptuneDa, kNeptuneDlon},
};

// All in degrees. P, Q, S and G are the mean longitudes of Jupiter, Saturn, Uranus and Neptune.
auto ArgumentsAt(double t) {
    const double p = 237.47555 + 3034.9061 * t;
    const double q = 265.91650 + 1222.1139 * t;
    const double s = 243.51721 + 428.4677 * t;
    const double g = 83.76922 + 218.4901 * t;
    const double v = 5.0 * q - 2.0 * p;
    const double w = 2.0 * p - 6.0 * q + 3.0 * s;
    const double zeta = q - p;
    const double psi = s - q;
    const double h = 2.0 * g - s;
    return std::array{
        v,
        2.0 * v,
        w,
        zeta,
        2.0 * zeta,
        3.0 * zeta,
        4.0 * zeta,
        5.0 * zeta,
        psi,
        2.0 * psi,
        3.0 * psi,
        q,
        2.0 * q,
        3.0 * q,
        4.0 * q,
        h,
        2.0 * h,
        g,
        s - p,
        2.0 * s - q,
        3.0 * s - q,
        g - p,
        g - q,
        g - s,
        2.0 * (g - s),
        3.0 * (g - s),
        3.0 * g - 2.0 * s,
    };
}

double Sum(std::span<const Term> terms, double nu, std::span<const double> factors) {
    double sum = 0.0;
    for (const Term& term : terms) {
        sum += (term.c0 + nu * (term.c1 + nu * term.c2)) * factors[term.first] * factors[term.second];
    }
    return sum;
}

}  // namespace

PerturbationSeries::PerturbationSeries(double centuries) : nu_(centuries / 5.0 + 0.1), factors_{1.0} {
    static_assert(kFactorCount == 2 * kArgumentCount + 1);
    const std::array<double, kArgumentCount> arguments = ArgumentsAt(centuries);
    for (std::size_t i = 0; i < kArgumentCount; ++i) {
        const SinCos value = SinCosDeg(arguments[i]);
        factors_[2 * i + 1] = value.sin;
        factors_[2 * i + 2] = value.cos;
    }
}

Perturbations PerturbationSeries::Of(GiantPlanet planet) const {
    const Series& series = kSeries[static_cast<std::size_t>(planet)];
    return {Sum(series.a, nu_, factors_), Sum(series.b, nu_, factors_), Sum(series.de, nu_, factors_) * 1e-7,
            Sum(series.da, nu_, factors_) * 1e-6, Sum(series.dlon, nu_, factors_)};
}

}  // namespace tolvanis
