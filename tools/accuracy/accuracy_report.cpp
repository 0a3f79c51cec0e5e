// Writes docs/accuracy.md: how far the program's positions lie from modern theories and ephemerides, body by
// body and half century by half century.
//
//   accuracy_report GEOMETRIC APPARENT                 prints the page
//   accuracy_report GEOMETRIC APPARENT --check PAGE    exits 1 when the page says anything else
//
// GEOMETRIC and APPARENT are the tables that tools/reference_positions makes.

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <sstream>

#include "apparent_positions.h"
#include "astro/epochs.h"
#include "astro/modern/apparent_places.h"
#include "astro/modern/delta_t.h"
#include "astro/moon_series.h"
#include "chart/angles.h"
#include "reference_positions.h"
#include "text/numbers.h"

using namespace tolvanis;

namespace {

constexpr int kFirstYear = 1800;
constexpr int kSpan = 50;
constexpr std::size_t kSpans = 8;
constexpr double kDay1800 = 2378496.5;  // 1800 January 1, 0h
constexpr double kDaysPerYear = 365.2425;
constexpr double kSecondsPerDay = 86400.0;
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
using Longitudes = PerPoint<double>;
using Reference = PerPoint<std::optional<double>>;

double ArcSeconds(double from, double to) {
    return SignedArc(from, to) * 3600.0;
}

void Add(Table& table, double day, const Longitudes& computed, const Reference& reference) {
    const auto span = static_cast<std::size_t>((day - kDay1800) / kDaysPerYear / kSpan);
    if (span >= kSpans) return;
    for (const int body : kBodies) {
        if (reference[body]) table[span][body].Add(ArcSeconds(*reference[body], computed[body]));
    }
}

Table MeasureSeries(const std::vector<ReferencePositions>& references) {
    Table table{};
    for (const ReferencePositions& reference : references) {
        Add(table, reference.julianDay, GeocentricLongitudesAt(reference.julianDay), reference.longitude);
    }
    return table;
}

// What a birth gets: the classic theory takes Universal Time as it is.
Longitudes ClassicLongitudes(double tt) {
    return GeocentricLongitudesAt(tt - modern::DeltaT(tt) / kSecondsPerDay);
}

modern::ApparentSky ModernSky(double tt) {
    return modern::ComputeApparentSky(tt, modern::ComputeNutation(tt));
}

Longitudes ModernLongitudes(double tt) {
    const modern::ApparentSky sky = ModernSky(tt);
    Longitudes longitudes;
    for (const int body : kBodies) longitudes[body] = sky.bodies[body].longitude;
    return longitudes;
}

Table MeasureApparent(const std::vector<ApparentReference>& references, Longitudes (*theory)(double)) {
    Table table{};
    for (const ApparentReference& reference : references) {
        Add(table, reference.terrestrialDay, theory(reference.terrestrialDay), reference.longitude);
    }
    return table;
}

// "0.07\"" below ten seconds of arc where that much is known, "23\"" below two minutes, "3.4'" above.
std::string Arc(double seconds, bool fine) {
    if (fine && seconds < 9.95) return FormatMask(seconds, "0.00") + "\"";
    return seconds < 119.5 ? FormatMask(seconds, "#0") + "\"" : FormatMask(seconds / 60.0, "#0.0") + "'";
}

void WriteTable(std::ostream& page, const Table& table, std::size_t spans, bool fine) {
    page << "| Body |";
    for (std::size_t span = 0; span < spans; ++span) {
        const int first = kFirstYear + static_cast<int>(span) * kSpan;
        page << ' ' << first << "-" << first + kSpan - 1 << " |";
    }
    page << "\n|---|";
    for (std::size_t span = 0; span < spans; ++span) page << "---|";
    page << "\n";
    for (const int body : kBodies) {
        page << "| " << PointName(body) << " |";
        for (std::size_t span = 0; span < spans; ++span) {
            const Spread& spread = table[span][body];
            page << ' '
                 << (spread.count == 0 ? "-" : Arc(spread.worst, fine) + " / " + Arc(spread.Rms(), fine))
                 << " |";
        }
        page << "\n";
    }
    page << "\n";
}

// The mean size of a body's motion in a minute of clock time, arc seconds.
double MotionInAMinute(const std::vector<ApparentReference>& references, int body) {
    constexpr double kArcSecondsInDegree = 3600.0;
    constexpr double kMinutesInDay = 1440.0;
    double sum = 0.0;
    for (const ApparentReference& reference : references) {
        sum += std::abs(ModernSky(reference.terrestrialDay).bodies[body].dailyMotion);
    }
    return sum / static_cast<double>(references.size()) * kArcSecondsInDegree / kMinutesInDay;
}

double WorstOfOurTime(const Table& table, int body) {
    constexpr std::size_t kFirst = 2;  // 1900 to 2049
    constexpr std::size_t kLast = 4;
    double worst = 0.0;
    for (std::size_t span = kFirst; span <= kLast; ++span) worst = std::max(worst, table[span][body].worst);
    return worst;
}

std::string ClockTime(double minutes) {
    if (minutes < 1.0) return FormatMask(minutes * 60.0, "#0.0") + " s";
    return minutes < 90.0 ? FormatMask(minutes, "#0") + " min" : FormatMask(minutes / 60.0, "#0") + " h";
}

void WriteWorth(std::ostream& page, const std::vector<ApparentReference>& references, const Table& classic,
                const Table& modern) {
    page << "| Body | moves in a minute | classic: at most | worth | modern: at most | worth "
            "|\n|---|---|---|---|---|---|\n";
    for (const int body : kBodies) {
        const double motion = MotionInAMinute(references, body);
        page << "| " << PointName(body) << " | " << FormatMask(motion, "0.00") << "\"";
        for (const Table* table : {&classic, &modern}) {
            const double worst = WorstOfOurTime(*table, body);
            page << " | " << Arc(worst, table == &modern) << " | " << ClockTime(worst / motion);
        }
        page << " |\n";
    }
    page << "\n";
}

// The classic true node against the modern one, 1900 to 2049; both from the mean equinox.
Spread MeasureTrueNode() {
    constexpr double kStep = 3.17;  // days
    constexpr double kDay1900 = kDay1800 + 100 * kDaysPerYear;
    Spread spread;
    for (double day = kDay1900; day < kDay1900 + 150 * kDaysPerYear; day += kStep) {
        const double nutation = modern::ComputeNutation(day).longitude / modern::kRadiansPerDegree;
        const double classic = ComputeMoon((day - kEpoch1900) / kDaysPerCentury).trueNode;
        spread.Add(ArcSeconds(ModernSky(day).trueNode - nutation, classic));
    }
    return spread;
}

void WriteTrueNode(std::ostream& page) {
    const Spread spread = MeasureTrueNode();
    page << "- **The true node** is the mean node with its five largest terms. From 1900 to 2049 it lies "
         << FormatMask(spread.Rms() / 3600.0, "0.00") << " degree from that of\n"
         << "  the modern theory (root mean square), " << FormatMask(spread.worst / 3600.0, "0.0")
         << " at worst.\n";
}

// Standard errors of Delta T in seconds, as its authors publish them with their table.
struct KnownTo {
    int year;
    double seconds;
};
constexpr std::array kKnownTo = {
    KnownTo{100, 80}, KnownTo{500, 40},   KnownTo{1000, 15},  KnownTo{1620, 20},   KnownTo{1700, 5},
    KnownTo{1750, 2}, KnownTo{1800, 0.5}, KnownTo{1850, 0.1}, KnownTo{1900, 0.05}, KnownTo{2000, 0.05},
    KnownTo{2030, 2}, KnownTo{2050, 6},   KnownTo{2100, 10},  KnownTo{2200, 20}};

void WriteDeltaT(std::ostream& page) {
    constexpr double kMoonInASecond = 0.549;  // arc seconds
    page << "| Year | Delta T | known to | the Moon moves meanwhile |\n|---|---|---|---|\n";
    for (const KnownTo& known : kKnownTo) {
        const double day = known.year < 1582 ? (known.year + 4712.0) * 365.25
                                             : kDay1800 + (known.year - kFirstYear) * kDaysPerYear;
        page << "| " << known.year << " | " << FormatMask(modern::DeltaT(day), "#0.0") << " s | "
             << NumberText(known.seconds) << " s | " << Arc(known.seconds * kMoonInASecond, true) << " |\n";
    }
    page << "\n";
}

void WritePage(std::ostream& page, const std::vector<ReferencePositions>& geometric,
               const std::vector<ApparentReference>& apparent) {
    const Table modern = MeasureApparent(apparent, ModernLongitudes);
    const Table classic = MeasureApparent(apparent, ClassicLongitudes);
    page << R"(# How exact the positions are

Made by `tools/accuracy`; run `cmake --build --preset test --target accuracy_page` to make it again.

The program has two theories. The **classic** one, the default, computes positions from Newcomb's theory of the Sun,
Brown's of the Moon (shortened), mean orbits with published perturbations for the planets and a series of its own for
Pluto, and leaves out what the last section names. The **modern** one ("Change", "Positions", "Modern"; option 26;
`--theory modern`) gives apparent places: VSOP87 for Mercury to Mars and the Sun, ELP/MPP02 for the Moon, an integration
fitted to JPL's ephemerides for Jupiter to Pluto; Delta T, light time, the deflection of light by the Sun, aberration,
IAU 2006 precession and IAU 2000B nutation. Houses and angles then rest on apparent sidereal time and the true
obliquity. A chart shows minutes of arc for cusps and seconds for planets; this page says how many of those seconds
are real.

## Both theories against other ephemerides

Each entry gives the largest and the root-mean-square difference in longitude between a chart of this program and the
apparent place that the reference gives for the same moment, in seconds (") or minutes (') of arc. Measured on
)" << apparent.size()
         << R"( moments; the table and the way it was made are in `tests/data/apparent_positions.tsv`.

From 1960 to 2059 the reference is JPL's ephemeris DE405, an integration of its own (the Moon's series here was fitted to
it). In other years it is VSOP87 and ELP/MPP02 in full: for the Sun, the Moon and Mercury to Mars that shows what was cut
off these same series; for Jupiter to Neptune it compares two independent theories, of which VSOP87 is the poorer one far
from 1950 (within DE405's years it is off by up to 1.6" for Uranus and 3.2" for Neptune). The orbits of the modern theory
are fitted to a later ephemeris of JPL's, so that part of what stands here for Neptune and Pluto is the difference between
that and DE405. The reference's reduction to apparent places, with the nutation of IAU 2000A, is that of the ERFA library.

The modern theory:

)";
    WriteTable(page, modern, kSpans, true);
    page << R"(The classic theory, as a birth meets it, that is with all that it leaves out:

)";
    WriteTable(page, classic, kSpans, false);
    page << R"(## What each error is worth in clock time

