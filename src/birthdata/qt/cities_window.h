#pragma once
// The cities window.

#include <QWidget>
#include <functional>

#include "birthdata/atlas.h"
#include "birthdata/cities_file.h"
#include "birthdata/qt/record_loader.h"

namespace tolvanis {

class RecordListPane;

// Shows a cities file. A click on a city picks its place and leaves the window open. The window says by
// signals what the user asks for; it opens no other window.
class Geograph : public QWidget {
    Q_OBJECT

  public:
    // The atlas, or nothing where there is none; asked for at the first search.
    using AtlasSource = std::function<const Atlas*()>;

    // `file` is the full path of the current cities file. Nothing is read before Load. With an atlas a city
    // is found by its other names too, and the largest comes first.
    Geograph(std::string file, Messages& messages, AtlasSource atlas = {}, QWidget* parent = nullptr);

    // Reads the file. A fault is told after the good records are in the list. The records of a large file
    // come into the list later, when the event loop runs.
    void Load();

    // Makes another file the current one.
    void ChangeFile(const std::string& file);

  Q_SIGNALS:
    void placePicked(const Place& place);
    void changeListRequested();
    void editListRequested();
    void namesRequested();

    void closedByUser();

  public Q_SLOTS:
    void CitiesOnFile_Click(int row);

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void Show(RecordList cities);
    std::string file_;
    Messages& messages_;
    RecordList cities_;
    RecordListPane* pane_;
    RecordLoader loader_;
};

}  // namespace tolvanis
