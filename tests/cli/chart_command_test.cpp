#include "cli/chart_command.h"

#include <gmock/gmock.h>

#include <regex>
#include <set>
#include <sstream>

#include "app/app_directory.h"
#include "app/desktop_arguments.h"
#include "app/options_file.h"
#include "app/wheel_command.h"
#include "platform/file_replacing.h"
#include "support.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

struct Outcome {
    ExitStatus status = kAllComputed;
    std::string output;
    std::string errors;
};

const HostTime kHost = {HostClock, {}};

Outcome RunWith(std::vector<std::string_view> arguments, const Path& appDirectory = DELIVERED_DATA_DIR,
                Clock clock = HostClock) {
    const std::string directory = appDirectory.string();
    arguments.insert(arguments.end(), {"--app-dir", directory});
    const auto request = ParseCommandLine(arguments);
    EXPECT_TRUE(request) << request.message();
    Outcome outcome;
    std::ostringstream errors;
    const Sink sink = [&](std::string_view text) {
        outcome.output += text;
        return true;
    };
    outcome.status = RunChartCommand(*request, sink, errors, {clock, {}});
    outcome.errors = errors.str();
    return outcome;
}

// Whole listings approved by comparison with an independent implementation of the same theory: a northern
// chart, a southern one, one before the calendar reform and one at the equator on 0 longitude. The drawing in
// characters agrees with the first of them.
TEST(ChartCommand, ApprovedListings) {
    const struct {
        std::string_view file, record, houses, format;
    } cases[] = {
        {"new_york_placidus.txt", kAnnSmith, "P", "text"},
        {"new_york_ascii.txt", kAnnSmith, "P", "ascii"},
        {"sydney_koch.txt", "Zoë Ångström,31 Dec 1999,11.59,P,-11,-151.13,-33.52", "K", "text"},
        {"julian_regiomontanus.txt", "Before the reform,4 Oct 1582,12.30,A,-0.25,-004.00,52.05", "R", "text"},
        {"equator_campanus.txt", "Nought,1 Jan 2000,12.00,P,0,000.00,00.00", "C", "text"}};
    for (const auto& c : cases) {
        const Outcome outcome = RunWith({"--birth", c.record, "--houses", c.houses, "--format", c.format});
        EXPECT_EQ(outcome.output, FileContent(std::string(TEST_DATA_DIR "/listings/").append(c.file)))
            << c.file;
    }
}

// 2 January 2026, 3.30 hours of Universal Time and two seconds.
std::time_t EarlyInTheYear() {
    return 1767324602;
}

// Each line says what differs, and by how much the Ascendant moves; the status says whether anything does.
TEST(ChartCommand, ZonesOfANamesFileAreChecked) {
    const ScratchDirectory directory;
    const std::string at = ",073.59,40.45\r\n";
    const std::string right = "Right,14 Jul 1951,9.30,A,4" + at;
    const auto names =
        directory
            .Write("z.fil", right + "Off,14 Jul 1951,9.30,A,5" + at + "Gap,29 Apr 1951,2.30,A,5" + at +
                                "Twice,30 Sep 1951,1.30,A,6" + at +
                                "Sea,14 Jul 1951,9.30,A,5,033.59,40.45\r\n")
            .string();
    const Outcome checked = RunWith({"--check-zones", "--names", names});
    EXPECT_EQ(checked.status, kSomethingRefused);
    const std::string city = "New York City, New York, United States; zone ";
    const std::string grade = "Reference city: the clocks of New York City are on record";
    EXPECT_EQ(checked.output, names + ":2: Off: zone 5; in force at " + city +
                                  "4, daylight saving (EDT): Ascendant -11d 52m. " + grade + "\n" + names +
                                  ":3: Gap: zone 5; this time did not exist at " + city +
                                  "5, standard time (EST): Ascendant +0d 00m. " + grade +
                                  "; zone 4, daylight saving (EDT): Ascendant -22d 29m. " + grade + "\n" +
                                  names + ":4: Twice: zone 6; in force at " + city +
                                  "4, daylight saving (EDT): Ascendant -23d 34m. " + grade +
                                  "; zone 5, standard time (EST): Ascendant -11d 45m. " + grade + "\n" +
                                  names + ":5: Sea: no place within 60 km is known\n");
    directory.Write("z.fil", "\x1b[31mX,22 Sep 1949,9.05,A,4" + at + "Y,22 Sep 1949,9.75,A,1e300" + at);
    const Outcome odd = RunWith({"--check-zones", "--names", names});
    EXPECT_EQ(odd.status, kSomethingRefused);
    EXPECT_EQ(odd.output.find('\x1b'), std::string::npos) << "nothing in a file controls a terminal";
    EXPECT_LT(odd.errors.size(), 200U) << "no text without end";
    EXPECT_THAT(odd.errors, HasSubstr(":2: ")) << "what is no birth is not said to be in the sea";
    const std::string xinjiang = ",-87.36,43.48\r\n";
    directory.Write("z.fil", right + "Legal,1 Jul 1985,12.00,P,-8" + xinjiang +
                                 "Local,1 Jul 1985,12.00,P,-6" + xinjiang +
                                 "Legal summer,1 Jul 1987,12.00,P,-9" + xinjiang);
    const Outcome agreed = RunWith({"--check-zones", "--names", names});
    EXPECT_EQ(agreed.status, kAllComputed);
    EXPECT_EQ(agreed.output + agreed.errors, "");
}

