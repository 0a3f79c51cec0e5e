#include "astro/time_frame.h"

#include "astro/epochs.h"
#include "astro/modern/delta_t.h"
#include "chart/angles.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

double Fraction(double x) {
    return x - std::floor(x);
}

double UniversalDayFraction(const NatalData& natal) {
    double time = natal.ClockTime;
    if (std::floor(time) == 12.0) time -= 12.0;
    const double fraction = (PackedToDecimal(time) + natal.TimeZone) / 24.0;
    return natal.AmPm == "P.M." ? fraction + 0.5 : fraction;
}

double LocalSiderealDegrees(const TimeFrame& frame) {
    const double t = frame.Centuries;
    const double atMidnight = (23925.836 + 8640184.54 * t + 0.0929 * t * t) / 3600.0;
    const double greenwich = Fraction((frame.UtDayFraction * 24.0 + atMidnight) / 24.0) * 24.0 * 15.0;
    return Norm360(greenwich - frame.LongitudeDegrees);
}

void TurnClassic(TimeFrame& frame) {
    frame.RAMC = DegToRad(LocalSiderealDegrees(frame));
    frame.ObliquityDegrees = MeanObliquity(frame.Centuries);
}

void TurnModern(TimeFrame& frame) {
    frame.DeltaT = modern::DeltaT(frame.JulianDay);
    const double tt = TerrestrialDay(frame);
    frame.Nutation = modern::ComputeNutation(tt);
    const double greenwich = modern::GreenwichApparentSiderealTime(frame.JulianDay, tt, frame.Nutation);
    const double local = greenwich / modern::kRadiansPerDegree - frame.LongitudeDegrees;
    frame.RAMC = Norm360(local) * modern::kRadiansPerDegree;
    frame.ObliquityDegrees =
        (modern::MeanObliquityOfDate(tt) + frame.Nutation.obliquity) / modern::kRadiansPerDegree;
}

// The Ascendant by rotating the zenith into ecliptic coordinates.
void FindAscendant(TimeFrame& frame) {
    const Rect pole = PolarToRect(1.0, frame.LatitudeRad);
    const Rect zenith = PolarToRect(pole.x, frame.RAMC);
    const Polar tilted = RectToPolar(zenith.y, pole.y);
    const Rect ecliptic = PolarToRect(tilted.r, tilted.angle - frame.Obliquity);
    frame.ZenithEclipticLatitude = ArcSin(ecliptic.y);
    frame.Ascendant = Norm360(RadToDeg(RectToPolar(zenith.x, ecliptic.x).angle) + 90.0);
}

void SplitSiderealTime(TimeFrame& frame) {
    double degrees = RadToDeg(frame.RAMC);
    if (frame.LatitudeRad < 0.0) degrees = Norm360(degrees + 180.0);
    const double hours = degrees / 15.0;
    const double minutes = Fraction(hours) * 60.0;
    frame.SiderealHours = static_cast<int>(hours);
    frame.SiderealMinutes = static_cast<int>(minutes);
    frame.SiderealSeconds = static_cast<int>(Fraction(minutes) * 60.0);
}

}  // namespace

double MeanObliquity(double centuries) {
    const double t = centuries;
    return 23.4522944 - 0.0130125 * t - 1.639e-6 * t * t + 5.03e-7 * t * t * t;
}

TimeFrame ComputeTimeFrame(const NatalData& natal) {
    TimeFrame frame;
    frame.UtDayFraction = UniversalDayFraction(natal);
    frame.LatitudeRad = DegToRad(SignedPackedToDecimal(double{natal.Latitude}));
    frame.LongitudeDegrees = SignedPackedToDecimal(double{natal.Longitude});
    frame.JulianDayNumber = JulianDayNumberOf(natal.Year, natal.Month, natal.Day);
    frame.JulianDay = frame.JulianDayNumber + frame.UtDayFraction - 0.5;
    frame.Centuries = (frame.JulianDayNumber - kEpoch1900 + frame.UtDayFraction - 0.5) / kDaysPerCentury;
    frame.Theory = natal.Theory;
    if (frame.Theory == Theory::Modern) {
        TurnModern(frame);
    } else {
        TurnClassic(frame);
    }
    frame.Obliquity = DegToRad(frame.ObliquityDegrees);

    const Rect meridian = PolarToRect(1.0, frame.RAMC);
    const double midheaven = RectToPolar(meridian.x * std::cos(frame.Obliquity), meridian.y).angle;
    frame.Midheaven = Norm360(RadToDeg(midheaven));
    FindAscendant(frame);
    SplitSiderealTime(frame);
    return frame;
}

double TerrestrialDay(const TimeFrame& frame) {
    constexpr double kSecondsPerDay = 86400.0;
    return frame.JulianDay + frame.DeltaT / kSecondsPerDay;
}

std::string SiderealTimeText(const TimeFrame& frame) {
    return TwoDigits(frame.SiderealHours) + "H  " + TwoDigits(frame.SiderealMinutes) + "M  " +
           TwoDigits(frame.SiderealSeconds) + "S ";
}

}  // namespace tolvanis
