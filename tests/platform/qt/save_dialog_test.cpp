// The save dialog as its user meets it.
#include "platform/qt/save_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <deque>
#include <functional>

#include "support.h"
#include "support/window_user.h"

namespace tolvanis {
namespace {

// Acts on one dialog after the other, each as soon as it is shown.
class DialogUser {
  public:
    DialogUser() {
        timer_.callOnTimeout([this] { Act(); });
        timer_.start(10);
    }
    void TypeName(const char* name) {
        steps_.emplace_back([this, name](QWidget& dialog) {
            if (qobject_cast<QFileDialog*>(&dialog) == nullptr) return false;
            auto& box = Find<QLineEdit>(dialog, "fileNameEdit");
            const QSize screen = dialog.screen()->availableSize();
            EXPECT_TRUE(dialog.size().boundedTo(screen) == dialog.size()) << "every button can be reached";
            directories.push_back(static_cast<QFileDialog&>(dialog).directory().path().toStdString());
            proposed.push_back(box.text().toStdString());
            if (name == nullptr) return static_cast<QDialog&>(dialog).reject(), true;
            box.setText(QString::fromUtf8(name));
            return static_cast<QDialog&>(dialog).accept(), true;
        });
    }
    void Cancel() { TypeName(nullptr); }
    void Say(QMessageBox::StandardButton button) {
        steps_.emplace_back([this, button](QWidget& dialog) {
            auto* box = qobject_cast<QMessageBox*>(&dialog);
            if (box == nullptr) return false;
            asked.push_back(box->text().toStdString());
            EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
            return box->button(button)->click(), true;
        });
    }
    bool IsDone() const { return steps_.empty(); }

    std::vector<std::string> directories, proposed, asked;

  private:
    void Act() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || !dialog->isVisible()) return;
        if (steps_.empty()) {
            ADD_FAILURE() << "nobody expected " << dialog->windowTitle().toStdString();
            return static_cast<QDialog*>(dialog)->reject();
        }
        const auto step = steps_.front();
        steps_.pop_front();
        if (!step(*dialog)) steps_.push_front(step);
    }

    QTimer timer_;
    std::deque<std::function<bool(QWidget&)>> steps_;
};

TEST(SaveDialog, AddsItsExtensionToNamesWithDots) {
    const ScratchDirectory directory;
    const SaveRequest request = {directory.path(), "Ann.DOC", "Data Files", "*.DOC", "doc"};
    const std::pair<const char*, const char*> cases[] = {{"Ann", "Ann.doc"},
                                                         {"Dr. Ann", "Dr. Ann.doc"},
                                                         {"Dr. Ann.DOC", "Dr. Ann.DOC"},
                                                         {"Ann.dOc", "Ann.dOc"},
                                                         {"Ann Jr.", "Ann Jr.doc"},
                                                         {"Ann.txt", "Ann.txt.doc"},
                                                         {"doc", "doc.doc"},
                                                         {"Zo\xC3\xAB v. A", "Zo\xC3\xAB v. A.doc"}};
    for (const auto& [typed, saved] : cases) {
        DialogUser user;
        user.TypeName(typed);
        EXPECT_EQ(ShowSaveDialog(request), (directory / saved).string());
        EXPECT_EQ(user.proposed, std::vector<std::string>{"Ann.DOC"});
    }
}

TEST(SaveDialog, AsksBeforeOverwritingTheFileThatIsWritten) {
    const ScratchDirectory directory;
    directory.Write("Dr. Ann.doc", "kept");
    directory.Write("Dr. Bob", "another file, which nobody means");
    const SaveRequest request = {directory.path(), "Ann.DOC", "Data Files", "*.DOC", "doc"};
    DialogUser user;
    user.TypeName("Dr. Ann");
    user.Say(QMessageBox::No);
    user.TypeName("Dr. Ann");
    user.Say(QMessageBox::Yes);
    EXPECT_EQ(ShowSaveDialog(request), (directory / "Dr. Ann.doc").string());
    ASSERT_EQ(user.asked.size(), 2U);
    EXPECT_NE(user.asked[0].find("Dr. Ann.doc already exists"), std::string::npos);
    EXPECT_EQ(user.proposed[1], "Dr. Ann.doc") << "the name is not lost";
    user.TypeName("Dr. Bob");
    EXPECT_EQ(ShowSaveDialog(request), (directory / "Dr. Bob.doc").string());
    user.Cancel();
    EXPECT_EQ(ShowSaveDialog(request), "");
    EXPECT_TRUE(user.IsDone());
}

TEST(SaveDialog, AsksAgainInTheDirectoryThatTheUserWentTo) {
    const ScratchDirectory directory;
    std::filesystem::create_directory(directory / "Reports");
    const std::string there = directory.Write("Reports/Ann.doc", "kept").string();
    DialogUser user;
    user.TypeName(there.c_str());
    user.Say(QMessageBox::No);
    user.TypeName("Ann");
    user.Say(QMessageBox::Yes);
    EXPECT_EQ(ShowSaveDialog({directory.path(), "Ann.DOC", "Data Files", "*.DOC", "doc"}), there);
    EXPECT_EQ(user.directories, (std::vector{directory.path().string(), (directory / "Reports").string()}));
}

TEST(SaveDialog, FitsTheScreenInLargeLetters) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPixelSize(40);
    QApplication::setFont(large);
    DialogUser user;
    user.Cancel();
    const ScratchDirectory directory;
    EXPECT_EQ(ShowSaveDialog({directory.path(), "Ann.DOC", "Data Files", "*.DOC", "doc"}), "");
    EXPECT_TRUE(user.IsDone());
    QApplication::setFont(usual);
}

}  // namespace
}  // namespace tolvanis
