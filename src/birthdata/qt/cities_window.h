#pragma once
// The cities window.

#include <QWidget>

#include "birthdata/cities_file.h"

namespace tolvanis {

class RecordListPane;

// Shows a cities file. A click on a city picks its place and leaves the window open. The window says by
// signals what the user asks for; it opens no other window.
class Geograph : public QWidget {
    Q_OBJECT

  public:
    // `file` is the full path of the current cities file. Nothing is read before Load.
    Geograph(std::string file, Messages& messages, QWidget* parent = nullptr);

    // Reads the file. A fault is told after the good records are in the list.
    void Load();

    // Makes another file the current one.
    void ChangeFile(const std::string& file);

    const std::string& file() const { return file_; }

  Q_SIGNALS:
    void placePicked(const Place& place);
    void changeListRequested();
    void editListRequested();
    void namesRequested();

  public Q_SLOTS:
    void CitiesOnFile_Click(int row);

  private:
    std::string file_;
    Messages& messages_;
    RecordList cities_;
    RecordListPane* pane_;
};

}  // namespace tolvanis
