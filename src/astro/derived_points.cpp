#include "astro/derived_points.h"

#include "chart/angles.h"

namespace tolvanis {
namespace {

constexpr double kCuspTolerance = 1.0 / 36000.0;
constexpr double kEquatorStandIn = -0.00001;

}  // namespace

AuxiliaryAngles ComputeAuxiliaryAngles(const TimeFrame& frame) {
    const double latitude = frame.LatitudeRad == 0.0 ? kEquatorStandIn : frame.LatitudeRad;
    const double sinE = std::sin(frame.Obliquity);
    const double cosE = std::cos(frame.Obliquity);
    const double east = frame.RAMC;
    const double west = frame.RAMC + kPi;
    const double tanLatitude = std::tan(latitude);

    AuxiliaryAngles angles;
    angles.Vertex =
        QuotientAngle(std::cos(west), -std::sin(west) * cosE - sinE / tanLatitude, std::cos(west) < 0.0);
    angles.EquatorialAscendant = QuotientAngle(std::cos(east), -std::sin(east) * cosE, std::cos(east) < 0.0);
    angles.CoAscendant =
        QuotientAngle(std::cos(west), sinE / tanLatitude - std::sin(west) * cosE, std::cos(west) > 0.0);
    angles.PolarAscendant =
        QuotientAngle(std::cos(west), -std::sin(west) * cosE - tanLatitude * sinE, std::cos(west) < 0.0);
    return angles;
}

double PartOfFortune(double sun, double moon, double ascendant) {
    return Norm360(moon + ascendant - sun);
}

int HouseOf(double longitude, const HouseCusps& cusps) {
    const double place = longitude + kCuspTolerance;
    int found = 1;
    for (int position = 1; position <= 12; ++position) {
        const double cusp = cusps[position];
        const double next = cusps[position % 12 + 1];
        const bool inside = cusp < next ? cusp <= place && place < next : place >= cusp || place < next;
        if (inside) found = HouseCusps::HouseOfPosition(position);
    }
    return found;
}

double DeclinationOf(double longitude, double latitude, double obliquity) {
    const SinCos lon = SinCosDeg(longitude);
    const SinCos lat = SinCosDeg(latitude);
    const SinCos tilt = SinCosDeg(obliquity);
    return RadToDeg(ArcSin(lat.cos * lon.sin * tilt.sin + lat.sin * tilt.cos));
}

}  // namespace tolvanis
