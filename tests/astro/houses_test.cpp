// Every system proved from its geometric definition, by vectors in the equatorial frame instead of the
// formulas of the program. Stands against a cusp in the wrong quadrant, a swapped house and a wrong pole
// south of the equator.
#include "astro/houses.h"

#include <array>

#include "astro/derived_points.h"
#include "chart/angles.h"
#include "support.h"

namespace tolvanis {
namespace {

using Vector = std::array<double, 3>;

double Dot(const Vector& a, const Vector& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector Cross(const Vector& a, const Vector& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Vector FromEquator(double rightAscension, double declination) {
    return {CosDeg(declination) * CosDeg(rightAscension), CosDeg(declination) * SinDeg(rightAscension),
            SinDeg(declination)};
}

// A place and moment with what the definitions need.
struct Sky {
    TimeFrame frame;
    double ramc, latitude, tilt;  // degrees
    Vector north;                 // the horizon's north point
    Vector zenith;

    explicit Sky(const NatalData& natal) : frame(ComputeTimeFrame(natal)) {
        ramc = RadToDeg(frame.RAMC);
        latitude = RadToDeg(frame.LatitudeRad);
        tilt = frame.ObliquityDegrees;
        zenith = FromEquator(ramc, latitude);
        north = {-SinDeg(latitude) * CosDeg(ramc), -SinDeg(latitude) * SinDeg(ramc), CosDeg(latitude)};
    }
    Vector OnEcliptic(double longitude) const {
        return {CosDeg(longitude), SinDeg(longitude) * CosDeg(tilt), SinDeg(longitude) * SinDeg(tilt)};
    }
    double RightAscension(double longitude) const {
        const Vector v = OnEcliptic(longitude);
        return DirectionDeg(v[0], v[1]);
    }
    double Declination(double longitude) const { return RadToDeg(std::asin(OnEcliptic(longitude)[2])); }
};

const std::array kRecords = {
    "a,22 Sep 1949,9.05,A,5,073.59,40.45",  "b,14 Mar 1879,11.30,A,-0.67,-009.59,48.24",
    "c,6 Jul 1907,8.30,A,6.6,099.10,19.20", "d,31 Dec 1999,11.59,P,-10,-151.13,-33.52",
    "e,1 Jan 2000,12.00,P,0,000.00,00.00",  "f,15 Aug 1769,11.00,A,-0.58,-008.44,-54.30",
    "g,4 Oct 1582,3.33,A,0,004.00,52.05"};

// The highest latitudes, where classic Placidus has not settled.
const std::array kHighRecords = {"h,22 Sep 1949,9.05,A,5,073.59,66.00",
                                 "i,21 Jun 1990,3.20,P,-3,-037.36,-65.59",
                                 "j,21 Dec 1960,6.00,A,0,000.00,66.00"};

template <typename Check>
void ForEverySky(HouseSystem system, Check check) {
    const auto look = [&](const char* record, Theory theory) {
        SCOPED_TRACE(std::string(record) + " " + std::string(TheoryCode(theory)));
        NatalData natal = NatalOf(record);
        natal.Theory = theory;
        const Sky sky(natal);
        check(sky, ComputeHouseCusps(system, sky.frame));
    };
    for (const auto* record : kRecords) {
        look(record, Theory::Classic);
        look(record, Theory::Modern);
    }
    for (const auto* record : kHighRecords) look(record, Theory::Modern);
}

// The house circle through the horizon's north and south points and `on` carries the cusp of its house.
void ExpectOnHouseCircle(const Sky& sky, const Vector& on, double cusp) {
    EXPECT_NEAR(Dot(Cross(sky.north, on), sky.OnEcliptic(cusp)), 0, 1e-8);
    // Not the opposite half of the circle: both lie on the same side of the plane that is square to it.
    const Vector across = Cross(sky.north, Cross(sky.north, on));
    EXPECT_GT(Dot(across, sky.OnEcliptic(cusp)) * Dot(across, on), 0);
}

TEST(Houses, RegiomontanusDividesTheEquator) {
    ForEverySky(HouseSystem::Regiomontanus, [](const Sky& sky, const HouseCusps& cusps) {
        for (int house = 1; house <= 12; ++house) {
            ExpectOnHouseCircle(sky, FromEquator(sky.ramc + 30.0 * house + 60.0, 0), cusps.OfHouse(house));
        }
    });
}

TEST(Houses, CampanusDividesThePrimeVertical) {
    ForEverySky(HouseSystem::Campanus, [](const Sky& sky, const HouseCusps& cusps) {
        const Vector east = FromEquator(sky.ramc + 90, 0);
        for (int house = 1; house <= 12; ++house) {
            const double fromZenith = 30.0 * house + 60.0 + 1e-6;
            Vector on{};
            for (std::size_t i = 0; i < 3; ++i) {
                on[i] = sky.zenith[i] * CosDeg(fromZenith) + east[i] * SinDeg(fromZenith);
            }
            ExpectOnHouseCircle(sky, on, cusps.OfHouse(house));
        }
    });
}

TEST(Houses, MeridianAndMorinusDivideTheEquator) {
    ForEverySky(HouseSystem::Meridian, [](const Sky& sky, const HouseCusps& cusps) {
        for (int house = 1; house <= 12; ++house) {
            const double wanted = sky.ramc + 30.0 * house + 60.0;
            EXPECT_NEAR(ArcBetween(sky.RightAscension(cusps.OfHouse(house)), Norm360(wanted)), 0, 1e-7);
        }
    });
    ForEverySky(HouseSystem::Morinus, [](const Sky& sky, const HouseCusps& cusps) {
        for (int house = 1; house <= 12; ++house) {
            const Vector v = FromEquator(sky.ramc + 30.0 * house + 60.0, 0);
            const double longitude = DirectionDeg(v[0], v[1] * CosDeg(sky.tilt));
            EXPECT_NEAR(ArcBetween(cusps.OfHouse(house), longitude), 0, 1e-7);
        }
    });
}

// The cusp has covered the house's share of its semi-arc since rising or since the lower culmination.
TEST(Houses, PlacidusDividesSemiArcs) {
    ForEverySky(HouseSystem::Placidus, [](const Sky& sky, const HouseCusps& cusps) {
        const struct {
            int house;
            double share;
            bool diurnal;
        } shares[] = {{11, 1.0 / 3, true}, {12, 2.0 / 3, true}, {2, 2.0 / 3, false}, {3, 1.0 / 3, false}};
        for (const auto& s : shares) {
            const double cusp = cusps.OfHouse(s.house);
            const double ascensional = RadToDeg(
                std::asin(std::tan(DegToRad(sky.Declination(cusp))) * std::tan(DegToRad(sky.latitude))));
            const double arc = s.diurnal ? 90 + ascensional : 90 - ascensional;
            const double wanted = s.diurnal ? sky.ramc + s.share * arc : sky.ramc + 180 - s.share * arc;
            // Ten rounds leave up to half a minute of arc at 55 degrees; modern cusps are brought to the end.
            const double allowed = sky.frame.Theory == Theory::Modern ? 1e-6 : 0.005;
            EXPECT_NEAR(ArcBetween(sky.RightAscension(cusp), Norm360(wanted)), 0, allowed) << s.house;
        }
    });
}

// A third of the Midheaven degree's diurnal semi-arc passes between the risings of one cusp and the next.
TEST(Houses, KochStepsByTheMidheavensSemiArc) {
    ForEverySky(HouseSystem::Koch, [](const Sky& sky, const HouseCusps& cusps) {
        const auto obliqueAscension = [&](double longitude) {
            return sky.RightAscension(longitude) -
                   RadToDeg(std::asin(std::tan(DegToRad(sky.Declination(longitude))) *
                                      std::tan(DegToRad(sky.latitude))));
        };
        const double semiArc = 90 + sky.ramc - obliqueAscension(sky.frame.Midheaven);
        const double start = obliqueAscension(sky.frame.Midheaven);
        for (const auto& [house, steps] : {std::pair{11, 1}, {12, 2}, {1, 3}, {2, 4}, {3, 5}}) {
            const double rising = Norm360(start + steps * semiArc / 3);
            EXPECT_NEAR(ArcBetween(obliqueAscension(cusps.OfHouse(house)), rising), 0, 1e-6) << house;
        }
    });
}

TEST(Houses, PorphyryAndEqualHouses) {
    ForEverySky(HouseSystem::Porphyry, [](const Sky& sky, const HouseCusps& cusps) {
        for (const auto& [a, b, c] : {std::array{10, 11, 12}, {11, 12, 1}, {1, 2, 3}, {2, 3, 4}}) {
            EXPECT_NEAR(ArcBetween(cusps.OfHouse(b), cusps.OfHouse(a)),
                        ArcBetween(cusps.OfHouse(c), cusps.OfHouse(b)), 1e-9);
        }
        EXPECT_EQ(cusps.OfHouse(10), sky.frame.Midheaven);
        EXPECT_EQ(cusps.OfHouse(1), sky.frame.Ascendant);
    });
    ForEverySky(HouseSystem::EqualAsc, [](const Sky& sky, const HouseCusps& cusps) {
        EXPECT_EQ(cusps.OfHouse(1), sky.frame.Ascendant);
        EXPECT_NEAR(cusps.OfHouse(10), Norm360(sky.frame.Ascendant + 270), 1e-9);
    });
    ForEverySky(HouseSystem::EqualMC, [](const Sky& sky, const HouseCusps& cusps) {
        EXPECT_EQ(cusps.OfHouse(10), sky.frame.Midheaven);
        EXPECT_NEAR(cusps.OfHouse(9), Norm360(sky.frame.Midheaven + 330), 1e-9);
    });
}

// No two systems alike on one chart; at the equator some coincide by nature.
TEST(Houses, EverySystemIsARingOfItsOwn) {
    for (const auto* record : kRecords) {
        SCOPED_TRACE(record);
        const Sky sky(NatalOf(record));
        std::vector<HouseCusps> seen;
        for (const HouseSystemInfo& info : kHouseSystems) {
            const HouseCusps cusps = ComputeHouseCusps(info.system, sky.frame);
            double round = 0;
            for (int house = 1; house <= 12; ++house) {
                const double cusp = cusps.OfHouse(house);
                round += Norm360(cusps.OfHouse(house % 12 + 1) - cusp);
                EXPECT_NEAR(ArcBetween(cusps.OfHouse((house + 5) % 12 + 1), Norm360(cusp + 180)), 0, 1e-5);
            }
            EXPECT_NEAR(round, 360, 1e-6) << info.name;
            for (const HouseCusps& other : seen)
                EXPECT_TRUE(sky.latitude == 0 || !(other == cusps)) << info.name;
            seen.push_back(cusps);
        }
    }
}

TEST(Houses, APointOnOrJustBeforeACuspBelongsToTheHouseThatBegins) {
    HouseCusps cusps;
    for (int house = 1; house <= 12; ++house)
        cusps.SetHouse(house, Norm360(320.0 + 30.0 * house));  // first at 350
    const struct {
        double longitude;
        int house;
    } cases[] = {{350, 1},     {349.99998, 1}, {349.9999, 12}, {5, 1},
                 {19.9999, 1}, {20, 2},        {359.99999, 1}, {0, 1}};
    for (const auto& c : cases) EXPECT_EQ(HouseOf(c.longitude, cusps), c.house) << c.longitude;
}

TEST(Houses, AuxiliaryAnglesFromTheirDefinitions) {
    for (const auto* record : kRecords) {
        SCOPED_TRACE(record);
        const Sky sky(NatalOf(record));
        const AuxiliaryAngles angles = ComputeAuxiliaryAngles(sky.frame);
        // The Equatorial Ascendant rises at the equator, when the RAMC culminates.
        EXPECT_NEAR(Dot(sky.OnEcliptic(angles.EquatorialAscendant), FromEquator(sky.ramc, 0)), 0, 1e-7);
        if (sky.latitude == 0) continue;  // a latitude beside the equator stands in
        // The Vertex is the western crossing of ecliptic and prime vertical.
        EXPECT_NEAR(Dot(sky.OnEcliptic(angles.Vertex), sky.north), 0, 1e-7);
        // Both lie on a horizon twelve hours of sidereal time away: that of the complement of the latitude on
        // the other side of the equator, and that of the latitude itself.
        EXPECT_NEAR(Dot(sky.OnEcliptic(angles.CoAscendant), FromEquator(sky.ramc + 180, sky.latitude - 90)),
                    0, 1e-7);
        EXPECT_NEAR(Dot(sky.OnEcliptic(angles.PolarAscendant), FromEquator(sky.ramc + 180, sky.latitude)), 0,
                    1e-7);
    }
}

TEST(Houses, PointsOnTheEclipticAndFortune) {
    const double tilt = 23.45;
    const struct { double longitude, declination; } cases[] = {{90, tilt}, {270, -tilt}, {0, 0}, {180, 0}};
    for (const auto& c : cases) EXPECT_NEAR(DeclinationOf(c.longitude, 0, tilt), c.declination, 1e-7);
    EXPECT_EQ(PartOfFortune(10, 100, 200), 290);
    EXPECT_EQ(PartOfFortune(300, 10, 20), 90);
}

}  // namespace
}  // namespace tolvanis
