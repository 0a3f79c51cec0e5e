#include "astro/natal_chart.h"

#include "chart/angles.h"
#include "support.h"

namespace tolvanis {
namespace {

// Every birth that passes the checks gives a whole chart: the years' limits, both poles for the systems that
// go there, the date line, impossible days, zones at their bounds.
TEST(NatalChart, AnyBirthThatPassesTheChecksIsComputed) {
    int computed = 0;
    const auto check = [&](const NatalEntry& entry, const HouseSystemInfo& info) {
        if (!CheckEntry(entry, info.system).empty()) return;
        const auto positions = ComputePositions(ParseNatalData(entry, {info.system}, 1));
        ASSERT_TRUE(positions) << entry.year << ' ' << entry.latDeg << ' ' << info.name
                               << positions.message();
        for (int point = 1; point <= kChartPointCount; ++point) {
            ASSERT_GE(positions->PointLongitude[point], 0);
            ASSERT_LT(positions->PointLongitude[point], 360);
            ASSERT_LE(std::abs(positions->PointDeclination[point]), 90);
        }
        ++computed;
    };
    for (const HouseSystemInfo& info : kHouseSystems) {
        for (const auto* year : {"100", "277", "1582", "1900", "2099"}) {
            for (const auto* latitude : {"0", "66", "89", "90", "120"}) {
                for (const auto* longitude : {"0", "180"}) {
                    check({"X", "2", "31", year, "12", "0", false, "12", longitude, "59", false, latitude,
                           "0", false},
                          info);
                    check({"X", "2", "31", year, "12", "59", true, "-13", longitude, "59", true, latitude,
                           "0", true},
                          info);
                }
            }
        }
    }
    EXPECT_EQ(computed, 7 * 5 * 2 * 2 * 2 + 2 * 5 * 5 * 2 * 2);
}

TEST(NatalChart, WhatHoldsInEveryChart) {
    NatalData natal = NatalOf(kAnnSmith);
    for (int i = 0; i < 300; ++i) {
        natal.Year = static_cast<std::int16_t>(1800 + i);
        natal.Month = static_cast<std::int16_t>(1 + i % 12);
        natal.HouseSystem = kHouseSystems[static_cast<std::size_t>(i) % 9].system;
        const auto positions = ComputePositions(natal);
        ASSERT_TRUE(positions);
        const auto& longitude = positions->PointLongitude;
        EXPECT_NEAR(std::abs(ArcBetween(longitude[kNorthNode], longitude[kSouthNode])), 180, 1e-9);
        EXPECT_EQ(positions->PointLatitude[kSun], 0);
        for (int point = 1; point <= kChartPointCount; ++point) {
            const bool planet = point >= kMercury && point <= kPluto;
            const double motion = ArcBetween(positions->NextDayLongitude[point], longitude[point]);
            EXPECT_EQ(positions->IsRetrograde(point), planet && motion < 0) << PointName(point);
            const double begin = positions->HouseCusps.OfHouse(positions->PointHouse[point]);
            const double end = positions->HouseCusps.OfHouse(positions->PointHouse[point] % 12 + 1);
            EXPECT_LT(Norm360(longitude[point] + 1.0 / 36000 - begin), Norm360(end - begin))
                << PointName(point);
        }
    }
}

}  // namespace
}  // namespace tolvanis
