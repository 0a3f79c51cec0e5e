// The delivered atlas and the advice in the natal input, as their users meet them.
#include "birthdata/qt/atlas_window.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include "app/own_atlas.h"
#include "birthdata/atlas_lookup.h"
#include "birthdata/qt/cities_window.h"
#include "birthdata/qt/natal_input_window.h"
#include "support.h"
#include "support/window_user.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

const ZoneBook& Book() {
    static const Result<ZoneBook> book = ZoneBook::Open(DataFiles(Path(DELIVERED_DATA_DIR)));
    return *book;
}

NatalEntry BirthAt(const char* year, const char* month, const char* day, const char* hour) {
    NatalEntry birth;
    birth.year = year;
    birth.month = month;
    birth.day = day;
    birth.birthHour = hour;
    birth.birthMinute = "30";
    return birth;
}

TEST(AtlasProgramTest, LeavesPlaceAndZone) {
    const ScratchDirectory directory;
    RecordedMessages messages;
    AtlasWindow window(Book(), BirthAt("1951", "7", "14", "9"), directory / "TSRTEMP.TXT", messages);
    window.show();
    EXPECT_FALSE(Find<QPushButton>(window, "cmdOK").isEnabled()) << "no place yet";
    Type(window, "txtSearch", "koeln");
    const auto& places = Find<QTreeWidget>(window, "lstPlaces");
    ASSERT_GT(places.topLevelItemCount(), 0);
    EXPECT_EQ(places.topLevelItem(0)->text(0), QStringLiteral("Köln"));
    EXPECT_TRUE(
        Find<QLabel>(window, "lblAnswer").text().contains(QStringLiteral("standard time (CET), zone -1")));
    EXPECT_TRUE(Find<QLabel>(window, "lblGrade").text().contains(QStringLiteral("Berlin")));
    Type(window, "txtYear", "1949");
    EXPECT_TRUE(Find<QLabel>(window, "lblAnswer").text().contains(QStringLiteral("zone -2")));
    Press(window, "cmdOK");
    EXPECT_EQ(window.result(), QDialog::Accepted);
    AtlasWindow lost(Book(), BirthAt("1949", "7", "14", "9"), directory / "gone/TSRTEMP.TXT", messages);
    lost.show();
    Type(lost, "txtSearch", "koeln");
    Press(lost, "cmdOK");
    EXPECT_TRUE(lost.isVisible());
    EXPECT_NE(messages.TakeTold().at(0).find("gone/TSRTEMP.TXT: No such file"), std::string::npos);
    EXPECT_EQ(FileContent(directory / "TSRTEMP.TXT"),
              "Köln, North Rhine-Westphalia, Germany\r\n50N56\r\n6E57\r\n\r\n-2\r\n");
}

TEST(AtlasProgramTest, FitsOnASmallScreen) {
    RecordedMessages messages;
    AtlasWindow window(Book(), BirthAt("1951", "7", "14", "9"), "TSRTEMP.TXT", messages);
    window.show();
    window.resize(500, 430);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.size(), QSize(500, 430));
    for (const char* control : {"txtSearch", "txtYear", "txtBirthHour", "optPM", "cmdOK", "cmdCancel"}) {
        const auto& widget = Find<QWidget>(window, control);
        const QRect place(widget.mapTo(&window, QPoint()), widget.size());
        EXPECT_TRUE(window.rect().contains(place)) << control;
    }
}

// Local mean time depends on the place: handed over, it is that of the coordinates that are handed over.
TEST(AtlasProgramTest, NothingSpeaksAgainstWhatItHandsOver) {
    const ScratchDirectory directory;
    RecordedMessages messages;
    for (const char* city : {"Wien", "Sydney", "Buenos Aires", "Kabul", "Kyiv"}) {
        AtlasWindow window(Book(), BirthAt("1850", "7", "14", "9"), directory / "TSRTEMP.TXT", messages);
        window.show();
        Type(window, "txtSearch", city);
        Press(window, "cmdOK");
        const auto lines = *ReadLines(directory / "TSRTEMP.TXT");
        NatalEntry entry = BirthAt("1850", "7", "14", "9");
        FillPlace(entry, PlaceOfAtlas({lines[2], lines[1], static_cast<float>(LeadingNumber(lines[4]))}));
        EXPECT_EQ(AdviseZone(Book(), entry).text, "") << city << ' ' << lines[4];
        entry.timeZone = "0";
        EXPECT_NE(AdviseZone(Book(), entry).text, "") << city;
    }
}

