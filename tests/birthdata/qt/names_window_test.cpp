// The names window as a user acts on it: clicks, keys and reopening.
#include "birthdata/qt/names_window.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <QThreadPool>
#include <memory>

#include "support.h"
#include "support/window_user.h"

namespace tolvanis {
namespace {

struct NamesWindowTest : ::testing::Test {
    ScratchDirectory directory;
    NamesState state;
    RecordedMessages messages;
    std::unique_ptr<Names> window;
    std::vector<NatalEntry> picked, computed;

    void Open(const std::string& content) {
        window = std::make_unique<Names>(directory.Write("my.fil", content).string(), state, messages);
        QObject::connect(window.get(), &Names::picked, [this](const NatalEntry& e) { picked.push_back(e); });
        QObject::connect(window.get(), &Names::computeRequested,
                         [this] { computed.push_back(picked.back()); });
        window->show();
        window->Load();
        QCoreApplication::processEvents();
    }
    template <typename Widget>
    Widget* Find(const char* name) const {
        return &tolvanis::Find<Widget>(*window, name);
    }
    QListView* list() const { return Find<QListView>("NamesOnFile"); }
    void Click(int row, bool twice = false) const { ClickRow(*list(), row, twice); }
    static std::string Persons(int count) {
        std::string content;
        for (int i = 0; i < count; ++i) content += "Person " + std::to_string(i) + kRest;
        return content;
    }
};

TEST_F(NamesWindowTest, ClickPicksTheFirstOfTheNameAndDoubleClickComputes) {
    Open("Bob,01 Jan 2000,10.30,P,-1,-002.21,-33.52\r\nAnn" + kRest + "Bob" + kRest);
    state.justSaved = true;
    Click(2);
    ASSERT_EQ(picked.size(), 1U);
    EXPECT_EQ(picked[0], (NatalEntry{"Bob", "1", "1", "2000", "10", "30", true, "-1", "2", "21", true, "33",
                                     "52", true}));
    EXPECT_FALSE(state.justSaved);
    EXPECT_TRUE(computed.empty());
    Click(1, true);
    ASSERT_EQ(computed.size(), 1U);
    EXPECT_EQ(computed[0].name, "Ann");
}

TEST_F(NamesWindowTest, KeysPickComputeAndJump) {
    Open("Bob" + kRest + "Ann" + kRest + "Bea" + kRest + "Élise" + kRest);
    QTest::keyClicks(list(), "be");
    EXPECT_EQ(list()->currentIndex().row(), 2);
    EXPECT_TRUE(picked.empty()) << "moving about overwrites nothing that was typed";
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClick(list(), Qt::Key_Space);
    EXPECT_EQ(picked.at(0).name, "Bea");
    QTest::keyClicks(list(), "bb");
    EXPECT_EQ(list()->currentIndex().row(), 2) << "one letter typed twice goes round";
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClicks(list(), "e");
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_EQ(computed.at(0).name, "Élise");
}

TEST_F(NamesWindowTest, FindBoxGoesThroughWhatFits) {
    Open("Anna Lee" + kRest + "Bruce Lee" + kRest + "Leonie" + kRest + "Max" + kRest);
    auto* find = Find<QLineEdit>("txtFind");
    QTest::keyClicks(find, "lee");
    EXPECT_EQ(window->windowTitle(), "Names");
    EXPECT_EQ(Find<QLabel>("lblCount")->text(), "1 of 2");
    EXPECT_EQ(list()->currentIndex().row(), 0);
    QTest::keyClick(find, Qt::Key_Down);
    EXPECT_EQ(list()->currentIndex().row(), 1);
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_EQ(picked.at(0).name, "Bruce Lee");
    QTest::keyClicks(find, "x");
    EXPECT_EQ(Find<QLabel>("lblCount")->text(), "nothing found");
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_EQ(picked.size(), 1U);
    QTest::keyClick(find, Qt::Key_Escape);
    EXPECT_EQ(Find<QLabel>("lblCount")->text(), "4 names");
}

TEST_F(NamesWindowTest, ALockedListOpensWhereItWas) {
    Open(Persons(30));
    list()->setCurrentIndex(list()->model()->index(20, 0));
    Find<QCheckBox>("Check1")->click();
    ASSERT_TRUE(state.locked);
    EXPECT_EQ(state.rememberedIndex, 20);
    window->resize(300, 300);
    Open(Persons(60));
    EXPECT_TRUE(Find<QCheckBox>("Check1")->isChecked());
    EXPECT_EQ(list()->currentIndex().row(), 20);
    EXPECT_EQ(list()->indexAt(QPoint(5, 5)).row(), 8);
    state.rememberedIndex = 70;
    Open(Persons(60));
    EXPECT_EQ(list()->currentIndex().row(), 59);
    state.rememberedIndex = -1;
    Open(Persons(60));
    EXPECT_EQ(list()->currentIndex().row(), 0);
    Open("");
    state.justSaved = true;
    Open(Persons(60));
    EXPECT_FALSE(list()->selectionModel()->hasSelection());
    Find<QCheckBox>("Check1")->click();
    EXPECT_FALSE(state.locked);
}

TEST_F(NamesWindowTest, TellsAFaultWithTheGoodRecordsShown) {
    Open("Ann" + kRest + "Bob,01 Jan 2000,12.00,P,-5.5\r\n");
    ASSERT_EQ(messages.told.size(), 1U);
    EXPECT_EQ(messages.told[0].title, "Error!");
    EXPECT_EQ(
        messages.told[0].text,
        "You have an error in the current names file. You need to check and see if you have entered the "
        "data correctly and in the proper amount. Please correct the data by clicking on the Edit this "
        "List command button in the Names window and edit the incorrect data.");
    EXPECT_EQ(list()->model()->rowCount(), 1);
    EXPECT_EQ(Find<QLabel>("lblProblem")->text(),
              "Line 2: the record has 5 fields instead of 7. The list ends before it.");
    Click(0);
    EXPECT_EQ(picked.size(), 1U) << "the window stays usable";
    state.rememberedIndex = 5;
    window->ChangeFile(directory.Write("good.fil", "Ann" + kRest).string());
    EXPECT_FALSE(Find<QLabel>("lblProblem")->isVisible());
    EXPECT_EQ(Find<QLabel>("lblNamesOnFile")->text(), "GOOD.FIL");
    EXPECT_EQ(state.rememberedIndex, 0);
}

TEST_F(NamesWindowTest, EnterPressesTheButtonThatHasTheFocus) {
    Open("Ann" + kRest);
    std::string said;
    QObject::connect(window.get(), &Names::citiesRequested, [&] { said += "cities "; });
    QObject::connect(window.get(), &Names::editListRequested, [&] { said += "edit "; });
    QObject::connect(window.get(), &Names::changeListRequested, [&] { said += "change "; });
    for (const char* button : {"Command1", "cmdEditList", "cmdNewFileList"}) {
        Find<QPushButton>(button)->setFocus();
        QTest::keyClick(Find<QPushButton>(button), Qt::Key_Return);
    }
    EXPECT_EQ(said, "cities edit change ");
    EXPECT_TRUE(computed.empty());
}

TEST_F(NamesWindowTest, ALongFileNameDoesNotWidenTheWindow) {
    Open("Ann" + kRest);
    const int width = window->minimumSizeHint().width();
    window->ChangeFile(directory.Write(std::string(200, 'W') + ".fil", "Ann" + kRest).string());
    QCoreApplication::processEvents();
    EXPECT_EQ(window->minimumSizeHint().width(), width);
    EXPECT_EQ(Find<QLabel>("lblNamesOnFile")->text().size(), 204);
    EXPECT_TRUE(ShownTip(Find<QLabel>("lblNamesOnFile")->toolTip()).ends_with("WW.fil"));
    window->ChangeFile("/gone/" + std::string(200, 'W') + ".fil");
    EXPECT_TRUE(Find<QLabel>("lblProblem")->isVisible());
    EXPECT_EQ(window->minimumSizeHint().width(), width);
}

TEST_F(NamesWindowTest, ALargeListIsReadWhileTheWindowLives) {
    state = {true, 99'990, false};
    Open("Ann" + kRest);
    const auto large = directory.Write("large.fil", Persons(100'000)).string();
    window->ChangeFile(large);
    state.rememberedIndex = 99'990;
    EXPECT_EQ(list()->model()->rowCount(), 0) << "not read before the window is painted";
    EXPECT_EQ(Find<QLabel>("lblCount")->text(), "reading...");
    QTest::keyClicks(Find<QLineEdit>("txtFind"), "99999");
    EXPECT_EQ(Find<QLabel>("lblCount")->text(), "reading...");
    EXPECT_TRUE(QTest::qWaitFor([this] { return list()->model()->rowCount() == 100'000; }));
    EXPECT_EQ(Find<QLabel>("lblCount")->text(), "1 of 1") << "what was typed meanwhile is found";
    QTest::keyClick(Find<QLineEdit>("txtFind"), Qt::Key_Escape);
    EXPECT_EQ(list()->currentIndex().row(), 99'990);

    window->ChangeFile(large);
    window->ChangeFile(directory.Write("small.fil", "Ann" + kRest).string());
    EXPECT_EQ(list()->model()->rowCount(), 1);
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    EXPECT_EQ(list()->model()->rowCount(), 1) << "a reading that nobody wants any more is dropped";
    window->ChangeFile(large);
    window.reset();
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

TEST_F(NamesWindowTest, FindsANameAmongAHundredThousand) {
    Open(Persons(100'000));
    EXPECT_TRUE(QTest::qWaitFor([this] { return list()->model()->rowCount() == 100'000; }));
    QTest::keyClicks(list(), "person 99999");
    EXPECT_EQ(list()->currentIndex().row(), 99'999);
}

}  // namespace
}  // namespace tolvanis
