// The modern theory against published examples, other ephemerides and its own definitions. Stands against a
// wrong sign, frame, unit or time scale anywhere between the series and the chart, and against any later
// change.
#include <array>
#include <cmath>

#include "apparent_positions.h"
#include "astro/derived_points.h"
#include "astro/modern/apparent_places.h"
#include "astro/modern/delta_t.h"
#include "astro/modern/sine_batch.h"
#include "astro/time_frame.h"
#include "chart/angles.h"
#include "support.h"

namespace tolvanis {
namespace {

using modern::kRadiansPerArcSecond;
using modern::kRadiansPerDegree;

constexpr double kArcSecond = 1.0 / 3600.0;  // degrees
constexpr double kSecondsPerDay = 86400.0;

modern::ApparentSky SkyAt(double tt) {
    return modern::ComputeApparentSky(tt, modern::ComputeNutation(tt));
}

// A moment of the calendar in Universal Time, as a Julian day.
double Day(int year, int month, double day) {
    return JulianDayNumberOf(year, month, static_cast<int>(day)) - 0.5 + day - std::floor(day);
}

modern::ApparentSky SkyAtUniversalTime(double ut) {
    return SkyAt(ut + modern::DeltaT(ut) / kSecondsPerDay);
}

TEST(ModernSines, AreTheLibrarysInEveryQuarterAndFarOut) {
    modern::Batch angles{};
    modern::Batch sines;
    modern::Batch cosines;
    for (const double scale : {1.0, 1e3, 1e5, 4e7}) {
        for (std::size_t i = 0; i < angles.size(); ++i) {
            angles[i] = scale * std::sin(0.7 * static_cast<double>(i) + scale);
        }
        modern::SinesAndCosines(angles, angles.size(), sines, cosines);
        for (std::size_t i = 0; i < angles.size(); ++i) {
            EXPECT_NEAR(sines[i], std::sin(angles[i]), 1e-15) << angles[i];
            EXPECT_NEAR(cosines[i], std::cos(angles[i]), 1e-15) << angles[i];
        }
    }
}

// The values by which the IAU's SOFA collection tests its routines.
TEST(ModernEarth, AgreesWithTheTestValuesOfSofa) {
    const modern::Nutation nutation = modern::ComputeNutation(2400000.5 + 53736.0);
    EXPECT_NEAR(nutation.longitude, -0.9632552291148362783e-5, 1e-13);
    EXPECT_NEAR(nutation.obliquity, 0.4063197106621159367e-4, 1e-13);
    EXPECT_NEAR(modern::MeanObliquityOfDate(2400000.5 + 54388.0), 0.4090749229387258204, 1e-14);

    const modern::Rotation ecliptic = modern::MeanEclipticOfDate(2456165.5 + 0.401182685);
    const std::array<double, 9> expected = {
        0.9999952427708701137,    -0.2829062057663042347e-2, -0.1229163741100017629e-2,
        0.3084546876908653562e-2, 0.9174891871550392514,     0.3977487611849338124,
        0.2488512951527405928e-5, -0.3977506604161195467,    0.9174935488232863071};
    std::size_t i = 0;
    for (const modern::Vector& row : {ecliptic.x, ecliptic.y, ecliptic.z}) {
        for (const double element : {row.x, row.y, row.z}) EXPECT_NEAR(element, expected[i++], 1e-14);
    }
    // With the nutation of IAU 2000A, which differs by a thousandth of an arc second.
    constexpr double kDay = 2400000.5 + 53736.0;
    EXPECT_NEAR(modern::GreenwichApparentSiderealTime(kDay, kDay, nutation), 1.754166137675019159, 2e-9);
}

// Meeus, Astronomical Algorithms (second edition), examples 22.a and 12.a: 1987 April 10.
TEST(ModernEarth, AgreesWithMeeus) {
    const double tt = Day(1987, 4, 10);
    const modern::Nutation nutation = modern::ComputeNutation(tt);
    EXPECT_NEAR(nutation.longitude / kRadiansPerArcSecond, -3.788, 0.05);
    EXPECT_NEAR(nutation.obliquity / kRadiansPerArcSecond, 9.443, 0.05);
    const double obliquity = (modern::MeanObliquityOfDate(tt) + nutation.obliquity) / kRadiansPerDegree;
    EXPECT_NEAR(obliquity, 23.0 + 26.0 / 60.0 + 36.850 * kArcSecond, 0.05 * kArcSecond);
    const double hours = modern::GreenwichApparentSiderealTime(tt, tt, nutation) / kRadiansPerDegree / 15.0;
    EXPECT_NEAR(hours, 13.0 + 10.0 / 60.0 + 46.1351 / 3600.0, 0.01 / 3600.0);
}

// Neither the values nor the slopes of the table's pieces jump where they meet, but for the ten days that the
// years' numbers leave out in 1582.
TEST(ModernDeltaT, IsSmooth) {
    constexpr double kStep = 36.525;  // days
    for (double day = Day(-700, 1, 1); day < Day(2018, 10, 1); day += kStep / 3.0) {
        if (std::abs(day - Day(1582, 10, 15)) < 2.0 * kStep) continue;
        const double bend =
            modern::DeltaT(day - kStep) - 2.0 * modern::DeltaT(day) + modern::DeltaT(day + kStep);
        ASSERT_NEAR(bend, 0.0, 0.02) << "Julian day " << day;
    }
}

TEST(ModernDeltaT, FollowsTheTableAndThePublishedMeanBeyondIt) {
    const struct {
        int year;
        double seconds;
    } table[] = {{400, 6535.116}, {1000, 1650.393}, {1500, 292.343}, {1650, 43.952}, {1900, -1.977},
                 {1953, 30.002},  {1977, 47.291},   {2001, 64.083},  {2016, 68.109}, {2019, 69.24}};
    for (const auto& row : table)
        EXPECT_NEAR(modern::DeltaT(Day(row.year, 1, 1)), row.seconds, 0.03) << row.year;
    // Inside a row: the observed values of 1980.0, 1990.0 and 2000.0.
    EXPECT_NEAR(modern::DeltaT(Day(1980, 1, 1)), 50.54, 0.2);
    EXPECT_NEAR(modern::DeltaT(Day(1990, 1, 1)), 56.86, 0.2);
    EXPECT_NEAR(modern::DeltaT(Day(2000, 1, 1)), 63.83, 0.1);
    for (const int year : {2040, 2090}) {
        const double t = (year - 1825.0) / 100.0;
        const double excess =
            0.00172 * t - 0.0035 * std::sin(2.0 * kPi * (t + 0.75) / 14.0);  // seconds a day
        const double day = Day(year, 1, 1);
        EXPECT_NEAR((modern::DeltaT(day + 50.0) - modern::DeltaT(day - 50.0)) / 100.0, excess, 1e-7) << year;
    }
    EXPECT_NEAR(modern::DeltaT(Day(2019, 1, 1) + 0.01), modern::DeltaT(Day(2019, 1, 1) - 0.01), 1e-3);
}

// Meeus, Astronomical Algorithms, with the complete theories: examples 25.b, 33.a and 47.a.
TEST(ModernPlaces, AgreeWithMeeus) {
    const modern::ApparentPlace sun = SkyAt(Day(1992, 10, 13)).bodies[kSun];
    EXPECT_NEAR(sun.longitude, 199.0 + 54.0 / 60.0 + 21.56 * kArcSecond, 0.1 * kArcSecond);
    EXPECT_NEAR(sun.latitude, 0.72 * kArcSecond, 0.05 * kArcSecond);

    const modern::ApparentPlace moon = SkyAt(Day(1992, 4, 12)).bodies[kMoon];
    EXPECT_NEAR(moon.longitude, 133.0 + 10.0 / 60.0, 0.6 * kArcSecond);
    EXPECT_NEAR(moon.latitude, -(3.0 + 13.0 / 60.0 + 45.0 * kArcSecond), 0.6 * kArcSecond);

    const double tt = Day(1992, 12, 20);
    const modern::ApparentPlace venus = SkyAt(tt).bodies[kVenus];
    const double tilt = (modern::MeanObliquityOfDate(tt) + modern::ComputeNutation(tt).obliquity);
    const double l = venus.longitude * kRadiansPerDegree;
    const double b = venus.latitude * kRadiansPerDegree;
    const double x = std::cos(b) * std::cos(l);
    const double y = std::cos(b) * std::sin(l) * std::cos(tilt) - std::sin(b) * std::sin(tilt);
    EXPECT_NEAR(Norm360(std::atan2(y, x) / kRadiansPerDegree), 15.0 * (21.0 + 4.0 / 60.0 + 41.454 / 3600.0),
                0.2 * kArcSecond);
    EXPECT_NEAR(DeclinationOf(venus.longitude, venus.latitude, tilt / kRadiansPerDegree),
                -(18.0 + 53.0 / 60.0 + 16.84 * kArcSecond), 0.2 * kArcSecond);
}

// Seasons and phases of the Moon as the Astronomical Almanac gives them, to the minute of Universal Time.
TEST(ModernPlaces, AgreeWithTheAlmanac) {
    const struct {
        int year, month, day, hour, minute;
        double sun;    // its longitude, or
        double phase;  // that of the Moon from it
    } events[] = {{2000, 3, 20, 7, 35, 0, -1},    {2000, 6, 21, 1, 48, 90, -1},
                  {2000, 9, 22, 17, 28, 180, -1}, {2000, 12, 21, 13, 37, 270, -1},
                  {2000, 1, 6, 18, 14, -1, 0},    {2000, 1, 14, 13, 34, -1, 90},
                  {2000, 1, 21, 4, 40, -1, 180},  {2000, 1, 28, 7, 57, -1, 270}};
    for (const auto& e : events) {
        const double ut = Day(e.year, e.month, e.day + (e.hour + e.minute / 60.0) / 24.0);
        const modern::ApparentSky sky = SkyAtUniversalTime(ut);
        const double elongation = sky.bodies[kMoon].longitude - sky.bodies[kSun].longitude;
        const double found = e.sun >= 0 ? sky.bodies[kSun].longitude : elongation;
        const double motion = sky.bodies[e.sun >= 0 ? kSun : kMoon].dailyMotion;
        constexpr double kMinutesInDay = 1440.0;
        const double minutes = ArcBetween(found, std::max(e.sun, e.phase)) / motion * kMinutesInDay;
        EXPECT_NEAR(minutes, 0, 0.6) << e.month << "/" << e.day;
    }
}

// How far the theory may be from another ephemeris, arc seconds.
struct Limit {
    int body;
    double de405;
    double series;
};
constexpr std::array kLimits = {
    Limit{kSun, 0.1, 0.1},   Limit{kMoon, 0.15, 0.15}, Limit{kMercury, 0.15, 0.15}, Limit{kVenus, 0.25, 0.3},
    Limit{kMars, 0.35, 0.3}, Limit{kJupiter, 0.25, 1}, Limit{kSaturn, 0.2, 0.6},    Limit{kUranus, 0.5, 2.3},
    Limit{kNeptune, 1.1, 4}, Limit{kPluto, 1.8, 3.5}};

TEST(ModernPlaces, AgreeWithOtherEphemerides) {
    const auto references = ReadApparentReferences(TEST_DATA_DIR "/apparent_positions.tsv");
    ASSERT_GT(references.size(), 800U);
    int fromDe405 = 0;
    for (const ApparentReference& reference : references) {
        const modern::ApparentSky sky = SkyAt(reference.terrestrialDay);
        fromDe405 += reference.fromDe405;
        for (const Limit& limit : kLimits) {
            if (!reference.longitude[limit.body]) continue;
            const modern::ApparentPlace& place = sky.bodies[limit.body];
            const double allowed = (reference.fromDe405 ? limit.de405 : limit.series) * kArcSecond;
            EXPECT_NEAR(ArcBetween(place.longitude, *reference.longitude[limit.body]), 0, allowed)
                << PointName(limit.body) << " " << reference.terrestrialDay;
            EXPECT_NEAR(place.latitude, *reference.latitude[limit.body], 0.4 * kArcSecond)
                << PointName(limit.body) << " " << reference.terrestrialDay;
        }
    }
    EXPECT_GT(fromDe405, 190);
}

// Also across 0 Aries, at stations, and in years whose places come from series alone.
TEST(ModernPlaces, DailyMotionIsTheChangeOfTheLongitude) {
    constexpr double kStep = 0.005;
    for (double day = 2000000.5; day < 2520000.0; day += 7919.3) {
        const modern::ApparentSky sky = SkyAt(day);
        const modern::ApparentSky before = SkyAt(day - kStep);
        const modern::ApparentSky after = SkyAt(day + kStep);
        for (int body = kSun; body <= kMoon; ++body) {
            const double change = ArcBetween(after.bodies[body].longitude, before.bodies[body].longitude);
            const double allowed = body == kMoon ? 2e-4 : 1e-5;
            EXPECT_NEAR(sky.bodies[body].dailyMotion, change / (2.0 * kStep), allowed)
                << PointName(body) << day;
        }
    }
}

// The orbits that are stored and the series that are used outside their years meet.
TEST(ModernPlaces, GoOnAtTheEndsOfTheStoredOrbits) {
    for (const double end : {2305447.5, 2524593.5}) {
        const modern::ApparentSky inside = SkyAt(end + (end < 2400000.0 ? 0.001 : -0.001));
        const modern::ApparentSky outside = SkyAt(end + (end < 2400000.0 ? -0.001 : 0.001));
        EXPECT_FALSE(inside.plutoFromOldSeries);
        EXPECT_TRUE(outside.plutoFromOldSeries);
        for (const int body : {kJupiter, kSaturn, kUranus, kNeptune}) {
            EXPECT_NEAR(ArcBetween(inside.bodies[body].longitude, outside.bodies[body].longitude), 0,
                        8 * kArcSecond)
                << PointName(body) << end;
        }
        EXPECT_NEAR(ArcBetween(inside.bodies[kPluto].longitude, outside.bodies[kPluto].longitude), 0, 5.0);
    }
}

// Where the Moon goes through the ecliptic northward, it stands at its true node.
TEST(ModernPlaces, TheMoonCrossesTheEclipticAtItsTrueNode) {
    int crossings = 0;
    for (double day = 2451545.0; crossings < 12; day += 1.0) {
        double low = day;
        double high = day + 1.0;
        if (SkyAt(low).bodies[kMoon].latitude >= 0 || SkyAt(high).bodies[kMoon].latitude < 0) continue;
        for (int halving = 0; halving < 30; ++halving) {
            const double middle = (low + high) / 2.0;
            (SkyAt(middle).bodies[kMoon].latitude < 0 ? low : high) = middle;
        }
        const modern::ApparentSky sky = SkyAt(low);
        EXPECT_NEAR(ArcBetween(sky.bodies[kMoon].longitude, sky.trueNode), 0, 2 * kArcSecond) << low;
        EXPECT_NEAR(ArcBetween(sky.meanNode.longitude, sky.trueNode), 0, 1.8) << low;
        ++crossings;
    }
}

ChartPositions ModernChart(const std::string& record, HouseSystem system = HouseSystem::Placidus) {
    NatalData natal = NatalOf(record, system);
    natal.Theory = Theory::Modern;
    const auto chart = ComputePositions(natal);
    EXPECT_TRUE(chart) << record << ": " << chart.message();
    return chart ? *chart : ChartPositions{};
}

// Mercury's loop of February and March 2000: stations on 21 February 12:47 and 14 March 20:40 UT.
TEST(ModernChart, RetrogradeTurnsAtTheStations) {
    EXPECT_FALSE(ModernChart("a,21 Feb 2000,12.17,P,0,0,51.30").IsRetrograde(kMercury));
    EXPECT_TRUE(ModernChart("a,21 Feb 2000,1.17,P,0,0,51.30").IsRetrograde(kMercury));
    EXPECT_TRUE(ModernChart("a,14 Mar 2000,8.10,P,0,0,51.30").IsRetrograde(kMercury));
    EXPECT_FALSE(ModernChart("a,14 Mar 2000,9.10,P,0,0,51.30").IsRetrograde(kMercury));
}

TEST(ModernChart, HoldsTheSkyOfItsMoment) {
    const ChartPositions chart = ModernChart("a,21 Jan 2000,4.40,A,0,0,51.30");
    const modern::ApparentSky sky = SkyAtUniversalTime(chart.JulianDay);
    EXPECT_EQ(chart.Theory, Theory::Modern);
    EXPECT_NEAR(chart.DeltaT, 63.8, 0.1);
    EXPECT_NEAR(chart.JulianDay, Day(2000, 1, 21 + 4.0 / 24 + 40.0 / 1440), 1e-9);
    for (int body = kSun; body <= kMoon; ++body) {
        EXPECT_NEAR(chart.PointLongitude[body], sky.bodies[body].longitude, 1e-9);
        EXPECT_NEAR(chart.PointLatitude[body], sky.bodies[body].latitude, 1e-9);
    }
    EXPECT_NEAR(ArcBetween(chart.PointLongitude[kSouthNode], chart.PointLongitude[kNorthNode] + 180), 0,
                1e-9);
    EXPECT_EQ(chart.TrueNodeLongitude, sky.trueNode);
    EXPECT_FALSE(chart.PlutoFromOldSeries);
    EXPECT_TRUE(ModernChart("a,21 Jan 1500,4.40,A,0,0,51.30").PlutoFromOldSeries);
    const ChartPositions classic = ChartOf("a,21 Jan 2000,4.40,A,0,0,51.30");
    EXPECT_EQ(classic.Theory, Theory::Classic);
    EXPECT_EQ(classic.DeltaT, 0.0);
    EXPECT_NE(classic.PointLongitude[kSun], chart.PointLongitude[kSun]);
}

// Sixty births as tools/accuracy/modern_births.py has written them down: any later change of a place or a
// cusp.
TEST(ModernChart, StaysAsItWas) {
    LineReader reader(TEST_DATA_DIR "/modern_births.tsv");
    int births = 0;
    for (std::string line; reader.Next(line);) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream cells(line);
        std::string record, code, cell;
        std::getline(cells, record, '\t');
        std::getline(cells, code, '\t');
        const ChartPositions chart = ModernChart(record, HouseSystemOfCode(code).value());
        std::vector<double> found = {chart.DeltaT, RadToDeg(chart.RAMC), chart.ObliquityDegrees,
                                     chart.TrueNodeLongitude};
        for (int point = 1; point <= kChartPointCount; ++point) found.push_back(chart.PointLongitude[point]);
        for (int position = 1; position <= 12; ++position) found.push_back(chart.HouseCusps[position]);
        for (const double value : found) {
            ASSERT_TRUE(std::getline(cells, cell, '\t')) << record;
            EXPECT_NEAR(ArcBetween(value, LeadingNumber(cell)), 0, 2e-8) << record;
        }
        ++births;
    }
    EXPECT_EQ(births, 60);
}

}  // namespace
}  // namespace tolvanis
