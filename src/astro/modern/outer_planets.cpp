#include "astro/modern/outer_planets.h"

#include <vector>

#include "astro/epochs.h"
#include "astro/modern/earth_orientation.h"
#include "astro/modern/series_sum.h"
#include "astro/pluto_series.h"

namespace tolvanis::modern {
namespace {

// The sum of a Chebyshev series and its derivative (Clenshaw).
Motion BarycentricMotion(const OrbitPieces& orbit, double tdb) {
    const auto pieces = static_cast<double>(orbit.coefficients.size() / orbit.perPiece);
    const double place = (tdb - kOrbitsBegin) / (kOrbitsEnd - kOrbitsBegin) * pieces;
    const double piece = std::min(std::floor(place), pieces - 1.0);
    const double x = 2.0 * (place - piece) - 1.0;
    const auto terms =
        orbit.coefficients.subspan(static_cast<std::size_t>(piece) * orbit.perPiece, orbit.perPiece);
    Vector value;
    Vector before;
    Vector slope;
    Vector slopeBefore;
    for (std::size_t k = terms.size(); k > 0; --k) {
        const OrbitCoefficient& c = terms[k - 1];
        const Vector coefficient{static_cast<double>(c.x), static_cast<double>(c.y),
                                 static_cast<double>(c.z)};
        const double twice = k == 1 ? x : 2.0 * x;
        const double once = k == 1 ? 1.0 : 2.0;
        const Vector nextSlope = twice * slope - slopeBefore + once * value;
        const Vector next = twice * value - before + coefficient;
        slopeBefore = slope;
        slope = nextSlope;
        before = value;
        value = next;
    }
    constexpr double kUnit = 1e-9;
    return {kUnit * value, kUnit * 2.0 * pieces / (kOrbitsEnd - kOrbitsBegin) * slope};
}

// The cosines and sines that the terms of a series share.
struct Waves {
    std::vector<double> cosines;
    std::vector<double> sines;
};

Waves WavesAt(std::span<const double> rates, double t) {
    Waves waves;
    Batch angles{};
    Batch sines;
    Batch cosines;
    for (std::size_t start = 0; start < rates.size(); start += kBatch) {
        const std::size_t count = std::min(rates.size() - start, kBatch);
        for (std::size_t i = 0; i < count; ++i) angles[i] = rates[start + i] * t;
        SinesAndCosines(angles, count, sines, cosines);
        waves.cosines.insert(waves.cosines.end(), cosines.begin(), cosines.begin() + count);
        waves.sines.insert(waves.sines.end(), sines.begin(), sines.begin() + count);
    }
    return waves;
}

Changing SumOfGiantTerms(std::span<const GiantTerm> terms, std::span<const double> rates,
                         const Waves& waves) {
    constexpr double kUnit = 1e-11;
    Changing sum;
    for (const GiantTerm& term : terms) {
        const auto c = static_cast<double>(term.cosine);
        const auto s = static_cast<double>(term.sine);
        sum.value += c * waves.cosines[term.rate] + s * waves.sines[term.rate];
        sum.rate += (s * waves.cosines[term.rate] - c * waves.sines[term.rate]) * rates[term.rate];
    }
    return {kUnit * sum.value, kUnit * sum.rate};
}

Motion SeriesMotion(const GiantSeries& series, double t) {
    const Waves waves = WavesAt(series.rates, t);
    Polar3 polar = SumOfSeries(series.terms, series.counts, t, [&](std::span<const GiantTerm> terms) {
        return SumOfGiantTerms(terms, series.rates, waves);
    });
    for (std::size_t quantity = 0; quantity < polar.size(); ++quantity) {
        const auto& powers = series.secular[quantity];
        polar[quantity].value += Polynomial(powers, t);
        for (std::size_t n = powers.size() - 1; n > 0; --n) {
            polar[quantity].rate +=
                static_cast<double>(n) * powers[n] * std::pow(t, static_cast<double>(n - 1));
        }
    }
    const Motion ecliptic = RectangularMotion(polar, kDaysPerMillennium);
    return {EclipticToIcrs() * ecliptic.place, EclipticToIcrs() * ecliptic.velocity};
}

// The classic theory's Pluto, which is referred to the ecliptic and equinox of 1950.0.
Vector ClassicPluto(double tdb) {
    constexpr double kB1950 = 2433282.4235;
    static const Rotation toIcrs = MeanEclipticOfDate(kB1950).Inverse();
    const HeliocentricPosition pluto = ComputePlutoHeliocentric((tdb - kEpoch1900) / kDaysPerCentury);
    const double longitude = pluto.longitude * kRadiansPerDegree;
    const double latitude = pluto.latitude * kRadiansPerDegree;
    const double level = pluto.radius * std::cos(latitude);
    return toIcrs * Vector{level * std::cos(longitude), level * std::sin(longitude),
                           pluto.radius * std::sin(latitude)};
}

std::array<Motion, kOuterPlanetCount> FromSeries(double tdb) {
    const double t = (tdb - kJ2000) / kDaysPerMillennium;
    const Vector pluto = ClassicPluto(tdb);
    const Vector plutoNextDay = ClassicPluto(tdb + 1.0);
    return {SeriesMotion(kJupiterSeries, t), SeriesMotion(kSaturnSeries, t), SeriesMotion(kUranusSeries, t),
            SeriesMotion(kNeptuneSeries, t), Motion{pluto, plutoNextDay - pluto}};
}

}  // namespace

bool OuterOrbitsAreIntegrated(double tdb) {
    return kOrbitsBegin <= tdb && tdb <= kOrbitsEnd;
}

std::array<Motion, kOuterPlanetCount> OuterPlanetMotions(double tdb,
                                                         const std::array<Motion, kInnerPlanetCount>& inner) {
    if (!OuterOrbitsAreIntegrated(tdb)) return FromSeries(tdb);
    std::array<Motion, kOuterPlanetCount> motions = {
        BarycentricMotion(kJupiterOrbit, tdb), BarycentricMotion(kSaturnOrbit, tdb),
        BarycentricMotion(kUranusOrbit, tdb), BarycentricMotion(kNeptuneOrbit, tdb),
        BarycentricMotion(kPlutoOrbit, tdb)};
    // The Sun balances the outer planets and, within its group, the inner ones.
    double sunAndInner = 1.0;
    for (const double mass : kInnerPlanetMasses) sunAndInner += mass;
    Motion sun;
    const auto balance = [&](double mass, const Motion& motion) {
        sun.place = sun.place - (mass / sunAndInner) * motion.place;
        sun.velocity = sun.velocity - (mass / sunAndInner) * motion.velocity;
    };
    for (std::size_t i = 0; i < kOuterPlanetCount; ++i) balance(kOuterPlanetMasses[i], motions[i]);
    for (std::size_t i = 0; i < kInnerPlanetCount; ++i) balance(kInnerPlanetMasses[i], inner[i]);
    for (Motion& motion : motions) motion = {motion.place - sun.place, motion.velocity - sun.velocity};
    return motions;
}

}  // namespace tolvanis::modern
