#include "platform/qt/save_dialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

#include "platform/files.h"
#include "platform/qt/message_boxes.h"
#include "platform/qt/placement.h"
#include "platform/qt/text.h"

namespace tolvanis {
namespace {

// The file that the user names; empty when they cancel.
Path AskForFile(const SaveRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Save As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(ToQt(request.filterName + " (" + request.pattern + ")"));
    // The question is asked here: the dialog knows the name before it has its extension.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setDirectory(ToQt(request.directory.string()));
    dialog.selectFile(ToQt(request.proposedName));
    ResizeToFit(dialog, dialog.size());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    const Path typed(dialog.selectedFiles().constFirst().toStdString());
    return typed.parent_path() / NameWithExtension(typed.filename().string(), request);
}

bool MayOverwrite(const Path& file) {
    std::error_code error;
    if (!IsNameTaken(file) || std::filesystem::is_directory(file, error)) return true;
    QMessageBox box(
        QMessageBox::Warning, QStringLiteral("Save As"),
        WithBreaksInLongNames(ToQt(file.string() + " already exists.\nDo you want to replace it?")),
        QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

}  // namespace

std::string ShowSaveDialog(SaveRequest request) {
    for (;;) {
        const Path file = AskForFile(request);
        if (file.empty() || MayOverwrite(file)) return file.string();
        request.directory = file.parent_path();
        request.proposedName = file.filename().string();
    }
}

}  // namespace tolvanis
