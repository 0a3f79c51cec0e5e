#pragma once
// The file chooser.

#include <QDialog>
#include <string>

#include "platform/files.h"

class QComboBox;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace tolvanis {

class ElidedLabel;

// A modal dialog of drives, directories and the files that fit a pattern. It starts where the current file
// is, with that file selected, or at the application directory.
class SelectFIle : public QDialog {
    Q_OBJECT

  public:
    SelectFIle(const Path& applicationDirectory, const std::string& pattern, const std::string& currentPath,
               QWidget* parent = nullptr);

    // The chosen path once the dialog has been accepted, empty text when it was cancelled.
    const std::string& result() const { return result_; }

  public Q_SLOTS:
    void cmdSelect_Click();
    void cmdCancel_Click();
    void drvList_Change(int index);
    void dirList_Change(QListWidgetItem* item);

  private:
    void Build();
    void LayOut(QPushButton& select, QPushButton& cancel);
    void FillDrives();
    void ShowDirectory(const Path& directory);
    void FillDirectories();
    void FillFiles();

    Path directory_;
    std::string pattern_;
    std::string currentPath_;
    std::string result_;
    QComboBox* drvList_;
    QListWidget* dirList_;
    QListWidget* filList_;
    ElidedLabel* lblPath_;
};

}  // namespace tolvanis
