#include "astro/planetary_positions.h"

#include <array>
#include <cmath>
#include <optional>

#include "astro/derived_points.h"
#include "astro/elements.h"
#include "astro/epochs.h"
#include "astro/modern/apparent_places.h"
#include "astro/moon_series.h"
#include "astro/orbit.h"
#include "astro/perturbations.h"
#include "astro/pluto_series.h"
#include "astro/sun_series.h"
#include "chart/angles.h"

namespace tolvanis {
namespace {

constexpr double kPlutoEquinox = 2433283.0;  // day number of 1950.0
constexpr double kPlutoPrecession = 1.33;    // degrees a century
constexpr std::array kInnerPlanets = {kMercury, kVenus, kMars};
constexpr std::array kGiantPlanets = {kJupiter, kSaturn, kUranus, kNeptune};

// The instant in the two counts of centuries that the theories use.
struct Instant {
    double since1900;
    double since2000;
};

// Longitudes and latitudes of the ten bodies and the lunar nodes, degrees.
struct Bodies {
    PerPoint<double> longitude;
    PerPoint<double> latitude;
    double trueNode = 0.0;
};

OrbitalElements ElementsAt(const InnerPlanetElements& planet, double t) {
    const double node = planet.node.At(t);
    return {planet.meanAnomaly.At(t),
            planet.semiMajorAxis,
            planet.eccentricity.At(t),
            planet.inclination.At(t),
            planet.perihelionLongitude.At(t) - node,
            node};
}

OrbitalElements ElementsAt(const OuterPlanetElements& planet, double t) {
    const double perihelion = planet.perihelion.At(t);
    const double node = planet.node.At(t);
    const double perihelionLongitude = Norm360(perihelion + node);
    return {Norm360(planet.meanLongitude.At(t) - perihelionLongitude),
            planet.semiMajorAxis,
            planet.eccentricity.At(t),
            planet.inclination.At(t),
            perihelion,
            node};
}

// The perturbations' own mean anomalies of Uranus and Neptune stand in for those of the mean elements.
double GiantMeanAnomaly(GiantPlanet planet, double t, double fromElements) {
    switch (planet) {
        case GiantPlanet::Uranus:
            return 72.64878 + 428.37911 * t + 0.000079 * t * t;
        case GiantPlanet::Neptune:
            return 37.73063 + 218.46134 * t - 0.00007 * t * t;
        default:
            return fromElements;
    }
}

void Perturb(OrbitalElements& elements, const Perturbations& p) {
    const double perihelion = p.perihelion / elements.eccentricity;
    elements.meanAnomaly += p.meanLongitude - perihelion;
    elements.perihelion += perihelion;
    elements.eccentricity += p.eccentricity;
    elements.semiMajorAxis += p.semiMajorAxis;
}

void Store(Bodies& bodies, int point, const EclipticDirection& direction) {
    bodies.longitude[point] = direction.longitude;
    bodies.latitude[point] = direction.latitude;
}

// False when an orbit has no solution.
bool PlaceInnerPlanets(double t, Bodies& bodies) {
    const auto earth = SolveOrbit(ElementsAt(kInnerElements[0], t));
    for (std::size_t i = 0; i < kInnerPlanets.size(); ++i) {
        const auto planet = SolveOrbit(ElementsAt(kInnerElements[i + 1], t));
        if (!earth || !planet) return false;
        Store(bodies, kInnerPlanets[i], GeocentricDirection(*planet, *earth));
    }
    return true;
}

std::optional<HeliocentricPosition> EarthOfDate(double t) {
    OrbitalElements elements = ElementsAt(kOuterElements[0], t);
    elements.meanAnomaly += 180.0;
    return SolveOrbit(elements);
}

bool PlaceOuterPlanets(double t, double plutoPrecession, Bodies& bodies) {
    const auto earth = EarthOfDate(t);
    if (!earth) return false;
    const PerturbationSeries series(t);
    for (std::size_t i = 0; i < kGiantPlanets.size(); ++i) {
        const auto planet = static_cast<GiantPlanet>(i);
        const Perturbations p = series.Of(planet);
        OrbitalElements elements = ElementsAt(kOuterElements[i + 1], t);
        elements.meanAnomaly = GiantMeanAnomaly(planet, t, elements.meanAnomaly);
        Perturb(elements, p);
        const auto position = SolveOrbit(elements);
        if (!position) return false;
        EclipticDirection direction = GeocentricDirection(*position, *earth);
        direction.longitude = Norm360(direction.longitude + p.longitude);
        Store(bodies, kGiantPlanets[i], direction);
    }
    EclipticDirection pluto = GeocentricDirection(ComputePlutoHeliocentric(t), *earth);
    pluto.longitude = Norm360(pluto.longitude + plutoPrecession);
    Store(bodies, kPluto, pluto);
    return true;
}

std::optional<Bodies> PlaceBodies(const Instant& instant, double plutoPrecession) {
    Bodies bodies;
    bodies.longitude[kSun] = SunLongitude(instant.since1900);
    const MoonPosition moon = ComputeMoon(instant.since1900);
    bodies.longitude[kMoon] = moon.longitude;
    bodies.latitude[kMoon] = moon.latitude;
    bodies.longitude[kNorthNode] = moon.meanNode;
    bodies.longitude[kSouthNode] = Norm360(moon.meanNode + 180.0);
    bodies.trueNode = moon.trueNode;
    if (!PlaceInnerPlanets(instant.since2000, bodies)) return std::nullopt;
    if (!PlaceOuterPlanets(instant.since1900, plutoPrecession, bodies)) return std::nullopt;
    return bodies;
}

// The next two fill longitudes, latitudes and the longitudes of the next day.

// False when an orbit has no solution.
bool PlaceByClassicTheory(const TimeFrame& frame, ChartPositions& chart) {
    const double day = 1.0 / kDaysPerCentury;
    const Instant now{frame.Centuries,
                      (frame.JulianDayNumber - kJ2000 + frame.UtDayFraction - 0.5) / kDaysPerCentury};
    // The day number alone counts, for the next day too.
    const double precession = (frame.JulianDayNumber - kPlutoEquinox) * kPlutoPrecession / kDaysPerCentury;
    const auto today = PlaceBodies(now, precession);
    const auto tomorrow = PlaceBodies({now.since1900 + day, now.since2000 + day}, precession);
    if (!today || !tomorrow) return false;
    chart.PointLongitude = today->longitude;
    chart.PointLatitude = today->latitude;
    chart.NextDayLongitude = tomorrow->longitude;
    chart.TrueNodeLongitude = today->trueNode;
    return true;
}

void PlaceByModernTheory(const TimeFrame& frame, ChartPositions& chart) {
    const modern::ApparentSky sky = modern::ComputeApparentSky(TerrestrialDay(frame), frame.Nutation);
    const auto store = [&](int point, double longitude, const modern::ApparentPlace& place) {
        chart.PointLongitude[point] = Norm360(longitude);
        chart.PointLatitude[point] = place.latitude;
        chart.NextDayLongitude[point] = Norm360(longitude + place.dailyMotion);
    };
    for (int body = kSun; body <= kMoon; ++body) store(body, sky.bodies[body].longitude, sky.bodies[body]);
    store(kNorthNode, sky.meanNode.longitude, sky.meanNode);
    store(kSouthNode, sky.meanNode.longitude + 180.0, sky.meanNode);
    chart.TrueNodeLongitude = sky.trueNode;
    chart.PlutoFromOldSeries = sky.plutoFromOldSeries;
}

bool IsRetrograde(double today, double tomorrow) {
    if (std::abs(today - tomorrow) >= 180.0) (today > tomorrow ? tomorrow : today) += 360.0;
    return today > tomorrow;
}

}  // namespace

Result<void> ComputePlanetaryPositions(const TimeFrame& frame, ChartPositions& chart) {
    if (frame.Theory == Theory::Modern) {
        PlaceByModernTheory(frame, chart);
    } else if (!PlaceByClassicTheory(frame, chart)) {
        return Fault{"a planet's orbit has no solution at this date"};
    }
    chart.PointLongitude[kPartOfFortune] =
        PartOfFortune(chart.PointLongitude[kSun], chart.PointLongitude[kMoon], frame.Ascendant);
    for (int body = kSun; body <= kMoon; ++body) {
        if (!std::isfinite(chart.PointLongitude[body]) || !std::isfinite(chart.PointLatitude[body])) {
            return Fault{"the position of " + std::string(PointName(body)) + " is not a number at this date"};
        }
        chart.PointDeclination[body] =
            DeclinationOf(chart.PointLongitude[body], chart.PointLatitude[body], frame.ObliquityDegrees);
    }
    chart.RetrogradeFlags.assign(kChartPointCount, ' ');
    for (int planet = kMercury; planet <= kPluto; ++planet) {
        if (IsRetrograde(chart.PointLongitude[planet], chart.NextDayLongitude[planet])) {
            chart.RetrogradeFlags[static_cast<std::size_t>(planet - 1)] = 'R';
        }
    }
    return {};
}

}  // namespace tolvanis
