#pragma once
// A user for window tests: answers messages and dialogs, and finds controls by their names.

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTextDocumentFragment>
#include <QWidget>
#include <deque>
#include <string>
#include <vector>

#include "platform/file_dialogs.h"
#include "support.h"

namespace tolvanis {

class RecordedDialogs : public FileDialogs {
  public:
    std::deque<std::string> answers;   // to the first questions where to save
    std::string answer;                // to every other; empty cancels
    std::vector<std::string> choices;  // "*.FIL, beginning with /home/ann/NAMES.FIL"
    std::vector<SaveRequest> saveRequests;

    std::string ChooseFile(const std::string& pattern, const std::string& current) override {
        choices.push_back(pattern + ", beginning with " + current);
        return answer;
    }
    std::string ChooseFileToAddTo(const std::string& pattern, const std::string& current) override {
        return ChooseFile(pattern, current);
    }
    std::string ChooseSaveFile(const SaveRequest& request) override {
        saveRequests.push_back(request);
        if (answers.empty()) return answer;
        const std::string first = answers.front();
        answers.pop_front();
        return first;
    }
};

template <typename Control>
Control& Find(QObject& window, const char* name) {
    auto* control = window.findChild<Control*>(QLatin1String(name));
    if (control == nullptr) throw std::runtime_error(std::string("there is no control ") + name);
    return *control;
}

inline void ClickRow(QListView& list, int row, bool twice = false) {
    const QModelIndex index = list.model()->index(row, 0);
    list.scrollTo(index);
    const QPoint at = list.visualRect(index).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
    if (twice) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
}

inline void Press(QWidget& window, const char* button) {
    QTest::mouseClick(&Find<QPushButton>(window, button), Qt::LeftButton);
}

// What a tool tip shows its reader.
inline std::string ShownTip(const QString& tip) {
    if (!Qt::mightBeRichText(tip)) return tip.toStdString();
    return QTextDocumentFragment::fromHtml(tip).toPlainText().toStdString();
}

// Types characters of any alphabet; "\b" is the Backspace key.
inline void TypeInto(QWidget& widget, const char* text) {
    for (const QChar c : QString::fromUtf8(text)) {
        const int key = c == QLatin1Char('\b') ? Qt::Key_Backspace : 0;
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(c));
        QApplication::sendEvent(&widget, &press);
    }
}

// Goes to a box, marks its text and types.
inline void Type(QWidget& window, const char* box, const char* text) {
    auto& widget = Find<QWidget>(window, box);
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    widget.setFocus(Qt::TabFocusReason);
    QTest::keySequence(&widget, QKeySequence::SelectAll);
    TypeInto(widget, text);
}

}  // namespace tolvanis
