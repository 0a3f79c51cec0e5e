#include "astro/modern/sine_batch.h"

#include <bit>
#include <cstdint>
#include <numbers>

namespace tolvanis::modern {
namespace {

// Added to a number below 2^51 and taken away again it leaves the nearest whole number, whose last binary
// digits stand at the end of the sum.
constexpr double kRounder = 6755399441055744.0;  // 1.5 * 2^52

// Pi in three parts, the first two of 27 binary digits: their products with whole numbers are exact.
constexpr double kPi1 = 0x1.921fb54p+1;
constexpr double kPi2 = 0x1.10b4610p-29;
constexpr double kPi3 = 0x1.a62633145c06ep-57;

// The Taylor polynomials on a quarter of a turn to either side; what they leave out is below 3e-16 there.
constexpr int kTerms = 10;
constexpr std::array<double, kTerms + 1> InverseFactorials(int first) {
    std::array<double, kTerms + 1> result{};
    double value = 1.0;
    for (int i = 1; i <= first; ++i) value *= i;
    for (int i = 0; i <= kTerms; ++i) {
        result[static_cast<std::size_t>(i)] = (i % 2 == 0 ? 1.0 : -1.0) / value;
        const double next = first + 2.0 * i + 1.0;
        value *= next * (next + 1.0);
    }
    return result;
}
constexpr auto kSine = InverseFactorials(1);
constexpr auto kCosine = InverseFactorials(0);

constexpr double Series(const std::array<double, kTerms + 1>& coefficients, double square) {
    double value = coefficients[kTerms];
    for (std::size_t i = kTerms; i > 0; --i) value = value * square + coefficients[i - 1];
    return value;
}

double WithSign(double value, std::uint64_t half) {
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(value) ^ (half << 63));
}

}  // namespace

void SinesAndCosines(const Batch& angles, std::size_t count, Batch& sines, Batch& cosines) {
    constexpr std::size_t kLanes = 4;
    const std::size_t whole = (count + kLanes - 1) / kLanes * kLanes;
    for (std::size_t i = 0; i < whole; ++i) {
        const double sum = angles[i] * std::numbers::inv_pi + kRounder;
        const std::uint64_t half = std::bit_cast<std::uint64_t>(sum);
        const double turns = sum - kRounder;
        const double rest = ((angles[i] - turns * kPi1) - turns * kPi2) - turns * kPi3;
        const double square = rest * rest;
        sines[i] = WithSign(rest * Series(kSine, square), half);
        cosines[i] = WithSign(Series(kCosine, square), half);
    }
}

}  // namespace tolvanis::modern
