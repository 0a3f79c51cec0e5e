// Writes src/astro/modern/outer_orbits_table.cpp: barycentric orbits of Jupiter to Pluto from 1600 to 2200 as
// Chebyshev pieces.
//
//   integrate_outer START_VALUES > outer_orbits_table.cpp
//
// Six bodies under Newton's law: the Sun together with the inner planets, and the five outer systems, from
// the start values at J2000.0. Each step is a Gragg-Bulirsch-Stoer extrapolation of Stoermer's rule.

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Real = long double;

constexpr int kBodies = 6;  // the Sun first
constexpr double kEpoch = 2451545.0;
constexpr double kFirstDay = 2305447.5;  // 1600 January 1
constexpr double kLastDay = 2524593.5;   // 2200 January 1
constexpr Real kGauss = 0.01720209895L;
constexpr Real kInnerMasses = 1 / 6023600.0L + 1 / 408523.71L + 1 / 328900.56L +
                              1 / 3098708.0L;  // Mercury, Venus, Earth and Moon, Mars
constexpr Real kLongestStep = 40;
constexpr int kColumns = 8;
constexpr Real kUnits = 1e9L;
constexpr int kToALine = 2;

struct Pieces {
    const char* name;
    int count;
    int coefficients;
};
constexpr std::array<Pieces, kBodies - 1> kPieces = {
    {{"Jupiter", 100, 16}, {"Saturn", 80, 14}, {"Uranus", 60, 14}, {"Neptune", 60, 12}, {"Pluto", 60, 12}}};

using Vector = std::array<Real, 3 * kBodies>;

struct State {
    Vector place{};
    Vector velocity{};
};

std::array<Real, kBodies> masses{};

Vector Acceleration(const Vector& place) {
    Vector result{};
    for (std::size_t i = 0; i < kBodies; ++i) {
        for (std::size_t j = i + 1; j < kBodies; ++j) {
            std::array<Real, 3> d{};
            Real square = 0;
            for (std::size_t axis = 0; axis < 3; ++axis) {
                d[axis] = place[3 * j + axis] - place[3 * i + axis];
                square += d[axis] * d[axis];
            }
            const Real pull = kGauss * kGauss / (square * std::sqrt(square));
            for (std::size_t axis = 0; axis < 3; ++axis) {
                result[3 * i + axis] += masses[j] * pull * d[axis];
                result[3 * j + axis] -= masses[i] * pull * d[axis];
            }
        }
    }
    return result;
}

// Stoermer's rule over one step in `parts` parts.
State Stoermer(const State& from, Real step, int parts) {
    const Real h = step / parts;
    State to = from;
    Vector delta = Acceleration(from.place);
    for (std::size_t i = 0; i < delta.size(); ++i) {
        delta[i] = h * (from.velocity[i] + h / 2 * delta[i]);
        to.place[i] += delta[i];
    }
    for (int part = 1; part < parts; ++part) {
        const Vector a = Acceleration(to.place);
        for (std::size_t i = 0; i < delta.size(); ++i) {
            delta[i] += h * h * a[i];
            to.place[i] += delta[i];
        }
    }
    const Vector a = Acceleration(to.place);
    for (std::size_t i = 0; i < delta.size(); ++i) to.velocity[i] = delta[i] / h + h / 2 * a[i];
    return to;
}

// One step, extrapolated to infinitely many parts (Aitken and Neville in the square of the part).
State Step(const State& from, Real step) {
    std::vector<State> row;
    for (int column = 0; column < kColumns; ++column) {
        const int parts = column + 1;
        State last = Stoermer(from, step, parts);
        for (int back = 0; back < column; ++back) {
            const Real ratio = Real(parts) / Real(column - back);
            const Real divisor = ratio * ratio - 1;
            State& older = row[static_cast<std::size_t>(back)];
            for (std::size_t i = 0; i < last.place.size(); ++i) {
                const Real place = last.place[i] + (last.place[i] - older.place[i]) / divisor;
                const Real velocity = last.velocity[i] + (last.velocity[i] - older.velocity[i]) / divisor;
                older.place[i] = last.place[i];
                older.velocity[i] = last.velocity[i];
                last.place[i] = place;
                last.velocity[i] = velocity;
            }
        }
        row.push_back(last);
    }
    return row.back();
}

