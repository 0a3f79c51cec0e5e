// Cities files, the time-zone table and the search over their lists.
#include <gtest/gtest.h>

#include "birthdata/cities_file.h"
#include "birthdata/record_search.h"
#include "birthdata/time_zone_table.h"
#include "support.h"

namespace tolvanis {
namespace {

TEST(CitiesFileTest, ReadsCoordinatesByTheirLength) {
    struct Case {
        const char *longitude, *latitude, *zone;
        Coordinate east, south;
        const char* zoneText;
    };
    const Case cases[] = {
        {"84W23", "33N45", "5", {"84", "23", false}, {"33", "45", false}, "5"},
        {"122W25", "37N47", "8", {"122", "25", false}, {"37", "47", false}, "8"},
        {"02E21", "48N51", "-1", {"2", "21", true}, {"48", "51", false}, "-1"},
        {"02e21", "33s52", "-5.75", {"2", "21", false}, {"33", "52", false}, "-5.75"},
        {"084W05", "33S52", "05.50", {"84", "5", false}, {"33", "52", true}, "5.5"},
        {"", "9", "EST", {"0", "0", false}, {"9", "9", false}, "0"},
    };
    for (const Case& test : cases) {
        const Place place = PlaceOfCity({"", "", test.longitude, test.latitude, test.zone});
        EXPECT_EQ(place.longitude, test.east) << test.longitude;
        EXPECT_EQ(place.latitude, test.south) << test.latitude;
        EXPECT_EQ(place.timeZone, test.zoneText) << test.zone;
    }
}

TEST(CitiesFileTest, NamesACoordinateThatLiesNowhere) {
    const struct {
        const char *longitude, *latitude, *fault;
    } cases[] = {
        {"180W00", "90N00", ""},
        {"179E59", "89S59", ""},
        {"00W00", "00N00", ""},
        {"180W01", "90N00", "\"180W01\" is no longitude of the form 084W23"},
        {"180E59", "00N00", "\"180E59\" is no longitude of the form 084W23"},
        {"180W00", "90S01", "\"90S01\" is no latitude of the form 33N45"},
        {"179W60", "90N00", "\"179W60\" is no longitude of the form 084W23"},
        {"+9W+5", "33N45", "\"+9W+5\" is no longitude of the form 084W23"},
        {"84W23", "3E+5", "\"3E+5\" is no latitude of the form 33N45"},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(CityRecordFault({"", "", test.longitude, test.latitude, "5"}), test.fault)
            << test.longitude << ' ' << test.latitude;
    }
}

TEST(CitiesFileTest, KeepsTheRecordsInFrontOfTheFirstFault) {
    const ScratchDirectory directory;
    const RecordList list = ReadCitiesFile(directory.Write(
        "A.LL",
        "\"Washington, D.C.\",DC,77W02,38N54,5\nBern,Switzerland,07E27,46N57,-1\nRome,Italy\nX,Y,1,2,3"));
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(CityTextAt(list, 0), "Washington, D.C.,DC");
    EXPECT_EQ(list.fault()->line, 3);
    EXPECT_EQ(FindCityText(list, "Bern,Switzerland")->latitude, "46N57");
    RecordedMessages messages;
    TellCitiesFault(*list.fault(), messages);
    EXPECT_EQ(
        messages.told.at(0).text,
        "You have an error in the current cities file. You need to check and see if you have entered the "
        "data correctly and in the proper amount. Please correct the data by clicking on the Edit this "
        "List command button in the Cities window and edit the incorrect data.");
    EXPECT_EQ(ReadCitiesFile(directory.Write("B.LL", "A,B,1,2,3\n ,B,1,2,3\nC,D,1,2,3")).size(), 1U);
}

TEST(CitiesFileTest, FindsAPlaceByName) {
    const ScratchDirectory directory;
    const Path file = directory.Write("A.LL",
                                      "Köln,Germany,06E57,50N56,-1\nSpringfield,IL,89W39,39N48,6\n"
                                      "Springfield,MA,72W35,42N06,5\nSpringfield,MA,72W36,42N07,5\n"
                                      "Mala,Peru,76W38,12S39,5\nMåla,Sweden,18E45,65N11,-1\n"
                                      "Saint Louis,MI,84W36,43N24,5\nSt. Louis,MO,90W12,38N38,6\n"
                                      "St. Anne,IL,87W43,41N01,6\nSaint Anne,IL,87W44,41N02,6\n");
    struct Case {
        const char *name, *found;  // the longitude, or the fault
    };
    const Case cases[] = {
        {"koln", "06E57"},
        {"KÖLN, germany", "06E57"},
        {"Springfield,MA", "72W35"},
        {"Springfield", "there are several places \"Springfield\"; add the region after a comma: IL, MA"},
        {"måla", "18E45"},
        {"mala", "76W38"},
        {"mala,sweden", "18E45"},
        {"Saint Louis", "there are several places \"Saint Louis\"; add the region after a comma: MI, MO"},
        {"St. Louis", "there are several places \"St. Louis\"; add the region after a comma: MO, MI"},
        {"saint louis,mo", "90W12"},
        {"Saint Anne", "87W44"},
        {"Koeln", "06E57"},
        {"Spring", "there is no place \"Spring\"; --at finds those of the atlas"},
        {"-", "there is no place \"-\"; --at finds those of the atlas"},
    };
    for (const Case& test : cases) {
        const Result<CityRecord> city = FindCity(file, test.name);
        EXPECT_EQ(city ? city->longitude : city.message(), test.found) << test.name;
    }
}

TEST(TimeZoneTableTest, PutsEveryOffsetInItsColumn) {
    const ScratchDirectory directory;
    const std::string name32(32, 'N');
    const RecordList zones = ReadTimeZones(
        directory.Write("TZ.DAT", "Eastern Standard Time,EST,5\n" + name32 + ",ABCD,-10\n" +
                                      "Newfoundland,NST,-3.5\nMid-Ocean,MO,10\nGreenwich,GMT,0\n"));
    ASSERT_EQ(zones.size(), 5U);
    EXPECT_EQ(TimeZoneLineAt(zones, 0), "Eastern Standard Time            -  EST =   5");
    EXPECT_EQ(TimeZoneLineAt(zones, 1), name32 + " - ABCD = -10");
    EXPECT_EQ(TimeZoneLineAt(zones, 2), "Newfoundland                     -  NST =  -3.5");
    struct Case {
        std::size_t index;
        const char* zone;  // empty when it cannot be picked
        bool east;
    };
    constexpr Case kCases[] = {
        {0, "5", false}, {1, "-10", true}, {2, "-3.5", true}, {3, "", false}, {4, "0", false}};
    for (const Case& test : kCases) {
        const auto choice = ChooseTimeZone(zones, TimeZoneLineAt(zones, test.index));
        EXPECT_EQ(choice ? choice->timeZone : "", test.zone) << test.index;
        EXPECT_EQ(choice && choice->east, test.east) << test.index;
    }
}

TEST(TimeZoneTableTest, StopsAtALineWithoutRoom) {
    const ScratchDirectory directory;
    const std::string good = "Good,G,1\n";
    for (const std::string& bad :
         {std::string(33, 'N') + ",A,1", std::string("Zone,ABCDE,1"), std::string("Zone,A")}) {
        const RecordList zones = ReadTimeZones(directory.Write("TZ.DAT", good + bad + "\n" + good));
        EXPECT_EQ(zones.size(), 1U) << bad;
        ASSERT_TRUE(zones.fault()) << bad;
        RecordedMessages messages;
        TellTimeZoneFault(*zones.fault(), messages);
        EXPECT_EQ(messages.told.at(0).text, "The file TZ.DAT is corrupt.");
    }
    EXPECT_EQ(ReadTimeZones(directory.Write("TZ.DAT", std::string(32, 'N') + ",ABCD,1")).size(), 1U);
}

TEST(RecordSearchTest, RanksBeginningsBeforeWordsBeforeTheRest) {
    const std::vector<std::string> texts = {"New York,NY", "Newyorker", "York,PA",
                                            "Yorkville",   "Zürich",    "München"};
    const RecordSearch search(texts.size(), [&](std::size_t i) { return texts[i]; });
    EXPECT_EQ(search.FindAll("york"), (std::vector<std::size_t>{2, 3, 0, 1}));
    EXPECT_EQ(search.FindAll("zuri"), std::vector<std::size_t>{4});
    EXPECT_EQ(search.FindAll("muenchen"), std::vector<std::size_t>{5});
    EXPECT_EQ(search.FindAll(" "), std::vector<std::size_t>{});
    EXPECT_EQ(search.FindBeginning("y", 3), 3U);
    EXPECT_EQ(search.FindBeginning("york", 4), 2U) << "goes on at the start";
    EXPECT_EQ(search.FindBeginning("q", 0), std::nullopt);
    EXPECT_EQ(RecordSearch().FindBeginning("a", 0), std::nullopt);
}

}  // namespace
}  // namespace tolvanis
