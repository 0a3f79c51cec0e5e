// The natal input window: what its boxes let in, the hour rule and the East/West rule.

#include "birthdata/qt/natal_input_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QRadioButton>

#include "support/window_user.h"

namespace tolvanis {
namespace {

class NatalInputWindow : public testing::Test {
  protected:
    NatalInputWindow() {
        options_[18] = 5.5F;
        window_ = std::make_unique<InputD>(options_, messages_, [this] { return now_; });
        window_->show();
        window_->activateWindow();
        QCoreApplication::processEvents();
    }

    std::string Text(const char* box) { return Find<QLineEdit>(*window_, box).text().toStdString(); }
    void Paste(const char* box, const char* text) {
        QApplication::clipboard()->setText(QString::fromUtf8(text));
        auto& edit = Find<QLineEdit>(*window_, box);
        edit.selectAll();
        edit.paste();
    }

    LocalTime now_{{2027, 1, 5}, 14, 7, 3};
    Options options_;
    RecordedMessages messages_;
    std::unique_ptr<InputD> window_;
};

TEST_F(NatalInputWindow, OpensWithThePresentMomentAtHome) {
    EXPECT_EQ(window_->Entry(), FillNow(now_, options_));
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("Natal Input Data"));
}

TEST_F(NatalInputWindow, BoxesTakeOnlyTheirCharacters) {
    const struct {
        const char *box, *typed, *holds;
    } cases[] = {{"txtName", "Zo\u00eb, 2nd", "Zo\u00eb, 2nd"},
                 {"txtMonth", "1a2-", "12"},
                 {"txtYear", "19.49\u0663", "1949"},
                 {"txtTZ", "-5.x5e", "-5.5"},
                 {"txtLongDeg", "-7 3", "73"},
                 {"txtLatMin", "+5", "5"}};
    for (const auto& test : cases) {
        Type(*window_, test.box, test.typed);
        EXPECT_EQ(Text(test.box), test.holds) << test.box;
    }
    Paste("txtYear", "19 x 4\n9");
    EXPECT_EQ(Text("txtYear"), "1949");
    // Nor does anything else replace the marked text.
    Type(*window_, "txtYear", "x ");
    Paste("txtYear", "letters");
    EXPECT_EQ(Text("txtYear"), "1949");
}

TEST_F(NatalInputWindow, FocusSelectsTheWholeText) {
    auto& month = Find<QLineEdit>(*window_, "txtMonth");
    for (const auto reason : {Qt::TabFocusReason, Qt::ShortcutFocusReason}) {
        Find<QLineEdit>(*window_, "txtName").setFocus();
        month.setFocus(reason);
        EXPECT_EQ(month.selectedText(), QStringLiteral("1"));
    }
    QTest::mouseClick(&Find<QLineEdit>(*window_, "txtDay"), Qt::LeftButton);
    EXPECT_EQ(Find<QLineEdit>(*window_, "txtDay").selectedText(), QStringLiteral("5"));
}

TEST_F(NatalInputWindow, HoursFoldOntoTheDialAndAreAskedForWhenEmpty) {
    const struct {
        const char *typed, *holds;
        bool pm;
    } cases[] = {{"0", "12", false}, {"15", "3", true},  {"12", "12", false}, {"13", "1", true},
                 {"24", "12", true}, {"09", "9", false}, {"00", "12", false}, {"7", "7", false}};
    for (const auto& test : cases) {
        Find<QRadioButton>(*window_, "optAM").click();
        Type(*window_, "txtBirthHour", test.typed);
        EXPECT_EQ(Text("txtBirthHour"), test.holds) << test.typed;
        EXPECT_EQ(Find<QRadioButton>(*window_, "optPM").isChecked(), test.pm) << test.typed;
    }
    EXPECT_TRUE(messages_.told.empty());
    Paste("txtBirthHour", "99999999999999999999");
    EXPECT_LE(std::stod(Text("txtBirthHour")), 12.0) << "a huge number is folded at once";
    Type(*window_, "txtBirthHour", "\b");
    EXPECT_EQ(messages_.TakeTold(),
              std::vector<std::string>{"Warning!: Please fill in a value for birth hour."});
}

TEST_F(NatalInputWindow, TheZonesSignFollowsTheUsersClickOnly) {
    Find<QRadioButton>(*window_, "optEast").click();
    EXPECT_EQ(Text("txtTZ"), "-5.5");
    Find<QRadioButton>(*window_, "optWest").click();
    EXPECT_EQ(Text("txtTZ"), "5.5");
    Type(*window_, "txtTZ", "0");
    Find<QRadioButton>(*window_, "optEast").click();
    EXPECT_EQ(Text("txtTZ"), "0");
    // Madrid: west of Greenwich, in a zone east of it.
    NatalEntry madrid = window_->Entry();
    madrid.timeZone = "-1";
    madrid.east = false;
    window_->SetEntry(madrid);
    EXPECT_EQ(window_->Entry(), madrid);
}

TEST_F(NatalInputWindow, TabVisitsNamedBoxesInTheirOrder) {
    const char* const order[] = {"txtMonth",  "txtDay",    "txtYear",    "txtBirthHour", "txtBirthMinute",
                                 "optPM",     "txtTZ",     "txtLongDeg", "txtLongMin",   "optWest",
                                 "txtLatDeg", "txtLatMin", "optNorth",   "cmdNow",       "cmdOK"};
    Find<QLineEdit>(*window_, "txtName").setFocus();
    for (const char* next : order) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), next);
        EXPECT_FALSE(QApplication::focusWidget()->accessibleName().isEmpty()) << next;
    }
}

