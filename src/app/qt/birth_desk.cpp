#include "app/qt/birth_desk.h"

#include <QRect>
#include <algorithm>
#include <limits>

#include "app/own_atlas.h"
#include "birthdata/atlas_exchange.h"
#include "birthdata/name_saving.h"
#include "platform/qt/escape_key.h"
#include "platform/qt/external_program.h"

namespace tolvanis {
namespace {

constexpr int kGap = 10;  // pixels between neighbouring windows
constexpr int kNoZoneAdviceOption = 166;
constexpr int kListLetters = 46;  // width of a list window with its frame

// Windows close inside their own signals, so they are deleted later.
template <typename Window>
void Close(QPointer<Window>& window) {
    if (window == nullptr) return;
    window->disconnect();
    window->hide();
    window->deleteLater();
    window.clear();
}

bool IsSameFile(const Path& a, const Path& b) {
    std::error_code error;
    return std::filesystem::equivalent(FindPath(a), FindPath(b), error) && !error;
}

// Where a window of this size begins at the bottom of the screen.
int LowestTop(const QSize& size) {
    const QRect lowest(QPoint(0, std::numeric_limits<std::int16_t>::max()), size);
    return WhollyInView(lowest, UsableScreens().mid(0, 1)).top();
}

}  // namespace

BirthDesk::BirthDesk(ProgramState& state, Messages& messages, FileDialogs& dialogs,
                     const InputD::LocalClock& clock)
    : state_(state),
      messages_(messages),
      dialogs_(dialogs),
      input_(std::make_unique<InputD>(state.options, messages, clock)),
      atlas_(
          [this](const AtlasProgram& program) {
              return RunAndWait(program.file, program.isOwn ? AtExit::EndIt : AtExit::LeaveIt,
                                AtlasEnvironment(input_->Entry(), state_.files.directory()));
          },
          messages, state.ownAtlas) {
    ConnectInput();
    input_->SetAdviser([this](const NatalEntry& entry) { return Advise(entry); });
}

BirthDesk::~BirthDesk() {
    delete names_;
    delete cities_;
    delete zones_;
}

void BirthDesk::ConnectInput() {
    connect(input_.get(), &InputD::computeRequested, this, &BirthDesk::computeRequested);
    connect(input_.get(), &InputD::mainWindowRequested, this, &BirthDesk::mainWindowRequested);
    connect(input_.get(), &InputD::closedByUser, this, &BirthDesk::windowClosed);
    connect(input_.get(), &InputD::saveRequested, this, &BirthDesk::SaveEntry);
    connect(input_.get(), &InputD::timeZoneHelpRequested, this, &BirthDesk::OpenTimeZones);
    connect(input_.get(), &InputD::atlasRequested, this, &BirthDesk::LookUpInAtlas);
}

void BirthDesk::Show(const QRect& anchor) {
    if (!input_->testAttribute(Qt::WA_Moved)) {
        // The list beside it belongs to the room it needs, as far as the screen has it.
        QRect wanted(anchor.bottomLeft(), input_->sizeHint());
        wanted.setWidth(wanted.width() + kGap + input_->fontMetrics().averageCharWidth() * kListLetters);
        const QRect place = WhollyInView(wanted, UsableScreens());
        firstPlace_ = place.topLeft();
        // Where there is no room for both side by side, the list gets the room above the buttons.
        if (place.width() < wanted.width()) firstPlace_.setY(LowestTop(input_->sizeHint()));
        PlaceWindow(*input_, QRect(firstPlace_, input_->sizeHint()));
    }
    BringForward(*input_);
    CloseCities();
    OpenNames();
}

void BirthDesk::Hide() {
    input_->hide();
    CloseNames();
    CloseCities();
}

bool BirthDesk::IsShown() const {
    const auto shown = [](const QWidget* window) { return window != nullptr && window->isVisible(); };
    return shown(input_.get()) && (shown(names_) || shown(cities_));
}

void BirthDesk::CloseTimeZones() {
    Close(zones_);
}

void BirthDesk::CloseNames() {
    Close(names_);
}

void BirthDesk::CloseCities() {
    Close(cities_);
}

// The frame of the natal input, also before the window system has told how large its borders are.
QRect BirthDesk::InputPlace() const {
    const bool known = input_->frameGeometry().size() != input_->size();
    return known ? input_->frameGeometry() : QRect(firstPlace_, input_->size());
}

// The place on the right of a neighbour, where it is free.
QRect BirthDesk::Beside(const QWidget& window, const QRect& neighbour) const {
    QRect wanted(neighbour.topRight() + QPoint(kGap, 0), window.sizeHint());
    wanted.setHeight(std::max(wanted.height(), input_->height()));
    return wanted;
}

void BirthDesk::OpenNames() {
    CloseNames();
    names_ = new Names(state_.settings.DataFile, state_.names, messages_);
    connect(names_, &Names::picked, input_.get(), &InputD::SetEntry);
    connect(names_, &Names::computeRequested, this, [this] {
        CloseNames();
        Q_EMIT computeRequested();
    });
    connect(names_, &Names::changeListRequested, this, &BirthDesk::ChangeNamesList);
    connect(names_, &Names::editListRequested, this,
            [this] { Q_EMIT editorRequested(EditorUse::NameEdit, PathFromText(state_.settings.DataFile)); });
    connect(names_, &Names::citiesRequested, this, [this] {
        CloseNames();
        OpenCities();
    });
    connect(names_, &Names::closedByUser, this, &BirthDesk::windowClosed);
    LeadEscapeTo(*names_, [this] { BringForward(*input_); });
    listPlace_.Apply(*names_, Beside(*names_, InputPlace()));
    BringForward(*names_);
    names_->Load();
}

void BirthDesk::OpenCities() {
    CloseCities();
    cities_ = new Geograph(state_.settings.GeoDataFile, messages_, [this] {
        const Result<ZoneBook>& book = Book();
        return book ? &book->atlas : nullptr;
    });
    connect(cities_, &Geograph::placePicked, this, &BirthDesk::FillInPlace);
    connect(cities_, &Geograph::changeListRequested, this, &BirthDesk::ChangeCitiesList);
    connect(cities_, &Geograph::editListRequested, this, [this] {
        Q_EMIT editorRequested(EditorUse::LongLat, PathFromText(state_.settings.GeoDataFile));
    });
    connect(cities_, &Geograph::namesRequested, this, [this] {
        CloseCities();
        OpenNames();
    });
    connect(cities_, &Geograph::closedByUser, this, &BirthDesk::windowClosed);
    LeadEscapeTo(*cities_, [this] { BringForward(*input_); });
    listPlace_.Apply(*cities_, Beside(*cities_, InputPlace()));
    BringForward(*cities_);
    cities_->Load();
}

void BirthDesk::OpenTimeZones() {
    if (zones_ == nullptr) {
        zones_ = new TimeZone(state_.files.Find(kTimeZoneFile), messages_);
        connect(zones_, &TimeZone::zonePicked, this, [this](const std::string& timeZone, bool east) {
            NatalEntry entry = input_->Entry();
            entry.timeZone = timeZone;
            entry.east = east;
            input_->SetEntry(entry);
        });
        LeadEscapeTo(*zones_, [this] { BringForward(*input_); });
        zones_->Load();
        const QWidget* list = cities_ != nullptr ? static_cast<QWidget*>(cities_) : names_;
        const bool listShown = list != nullptr && list->isVisible();
        zonesPlace_.Apply(*zones_, Beside(*zones_, listShown ? list->frameGeometry() : InputPlace()));
    }
    BringForward(*zones_);
}

void BirthDesk::SaveEntry() {
    const auto chooseFile = [this] { return dialogs_.ChooseFileToAddTo("*.FIL", state_.settings.DataFile); };
    const SaveOutcome saved = SaveRecord(input_->Entry(), chooseFile, messages_);
    if (saved.toCorrect) input_->FocusField(*saved.toCorrect);
    if (!saved) return;
    state_.names.justSaved = true;
    state_.names.savedHere = IsSameFile(*saved.file, PathFromText(state_.settings.DataFile));
    CloseCities();
    OpenNames();
    // Enter in the list computes the saved record, or nobody else's.
    if (!state_.names.savedHere) BringForward(*input_);
}

void BirthDesk::LookUpInAtlas() {
    const std::string directory = AtlasDirectoryOf(state_.settings.AtlasDir, state_.ownAtlas);
    std::string answer = directory;
    const QPointer<InputD> input = input_.get();
    input->SetAtlasOpen(true);
    const auto place = atlas_.LookUp(answer);
    if (input != nullptr) input->SetAtlasOpen(false);
    if (answer != directory) state_.settings.AtlasDir = answer;
    if (place) FillInPlace(*place);
}

// Advice is an extra: without its files there is none.
ZoneAdvice BirthDesk::Advise(const NatalEntry& entry) {
    if (state_.options[kNoZoneAdviceOption] != 0.0F) return {};
    const Result<ZoneBook>& book = Book();
    return book ? AdviseZone(*book, entry) : ZoneAdvice{};
}

const Result<ZoneBook>& BirthDesk::Book() {
    if (!zoneBook_) zoneBook_ = ZoneBook::Open(state_.files);
    return *zoneBook_;
}

void BirthDesk::FillInPlace(const Place& place) {
    NatalEntry entry = input_->Entry();
    FillPlace(entry, place);
    input_->SetEntry(entry);
}

void BirthDesk::ChangeNamesList() {
    const std::string file = dialogs_.ChooseFile("*.FIL", state_.settings.DataFile);
    if (file.empty()) return;
    state_.settings.DataFile = file;
    if (names_ != nullptr) names_->ChangeFile(file);
}

void BirthDesk::ChangeCitiesList() {
    const std::string file = dialogs_.ChooseFile("*.LL", state_.settings.GeoDataFile);
    if (file.empty()) return;
    state_.settings.GeoDataFile = file;
    if (cities_ != nullptr) cities_->ChangeFile(file);
}

void BirthDesk::FileEdited(EditorUse use) {
    if (use == EditorUse::NameEdit) state_.names.justSaved = false;
}

void BirthDesk::EditorLeft(EditorUse use) {
    if (use == EditorUse::NameEdit && names_ != nullptr) OpenNames();
    if (use == EditorUse::LongLat && cities_ != nullptr) OpenCities();
}

}  // namespace tolvanis
