#include "platform/qt/save_dialog.h"

#include <QApplication>
#include <QFileDialog>

#include "platform/qt/text.h"

namespace tolvanis {

std::string ShowSaveDialog(const SaveRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Save As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(ToQt(request.filterName + " (" + request.pattern + ")"));
    dialog.setDefaultSuffix(ToQt(request.extension));
    dialog.setDirectory(ToQt(request.directory.string()));
    dialog.selectFile(ToQt(request.proposedName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().constFirst().toStdString();
}

}  // namespace tolvanis
