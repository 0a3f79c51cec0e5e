#include "birthdata/zone_history.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "birthdata/zone_lookup.h"
#include "support.h"
#include "text/fields.h"

namespace tolvanis {
namespace {

std::int64_t FirstSecondOf(int year) {
    return (std::int64_t{JulianDayNumberOf(year, 1, 1)} - JulianDayNumberOf(1970, 1, 1)) * 86400;
}

std::string TextOf(const ZonePeriod& period, bool first) {
    const std::string start = first ? "-" : std::to_string(period.start);
    return start + " " + std::to_string(period.offset) + (period.save != 0 ? " 1 " : " 0 ") +
           period.abbreviation + "\n";
}

// FNV-1a, 64 bits, of the periods as tools/make_zones/zone_fingerprints.py writes them.
std::string FingerprintOf(const std::vector<ZonePeriod>& periods) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const ZonePeriod& period : periods) {
        for (const char byte : TextOf(period, &period == periods.data())) {
            hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
        }
    }
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(hash));
    return text;
}

// The table holds what zic, the tz project's own compiler, makes of the same rules.
TEST(ZoneHistory, HasThePeriodsOfTheCompiledDataInEveryZoneTo2100) {
    const auto history = ZoneHistory::Read(Path(DELIVERED_DATA_DIR) / kZoneHistoryFile);
    ASSERT_TRUE(history) << history.message();
    EXPECT_EQ(history->release(), "2026-07-21");
    int zones = 0;
    LineReader table{Path(TEST_DATA_DIR) / "zone_fingerprints.tsv"};
    for (std::string line; table.Next(line); ++zones) {
        const std::vector<std::string> fields = SplitAt(line, '\t');
        std::vector<ZonePeriod> periods = history->PeriodsOf(fields[0]);
        const std::int64_t end = FirstSecondOf(std::stoi(fields[1]) + 1);
        std::erase_if(periods, [&](const ZonePeriod& period) { return period.start >= end; });
        EXPECT_EQ(std::to_string(periods.size()), fields[2]) << fields[0];
        EXPECT_EQ(FingerprintOf(periods), fields[3]) << fields[0];
    }
    EXPECT_EQ(zones, 471);
    const auto lines = *ReadLines(Path(DELIVERED_DATA_DIR) / kZoneHistoryFile);
    EXPECT_EQ(std::ranges::count_if(lines, [](const auto& line) { return line.starts_with("Z "); }), zones);
    EXPECT_EQ(&history->PeriodsOf("Asia/Calcutta"), &history->PeriodsOf("Asia/Kolkata"));
}

