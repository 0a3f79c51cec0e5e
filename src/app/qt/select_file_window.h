#pragma once
// The file chooser.

#include <QDialog>
#include <string>
#include <vector>

#include "platform/files.h"

class QComboBox;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace tolvanis {

class ElidedLabel;

// What a chosen file is wanted for.
enum class FileUse { Read, AddTo };

// A modal dialog of drives, directories and the files that fit a pattern. It starts where the current file
// is, with that file selected, or at the application directory. To be read, another file is selected where
// the current one is missing, the one of its name or the first; to be added to, no other file is selected
// than the current one, which is offered also when it does not exist yet.
class SelectFIle : public QDialog {
    Q_OBJECT

  public:
    SelectFIle(const Path& applicationDirectory, const std::string& pattern, const std::string& currentPath,
               FileUse use = FileUse::Read, QWidget* parent = nullptr);

    // The chosen path once the dialog has been accepted, empty text when it was cancelled.
    const std::string& result() const { return result_; }

  public Q_SLOTS:
    void cmdSelect_Click();
    void cmdCancel_Click();
    void drvList_Change(int index);
    void dirList_Change(QListWidgetItem* item);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Build();
    void LayOut(QPushButton& cancel);
    void FillDrives();
    void ShowDirectory(const Path& directory);
    void FillDirectories();
    void FillFiles();
    bool IsNew(const std::string& name) const;
    std::vector<std::string> OfferedFiles() const;
    int RowToSelect(const std::vector<std::string>& names) const;
    QListWidgetItem* ChosenFile() const;
    void EnableSelect();

    Path directory_;
    std::string pattern_;
    std::string currentPath_;
    FileUse use_;
    Path fileToAddTo_;  // the current file where it can be; else empty
    std::string result_;
    QComboBox* drvList_;
    QListWidget* dirList_;
    QListWidget* filList_;
    QPushButton* cmdSelect_;
    ElidedLabel* lblPath_;
};

}  // namespace tolvanis
