// Look-ups of place, date and time against published cases: acts, decrees and the records of the tz project.
#include "birthdata/zone_lookup.h"

#include <gtest/gtest.h>

#include <set>

#include "birthdata/atlas_exchange.h"
#include "birthdata/cities_file.h"
#include "birthdata/names_file.h"
#include "birthdata/zone_advice.h"
#include "support.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

const ZoneBook& Book() {
    static const Result<ZoneBook> book = ZoneBook::Open(DataFiles(Path(DELIVERED_DATA_DIR)));
    if (!book) throw std::runtime_error(book.message());
    return *book;
}

AtlasPlace PlaceAt(const std::string& name) {
    const auto place = Book().atlas.FindOne(name);
    if (!place) throw std::runtime_error(place.message());
    return Book().atlas.At(place->index);
}

ZoneAnswer LookUp(const std::string& place, const CalendarDate& date, int hour, int minute) {
    return LookUpZone(Book().history, PlaceAt(place).place, {date, hour * 3600 + minute * 60});
}

using K = ZoneKind;
using G = ZoneGrade;

TEST(ZoneLookup, PublishedCases) {
    const struct {
        const char* place;
        CalendarDate date;
        int hour, minute;
        int offset;  // seconds east
        K kind;
        G grade;
    } cases[] = {
        // War times and double summer time.
        {"New York City", {1943, 1, 15}, 12, 0, -4 * 3600, K::War, G::Reference},
        {"Chicago, IL", {1945, 9, 1}, 12, 0, -5 * 3600, K::War, G::Reference},
        {"London, England", {1944, 7, 1}, 15, 0, 2 * 3600, K::Double, G::Reference},
        {"London, England", {1947, 5, 1}, 12, 0, 2 * 3600, K::Double, G::Reference},
        {"London, England", {1969, 1, 15}, 12, 0, 3600, K::Standard, G::Reference},
        {"Berlin, Germany", {1945, 6, 15}, 12, 0, 3 * 3600, K::Double, G::Reference},
        {"Munich, Germany", {1945, 6, 15}, 12, 0, 3 * 3600, K::Double, G::Disputed},
        // Mean times to the second.
        {"Amsterdam, Netherlands", {1930, 1, 15}, 12, 0, 1172, K::NationalMean, G::Reference},
        {"Amsterdam, Netherlands", {1936, 6, 15}, 12, 0, 1172 + 3600, K::Daylight, G::Reference},
        {"Amsterdam, Netherlands", {1938, 1, 15}, 12, 0, 1200, K::Standard, G::Reference},
        {"Monrovia, Liberia", {1971, 12, 31}, 12, 0, -2670, K::NationalMean, G::Sure},
        {"Dublin, Ireland", {1916, 5, 20}, 12, 0, -1521, K::NationalMean, G::Reference},
        {"Moscow, Russia", {1919, 6, 15}, 12, 0, 4 * 3600 + 31 * 60 + 19, K::Double, G::Reference},
        {"Mumbai", {1950, 1, 1}, 12, 0, 19800, K::Standard, G::Disputed},
        // Old records that shortened data answer wrongly.
        {"Stockholm, Sweden", {1945, 6, 15}, 12, 0, 3600, K::Standard, G::Reference},
        {"Oslo, Norway", {1945, 6, 15}, 12, 0, 7200, K::Daylight, G::Reference},
        {"Montréal, Canada", {1973, 7, 1}, 12, 0, -4 * 3600, K::Daylight, G::Sure},
        {"Hanoi", {1970, 1, 15}, 12, 0, 7 * 3600, K::Standard, G::Sure},
        {"Ho Chi Minh City", {1970, 1, 15}, 12, 0, 8 * 3600, K::Standard, G::Sure},
        // Ireland's summer and winter, Indiana without daylight saving, after 2037.
        {"Dublin, Ireland", {1975, 7, 1}, 12, 0, 3600, K::Daylight, G::Sure},
        {"Dublin, Ireland", {1975, 1, 15}, 12, 0, 0, K::Standard, G::Sure},
        {"Indianapolis, IN", {1990, 7, 1}, 12, 0, -5 * 3600, K::Standard, G::Sure},
        {"Urumqi", {2010, 7, 1}, 12, 0, 6 * 3600, K::Standard, G::Disputed},
        {"Kashgar", {1990, 7, 1}, 12, 0, 6 * 3600, K::Standard, G::Disputed},
        {"Evansville, IN", {1972, 7, 1}, 12, 0, -5 * 3600, K::Daylight, G::Disputed},
        {"Paris, France", {2060, 7, 1}, 12, 0, 7200, K::Daylight, G::Sure},
        {"New York City", {2099, 12, 31}, 23, 59, -5 * 3600, K::Standard, G::Sure},
        {"Vancouver, BC", {2040, 1, 15}, 12, 0, -7 * 3600, K::Standard, G::Sure},
        // Local mean time by the place's own longitude: Ulm 9 59.49 E, not Berlin.
        {"Ulm, Germany", {1879, 3, 14}, 11, 30, 2398, K::LocalMean, G::Local},
        {"Florence, Italy", {1452, 4, 15}, 21, 40, 2701, K::LocalMean, G::Local},
        {"Atlanta, GA", {1949, 9, 22}, 9, 5, -4 * 3600, K::Daylight, G::Disputed},
        {"Atlanta, GA", {1929, 1, 15}, 12, 0, -5 * 3600, K::Standard, G::Disputed},
        {"Atlanta, GA", {1943, 1, 15}, 12, 0, -4 * 3600, K::War, G::Nearest},
    };
    for (const auto& test : cases) {
        const ZoneAnswer answer = LookUp(test.place, test.date, test.hour, test.minute);
        const std::string what = std::string(test.place) + " " + FormatDate(test.date);
        ASSERT_EQ(answer.readings.size(), 1U) << what;
        EXPECT_NEAR(answer.readings[0].offset, test.offset, test.kind == K::LocalMean ? 4 : 0) << what;
        EXPECT_EQ(KindCode(answer.readings[0].kind), KindCode(test.kind)) << what;
        EXPECT_EQ(GradeCode(answer.readings[0].grade), GradeCode(test.grade)) << what;
        EXPECT_FALSE(answer.readings[0].reason.empty());
    }
}

