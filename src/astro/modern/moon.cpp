#include "astro/modern/moon.h"

#include "astro/epochs.h"
#include "astro/modern/series_sum.h"

namespace tolvanis::modern {
namespace {

constexpr double kKilometresPerUnit = 149597870.691;

// The pole of the mean ecliptic of date in that of J2000.0, powers of Julian centuries (Laskar 1986).
constexpr std::array kPoleP = {0.0,           0.10180391e-4,  0.47020439e-6,
                               -0.5417367e-9, -0.2507948e-11, 0.463486e-14};
constexpr std::array kPoleQ = {0.0,           -0.113469002e-3, 0.12372674e-6,
                               0.12654170e-8, -0.1371808e-11,  -0.320334e-14};

Rotation FromEclipticOfDate(double t) {
    const double p = Polynomial(kPoleP, t);
    const double q = Polynomial(kPoleQ, t);
    const double root = 2.0 * std::sqrt(1.0 - p * p - q * q);
    return {{1.0 - 2.0 * p * p, 2.0 * p * q, p * root},
            {2.0 * p * q, 1.0 - 2.0 * q * q, -q * root},
            {-p * root, q * root, 1.0 - 2.0 * p * p - 2.0 * q * q}};
}

}  // namespace

Motion MoonMotion(double tdb) {
    const double t = (tdb - kJ2000) / kDaysPerCentury;
    const MoonSeries& series = kMoonSeries;
    const auto argument = [t](const MoonTerm& term) { return Polynomial(term.argument, t); };
    const auto rate = [](const MoonTerm& term) { return term.argument[1]; };
    Polar3 polar = SumOfSeries(series.terms, series.counts, t, [&](std::span<const MoonTerm> terms) {
        return SumOfTerms<false>(terms, argument, rate);
    });
    for (std::size_t angle = 0; angle < 2; ++angle) {
        polar[angle].value *= kRadiansPerArcSecond;
        polar[angle].rate *= kRadiansPerArcSecond;
    }
    polar[0].value += Polynomial(series.meanLongitude, t);
    polar[0].rate += series.meanLongitude[1];
    const Motion ofDate = RectangularMotion(polar, kDaysPerCentury);
    const Rotation toIcrs = EclipticToIcrs() * FromEclipticOfDate(t);
    return {(1.0 / kKilometresPerUnit) * (toIcrs * ofDate.place),
            (1.0 / kKilometresPerUnit) * (toIcrs * ofDate.velocity)};
}

double MeanNode(double tdb) {
    constexpr std::array kArcSeconds = {450160.398036, -6962890.5431, 7.4722, 0.007702, -0.00005939};
    return Polynomial(kArcSeconds, (tdb - kJ2000) / kDaysPerCentury) / 3600.0;
}

}  // namespace tolvanis::modern
