// The program as its user meets it: from start over births, listings, files and editors to exit.

#include "app/qt/desktop.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProcess>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyle>

#include "app/qt/editor_window.h"
#include "app/qt/print_file_window.h"
#include "app/qt/select_file_window.h"
#include "app/qt/title_window.h"
#include "interp/qt/report_window.h"
#include "platform/qt/listing_font.h"
#include "platform/qt/placement.h"
#include "support/desktop_fixture.h"

namespace tolvanis {
namespace {

TEST_F(DesktopWindow, StartsWithTheMainMenuAndTheNatalInput) {
    EXPECT_TRUE(desktop_->mainWindow().isVisible());
    EXPECT_TRUE(input().isVisible());
    EXPECT_EQ(desktop_->mainWindow().windowTitle().toStdString(), "Tolvanis - 05 Jan 2027     14:07:03");
    for (const char* item : {"mnuInputData", "mnuData", "mnuWheels", "mnuReportNatal"}) {
        EXPECT_FALSE(Shown(item)) << item;
    }
    EXPECT_TRUE(desktop_->mainWindow().ItemOf("mnuHousePlacidus")->isChecked());
}

TEST_F(DesktopWindow, ATypedBirthGivesItsListing) {
    TypeBirth();
    PressOK();
    EXPECT_EQ(messages_.TakeTold(), std::vector<std::string>{});
    EXPECT_TRUE(ListingHas("  Ann Smith\n  22 Sep 1949    TZ = 4.0      9.05 P.M.   40.45 NORTH"));
    EXPECT_TRUE(ListingHas("HOUSE CUSPS - Placidus"));
    EXPECT_TRUE(ListingHas("NATAL PLANET ASPECTS"));
    EXPECT_FALSE(input().isVisible());
    EXPECT_TRUE(Shown("mnuData") && Shown("mnuInputData"));
    EXPECT_EQ(desktop_->dataWindow()->windowTitle(), QStringLiteral("Tolvanis - Data"));
    Choose("mnuInputData");
    EXPECT_TRUE(input().isVisible());
    EXPECT_EQ(desktop_->dataWindow(), nullptr);
    EXPECT_EQ(input().Entry().name, "Ann Smith");
}

TEST_F(DesktopWindow, WrongEntriesAreToldOneByOneAndKeepTheLastListing) {
    TypeBirth();
    PressOK();
    input().show();
    const std::string before = Listing();
    Type(input(), "txtBirthMinute", "\b");
    Type(input(), "txtMonth", "13");
    PressOK();
    const std::string fault = "Warning!: Error in natal input data section. Please correct.";
    EXPECT_EQ(messages_.TakeTold(), (std::vector<std::string>{fault, fault}));
    EXPECT_EQ(Listing(), before);
    EXPECT_TRUE(input().isVisible()) << "the boxes come up to be corrected";

    EXPECT_EQ(input().focusWidget()->objectName(), QStringLiteral("txtBirthMinute"));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&input()));
    Type(input(), "txtMonth", "2");
    Type(input(), "txtDay", "31");
    Type(input(), "txtBirthMinute", "5");
    PressOK();
    EXPECT_EQ(messages_.TakeTold(), std::vector<std::string>{});
    EXPECT_TRUE(ListingHas("31 Feb 1949"));
}

TEST_F(DesktopWindow, AnotherHouseSystemComputesTheSameBirthAgain) {
    TypeBirth();
    PressOK();
    Choose("mnuHouseKoch");
    EXPECT_TRUE(ListingHas("HOUSE CUSPS - Koch"));
    EXPECT_TRUE(ListingHas("Ann Smith"));
    EXPECT_TRUE(desktop_->mainWindow().ItemOf("mnuHouseKoch")->isChecked());
    EXPECT_FALSE(desktop_->mainWindow().ItemOf("mnuHousePlacidus")->isChecked());
    Choose("mnuHouseKoch");
    EXPECT_TRUE(desktop_->mainWindow().ItemOf("mnuHouseKoch")->isChecked());
    EXPECT_TRUE(ListingHas("HOUSE CUSPS - Koch"));

    Choose("mnuInputData");
    Type(input(), "txtLatDeg", "80");
    Choose("mnuHouseEqualMC");
    ASSERT_EQ(messages_.told.size(), 1U);
    EXPECT_NE(messages_.TakeTold()[0].find("Your latitude is too high."), std::string::npos);
    EXPECT_TRUE(input().isVisible());
    Choose("mnuHouseMeridian");
    EXPECT_TRUE(ListingHas("HOUSE CUSPS - Meridian"));
    EXPECT_TRUE(messages_.told.empty());
}

TEST_F(DesktopWindow, ModernPositionsComputeTheSameBirthAgain) {
    const auto isTicked = [&](const char* item) { return desktop_->mainWindow().ItemOf(item)->isChecked(); };
    const QAction* positions = desktop_->mainWindow().ItemOf("mnuPositions");
    EXPECT_EQ(desktop_->mainWindow().ItemOf("mnuChanges")->menu()->actions().back(), positions);
    TypeBirth();
    PressOK();
    const std::string classic = Listing();
    EXPECT_TRUE(isTicked("mnuPositionsClassic"));
    Choose("mnuHouseKoch");
    Choose("mnuPositionsModern");
    EXPECT_TRUE(ListingHas("Modern positions    Delta T = 28.8 seconds"));
    EXPECT_TRUE(ListingHas("HOUSE CUSPS - Koch"));
    EXPECT_TRUE(isTicked("mnuPositionsModern"));
    EXPECT_FALSE(isTicked("mnuPositionsClassic"));
    Choose("mnuHousePlacidus");
    EXPECT_TRUE(ListingHas("Modern positions"));
    Choose("mnuPositionsClassic");
    EXPECT_EQ(Listing(), classic);

    auto lines = *ReadLines(directory_.path() / "OPTIONS.OPT");
    lines[25] = "1";
    directory_.Write("OPTIONS.OPT", JoinLines(lines));
    ASSERT_TRUE(Open());
    EXPECT_TRUE(isTicked("mnuPositionsModern"));
}

TEST_F(DesktopWindow, SavesUnderTheProposedNameAndThenWithoutAsking) {
    TypeBirth();
    PressOK();
    dialogs_.answer = (directory_.path() / "Ann.DOC").string();
    ChooseInData("mnuSave");
    ASSERT_EQ(dialogs_.saveRequests.size(), 1U);
    EXPECT_EQ(dialogs_.saveRequests[0].proposedName, "Ann.DOC");
    EXPECT_NE(FileContent(directory_ / "Ann.DOC").find("  Ann Smith\r\n"), std::string::npos);
    EXPECT_TRUE(FileContent(directory_ / "Ann.DOC").ends_with("\r\n\f\r\n"));
    ChooseInData("mnuSave");
    EXPECT_EQ(dialogs_.saveRequests.size(), 1U);
    Choose("mnuInputData");
    PressOK();
    ChooseInData("mnuSave");
    EXPECT_EQ(dialogs_.saveRequests.size(), 2U) << "a new input asks for a file again";
}