TEST(AtlasProgramTest, AsksWhichOfTwoAndLeavesNothingWhenCancelled) {
    const ScratchDirectory directory;
    RecordedMessages messages;
    AtlasWindow window(Book(), BirthAt("2001", "10", "28", "1"), directory / "TSRTEMP.TXT", messages);
    window.show();
    Type(window, "txtSearch", "Atlanta, GA");
    auto& first = Find<QRadioButton>(window, "optReading1");
    auto& second = Find<QRadioButton>(window, "optReading2");
    EXPECT_TRUE(first.isVisible() && !first.isChecked() && !second.isChecked())
        << "none is chosen for the user";
    EXPECT_FALSE(Find<QPushButton>(window, "cmdOK").isEnabled());
    EXPECT_TRUE(first.text().startsWith(QStringLiteral("Zone 4"))) << first.text().toStdString();
    for (QRadioButton* reading : {&first, &second}) {
        reading->click();
        EXPECT_TRUE(Find<QPushButton>(window, "cmdOK").isEnabled());
    }
    Press(window, "cmdOK");
    EXPECT_EQ(ReadLines(directory / "TSRTEMP.TXT")->at(4), "5");
    std::filesystem::remove(directory / "TSRTEMP.TXT");
    window.show();
    Type(window, "txtMonth", "4");
    Type(window, "txtDay", "1");
    Type(window, "txtBirthHour", "2");
    EXPECT_EQ(Find<QLabel>(window, "lblAnswer").text(),
              QStringLiteral("1 Apr 2001 2:30 A.M. did not exist in Atlanta. Which is meant?"));
    EXPECT_EQ(second.text(), QStringLiteral("Zone 4: daylight saving (EDT), the clock at 3:00 A.M."));
    EXPECT_FALSE(Find<QPushButton>(window, "cmdOK").isEnabled());
    Press(window, "cmdCancel");
    EXPECT_FALSE(std::filesystem::exists(directory / "TSRTEMP.TXT"));
}

TEST(AtlasProgramTest, AsksNothingOfAPlaceWhoseZoneIsUnknown) {
    const ScratchDirectory directory;
    directory.Write("ZONES.DAT", "Z A/B 1 - CET\n# end\n");
    directory.Write("ATLAS.DAT", "Z A/Gone\nC US\tUnited States\nR GA\tGeorgia\nTown\t0\t0\t9\t0\n# end\n");
    const Result<ZoneBook> book = ZoneBook::Open(DataFiles(directory.path()));
    ASSERT_TRUE(book) << book.message();
    RecordedMessages messages;
    AtlasWindow window(*book, BirthAt("2001", "10", "28", "1"), directory / "TSRTEMP.TXT", messages);
    window.show();
    Type(window, "txtSearch", "town");
    EXPECT_EQ(Find<QLabel>(window, "lblAnswer").text(),
              QStringLiteral("Town: the zone history knows nothing of the zone A/Gone."));
    EXPECT_FALSE(Find<QRadioButton>(window, "optReading1").isVisible());
    EXPECT_FALSE(Find<QPushButton>(window, "cmdOK").isEnabled());
    NatalEntry entry = BirthAt("2001", "10", "28", "1");
    entry.longDeg = entry.longMin = entry.latDeg = entry.latMin = "0";
    ASSERT_TRUE(ReadingsOfEntry(*book, entry));
    EXPECT_EQ(AdviseZone(*book, entry).text, "");
}

