// The cities and time-zone windows, and an atlas program that really runs.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "birthdata/atlas_lookup.h"
#include "birthdata/qt/cities_window.h"
#include "birthdata/qt/time_zone_window.h"
#include "platform/qt/external_program.h"
#include "support.h"
#include "support/window_user.h"

namespace tolvanis {
namespace {

TEST(CitiesWindowTest, ClickGivesThePlaceOfTheFirstSuchCity) {
    const ScratchDirectory directory;
    RecordedMessages messages;
    Geograph window(
        directory.Write("a.ll", "Bern,CH,07E27,46N57,-1\nRome,IT,12E29,41N54,-1\nBern,CH,99W99,99S99,9\nx")
            .string(),
        messages);
    std::vector<Place> places;
    QObject::connect(&window, &Geograph::placePicked, [&](const Place& place) { places.push_back(place); });
    window.show();
    window.Load();
    auto& find = Find<QLineEdit>(window, "txtFind");
    EXPECT_EQ(window.windowTitle(), "Cities");
    EXPECT_EQ(Find<QLabel>(window, "lblCitiesOnFile").text(), "A.LL");
    EXPECT_EQ(messages.told.size(), 1U);
    ClickRow(Find<QListView>(window, "CitiesOnFile"), 2);
    ASSERT_EQ(places.size(), 1U);
    EXPECT_EQ(places[0], (Place{Coordinate{"7", "27", true}, Coordinate{"46", "57", false}, "-1"}));
    EXPECT_TRUE(window.isVisible());
    QTest::keyClicks(&find, "rom");
    QTest::keyClick(&find, Qt::Key_Return);
    EXPECT_EQ(places.at(1).longitude->degrees, "12");
}

TEST(TimeZoneWindowTest, DeliveredZonesCanAllBePicked) {
    RecordedMessages messages;
    TimeZone window(Path(DELIVERED_DATA_DIR) / "TZ.DAT", messages);
    window.show();
    window.Load();
    const int rows = Find<QListView>(window, "lstTimeZones").model()->rowCount();
    for (int row = 0; row < rows; ++row) window.lstTimeZones_Click(row);
    EXPECT_TRUE(messages.told.empty());
    EXPECT_GT(rows, 60);
    auto& list = Find<QListView>(window, "lstTimeZones");
    window.resize(10, 200);
    QCoreApplication::processEvents();
    for (int row = 0; row < rows; ++row) {
        EXPECT_LE(list.visualRect(list.model()->index(row, 0)).width(), list.viewport()->width()) << row;
    }
    EXPECT_FALSE(list.horizontalScrollBar()->isVisible()) << "every offset is in view";
    QTest::keyClick(&Find<QPushButton>(window, "Command1"), Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
}

// An atlas that does what its shell script says.
// Our own atlas has no use without the program; another one is its user's.
TEST(ExternalProgram, AtExitTheOwnOneEndsAndAnotherGoesOn) {
    const std::pair<AtExit, const char*> cases[] = {{AtExit::EndIt, "ENDED"}, {AtExit::LeaveIt, "WENT_ON"}};
    for (const auto& [atExit, mark] : cases) {
        const ScratchDirectory directory;
        const Path program = directory.Write("Atlas.exe",
                                             "#!/bin/sh\ntrap 'touch ENDED; exit' TERM\nfor i in 1 2 3 4 5; "
                                             "do sleep 0.1; done\ntouch WENT_ON\n");
        ::chmod(program.c_str(), 0755);
        ProgramRun run = ProgramRun::NotStarted;
        QTimer::singleShot(0, [&, &end = atExit] { run = RunAndWait(program, end); });
        QTimer::singleShot(200, qApp, &QCoreApplication::quit);
        QApplication::exec();
        EXPECT_EQ(run, ProgramRun::Abandoned);
        EXPECT_TRUE(QTest::qWaitFor([&, name = mark] { return std::filesystem::exists(directory / name); }))
            << mark;
    }
}

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
         false},
        {"one that cannot be run", "\177ELF rubbish", false},
    };
    for (const Case& test : cases) {
        const ScratchDirectory directory;
        ::chmod(directory.Write("Atlas.exe", test.script).c_str(), 0755);
        std::string atlasDir = directory.path().string() + "\\";
        directory.Write("PCATPATH.TXT", atlasDir + "\r\n");
        RecordedMessages messages;
        messages.answers = {Answer::Yes, Answer::Yes};
        messages.texts = {""};
        AtlasLookup lookup([](const AtlasProgram& program) { return RunAndWait(program.file); }, messages);
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
        EXPECT_EQ(messages.asked.size() + messages.told.size(), 1U) << test.what;
        if (std::string(test.what) == "a good one") {
            EXPECT_EQ(place->longitude->degrees, "122");
            EXPECT_GT(ticks, 0) << "the windows stay alive";
            std::string relative = std::filesystem::relative(directory.path()).string() + "/";
            EXPECT_TRUE(lookup.LookUp(relative)) << "from where the program was started";
        }
    }
}

}  // namespace
}  // namespace tolvanis