TEST_F(DesktopWindow, SaveAsReplacesNoFileOfAnotherSpelling) {
    TypeBirth();
    PressOK();
    directory_.Write("Ann.DOC", "Ann Smith's");
    dialogs_.answer = (directory_ / "ANN.DOC").string();
    messages_.answers = {Answer::Cancel, Answer::No, Answer::Yes};
    ChooseInData("mnuSaveAs");
    EXPECT_NE(messages_.asked.at(0).find("a file called Ann.DOC already"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(directory_ / "ANN.DOC"));
    ChooseInData("mnuSaveAs");
    EXPECT_TRUE(std::filesystem::exists(directory_ / "ANN.DOC"));
    EXPECT_EQ(FileContent(directory_ / "Ann.DOC"), "Ann Smith's");
    std::filesystem::remove(directory_ / "ANN.DOC");
    ChooseInData("mnuSaveAs");
    EXPECT_FALSE(std::filesystem::exists(directory_ / "ANN.DOC"));
    EXPECT_NE(FileContent(directory_ / "Ann.DOC"), "Ann Smith's");
}

TEST_F(DesktopWindow, AFailedSaveNamesFileAndReasonAndKeepsTheData) {
    TypeBirth();
    PressOK();
    const std::size_t lines = state_.buffer.BufferLineCount();
    const std::pair<std::string, std::string> cases[] = {
        {(directory_.path() / "gone" / "Ann.DOC").string(), "No such file or directory"},
        {directory_.path().string(), "Is a directory"},
        {"/dev/full", "No space left on device"}};
    for (const auto& [path, reason] : cases) {
        if (path == "/dev/full" && !std::filesystem::is_character_file(path)) continue;
        dialogs_.answer = path;
        ChooseInData("mnuSaveAs");
        ASSERT_EQ(messages_.told.size(), 1U) << path;
        EXPECT_NE(messages_.told[0].find(path), std::string::npos) << messages_.told[0];
        EXPECT_NE(messages_.told[0].find(reason), std::string::npos) << messages_.told[0];
        messages_.told.clear();
    }
    EXPECT_EQ(state_.buffer.BufferLineCount(), lines);
}

TEST_F(DesktopWindow, AClearedBufferHasNothingToSaveOrPrint) {
    PressOK();
    const std::string shown = Listing();
    ChooseInData("mnuClear");
    ChooseInData("mnuSave");
    ChooseInData("mnuPrintData");
    EXPECT_EQ(messages_.TakeTold(), (std::vector<std::string>{"Information!: All data cleared from buffer.",
                                                              "Information: No data to write to file.",
                                                              "Information: No data to print."}));
    EXPECT_EQ(Listing(), shown);
    state_.options[165] = 1;
    Choose("mnuHouseKoch");
    ChooseInData("mnuSave");
    EXPECT_EQ(messages_.TakeTold(), std::vector<std::string>{"Information: No data to write to file."});
}

TEST_F(DesktopWindow, ANearlyFullBufferWarnsAtEveryShowingAndAFullOneOnce) {
    std::string text;
    while (state_.buffer.BufferLineCount() < DataBuffer::kNearlyFull - 3) state_.buffer.AppendLine("line");
    directory_.Write("LONG.HLP", "line\r\n");
    desktop_->ShowTextFile("LONG.HLP");
    ASSERT_EQ(state_.buffer.BufferLineCount(), 1000U);
    EXPECT_TRUE(messages_.told.empty());
    ChooseInData("mnuBold");
    ASSERT_EQ(state_.buffer.BufferLineCount(), 1001U);
    EXPECT_EQ(messages_.TakeTold().size(), 1U);
    ChooseInData("mnuBold");
    EXPECT_NE(messages_.TakeTold().at(0).find("nearly full"), std::string::npos);
    ChooseInData("mnuClear");
    messages_.told.clear();
    ChooseInData("mnuBold");
    EXPECT_TRUE(messages_.told.empty());

    for (int i = 0; i < 33'000; ++i) text += "line\r\n";
    directory_.Write("LONG.HLP", text);
    desktop_->ShowTextFile("LONG.HLP");
    EXPECT_NE(messages_.TakeTold().at(0).find("The data buffer is full."), std::string::npos);
    EXPECT_EQ(state_.buffer.BufferLineCount(), DataBuffer::kMostLines);
    ChooseInData("mnuBold");
    EXPECT_NE(messages_.TakeTold().at(0).find("nearly full"), std::string::npos);
    ChooseInData("mnuClear");
    messages_.told.clear();
    directory_.Write("LONG.HLP", "short\r\n");
    desktop_->ShowTextFile("LONG.HLP");
    EXPECT_TRUE(messages_.told.empty()) << "an emptied buffer is not full";
    directory_.Write("LONG.HLP", text);
    desktop_->ShowTextFile("LONG.HLP");
    EXPECT_NE(messages_.TakeTold().at(0).find("The data buffer is full."), std::string::npos)
        << "once each time";
}

TEST_F(DesktopWindow, FontCommandsChangeTextAndSettings) {
    PressOK();
    auto& text = Find<QPlainTextEdit>(*desktop_->dataWindow(), "Text1");
    ASSERT_TRUE(QTest::qWaitForWindowActive(desktop_->dataWindow()));
    EXPECT_TRUE(text.hasFocus());
    EXPECT_TRUE(IsReallyFixedPitch(text.font()));
    ChooseInData("mnuIncrease");
    EXPECT_NEAR(text.font().pointSizeF(), 8.5 + state_.screen.fontStep / 2, 0.1);
    const double larger = text.font().pointSizeF();
    ChooseInData("mnuIncrease");
    EXPECT_GT(text.font().pointSizeF(), larger);
    ChooseInData("mnuDecrease");
    EXPECT_EQ(text.font().pointSizeF(), larger);
    const std::tuple<const char*, bool (QFont::*)() const, double DataViewSettings::*> looks[] = {
        {"mnuBold", &QFont::bold, &DataViewSettings::FontBold},
        {"mnuItalic", &QFont::italic, &DataViewSettings::FontItalic}};
    for (const auto& [item, has, setting] : looks) {
        const bool before = (text.font().*has)();
        for (const bool on : {!before, before}) {
            ChooseInData(item);
            EXPECT_EQ((text.font().*has)(), on) << item;
            EXPECT_EQ(state_.settings.dataView.*setting, on ? -1.0 : 0.0) << item;
            EXPECT_EQ(Find<QAction>(*desktop_->dataWindow(), item).isChecked(), on) << item;
        }
    }
    for (int i = 0; i < 20; ++i) ChooseInData("mnuIncrease");
    EXPECT_FALSE(Find<QAction>(*desktop_->dataWindow(), "mnuIncrease").isEnabled());
    EXPECT_LT(state_.settings.dataView.FontSize, 12.0 + state_.screen.fontStep);
}

TEST_F(DesktopWindow, AMinimisedDataWindowKeepsItsTextUntilTheNextShowing) {
    PressOK();
    const std::string before = Listing();
    desktop_->dataWindow()->showMinimized();
    directory_.Write("HINTS.HLP", "a hint\r\n");
    Choose("mnuHelpHints");
    EXPECT_EQ(Listing(), before);
    desktop_->dataWindow()->showNormal();
    ChooseInData("mnuItalic");
    EXPECT_TRUE(ListingHas("a hint"));
}

TEST_F(DesktopWindow, TextItemsShowTheirFileOrNameTheMissingOne) {
    directory_.Write("WHAT_AST.TXT", "What is astrology?\r\n");
    for (const MenuItem& item : MainMenu()) {
        if (!item.textFile.empty()) std::filesystem::remove(directory_.path() / item.textFile);
    }
    directory_.Write("what_ast.txt", "What is astrology?\r\n");
    for (const MenuItem& item : MainMenu()) {
        if (item.textFile.empty() || item.menu == "mnuPhilosophy") continue;
        Choose(item.control.c_str());
        ASSERT_EQ(messages_.told.size(), 1U) << item.control;
        EXPECT_EQ(messages_.TakeTold()[0], "Warning!: Cannot find the file called " +
                                               (directory_.path() / item.textFile).string() + ".");
    }
    Q_EMIT desktop_->mainWindow().ItemOf("mnuPhilosophy")->menu()->aboutToShow();
    for (const MenuItem& item : MainMenu()) {
        if (item.menu != "mnuPhilosophy") continue;
        EXPECT_EQ(desktop_->mainWindow().ItemOf(item.control)->isEnabled(), item.textFile == "WHAT_AST.TXT");
    }
    Choose("mnuPhilosophy01");
    EXPECT_TRUE(ListingHas("What is astrology?"));
}

TEST_F(DesktopWindow, PrintsTheListingIntoAPdfFile) {
    TypeBirth();
    PressOK();
    ChooseInData("mnuPrintPage");
    auto* print = TopWindow<PrntFile>();
    ASSERT_NE(print, nullptr);
    EXPECT_EQ(print->windowTitle(), QStringLiteral("Data To Be Printed"));
    auto& content = Find<QPlainTextEdit>(*print, "txtContent");
    content.moveCursor(QTextCursor::Start);
    QTest::keyClicks(&content, QStringLiteral("Printed for Zoe"));
    dialogs_.answer = (directory_.path() / "out.pdf").string();
    Press(*print, "btnPrint");
    const std::vector<std::string> pages = PdfPages("out.pdf");
    ASSERT_EQ(pages.size(), 2U) << "60 lines a page";
    EXPECT_NE(pages[0].find("Printed for Zoe"), std::string::npos);
    EXPECT_NE(pages[0].find("TZ = 4.0"), std::string::npos);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(TopWindow<PrntFile>(), nullptr);
}

TEST_F(DesktopWindow, HelpIsPrintedSixtyLinesAPageWithNothingCutOff) {
    std::string help;
    for (int i = 1; i <= 130; ++i) help += "line " + std::to_string(i) + "\r\n";
    help += std::string(110, 'x') + "END\r\n";
    directory_.Write("HELPFILE", help);
    dialogs_.answer = (directory_.path() / "help.pdf").string();
    Choose("mnuHelpPrintHelp");
    const std::vector<std::string> pages = PdfPages("help.pdf");
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_NE(pages[0].find("line 60\n"), std::string::npos);
    EXPECT_NE(pages[1].find("line 61\n"), std::string::npos);
    EXPECT_NE(pages[2].find("xEND"), std::string::npos);
    dialogs_.answer = (directory_.path() / "gone" / "help.pdf").string();
    Choose("mnuHelpPrintHelp");
    EXPECT_NE(messages_.TakeTold().at(0).find("gone/help.pdf: No such file or directory"), std::string::npos);
}

// The widest line of a print is narrowed, or broken, and the others print as ever.
TEST_F(DesktopWindow, ALongLineSqueezesNoOther) {
    const auto widthOfFirstWord = [&](const std::string& longLine) {
        directory_.Write("HELPFILE", "usual\r\n" + std::string(70, 'y') + "\r\n" + longLine + "END\r\n");
        dialogs_.answer = (directory_ / "help.pdf").string();
        Choose("mnuHelpPrintHelp");
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"),
                     {QStringLiteral("-bbox"), QString::fromStdString(dialogs_.answer), QStringLiteral("-")});
        EXPECT_TRUE(reader.waitForFinished());
        const QString words = QString::fromUtf8(reader.readAllStandardOutput());
        const QRegularExpression word(QStringLiteral("xMin=\"([0-9.]+)\"[^>]*xMax=\"([0-9.]+)\"[^>]*>"));
        double first = 0.0;
        for (const QRegularExpressionMatch& match : word.globalMatch(words)) {
            const double left = match.captured(1).toDouble();
            const double right = match.captured(2).toDouble();
            if (first == 0.0) first = right - left;
            EXPECT_LT(right, 595.0 - 30.0) << "on the paper";
        }
        EXPECT_TRUE(words.contains(QStringLiteral("END"))) << "nothing is lost";
        return first;
    };
    const double usual = widthOfFirstWord("short");
    EXPECT_NEAR(usual, 36.0, 0.5) << "five letters of 12 points";
    for (const std::size_t length : {100U, 300U}) {
        EXPECT_NEAR(widthOfFirstWord(std::string(length, 'x')), usual, 0.1) << length;
    }
}

TEST_F(DesktopWindow, EditedOptionsAreReadAfreshAndCanBeRestored) {
    Choose("mnuOptions");
    auto* editor = TopWindow<EditorWindow>();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->windowTitle(), QStringLiteral("Edit: OPTIONS.OPT"));
    auto& content = Find<QPlainTextEdit>(*editor, "txtContent");
    const std::string delivered = FileContent(directory_ / "OPTIONS.OPT");
    Press(*editor, "btnSave");
    EXPECT_EQ(FileContent(directory_ / "OPTIONS.OPT"), delivered)
        << "saving without a change changes nothing";
    content.moveCursor(QTextCursor::Start);
    QTest::keyClicks(&content, QStringLiteral("1"));
    Press(*editor, "btnSave");
    EXPECT_EQ(state_.options[1], 18.0F);
    EXPECT_TRUE(desktop_->mainWindow().windowTitle().startsWith(QStringLiteral("TOLVANIS - ")));
    const std::string former = FileContent(directory_ / "OPTIONS.OPT");
    content.insertPlainText(QStringLiteral("x"));
    messages_.answers = {Answer::Cancel, Answer::Yes};
    Press(*editor, "cmdRestoreDefault");
    EXPECT_EQ(FileContent(directory_ / "OPTIONS.OPT"), former) << "unsaved changes are asked about";
    Press(*editor, "cmdRestoreDefault");
    EXPECT_EQ(FileContent(directory_ / "OPTIONS.OPT"), FileContent(directory_ / "OPTIONS.MAS"));
    EXPECT_EQ(FileContent(directory_ / "OPTIONS.OLD"), former);
    EXPECT_NE(messages_.TakeTold().at(0).find("kept as OPTIONS.OLD"), std::string::npos);
    EXPECT_EQ(state_.options[1], 18.0F) << "restored options are read at the next save or start";
    std::filesystem::remove(directory_.path() / "OPTIONS.MAS");
    Press(*editor, "cmdRestoreDefault");
    EXPECT_EQ(messages_.TakeTold().at(0), "Warning!: Error in operation. Cannot do what is requested.");
}