State ReadStart(const char* path) {
    State state;
    std::ifstream file(path);
    std::size_t body = 0;
    masses[0] = 1 + kInnerMasses;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream cells(line);
        std::string name;
        Real mass = 0;
        cells >> name >> mass;
        if (++body >= kBodies) break;
        masses[body] = 1 / mass;
        for (std::size_t axis = 0; axis < 3; ++axis) cells >> state.place[3 * body + axis];
        for (std::size_t axis = 0; axis < 3; ++axis) cells >> state.velocity[3 * body + axis];
        for (std::size_t axis = 0; axis < 3; ++axis) {
            state.place[axis] -= masses[body] * state.place[3 * body + axis] / masses[0];
            state.velocity[axis] -= masses[body] * state.velocity[3 * body + axis] / masses[0];
        }
        if (!cells) body = kBodies;
    }
    if (body != kBodies - 1) {
        std::cerr << path << " does not hold the start values of five bodies.\n";
        std::exit(1);
    }
    return state;
}

// Where a body is sampled: the Chebyshev nodes of a piece.
double NodeDay(const Pieces& pieces, int piece, int node) {
    const double length = (kLastDay - kFirstDay) / pieces.count;
    const double place = std::cos(std::numbers::pi * (node + 0.5) / pieces.coefficients);
    return kFirstDay + length * (piece + 0.5 + 0.5 * place);
}

using Samples = std::map<double, Vector>;

void Integrate(State state, Samples& samples, bool forward) {
    Real now = kEpoch;
    const auto go = [&](double day) {
        while (now != Real(day)) {
            const Real left = Real(day) - now;
            const Real step = std::abs(left) <= kLongestStep ? left : std::copysign(kLongestStep, left);
            state = Step(state, step);
            now = std::abs(left) <= kLongestStep ? Real(day) : now + step;
        }
        samples[day] = state.place;
    };
    std::vector<double> days;
    for (const auto& sample : samples) {
        if ((sample.first >= kEpoch) == forward) days.push_back(sample.first);
    }
    if (forward) {
        for (const double day : days) go(day);
    } else {
        for (auto day = days.rbegin(); day != days.rend(); ++day) go(*day);
    }
}

void WriteTable(std::size_t body, const Pieces& pieces, const Samples& samples) {
    std::printf("\n// %d pieces\nconstexpr OrbitCoefficient k%sCoefficients[] = {\n", pieces.count,
                pieces.name);
    const int n = pieces.coefficients;
    for (int piece = 0; piece < pieces.count; ++piece) {
        for (int k = 0; k < n; ++k) {
            std::array<Real, 3> sum{};
            for (int node = 0; node < n; ++node) {
                const Vector& place = samples.at(NodeDay(pieces, piece, node));
                const Real weight =
                    std::cos(std::numbers::pi_v<Real> * k * (node + 0.5L) / n) * (k == 0 ? 1 : 2) / n;
                for (std::size_t axis = 0; axis < 3; ++axis) sum[axis] += weight * place[3 * body + axis];
            }
            std::printf("%s{%lld, %lld, %lld},%s", k % kToALine == 0 ? "    " : " ",
                        std::llround(sum[0] * kUnits), std::llround(sum[1] * kUnits),
                        std::llround(sum[2] * kUnits),
                        k % kToALine == kToALine - 1 || k == n - 1 ? "\n" : "");
        }
    }
    std::printf("};\n");
}

constexpr const char* kHead =
    R"(// clang-format off
// Barycentric places of Jupiter to Pluto (their systems) from 1600 to 2200: Chebyshev coefficients of x, y and z,
// axes of the ICRS, units of 1e-9 astronomical unit. An integration of Newton's law from start values that
// were fitted to JPL's ephemerides (United States government work).
// Made by tools/modern_tables/integrate_outer.cpp; see its README.

#include "astro/modern/series_tables.h"

namespace tolvanis::modern {
namespace {
)";

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: integrate_outer START_VALUES\n";
        return 2;
    }
    const State start = ReadStart(argv[1]);
    Samples samples;
    for (const Pieces& pieces : kPieces) {
        for (int piece = 0; piece < pieces.count; ++piece) {
            for (int node = 0; node < pieces.coefficients; ++node) samples[NodeDay(pieces, piece, node)];
        }
    }
    Integrate(start, samples, true);
    Integrate(start, samples, false);
    std::printf("%s", kHead);
    for (std::size_t body = 1; body < kBodies; ++body) WriteTable(body, kPieces[body - 1], samples);
    std::printf("\n}  // namespace\n\n");
    for (const auto& [name, count, coefficients] : kPieces) {
        std::printf("const OrbitPieces k%sOrbit = {k%sCoefficients, %d};\n", name, name, coefficients);
    }
    std::printf("\n}  // namespace tolvanis::modern\n");
}
