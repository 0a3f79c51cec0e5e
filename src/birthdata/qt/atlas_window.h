#pragma once
// The window of the delivered atlas: a place is searched, the zone in force is shown, OK leaves both in the
// exchange file.

#include <QDialog>

#include "birthdata/atlas_exchange.h"
#include "platform/messages.h"

class QButtonGroup;
class QLabel;
class QPushButton;
class QRadioButton;
class QTreeWidget;

namespace tolvanis {

class EntryBox;

class AtlasWindow : public QDialog {
    Q_OBJECT

  public:
    // `birth` gives date and time, as far as they are known. OK writes `exchangeFile`.
    AtlasWindow(const ZoneBook& book, const NatalEntry& birth, Path exchangeFile, Messages& messages);

  public Q_SLOTS:
    void txtSearch_Change();
    void cmdOK_Click();

  private:
    QLayout* MakeSearchRow();
    QWidget* MakePlaceList();
    QWidget* MakeBirthRow();
    QWidget* MakeDate();
    QWidget* MakeTime();
    QWidget* MakeReadings();
    QLayout* MakeButtonRow();
    void ConnectControls();
    void SetBirth(const NatalEntry& birth);
    void ShowReadings();
    void ShowReading(std::size_t index, const ZoneReading& reading);
    void UpdateOK();
    const ZoneReading* Chosen() const;
    NatalEntry Birth() const;
    std::string Advice(const EntryReadings& found) const;

    const ZoneBook& book_;
    Path exchangeFile_;
    Messages& messages_;
    std::optional<EntryReadings> found_;
    EntryBox *txtSearch_, *txtMonth_, *txtDay_, *txtYear_, *txtBirthHour_, *txtBirthMinute_;
    QRadioButton *optAM_, *optPM_;
    QTreeWidget* lstPlaces_;
    QLabel* lblAnswer_;
    QLabel* lblGrade_;
    QButtonGroup* choices_;
    QRadioButton* optReadings_[2];
    QPushButton *cmdOK_, *cmdCancel_;
};

}  // namespace tolvanis