TEST(ZoneLookup, TimesThatCameTwiceOrNever) {
    const auto twice = LookUp("Atlanta, GA", {2001, 10, 28}, 1, 30);
    ASSERT_EQ(twice.readings.size(), 2U);
    EXPECT_EQ(twice.readings[0].offset, -4 * 3600);
    EXPECT_EQ(twice.readings[1].offset, -5 * 3600);
    EXPECT_EQ(LookUp("Atlanta, GA", {2001, 10, 28}, 0, 59).readings.size(), 1U);
    EXPECT_EQ(LookUp("Atlanta, GA", {2001, 10, 28}, 2, 0).readings.size(), 1U);

    const auto never = LookUp("Atlanta, GA", {2001, 4, 1}, 2, 30);
    EXPECT_TRUE(never.readings.empty());
    ASSERT_EQ(never.around.size(), 2U);
    EXPECT_EQ(ClockText(never.around[0].clock), "2:00 A.M.");
    EXPECT_EQ(ClockText(never.around[1].clock), "3:00 A.M.");

    const auto day = LookUp("Apia, Samoa", {2011, 12, 30}, 9, 0);
    EXPECT_TRUE(day.readings.empty());
    ASSERT_EQ(day.around.size(), 2U);
    EXPECT_EQ(day.around[0].offset, -10 * 3600);
    EXPECT_EQ(day.around[1].offset, 14 * 3600);
    EXPECT_EQ(day.around[1].clock.date, (CalendarDate{2011, 12, 31}));
    // The end of Amsterdam's mean time, 28 seconds that never were.
    EXPECT_EQ(LookUp("Amsterdam, Netherlands", {1937, 7, 1}, 0, 0).readings.size(), 0U);
}