// A place whose zone the zone history does not have is no place where a time came twice or never.
TEST(ChartCommand, AnUnknownZoneIsSaidToBeUnknown) {
    const ScratchDirectory directory;
    std::filesystem::copy(DELIVERED_DATA_DIR "/OPTIONS.OPT", directory.path());
    directory.Write("ZONES.DAT", "V 2026-01-01\nZ A/B 1 - CET\n# end\n");
    directory.Write("ATLAS.DAT", "Z A/Gone\nC US\tUnited States\nR GA\tGeorgia\nTown\t0\t0\t9\t0\n# end\n");
    const std::string born = "Ann,22 Sep 1949,9.05,A", rest = ",0,000.00,00.00";
    const std::string names = directory.Write("z.fil", born + rest + "\r\n").string();
    const std::string unknown = ": the zone history knows nothing of the zone A/Gone\n";
    const Outcome checked = RunWith({"--check-zones", "--names", names}, directory.path());
    EXPECT_EQ(checked.status, kAllComputed) << "what is not known does not differ";
    EXPECT_EQ(checked.output, names + ":1: Ann" + unknown);
    for (const std::string_view when : {"--birth=Ann,22 Sep 1949,9.05,A", "--now"}) {
        const Outcome placed = RunWith({when, "--at", "Town"}, directory.path());
        EXPECT_EQ(placed.status, kSomethingRefused) << when;
        EXPECT_EQ(placed.errors, "--at" + unknown);
        EXPECT_EQ(RunWith({when, "--at", "Town", "--zone", "0"}, directory.path()).status, kAllComputed);
    }
}

// What a window would show its user goes unseen here, and is refused.
TEST(ChartCommand, FieldsThatCanBeMisreadAreRefused) {
    const ScratchDirectory directory;
    const std::string start = "Ann,22 Sep 1949,9.05,";
    for (const char* halfDay : {"AM", "A.M.", "", "Q"}) {
        const std::string birth = start + halfDay + ",5,073.59,40.45";
        EXPECT_THAT(RunWith({"--birth", birth}).errors, HasSubstr("is neither A nor P")) << halfDay;
        const std::string names = directory.Write("n.fil", birth + "\r\n").string();
        EXPECT_THAT(RunWith({"--names", names}).errors, HasSubstr("n.fil:1: field 4")) << halfDay;
    }
    EXPECT_EQ(RunWith({"--birth", start + "p,5,073.59,40.45"}).status, kAllComputed);
    EXPECT_THAT(RunWith({"--birth", "Ann,15 Mar -0150,9.05,A,5,073.59,40.45"}).errors,
                HasSubstr("is no date"));
    for (const auto& [place, fault] : {std::pair{"-84W23,33N45,5", "no longitude"},
                                       {"W8423,33N45,5", "no longitude"},
                                       {"84.5,33.7,5", "no longitude"},
                                       {"84W60,33N45,5", "no longitude"},
                                       {"184W10,33N45,5", "no longitude"},
                                       {"084W23,033N45,5", "no latitude"},
                                       {"84W23,33N4,5", "no latitude"},
                                       {"84W23,33N45,x", "no time zone"},
                                       {"84W23,33N45,5:45", "no time zone"}}) {
        const std::string cities =
            directory.Write("c.ll", std::string("Atlanta,GA,") + place + "\r\n").string();
        const Outcome outcome = RunWith({"--birth", start + "A", "--place", cities + ":Atlanta"});
        EXPECT_EQ(outcome.status, kSomethingRefused) << place;
        EXPECT_THAT(outcome.errors, HasSubstr(fault)) << place;
    }
    EXPECT_THAT(RunWith({"--now", "--place", "/none/c.ll:Rome"}).errors,
                HasSubstr("Cannot read the file /none/c.ll"));
}

TEST(ChartCommand, PlacedBirthsTellPlaceAndZone) {
    const Outcome outcome =
        RunWith({"--birth", "Ann,14 Jul 1951,9.30,A,5,0,0", "--at", "New York City", "--format", "json"});
    EXPECT_EQ(outcome.status, kAllComputed);
    EXPECT_THAT(
        outcome.output,
        HasSubstr("\"zone\":4,\"place\":{\"name\":\"New York City\",\"region\":\"New York\","
                  "\"country\":\"United States\",\"longitude\":74.006,\"latitude\":40.714333333333336,"
                  "\"zoneName\":\"America/New_York\"},\"zoneKind\":\"daylight\",\"zoneGrade\":\"reference\","
                  "\"zoneRelease\":\"2026-07-21\""));
}