TEST(ZoneHistory, WhatCannotBeReadIsNamedWithItsLine) {
    const ScratchDirectory directory;
    const auto faultOf = [&](std::string_view line) {
        directory.Write("Z", "# by hand\nR c 1980 o - Ap 6 2s 1 S\n" + std::string(line) + "\n# end\n");
        const auto history = ZoneHistory::Read(directory.path() / "Z");
        return history ? std::string() : history.message();
    };
    const std::string file = (directory.path() / "Z").string();
    for (const char* right :
         {"Z A 1 c CE%sT", "Z A -0:53:28 - LMT", "Z A 1 - +01/+02", "Z A 1 -1 %z 1893 Ap lastSu 2u",
          "R d 1977 1980 - Ap Su>=1 24 -0:20 -", "R d 1977 ma - F 29 0 1 S", " "}) {
        EXPECT_EQ(faultOf(right), "") << right;
    }
    for (const char* wrong :
         {"Z A 1 c CE%", "Z A 1 c CE%xT", "Z A 1 c %s%", "Z A one c CET", "Z A 1:0:0:0 c CET",
          "Z A 1 c CET 19x3", "Z A 1 c CET 1893 Xx", "Z A 1 c CET 1893 Ap 32", "Z A 1 c CET 1893 Ap Su>=x",
          "Z A 1 c CET 1893 Ap >=1", "Z A 1 c CET 1893 Ap 1 2x", "R d 12345 o - Ap 6 2s 1 S",
          "R d 1980 x - Ap 6 2s 1 S", "R d 1980 o - Ap last 2s 1 S", "R d 1980 o - Ap 6 2s x S", "1 c CET"}) {
        EXPECT_EQ(faultOf(wrong), file + ":3: this line of the zone history cannot be read") << wrong;
    }
    const std::string whole = FileContent(Path(DELIVERED_DATA_DIR) / kZoneHistoryFile);
    for (const std::size_t size : {std::size_t{0}, std::size_t{80'000}, whole.size() - 8}) {
        directory.Write("Z", whole.substr(0, whole.rfind('\n', size) + 1));
        EXPECT_EQ(ZoneHistory::Read(directory.path() / "Z").message(), file + ": the file ends too early")
            << size;
    }
    EXPECT_EQ(faultOf("Z A 1 d CE%sT"), file + ": the rules d of the zone A are missing");
}

// The tz project answers for its main zones since 1970; what the complete records have of a zone that it has
// merged with another is of use for the time before.
TEST(ZoneHistory, MergedZonesFollowTheirMainZoneSince1970) {
    const auto history = ZoneHistory::Read(Path(DELIVERED_DATA_DIR) / kZoneHistoryFile);
    ASSERT_TRUE(history);
    const std::pair<const char*, const char*> merged[] = {{"Asia/Harbin", "Asia/Shanghai"},
                                                          {"Asia/Chongqing", "Asia/Shanghai"},
                                                          {"America/Rosario", "America/Argentina/Cordoba"},
                                                          {"America/Ensenada", "America/Tijuana"},
                                                          {"Europe/Uzhgorod", "Europe/Kyiv"}};
    for (const auto& [zone, main] : merged) {
        const ZonePlace there{zone, "", "", 0, 0}, here{main, "", "", 0, 0};
        for (int year = 1970; year < 2031; ++year) {
            for (const int month : {1, 4, 7, 10}) {
                const ClockMoment moment{{year, month, 3}, 43200};
                EXPECT_EQ(OffsetAtUniversal(*history, there, moment),
                          OffsetAtUniversal(*history, here, moment))
                    << zone << ' ' << year << ' ' << month;
            }
        }
    }
    const ZonePlace harbin{"Asia/Harbin", "CN", "08", 45.75, 126.65};
    EXPECT_EQ(OffsetAtUniversal(*history, harbin, {{1930, 1, 3}, 0}), 30600) << "before 1970 its own record";
}

TEST(ZoneMoment, LastAndFirstWeekdaysOfMonths) {
    constexpr int kSunday = 0, kSaturday = 6;
    using Day = ZoneMoment::Day;
    const struct {
        Day kind;
        int month, day, weekday, year;
        CalendarDate date;
    } cases[] = {{Day::Last, 12, 1, kSunday, 2023, {2023, 12, 31}},
                 {Day::Last, 12, 1, kSaturday, 2023, {2023, 12, 30}},
                 {Day::Last, 2, 1, kSunday, 2024, {2024, 2, 25}},
                 {Day::OnOrAfter, 10, 1, kSunday, 2023, {2023, 10, 1}},
                 {Day::OnOrAfter, 10, 2, kSunday, 2023, {2023, 10, 8}},
                 {Day::OnOrBefore, 3, 31, kSunday, 2024, {2024, 3, 31}},
                 {Day::OnOrBefore, 3, 30, kSunday, 2024, {2024, 3, 24}}};
    for (const auto& test : cases) {
        ZoneMoment moment;
        moment.kind = test.kind;
        moment.month = test.month;
        moment.day = test.day;
        moment.weekday = test.weekday;
        const auto [year, month, day] = test.date;
        EXPECT_EQ(moment.In(test.year) / 86400,
                  JulianDayNumberOf(year, month, day) - JulianDayNumberOf(1970, 1, 1))
            << year << ' ' << month << ' ' << day;
    }
}

}  // namespace
}  // namespace tolvanis