The time in which a body moves, on the average, as far as a theory is off at most between 1900 and 2049. A birth time is
seldom known to better than a minute or two: where less than that stands here, the theory is not what limits the chart.

)";
    WriteWorth(page, apparent, classic, modern);
    page
        << R"(- The Moon is the one to look at: at half a minute of arc in a minute of clock time its classic error is worth one to two
  minutes, the modern one a fraction of a second.
- An Ascendant moves by a degree in about four minutes of clock time (in some signs and latitudes in one), so cusps and
  angles depend on the birth time and place far more than on the theory. Both theories agree in the Midheaven to half a
  minute of arc, two seconds of clock time. Longitudes and latitudes of places are kept in single precision, which is
  worth less than a twentieth of a second of arc.
- Returns and progressed dates turn arc into time: an error of 1" in the Sun moves a solar return by 24 seconds.
- Placidus cusps are found in ten rounds in the classic theory. Up to 56 degrees of latitude they have settled; at 60
  degrees the intermediate cusps may be half a minute off, at 66 degrees up to 19 minutes. In the modern theory they are
  brought to the end at every latitude that is allowed.

## How far Delta T is known

The planets keep a uniform time; clocks keep to the turning Earth. The difference, Delta T, is known from timed
observations since 1620 and before that from eclipses; for the future it can only be guessed. The modern theory takes it
from Morrison, Stephenson, Hohenkerk and Zawilski (2021), and a modern listing shows it. What it is not known to, no
theory can mend:

)";
    WriteDeltaT(page);
    page << R"(## The classic series by themselves

