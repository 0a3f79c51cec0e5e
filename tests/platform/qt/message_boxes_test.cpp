// Message boxes as their user meets them.
#include "platform/qt/message_boxes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <functional>

namespace tolvanis {
namespace {

// Acts on the next message box.
void WithNextBox(const std::function<void(QMessageBox&)>& act) {
    QTimer::singleShot(50, qApp, [act] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        act(*box);
    });
}

TEST(MessageBoxes, EnterGivesThePresetAnswerAndEscapeNo) {
    MessageBoxes messages;
    for (const auto& [preset, key, answer] :
         {std::tuple{Answer::Yes, Qt::Key_Return, true}, std::tuple{Answer::No, Qt::Key_Return, false},
          std::tuple{Answer::Yes, Qt::Key_Escape, false}}) {
        WithNextBox([pressed = key](QMessageBox& box) { QTest::keyClick(&box, pressed); });
        EXPECT_EQ(messages.AskYesNo("Ann already exists", "Replace it?", preset), answer);
    }
}

TEST(MessageBoxes, ShowALongNameWhole) {
    const std::string shortName = "The file /home/ann/charts/FRIENDS.FIL is read-only.";
    const std::string longName = "Cannot read /home/" + std::string(215, 'W') + ".FIL.";
    MessageBoxes messages;
    for (const std::string& text : {shortName, longName}) {
        WithNextBox([&](QMessageBox& box) {
            const int screen = box.screen()->availableSize().width();
            EXPECT_LE(box.width(), screen);
            const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            ASSERT_NE(label, nullptr);
            EXPECT_LE(label->minimumSizeHint().width(), label->width()) << "nothing is cut off";
            QString shown = box.text();
            EXPECT_EQ(shown == QString::fromStdString(text), text == shortName) << "what fits can be copied";
            EXPECT_EQ(shown.remove(QChar(0x200B)).toStdString(), text);
            box.accept();
        });
        messages.Tell("Error!", text, MessageIcon::Stop);
    }
}

}  // namespace
}  // namespace tolvanis
