// The cities and time-zone windows, and an atlas program that really runs.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "birthdata/atlas_lookup.h"
#include "birthdata/cities_window.h"
#include "birthdata/time_zone_window.h"
#include "platform/qt/external_program.h"
#include "support.h"

namespace tolvanis {
namespace {

void Click(QListView* list, int row) {
    list->scrollTo(list->model()->index(row, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualRect(list->model()->index(row, 0)).center());
}

TEST(CitiesWindowTest, ClickGivesThePlaceOfTheFirstSuchCity) {
    const ScratchDirectory directory;
    RecordingMessages messages;
    Geograph window(
        directory.Write("a.ll", "Bern,CH,07E27,46N57,-1\nRome,IT,12E29,41N54,-1\nBern,CH,99W99,99S99,9\nx")
            .string(),
        messages);
    std::vector<Place> places;
    QObject::connect(&window, &Geograph::placePicked, [&](const Place& place) { places.push_back(place); });
    window.show();
    window.Load();
    auto* list = window.findChild<QListView*>("CitiesOnFile");
    EXPECT_EQ(window.windowTitle(), "Cities");
    EXPECT_EQ(window.findChild<QLabel*>("lblCitiesOnFile")->text(), "A.LL");
    EXPECT_EQ(messages.told.size(), 1U);
    Click(list, 2);
    ASSERT_EQ(places.size(), 1U);
    EXPECT_EQ(places[0], (Place{Coordinate{"7", "27", true}, Coordinate{"46", "57", false}, "-1"}));
    EXPECT_TRUE(window.isVisible());
    QTest::keyClicks(window.findChild<QLineEdit*>("txtFind"), "rom");
    QTest::keyClick(window.findChild<QLineEdit*>("txtFind"), Qt::Key_Return);
    EXPECT_EQ(places.at(1).longitude->degrees, "12");
}

TEST(TimeZoneWindowTest, ClickGivesOffsetAndSide) {
    const ScratchDirectory directory;
    RecordingMessages messages;
    TimeZone window(directory.Write("TZ.DAT", "India,IST,-5.5\nGreenwich,GMT,0\nMid-Ocean,MO,2\n"), messages);
    std::string chosen;
    QObject::connect(&window, &TimeZone::zonePicked,
                     [&](const std::string& zone, bool east) { chosen += zone + (east ? "E " : "W "); });
    window.show();
    window.Load();
    auto* list = window.findChild<QListView*>("lstTimeZones");
    for (int row = 0; row < 3; ++row) Click(list, row);
    EXPECT_EQ(chosen, "-5.5E 0W ");
    EXPECT_EQ(messages.told.at(0).text, "The file TZ.DAT is corrupt.");
    QTest::mouseClick(window.findChild<QPushButton*>("Command1"), Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
}

TEST(TimeZoneWindowTest, DeliveredZonesCanAllBePicked) {
    RecordingMessages messages;
    TimeZone window(Path(DELIVERED_DATA_DIR) / "TZ.DAT", messages);
    window.Load();
    const auto* list = window.findChild<QListView*>("lstTimeZones");
    for (int row = 0; row < list->model()->rowCount(); ++row) window.lstTimeZones_Click(row);
    EXPECT_TRUE(messages.told.empty());
    EXPECT_GT(list->model()->rowCount(), 60);
}

// An atlas that does what its shell script says.
TEST(AtlasWindowTest, RunsARealProgram) {
    struct Case {
        const char* what;
        std::string script;
        bool found;
    };
    const std::string leave = "printf 'x\\r\\n47N36\\r\\n122W20\\r\\n\\r\\n8\\r\\n' > TSRTEMP.TXT\n";
    const Case cases[] = {
        {"a good one", "#!/bin/sh\nsleep 0.2\n" + leave, true},
        {"one that leaves no file", "#!/bin/sh\n", false},
        {"one that crashes", "#!/bin/sh\nkill -SEGV $$\n", false},
        {"one that crashes after its work", "#!/bin/sh\n" + leave + "kill -KILL $$\n", true},
        {"one that writes rubbish",
         "#!/bin/sh\nhead -c 5000 /dev/urandom > TSRTEMP.TXT\nprintf '\\n\\n\\n\\n\\n' >> TSRTEMP.TXT\n",
         true},
        {"one that cannot be run", "\177ELF rubbish", false},
    };
    for (const Case& test : cases) {
        const ScratchDirectory directory;
        ::chmod(directory.Write("Atlas.exe", test.script).c_str(), 0755);
        std::string atlasDir = directory.path().string() + "\\";
        directory.Write("PCATPATH.TXT", atlasDir + "\r\n");
        RecordingMessages messages;
        AtlasLookup lookup(RunAndWait, messages);
        int ticks = 0;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            ++ticks;
            EXPECT_FALSE(lookup.LookUp(atlasDir)) << "not while one is running";
        });
        timer.start(20);
        const auto place = lookup.LookUp(atlasDir);
        timer.stop();
        EXPECT_EQ(place.has_value(), test.found) << test.what;
        EXPECT_EQ(messages.told.size(), 1U) << test.what;
        if (std::string(test.what) == "a good one") {
            EXPECT_EQ(place->longitude->degrees, "122");
            EXPECT_GT(ticks, 3) << "the windows stay alive";
        }
    }
}

}  // namespace
}  // namespace tolvanis
