// Writes docs/accuracy.md: how far the program's positions lie from a modern theory, body by body and half
// century by half century.
//
//   accuracy_report TABLE                 prints the page
//   accuracy_report TABLE --check PAGE    exits 1 when the page says anything else

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

#include "chart/angles.h"
#include "reference_positions.h"
#include "text/numbers.h"

using namespace tolvanis;

namespace {

constexpr int kFirstYear = 1800;
constexpr int kSpan = 50;
constexpr int kSpans = 6;
constexpr std::array kBodies = {kSun,     kMoon,   kMercury, kVenus,   kMars,
                                kJupiter, kSaturn, kUranus,  kNeptune, kPluto};

// Differences in arc seconds.
struct Spread {
    int count = 0;
    double worst = 0.0;
    double squares = 0.0;

    void Add(double seconds) {
        ++count;
        worst = std::max(worst, std::abs(seconds));
        squares += seconds * seconds;
    }
    double Rms() const { return std::sqrt(squares / count); }
};

using Table = std::array<PerPoint<Spread>, kSpans>;

Table Measure(const std::vector<ReferencePositions>& references) {
    Table table{};
    for (const ReferencePositions& reference : references) {
        const int span = (reference.year - kFirstYear) / kSpan;
        if (span < 0 || span >= kSpans) continue;
        const PerPoint<double> computed = GeocentricLongitudesAt(reference.julianDay);
        for (const int body : kBodies) {
            if (!reference.longitude[body]) continue;
            const double arc = Norm360(computed[body] - *reference.longitude[body] + 180.0) - 180.0;
            table[static_cast<std::size_t>(span)][body].Add(arc * 3600.0);
        }
    }
    return table;
}

// "23\"" below two minutes of arc, "3.4'" above.
std::string Arc(double seconds) {
    return seconds < 119.5 ? FormatMask(seconds, "#0") + "\"" : FormatMask(seconds / 60.0, "#0.0") + "'";
}

void WriteTable(std::ostream& page, const Table& table) {
    page << "| Body |";
    for (int span = 0; span < kSpans; ++span) {
        page << ' ' << kFirstYear + span * kSpan << "-" << kFirstYear + (span + 1) * kSpan - 1 << " |";
    }
    page << "\n|---|";
    for (int span = 0; span < kSpans; ++span) page << "---|";
    page << "\n";
    for (const int body : kBodies) {
        page << "| " << PointName(body) << " |";
        for (const auto& span : table) {
            const Spread& spread = span[body];
            page << ' ' << (spread.count == 0 ? "-" : Arc(spread.worst) + " / " + Arc(spread.Rms())) << " |";
        }
        page << "\n";
    }
}

void WritePage(std::ostream& page, const std::vector<ReferencePositions>& references) {
    page << R"(# How exact the positions are

Made by `tools/accuracy`; run `cmake --build --preset test --target accuracy_page` to make it again.

The program computes positions from analytical theories: Newcomb's for the Sun, Brown's for the Moon (shortened),
mean orbits with published perturbations for the planets, a series of its own for Pluto. A chart shows minutes of arc
for cusps and seconds for planets; this page says how many of those seconds are real.

Each entry gives the largest and the root-mean-square difference in longitude between this program and a modern
theory (VSOP87 for the Sun and planets, ELP/MPP02 for the Moon, a modern series for Pluto), in seconds (") or
minutes (') of arc. Both were given the same time argument. The reference is geometric and refers to the mean equinox
of date; the Sun is apparent, and the Moon's reference includes nutation, as this program's series do. Measured on
)" << references.size()
         << R"( instants; the table and the way it was made are in `tests/data/reference_positions.tsv`.

)";
    WriteTable(page, Measure(references));
    page << R"(
A denser sample, every 19.5 days from 1900 to 2050, found at the worst moments: Sun 3", Moon 31", Mercury 59", Venus 94"
(close to its inferior conjunctions, when it is nearest to the Earth), Mars 3.6', Jupiter 47", Saturn 2.5', Uranus 49",
Neptune 36", Pluto 6.5'.

## What that means for a chart

- From 1900 to 2050 every planet's degree and, but for Mars, Saturn and Pluto at their worst, its minute can be trusted to
  one unit. The Moon moves half a minute of arc in one minute of clock time, so the birth time is nearly always the larger
  error.
- House cusps and angles depend on the birth time and place far more than on the theory: four minutes of clock time turn
  the Midheaven by a degree. Longitudes and latitudes of places are kept in single precision, which is worth less than
  a twentieth of a second of arc.
- Placidus cusps are found in ten rounds. Up to 56 degrees of latitude they have settled; at 60 degrees the intermediate
  cusps may be half a minute off, at 66 degrees up to 19 minutes.

## What the theory leaves out

- **Delta T.** Universal Time is used as if it were the uniform time of the theories. The difference was a minute of time
  in 1990, is about 70 seconds today, was near zero around 1900, and grows to hours in the first millennium: by then the
  Moon, which moves a degree in two hours, is off by more than a degree, the Sun by a few minutes of arc.
- **Light time.** A planet is shown where it is, not where its light comes from. The largest effect is on Mercury and
  Venus, up to some 33" and 24".
- **Nutation and aberration**, but for the terms inside the Sun's and the Moon's series: up to 17" and 20".
- **Small perturbations** of Mercury, Venus and Mars, whose orbits are plain ellipses with slowly turning elements. Away
  from the present the turning is less exact: allow a minute of arc more for each century before 1800.
- **Pluto's** series is meant for 1885 to 2099. Earlier it drifts: by 0.4 degree in the 1850s and by more than a degree
  before 1800.
- **The true node** is the mean node with its five largest terms, good to about a tenth of a degree.
)";
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool check = arguments.size() == 3 && arguments[1] == "--check";
    if (arguments.size() != 1 && !check) {
        std::cerr << "Usage: accuracy_report TABLE [--check PAGE]\n";
        return 2;
    }
    const auto references = ReadReferencePositions(arguments[0]);
    if (references.empty()) {
        std::cerr << "There are no positions in " << arguments[0] << ".\n";
        return 1;
    }
    std::ostringstream page;
    WritePage(page, references);
    if (!check) {
        std::cout << page.str();
        return 0;
    }
    std::ifstream file(arguments[2], std::ios::binary);
    const std::string written((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (written == page.str()) return 0;
    std::cerr << arguments[2] << " does not say what is measured now; make it again.\n";
    return 1;
}