// What a user may have got wrong or should doubt is said, and what no entry can hold is refused.
TEST(ChartCommand, PlacedBirthsTellWhatToDoubt) {
    struct Case {
        std::string_view birth, at, zone;
        ExitStatus status;
        const char* errors;
    };
    constexpr std::string_view kSummer = "X,1 Jul 2000,12,P", kTwice = "X,27 Oct 2024,2.30,A";
    const std::string inForce =
        " Paris, Île-de-France, France on 1 Jul 2000 12:00 P.M.; in force: zone -2 daylight saving (CEST)\n";
    const std::string slip = "--birth: zone 1 was not in force in" + inForce;
    const std::string beyond = "--at: zone 13 cannot be that of" + inForce;
    const Case cases[] = {
        {kSummer, "Paris, France", "-2", kAllComputed, ""},
        {kSummer, "Paris, France", "1", kAllComputed, slip.c_str()},
        {kSummer, "Paris, France", "13", kSomethingRefused, beyond.c_str()},
        {kSummer, "Paris, France", "-24", kSomethingRefused, "--at: zone -24 cannot be that of Paris"},
        {kSummer, "New York City", "-4", kSomethingRefused, "in force: zone 4 daylight saving (EDT)\n"},
        {kTwice, "Rome, Italy", "-1", kAllComputed, ""},
        {kTwice, "Rome, Italy", "5", kAllComputed,
         "; in force: zone -2 daylight saving (CEST), then zone -1 standard time (CET)\n"},
        {"X,31 Mar 2024,2.30,A", "Rome, Italy", "3", kAllComputed,
         "; the time did not exist there, around it: zone -1 standard time (CET), then zone -2 "},
        {kSummer, "Nuku'alofa", "11", kAllComputed, "the entry has 30 Jun 2000 with the zone 11\n"},
        {kSummer, "Nuku'alofa", "-14", kAllComputed,
         "in force: zone -13 standard time\n  Nuku'alofa keeps the date of the other side"},
        {kSummer, "Ürümqi", "", kAllComputed,
         "--birth: zone -6 was taken for Ürümqi, Xinjiang, China. Disputed: Xinjiang lives by two clocks"},
        {kSummer, "Ürümqi", "-8", kAllComputed, ""},
        {kSummer, "Ürümqi", "-7", kAllComputed, "zone -7 was not in force"},
        {"X,1 Jul 1955,12,P", "Lyon", "", kAllComputed,
         "Not certain: before 1970 the record is that of Paris"},
        {kSummer, "Newport, Wales", "", kAllComputed,
         "--birth: Newport, Wales, United Kingdom (3W00 51N35, population 306844) was taken; smaller places "
         "have the same name\n"},
    };
    for (const Case& test : cases) {
        std::vector<std::string_view> arguments = {"--birth", test.birth, "--at", test.at};
        if (!test.zone.empty()) arguments.insert(arguments.end(), {"--zone", test.zone});
        const Outcome outcome = RunWith(arguments);
        EXPECT_EQ(outcome.status, test.status) << test.at << test.zone;
        EXPECT_THAT(outcome.errors, HasSubstr(test.errors)) << test.at << test.zone;
        EXPECT_EQ(outcome.errors.empty(), *test.errors == '\0') << outcome.errors;
    }
}

// Now is read on the clock of the place, or of the home: west of Greenwich it is earlier, east of it later.
// The houses are those of option 27.
TEST(ChartCommand, NowIsThePlacesOwn) {
    const ScratchDirectory directory;
    directory.Write("P.LL", "West,X,70W00,10N00,4.5\r\nEast,X,70E00,10S00,-5.75\r\n");
    std::string options;
    for (int n = 1; n <= 31; ++n) {
        options += std::string(n == 18 ? "5" : n == 27 ? "3" : n == 28 ? "2" : "1") + "\r\n";
    }
    directory.Write("OPTIONS.OPT", options);
    const auto run = [&](std::vector<std::string_view> arguments) {
        return RunWith(std::move(arguments), directory.path(), EarlyInTheYear).output;
    };
    EXPECT_THAT(run({"--now", "--place", "P.LL:West"}), HasSubstr("01 Jan 2026    TZ = 4.5      11.00 P.M."));
    EXPECT_THAT(run({"--now", "--place", "P.LL:East"}), HasSubstr("02 Jan 2026    TZ = -5.8      9.15 A.M."));
    EXPECT_THAT(run({}), HasSubstr("01 Jan 2026    TZ = 5.0      10.30 P.M."));
    EXPECT_THAT(run({}), HasSubstr("HOUSE CUSPS - Koch"));
    EXPECT_THAT(RunWith({}, directory.path(), EarlyInTheYear).errors,
                HasSubstr("OPTIONS.OPT ends after 31 of 196 lines"));
    const auto at = [](std::vector<std::string_view> arguments) {
        arguments.insert(arguments.begin(), {"--now", "--at"});
        return RunWith(std::move(arguments), DELIVERED_DATA_DIR, EarlyInTheYear).output;
    };
    EXPECT_THAT(at({"Chicago, IL"}), HasSubstr("01 Jan 2026    TZ = 6.0      9.30 P.M."));
    EXPECT_THAT(at({"Chicago, IL", "--zone", "5"}), HasSubstr("01 Jan 2026    TZ = 5.0      10.30 P.M."));
}

TEST(ChartCommand, AFileIsReplacedByChartsOrNotAtAll) {
    const ScratchDirectory directory;
    const auto file = directory.Write("charts.txt", "of yesterday");
    const auto run = [&](std::string_view names) {
        const auto request = ParseCommandLine(std::vector<std::string_view>{
            "--names", names, "--app-dir", DELIVERED_DATA_DIR, "--format", "json"});
        std::ostringstream errors;
        return std::pair{RunChartCommandIntoFile(*request, file, errors, kHost), errors.str()};
    };
    const auto [status, errors] = run("/no/such/file");
    EXPECT_EQ(status, kSomethingRefused);
    EXPECT_EQ(errors, "/no/such/file: cannot be read: No such file or directory\n");
    EXPECT_EQ(FileContent(file), "of yesterday");
    const auto list = directory.Write("my.fil", "Zoe" + kRest);
    const auto itself = ParseCommandLine(
        std::vector<std::string_view>{"--names", list.native(), "--app-dir", DELIVERED_DATA_DIR});
    std::ostringstream told;
    EXPECT_EQ(RunChartCommandIntoFile(*itself, directory / "my.fil", told, kHost), kSomethingRefused);
    EXPECT_THAT(told.str(), HasSubstr("my.fil, which is read"));
    EXPECT_EQ(FileContent(list), "Zoe" + kRest);
    EXPECT_EQ(run(DELIVERED_DATA_DIR "/NAMES.FIL").first, kAllComputed);
    EXPECT_EQ(FileContent(file),
              RunWith({"--names", DELIVERED_DATA_DIR "/NAMES.FIL", "--format", "json"}).output);
}

