#include "astro/chart_driver.h"

#include "astro/angles.h"

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

struct Fixture : testing::Test {
    Options options;
    CurrentChart chart;
    DataBuffer buffer;
    RecordingMessages messages;
    RecordingDesktop desktop;
    Fixture() { desktop.buffer = &buffer; }

    bool Compute(const NatalEntry& entry, HouseSystem system = HouseSystem::Placidus) {
        return ComputeChart(entry, system, 1, options, chart, buffer, messages, desktop);
    }
};

using ChartDriver = Fixture;

TEST_F(ChartDriver, ComputesAndShowsInOrder) {
    EXPECT_TRUE(Compute(EntryOf("Ann,22 Sep 1949,9.05,A,5,073.59,40.45")));
    EXPECT_THAT(desktop.steps, ElementsAre("busy", "hide", "menus", "show", "ready"));
    EXPECT_THAT(messages.told, IsEmpty());
    EXPECT_EQ(buffer.ListingLines()[1], "  Ann");
    EXPECT_GT(buffer.BufferLineCount(), 50U);
}

TEST_F(ChartDriver, FaultsLeaveTheChartBefore) {
    Compute(EntryOf("Ann,22 Sep 1949,9.05,A,5,073.59,40.45"));
    const auto before = buffer.ListingLines();
    desktop.steps.clear();
    NatalEntry entry = EntryOf("Bob,1 Jan 1950,1.00,A,5,073.59,67.00");
    entry.birthMinute.clear();
    EXPECT_FALSE(Compute(entry));
    ASSERT_EQ(messages.told.size(), 2U);
    EXPECT_EQ(messages.told[0].title, "Warning!");
    EXPECT_EQ(messages.told[0].text, "Error in natal input data section. Please correct.");
    EXPECT_THAT(messages.told[1].text, HasSubstr("Your latitude is too high."));
    EXPECT_EQ(desktop.steps.size(), 1U);
    EXPECT_EQ(chart.natal.Name, "Ann");
    EXPECT_EQ(buffer.ListingLines(), before);
}

TEST_F(ChartDriver, Option165ShowsWithoutKeeping) {
    options[165] = 1;
    Compute(EntryOf("Ann,22 Sep 1949,9.05,A,5,073.59,40.45"));
    EXPECT_GT(desktop.linesWhenShown, 50U);
    EXPECT_EQ(buffer.BufferLineCount(), 0U);
    EXPECT_GT(buffer.ListingLineCount(), 50U);
}

// Every birth that passes the checks gives a whole chart: the years' limits, both poles for the systems that
// go there, the date line, impossible days, zones at their bounds.
TEST_F(ChartDriver, AnyBirthThatPassesTheChecksIsComputed) {
    int computed = 0;
    for (const HouseSystemInfo& info : kHouseSystems) {
        for (const auto* year : {"100", "277", "1582", "1900", "2099"}) {
            for (const auto* latitude : {"0", "66", "89", "90", "120"}) {
                for (const auto* longitude : {"0", "180"}) {
                    for (const bool other : {false, true}) {
                        const NatalEntry entry = {"X",       "2",
                                                  "31",      year,
                                                  "12",      other ? "59" : "0",
                                                  other,     other ? "-13" : "12",
                                                  longitude, "59",
                                                  other,     latitude,
                                                  "0",       other};
                        if (!CheckEntry(entry, info.system).empty()) continue;
                        const auto positions = ComputePositions(ParseNatalData(entry, info.system, 1));
                        ASSERT_TRUE(positions)
                            << year << ' ' << latitude << ' ' << info.name << positions.message();
                        for (int point = 1; point <= kChartPointCount; ++point) {
                            ASSERT_GE(positions->PointLongitude[point], 0);
                            ASSERT_LT(positions->PointLongitude[point], 360);
                            ASSERT_LE(std::abs(positions->PointDeclination[point]), 90);
                        }
                        ++computed;
                    }
                }
            }
        }
    }
    EXPECT_EQ(computed, 7 * 5 * 2 * 2 * 2 + 2 * 5 * 5 * 2 * 2);
}

TEST_F(ChartDriver, WhatHoldsInEveryChart) {
    for (int i = 0; i < 300; ++i) {
        NatalData natal = NatalOf("a,22 Sep 1949,9.05,A,5,073.59,40.45");
        natal.Year = static_cast<std::int16_t>(1800 + i);
        natal.Month = static_cast<std::int16_t>(1 + i % 12);
        natal.HouseSystem = kHouseSystems[static_cast<std::size_t>(i) % 9].system;
        const auto positions = ComputePositions(natal);
        ASSERT_TRUE(positions);
        const ChartPositions& chart_ = *positions;
        EXPECT_NEAR(
            std::abs(ArcBetween(chart_.PointLongitude[kNorthNode], chart_.PointLongitude[kSouthNode])), 180,
            1e-9);
        EXPECT_EQ(chart_.PointLatitude[kSun], 0);
        for (const int point :
             {kSun, kMoon, kNorthNode, kSouthNode, kPartOfFortune, kAscendant, kMidheaven}) {
            EXPECT_FALSE(chart_.IsRetrograde(point));
        }
        for (int point = kMercury; point <= kPluto; ++point) {
            const double motion = ArcBetween(chart_.NextDayLongitude[point], chart_.PointLongitude[point]);
            EXPECT_EQ(chart_.IsRetrograde(point), motion < 0) << PointName(point);
        }
        for (int point = 1; point <= kChartPointCount; ++point) {
            const int house = chart_.PointHouse[point];
            const double width =
                Norm360(chart_.HouseCusps.OfHouse(house % 12 + 1) - chart_.HouseCusps.OfHouse(house));
            const double place =
                Norm360(chart_.PointLongitude[point] + 1.0 / 36000 - chart_.HouseCusps.OfHouse(house));
            EXPECT_LT(place, width) << PointName(point);
        }
    }
}

}  // namespace
}  // namespace tolvanis