TEST(ZoneLookup, EntriesStayWithinTheirZones) {
    EXPECT_EQ(EntryZoneOf(13 * 3600, -171.75).hours, 11.0);
    EXPECT_EQ(EntryZoneOf(13 * 3600, -171.75).days, -1);
    EXPECT_EQ(EntryZoneOf(13 * 3600, 174.0).hours, -13.0);
    EXPECT_EQ(EntryZoneOf(3600, -3.7).hours, -1.0) << "Madrid";
    EXPECT_EQ(ZoneHoursText(HoursOfOffset(1172)), "-0.3256");
    EXPECT_EQ(ZoneHoursText(-0.0), "0");
}

TEST(Atlas, FindsPlacesByTheNamesThatPeopleType) {
    const char* cases[][2] = {
        {"Wien", "Vienna, Vienna, Austria"},
        {"Muenchen", "Munich, Bavaria, Germany"},
        {"München", "Munich, Bavaria, Germany"},
        {"koeln", "Köln, North Rhine-Westphalia, Germany"},
        {"Cologne", "Köln, North Rhine-Westphalia, Germany"},
        {"zurich", "Zürich, Zurich, Switzerland"},
        {"Roma", "Rome, Lazio, Italy"},
        {"Saigon", "Ho Chi Minh City, Hồ Chí Minh City, Vietnam"},
        {"Praha", "Prague, Prague, Czech Republic"},
        {"Moskva", "Moscow, Moscow, Russia"},
        {"Saint Louis", "St. Louis, Missouri, United States"},
        {"st louis", "St. Louis, Missouri, United States"},
        {"bombay", "Mumbai, Maharashtra, India"},
        {"Constantinople", "Istanbul, Istanbul, Turkey"},
        {"Leningrad, Russia", "Saint Petersburg, St.-Petersburg, Russia"},
        {"Danzig", "Gdańsk, Pomerania, Poland"},
        {"Karl-Marx-Stadt", "Chemnitz, Saxony, Germany"},
        {"paris, texas", "Paris, Texas, United States"},
        {"paris", "Paris, Île-de-France, France"},
        {"Atlanta, Georgia, USA", "Atlanta, Georgia, United States"},
        {"Luebeck", "Lübeck, Schleswig-Holstein, Germany"},
    };
    for (const auto& [typed, name] : cases) {
        const auto found = Book().atlas.Search(typed, 5);
        ASSERT_FALSE(found.empty()) << typed;
        EXPECT_EQ(Book().atlas.At(found.front()).FullName(), name) << typed;
    }
    for (const char* unclear : {"Springfield", "Bombay", "Nowhereville", "", ",", "Paris, Germany"}) {
        EXPECT_FALSE(Book().atlas.FindOne(unclear)) << unclear;
    }
}