TEST(ChartCommand, NothingThatIsReadIsReplaced) {
    const ScratchDirectory directory;
    for (const char* name : {"OPTIONS.OPT", "EUROPE.LL", "NAMES.FIL"})
        std::filesystem::copy(Path(DELIVERED_DATA_DIR) / name, directory.path());
    const std::string app = directory.path().string();
    const std::string names = app + "/NAMES.FIL", cities = app + "/EUROPE.LL:Berlin";
    const std::pair<std::vector<std::string_view>, const char*> cases[] = {
        {{"--now"}, "options.opt"},
        {{"--place", cities}, "EUROPE.LL"},
        {{"--place", "EUROPE.LL:Berlin"}, "EUROPE.LL"},
        {{"--names", names}, "NAMES.FIL"}};
    for (const auto& [arguments, output] : cases) {
        auto all = arguments;
        all.insert(all.end(), {"--app-dir", app});
        const Path file = FindFile(directory.path(), output);
        const std::string before = FileContent(file);
        std::ostringstream errors;
        EXPECT_EQ(RunChartCommandIntoFile(*ParseCommandLine(all), file, errors, kHost), kSomethingRefused);
        EXPECT_THAT(errors.str(), HasSubstr("which is read"));
        EXPECT_EQ(FileContent(file), before);
    }
    const Path picture = directory / "NAMES.svg";
    std::filesystem::copy(names, picture);
    const auto wheel = ParseWheelArguments(std::vector<std::string_view>{
        "--wheel", picture.native(), "--names", picture.native(), "--name", "Frida Kahlo", "--app-dir", app});
    EXPECT_THAT(PrepareWheel(*wheel, kHost).message(), HasSubstr("which is read"));
}

// Title page and one page of text for each birth, from the texts and the personal block of the directory
// given.
TEST(ChartCommand, ReportsFollowOneAnotherInPages) {
    const ScratchDirectory directory;
    std::filesystem::copy(DELIVERED_DATA_DIR "/OPTIONS.OPT", directory.path());
    directory.Write("PERSONAL.NAM", "Ann\r\n");
    directory.Write("philo.hlp", "out\x1Blook\x7F\r\n");
    const auto names = directory.Write("A.FIL", "Zoe" + kRest + "Max" + kRest);
    const auto request = ParseCommandLine(std::vector<std::string_view>{
        "--names", names.native(), "--format", "report", "--app-dir", directory.path().native()});
    std::string output;
    std::ostringstream errors;
    const Sink sink = [&](std::string_view text) { return !output.append(text).empty(); };
    EXPECT_EQ(RunChartCommand(*request, sink, errors, kHost), kAllComputed) << errors.str();
    const std::string data =
        "\n\n\n       22 SEP 1949    TZ = 5.0      9.05 A.M.   40.45 NORTH    73.59 WEST\n";
    std::string expected;
    for (const char* name : {"ZOE", "MAX"}) {
        expected += std::string(5, '\n') + std::string(32, ' ') + "NATAL REPORT FOR\n\n" +
                    std::string(39, ' ') + name + data + std::string(49, '\n') + std::string(39, ' ') +
                    "Ann\n" + std::string(5, '\n') + "\f\n";
        expected += std::string(5, '\n') + "out look \n" + std::string(59, '\n') + std::string(37, ' ') +
                    "Page 2\n\f\n";
    }
    EXPECT_EQ(output, expected);
}

TEST(ChartCommand, RefusedRecordsAreNamedAndTheOthersComputed) {
    const ScratchDirectory directory;
    const auto file = directory.Write("A.FIL",
                                      "Good,22 Sep 1949,9.05,A,5,073.59,40.45\r\n"
                                      "Short,22 Sep 1949,9.05\r\n"
                                      "Zone,22 Sep 1949,9.05,A,EST,073.59,40.45\r\n"
                                      "Month,22 Sep 2149,9.75,A,5,073.59,40.45\r\n"
                                      "Pole,22 Sep 1949,9.05,A,5,073.59,66.01\r\n"
                                      "Last,22 Sep 1949,9.05,A,5,073.59,40.45\r\n"
                                      ",\r\n"
                                      "Never read\r\n");
    const Outcome outcome = RunWith({"--names", file.native(), "--format", "json"});
    EXPECT_EQ(outcome.status, kSomethingRefused);
    EXPECT_EQ(std::count(outcome.output.begin(), outcome.output.end(), '\n'), 2);
    EXPECT_THAT(outcome.output, StartsWith("{\"name\":\"Good\",\"year\":1949,\"month\":9,\"day\":22,"));
    EXPECT_THAT(outcome.output, HasSubstr("{\"name\":\"Last\""));
    const std::string name = file.string();
    EXPECT_EQ(outcome.errors,
              name + ":2: the record has 3 fields instead of 7\n" + name +
                  ":3: field 5 (time zone): \"EST\" is no number\n" + name +
                  ":4: birth year 2149 is above 2099\n" + name + ":4: birth minute 75 is above 59\n" + name +
                  ":5: latitude 66.01 is above 66.00, where only Meridian and Morinus houses are computed\n");
    EXPECT_EQ(RunWith({"--names", file.native(), "--houses", "M", "--name", "Pole"}).status, kAllComputed);
    EXPECT_THAT(RunWith({"--names", file.native(), "--name", "good"}).errors,
                HasSubstr("no record with the name \"good\""));
    EXPECT_THAT(RunWith({"--names", (directory / "NONE.FIL").native()}).errors, HasSubstr("No such file"));
    EXPECT_THAT(RunWith({"--names", "/dev/zero"}).errors, HasSubstr("/dev/zero: cannot be read: line 1 has"));
    directory.Write("LATIN.FIL", "Ren\xE9\x1B[2J,22 Sep 1949,9.05,A,5,073.59,40.45\r\n");
    const Outcome latin =
        RunWith({"--names", (directory / "LATIN.FIL").native(), "--name", "Ren\xE9\x1B[2J"});
    EXPECT_EQ(latin.status, kAllComputed) << latin.errors;
    EXPECT_THAT(latin.output, HasSubstr("  René [2J\n"));
    EXPECT_THAT(RunWith({"--names", directory.path().native()}).errors, HasSubstr("Is a directory"));
    const auto damaged = directory.Write("damaged.fil", "Ann,22 Sep 1949,9.05,A\r\n");
    const auto wide = directory.Write("wide.fil", std::string("\xFF\xFEN\0e\0\n\0w\0", 10));
    EXPECT_EQ(RunWith({"--names", wide.native()}).errors,
              wide.string() + ":1: the file is not a names file: it holds bytes that no text has\n");
    EXPECT_THAT(RunWith({"--names", damaged.native(), "--name", "Ann"}).errors,
                HasSubstr("4 fields instead of 7"));
}

