#include "astro/orbit.h"

#include <cmath>

#include "chart/angles.h"

namespace tolvanis {
namespace {

constexpr double kSettled = 1e-7;  // degrees
constexpr int kMostRounds = 100;   // far more than any eccentricity below 0.9 needs

struct Vector {
    double x, y, z;
};

Vector ToVector(const HeliocentricPosition& p) {
    const SinCos lon = SinCosDeg(p.longitude);
    const SinCos lat = SinCosDeg(p.latitude);
    return {p.radius * lat.cos * lon.cos, p.radius * lat.cos * lon.sin, p.radius * lat.sin};
}

double TrueAnomaly(double eccentricAnomaly, double e) {
    const SinCos half = SinCosDeg(eccentricAnomaly / 2.0);
    return Norm360(2.0 * RadToDeg(std::atan(half.sin / half.cos * std::sqrt((1.0 + e) / (1.0 - e)))));
}

}  // namespace

std::optional<double> SolveKepler(double meanAnomaly, double eccentricity) {
    if (!(eccentricity >= 0.0 && eccentricity < 1.0)) return std::nullopt;
    double anomaly = meanAnomaly;
    for (int round = 0; round < kMostRounds; ++round) {
        const SinCos a = SinCosDeg(anomaly);
        const double step =
            (anomaly - eccentricity * RadToDeg(1.0) * a.sin - meanAnomaly) / (1.0 - eccentricity * a.cos);
        anomaly -= step;
        if (std::abs(step) < kSettled) return anomaly;
    }
    return std::nullopt;
}

std::optional<HeliocentricPosition> SolveOrbit(const OrbitalElements& elements) {
    const double e = elements.eccentricity;
    const auto anomaly = SolveKepler(elements.meanAnomaly, e);
    if (!anomaly) return std::nullopt;
    const SinCos u = SinCosDeg(TrueAnomaly(*anomaly, e) + elements.perihelion);
    const SinCos i = SinCosDeg(elements.inclination);
    return HeliocentricPosition{elements.node + DirectionDeg(u.cos, u.sin * i.cos),
                                RadToDeg(ArcSin(u.sin * i.sin)),
                                elements.semiMajorAxis * (1.0 - e * CosDeg(*anomaly))};
}

EclipticDirection GeocentricDirection(const HeliocentricPosition& body, const HeliocentricPosition& earth) {
    const Vector b = ToVector(body);
    const Vector e = ToVector(earth);
    const Vector g{b.x - e.x, b.y - e.y, b.z - e.z};
    return {DirectionDeg(g.x, g.y), RadToDeg(std::atan2(g.z, std::hypot(g.x, g.y)))};
}

}  // namespace tolvanis
