#include "astro/modern/inner_planets.h"

#include "astro/epochs.h"
#include "astro/modern/series_sum.h"

namespace tolvanis::modern {
namespace {

Motion MotionOf(const PlanetSeries& series, double t) {
    const auto argument = [t](const PlanetTerm& term) { return term.phase + term.rate * t; };
    const auto rate = [](const PlanetTerm& term) { return term.rate; };
    const Polar3 polar = SumOfSeries(series.terms, series.counts, t, [&](std::span<const PlanetTerm> terms) {
        return SumOfTerms<true>(terms, argument, rate);
    });
    const Motion ecliptic = RectangularMotion(polar, kDaysPerMillennium);
    return {EclipticToIcrs() * ecliptic.place, EclipticToIcrs() * ecliptic.velocity};
}

}  // namespace

std::array<Motion, kInnerPlanetCount> InnerPlanetMotions(double tdb) {
    const double t = (tdb - kJ2000) / kDaysPerMillennium;
    return {MotionOf(kMercurySeries, t), MotionOf(kVenusSeries, t), MotionOf(kEarthSeries, t),
            MotionOf(kMarsSeries, t)};
}

}  // namespace tolvanis::modern
