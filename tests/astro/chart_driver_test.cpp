#include "astro/chart_driver.h"

#include "chart/angles.h"

#include <gmock/gmock.h>

#include "support.h"

namespace tolvanis {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class RecordingDesktop : public ChartDesktop {
  public:
    std::vector<std::string> steps;
    std::size_t linesWhenShown = 0;
    const DataBuffer* buffer = nullptr;

    void SetBusy(bool busy) override { steps.push_back(busy ? "busy" : "ready"); }
    void HideEntryWindows() override { steps.push_back("hide"); }
    void ShowChartMenus() override { steps.push_back("menus"); }
    void ShowDataBuffer() override {
        steps.push_back("show");
        linesWhenShown = buffer->BufferLineCount();
    }
    void ShowInputFault(EntryField field) override { steps.push_back("fault " + std::to_string(int(field))); }
};

TEST(ChartDriver, ShowsInOrderAndAFaultLeavesTheChartBefore) {
    Options options;
    CurrentChart chart;
    DataBuffer buffer;
    RecordingMessages messages;
    RecordingDesktop desktop;
    desktop.buffer = &buffer;
    const auto compute = [&](const NatalEntry& entry) {
        desktop.steps.clear();
        return ComputeChart(entry, HouseSystem::Placidus, 1, options, chart, buffer, messages, desktop);
    };
    EXPECT_TRUE(compute(EntryOf(kAnnSmith)));
    EXPECT_THAT(desktop.steps, ElementsAre("busy", "hide", "menus", "show", "ready"));
    EXPECT_THAT(messages.told, IsEmpty());
    EXPECT_GT(buffer.BufferLineCount(), 50U);

    const auto before = buffer.ListingLines();
    EXPECT_FALSE(compute(EntryOf("Bob,1 Jan 1950,1.00,A,5,073.59,67.00")));
    ASSERT_EQ(messages.told.size(), 1U);
    EXPECT_THAT(messages.told[0].text, HasSubstr("Your latitude is too high."));
    EXPECT_EQ(desktop.steps.size(), 1U);
    EXPECT_EQ(chart.natal.Name, "Ann Smith");
    EXPECT_EQ(buffer.ListingLines(), before);

    options[165] = 1;  // shown, but not kept
    buffer.ClearBufferLines();
    EXPECT_TRUE(compute(EntryOf(kAnnSmith)));
    EXPECT_GT(desktop.linesWhenShown, 50U);
    EXPECT_EQ(buffer.BufferLineCount(), 0U);
    EXPECT_GT(buffer.ListingLineCount(), 50U);
}

// Every birth that passes the checks gives a whole chart: the years' limits, both poles for the systems that
// go there, the date line, impossible days, zones at their bounds.
TEST(ChartDriver, AnyBirthThatPassesTheChecksIsComputed) {
    int computed = 0;
    const auto check = [&](const NatalEntry& entry, const HouseSystemInfo& info) {
        if (!CheckEntry(entry, info.system).empty()) return;
        const auto positions = ComputePositions(ParseNatalData(entry, info.system, 1));
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

TEST(ChartDriver, WhatHoldsInEveryChart) {
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