TEST_F(NatalInputWindow, EnterPressesTheFocusedButtonWhichLooksFocused) {
    std::string said;
    QObject::connect(window_.get(), &InputD::computeRequested, [&] { said += "compute "; });
    QObject::connect(window_.get(), &InputD::saveRequested, [&] { said += "save "; });
    QObject::connect(window_.get(), &InputD::timeZoneHelpRequested, [&] { said += "zones "; });
    QObject::connect(window_.get(), &InputD::atlasRequested, [&] { said += "atlas "; });
    const auto& ok = Find<QPushButton>(*window_, "cmdOK");
    const auto picture = [](QPushButton& button) { return button.grab().toImage(); };
    const QImage defaultLook = picture(Find<QPushButton>(*window_, "cmdOK"));
    Type(*window_, "txtName", "Ann");
    for (const char* name : {"cmdSave", "cmdNow", "Label1", "Label2", "cmdOK"}) {
        auto& button = Find<QPushButton>(*window_, name);
        const QImage before = picture(button);
        button.setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(button.isDefault() && (&button == &ok || !ok.isDefault())) << name;
        EXPECT_NE(picture(button), before) << name;
        QTest::keyClick(&button, Qt::Key_Return);
    }
    EXPECT_EQ(said, "save zones atlas compute ");
    EXPECT_EQ(Text("txtName"), "Now");
    EXPECT_NE(picture(Find<QPushButton>(*window_, "cmdOK")), defaultLook) << "focused, not only the default";
    Find<QLineEdit>(*window_, "txtDay").setFocus();
    EXPECT_TRUE(ok.isDefault());
    EXPECT_EQ(picture(Find<QPushButton>(*window_, "cmdOK")), defaultLook);
}

TEST_F(NatalInputWindow, EnterInAnyBoxComputesAndEscapeGoesToTheMainWindow) {
    int computed = 0, left = 0;
    QObject::connect(window_.get(), &InputD::computeRequested, [&] { ++computed; });
    QObject::connect(window_.get(), &InputD::mainWindowRequested, [&] { ++left; });
    for (const char* box : {"txtName", "txtLatMin", "optEast"}) {
        QTest::keyClick(&Find<QWidget>(*window_, box), Qt::Key_Return);
    }
    EXPECT_EQ(computed, 3);
    QTest::keyClick(&Find<QWidget>(*window_, "txtName"), Qt::Key_Escape);
    QTest::mouseClick(window_.get(), Qt::RightButton, {}, {3, 3});
    EXPECT_EQ(left, 2);
    EXPECT_TRUE(window_->isVisible());
}

}  // namespace
}  // namespace tolvanis
