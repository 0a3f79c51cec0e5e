#pragma once
// The natal input window.

#include <QDialog>
#include <functional>

#include "birthdata/natal_entry.h"
#include "birthdata/zone_advice.h"
#include "platform/messages.h"

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QRadioButton;
class QTimer;

namespace tolvanis {

class EntryBox;

// Where a birth is entered. The window applies the rules of its boxes and says by signals what the user asks
// for; it never computes anything itself. It stays for the whole run and is hidden, not deleted, when closed.
class InputD : public QDialog {
    Q_OBJECT

  public:
    using LocalClock = std::function<LocalTime()>;

    // Opens filled with the present moment. `options` gives the home location, at every use anew.
    InputD(const Options& options, Messages& messages, LocalClock clock);

    // The boxes as they stand.
    NatalEntry Entry() const;
    // Fills the boxes. The time zone is taken as it is, whatever the hemisphere.
    void SetEntry(const NatalEntry& entry);

    // The present moment at the home location.
    void FillNow();
    bool HoldsPresentMoment() const;  // whether the name is the one that marks it

    void FocusField(EntryField field);

    // Gives the line below the boxes its text: asked a moment after the last change of a box.
    using Adviser = std::function<ZoneAdvice(const NatalEntry&)>;
    void SetAdviser(Adviser adviser);

    // While the atlas is open it cannot be asked for again.
    void SetAtlasOpen(bool open);

  Q_SIGNALS:
    void computeRequested();
    void saveRequested();
    void timeZoneHelpRequested();
    void atlasRequested();
    void mainWindowRequested();
    void closedByUser();

  public Q_SLOTS:
    void cmdOK_Click();
    void cmdSave_Click();
    void cmdNow_Click();
    void Label1_Click();
    void Label2_Click();
    void optEast_Click();
    void optWest_Click();
    void txtBirthHour_Change();

    void reject() override;

  protected:
    void showEvent(QShowEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    QPushButton* MakeButton(const char* name, const char* caption, void (InputD::*handler)());
    QWidget* MakeEntryFrame();
    QHBoxLayout* MakeButtonRow();
    QHBoxLayout* MakeAdviceRow();
    void UpdateAdvice();
    void cmdTakeZone_Click();
    void SetTabOrder();
    EntryBox* BoxOf(EntryField field) const;

    const Options& options_;
    Messages& messages_;
    LocalClock clock_;

    EntryBox *txtName_, *txtMonth_, *txtDay_, *txtYear_, *txtBirthHour_, *txtBirthMinute_, *txtTZ_;
    EntryBox *txtLongDeg_, *txtLongMin_, *txtLatDeg_, *txtLatMin_;
    QRadioButton *optAM_, *optPM_, *optEast_, *optWest_, *optNorth_, *optSouth_;
    Adviser adviser_;
    QTimer* adviceTimer_ = nullptr;
    QLabel* lblAdvice_ = nullptr;
    QPushButton* cmdTakeZone_ = nullptr;
    std::string advisedZone_;
    QPushButton *cmdNow_, *cmdOK_, *cmdSave_, *Label1_, *Label2_;
};

}  // namespace tolvanis
