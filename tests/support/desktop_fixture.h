#pragma once
// The whole desktop on a directory of its own, for tests that act as its user.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>

#include "app/qt/desktop.h"
#include "support.h"
#include "support/window_user.h"

namespace tolvanis {

class DesktopWindow : public testing::Test {
  protected:
    DesktopWindow() {
        std::filesystem::copy(DELIVERED_DATA_DIR, directory_.path());
        state_.order = {0, 1};
        if (!Open()) throw std::runtime_error("the program does not start");
    }

    // Starts the program anew on the same directory.
    bool Open() {
        desktop_.reset();
        const DateTimeOrder order = state_.order;
        state_ = ProgramState{};
        state_.order = order;
        state_.files = DataFiles(directory_.path());
        desktop_ =
            std::make_unique<Desktop>(state_, DesktopServices{messages_, dialogs_, [] {
                                                                  return LocalTime{{2027, 1, 5}, 14, 7, 3};
                                                              }});
        return desktop_->Start();
    }

    InputD& input() { return desktop_->natalInput(); }
    void Choose(const char* item) { desktop_->mainWindow().ItemOf(item)->trigger(); }
    void ChooseInData(const char* item) { Find<QAction>(*desktop_->dataWindow(), item).trigger(); }
    bool Shown(const char* item) { return desktop_->mainWindow().ItemOf(item)->isVisible(); }

    // The listing in the Data window, "" when there is none.
    std::string Listing() {
        OutputD1* data = desktop_->dataWindow();
        return data == nullptr ? "" : Find<QPlainTextEdit>(*data, "Text1").toPlainText().toStdString();
    }
    testing::AssertionResult ListingHas(const std::string& text) {
        if (Listing().find(text) != std::string::npos) return testing::AssertionSuccess();
        return testing::AssertionFailure() << "no \"" << text << "\" in\n" << Listing();
    }

    template <typename Window>
    Window* TopWindow() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* window = qobject_cast<Window*>(widget)) return window;
        }
        return nullptr;
    }

    void TypeBirth() {
        const std::pair<const char*, const char*> boxes[] = {
            {"txtName", "Ann Smith"}, {"txtMonth", "9"},       {"txtDay", "22"},   {"txtYear", "1949"},
            {"txtBirthHour", "21"},   {"txtBirthMinute", "5"}, {"txtTZ", "4"},     {"txtLongDeg", "73"},
            {"txtLongMin", "59"},     {"txtLatDeg", "40"},     {"txtLatMin", "45"}};
        for (const auto& [box, text] : boxes) Type(input(), box, text);
    }
    void PressOK() { QTest::keyClick(&Find<QLineEdit>(input(), "txtName"), Qt::Key_Return); }

    // The text of every page of a PDF file.
    std::vector<std::string> PdfPages(const std::string& name) {
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"),
                     {QStringLiteral("-layout"), QString::fromStdString((directory_.path() / name).string()),
                      QStringLiteral("-")});
        EXPECT_TRUE(reader.waitForFinished());
        std::vector<std::string> pages;
        for (const QByteArray& page : reader.readAllStandardOutput().split('\f')) {
            pages.push_back(page.toStdString());
        }
        EXPECT_EQ(pages.back(), "") << "every page ends";
        pages.pop_back();
        return pages;
    }

    ScratchDirectory directory_;
    RecordedMessages messages_;
    RecordedDialogs dialogs_;
    ProgramState state_;
    std::unique_ptr<Desktop> desktop_;
};

}  // namespace tolvanis