TEST_F(DesktopWindow, UnsavedChangesAreAskedAboutBeforeAnythingCloses) {
    directory_.Write("PERSONAL.NAM", "Ann\u00a0Smith\r\n");
    Choose("mnuHeader");
    auto* editor = TopWindow<EditorWindow>();
    auto& content = Find<QPlainTextEdit>(*editor, "txtContent");
    QTest::keyClicks(&content, QStringLiteral("x"));
    messages_.answers = {Answer::Cancel, Answer::Cancel, Answer::Yes};
    Press(*editor, "btnQuit");
    EXPECT_TRUE(editor->isVisible());
    QSignalSpy ended(desktop_.get(), &Desktop::ended);
    Choose("mnuFileExit");
    EXPECT_EQ(ended.count(), 0);
    Choose("mnuFileExit");
    EXPECT_EQ(ended.count(), 1);
    EXPECT_EQ(FileContent(directory_ / "PERSONAL.NAM"), "xAnn\u00a0Smith\r\n");
}

// The file of an open editor is saved by another window or program.
TEST_F(DesktopWindow, AnEditorWipesNothingOutThatWasSavedMeanwhile) {
    directory_.Write("PERSONAL.NAM", "Ann\r\n");
    Choose("mnuHeader");
    auto* editor = TopWindow<EditorWindow>();
    auto& content = Find<QPlainTextEdit>(*editor, "txtContent");
    directory_.Write("PERSONAL.NAM", "Ann\r\nBob\r\n");
    Press(*editor, "btnSave");
    EXPECT_EQ(FileContent(directory_ / "PERSONAL.NAM"), "Ann\r\nBob\r\n");
    directory_.Write("PERSONAL.NAM", "Ann\r\nCid\r\n");
    Choose("mnuHeader");
    EXPECT_EQ(content.toPlainText(), QStringLiteral("Ann\nCid\n")) << "an unchanged text follows the file";

    content.insertPlainText(QStringLiteral("x"));
    directory_.Write("PERSONAL.NAM", "Ann\r\nEve\r\n");
    messages_.answers = {Answer::Cancel, Answer::Yes, Answer::No};
    Press(*editor, "btnSave");
    EXPECT_EQ(FileContent(directory_ / "PERSONAL.NAM"), "Ann\r\nEve\r\n");
    EXPECT_NE(messages_.asked.at(0).find("New since then:\r\n    Eve\r\nGone since then:\r\n    Cid"),
              std::string::npos);
    Press(*editor, "btnSave");
    EXPECT_EQ(FileContent(directory_ / "PERSONAL.NAM"), "xAnn\r\nCid\r\n");
    EXPECT_EQ(FileContent(directory_ / "PERSONAL.OLD"), "Ann\r\nEve\r\n");
    content.insertPlainText(QStringLiteral("y"));
    directory_.Write("PERSONAL.NAM", "Fay\r\n");
    Press(*editor, "btnSave");
    EXPECT_EQ(content.toPlainText(), QStringLiteral("Fay\n")) << "No gives up what was typed";
    EXPECT_EQ(FileContent(directory_ / "PERSONAL.NAM"), "Fay\r\n");

    std::filesystem::remove(directory_ / "PERSONAL.NAM");
    std::filesystem::create_symlink("/proc/self/mem", directory_ / "PERSONAL.NAM");
    delete editor;
    Choose("mnuHeader");
    EXPECT_NE(messages_.TakeTold().at(0).find("PERSONAL.NAM: Input/output error"), std::string::npos);
    EXPECT_TRUE(Find<QPlainTextEdit>(*TopWindow<EditorWindow>(), "txtContent").isReadOnly());
}

