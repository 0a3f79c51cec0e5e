#include "app/qt/editor_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include "platform/file_replacing.h"
#include "platform/qt/hourglass.h"
#include "platform/qt/placement.h"
#include "platform/qt/push_button.h"
#include "platform/qt/text.h"
#include "platform/qt/text_area.h"

namespace tolvanis {
namespace {

std::string TitleOf(const EditorUseInfo& info, const Path& file) {
    return info.title.empty() ? "Edit: " + file.string() : std::string(info.title);
}

}  // namespace

EditorWindow::EditorWindow(EditorUse use, const Path& file, Messages& messages)
    : info_(InfoOf(use)), file_(file), messages_(messages) {
    setObjectName(ToQt(info_.window));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(ToQt(TitleOf(info_, file)));
    Build();
    Load();
}

void EditorWindow::Build() {
    txtContent_ = MakeTextArea("txtContent", "Text of the file");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(txtContent_);
    auto* row = new QHBoxLayout;
    if (info_.showsClipboardHint) {
        auto* hint = new QLabel(ToQt(kClipboardHint));
        hint->setWordWrap(true);
        row->addWidget(hint, 1);
    } else {
        row->addStretch(1);
    }
    const auto add = [&](const char* name, const char* caption) {
        auto* button = MakePushButton(name, QLatin1String(caption));
        row->addWidget(button);
        return button;
    };
    connect(add("btnSave", "Save"), &QPushButton::clicked, this, &EditorWindow::btnSave_Click);
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this,
            &EditorWindow::btnSave_Click);
    connect(add("btnQuit", "Quit"), &QPushButton::clicked, this, &EditorWindow::btnQuit_Click);
    if (info_.restoresDefaults) {
        connect(add("cmdRestoreDefault", "Restore Default Settings"), &QPushButton::clicked, this,
                &EditorWindow::restoreRequested);
    }
    layout->addLayout(row);
    const QFontMetrics metrics(txtContent_->font());
    ResizeToFit(*this, {metrics.horizontalAdvance(QLatin1Char('M')) * 88, metrics.lineSpacing() * 34});
}

void EditorWindow::Load() {
    const Hourglass hourglass;
    const Result<std::string> text = file_.Read();
    SetAreaText(*txtContent_, text ? *text : std::string());
    txtContent_->setReadOnly(!text);
    txtContent_->setFocus();
    if (!text) messages_.Tell("Error!", text.message(), MessageIcon::Stop);
}

void EditorWindow::Refresh() {
    if (HasUnsavedChanges()) return;
    if (file_.IsGone()) return KeepText();
    if (!file_.HasChanged()) return;
    const int line = txtContent_->verticalScrollBar()->value();
    Load();
    txtContent_->verticalScrollBar()->setValue(line);
}

// The text may be the last copy of a file that has gone.
void EditorWindow::KeepText() {
    if (txtContent_->isReadOnly()) return;
    txtContent_->document()->setModified(true);
    messages_.Tell("Warning!",
                   "The file " + file().string() +
                       " is no longer there. Its text stays in this window; Save writes it again.",
                   MessageIcon::Warning);
}

bool EditorWindow::HasUnsavedChanges() const {
    return txtContent_->document()->isModified();
}

bool EditorWindow::btnSave_Click() {
    Refresh();
    while (true) {
        const Result<bool> saved = file_.Save(AreaText(*txtContent_));
        if (!saved) {
            messages_.Tell("Error!", saved.message(), MessageIcon::Stop);
            return false;
        }
        if (*saved) break;
        if (!Overwrites()) return false;
    }
    txtContent_->document()->setModified(false);
    Q_EMIT saved();
    return true;
}

// Asks what to do with a file that has changed since it was read here.
bool EditorWindow::Overwrites() {
    EditorFile present = file_;
    const Result<std::string> changes = present.TakeChanges();
    if (!changes) {
        messages_.Tell("Error!", changes.message(), MessageIcon::Stop);
        return false;
    }
    const std::string name = file_.path().filename().string();
    const Answer answer = messages_.AskYesNoCancel(
        "Warning!",
        name + " has been changed by another window or program since it was opened here.\r\n\r\n" + *changes +
            "\r\nDo you want to overwrite it with the text of this window? Its present "
            "content is then kept as " +
            BackupPath(name).string() + ". Answering 'NO' gives up the changes made here and shows " + name +
            " as it is.");
    if (answer == Answer::Yes) file_ = std::move(present);
    if (answer == Answer::No) Load();
    return answer == Answer::Yes;
}

void EditorWindow::btnQuit_Click() {
    close();
}

bool EditorWindow::MayClose() {
    if (!info_.asksOnUnsavedChanges || !HasUnsavedChanges()) return true;
    const Answer answer = messages_.AskYesNoCancel(
        "Warning!", "The changes in " + file().filename().string() + " are not saved. Save them?");
    if (answer == Answer::Yes) return btnSave_Click();
    return answer == Answer::No;
}

bool EditorWindow::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::WindowActivate) Refresh();
    return handled;
}

void EditorWindow::closeEvent(QCloseEvent* event) {
    if (!MayClose()) return event->ignore();
    event->accept();
    Q_EMIT closed();
}

}  // namespace tolvanis
