#include "app/qt/editor_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QVBoxLayout>

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
    setWindowTitle(ToQt(TitleOf(info_, file_)));
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
    const Result<std::string> text = EditorText(file_);
    if (!text) messages_.Tell("Error!", text.message(), MessageIcon::Stop);
    SetAreaText(*txtContent_, text ? *text : std::string());
    txtContent_->setFocus();
}

bool EditorWindow::btnSave_Click() {
    const Result<void> written = ReplaceFile(file_, EditedFile(AreaText(*txtContent_)));
    if (!written) {
        messages_.Tell("Error!", written.message(), MessageIcon::Stop);
        return false;
    }
    txtContent_->document()->setModified(false);
    Q_EMIT saved();
    return true;
}

void EditorWindow::btnQuit_Click() {
    close();
}

bool EditorWindow::MayClose() {
    if (!info_.asksOnUnsavedChanges || !txtContent_->document()->isModified()) return true;
    const Answer answer =
        messages_.AskYesNoCancel("Warning!", "The changes in " + std::string(FileNamePart(file_.string())) +
                                                 " are not saved. Save them?");
    if (answer == Answer::Yes) return btnSave_Click();
    return answer == Answer::No;
}

void EditorWindow::closeEvent(QCloseEvent* event) {
    if (!MayClose()) return event->ignore();
    event->accept();
    Q_EMIT closed();
}

}  // namespace tolvanis