// Files that vanish or are spoilt while their editor is open cost neither their text nor the program.
TEST_F(DesktopWindow, AnEditorOutlivesItsFile) {
    directory_.Write("PERSONAL.NAM", "Ann\r\n");
    Choose("mnuHeader");
    auto* editor = TopWindow<EditorWindow>();
    const auto& content = Find<QPlainTextEdit>(*editor, "txtContent");
    const auto comeBack = [&] {
        QEvent activated(QEvent::WindowActivate);
        QCoreApplication::sendEvent(editor, &activated);
        return messages_.TakeTold();
    };
    std::filesystem::remove(directory_ / "PERSONAL.NAM");
    const auto told = comeBack();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_NE(told[0].find("PERSONAL.NAM is no longer there"), std::string::npos);
    EXPECT_EQ(content.toPlainText(), QStringLiteral("Ann\n"));
    EXPECT_TRUE(editor->HasUnsavedChanges());
    EXPECT_TRUE(comeBack().empty()) << "told once";
    Press(*editor, "btnSave");
    EXPECT_EQ(FileContent(directory_ / "PERSONAL.NAM"), "Ann\r\n");

    directory_.Write("PERSONAL.NAM", std::string(kLongestLine + 1, 'x'));
    EXPECT_EQ(comeBack().size(), 1U);
    EXPECT_TRUE(content.isReadOnly());
    EXPECT_TRUE(comeBack().empty()) << "the box itself, when it closes, activates the window again";
    directory_.Write("PERSONAL.NAM", "Bob\r\n");
    EXPECT_TRUE(comeBack().empty());
    EXPECT_EQ(content.toPlainText(), QStringLiteral("Bob\n"));
    EXPECT_FALSE(content.isReadOnly());
}

// What holds no options is told when it is saved, and never takes the place of options that were kept.
TEST_F(DesktopWindow, OptionsThatHoldNoneAreToldAndCostNoBackup) {
    const std::string own = FileContent(directory_ / "OPTIONS.OPT") + "extra\r\n";
    directory_.Write("OPTIONS.OPT", own);
    Choose("mnuOptions");
    auto* editor = TopWindow<EditorWindow>();
    Find<QPlainTextEdit>(*editor, "txtContent").selectAll();
    Find<QPlainTextEdit>(*editor, "txtContent").insertPlainText(QStringLiteral("no options"));
    const Options inForce = state_.options;
    Press(*editor, "btnSave");
    EXPECT_NE(messages_.TakeTold().at(0).find("holds no options"), std::string::npos);
    EXPECT_EQ(state_.options, inForce);
    EXPECT_EQ(FileContent(directory_ / "OPTIONS.OLD"), own);
    messages_.answers = {Answer::Yes};
    ASSERT_TRUE(Open());
    EXPECT_EQ(FileContent(directory_ / "OPTIONS.OPT"), FileContent(directory_ / "OPTIONS.MAS"));
    EXPECT_EQ(FileContent(directory_ / "OPTIONS.OLD"), own);
    EXPECT_EQ(FileContent(directory_ / "OPTIONS.BAD"), "no options\r\n");
}

