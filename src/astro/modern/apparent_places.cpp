#include "astro/modern/apparent_places.h"

#include <algorithm>

#include "astro/modern/inner_planets.h"
#include "astro/modern/moon.h"
#include "astro/modern/outer_planets.h"
#include "chart/angles.h"

namespace tolvanis::modern {
namespace {

constexpr double kLightSpeed = 173.14463268466926;     // astronomical units a day
constexpr double kSunGravity = 2.9591220828559115e-4;  // Gaussian constant squared
constexpr double kEarthAndMoon = kInnerPlanetMasses[static_cast<std::size_t>(InnerPlanet::Earth)];
constexpr double kSunDeflection = 1.97412574336e-8;  // Schwarzschild radius of the Sun, astronomical units

// A body's path near the instant. Places are seen from where the Sun stands at the instant; velocities are
// those in the system of the centre of mass.
struct Path {
    Vector place;
    Vector velocity;
    Vector acceleration;

    Vector At(double days) const { return place + days * velocity + (0.5 * days * days) * acceleration; }
};

Vector Pull(double gravity, const Vector& place) {
    const double distance = Length(place);
    return (-gravity / (distance * distance * distance)) * place;
}

// The paths of the Sun, the Moon, the planets and the Earth.
struct Paths {
    PerPoint<Path> bodies;
    Path earth;
};

Paths FindPaths(double tdb, const Motion& moon) {
    const auto inner = InnerPlanetMotions(tdb);
    const auto outer = OuterPlanetMotions(tdb, inner);
    double mass = 1.0;
    Vector momentum;
    const auto weigh = [&](double share, const Motion& motion) {
        mass += share;
        momentum = momentum + share * motion.velocity;
    };
    for (std::size_t i = 0; i < inner.size(); ++i) weigh(kInnerPlanetMasses[i], inner[i]);
    for (std::size_t i = 0; i < outer.size(); ++i) weigh(kOuterPlanetMasses[i], outer[i]);
    const Vector sun = (-1.0 / mass) * momentum;

    const auto path = [&](const Motion& motion) {
        return Path{motion.place, motion.velocity + sun, Pull(kSunGravity, motion.place)};
    };
    Paths paths;
    paths.earth = path(inner[static_cast<std::size_t>(InnerPlanet::Earth)]);
    paths.bodies[kSun] = {{}, sun, {}};
    paths.bodies[kMoon] = {paths.earth.place + moon.place, paths.earth.velocity + moon.velocity,
                           paths.earth.acceleration + Pull(kSunGravity * kEarthAndMoon, moon.place)};
    paths.bodies[kMercury] = path(inner[static_cast<std::size_t>(InnerPlanet::Mercury)]);
    paths.bodies[kVenus] = path(inner[static_cast<std::size_t>(InnerPlanet::Venus)]);
    paths.bodies[kMars] = path(inner[static_cast<std::size_t>(InnerPlanet::Mars)]);
    for (std::size_t i = 0; i < outer.size(); ++i) {
        paths.bodies[kJupiter + static_cast<int>(i)] = path(outer[i]);
    }
    return paths;
}

// The deflection of light from `body` (seen from the Sun) that reaches `earth` (likewise) from `direction`;
// unit vectors, `distance` the Earth's from the Sun. Behind the Sun's disc it is kept finite.
Vector Deflected(const Vector& direction, const Vector& body, const Vector& earth, double distance) {
    constexpr double kGrazing = 1e-6;
    const double behind = std::max(1.0 + Dot(body, earth), kGrazing);
    const Vector bend = Dot(direction, body) * earth - Dot(earth, direction) * body;
    return direction + (kSunDeflection / (distance * behind)) * bend;
}

// Aberration of a unit direction for an observer's velocity in units of that of light.
Vector Aberrated(const Vector& direction, const Vector& velocity) {
    const double root = std::sqrt(1.0 - Dot(velocity, velocity));
    const double along = Dot(direction, velocity);
    return root * direction + (1.0 + along / (1.0 + root)) * velocity;
}

// The apparent direction of a body `days` after the instant, ICRS.
Vector ApparentDirection(const Path& body, const Paths& paths, double days, bool deflected) {
    const Vector earth = paths.earth.At(days);
    Vector seen = body.At(days) - earth;
    for (int round = 0; round < 2; ++round) seen = body.At(days - Length(seen) / kLightSpeed) - earth;
    Vector direction = (1.0 / Length(seen)) * seen;
    if (deflected) {
        const Vector sun = paths.bodies[kSun].At(days);
        const Vector fromSun = seen + earth - sun;
        const double distance = Length(earth - sun);
        direction = Deflected(direction, (1.0 / Length(fromSun)) * fromSun, (1.0 / distance) * (earth - sun),
                              distance);
    }
    const Vector velocity = paths.earth.velocity + days * paths.earth.acceleration;
    return Aberrated(direction, (1.0 / kLightSpeed) * velocity);
}

double Degrees(double radians) {
    return Norm360(radians / kRadiansPerDegree);
}

double LongitudeOf(const Vector& ecliptic) {
    return std::atan2(ecliptic.y, ecliptic.x);
}

}  // namespace

ApparentSky ComputeApparentSky(double tt, const Nutation& nutation) {
    const Motion moon = MoonMotion(tt);
    const Paths paths = FindPaths(tt, moon);
    const Rotation ofDate = TrueEclipticOfDate(tt, nutation);
    const double equinoxMotion = PrecessionRate(tt) + nutation.longitudeRate;

    ApparentSky sky;
    for (int body = kSun; body <= kMoon; ++body) {
        const bool deflected = body != kSun && body != kMoon;
        const auto ecliptic = [&](double days) {
            return ofDate * ApparentDirection(paths.bodies[body], paths, days, deflected);
        };
        const Vector now = ecliptic(0.0);
        constexpr double kStep = 0.005;  // days; so short that the paths may be taken for parabolas
        const double motion = LongitudeOf(ecliptic(kStep)) - LongitudeOf(ecliptic(-kStep));
        sky.bodies[body] = {
            Degrees(LongitudeOf(now)), std::atan2(now.z, std::hypot(now.x, now.y)) / kRadiansPerDegree,
            (std::remainder(motion, kTurn) / (2.0 * kStep) + equinoxMotion) / kRadiansPerDegree};
    }
    sky.meanNode.longitude = Degrees(MeanNode(tt) * kRadiansPerDegree + nutation.longitude);
    constexpr double kDay = 1.0;
    sky.meanNode.dailyMotion =
        MeanNode(tt + kDay) - MeanNode(tt) + nutation.longitudeRate / kRadiansPerDegree;
    const Vector pole = ofDate * Cross(moon.place, moon.velocity);
    sky.trueNode = Degrees(std::atan2(pole.x, -pole.y));
    sky.plutoFromOldSeries = !OuterOrbitsAreIntegrated(tt);
    return sky;
}

}  // namespace tolvanis::modern
