#include <cmath>
#include <map>

#include "astro/moon_series.h"
#include "astro/orbit.h"
#include "astro/pluto_series.h"
#include "astro/sun_series.h"
#include "chart/angles.h"
#include "reference_positions.h"
#include "support.h"

namespace tolvanis {
namespace {

double CenturiesAt(double julianDay) {
    return (julianDay - 2415020.0) / 36525.0;
}

// Meeus, Astronomical Algorithms, 2nd edition, examples 25.b and 47.a (the Moon's longitude with its nutation
// of 16.6").
TEST(Positions, PublishedSunAndMoon) {
    EXPECT_NEAR(SunLongitude(CenturiesAt(2448908.5)), 199.906016, 4.0 / 3600);
    const MoonPosition moon = ComputeMoon(CenturiesAt(2448724.5));
    EXPECT_NEAR(moon.longitude, 133.167265, 40.0 / 3600);
    EXPECT_NEAR(moon.latitude, -3.229126, 15.0 / 3600);
    // Meeus, chapter 47: mean ascending node 274.400655 on the same day; the osculating node within 0.2
    // degree of it and its five terms.
    EXPECT_NEAR(moon.meanNode, 274.400655, 0.002);
    EXPECT_LT(std::abs(ArcBetween(moon.trueNode, moon.meanNode)), 1.9);
    EXPECT_NEAR(ComputeMoon(0).meanNode, 259.183275, 1e-12);
}

// Meeus, example 37.a: 1992 October 13.0, l = 232.74071, b = 14.58782, r = 29.711111, there for J2000; here
// the equinox is 1950.0, 0.698 degree away.
TEST(Positions, PublishedPluto) {
    const HeliocentricPosition pluto = ComputePlutoHeliocentric(CenturiesAt(2448908.5));
    EXPECT_NEAR(Norm360(pluto.longitude), 232.74071 - 0.698, 0.02);
    EXPECT_NEAR(pluto.latitude, 14.58782, 0.02);
    EXPECT_NEAR(pluto.radius, 29.711111, 0.005);
}

// Meeus, chapter 30: e = 0.1, M = 5 gives E = 5.554589; e = 0.99, M = 2 gives 32.361007.
TEST(Positions, KeplersEquation) {
    EXPECT_NEAR(*SolveKepler(5, 0.1), 5.554589, 1e-6);
    EXPECT_NEAR(*SolveKepler(2, 0.99), 32.361007, 1e-6);
    EXPECT_FALSE(SolveKepler(10, 1.0));
    EXPECT_FALSE(SolveKepler(10, -0.1));
    EXPECT_FALSE(SolveKepler(std::nan(""), 0.1));
    EXPECT_FALSE(SolveKepler(10, std::nan("")));
}

TEST(Positions, AgainstTheReferenceTable) {
    const std::map<int, double> tolerance1900To2050 = {
        {kSun, 4},      {kMoon, 40},    {kMercury, 60}, {kVenus, 90},   {kMars, 270},
        {kJupiter, 60}, {kSaturn, 180}, {kUranus, 60},  {kNeptune, 60}, {kPluto, 420}};
    const double elsewhere = 1.5;  // times as much before 1900 and after 2050
    int rows = 0;
    for (const ReferencePositions& reference :
         ReadReferencePositions(TEST_DATA_DIR "/reference_positions.tsv")) {
        ++rows;
        const auto computed = GeocentricLongitudesAt(reference.julianDay);
        for (const auto& [body, tolerance] : tolerance1900To2050) {
            if (!reference.longitude[body]) continue;
            const double seconds = std::abs(ArcBetween(computed[body], *reference.longitude[body])) * 3600;
            const bool modern = reference.year >= 1900 && reference.year < 2050;
            EXPECT_LE(seconds, modern ? tolerance : tolerance * elsewhere)
                << PointName(body) << ' ' << reference.year;
        }
    }
    EXPECT_GE(rows, 120);
}

// What the sky never does. Stands against a wrong sign or frame that a tolerance would let pass.
TEST(Positions, Impossibilities) {
    for (int day = 0; day < 200 * 365; day += 9) {
        const double julianDay = 2378497.0 + day;  // from 1800
        const auto today = GeocentricLongitudesAt(julianDay);
        const auto tomorrow = GeocentricLongitudesAt(julianDay + 1);
        const auto fromSun = [&](int body) { return std::abs(ArcBetween(today[body], today[kSun])); };
        ASSERT_LT(fromSun(kMercury), 28.5) << julianDay;
        ASSERT_LT(fromSun(kVenus), 47.9) << julianDay;
        const double sunMotion = ArcBetween(tomorrow[kSun], today[kSun]);
        const double moonMotion = ArcBetween(tomorrow[kMoon], today[kMoon]);
        ASSERT_TRUE(sunMotion > 0.95 && sunMotion < 1.02) << julianDay;
        ASSERT_TRUE(moonMotion > 11.6 && moonMotion < 15.5) << julianDay;
        // An outer planet moves backwards at opposition and forwards at conjunction with the Sun.
        for (const int body : {kMars, kJupiter, kSaturn, kUranus, kNeptune, kPluto}) {
            const double motion = ArcBetween(tomorrow[body], today[body]);
            if (fromSun(body) > 177) {
                ASSERT_LT(motion, 0) << PointName(body);
            }
            if (fromSun(body) < 3) {
                ASSERT_GT(motion, 0) << PointName(body);
            }
        }
    }
}

}  // namespace
}  // namespace tolvanis
