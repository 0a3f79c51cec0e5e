// Report, meanings, keywords and lessons as their user meets them.

#include "app/qt/interp_desk.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QRadioButton>
#include <QTableWidget>
#include <QTextBlock>

#include "app/study_texts.h"
#include "support/desktop_fixture.h"

namespace tolvanis {
namespace {

using testing::ElementsAre;

class InterpDeskTest : public DesktopWindow {
  protected:
    // The delivered interpretations and lessons give way to texts whose every line is known.
    InterpDeskTest() {
        std::vector<std::filesystem::path> delivered;
        for (const auto& entry : std::filesystem::directory_iterator(directory_.path())) {
            const std::string name = entry.path().filename().string();
            const bool study = std::ranges::any_of(
                kStudyTexts, [&](const StudyText& known) { return known.fileName == name; });
            if (name.ends_with(".TXT") && !study) delivered.push_back(entry.path());
        }
        for (const auto& path : delivered) std::filesystem::remove(path);
        std::string text;
        for (int i = 0; i < 200; ++i) text += "text " + std::to_string(i) + "\r\n";
        directory_.Write("PHILO.HLP", text);
        directory_.Write("rising.txt", "Libra rising\r\nfair\r\n*\r\n");
    }

    void OpenReport() {
        TypeBirth();
        PressOK();
        Choose("mnuReportNatal");
        ASSERT_TRUE(QTest::qWaitForWindowActive(&report()));
    }
    Report& report() { return *desktop_->interpDesk().report(); }
    std::string Shown() { return Find<QPlainTextEdit>(report(), "txtContent").toPlainText().toStdString(); }
    void KeyInReport(int key) { QTest::keyClick(report().focusWidget(), Qt::Key(key)); }
    std::string FocusOf(QWidget& window) { return window.focusWidget()->objectName().toStdString(); }
    Path Saved(const char* name) { return directory_.path() / name; }
};

TEST_F(InterpDeskTest, EveryCommandOfTheMenuWorks) {
    PressOK();
    for (const MenuItem& item : MainMenu()) {
        if (!item.textFile.empty()) continue;  // enabled where its text is there
        EXPECT_TRUE(desktop_->mainWindow().ItemOf(item.control)->isEnabled()) << item.control;
    }
}

TEST_F(InterpDeskTest, ReportMovesByButtonsAndKeys) {
    OpenReport();
    EXPECT_EQ(report().windowTitle(), QStringLiteral("Tolvanis - REPORT"));
    EXPECT_EQ(FocusOf(report()), "cmdPageDOWN");
    EXPECT_NE(Shown().find("NATAL REPORT FOR\n\n" + std::string(36, ' ') + "ANN SMITH\n"), std::string::npos);
    const struct {
        int key;
        const char* button;
        int top;
        const char* focus;
    } moves[] = {{Qt::Key_PageDown, "cmdPageDOWN", 23, "cmdPageDOWN"},
                 {Qt::Key_End, "cmdDown1", 24, "cmdPageDOWN"},
                 {Qt::Key_Home, "cmdUp1", 23, "cmdPageDOWN"},
                 {Qt::Key_PageUp, "cmdPageUP", 0, "cmdPageUP"}};
    for (const bool byKey : {true, false}) {
        for (const auto& move : moves) {
            byKey ? KeyInReport(move.key) : Press(report(), move.button);
            EXPECT_EQ(report().top(), move.top) << move.button;
            EXPECT_EQ(FocusOf(report()), move.focus) << move.button;
        }
    }
    for (int i = 0; i < 30; ++i) KeyInReport(Qt::Key_PageDown);
    const int last = report().top();
    EXPECT_GT(last + 22, state_.report.LineCount() - 23);
    KeyInReport(Qt::Key_End);
    EXPECT_EQ(report().top(), last);
    Choose("mnuReportNatal");
    EXPECT_EQ(report().top(), 0) << "a new report is shown from its beginning";
}

TEST_F(DesktopWindow, TheDeliveredReportBeginsWithItsTitle) {
    TypeBirth();
    PressOK();
    Choose("mnuReportNatal");
    const auto& area = Find<QPlainTextEdit>(*desktop_->interpDesk().report(), "txtContent");
    EXPECT_TRUE(area.toPlainText().contains(QStringLiteral("NATAL REPORT FOR")))
        << area.toPlainText().toStdString();
}

// All of a screen is in view as soon as it is shown.
TEST_F(InterpDeskTest, ReportShowsItsFirstLineOnTop) {
    OpenReport();
    QCoreApplication::processEvents();
    auto& area = Find<QPlainTextEdit>(report(), "txtContent");
    for (const int block : {0, 22}) {
        const QTextCursor cursor(area.document()->findBlockByNumber(block));
        EXPECT_TRUE(area.viewport()->rect().contains(area.cursorRect(cursor))) << block;
    }
}

TEST_F(InterpDeskTest, ReportLettersGrowWithTheWindowAndTheScreenStays) {
    OpenReport();
    auto& area = Find<QPlainTextEdit>(report(), "txtContent");
    KeyInReport(Qt::Key_PageDown);
    KeyInReport(Qt::Key_PageDown);
    KeyInReport(Qt::Key_PageDown);
    const std::string shown = Shown();
    for (const QSize size : {QSize(500, 330), QSize(1100, 500), QSize(800, 1000), QSize(1600, 1200)}) {
        report().resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(Shown(), shown);
        const QTextBlock last = area.document()->findBlockByNumber(22);
        QTextCursor cursor(last);
        EXPECT_TRUE(area.viewport()->rect().contains(area.cursorRect(cursor))) << size.height();
    }
    EXPECT_GT(area.font().pointSizeF(), 17.0);
}

// On a screen of 640 x 480 every button stays in reach; an area too small for the smallest letters scrolls.
TEST_F(InterpDeskTest, SmallWindowsKeepTheirButtonsInReach) {
    OpenReport();
    Choose("mnuDataMeanings");
    for (QWidget* window :
         {static_cast<QWidget*>(&report()), static_cast<QWidget*>(desktop_->interpDesk().meanings())}) {
        for (const QSize size : {QSize(640, 430), QSize(400, 300)}) {
            window->resize(size);
            QCoreApplication::processEvents();
            EXPECT_LE(window->width(), size.width()) << window->objectName().toStdString();
            EXPECT_LE(window->height(), size.height()) << window->objectName().toStdString();
            const QList<QPushButton*> buttons = window->findChildren<QPushButton*>();
            for (const QPushButton* button : buttons) {
                EXPECT_TRUE(window->rect().contains(button->geometry())) << button->text().toStdString();
                EXPECT_GE(button->width(), button->minimumSizeHint().width());
                for (const QPushButton* other : buttons) {
                    EXPECT_TRUE(other == button || !button->geometry().intersects(other->geometry()));
                }
            }
        }
    }
    auto& area = Find<QPlainTextEdit>(report(), "txtContent");
    report().resize(1, 1);
    QCoreApplication::processEvents();
    EXPECT_NE(area.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    report().resize(900, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(area.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    MEANINGS& meanings = *desktop_->interpDesk().meanings();
    meanings.resize(300, 260);
    meanings.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&meanings));
    auto& last = Find<QRadioButton>(meanings, "Option5_8");
    last.setFocus();
    EXPECT_EQ(last.visibleRegion().boundingRect(), last.rect()) << "what has the focus is in view";
}

// A bar that came with the one wide line would change the letters' size while the reader turns the pages.
TEST_F(InterpDeskTest, AWideLineGivesTheWholeReportItsBar) {
    for (const int length : {80, 81}) {
        directory_.Write("PHILO.HLP",
                         "first\r\n" + std::string(static_cast<std::size_t>(length), 'w') + "\r\n");
        OpenReport();
        EXPECT_EQ(Find<QPlainTextEdit>(report(), "txtContent").horizontalScrollBarPolicy(),
                  length > 80 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
        Choose("mnuInputData");
    }
}

TEST_F(InterpDeskTest, ReportFindsAndShowsTheLineOnTop) {
    OpenReport();
    QTest::keyClick(&report(), Qt::Key_F, Qt::ControlModifier);
    auto& box = Find<QLineEdit>(report(), "txtFind");
    EXPECT_EQ(FocusOf(report()), "txtFind");
    QTest::keyClicks(&box, QStringLiteral("EXT 15"));
    EXPECT_TRUE(Shown().starts_with("text 15\n"));
    const auto marks = Find<QPlainTextEdit>(report(), "txtContent").extraSelections();
    ASSERT_EQ(marks.size(), 1);
    EXPECT_EQ(marks[0].cursor.selectedText(), QStringLiteral("ext 15"));
    EXPECT_EQ(marks[0].format.background(), report().palette().highlight());
    EXPECT_EQ(marks[0].format.foreground(), report().palette().highlightedText());
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_TRUE(Shown().starts_with("text 150\n"));
    EXPECT_EQ(FocusOf(report()), "txtFind");
    QTest::keyClick(&report(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_TRUE(Shown().starts_with("text 15\n"));
    QTest::keyClicks(&box, QStringLiteral("x"));
    EXPECT_EQ(Find<QLabel>(report(), "lblFound").text(), QStringLiteral("Not found"));
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_FALSE(box.isVisible());
    EXPECT_EQ(FocusOf(report()), "cmdPageDOWN");
}

TEST_F(InterpDeskTest, ReportIsSavedInPagesUnderReports) {
    OpenReport();
    Press(report(), "cmdSave");
    ASSERT_EQ(dialogs_.saveRequests.size(), 1U);
    EXPECT_EQ(dialogs_.saveRequests[0].directory, Saved("REPORTS"));
    EXPECT_EQ(dialogs_.saveRequests[0].proposedName, "Ann.TXT");
    EXPECT_TRUE(std::filesystem::is_directory(Saved("REPORTS")));
    EXPECT_EQ(state_.SaveFileName, "") << "cancelled";
    dialogs_.answer = Saved("REPORTS/Ann.TXT").string();
    Press(report(), "cmdSaveAs");
    Press(report(), "cmdSave");
    EXPECT_EQ(dialogs_.saveRequests.size(), 2U);
    const std::string saved = FileContent(Saved("REPORTS/Ann.TXT"));
    EXPECT_EQ(std::count(saved.begin(), saved.end(), '\f'), 5);
    EXPECT_NE(saved.find("Page 2\r\n\f\r\n\r\n\r\n\r\ntext"), std::string::npos);
    dialogs_.answer = Saved("none/Ann.TXT").string();
    Press(report(), "cmdSaveAs");
    EXPECT_THAT(messages_.TakeTold(), ElementsAre(testing::HasSubstr("none/Ann.TXT: No such file")));
    EXPECT_EQ(state_.SaveFileName, "") << "the next Save asks for a file again";
}

// The file chosen last serves both windows; what it holds of the other one goes only when the user says so.
TEST_F(InterpDeskTest, AListingReplacesAReportOnlyWhenTheUserSaysSo) {
    OpenReport();
    dialogs_.answer = Saved("REPORTS/Ann.TXT").string();
    Press(report(), "cmdSaveAs");
    const std::string report = FileContent(Saved("REPORTS/Ann.TXT"));
    dialogs_.answer = Saved("Ann.DOC").string();
    for (const Answer answer : {Answer::Cancel, Answer::No}) {
        messages_.answers = {answer};
        ChooseInData("mnuSave");
        EXPECT_EQ(FileContent(Saved("REPORTS/Ann.TXT")), report);
        EXPECT_EQ(std::filesystem::exists(Saved("Ann.DOC")), answer == Answer::No) << "under another name";
    }
    ChooseInData("mnuSave");
    EXPECT_TRUE(messages_.answers.empty()) << "the same listing asks nothing";
    state_.SaveFileName = Saved("REPORTS/Ann.TXT").string();
    messages_.answers = {Answer::Yes};
    ChooseInData("mnuSave");
    EXPECT_NE(FileContent(Saved("REPORTS/Ann.TXT")).find("HOUSE CUSPS"), std::string::npos);
    EXPECT_EQ(messages_.asked.size(), 3U);
}

TEST_F(InterpDeskTest, AReportsDirectoryThatCannotBeMadeIsTold) {
    OpenReport();
    directory_.Write("REPORTS", "a file in its place");
    Press(report(), "cmdSave");
    EXPECT_THAT(messages_.TakeTold(), ElementsAre(testing::HasSubstr("Cannot make the directory")));
    EXPECT_EQ(dialogs_.saveRequests.at(0).directory, directory_.path());
}

TEST_F(InterpDeskTest, EveryPageIsPrintedOnOneSheet) {
    dialogs_.answer = Saved("r.pdf").string();
    for (const float length : {66.0F, 105.0F}) {
        state_.options[31] = length;
        OpenReport();
        Press(report(), "btnPrint");
        const auto wanted = PrintedReport(state_.report, ReportPageFormOf(state_.options));
        const std::vector<std::string> pages = PdfPages("r.pdf");
        ASSERT_EQ(pages.size(), wanted.size());
        for (std::size_t i = 1; i < pages.size(); ++i) {
            EXPECT_NE(pages[i].find("Page " + std::to_string(i + 1)), std::string::npos) << i;
        }
        EXPECT_NE(pages[1].find(wanted[1][10]), std::string::npos);
        Choose("mnuInputData");
    }
}

TEST_F(InterpDeskTest, MeaningsAreChosenByKeyboard) {
    PressOK();
    Choose("mnuDataMeanings");
    QPointer<MEANINGS> meanings = desktop_->interpDesk().meanings();
    ASSERT_TRUE(QTest::qWaitForWindowActive(meanings));
    EXPECT_EQ(meanings->windowTitle(), QStringLiteral("TOLVANIS MEANINGS"));
    auto& libra = Find<QRadioButton>(*meanings, "Option1_6");
    libra.setFocus();
    QTest::keyClick(&libra, Qt::Key_Return);
    EXPECT_EQ(Listing(), "\n  Libra rising\n  fair\n\n\n");
    meanings->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(meanings));
    const auto key = [&](int k) { QTest::keyClick(meanings->focusWidget(), Qt::Key(k)); };
    key(Qt::Key_Down);
    key(Qt::Key_Tab);
    EXPECT_EQ(FocusOf(*meanings), "Option2_6");
    key(Qt::Key_Tab);
    EXPECT_EQ(FocusOf(*meanings), "Option3_0");
    key(Qt::Key_Up);
    EXPECT_EQ(meanings->Choice().sign, 7);
    EXPECT_EQ(meanings->Choice().planet, 8) << "round the end";
    for (const auto letter : {Qt::Key_S, Qt::Key_A}) {
        const std::size_t before = messages_.told.size();
        QTest::keyClick(meanings->focusWidget(), letter, Qt::AltModifier);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return messages_.told.size() > before; }));  // the button is seen to move
    }
    EXPECT_THAT(messages_.TakeTold(),
                ElementsAre("Information: Uranus - Pluto sign positions are not delineated.",
                            "Information: Please select a higher planet on the left than on the right."));
    Choose("mnuDataMeanings");
    EXPECT_EQ(desktop_->interpDesk().meanings()->Choice().planet, 0) << "opened anew";
    Choose("mnuInputData");
    EXPECT_EQ(desktop_->interpDesk().meanings(), nullptr);
}

TEST_F(InterpDeskTest, MeaningsByMouseTellOfMissingFiles) {
    PressOK();
    Choose("mnuDataMeanings");
    MEANINGS& meanings = *desktop_->interpDesk().meanings();
    for (const auto& [option, file] :
         {std::pair{"Option2_9", "HOUSE_10.TXT"}, {"Option4_0", "Sun.TXT"}, {"Option1_2", ""}}) {
        auto& button = Find<QRadioButton>(meanings, option);
        QTest::mouseClick(&button, Qt::LeftButton);
        EXPECT_TRUE(messages_.told.empty());
        QTest::mouseDClick(&button, Qt::LeftButton);
        if (*file == '\0') continue;
        EXPECT_THAT(messages_.TakeTold(),
                    ElementsAre("Warning!: Cannot find the file called " + Saved(file).string() + "."));
    }
    EXPECT_EQ(Listing(), "\n\n\n") << "no section, nothing to show";
    Press(meanings, "Command1");
    EXPECT_THAT(messages_.TakeTold(), ElementsAre(testing::StartsWith("Helpful Hints: 1. Double-click on")));
}

TEST_F(InterpDeskTest, KeywordsAnswerMouseAndKeyboard) {
    Choose("mnuKeywordS");
    Keywords& keywords = *desktop_->interpDesk().keywords();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&keywords));
    auto& grid = Find<QTableWidget>(keywords, "grdOutput");
    EXPECT_NEAR(grid.rowHeight(0) * state_.screen.twipsPerPixel, 250.0, 15.0);
    EXPECT_NEAR(grid.columnWidth(0) * state_.screen.twipsPerPixel, 1200.0, 15.0);
    const auto at = [&](int row, int column) { return grid.visualItemRect(grid.item(row, column)).center(); };
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, at(4, 1));
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, at(4, 1));
    ASSERT_EQ(messages_.told.size(), 2U);
    EXPECT_THAT(messages_.TakeTold()[0], testing::StartsWith("Leo: In the house where Leo rules"));
    for (const int row : {4, 8}) QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, at(row, 3));
    EXPECT_TRUE(messages_.told.empty()) << "empty cells";
    for (const int key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Left, Qt::Key_Space}) {
        QTest::keyClick(&grid, Qt::Key(key));
    }
    ASSERT_EQ(messages_.told.size(), 2U);
    EXPECT_THAT(messages_.told[0], testing::StartsWith("General 1: Astrology is the study"));
    EXPECT_THAT(messages_.told[1], testing::StartsWith("10th house: Profession, mother"));
}