// A text and its numbers apart, so that the last bits of a mathematics library do not matter.
std::pair<std::string, std::vector<double>> TakenApart(const std::string& json) {
    static const std::regex kNumber(R"(-?\d+(\.\d+)?(e[-+]?\d+)?)");
    std::vector<double> numbers;
    for (std::sregex_iterator match(json.begin(), json.end(), kNumber), end; match != end; ++match) {
        numbers.push_back(std::stod(match->str()));
    }
    return {std::regex_replace(json, kNumber, "#"), numbers};
}

// Nine births, one in each house system, with every member at full precision, as an independent
// implementation of the same theory gives them.
TEST(ChartCommand, ApprovedJson) {
    const std::string records[] = {
        "A \"B\" \\,1 Jan 2000,12.00,P,0,000.00,51.30", "Ann,22 Sep 1949,9.05,A,5,073.59,40.45",
        "South,31 Dec 2099,11.59,P,-11,-151.13,-33.52", "Julian,4 Oct 1582,12.30,A,-0.25,-004.00,52.05",
        "Early,17 Mar 277,6.45,P,-1.63,-024.31,35.20",  "Equator,29 Feb 1860,3.00,A,5.2,078.31,-00.13",
        "Sixties,5 Feb 1962,8.10,A,0,000.10,51.30",     "Polar,21 Jun 1931,1.15,P,-1,-025.40,66.00",
        "Arctic,7 Nov 1913,2.00,A,-12,-179.59,78.13",
    };
    std::string json;
    for (std::size_t i = 0; i < std::size(records); ++i) {
        json += RunWith({"--birth", records[i], "--houses", HouseSystemCode(kHouseSystems[i].system),
                         "--format", "json"})
                    .output;
    }
    const auto [text, numbers] = TakenApart(json);
    const auto [approvedText, approved] = TakenApart(FileContent(TEST_DATA_DIR "/listings/births.jsonl"));
    EXPECT_EQ(text, approvedText);
    ASSERT_EQ(numbers.size(), approved.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) EXPECT_NEAR(numbers[i], approved[i], 1e-9) << i;
}

TEST(ChartCommand, APlaceStandsForItsCoordinatesAndZone) {
    const std::string_view born = "Ann,22 Sep 1949,9.05,A";
    const std::string expected = RunWith({"--birth", "Ann,22 Sep 1949,9.05,A,-5.75,-085.19,27.42"}).output;
    ASSERT_THAT(expected, HasSubstr("27.42 NORTH"));
    const std::string path = DELIVERED_DATA_DIR "/ASIA.LL:Kathmandu";
    for (const std::string& place : {path, std::string("asia.ll:KATHMANDU,nepal")}) {
        for (const std::string_view rest : {"", ",,,", ",5,073.59,40.45"}) {
            const std::string record = std::string(born).append(rest);
            EXPECT_EQ(RunWith({"--birth", record, "--place", place}).output, expected) << place << record;
        }
    }
    EXPECT_THAT(RunWith({"--place", path}).output, HasSubstr("85.19 EAST"));
    EXPECT_THAT(RunWith({"--birth", born, "--place", "GA_MA.LL:Aberdeen"}).errors, HasSubstr("ID, IN, MD"));
    EXPECT_THAT(RunWith({"--birth", born, "--place", "NONE.LL:Rome"}).errors, HasSubstr("No such file"));
    EXPECT_THAT(RunWith({"--birth", "Ann,22 Sep 1949", "--place", path}).errors, HasSubstr("2 fields"));
}

// The modern listing has one line more, and the option decides where no argument does.
TEST(ChartCommand, TheTheoryIsChosenAndShown) {
    const auto lines = [](std::string_view record, std::string_view theory) {
        std::istringstream text(RunWith({"--birth", record, "--theory", theory}).output);
        std::vector<std::string> found;
        for (std::string line; std::getline(text, line);) found.push_back(line);
        return found;
    };
    const auto classic = lines(kAnnSmith, "classic");
    const auto modern = lines(kAnnSmith, "modern");
    EXPECT_EQ(RunWith({"--birth", kAnnSmith, "--theory=classic"}).output,
              RunWith({"--birth", kAnnSmith}).output);
    EXPECT_EQ(modern.at(3), "  Modern positions    Delta T = 28.8 seconds");
    EXPECT_THAT(classic.at(13), StartsWith("  29 VIR 13m 25s   SUN "));
    EXPECT_THAT(modern.at(14), StartsWith("  29 VIR 13m 27s   SUN "));
    EXPECT_THAT(classic.at(33), HasSubstr("MC  Asc  P.F"));
    EXPECT_EQ(modern.at(34), classic.at(33));
    EXPECT_EQ(lines("Old,1 Jan 1500,9.05,A,0,0,51.30", "modern").at(3),
              "  Modern positions    Delta T = 292.3 seconds    Pluto by the classic series");

    const std::string json = RunWith({"--birth", kAnnSmith, "--theory", "modern", "--format", "json"}).output;
    EXPECT_THAT(json, HasSubstr("\"theory\":\"modern\",\"julianDay\":2433182.086"));
    EXPECT_THAT(json, HasSubstr(",\"deltaT\":28.8"));
    EXPECT_THAT(json, Not(HasSubstr("\"remark\"")));
    EXPECT_THAT(
        RunWith({"--birth", "Old,1 Jan 1500,9.05,A,0,0,51.30", "--theory", "modern", "--format", "json"})
            .output,
        HasSubstr("\"remark\":\"Pluto by the classic series\""));
    const auto refused = ParseCommandLine(std::vector<std::string_view>{"--theory", "newest"});
    EXPECT_EQ(refused.message(), "unknown theory \"newest\" (classic or modern)");

    Options options;
    BirthArguments asked;
    for (const auto& [value, theory] :
         {std::pair{0.0F, Theory::Classic}, {1.0F, Theory::Modern}, {2.0F, Theory::Classic}}) {
        options[26] = value;
        EXPECT_EQ(MethodOf(asked, options).theory, theory) << value;
    }
    asked.theory = Theory::Modern;
    EXPECT_EQ(MethodOf(asked, options).theory, Theory::Modern);
}

