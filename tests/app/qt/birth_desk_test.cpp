// The lists beside the natal input, as the whole program connects them.

#include "app/qt/birth_desk.h"

#include <QListView>

#include "app/qt/editor_window.h"
#include "support/desktop_fixture.h"

namespace tolvanis {
namespace {

class BirthDeskWindow : public DesktopWindow {
  protected:
    BirthDesk& desk() { return desktop_->birthDesk(); }

    static void ClickRow(QWidget& window, const char* list, const char* text, bool twice = false) {
        auto& view = Find<QListView>(window, list);
        const auto found = view.model()->match(view.model()->index(0, 0), Qt::DisplayRole,
                                               QString::fromUtf8(text), 1, Qt::MatchStartsWith);
        ASSERT_FALSE(found.isEmpty()) << text;
        view.scrollTo(found.front());
        const QPoint at = view.visualRect(found.front()).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at);
        if (twice) QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at);
    }
    static void Settle() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    std::string NamesText() { return FileContent(directory_ / "NAMES.FIL"); }
};

TEST_F(BirthDeskWindow, StartsWithTheNamesListBesideTheEntry) {
    ASSERT_NE(desk().names(), nullptr);
    EXPECT_TRUE(desk().names()->isVisible());
    EXPECT_FALSE(desk().names()->frameGeometry().intersects(input().frameGeometry()));
    EXPECT_TRUE(QTest::qWaitForWindowActive(desk().names()));
}

TEST_F(BirthDeskWindow, ADoubleClickedNameIsComputedAndTheWindowsGo) {
    ClickRow(*desk().names(), "NamesOnFile", "Albert Einstein", true);
    Settle();
    EXPECT_TRUE(ListingHas("  Albert Einstein\n  14 Mar 1879"));
    EXPECT_EQ(desk().names(), nullptr);
    EXPECT_FALSE(input().isVisible());
    Choose("mnuInputData");
    EXPECT_TRUE(desk().names()->isVisible());
    EXPECT_EQ(input().Entry().name, "Albert Einstein");
}

TEST_F(BirthDeskWindow, ASavedEntryIsAtTheEndOfTheListAndInTheBackupNot) {
    const std::string before = NamesText();
    TypeBirth();
    dialogs_.answer = (directory_ / "NAMES.FIL").string();
    Press(input(), "cmdSave");
    Settle();
    EXPECT_EQ(NamesText(), before + "Ann Smith,22 Sep 1949,9.05,P,4,073.59,40.45\r\n");
    EXPECT_EQ(FileContent(directory_ / "NAMES.OLD"), before);
    EXPECT_EQ(dialogs_.choices.at(0), "*.FIL, beginning with " + state_.settings.DataFile);
    auto& list = Find<QListView>(*desk().names(), "NamesOnFile");
    EXPECT_EQ(list.currentIndex().row(), list.model()->rowCount() - 1);
    EXPECT_EQ(list.currentIndex().data().toString().toStdString(), "Ann Smith");
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.currentIndex())));

    messages_.answers = {Answer::Yes};
    Press(input(), "cmdSave");
    EXPECT_EQ(messages_.asked.size(), 1U);
    EXPECT_EQ(NamesText(), before + "Ann Smith,22 Sep 1949,9.05,P,4,073.59,40.45\r\n")
        << "replaced, not doubled";
}

TEST_F(BirthDeskWindow, ARecordSavedInAnotherListLeavesTheUserWithTheEntry) {
    TypeBirth();
    dialogs_.answer = (directory_ / "FRIENDS.FIL").string();
    Press(input(), "cmdSave");
    Settle();
    EXPECT_EQ(FileContent(dialogs_.answer), "Ann Smith,22 Sep 1949,9.05,P,4,073.59,40.45\r\n");
    EXPECT_TRUE(QTest::qWaitForWindowActive(&input()));
    EXPECT_LE(Find<QListView>(*desk().names(), "NamesOnFile").currentIndex().row(), 0);
}

TEST_F(BirthDeskWindow, WhatCannotBeComputedIsNotSaved) {
    const std::string before = NamesText();
    TypeBirth();
    Type(input(), "txtBirthMinute", "\b");
    dialogs_.answer = (directory_ / "NAMES.FIL").string();
    Press(input(), "cmdSave");
    EXPECT_EQ(messages_.TakeTold(),
              std::vector<std::string>{"Warning!: Error in natal input data section. Please correct."});
    EXPECT_TRUE(Find<QLineEdit>(input(), "txtBirthMinute").hasFocus());
    EXPECT_TRUE(dialogs_.choices.empty());
    EXPECT_EQ(NamesText(), before);
}