Here the series of the classic theory are compared with a modern theory of the same geometric places: both were given the
same time argument, and nothing is left out on one side only. The reference refers to the mean equinox of date; the Sun
is apparent, and the Moon's reference includes nutation, as this program's series do. Measured on )"
         << geometric.size() << R"( instants;
the table and the way it was made are in `tests/data/reference_positions.tsv`.

)";
    constexpr std::size_t kSpansOfSeries = 6;
    WriteTable(page, MeasureSeries(geometric), kSpansOfSeries, false);
    page
        << R"(A denser sample, every 19.5 days from 1900 to 2050, found at the worst moments: Sun 3", Moon 31", Mercury 59", Venus 94"
(close to its inferior conjunctions, when it is nearest to the Earth), Mars 3.6', Jupiter 47", Saturn 2.5', Uranus 49",
Neptune 36", Pluto 6.5'. From 1900 to 2050 every planet's degree and, but for Mars, Saturn and Pluto at their worst, its
minute can be trusted to one unit.

## What the classic theory leaves out

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
)";
    WriteTrueNode(page);
    page << R"(
## What the modern theory leaves out

- **Years before 1600.** Jupiter to Neptune then come from VSOP87 in full (some seconds of arc), and Pluto from the classic
  series, which is off by degrees; the listing says so. Delta T limits the Moon anyway.
- **The observer's place.** Positions are seen from the Earth's centre, as charts are: from its surface the Moon stands up to
  a degree elsewhere, the Sun 9".
- **The true node** is that of the orbit which the Moon describes at the instant, exact to some seconds of arc. The North
  Node of a chart is the mean node in both theories.
- **The last hundredths of a second of arc**: the planetary terms of nutation, the difference between two kinds of
  dynamical time, the smallest terms of the series.
)";
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool check = arguments.size() == 4 && arguments[2] == "--check";
    if (arguments.size() != 2 && !check) {
        std::cerr << "Usage: accuracy_report GEOMETRIC APPARENT [--check PAGE]\n";
        return 2;
    }
    const auto geometric = ReadReferencePositions(arguments[0]);
    const auto apparent = ReadApparentReferences(arguments[1]);
    if (geometric.empty() || apparent.empty()) {
        std::cerr << "There are no positions in " << arguments[geometric.empty() ? 0 : 1] << ".\n";
        return 1;
    }
    std::ostringstream page;
    WritePage(page, geometric, apparent);
    if (!check) {
        std::cout << page.str();
        return 0;
    }
    std::ifstream file(arguments[3], std::ios::binary);
    const std::string written((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (written == page.str()) return 0;
    std::cerr << arguments[3] << " does not say what is measured now; make it again.\n";
    return 1;
}