TEST(AtlasProgramTest, IsSetUpOnceAndFollowsTheProgram) {
    const ScratchDirectory directory;
    EXPECT_FALSE(PrepareOwnAtlas(directory.path(), directory / "bin")) << "no program";
    for (const char* programs : {"bin", "moved"}) {
        std::filesystem::create_directory(directory / programs);
        directory.Write(std::string(programs) + "/tolvanis-atlas", "program");
        const auto prepared = PrepareOwnAtlas(directory.path(), directory / programs);
        ASSERT_TRUE(prepared) << prepared.message();
        EXPECT_EQ(*prepared, (directory / "ATLAS").string() + "/");
        EXPECT_EQ(std::filesystem::read_symlink(directory / "ATLAS/ATLAS.EXE"),
                  directory / programs / "tolvanis-atlas");
        EXPECT_EQ(FileContent(directory / "ATLAS/PCATPATH.TXT"), *prepared + "\r\n");
    }
    const Path link = directory / "ATLAS/ATLAS.EXE";
    const auto place = [&](const char* content) {
        std::filesystem::remove(link);
        directory.Write("ATLAS/ATLAS.EXE", content);
        return static_cast<bool>(PrepareOwnAtlas(directory.path(), directory / "moved"));
    };
    directory.Write("ATLAS/PCATPATH.TXT", "c:\\maps\\\r\n");
    EXPECT_FALSE(place("PROGRAM")) << "as large as ours, and the user's own";
    EXPECT_EQ(FileContent(link), "PROGRAM");
    EXPECT_EQ(FileContent(directory / "ATLAS/PCATPATH.TXT"), "c:\\maps\\\r\n");
    EXPECT_TRUE(place("a copy of an older version\nUsage: tolvanis-atlas\n"));
    EXPECT_EQ(FileContent(link), "program");
    std::filesystem::remove(link);
    std::filesystem::create_symlink("/opt/maps/maps", link);
    EXPECT_FALSE(PrepareOwnAtlas(directory.path(), directory / "moved")) << "a link of the user's";
    EXPECT_EQ(AtlasDirectoryOf("", "/own/"), "/own/");
    EXPECT_EQ(AtlasDirectoryOf(directory.path().string(), "/own/"), directory.path().string())
        << "the user's";
    EXPECT_EQ(AtlasDirectoryOf("c:\\gone\\", "/own/"), "/own/");
}

TEST(NatalInputAdvice, TellsAndTakesOverOnlyWhenPressed) {
    Options options;
    RecordedMessages messages;
    InputD window(options, messages, [] { return LocalTime{{2027, 1, 5}, 14, 7, 3}; });
    window.SetAdviser([](const NatalEntry& entry) { return AdviseZone(Book(), entry); });
    window.show();
    NatalEntry entry = BirthAt("1951", "7", "14", "9");
    entry.timeZone = "5";
    entry.longDeg = "73";
    entry.longMin = "59";
    entry.latDeg = "40";
    entry.latMin = "45";
    window.SetEntry(entry);
    auto& take = Find<QPushButton>(window, "cmdTakeZone");
    ASSERT_TRUE(QTest::qWaitFor([&] { return take.isVisible(); }, 3000));
    EXPECT_TRUE(
        Find<QLabel>(window, "lblAdvice").text().contains(QStringLiteral("daylight saving was in force")));
    EXPECT_EQ(window.Entry().timeZone, "5") << "nothing is changed by itself";
    take.click();
    EXPECT_EQ(window.Entry().timeZone, "4");
    EXPECT_TRUE(Find<QLabel>(window, "lblAdvice").text().isEmpty());
    EXPECT_FALSE(take.isVisible());
    EXPECT_TRUE(messages.told.empty());
}

TEST(CitiesSearch, FindsTheNamesThatPeopleType) {
    const char* cases[][3] = {{"EUROPE.LL", "wien", "Vienna,Austria"},
                              {"EUROPE.LL", "muenchen", "Munich,Germany"},
                              {"EUROPE.LL", "München", "Munich,Germany"},
                              {"EUROPE.LL", "zuerich", "Zürich,Switzerland"},
                              {"EUROPE.LL", "Roma", "Rome,Italy"},
                              {"EUROPE.LL", "praha", "Prague,Czech Republic"},
                              {"EUROPE.LL", "Moskva", "Moscow,Russia"},
                              {"EUROPE.LL", "koln", "Köln,Germany"},
                              {"EUROPE.LL", "newcastle", "Newcastle upon Tyne,United Kingdom"},
                              {"MI_NY.LL", "Saint Louis", "St. Louis,MO"},
                              {"MI_NY.LL", "st louis", "St. Louis,MO"}};
    RecordedMessages messages;
    for (const auto& [file, typed, city] : cases) {
        Geograph window(std::string(DELIVERED_DATA_DIR) + "/" + file, messages, [] { return &Book().atlas; });
        window.show();
        window.Load();
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return Find<QListView>(window, "CitiesOnFile").model()->rowCount() > 0; }));
        Type(window, "txtFind", typed);
        const QListView& list = Find<QListView>(window, "CitiesOnFile");
        EXPECT_EQ(list.currentIndex().data().toString().toStdString(), city) << typed;
    }
}

}  // namespace
}  // namespace tolvanis
