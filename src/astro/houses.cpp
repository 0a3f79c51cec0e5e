#include "astro/houses.h"

#include "chart/angles.h"

namespace tolvanis {
namespace {

// How long Placidus cusps are bettered: the classic theory takes ten rounds, whatever they give. In the
// modern one each round leaves less than two thirds of the error up to the polar circle, so that all cusps
// settle.
struct Rounds {
    int most;
    double settled;  // radians; a smaller change ends the rounds
};
constexpr Rounds kClassicRounds = {10, -1.0};
constexpr Rounds kModernRounds = {200, 1e-14};

double HouseAngle(int house) {
    return 30.0 * house + 60.0;
}

HouseCusps EqualFrom(int firstHouse, double longitude) {
    HouseCusps cusps;
    double cusp = longitude;
    for (int step = 0; step < 12; ++step) {
        cusps.SetHouse((firstHouse + step - 1) % 12 + 1, cusp);
        cusp = Norm360(cusp + 30.0);
    }
    return cusps;
}

void SetOppositeHouses(HouseCusps& cusps) {
    for (const int house : {10, 11, 12, 1, 2, 3}) {
        cusps.SetHouse((house + 5) % 12 + 1, Norm360(cusps.OfHouse(house) + 180.0));
    }
}

HouseCusps Porphyry(const TimeFrame& f) {
    const double ic = Norm360(f.Midheaven + 180.0);
    const auto arc = [](double from, double to) { return to < from ? to - from + 360.0 : to - from; };
    const double upper = arc(f.Midheaven, f.Ascendant);
    const double lower = arc(f.Ascendant, ic);
    HouseCusps cusps;
    cusps.SetHouse(10, f.Midheaven);
    cusps.SetHouse(11, Norm360(f.Midheaven + upper / 3.0));
    cusps.SetHouse(12, Norm360(f.Midheaven + 2.0 * upper / 3.0));
    cusps.SetHouse(1, f.Ascendant);
    cusps.SetHouse(2, Norm360(f.Ascendant + lower / 3.0));
    cusps.SetHouse(3, Norm360(f.Ascendant + 2.0 * lower / 3.0));
    SetOppositeHouses(cusps);
    return cusps;
}

double RegiomontanusCusp(const TimeFrame& f, double h) {
    return QuadrantAngle(std::sin(f.RAMC + h),
                         std::cos(f.Obliquity) * std::cos(f.RAMC + h) -
                             std::tan(f.LatitudeRad) * std::sin(h) * std::sin(f.Obliquity));
}

double MorinusCusp(const TimeFrame& f, double h) {
    return QuadrantAngle(std::sin(f.RAMC + h) * std::cos(f.Obliquity), std::cos(f.RAMC + h));
}

double MeridianCusp(const TimeFrame& f, double h) {
    return QuadrantAngle(std::sin(f.RAMC + h), std::cos(f.RAMC + h) * std::cos(f.Obliquity));
}

double CampanusCusp(const TimeFrame& f, int house) {
    // The extra millionth of a degree keeps the angle off exactly 90 and 270.
    const double h = DegToRad(30.0 * house + 60.000001);
    double a = std::atan(std::tan(h) * std::cos(f.LatitudeRad));
    if (a < 0.0) a += kPi;
    if (std::sin(h) < 0.0) a += kPi;
    return RegiomontanusCusp(f, a);
}

double KochCusp(const TimeFrame& f, int house) {
    const double difference =
        RadToDeg(ArcSin(std::sin(f.RAMC) * std::tan(f.LatitudeRad) * std::tan(f.Obliquity)));
    const double h = Norm360(HouseAngle(house));
    const bool firstHalf = h < 180.0;
    const double q = h / 90.0 - (firstHalf ? 1.0 : 3.0);
    const double pole = firstHalf ? 1.0 : -1.0;
    const double oblique = DegToRad(Norm360(RadToDeg(f.RAMC) + h + q * difference));
    return QuadrantAngle(std::sin(oblique), std::cos(oblique) * std::cos(f.Obliquity) -
                                                pole * std::tan(f.LatitudeRad) * std::sin(f.Obliquity));
}

// An intermediate cusp by trisecting the semi-arc: the diurnal one above the horizon, the nocturnal one
// below.
double PlacidusCusp(const TimeFrame& f, double offset, double divisor, bool upper) {
    const double k = upper ? -1.0 : 1.0;
    double r = f.RAMC + DegToRad(offset);
    const Rounds& rounds = f.Theory == Theory::Modern ? kModernRounds : kClassicRounds;
    double change = kPi;
    for (int round = 0; round < rounds.most && std::abs(change) > rounds.settled; ++round) {
        const double before = r;
        double arc = ArcCos(k * std::sin(r) * std::tan(f.Obliquity) * std::tan(f.LatitudeRad));
        if (arc < 0.0) arc += kPi;
        r = upper ? f.RAMC + arc / divisor : f.RAMC + kPi - arc / divisor;
        change = r - before;
    }
    return QuotientAngle(std::tan(r), std::cos(f.Obliquity), std::sin(r) < 0.0);
}

HouseCusps Placidus(const TimeFrame& f) {
    HouseCusps cusps;
    cusps.SetHouse(4, Norm360(f.Midheaven + 180.0));
    cusps.SetHouse(1, f.Ascendant);
    cusps.SetHouse(5, Norm360(PlacidusCusp(f, 30.0, 3.0, true) + 180.0));
    cusps.SetHouse(6, Norm360(PlacidusCusp(f, 60.0, 1.5, true) + 180.0));
    cusps.SetHouse(2, PlacidusCusp(f, 120.0, 1.5, false));
    cusps.SetHouse(3, PlacidusCusp(f, 150.0, 3.0, false));
    for (int house = 7; house <= 12; ++house) {
        cusps.SetHouse(house, Norm360(cusps.OfHouse(house - 6) + 180.0));
    }
    return cusps;
}

template <typename CuspOf>
HouseCusps EveryHouse(CuspOf cuspOf) {
    HouseCusps cusps;
    for (int house = 1; house <= 12; ++house) cusps.SetHouse(house, cuspOf(house));
    return cusps;
}

}  // namespace

HouseCusps ComputeHouseCusps(HouseSystem system, const TimeFrame& f) {
    switch (system) {
        case HouseSystem::Placidus:
            return Placidus(f);
        case HouseSystem::Regiomontanus:
            return EveryHouse([&](int house) { return RegiomontanusCusp(f, DegToRad(HouseAngle(house))); });
        case HouseSystem::Koch:
            return EveryHouse([&](int house) { return KochCusp(f, house); });
        case HouseSystem::Campanus:
            return EveryHouse([&](int house) { return CampanusCusp(f, house); });
        case HouseSystem::Porphyry:
            return Porphyry(f);
        case HouseSystem::EqualAsc:
            return EqualFrom(1, f.Ascendant);
        case HouseSystem::EqualMC:
            return EqualFrom(10, f.Midheaven);
        case HouseSystem::Meridian:
            return EveryHouse([&](int house) { return MeridianCusp(f, DegToRad(HouseAngle(house))); });
        case HouseSystem::Morinus:
            return EveryHouse([&](int house) { return MorinusCusp(f, DegToRad(HouseAngle(house))); });
    }
    return {};
}

}  // namespace tolvanis