TEST_F(DesktopWindow, OptionsThatEndEarlyAreToldWhenSavedAndAtStart) {
    Choose("mnuOptions");
    auto* editor = TopWindow<EditorWindow>();
    auto& content = Find<QPlainTextEdit>(*editor, "txtContent");
    content.moveCursor(QTextCursor::Start);
    content.moveCursor(QTextCursor::EndOfLine);
    content.insertPlainText(QStringLiteral("\n"));
    Press(*editor, "btnSave");
    EXPECT_NE(messages_.TakeTold().at(0).find("OPTIONS.OPT ends after 1 of 196 lines"), std::string::npos);
    ASSERT_TRUE(Open());
    EXPECT_NE(messages_.TakeTold().at(0).find("OPTIONS.OPT ends after 1 of 196 lines"), std::string::npos);
}

TEST_F(DesktopWindow, SettingsThatCannotBeReadAreToldAndLeftAsTheyAre) {
    const std::string endless = "DataTop= 30\r\nDataFile=" + std::string(3 << 20, 'x');
    directory_.Write("Tolvanis.ini", endless);
    ASSERT_TRUE(Open());
    EXPECT_NE(messages_.TakeTold().at(0).find("Tolvanis.ini"), std::string::npos);
    EXPECT_EQ(state_.settings, DefaultSettings(directory_.path()));
    desktop_->mainWindow().close();
    EXPECT_EQ(FileContent(directory_ / "Tolvanis.ini"), endless);
}

TEST_F(DesktopWindow, ExitKeepsSettingsForTheNextStart) {
    TypeBirth();
    PressOK();
    ChooseInData("mnuItalic");
    desktop_->dataWindow()->move(150, 120);
    desktop_->dataWindow()->resize(500, 400);
    QCoreApplication::processEvents();
    desktop_->mainWindow().move(30, 15);
    desktop_->mainWindow().resize(700, 40);
    desktop_->mainWindow().close();
    const Settings kept = state_.settings;
    const int caption = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
    EXPECT_EQ(std::vector<int>({kept.dataView.DataTop, kept.dataView.DataLeft, kept.dataView.DataHeight,
                                kept.dataView.DataWidth}),
              std::vector<int>({1800, 2250, 6000, 7500}));
    EXPECT_EQ(
        std::vector<double>({kept.TOLVANISTop, kept.TOLVANISLeft, kept.TOLVANISHeight, kept.TOLVANISWidth}),
        std::vector<double>({225, 450, 15.0 * (40 + caption), 10500}));
    ASSERT_TRUE(Open());
    EXPECT_EQ(state_.settings, kept);
    PressOK();
    EXPECT_EQ(QRect(desktop_->dataWindow()->pos(), desktop_->dataWindow()->size()),
              QRect(150, 120, 500, 400));
    EXPECT_EQ(QRect(desktop_->mainWindow().pos(), desktop_->mainWindow().size()), QRect(30, 15, 700, 40));
    desktop_->dataWindow()->showMaximized();
    QCoreApplication::processEvents();
    EXPECT_TRUE(Find<QAction>(*desktop_->dataWindow(), "mnuItalic").isChecked());
    desktop_->mainWindow().close();
    EXPECT_EQ(state_.settings, kept) << "windows that were not moved keep their settings to the twip";
}

TEST_F(DesktopWindow, RubbishSettingsStillOpenWindowsInView) {
    directory_.Write(
        "Tolvanis.ini",
        "FontSize=1e300\r\nTOLVANISTop=-1e9\r\nTOLVANISLeft= 1e300\r\nTOLVANISWidth= 1e-9\r\n"
        "DataTop= 32767\r\nDataLeft=-32768\r\nDataHeight= 1\r\nDataWidth= 32767\r\nDataFile=\xff\r\n");
    ASSERT_TRUE(Open());
    PressOK();
    const QRect screen = UsableScreens().constFirst();
    for (const QWidget* window :
         {static_cast<QWidget*>(&desktop_->mainWindow()), static_cast<QWidget*>(desktop_->dataWindow())}) {
        const QRect shown = window->geometry().intersected(screen);
        EXPECT_GE(shown.width(), 100);
        EXPECT_GE(shown.height(), 20);
    }
}

TEST_F(DesktopWindow, MissingOptionsAreRestoredOnlyWhenTheUserWantsIt) {
    for (const char* content : {"", "no file", "\x7F\x45\x4C\x46 nothing\nlike options\n"}) {
        std::filesystem::remove(directory_.path() / "OPTIONS.OPT");
        if (std::string(content) != "no file") directory_.Write("OPTIONS.OPT", content);
        messages_.answers = {Answer::No, Answer::Yes};
        EXPECT_FALSE(Open());
        EXPECT_TRUE(Open());
        EXPECT_EQ(state_.options[22], 40.0F);
        EXPECT_NE(messages_.asked.back().find("OPTIONS.OPT"), std::string::npos);
    }
    std::filesystem::remove(directory_.path() / "OPTIONS.OPT");
    std::filesystem::create_directory(directory_.path() / "OPTIONS.OPT");
    messages_.answers = {Answer::Yes};
    EXPECT_FALSE(Open());
    EXPECT_EQ(messages_.TakeTold().size(), 1U) << "why it could not be restored";
    std::filesystem::remove(directory_.path() / "OPTIONS.OPT");
    std::filesystem::remove(directory_.path() / "OPTIONS.MAS");
    EXPECT_FALSE(Open());
    EXPECT_NE(messages_.TakeTold().at(0).find("OPTIONS.MAS is missing"), std::string::npos);
}

TEST_F(DesktopWindow, SettingsThatCannotBeKeptAreTold) {
    std::filesystem::create_directory(directory_.path() / "Tolvanis.ini");
    desktop_->mainWindow().close();
    EXPECT_NE(messages_.TakeTold().at(0).find("Tolvanis.ini"), std::string::npos);
}

TEST_F(DesktopWindow, TheTitleIsShownWhereItsOptionSaysSo) {
    auto lines = *ReadLines(directory_.path() / "OPTIONS.OPT");
    for (const bool wanted : {true, false}) {
        lines[46] = lines[48] = wanted ? "0" : "1";
        lines[47] = wanted ? "1" : "0";
        directory_.Write("OPTIONS.OPT", JoinLines(lines) + std::string("\r\n"));
        bool shown = false;
        QTimer closer;
        QObject::connect(&closer, &QTimer::timeout, [&] {
            if (auto* title = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                shown = title->objectName() == QLatin1String("Title");
                title->accept();
            }
        });
        closer.start(10);
        ASSERT_TRUE(Open());
        EXPECT_EQ(shown, wanted);
    }
}

TEST_F(DesktopWindow, OptionsChooseHousesAtStart) {
    auto lines = *ReadLines(directory_.path() / "OPTIONS.OPT");
    for (const auto& [value, item] : {std::pair{"3", "mnuHouseKoch"}, {"12", "mnuHousePlacidus"}}) {
        lines[26] = value;
        directory_.Write("OPTIONS.OPT", JoinLines(lines) + std::string("\r\n1\r\n"));
        ASSERT_TRUE(Open());
        EXPECT_TRUE(desktop_->mainWindow().ItemOf(item)->isChecked()) << value;
    }
}