// One place, or a fault that holds the text.
TEST(Atlas, FindsOnePlaceOrListsThem) {
    const char* cases[][2] = {
        {"Dover, England", "Dover, England, United Kingdom"},
        {"Dover, Wales", "elsewhere:\n  Dover, England, United Kingdom\n  Dover, Delaware, United States\n"},
        {"London, Scotland", "elsewhere:\n  London, England, United Kingdom\n"},
        {"Cardiff, England", "there is no place \"Cardiff, England\""},
        {"Bangor, Wales", "Bangor, Wales, United Kingdom"},
        {"Bangor, Northern Ireland", "Bangor, Northern Ireland, United Kingdom"},
        {"Edinburgh, Great Britain", "Edinburgh, Scotland, United Kingdom"},
        {"Perth, WA", "Perth, Western Australia, Australia"},
        {"Sydney, NSW", "Sydney, New South Wales, Australia"},
        {"Seattle, WA", "Seattle, Washington, United States"},
        {"McMurdo", "McMurdo Station, Antarctica"},
        {"'s-Gravenhage", "The Hague, South Holland, Netherlands"},
        {"St.Petersburg, Russia", "Saint Petersburg, St.-Petersburg, Russia"},
        {"Mt. Vernon, NY", "Mount Vernon, New York, United States"},
        {"Ft.Worth", "Fort Worth, Texas, United States"},
        {"Frankfurt (Oder)", "Frankfurt (Oder), Brandenburg, Germany"},
        {"Springfield", "Springfield, Ohio, United States"},
        {"Breslau, Germany", "Wrocław"},
        // The largest first, by whichever name.
        {"Roma", "\"Roma\":\n  Rome, Lazio, Italy\n"},
        {"Geneva", "\"Geneva\":\n  Genève, Geneva, Switzerland\n"},
        // Several of one full name: ten times the people of all others or not.
        {"Newport, Wales, UK", "Newport, Wales, United Kingdom"},
        {"Mülheim, North Rhine-Westphalia, Germany",
         "  Mülheim, North Rhine-Westphalia, Germany (6E53 51N26, population 170921)\n"
         "  Mülheim, North Rhine-Westphalia, Germany (7E00 50N58, population 41711)"},
        {"Paris (2W21 48N51)", "there is no place \"Paris (2W21 48N51)\" in the atlas; elsewhere:\n  Paris"},
        {"Paris (2E21 48N51, population 1)", "Paris, Île-de-France, France"},
    };
    for (const auto& [typed, expected] : cases) {
        const auto found = Book().atlas.FindOne(typed);
        const std::string told = found ? Book().atlas.At(found->index).FullName() : found.message();
        EXPECT_EQ(told == expected, bool(found)) << typed << ": " << told;
        EXPECT_NE(told.find(expected), std::string::npos) << typed << ": " << told;
    }
    EXPECT_TRUE(Book().atlas.FindOne("Newport, Wales")->hasNamesakes);
    EXPECT_FALSE(Book().atlas.FindOne("Paris, France")->hasNamesakes);
}

TEST(Atlas, EveryLineOfAListWithCoordinatesFindsItsPlace) {
    std::map<std::string, std::vector<std::size_t>> places;
    for (std::size_t i = 0; i < Book().atlas.size(); ++i) places[Book().atlas.At(i).FullName()].push_back(i);
    int checked = 0;
    for (const auto& [name, same] : places) {
        if (same.size() < 2 || !name.starts_with("Sa")) continue;
        for (const std::size_t index : same) {
            const AtlasPlace wanted = Book().atlas.At(index);
            const auto found = Book().atlas.FindOne(wanted.NameAndCoordinates());
            ASSERT_TRUE(found) << wanted.NameAndCoordinates() << ": " << found.message();
            const AtlasPlace chosen = Book().atlas.At(found->index);
            EXPECT_TRUE(chosen.Longitude() == wanted.Longitude() && chosen.Latitude() == wanted.Latitude())
                << wanted.NameAndCoordinates() << " is not " << chosen.NameAndCoordinates();
            ++checked;
        }
    }
    EXPECT_GT(checked, 200);
}

TEST(Atlas, RefusesADamagedFileWithItsLine) {
    const ScratchDirectory directory;
    for (const char* text : {"Z A/B\nC US\tUnited States\nR GA\tGeorgia\nAtlanta\tx\t1\t2\t0\n",
                             "Z A/B\nC US\tUnited States\nR GA\tGeorgia\nAtlanta\t1\t1\t2\t7\n",
                             "Z A/B\n\n\nAtlanta\t1\t1\t2\t0\n"}) {
        const auto read = Atlas::Read(directory.Write("ATLAS.DAT", text));
        ASSERT_FALSE(read);
        EXPECT_NE(read.message().find("ATLAS.DAT:4:"), std::string::npos) << read.message();
    }
    const auto read = Atlas::Read(directory.Write("ATLAS.DAT", "Z A/B\n"));
    EXPECT_NE(read.message().find("ATLAS.DAT: the file ends too early"), std::string::npos);
}