TEST(WheelCommand, ArgumentsAndBirths) {
    const std::vector<std::string_view> good = {
        "--type=european", "--wheel=a.svg", "--size",           "700",      "--birth",
        kAnnSmith,         "--app-dir",     DELIVERED_DATA_DIR, "--houses", "K"};
    auto wheel = ParseWheelArguments(good);
    ASSERT_TRUE(wheel) << wheel.message();
    EXPECT_EQ(wheel->type, ChartType::European);
    EXPECT_EQ(wheel->size, 700);
    EXPECT_EQ(PrepareWheel(*wheel, kHost)->chart.TitleLines[6], "Koch");
    wheel->birth = "Ann,22 Sep 1949,9.05,A,5,073.59,70.45";
    EXPECT_THAT(PrepareWheel(*wheel, kHost).message(), HasSubstr("--birth: "));
}

// Without --houses the options choose; the ring takes the orbs of the directory.
TEST(WheelCommand, TakesHousesAndOrbsFromTheDirectory) {
    const ScratchDirectory directory;
    for (const char* name : {"OPTIONS.OPT", "HCDATA.DAT", "RADIUS.DAT"}) {
        std::filesystem::copy(std::string(DELIVERED_DATA_DIR "/") + name, directory.path());
    }
    Options options;
    ASSERT_TRUE(ReadOptions(DataFiles(directory.path()), options));
    std::string lines;
    for (int option = 1; option <= kOptionCount; ++option) {
        const float value = option == 27 ? 5.0F : option == 28 ? 2.0F : options[option];
        lines += NumberText(value) + "\r\n";
    }
    directory.Write("OPTIONS.OPT", lines);
    directory.Write("NATAL.ORB", "3.5\r\n");
    const std::string place = directory.path().string();
    const auto wheel = ParseWheelArguments(std::vector<std::string_view>{
        "--wheel=a.svg", "--birth", kAnnSmith, "--app-dir", place, "--type", "ring"});
    ASSERT_TRUE(wheel) << wheel.message();
    EXPECT_EQ(wheel->type, ChartType::ZodiacRing);
    const auto picture = PrepareWheel(*wheel, kHost);
    ASSERT_TRUE(picture) << picture.message();
    EXPECT_EQ(picture->chart.TitleLines[6], "Porphyry");
    EXPECT_EQ(picture->orbs[1], 3.5F);
}

TEST(ChartCommand, WrongUsageIsExplained) {
    struct Case {
        std::vector<std::string_view> arguments;
        std::string fault;
    };
    const Case cases[] = {
        {{"--bogus"}, "unknown argument \"--bogus\""},
        {{"file"}, "unknown argument \"file\""},
        {{"--birth"}, "--birth needs a value"},
        {{"--output="}, "--output needs a value"},
        {{"--app-dir", ""}, "--app-dir needs a value"},
        {{"--houses", "X"}, "unknown house system \"X\""},
        {{"--format", "xml"}, "unknown format \"xml\""},
        {{"--now", "--birth", "x"}, "only one of"},
        {{"--now=3"}, "unknown argument \"--now=3\""},
        {{"--birth", "a", "--birth", "b"}, "--birth is given twice"},
        {{"--houses=P", "--houses", "K"}, "--houses is given twice"},
        {{"--names", "f", "--check-zones", "--format", "json"}, "--check-zones computes no charts"},
        {{"--help=3"}, "unknown argument \"--help=3\""},
        {{"--name", "Ann"}, "--name needs --names"},
        {{"--place", "Rome"}, "--place needs FILE:CITY"},
        {{"--place", "a:"}, "--place needs FILE:CITY"},
        {{"--names", "f", "--place", "a:b"}, "--place goes"}};
    for (const Case& c : cases) {
        EXPECT_THAT(ParseCommandLine(c.arguments).message(), HasSubstr(c.fault));
    }
    const Case wheelCases[] = {
        {{"--wheel"}, "--wheel needs a value"},
        {{"--wheel", "a.svg", "--wheel=b.svg"}, "--wheel is given twice"},
        {{"--wheel", "a.svg", "--type", "round"}, "unknown chart type"},
        {{"--wheel", "a.svg", "--size", "99"}, "--size needs a whole number of pixels"},
        {{"--wheel", "a.svg", "--size", "100.7"}, "--size needs a whole number"},
        {{"--wheel", "a.svg", "--size", "big"}, "--size needs a whole number"},
        {{"--wheel", "a.svg", "--names", "f"}, "--names needs --name"},
        {{"--wheel", "a.jpg"}, "a picture's name ends in .svg, .pdf or .png"},
        {{"--wheel", "a.svg", "--format", "text"}, "unknown argument"}};
    for (const Case& c : wheelCases) {
        EXPECT_THAT(ParseWheelArguments(c.arguments).message(), HasSubstr(c.fault));
    }
    EXPECT_EQ(ParseCommandLine(std::vector<std::string_view>{"--houses=ea"})->houses, HouseSystem::EqualAsc);
}