TEST_F(DesktopWindow, AltAndALetterOpensTheMenuFromEveryWindow) {
    auto& name = Find<QLineEdit>(input(), "txtName");
    const QString before = name.text();
    name.selectAll();
    for (const Qt::Key letter : {Qt::Key_Q, Qt::Key_H}) QTest::keyClick(&name, letter, Qt::AltModifier);
    EXPECT_EQ(name.text(), before) << "nothing is typed";
    const QMenu* help = desktop_->mainWindow().ItemOf("mnuHelp")->menu();
    EXPECT_TRUE(help->isVisible());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_FALSE(help->isVisible());
    TypeBirth();
    PressOK();
    Choose("mnuOptions");
    auto* editor = TopWindow<EditorWindow>();
    QTest::keyClick(&Find<QPlainTextEdit>(*editor, "txtContent"), Qt::Key_R, Qt::AltModifier);
    EXPECT_NE(TopWindow<Report>(), nullptr) << "an item of the menu bar itself";
}

TEST_F(DesktopWindow, AClosedNatalInputCanBeOpenedAgain) {
    input().close();
    ASSERT_TRUE(Shown("mnuInputData"));
    Choose("mnuInputData");
    EXPECT_TRUE(input().isVisible());
}

TEST_F(DesktopWindow, ExitWhileTheAtlasRunsIsSafe) {
    const Path atlas = directory_.Write("ATLAS.EXE", "#!/bin/sh\nsleep 0.5\n");
    std::filesystem::permissions(atlas, std::filesystem::perms::owner_all);
    state_.settings.AtlasDir = directory_.path().string() + "/";
    auto& button = Find<QPushButton>(input(), "Label2");
    QTimer::singleShot(100, &button, [&] { EXPECT_FALSE(button.isEnabled()) << "asked for once"; });
    Press(input(), "Label2");
    EXPECT_TRUE(button.isEnabled());
    messages_.TakeTold();
    QTimer::singleShot(100, &desktop_->mainWindow(), [this] { Choose("mnuFileExit"); });
    Press(input(), "Label2");
    EXPECT_FALSE(input().isVisible());
}

// Places in twips are finer than pixels: one that nobody changes must not creep from run to run.
TEST_F(DesktopWindow, AMainWindowThatNobodyMovesKeepsItsPlaceToTheTwip) {
    Settings settings = DefaultSettings(directory_.path());
    settings.TOLVANISTop = 127;
    settings.TOLVANISLeft = 911;
    settings.TOLVANISHeight = 1507;
    settings.TOLVANISWidth = 9001;
    ASSERT_TRUE(WriteSettings(directory_.path(), settings));
    ASSERT_TRUE(Open());
    desktop_->mainWindow().close();
    EXPECT_EQ(*ReadSettings(directory_.path()), settings);
}

TEST(Placement, BringsLostWindowsBack) {
    const QList<QRect> screens = {{0, 0, 1000, 800}, {1000, 0, 500, 400}};
    const struct {
        QRect wanted, want;
    } cases[] = {{{100, 50, 600, 500}, {100, 50, 600, 500}},   {{-200, 50, 600, 500}, {-200, 50, 600, 500}},
                 {{-590, -20, 600, 500}, {0, 0, 600, 500}},    {{5000, 3000, 600, 500}, {400, 300, 600, 500}},
                 {{1100, 30, 300, 200}, {1100, 30, 300, 200}}, {{0, 0, 9000, 0}, {0, 0, 1000, 1}},
                 {{10, 126, 800, 1100}, {10, 126, 800, 674}},  {{-50, -50, 1200, 900}, {0, 0, 1000, 800}}};
    for (const auto& test : cases) EXPECT_EQ(BroughtIntoView(test.wanted, screens), test.want);
    EXPECT_EQ(WhollyInView({800, 700, 300, 200}, screens), QRect(700, 600, 300, 200));
    EXPECT_TRUE(IsSamePlace({10, 20, 300, 200}, {12, 19, 301, 203})) << "rounding is no wish";
    for (const QRect moved : {QRect(14, 20, 300, 200), QRect(10, 16, 300, 200), QRect(10, 20, 304, 200),
                              QRect(10, 20, 300, 196)}) {
        EXPECT_FALSE(IsSamePlace({10, 20, 300, 200}, moved));
    }
    EXPECT_EQ(WhollyInView({1400, 100, 300, 200}, screens), QRect(1200, 100, 300, 200));
}

TEST(Placement, NewWindowsKeepOffTheButtonsOfOthers) {
    const QSize smallest(200, 150);
    // A menu along the top, and a window with a row of buttons at its bottom.
    const QRect menu(0, 0, 640, 45), window(0, 180, 500, 300), buttons(10, 440, 480, 25);
    const ShownWindows others = {{menu, window}, {menu, buttons}};
    const QList<QRect> screen = {{0, 0, 640, 480}};
    const QRect place = ClearPlace({508, 180, 250, 400}, smallest, others, screen);
    EXPECT_TRUE(screen[0].contains(place));
    EXPECT_FALSE(place.intersects(menu) || place.intersects(buttons));
    EXPECT_GE(place.width(), smallest.width());
    EXPECT_GE(place.height(), smallest.height());

    const QList<QRect> large = {{0, 0, 1600, 1000}, {1600, 0, 800, 600}};
    EXPECT_EQ(ClearPlace({508, 180, 250, 400}, smallest, others, large), QRect(508, 180, 250, 400));
    const QRect moved = ClearPlace({400, 100, 250, 400}, smallest, others, large);
    EXPECT_FALSE(moved.intersects(window) || moved.intersects(menu));
    EXPECT_EQ(moved.size(), QSize(250, 400)) << "nothing shrinks where there is room";
    EXPECT_EQ(moved.topLeft(), QPoint(507, 100)) << "and it goes no further than it must";
    EXPECT_EQ(ClearPlace({10, 10, 900, 900}, {2000, 2000}, others, screen).size(), QSize(640, 480));
    EXPECT_EQ(ClearPlace({10, 10, 90, 90}, smallest, others, {}), QRect(10, 10, 90, 90));
}

TEST_F(DesktopWindow, NoWindowOpensOverAnothersButtons) {
    const auto place = [](const QWidget& window) { return QRect(window.pos(), window.size()); };
    Press(input(), "Label1");
    const QWidget* const windows[] = {&desktop_->mainWindow(), &input(), desktop_->birthDesk().names(),
                                      desktop_->birthDesk().timeZones()};
    for (const QWidget* front : windows) {
        for (const QWidget* behind : windows) {
            for (const auto* button : behind->findChildren<QPushButton*>()) {
                const QRect at(button->mapToGlobal(QPoint()), button->size());
                EXPECT_TRUE(front == behind || !place(*front).intersects(at))
                    << front->objectName().toStdString() << " covers " << button->text().toStdString();
            }
        }
    }
}