// At half past an hour of the morning, or, with a P behind it, of the afternoon.
NatalEntry EntryAt(const std::string& place, const CalendarDate& date, const std::string& hour,
                   const char* zone) {
    NatalEntry entry;
    entry.year = std::to_string(date.year);
    entry.month = std::to_string(date.month);
    entry.day = std::to_string(date.day);
    entry.pm = hour.ends_with('P');
    entry.birthHour = hour.substr(0, hour.find('P'));
    entry.birthMinute = "30";
    const AtlasPlace at = PlaceAt(place);
    FillPlace(entry, {at.Longitude(), at.Latitude(), zone});
    return entry;
}

TEST(ZoneAdvice, SaysWhatIsInForceAndNothingElse) {
    const struct {
        const char* place;
        CalendarDate date;
        const char* hour;
        const char* typed;
        const char* text;
        const char* zone;
    } cases[] = {
        {"New York City",
         {1951, 7, 14},
         "9",
         "5",
         "On 14 Jul 1951 daylight saving was in force in New York City: zone 4",
         "4"},
        {"New York City", {1951, 7, 14}, "9", "4", "", ""},
        {"Atlanta, GA",
         {2001, 10, 28},
         "1",
         "5",
         "On 28 Oct 2001 1:30 A.M. came twice in Atlanta: zone 4 (daylight saving), then zone 5 (standard "
         "time)",
         ""},
        {"Atlanta, GA",
         {2001, 4, 1},
         "2",
         "5",
         "On 1 Apr 2001 2:30 A.M. did not exist in Atlanta: clocks went from 2:00 A.M. (zone 5) to 3:00 A.M. "
         "(zone 4)",
         ""},
        {"Atlanta, GA",
         {2001, 4, 1},
         "12",
         "4",
         "On 1 Apr 2001 standard time was in force in Atlanta: zone 5",
         "5"},
        {"Atlanta, GA", {2001, 4, 1}, "12P", "4", "", ""},
        {"Atlanta, GA",
         {2001, 4, 1},
         "3P",
         "5",
         "On 1 Apr 2001 daylight saving was in force in Atlanta: zone 4",
         "4"},
        {"Ulm, Germany",
         {1879, 3, 14},
         "11",
         "-1",
         "On 14 Mar 1879 local mean time was in force in Ulm: zone -0.6656",
         "-0.6656"},
        {"Ulm, Germany", {1879, 3, 14}, "11", "-0.6656", "", ""},
        // Entered with the date of the day before, as the islands at the date line ask for.
        {"Apia, Samoa", {2022, 6, 1}, "9", "11", "", ""},
        {"Apia, Samoa",
         {2012, 6, 1},
         "9",
         "5",
         "On 2 Jun 2012 standard time was in force in Apia: zone 11",
         "11"},
    };
    for (const auto& test : cases) {
        const ZoneAdvice advice = AdviseZone(Book(), EntryAt(test.place, test.date, test.hour, test.typed));
        EXPECT_EQ(advice.text, test.text);
        EXPECT_EQ(advice.zone, test.zone) << test.text;
    }
    NatalEntry incomplete = EntryAt("Atlanta, GA", {1951, 7, 14}, "9", "5");
    EXPECT_NE(AdviseZone(Book(), incomplete).text.find("Disputed: "), std::string::npos);
    for (const auto box : {&NatalEntry::year, &NatalEntry::birthMinute, &NatalEntry::latDeg}) {
        NatalEntry entry = incomplete;
        entry.*box = "";
        EXPECT_TRUE(AdviseZone(Book(), entry).text.empty());
    }
    incomplete.birthMinute = "60";
    EXPECT_TRUE(AdviseZone(Book(), incomplete).text.empty()) << "no such minute";
    incomplete.birthMinute = "30";
    incomplete.longDeg = "40";
    EXPECT_TRUE(AdviseZone(Book(), incomplete).text.empty()) << "the middle of the sea";
}