TEST_F(BirthDeskWindow, ACityFillsThePlaceAndNothingElse) {
    TypeBirth();
    Press(*desk().names(), "Command1");
    Settle();
    ASSERT_NE(desk().cities(), nullptr);
    EXPECT_EQ(desk().names(), nullptr);
    ClickRow(*desk().cities(), "CitiesOnFile", "Atlanta,GA");
    const NatalEntry entry = input().Entry();
    EXPECT_EQ(
        entry.longDeg + " " + entry.longMin + " " + entry.latDeg + " " + entry.latMin + " " + entry.timeZone,
        "84 23 33 45 5");
    EXPECT_EQ(entry.name + " " + entry.birthHour, "Ann Smith 9");
    Press(*desk().cities(), "Command1");
    Settle();
    EXPECT_NE(desk().names(), nullptr);
    EXPECT_EQ(desk().cities(), nullptr);
}

TEST_F(BirthDeskWindow, ATimeZoneSetsOffsetAndSide) {
    Press(input(), "Label1");
    ASSERT_NE(desk().timeZones(), nullptr);
    ClickRow(*desk().timeZones(), "lstTimeZones", "Nepal");
    EXPECT_EQ(input().Entry().timeZone, "-5.75");
    EXPECT_TRUE(input().Entry().east);
    Choose("mnuHouseKoch");
    Settle();
    EXPECT_EQ(desk().timeZones(), nullptr);
}

TEST_F(BirthDeskWindow, AnotherNamesFileIsKeptForTheNextStart) {
    dialogs_.answer = directory_.Write("OTHER.FIL", "Zoë,01 Jan 2000,9.05,A,5,073.59,40.45\r\n").string();
    Press(*desk().names(), "cmdNewFileList");
    EXPECT_EQ(Find<QListView>(*desk().names(), "NamesOnFile").model()->rowCount(), 1);
    desktop_->Exit();
    ASSERT_TRUE(Open());
    EXPECT_EQ(desk().names()->file(), dialogs_.answer);
}

TEST_F(BirthDeskWindow, LeavingTheEditorShowsTheEditedList) {
    Press(*desk().names(), "cmdEditList");
    auto* editor = TopWindow<EditorWindow>();
    ASSERT_NE(editor, nullptr);
    Find<QPlainTextEdit>(*editor, "txtContent")
        .setPlainText(QStringLiteral("Only,01 Jan 2000,9.05,A,5,073.59,40.45"));
    Press(*editor, "btnSave");
    Press(*editor, "btnQuit");
    Settle();
    EXPECT_EQ(NamesText(), "Only,01 Jan 2000,9.05,A,5,073.59,40.45\r\n");
    EXPECT_EQ(Find<QListView>(*desk().names(), "NamesOnFile").model()->rowCount(), 1);
}

TEST_F(BirthDeskWindow, AClosedListCanBeOpenedAgainBeforeTheFirstChart) {
    for (const bool cities : {false, true}) {
        ASSERT_TRUE(Open());
        EXPECT_FALSE(Shown("mnuInputData"));
        if (cities) {
            Press(*desk().names(), "Command1");
            Settle();
            desk().cities()->close();
        } else {
            desk().names()->close();
        }
        ASSERT_TRUE(Shown("mnuInputData")) << cities;
        Choose("mnuInputData");
        EXPECT_TRUE(desk().names()->isVisible());
    }
}

TEST_F(BirthDeskWindow, ListsOpenWhereTheirUserHasPutThem) {
    const QRect place(311, 222, 333, 401);
    const auto placeOf = [](const QWidget& window) { return QRect(window.pos(), window.size()); };
    const QRect first = placeOf(*desk().names());
    Choose("mnuInputData");
    EXPECT_EQ(placeOf(*desk().names()), first);
    PlaceWindow(*desk().names(), place);
    ClickRow(*desk().names(), "NamesOnFile", "Albert Einstein", true);
    Settle();
    Choose("mnuInputData");
    EXPECT_EQ(placeOf(*desk().names()), place);
    Press(*desk().names(), "Command1");
    Settle();
    EXPECT_EQ(placeOf(*desk().cities()), place) << "the lists take turns in one place";
    desk().cities()->showMaximized();
    Press(*desk().cities(), "Command1");
    Settle();
    EXPECT_EQ(placeOf(*desk().names()), place);
    PlaceWindow(*desk().names(), {9000, 9000, 333, 401});
    desk().names()->close();
    Choose("mnuInputData");
    EXPECT_TRUE(UsableScreens().constFirst().intersects(desk().names()->geometry())) << "never out of sight";

    Press(input(), "Label1");
    desk().timeZones()->move(5, 250);
    Choose("mnuHouseKoch");
    Choose("mnuInputData");
    Press(input(), "Label1");
    EXPECT_EQ(desk().timeZones()->pos(), QPoint(5, 250));
}

TEST_F(BirthDeskWindow, AWrongEntryComesBackWithItsList) {
    Type(input(), "txtMonth", "13");
    PressOK();
    EXPECT_EQ(messages_.TakeTold().size(), 1U);
    EXPECT_TRUE(input().isVisible());
    EXPECT_NE(desk().names(), nullptr);
}

}  // namespace
}  // namespace tolvanis
