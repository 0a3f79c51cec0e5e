#include "app/qt/file_dialogs.h"

#include <QApplication>

#include "app/qt/select_file_window.h"
#include "platform/qt/save_dialog.h"

namespace tolvanis {

std::string DesktopFileDialogs::ChooseFile(const std::string& pattern, const std::string& currentPath) {
    SelectFIle chooser(directory_, pattern, currentPath, FileUse::Read, QApplication::activeWindow());
    chooser.exec();
    return chooser.result();
}

std::string DesktopFileDialogs::ChooseFileToAddTo(const std::string& pattern,
                                                  const std::string& currentPath) {
    SelectFIle chooser(directory_, pattern, currentPath, FileUse::AddTo, QApplication::activeWindow());
    chooser.exec();
    return chooser.result();
}

std::string DesktopFileDialogs::ChooseSaveFile(const SaveRequest& request) {
    return ShowSaveDialog(request);
}

}  // namespace tolvanis
