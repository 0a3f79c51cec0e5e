#include "birthdata/zone_history.h"

#include <gtest/gtest.h>

#include <cstdio>

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
    EXPECT_EQ(history->ZoneNames().size(), 471U);
    EXPECT_EQ(&history->PeriodsOf("Asia/Calcutta"), &history->PeriodsOf("Asia/Kolkata"));
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