// Every option that a text mentions; in a manual page the hyphens are escaped.
std::set<std::string> OptionsIn(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '\\'), text.end());
    const std::regex option("--[a-z-]+");
    return {std::sregex_token_iterator(text.begin(), text.end(), option), std::sregex_token_iterator()};
}

TEST(ManualPages, TellEveryOptionOfTheUsageTexts) {
    const std::string pages = DELIVERED_DATA_DIR "/../packaging/man/";
    EXPECT_EQ(OptionsIn(FileContent(pages + "tolvanis-chart.1")), OptionsIn(std::string(kUsage)));
    EXPECT_EQ(OptionsIn(FileContent(pages + "tolvanis.1")), OptionsIn(std::string(kDesktopUsage)));
}

std::string ScratchNames(const std::filesystem::path& directory) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    std::string text;
    for (const std::string& name : names) text += (text.empty() ? "" : " ") + name;
    return text;
}

TEST(AppDirectory, ChosenInOrder) {
    const ScratchDirectory scratch;
    for (const auto* name : {"given", "environment", "prefix/bin", "prefix/share/tolvanis"}) {
        std::filesystem::create_directories(scratch / name);
    }
    scratch.Write("prefix/share/tolvanis/OPTIONS.OPT", "8 orb\r\n");
    scratch.Write("prefix/share/tolvanis/NAMES.FIL", "delivered\r\n");
    DirectoryHints hints{std::nullopt, std::nullopt, scratch / "prefix/bin", scratch / "home/tolvanis"};

    EXPECT_EQ(ApplicationDirectory(hints, FirstStart::LeaveAsIs)->directory(),
              scratch / "prefix/share/tolvanis");
    EXPECT_FALSE(std::filesystem::exists(scratch / "home"));

    std::filesystem::create_directories(scratch / "home/tolvanis");
    scratch.Write("home/tolvanis/names.fil", "mine\r\n");
    EXPECT_EQ(ApplicationDirectory(hints, FirstStart::FillUserDirectory)->directory(), hints.userDirectory);
    EXPECT_EQ(FileContent(scratch / "home/tolvanis/names.fil"), "mine\r\n");
    EXPECT_FALSE(std::filesystem::exists(scratch / "home/tolvanis/NAMES.FIL"));
    EXPECT_EQ(ApplicationDirectory(hints, FirstStart::LeaveAsIs)->directory(), hints.userDirectory);

    scratch.Write("prefix/bin/options.opt", "portable\r\n");
    EXPECT_EQ(ApplicationDirectory(hints, FirstStart::FillUserDirectory)->directory(),
              hints.programDirectory);
    hints.fromEnvironment = (scratch / "environment").string();
    EXPECT_EQ(ApplicationDirectory(hints, FirstStart::FillUserDirectory)->directory(),
              scratch / "environment");
    hints.fromCommandLine = (scratch / "GIVEN").string();
    EXPECT_EQ(ApplicationDirectory(hints, FirstStart::FillUserDirectory)->directory(), scratch / "given");
    hints.fromCommandLine = "/no/such/place";
    EXPECT_THAT(ApplicationDirectory(hints, FirstStart::LeaveAsIs).message(), HasSubstr("/no/such/place"));
}

TEST(AppDirectory, TheProcessGivesTheHints) {
    const struct {
        const char *own, *data, *home;
        std::optional<std::string> fromEnvironment;
        Path userDirectory;
    } cases[] = {{"/own", "/data", "/home/me", "/own", "/data/tolvanis"},
                 {nullptr, "data", "/home/me", std::nullopt, "/home/me/.local/share/tolvanis"},
                 {nullptr, nullptr, nullptr, std::nullopt, ""}};
    const std::array names = {"TOLVANIS_DIR", "XDG_DATA_HOME", "HOME"};
    std::array<std::optional<std::string>, 3> kept;
    const auto set = [&](std::size_t i, const char* value) {
        value != nullptr ? ::setenv(names[i], value, 1) : ::unsetenv(names[i]);
    };
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (const char* value = std::getenv(names[i])) kept[i] = value;
    }
    for (const auto& test : cases) {
        const std::array values = {test.own, test.data, test.home};
        for (std::size_t i = 0; i < names.size(); ++i) set(i, values[i]);
        const DirectoryHints hints = HintsOfProcess("/line");
        EXPECT_EQ(hints.fromCommandLine, "/line");
        EXPECT_EQ(hints.fromEnvironment, test.fromEnvironment);
        EXPECT_EQ(hints.userDirectory, test.userDirectory);
        EXPECT_TRUE(std::filesystem::exists(hints.programDirectory / "engine_tests"));
    }
    for (std::size_t i = 0; i < names.size(); ++i) set(i, kept[i] ? kept[i]->c_str() : nullptr);
}