TEST(AtlasExchange, HandsOverWhatTheLookUpReads) {
    const NatalEntry entry = EntryAt("Köln", {1951, 7, 14}, "9", "-1");
    const Environment environment = AtlasEnvironment(entry, "/data");
    const NatalEntry there = BirthOfEnvironment(environment.front().second);
    EXPECT_EQ(ClockOfEntry(there), ClockOfEntry(entry));
    EXPECT_FALSE(ClockOfEntry(BirthOfEnvironment("rubbish")));
    EXPECT_EQ(ExchangeText(PlaceAt("Köln"), 3600),
              "Köln, North Rhine-Westphalia, Germany\r\n50N56\r\n6E57\r\n\r\n-1\r\n");
}

// Every delivered city has the standard time that the zone data give for 2025.
TEST(DeliveredCities, HaveTheStandardTimeOfTheZoneData) {
    const std::set<std::string> twoClocks = {"Asia/Urumqi", "Asia/Kashgar"};
    int checked = 0;
    for (const auto& file : std::filesystem::directory_iterator(DELIVERED_DATA_DIR)) {
        if (file.path().extension() != ".LL") continue;
        const RecordList cities = ReadCitiesFile(file.path());
        ASSERT_FALSE(cities.fault());
        for (std::size_t i = 0; i < cities.size(); ++i) {
            const CityRecord record = *ParseCityRecord(cities.Line(i));
            const Place place = PlaceOfCity(record);
            const std::string name = record.city.substr(0, record.city.find(" ("));
            const double east = -DegreesOf(*place.longitude);
            const auto known = Book().atlas.Named(name, DegreesOf(*place.latitude), east, 3.0);
            const auto found = known ? known : Book().atlas.Nearest(DegreesOf(*place.latitude), east, 3.0);
            ASSERT_TRUE(found) << record.ListText();
            const AtlasPlace at = Book().atlas.At(*found);
            if (twoClocks.contains(at.place.zone)) continue;
            bool fits = false;
            for (const CalendarDate& date : {CalendarDate{2025, 1, 15}, CalendarDate{2025, 7, 15}}) {
                for (const ZoneReading& reading :
                     LookUpZone(Book().history, at.place, {date, 43200}).readings) {
                    const double hours = EntryZoneOf(reading.offset, east).hours;
                    const bool standard = reading.kind == ZoneKind::Standard;
                    fits = fits || (standard && hours == LeadingNumber(record.timeZone));
                }
            }
            EXPECT_TRUE(fits) << record.ListText() << " " << record.timeZone << " " << at.place.zone;
            ++checked;
        }
    }
    EXPECT_GT(checked, 62'000);
}

// The births whose zone is not the one on record, each with its reason.
TEST(DeliveredNames, AgreeWithTheZoneDataOrHaveAReason) {
    const std::map<std::string, std::string> reasons = {
        {"Vincent van Gogh", "Zundert kept its own time; Amsterdam's became national in 1909"},
        {"Sigmund Freud", "Prague time was the railways'; towns kept their own"},
        {"Mahatma Gandhi", "Howrah time was the railways'; Porbandar kept its own"},
        {"Martin Luther King", "Georgia kept Central time until 1941"},
    };
    const RecordList names = ReadNamesFile(Path(DELIVERED_DATA_DIR) / "NAMES.FIL");
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto entry = EntryFromRecord(NameRecordAt(names, i));
        ASSERT_TRUE(entry);
        const auto found = ReadingsOfEntry(Book(), *entry);
        ASSERT_TRUE(found) << entry->name;
        const bool agrees = found->WithZone(LeadingNumber(entry->timeZone)) != nullptr;
        EXPECT_EQ(!agrees, reasons.contains(entry->name)) << entry->name;
    }
}

}  // namespace
}  // namespace tolvanis
