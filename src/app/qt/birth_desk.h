#pragma once
// The windows in which a birth is entered: the natal input, the lists of names, cities and time zones beside
// it, and the atlas.

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <memory>

#include "app/editor_uses.h"
#include "app/program_state.h"
#include "birthdata/atlas_lookup.h"
#include "birthdata/qt/cities_window.h"
#include "birthdata/qt/names_window.h"
#include "birthdata/qt/natal_input_window.h"
#include "birthdata/qt/time_zone_window.h"
#include "birthdata/zone_advice.h"
#include "platform/file_dialogs.h"
#include "platform/messages.h"
#include "platform/qt/placement.h"

namespace tolvanis {

class BirthDesk : public QObject {
    Q_OBJECT

  public:
    BirthDesk(ProgramState& state, Messages& messages, FileDialogs& dialogs, const InputD::LocalClock& clock);
    ~BirthDesk() override;

    InputD& natalInput() { return *input_; }
    Names* names() { return names_; }
    Geograph* cities() { return cities_; }
    TimeZone* timeZones() { return zones_; }

    // Shows the natal input, below `anchor` where the user has not moved it, and a fresh names list beside
    // it.
    void Show(const QRect& anchor);
    void Hide();

    // Whether the natal input and one of the two lists can be seen.
    bool IsShown() const;
    void CloseTimeZones();

    // A names or cities file has been saved in its editor, or the editor has been left.
    void FileEdited(EditorUse use);
    void EditorLeft(EditorUse use);

  Q_SIGNALS:
    void computeRequested();
    void mainWindowRequested();
    void editorRequested(EditorUse use, const Path& file);
    void windowClosed();  // the user has closed the natal input or one of the two lists

  public Q_SLOTS:
    void OpenNames();
    void OpenCities();
    void OpenTimeZones();

  private:
    void ConnectInput();
    void SaveEntry();
    void LookUpInAtlas();
    ZoneAdvice Advise(const NatalEntry& entry);
    const Result<ZoneBook>& Book();
    void FillInPlace(const Place& place);
    void ChangeNamesList();
    void ChangeCitiesList();
    QRect InputPlace() const;
    QRect Beside(const QWidget& window, const QRect& neighbour) const;
    void CloseNames();
    void CloseCities();

    ProgramState& state_;
    Messages& messages_;
    FileDialogs& dialogs_;
    std::unique_ptr<InputD> input_;
    AtlasLookup atlas_;
    std::optional<Result<ZoneBook>> zoneBook_;  // opened when first needed
    QPoint firstPlace_;                         // where the natal input has been put first
    KeptPlace listPlace_;                       // of names and cities, which take turns
    KeptPlace zonesPlace_;
    QPointer<Names> names_;
    QPointer<Geograph> cities_;
    QPointer<TimeZone> zones_;
};

}  // namespace tolvanis