// A user's directory that an earlier version has filled: what the user edits stays, what is delivered for
// reading comes from the present version unless the user has changed it.
TEST(AppDirectory, AnUpgradeReachesTheUser) {
    const ScratchDirectory scratch;
    for (const auto* name : {"prefix/bin", "prefix/share/tolvanis", "home"}) {
        std::filesystem::create_directories(scratch / name);
    }
    const std::string formerBlock = FileContent(TEST_DATA_DIR "/former/PRNTFILE.HLP");
    ASSERT_FALSE(formerBlock.empty());
    for (const auto* name : {"OPTIONS.OPT", "NATAL.ORB", "PRNTFILE.HLP", "HINTS.HLP", "NEW.HLP", "TZ.DAT"}) {
        scratch.Write("prefix/share/tolvanis/" + std::string(name), "8 new\r\n");
    }
    scratch.Write("home/OPTIONS.OPT", "9 mine\r\n");
    scratch.Write("home/prntfile.hlp", formerBlock);
    scratch.Write("home/HINTS.HLP", "my own hints\r\n");
    const DirectoryHints hints{std::nullopt, std::nullopt, scratch / "prefix/bin", scratch / "home"};
    const auto files = ApplicationDirectory(hints, FirstStart::FillUserDirectory);
    ASSERT_TRUE(files) << files.message();
    EXPECT_EQ(ScratchNames(scratch / "home"), "HINTS.HLP NATAL.ORB OPTIONS.OPT prntfile.hlp");
    EXPECT_EQ(FileContent(files->Own("OPTIONS.OPT")), "9 mine\r\n");
    EXPECT_EQ(FileContent(files->FindText("HINTS.HLP")), "my own hints\r\n");
    for (const auto* name : {"PRNTFILE.HLP", "new.hlp", "TZ.DAT"}) {
        EXPECT_EQ(FileContent(files->FindText(name)), "8 new\r\n") << name;
    }
    std::string oneLetter = formerBlock;
    oneLetter[oneLetter.size() / 2] ^= 1;
    scratch.Write("home/prntfile.hlp", oneLetter);
    EXPECT_EQ(FileContent(files->FindText("PRNTFILE.HLP")), oneLetter)
        << "one letter changed is the user's own";
    scratch.Write("home/prntfile.hlp", formerBlock);
    // A directory that was named stands for itself where texts are concerned, and borrows tables.
    const DataFiles named(scratch / "home", scratch / "prefix/share/tolvanis");
    EXPECT_EQ(FileContent(named.FindText("PRNTFILE.HLP")), formerBlock);
    EXPECT_FALSE(IsReadableFile(named.FindText("NEW.HLP")));
    EXPECT_EQ(FileContent(named.Find("TZ.DAT")), "8 new\r\n");
}

// Neither a link that points nowhere nor what cannot be searched stops or loses anything.
TEST(AppDirectory, LinksAndClosedDirectoriesAreNoEnd) {
    const ScratchDirectory scratch;
    for (const auto* name : {"prefix/bin", "prefix/share/tolvanis", "home"}) {
        std::filesystem::create_directories(scratch / name);
    }
    scratch.Write("prefix/share/tolvanis/OPTIONS.OPT", "8 orb\r\n");
    scratch.Write("prefix/share/tolvanis/NAMES.FIL", "delivered\r\n");
    std::filesystem::create_symlink("/media/stick/NAMES.FIL", scratch / "home/names.fil");
    const DirectoryHints hints{std::nullopt, std::nullopt, scratch / "prefix/bin", scratch / "home"};
    EXPECT_TRUE(ApplicationDirectory(hints, FirstStart::FillUserDirectory));
    EXPECT_EQ(ScratchNames(scratch / "home"), "OPTIONS.OPT names.fil");
    EXPECT_TRUE(std::filesystem::is_symlink(scratch / "home/names.fil"));

    std::filesystem::create_symlink("loop", scratch / "loop");
    DirectoryHints looping = hints;
    looping.userDirectory = scratch / "loop/tolvanis";
    EXPECT_THAT(ApplicationDirectory(looping, FirstStart::FillUserDirectory).message(),
                HasSubstr("Too many levels"));
    std::filesystem::create_directory(scratch / "gone");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(scratch / "gone");
    std::filesystem::remove(scratch / "gone");
    looping.fromCommandLine = ".";
    EXPECT_NO_THROW(static_cast<void>(ApplicationDirectory(looping, FirstStart::LeaveAsIs)));
    std::filesystem::current_path(before);
}

TEST(DeliveredOptions, AreCompleteAndSensible) {
    EXPECT_EQ(FileContent(DELIVERED_DATA_DIR "/OPTIONS.OPT"), FileContent(DELIVERED_DATA_DIR "/OPTIONS.MAS"));
    const auto lines = ReadLines(DELIVERED_DATA_DIR "/OPTIONS.OPT");
    ASSERT_TRUE(lines);
    ASSERT_EQ(lines->size(), 196U);
    for (std::size_t i = 0; i < lines->size(); ++i) {
        const std::string& line = (*lines)[i];
        EXPECT_NE(line.find(' '), 0U);
        EXPECT_EQ(line.substr(8, 3), (i < 9 ? "  " : i < 99 ? " " : "") + std::to_string(i + 1));
        EXPECT_GT(line.size(), 15U);
    }
    Options options;
    ASSERT_TRUE(ReadOptions(DataFiles(DELIVERED_DATA_DIR), options));
    EXPECT_EQ(options[31] - options[29], 61);
    const NatalEntry now = FillNow({{2026, 1, 1}, 9, 0, 0}, options);
    EXPECT_TRUE(CheckEntry(now, HouseSystemOfOption(options[27])).empty());
    EXPECT_EQ(now.longDeg + "W" + now.longMin + " " + now.latDeg + "N" + now.latMin, "73W59 40N45");
}

TEST(DeliveredNames, AreAllComputed) {
    const Outcome outcome = RunWith({"--names", DELIVERED_DATA_DIR "/NAMES.FIL", "--format", "json"});
    EXPECT_EQ(outcome.status, kAllComputed) << outcome.errors;
    EXPECT_GE(std::count(outcome.output.begin(), outcome.output.end(), '\n'), 20);
}

}  // namespace
}  // namespace tolvanis