TEST_F(DesktopWindow, EscapeLeadsToAMenuThatTheArrowsMoveIn) {
    auto* menu = desktop_->mainWindow().menuBar();
    const QImage before = menu->grab().toImage();
    for (int time = 0; time < 2; ++time) {
        QTest::keyClick(&Find<QLineEdit>(input(), "txtName"), Qt::Key_Escape);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&desktop_->mainWindow()));
        EXPECT_TRUE(menu->hasFocus());
        ASSERT_NE(menu->activeAction(), nullptr) << time;
        EXPECT_EQ(menu->activeAction()->objectName(), QStringLiteral("mnuFile"));
        EXPECT_NE(menu->grab().toImage(), before) << "the item is marked";
        QTest::keyClick(menu, Qt::Key_Right);
        EXPECT_EQ(menu->activeAction()->objectName(), QStringLiteral("mnuChanges"));
        input().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&input()));
    }
}

TEST_F(DesktopWindow, EscapeLeadsFromListsToTheInputAndFromEditorsToTheMenu) {
    Choose("mnuOptions");
    auto* editor = TopWindow<EditorWindow>();
    auto* names = TopWindow<Names>();
    const struct {
        QWidget* from;
        const char* control;
        QWidget* to;
    } cases[] = {{editor, "txtContent", &desktop_->mainWindow()},
                 {editor, "btnSave", &desktop_->mainWindow()},
                 {names, "NamesOnFile", &input()},
                 {names, "txtFind", &input()}};
    for (const auto& test : cases) {
        test.from->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(test.from));
        QTest::keyClick(&Find<QWidget>(*test.from, test.control), Qt::Key_Escape);
        EXPECT_TRUE(QTest::qWaitForWindowActive(test.to)) << test.control;
    }
}

TEST_F(DesktopWindow, LettersOfAnotherSizeKeepTheReadersPlace) {
    TypeBirth();
    PressOK();
    auto& text = Find<QPlainTextEdit>(*desktop_->dataWindow(), "Text1");
    desktop_->dataWindow()->resize(300, 300);
    QCoreApplication::processEvents();
    QTextCursor cursor = text.textCursor();
    cursor.setPosition(400);
    cursor.setPosition(420, QTextCursor::KeepAnchor);
    text.setTextCursor(cursor);
    text.verticalScrollBar()->setValue(40);
    text.horizontalScrollBar()->setValue(text.horizontalScrollBar()->maximum() / 2);
    const auto firstColumn = [&] { return text.cursorForPosition({0, 5}).positionInBlock(); };
    const int column = firstColumn();
    EXPECT_GT(column, 0);
    for (const char* item : {"mnuIncrease", "mnuBold", "mnuItalic", "mnuIncrease", "mnuDecrease"}) {
        ChooseInData(item);
        EXPECT_EQ(text.verticalScrollBar()->value(), 40) << item;
        EXPECT_NEAR(firstColumn(), column, 1) << item;
        EXPECT_EQ(text.textCursor().anchor(), 400) << item;
        EXPECT_EQ(text.textCursor().position(), 420) << item;
    }
    directory_.Write("HINTS.HLP", "a hint\r\n");
    Choose("mnuHelpHints");
    EXPECT_EQ(text.verticalScrollBar()->value(), 0) << "another text begins at its top";
}

