#include "astro/modern/delta_t.h"

#include <algorithm>

#include "astro/epochs.h"
#include "astro/modern/vectors.h"

namespace tolvanis::modern {
namespace {

// Seconds; powers of the fraction of the time to the next row that has passed since `from`.
struct Spline {
    double from;  // year
    std::array<double, 4> coefficients;
};
constexpr double kTableEnds = 2019.0;
// clang-format off
constexpr Spline kTable[] = {
    {-720, {20371.848, -9999.586, 776.247, 409.16}}, {-100, {11557.668, -5822.27, 1303.151, -503.433}},
    {400, {6535.116, -5671.519, -298.291, 1085.087}}, {1000, {1650.393, -753.21, 184.811, -25.346}},
    {1150, {1056.647, -459.628, 108.771, -24.641}}, {1300, {681.149, -421.345, 61.953, -29.414}},
    {1500, {292.343, -192.841, -6.572, 16.197}}, {1600, {109.127, -78.697, 10.505, 3.018}},
    {1650, {43.952, -68.089, 38.333, -2.127}}, {1720, {12.068, 2.507, 41.731, -37.939}},
    {1800, {18.367, -3.481, -1.126, 1.918}}, {1810, {15.678, 0.021, 4.629, -3.812}},
    {1820, {16.516, -2.157, -6.806, 3.25}}, {1830, {10.804, -6.018, 2.944, -0.096}},
    {1840, {7.634, -0.416, 2.658, -0.539}}, {1850, {9.338, 1.642, 0.261, -0.883}},
    {1855, {10.357, -0.486, -2.389, 1.558}}, {1860, {9.04, -0.591, 2.284, -2.477}},
    {1865, {8.255, -3.456, -5.148, 2.72}}, {1870, {2.371, -5.593, 3.011, -0.914}},
    {1875, {-1.126, -2.314, 0.269, -0.039}}, {1880, {-3.21, -1.893, 0.152, 0.563}},
    {1885, {-4.388, 0.101, 1.842, -1.438}}, {1890, {-3.884, -0.531, -2.474, 1.871}},
    {1895, {-5.017, 0.134, 3.138, -0.232}}, {1900, {-1.977, 5.715, 2.443, -1.257}},
    {1905, {4.923, 6.828, -1.329, 0.72}}, {1910, {11.142, 6.33, 0.831, -0.825}},
    {1915, {17.479, 5.518, -1.643, 0.262}}, {1920, {21.617, 3.02, -0.856, 0.008}},
    {1925, {23.789, 1.333, -0.831, 0.127}}, {1930, {24.418, 0.052, -0.449, 0.142}},
    {1935, {24.164, -0.419, -0.022, 0.702}}, {1940, {24.426, 1.645, 2.086, -1.106}},
    {1945, {27.05, 2.499, -1.232, 0.614}}, {1950, {28.932, 1.127, 0.22, -0.277}},
    {1953, {30.002, 0.737, -0.61, 0.631}}, {1956, {30.76, 1.409, 1.282, -0.799}},
    {1959, {32.652, 1.577, -1.115, 0.507}}, {1962, {33.621, 0.868, 0.406, 0.199}},
    {1965, {35.093, 2.275, 1.002, -0.414}}, {1968, {37.956, 3.035, -0.242, 0.202}},
    {1971, {40.951, 3.157, 0.364, -0.229}}, {1974, {44.244, 3.199, -0.323, 0.172}},
    {1977, {47.291, 3.069, 0.193, -0.192}}, {1980, {50.361, 2.878, -0.384, 0.081}},
    {1983, {52.936, 2.354, -0.14, -0.165}}, {1986, {54.984, 1.577, -0.637, 0.448}},
    {1989, {56.373, 1.648, 0.708, -0.276}}, {1992, {58.453, 2.235, -0.121, 0.11}},
    {1995, {60.678, 2.324, 0.21, -0.313}}, {1998, {62.898, 1.804, -0.729, 0.109}},
    {2001, {64.083, 0.674, -0.402, 0.199}}, {2004, {64.553, 0.466, 0.194, -0.017}},
    {2007, {65.197, 0.804, 0.144, -0.084}}, {2010, {66.061, 0.839, -0.109, 0.128}},
    {2013, {66.92, 1.007, 0.277, -0.095}}, {2016, {68.109, 1.277, -0.007, -0.139}},
};
// clang-format on

// Where the row after the table would begin.
double EndOf(const Spline* row) {
    return row + 1 == std::end(kTable) ? kTableEnds : row[1].from;
}

double TableValue(double year) {
    const Spline* row =
        std::prev(std::upper_bound(std::next(std::begin(kTable)), std::end(kTable), year,
                                   [](double y, const Spline& spline) { return y < spline.from; }));
    return Polynomial(row->coefficients, (year - row->from) / (EndOf(row) - row->from));
}

// The year with its fraction, Gregorian from 15 October 1582 on.
double CalendarYear(double ut) {
    constexpr double kFirstGregorianDay = 2299160.5;
    return ut < kFirstGregorianDay ? (ut + 0.5) / 365.25 - 4712.0 : 2000.0 + (ut - 2451544.5) / 365.2425;
}

// The day is longer than 86,400 seconds by 1.72 t - 3.5 sin(2 pi (t + 0.75) / 14) milliseconds, t in
// centuries from 1825; this is the sum of that over the days since then, but for a constant.
double SumOfDayLengths(double year) {
    constexpr double kPeriod = 14.0;
    const double t = (year - 1825.0) / 100.0;
    return kDaysPerCentury *
           (0.00172 * t * t / 2.0 + 0.0035 * kPeriod / kTurn * std::cos(kTurn * (t + 0.75) / kPeriod));
}

}  // namespace

double DeltaT(double ut) {
    const double year = CalendarYear(ut);
    const double nearest = std::clamp(year, kTable[0].from, kTableEnds);
    return TableValue(nearest) + SumOfDayLengths(year) - SumOfDayLengths(nearest);
}

}  // namespace tolvanis::modern