TEST_F(InterpDeskTest, LessonsStandAloneInTheDataWindow) {
    directory_.Write("tau.txt", "a lesson\r\n\r\nends");
    directory_.Write("intro1.txt", "intro");
    PressOK();
    Choose("mnuKeywordSystem");
    QPointer<KW_SYSTM> system = desktop_->interpDesk().keywordSystem();
    auto& signs = Find<QComboBox>(*system, "Combo1");
    QTest::keyClick(&signs, Qt::Key_Down);
    EXPECT_TRUE(ListingHas("HOUSE CUSPS")) << "going through the list shows nothing yet";
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(&signs, Qt::Key_Return);
        EXPECT_EQ(Listing(), "\n  a lesson\n  \n  ends\n\n\n");
        EXPECT_EQ(state_.buffer.BufferLineCount(), 5U);
        Press(*system, "OKIntro1");
        EXPECT_EQ(Listing(), "\n  intro\n\n\n");
    }
    signs.showPopup();
    QTest::keyClick(signs.view(), Qt::Key_Return);
    EXPECT_TRUE(ListingHas("a lesson")) << "the same entry again";
    Q_EMIT Find<QComboBox>(*system, "Combo3").activated(0);
    Q_EMIT Find<QComboBox>(*system, "Combo2").activated(9);
    EXPECT_THAT(messages_.TakeTold(),
                ElementsAre("Warning!: Cannot find the file called " + Saved("SUN_SUN.TXT").string() + ".",
                            "Warning!: Cannot find the file called " + Saved("10th.TXT").string() + "."));
    EXPECT_EQ(Listing(), "\n\n\n");
    Press(*system, "Command1");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(system, nullptr);
}

}  // namespace
}  // namespace tolvanis