TEST_F(DesktopWindow, EditorsTakeEnterAndCtrlS) {
    Choose("mnuHeader");
    auto* editor = TopWindow<EditorWindow>();
    ASSERT_TRUE(QTest::qWaitForWindowActive(editor));
    auto& content = Find<QPlainTextEdit>(*editor, "txtContent");
    content.setPlainText(QStringLiteral("Zoe"));
    QTest::keyClick(&content, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(FileContent(directory_ / "PERSONAL.NAM"), "Zoe\r\n");
    QTest::keyClick(&Find<QPushButton>(*editor, "btnQuit"), Qt::Key_Return);
    EXPECT_FALSE(TopWindow<EditorWindow>() != nullptr && TopWindow<EditorWindow>()->isVisible());
}

TEST_F(DesktopWindow, PagesBreakWhereTheOptionsSay) {
    std::string help;
    for (int i = 1; i <= 50; ++i) help += "line " + std::to_string(i) + "\r\n";
    directory_.Write("HINTS.HLP", help);
    directory_.Write("HELPFILE", help);
    const struct {
        float linesPrinted, linesSaved;
        std::size_t pages;
        std::vector<int> brokenAfter;  // the lines in front of form feeds in the saved file
    } cases[] = {{25, 21, 2, {21, 41}}, {20, 31, 3, {31}}, {0, 1, 1, {}}};
    for (const auto& test : cases) {
        state_.options[30] = test.linesPrinted;
        state_.options[45] = test.linesSaved;
        dialogs_.answer = (directory_ / "help.pdf").string();
        Choose("mnuHelpPrintHelp");
        EXPECT_EQ(PdfPages("help.pdf").size(), test.pages);
        state_.buffer.ClearDataBuffer();
        Choose("mnuHelpHints");
        ChooseInData("mnuPrintData");
        Press(*TopWindow<PrntFile>(), "btnPrint");
        EXPECT_EQ(PdfPages("help.pdf").size(), test.pages) << "the print dialog";
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        dialogs_.answer = (directory_ / "saved.doc").string();
        ChooseInData("mnuSaveAs");
        std::string wanted = FileContent(directory_ / "saved.doc");
        for (const int line : test.brokenAfter) {
            const std::string text = "line " + std::to_string(line) + "\r\n";
            EXPECT_NE(wanted.find(text + "\f\r\n"), std::string::npos) << text;
        }
        EXPECT_EQ(std::count(wanted.begin(), wanted.end(), '\f'), std::ssize(test.brokenAfter) + 1);
    }
}

TEST_F(DesktopWindow, RestoredOptionsAreShownAndAFailedRestoreChangesNothing) {
    Choose("mnuOptions");
    auto* editor = TopWindow<EditorWindow>();
    auto& content = Find<QPlainTextEdit>(*editor, "txtContent");
    const QString mine = QStringLiteral("7\nmine");
    const std::string before = FileContent(directory_ / "OPTIONS.OPT");
    const std::string master = FileContent(directory_ / "OPTIONS.MAS");
    std::filesystem::remove(directory_ / "OPTIONS.MAS");
    content.setPlainText(mine);
    Press(*editor, "cmdRestoreDefault");
    EXPECT_EQ(messages_.TakeTold(),
              std::vector<std::string>{"Warning!: Error in operation. Cannot do what is requested."});
    EXPECT_EQ(content.toPlainText(), mine);
    EXPECT_EQ(FileContent(directory_ / "OPTIONS.OPT"), before);
    directory_.Write("OPTIONS.MAS", "3.5 restored\r\n" + master);
    Press(*editor, "cmdRestoreDefault");
    EXPECT_TRUE(content.toPlainText().startsWith(QStringLiteral("3.5 restored\n")));
    EXPECT_EQ(FileContent(directory_ / "OPTIONS.OPT"), "3.5 restored\r\n" + master);
    EXPECT_FALSE(content.document()->isModified()) << "quitting has nothing to ask";
    EXPECT_NE(messages_.TakeTold().at(0).find("kept as OPTIONS.OLD"), std::string::npos);
    Press(*editor, "cmdRestoreDefault");
    EXPECT_EQ(messages_.TakeTold(),
              std::vector<std::string>{"Information: The default settings are restored."});
    EXPECT_EQ(FileContent(directory_ / "OPTIONS.OLD"), before);
}

TEST(FileChooser, HasTwoEqualColumnsInWhichLongNamesAreRead) {
    const ScratchDirectory directory;
    const std::string longName = "the long  list of <b>all the people & beasts whom we have ever met.FIL";
    for (const std::string& name : {std::string("A.FIL"), longName}) directory.Write(name, "");
    std::filesystem::create_directory(directory / "sub");
    SelectFIle chooser(directory.path(), "*.FIL", "");
    chooser.show();
    auto& files = Find<QListWidget>(chooser, "filList");
    auto& directories = Find<QListWidget>(chooser, "dirList");
    EXPECT_NEAR(files.width(), directories.width(), 1);
    EXPECT_EQ(files.iconSize(), directories.iconSize());
    const auto icon = [&](int row) { return directories.item(row)->icon().pixmap(directories.iconSize()); };
    EXPECT_EQ(icon(0).toImage(), icon(directories.count() - 1).toImage());
    EXPECT_GT(files.visualItemRect(files.item(1)).height(), files.visualItemRect(files.item(0)).height());
    EXPECT_LE(files.visualItemRect(files.item(1)).right(), files.viewport()->width());
    EXPECT_EQ(ShownTip(files.item(1)->toolTip()), longName);
    Find<QPushButton>(chooser, "cmdCancel").setFocus();
    QTest::keyClick(&Find<QPushButton>(chooser, "cmdCancel"), Qt::Key_Return);
    EXPECT_EQ(chooser.result(), "") << "Enter on Cancel cancels";
    EXPECT_FALSE(chooser.isVisible());
}

TEST(FileChooser, ChoosesByKeyboardAndByDirectory) {
    const ScratchDirectory directory;
    std::filesystem::create_directory(directory.path() / "sub");
    for (const char* name : {"A.FIL", "names.fil", "sub/C.FIL", "X.TXT"}) directory.Write(name, "");
    {
        SelectFIle chooser(directory.path(), "*.FIL", "C:\\OLD\\NAMES.FIL");
        EXPECT_EQ(Find<QListWidget>(chooser, "filList").count(), 2);
        EXPECT_EQ(chooser.windowTitle(), QStringLiteral("Select a File"));
        Press(chooser, "cmdSelect");
        EXPECT_EQ(chooser.result(), (directory.path() / "names.fil").string());
    }
    {
        const std::string current = (directory.path() / "sub/c.fil").string();
        SelectFIle chooser(directory.path(), "*.FIL", current);
        EXPECT_EQ(Find<QListWidget>(chooser, "filList").count(), 1) << "opens where the current file is";
        Press(chooser, "cmdSelect");
        EXPECT_EQ(chooser.result(), (directory.path() / "sub/C.FIL").string());
    }
    {
        SelectFIle chooser(directory.path(), "*.FIL", "");
        chooser.show();
        chooser.activateWindow();
        auto& directories = Find<QListWidget>(chooser, "dirList");
        directories.setFocus();
        QTest::keyClick(&directories, Qt::Key_Down);
        QTest::keyClick(&directories, Qt::Key_Return);
        auto& files = Find<QListWidget>(chooser, "filList");
        ASSERT_EQ(files.count(), 1);
        files.setFocus();
        QTest::keyClick(&files, Qt::Key_Return);
        EXPECT_EQ(chooser.result(), (directory.path() / "sub/C.FIL").string());
    }
    SelectFIle chooser(directory.path(), "*.FIL", "");
    Press(chooser, "cmdSelect");
    Press(chooser, "cmdCancel");
    EXPECT_EQ(chooser.result(), "");
}

TEST(FileChooser, OffersNoOtherListToBeAddedTo) {
    const ScratchDirectory directory, applicationDirectory;
    for (const char* name : {"A.FIL", "z.fil", "X.TXT"}) directory.Write(name, "");
    applicationDirectory.Write("NAMES.FIL", "");
    std::filesystem::create_symlink("nowhere", directory / "LINK.FIL");
    std::filesystem::create_directory(directory / "DIR.FIL");
    const struct {
        std::string current, chosen;
        int files;
    } cases[] = {{(directory / "Z.FIL").string(), (directory / "z.fil").string(), 2},
                 {(directory / "New.FIL").string(), (directory / "New.FIL").string(), 3},
                 {(directory / "LINK.FIL").string(), (directory / "LINK.FIL").string(), 3},
                 {(directory / "DIR.FIL").string(), "", 2},
                 {(directory / "X.TXT").string(), "", 2},
                 {(directory / "gone/NAMES.FIL").string(), "", 1},
                 {"", "", 1}};
    for (const auto& test : cases) {
        SelectFIle chooser(applicationDirectory.path(), "*.FIL", test.current, FileUse::AddTo);
        chooser.show();
        auto& files = Find<QListWidget>(chooser, "filList");
        EXPECT_EQ(files.count(), test.files) << test.current;
        EXPECT_EQ(Find<QPushButton>(chooser, "cmdSelect").isEnabled(), !test.chosen.empty()) << test.current;
        files.setFocus();
        QTest::keyClick(&files, Qt::Key_Return);
        EXPECT_EQ(chooser.result(), test.chosen);
        if (!test.chosen.empty()) continue;
        QTest::keyClick(&files, Qt::Key_Down);
        EXPECT_EQ(files.currentRow(), 0);
        QTest::keyClick(&files, Qt::Key_Return);
        EXPECT_TRUE(chooser.result().ends_with(files.item(0)->text().toStdString()));
    }
    SelectFIle reader(directory.path(), "*.FIL", (directory / "NEW.FIL").string());
    Press(reader, "cmdSelect");
    EXPECT_EQ(reader.result(), (directory / "A.FIL").string()) << "to be read, a file must be there";
}

TEST(FileChooser, FindsDirectoriesByTheirFirstLetters) {
    const ScratchDirectory directory;
    for (const char* name : {"alpha", "beta", "zeta"}) std::filesystem::create_directory(directory / name);
    SelectFIle chooser(directory.path(), "*.FIL", "");
    chooser.show();
    auto& directories = Find<QListWidget>(chooser, "dirList");
    directories.setFocus();
    QTest::keyClicks(&directories, QStringLiteral("ze"));
    EXPECT_EQ(directories.currentItem()->text(), QStringLiteral("zeta"));
    QTest::keyClick(&directories, Qt::Key_Return);
    EXPECT_EQ(directories.currentItem()->text(), QStringLiteral("zeta")) << "the one that is shown";
    EXPECT_EQ(directories.currentRow(), directories.count() - 1) << "inside it there is none";
}

}  // namespace
}  // namespace tolvanis
