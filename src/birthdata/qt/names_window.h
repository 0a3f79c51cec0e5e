#pragma once
// The names window.

#include <QWidget>

#include "birthdata/names_file.h"
#include "birthdata/qt/record_loader.h"

class QCheckBox;

namespace tolvanis {

class RecordListPane;

// Shows a names file. A click on a name picks its record, a double click or Enter computes it. The window
// says by signals what the user asks for; it opens no other window. What it must remember while it is closed
// is in `state`.
class Names : public QWidget {
    Q_OBJECT

  public:
    // `file` is the full path of the current names file. Nothing is read before Load.
    Names(std::string file, NamesState& state, Messages& messages, QWidget* parent = nullptr);

    // Reads the file and restores a locked position. A fault is told after the good records are in the list.
    // The records of a large file come into the list later, when the event loop runs.
    void Load();

    // Makes another file the current one.
    void ChangeFile(const std::string& file);

    const std::string& file() const { return file_; }

  Q_SIGNALS:
    void picked(const NatalEntry& entry);
    // Follows picked. The receiver may close the window but deletes it later at the earliest.
    void computeRequested();
    void changeListRequested();
    void editListRequested();
    void citiesRequested();

    void closedByUser();

  public Q_SLOTS:
    void Check1_Click();
    void NamesOnFile_Click(int row);
    void NamesOnFile_DblClick(int row);

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void Show(RecordList names);
    std::optional<NatalEntry> Pick(int row);

    std::string file_;
    NamesState& state_;
    Messages& messages_;
    RecordList names_;
    RecordListPane* pane_;
    RecordLoader loader_;
    QCheckBox* Check1_;
};

}  // namespace tolvanis
