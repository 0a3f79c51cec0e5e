#pragma once
// Sums of trigonometric series and their rates of change.

#include <algorithm>
#include <span>

#include "astro/modern/series_tables.h"
#include "astro/modern/sine_batch.h"
#include "astro/modern/vectors.h"

namespace tolvanis::modern {

// A quantity and its change in the unit of time of its series.
struct Changing {
    double value = 0.0;
    double rate = 0.0;
};

// Longitude, latitude (radians) and radius.
using Polar3 = std::array<Changing, 3>;

// The sum of amplitude * wave(argument) over terms and its rate. `argumentOf` and `rateOf` give a term's
// argument and its rate. The terms are taken in batches, and in four partial sums whatever the machine.
template <bool cosines, typename Term, typename ArgumentOf, typename RateOf>
Changing SumOfTerms(std::span<const Term> terms, ArgumentOf argumentOf, RateOf rateOf) {
    constexpr std::size_t kLanes = 4;
    Batch angles;
    Batch sine;
    Batch cosine;
    Batch amplitudes;
    Batch speeds;
    std::array<double, kLanes> sums{};
    std::array<double, kLanes> rates{};
    while (!terms.empty()) {
        const std::size_t count = std::min(terms.size(), kBatch);
        for (std::size_t i = 0; i < count; ++i) {
            angles[i] = argumentOf(terms[i]);
            amplitudes[i] = static_cast<double>(terms[i].amplitude);
            speeds[i] = amplitudes[i] * rateOf(terms[i]);
        }
        std::size_t whole = count;
        for (; whole % kLanes != 0; ++whole) angles[whole] = amplitudes[whole] = speeds[whole] = 0.0;
        SinesAndCosines(angles, whole, sine, cosine);
        const Batch& wave = cosines ? cosine : sine;
        const Batch& slope = cosines ? sine : cosine;
        for (std::size_t i = 0; i < whole; i += kLanes) {
            for (std::size_t lane = 0; lane < kLanes; ++lane) {
                sums[lane] += amplitudes[i + lane] * wave[i + lane];
                rates[lane] += speeds[i + lane] * slope[i + lane];
            }
        }
        terms = terms.subspan(count);
    }
    const auto total = [](const std::array<double, kLanes>& lanes) {
        return (lanes[0] + lanes[1]) + (lanes[2] + lanes[3]);
    };
    return {total(sums), cosines ? -total(rates) : total(rates)};
}

// The three quantities of a series at time t: `sumOf` gives the sum of a stretch of terms.
template <typename Term, typename SumOf>
Polar3 SumOfSeries(std::span<const Term> terms, const TermCounts& counts, double t, SumOf sumOf) {
    Polar3 result;
    for (std::size_t quantity = 0; quantity < counts.size(); ++quantity) {
        double power = 1.0;      // t to the power
        double powerRate = 0.0;  // and its rate
        for (std::size_t n = 0; n < counts[quantity].size(); ++n) {
            const std::size_t count = counts[quantity][n];
            if (count != 0) {
                const Changing sum = sumOf(terms.first(count));
                result[quantity].value += power * sum.value;
                result[quantity].rate += power * sum.rate + powerRate * sum.value;
                terms = terms.subspan(count);
            }
            powerRate = power * static_cast<double>(n + 1);
            power *= t;
        }
    }
    return result;
}

// The motion in rectangular coordinates of the same axes, its rate divided by `daysPerUnit`.
inline Motion RectangularMotion(const Polar3& polar, double daysPerUnit) {
    const auto& [longitude, latitude, radius] = polar;
    const double cosL = std::cos(longitude.value);
    const double sinL = std::sin(longitude.value);
    const double cosB = std::cos(latitude.value);
    const double sinB = std::sin(latitude.value);
    const Vector outward{cosB * cosL, cosB * sinL, sinB};
    const Vector east{-cosB * sinL, cosB * cosL, 0.0};
    const Vector north{-sinB * cosL, -sinB * sinL, cosB};
    const Vector velocity = radius.rate * outward + (radius.value * longitude.rate) * east +
                            (radius.value * latitude.rate) * north;
    return {radius.value * outward, (1.0 / daysPerUnit) * velocity};
}

// From the inertial mean ecliptic and dynamical equinox of J2000.0 to the axes of the ICRS (Chapront,
// Chapront-Touze and Francou 2002).
inline const Rotation& EclipticToIcrs() {
    static const Rotation rotation =
        AboutZ(0.05542 * kRadiansPerArcSecond) * AboutX(-84381.41100 * kRadiansPerArcSecond);
    return rotation;
}

}  // namespace tolvanis::modern
