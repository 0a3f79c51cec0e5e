#include "astro/time_frame.h"

#include "chart/angles.h"
#include "support.h"

namespace tolvanis {
namespace {

TEST(TimeFrame, ClockTimeToUniversalTime) {
    const struct {
        const char* record;
        double dayFraction;
    } cases[] = {{"a,1 Jan 2000,12.00,P,0,0,0", 0.5},
                 {"a,1 Jan 2000,12.00,A,0,0,0", 0.0},
                 {"a,1 Jan 2000,12.30,A,0,0,0", 0.5 / 24},
                 {"a,1 Jan 2000,1.00,P,0,0,0", 13.0 / 24},
                 {"a,1 Jan 2000,11.59,P,5,0,0", 28.9833333333 / 24},
                 {"a,1 Jan 2000,2.15,A,-5.75,-85,27", -3.5 / 24}};
    for (const auto& c : cases) {
        EXPECT_NEAR(ComputeTimeFrame(NatalOf(c.record)).UtDayFraction, c.dayFraction, 1e-11) << c.record;
    }
    const TimeFrame j2000 = ComputeTimeFrame(NatalOf("a,1 Jan 2000,12.00,P,0,0,0"));
    EXPECT_EQ(j2000.Centuries, 1.0);
    EXPECT_EQ(j2000.JulianDay, 2451545.0);
}

// Meeus, examples 12.a and 22.a: 1987 April 10, 0h UT; mean sidereal time at Greenwich 13h 10m 46.3668s and
// mean obliquity 23 deg 26' 27.407". Newcomb's values differ by hundredths of a second from the newer ones.
TEST(TimeFrame, SiderealTimeAndObliquity) {
    const TimeFrame frame = ComputeTimeFrame(NatalOf("a,10 Apr 1987,12.00,A,0,0,51.30"));
    const double hours = 13 + 10 / 60.0 + 46.3668 / 3600.0;
    EXPECT_NEAR(RadToDeg(frame.RAMC) / 15.0, hours, 0.1 / 3600);
    EXPECT_NEAR(frame.ObliquityDegrees, 23 + 26 / 60.0 + 27.407 / 3600, 0.5 / 3600);
    EXPECT_EQ(SiderealTimeText(frame), "13H  10M  46S ");
    const TimeFrame south = ComputeTimeFrame(NatalOf("a,10 Apr 1987,12.00,A,0,0,-51.30"));
    EXPECT_EQ(south.RAMC, frame.RAMC);
    EXPECT_EQ(SiderealTimeText(south), "01H  10M  46S ");
}

// Both angles again from spherical trigonometry: the Midheaven's right ascension is the RAMC, and the
// Ascendant lies on the eastern horizon.
TEST(TimeFrame, MidheavenCulminatesAndAscendantRises) {
    for (int i = 0; i < 400; ++i) {
        NatalData natal = NatalOf("a,1 Jan 1900,1.00,A,0,0,0");
        natal.Year = static_cast<std::int16_t>(100 + 5 * i);
        natal.ClockTime = 1 + i % 12 + (i % 60) / 100.0;
        natal.Latitude = static_cast<float>(i % 133 - 66);
        const TimeFrame frame = ComputeTimeFrame(natal);
        const double tilt = frame.Obliquity;
        const auto rightAscension = [&](double longitude) {
            return DirectionDeg(CosDeg(longitude), SinDeg(longitude) * std::cos(tilt));
        };
        EXPECT_NEAR(ArcBetween(rightAscension(frame.Midheaven), RadToDeg(frame.RAMC)), 0, 1e-6);

        const double hourAngle = RadToDeg(frame.RAMC) - rightAscension(frame.Ascendant);
        const double sinDeclination = SinDeg(frame.Ascendant) * std::sin(tilt);
        const double cosDeclination = std::sqrt(1 - sinDeclination * sinDeclination);
        const double altitude = sinDeclination * std::sin(frame.LatitudeRad) +
                                cosDeclination * std::cos(frame.LatitudeRad) * CosDeg(hourAngle);
        EXPECT_NEAR(altitude, 0, 1e-8) << natal.Year;
        EXPECT_LT(SinDeg(hourAngle), 0) << "rising, not setting: " << natal.Year;
    }
}

TEST(TimeFrame, AtTheEquatorWithTheEquinoxCulminating) {
    NatalData natal = NatalOf("a,1 Jan 2000,12.00,P,0,0,0");
    const double sidereal = RadToDeg(ComputeTimeFrame(natal).RAMC);
    TimeFrame frame;
    for (int i = 0; i < 3; ++i) {  // turn the Earth until the RAMC is as near 0 as single precision lets it
        const double degrees = std::floor(sidereal);
        natal.Longitude = static_cast<float>(degrees + (sidereal - degrees) * 0.6);
        frame = ComputeTimeFrame(natal);
    }
    EXPECT_NEAR(ArcBetween(frame.Midheaven, 0), 0, 1e-4);
    EXPECT_NEAR(frame.Ascendant, 90, 1e-4);
}

}  // namespace
}  // namespace tolvanis
