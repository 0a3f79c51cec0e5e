#include "birthdata/natal_entry.h"

#include <gmock/gmock.h>

#include "birthdata/name_record.h"
#include "support.h"

namespace tolvanis {
namespace {

using testing::HasSubstr;

const NatalEntry kGood = {"Ann", "9",  "22", "1949", "9",  "5",  false,
                          "5",   "73", "59", false,  "40", "45", false};

TEST(NatalEntry, HourFoldsOntoTheDial) {
    const struct {
        std::string_view typed;
        std::string_view text;
        bool pm;
        HourRule::Outcome outcome;
    } cases[] = {
        {"0", "12", false, HourRule::Outcome::Keep},  {"15", "3", true, HourRule::Outcome::Keep},
        {"12", "12", false, HourRule::Outcome::Keep}, {"13", "1", true, HourRule::Outcome::Keep},
        {"9", "9", false, HourRule::Outcome::Keep},   {"", "", false, HourRule::Outcome::AskForValue},
        {"x", "x", false, HourRule::Outcome::TooFast}};
    for (const auto& c : cases) {
        const HourRule rule = ApplyHourRule(c.typed);
        EXPECT_EQ(rule.text, c.text) << c.typed;
        EXPECT_EQ(rule.ticksPm, c.pm) << c.typed;
        EXPECT_EQ(rule.outcome, c.outcome) << c.typed;
    }
}

TEST(NatalEntry, NowAtHome) {
    Options options;
    options[18] = -5.75F;
    options[19] = 85;
    options[20] = 19;
    options[21] = 1;
    options[22] = 27;
    options[23] = 43;
    const NatalEntry midnight = FillNow({{2026, 3, 9}, 0, 7, 0}, options);
    EXPECT_EQ(midnight, (NatalEntry{"Now", "3", "9", "2026", "12", "7", false, "-5.75", "85", "19", true,
                                    "27", "43", false}));
    const NatalEntry evening = FillNow({{2026, 12, 31}, 23, 59, 0}, options);
    EXPECT_EQ(evening.birthHour, "11");
    EXPECT_TRUE(evening.pm);
    EXPECT_TRUE(FillNow({{2026, 1, 1}, 12, 0, 0}, options).pm);
}

TEST(NatalEntry, EveryConditionOfTheChecksReportsOnce) {
    const struct {
        std::string_view what;
        void (*spoil)(NatalEntry&);
        std::size_t faults;
        std::string_view detail;
    } cases[] = {
        {"good", [](NatalEntry&) {}, 0, ""},
        {"empty minute and month 13",
         [](NatalEntry& e) {
             e.birthMinute = "";
             e.month = "13";
         },
         2, "birth minute is empty"},
        {"an empty month is 0 and empty", [](NatalEntry& e) { e.month = ""; }, 2, "birth month is 0"},
        {"day 0", [](NatalEntry& e) { e.day = "0"; }, 1, "birth day is 0"},
        {"year 99", [](NatalEntry& e) { e.year = "99"; }, 1, "birth year 99 is below 100"},
        {"year 100", [](NatalEntry& e) { e.year = "100"; }, 0, ""},
        {"year 2099", [](NatalEntry& e) { e.year = "2099"; }, 0, ""},
        {"year 2100", [](NatalEntry& e) { e.year = "2100"; }, 1, "is above 2099"},
        {"31 April",
         [](NatalEntry& e) {
             e.month = "4";
             e.day = "31";
         },
         0, ""},
        {"day 32, month 13: one line",
         [](NatalEntry& e) {
             e.month = "13";
             e.day = "32";
         },
         1, "birth day 32 is above 31"},
        {"hour 13", [](NatalEntry& e) { e.birthHour = "13"; }, 1, "birth hour 13 is above 12"},
        {"minute 60", [](NatalEntry& e) { e.birthMinute = "60"; }, 1, "birth minute 60 is above 59"},
        {"zone -2 west", [](NatalEntry& e) { e.timeZone = "-2"; }, 0, ""},
        {"zone -3 west", [](NatalEntry& e) { e.timeZone = "-3"; }, 1, "time zone -3"},
        {"zone -3 east",
         [](NatalEntry& e) {
             e.timeZone = "-3";
             e.east = true;
         },
         0, ""},
        {"zone -13 east",
         [](NatalEntry& e) {
             e.timeZone = "-13";
             e.east = true;
         },
         0, ""},
        {"zone -13.5 east",
         [](NatalEntry& e) {
             e.timeZone = "-13.5";
             e.east = true;
         },
         1, "is below -13"},
        {"zone 12.5", [](NatalEntry& e) { e.timeZone = "12.5"; }, 1, "is above 12"},
        {"longitude 180 59", [](NatalEntry& e) { e.longDeg = "180"; }, 0, ""},
        {"longitude 181", [](NatalEntry& e) { e.longDeg = "181"; }, 1, "longitude degrees 181"},
        {"empty longitude", [](NatalEntry& e) { e.longDeg = e.longMin = ""; }, 1,
         "longitude minutes is empty"},
        {"empty latitude minutes", [](NatalEntry& e) { e.latMin = ""; }, 1, "latitude minutes is empty"},
        {"latitude minutes 60", [](NatalEntry& e) { e.latMin = "60"; }, 1, "latitude minutes 60"},
        {"66 00",
         [](NatalEntry& e) {
             e.latDeg = "66";
             e.latMin = "0";
         },
         0, ""},
        {"66 01",
         [](NatalEntry& e) {
             e.latDeg = "66";
             e.latMin = "1";
         },
         1, "above 66.00"},
        {"67 00 south",
         [](NatalEntry& e) {
             e.latDeg = "67";
             e.latMin = "0";
             e.south = true;
         },
         1, "above 66.00"},
        {"all empty", [](NatalEntry& e) { e = {}; }, 6, "birth month is 0"},
    };
    for (const auto& c : cases) {
        NatalEntry entry = kGood;
        c.spoil(entry);
        const auto faults = CheckEntry(entry, HouseSystem::Placidus);
        ASSERT_EQ(faults.size(), c.faults) << c.what;
        std::string details;
        for (const InputFault& fault : faults) details += fault.detail + "; ";
        EXPECT_THAT(details, HasSubstr(std::string(c.detail))) << c.what;
    }
}

TEST(NatalEntry, PolarLatitudesNeedMeridianOrMorinus) {
    NatalEntry entry = kGood;
    entry.latDeg = "80";
    for (const HouseSystemInfo& info : kHouseSystems) {
        const bool allowed = info.system == HouseSystem::Meridian || info.system == HouseSystem::Morinus;
        EXPECT_EQ(CheckPolarLatitude(entry, info.system).empty(), allowed) << info.name;
    }
    EXPECT_EQ(CheckPolarLatitude(entry, HouseSystem::Koch).front().Message(),
              "Your latitude is too high. Lower to 66 degrees, 00 minutes or below OR change house systems.");
}

TEST(NatalEntry, ParsedIntoPackedValues) {
    NatalEntry entry = kGood;
    entry.east = entry.south = entry.pm = true;
    const NatalData data = ParseNatalData(entry, HouseSystem::Koch, 2);
    EXPECT_EQ(data.DateText, "1949/9/22");
    EXPECT_EQ(data.ClockTime, 9.05);
    EXPECT_EQ(data.AmPm, "P.M.");
    EXPECT_EQ(data.Longitude, -73.59F);
    EXPECT_EQ(data.LongitudeSide, "EAST");
    EXPECT_EQ(data.Latitude, -40.45F);
    EXPECT_EQ(data.LatitudeSide, "SOUTH");
    EXPECT_EQ(ZoneForSide("5.5", true), "-5.5");
    EXPECT_EQ(ZoneForSide("-5.5", false), "5.5");
}

TEST(NameRecord, RoundTripsThroughAnEntry) {
    for (const auto* line :
         {"Ann Smith,22 Sep 1949,9.05,A,5,073.59,40.45", "Zoë,31 Apr 0277,12.00,P,-5.75,-002.21,-33.52",
          "West of Greenwich,01 Jan 1900,10.30,P,-1,000.30,00.00"}) {
        EXPECT_EQ(FormatNameRecord(RecordFromEntry(EntryOf(line))), line);
    }
    const NatalEntry spain = EntryOf("Madrid,1 Jan 1960,1.00,A,-1,003.41,40.24");
    EXPECT_EQ(spain.timeZone, "-1") << "the zone is kept whatever the hemisphere";
    EXPECT_FALSE(spain.east);
    EXPECT_EQ(EntryOf("M,1 Jan 1960,0.30,A,0,0,0").birthHour, "12");
    EXPECT_EQ(EntryOf("M,1 Jan 1960,10.3,a,0,0,0").birthMinute, "30");
}

TEST(NameRecord, FaultsNameTheField) {
    const struct {
        std::string_view line;
        std::string_view fault;
    } cases[] = {
        {"Ann,22 Sep 1949,9.05,A,5", "has 5 fields instead of 7"},
        {"Ann", "has 1 field instead of 7"},
        {"Smith, Ann,22 Sep 1949,9.05,A,5,073.59,40.45",
         "has 8 fields instead of 7 (a name cannot hold a comma)"},
        {"Ann,22 Foo 1949,9.05,A,5,073.59,40.45", "field 2 (birth date): \"22 Foo 1949\" is no date"},
        {"Ann,22 Sep 1949,noon,A,5,073.59,40.45", "field 3 (clock time): \"noon\" is no number"},
        {"Ann,22 Sep 1949,15.30,A,5,073.59,40.45", "is no time on the 12-hour dial"},
        {"Ann,22 Sep 1949,-1,A,5,073.59,40.45", "is no time on the 12-hour dial"},
        {"Ann,22 Sep 1949,9.05,A,EST,073.59,40.45", "field 5 (time zone): \"EST\" is no number"},
        {"Ann,22 Sep 1949,9.05,A,5,73W59,40.45", "field 6 (longitude): \"73W59\" is no number"},
        {"Ann,22 Sep 1949,9.05,A,5,073.59,", "field 7 (latitude): \"\" is no number"},
    };
    for (const auto& c : cases) {
        const auto record = ParseNameRecord(c.line);
        const std::string fault = record ? EntryFromRecord(*record).message() : record.message();
        EXPECT_THAT(fault, HasSubstr(std::string(c.fault))) << c.line;
    }
    EXPECT_TRUE(ParseNameRecord(" ,x")->name.empty());
}

}  // namespace
}  // namespace tolvanis
