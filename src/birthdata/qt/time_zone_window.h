#pragma once
// The time-zone window.

#include <QWidget>

#include "birthdata/time_zone_table.h"

namespace tolvanis {

class RecordListView;

// Shows the table of time zones. A click on a zone chooses it and leaves the window open.
class TimeZone : public QWidget {
    Q_OBJECT

  public:
    // `file` is the table's path. Nothing is read before Load.
    TimeZone(Path file, Messages& messages, QWidget* parent = nullptr);

    // Reads the table; the window then is at least as wide as its lines. A fault is told after the good zones
    // are in the list.
    void Load();

  Q_SIGNALS:
    // The offset as a plain number, west positive, and whether it lies east.
    void zonePicked(const std::string& timeZone, bool east);

  public Q_SLOTS:
    void lstTimeZones_Click(int row);

  private:
    Path file_;
    Messages& messages_;
    RecordList zones_;
    RecordListView* lstTimeZones_;
};

}  // namespace tolvanis
