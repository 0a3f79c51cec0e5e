#include "birthdata/natal_entry.h"

#include <gmock/gmock.h>

#include "birthdata/name_record.h"
#include "support.h"

namespace tolvanis {
namespace {

using testing::HasSubstr;

const NatalEntry kGood = {"Ann", "9",  "22", "1949", "9",  "5",  false,
                          "5",   "73", "59", false,  "40", "45", false};

TEST(NatalEntry, AnHourThatIsNoNumberStays) {
    EXPECT_EQ(ApplyHourRule("x").text, "x");
    EXPECT_EQ(ApplyHourRule("x").outcome, HourRule::Outcome::TooFast);
}

TEST(NatalEntry, NowAtHome) {
    Options options;
    const float home[] = {-5.75F, 85, 19, 1, 27, 43};
    for (int i = 0; i < 6; ++i) options[18 + i] = home[i];
    const NatalEntry midnight = FillNow({{2026, 3, 9}, 0, 7, 0}, options);
    EXPECT_EQ(midnight, (NatalEntry{"Now", "3", "9", "2026", "12", "7", false, "-5.75", "85", "19", true,
                                    "27", "43", false}));
    const NatalEntry evening = FillNow({{2026, 12, 31}, 23, 59, 0}, options);
    EXPECT_EQ(evening.birthHour, "11");
    EXPECT_TRUE(evening.pm);
    EXPECT_TRUE(FillNow({{2026, 1, 1}, 12, 0, 0}, options).pm);
}

TEST(NatalEntry, EveryConditionOfTheChecksReportsOnce) {
    using E = NatalEntry;
    const struct {
        std::vector<std::pair<std::string E::*, const char*>> typed;
        bool eastAndSouth;
        std::size_t faults;
        std::string_view detail;
    } cases[] = {
        {{}, false, 0, ""},
        {{{&E::birthMinute, ""}, {&E::month, "13"}}, false, 2, "birth minute is empty"},
        {{{&E::month, ""}}, false, 2, "birth month is 0"},
        {{{&E::day, "0"}}, false, 1, "birth day is 0"},
        {{{&E::year, "99"}}, false, 1, "birth year 99 is below 100"},
        {{{&E::year, "100"}}, false, 0, ""},
        {{{&E::year, "2099"}}, false, 0, ""},
        {{{&E::year, "2100"}}, false, 1, "is above 2099"},
        {{{&E::month, "4"}, {&E::day, "31"}}, false, 0, ""},
        {{{&E::month, "13"}, {&E::day, "32"}}, false, 1, "birth day 32 is above 31"},
        {{{&E::birthHour, "13"}}, false, 1, "birth hour 13 is above 12"},
        {{{&E::birthMinute, "60"}}, false, 1, "birth minute 60 is above 59"},
        {{{&E::timeZone, "-2"}}, false, 0, ""},
        {{{&E::timeZone, "-3"}}, false, 1, "time zone -3"},
        {{{&E::timeZone, "-3"}}, true, 0, ""},
        {{{&E::timeZone, "-13"}}, true, 0, ""},
        {{{&E::timeZone, "-13.5"}}, true, 1, "is below -13"},
        {{{&E::timeZone, "12.5"}}, false, 1, "is above 12"},
        {{{&E::longDeg, "180"}}, false, 0, ""},
        {{{&E::longDeg, "181"}}, false, 1, "longitude degrees 181"},
        {{{&E::longDeg, ""}, {&E::longMin, ""}}, false, 1, "longitude minutes is empty"},
        {{{&E::latMin, ""}}, false, 1, "latitude minutes is empty"},
        {{{&E::latMin, "60"}}, false, 1, "latitude minutes 60"},
        {{{&E::latDeg, "66"}, {&E::latMin, "0"}}, false, 0, ""},
        {{{&E::latDeg, "66"}, {&E::latMin, "1"}}, false, 1, "above 66.00"},
        {{{&E::latDeg, "67"}, {&E::latMin, "0"}}, true, 1, "above 66.00"},
    };
    for (const auto& c : cases) {
        NatalEntry entry = kGood;
        entry.east = entry.south = c.eastAndSouth;
        for (const auto& [box, text] : c.typed) entry.*box = text;
        std::string details;
        for (const InputFault& fault : CheckEntry(entry, HouseSystem::Placidus))
            details += fault.detail + "; ";
        EXPECT_THAT(details, HasSubstr(std::string(c.detail)));
        EXPECT_EQ(std::ranges::count(details, ';'), c.faults) << details;
    }
    EXPECT_EQ(CheckEntry({}, HouseSystem::Placidus).size(), 6U);
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
    const NatalData data = ParseNatalData(entry, {HouseSystem::Koch}, 2);
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
        std::string_view line, fault;
    } cases[] = {
        {"Ann,22 Sep 1949,9.05,A,5", "has 5 fields instead of 7"},
        {"Ann", "has 1 field instead of 7"},
        {"Smith, Ann,22 Sep 1949,9.05,A,5,073.59,40.45",
         "has 8 fields instead of 7 (a name cannot hold a comma)"},
        {"Ann,22 Foo 1949,9.05,A,5,073.59,40.45", "field 2 (birth date): \"22 Foo 1949\" is no date"},
        {"Ann,22 Sep 1949,noon,A,5,073.59,40.45", "field 3 (clock time): \"noon\" is no number"},
        {"Ann,22 Sep 1949,15.30,A,5,073.59,40.45", "is no time on the 12-hour dial"},
        {"Ann,22 Sep 1949,-1,A,5,073.59,40.45", "is no time on the 12-hour dial"},
        {"Ann,22 Sep 1949,9.05,A,,073.59,40.45", "field 5 (time zone): \"\" is no number"},
        {"Ann,22 Sep 1949,9.05,A,5,\"73,59\",40.45", "field 6 (longitude): \"73,59\" is no number"},
        {"Ann,22 Sep 1949,9.05,A,5,073.59,", "field 7 (latitude): \"\" is no number"},
    };
    for (const auto& c : cases) {
        const auto record = ParseNameRecord(c.line);
        const std::string fault = record ? EntryFromRecord(*record).message() : record.message();
        EXPECT_THAT(fault, HasSubstr(std::string(c.fault))) << c.line;
    }
}

}  // namespace
}  // namespace tolvanis
