#include "app/qt/desktop.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>

#include "app/chart_driver.h"
#include "app/clock_caption.h"
#include "app/options_file.h"
#include "app/qt/editor_window.h"
#include "app/qt/print_file_window.h"
#include "app/qt/title_window.h"
#include "platform/qt/accessible_windows.h"
#include "platform/qt/escape_key.h"
#include "platform/qt/hourglass.h"
#include "platform/qt/placement.h"
#include "platform/qt/text.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr int kTitleOption = 48;
constexpr int kNarrowestStrip = 200;  // pixels
constexpr std::string_view kDataHelpFile = "OUTPUTD1.HLP";
constexpr std::string_view kHelpPrintFile = "HELPFILE";
constexpr const char* kUnsavedLostText =
    "The changes in this window are not saved and will be lost. Restore the default settings?";
constexpr const char* kNoOptionsText =
    " The options of before stay in force, but the program does not start with this file. Restore Default "
    "Settings puts the delivered options in its place; the former ones are kept as OPTIONS.OLD.";
constexpr const char* kShortOptionsText =
    ". An empty line ends the options.\r\n\r\nRestore Default Settings in the options "
    "editor puts the delivered options in their place and keeps yours as OPTIONS.OLD.";
constexpr const char* kSettingsUnreadText =
    " The program starts with its default settings and leaves the file as it is.";
constexpr const char* kRestoreFailedText = "Error in operation. Cannot do what is requested.";

}  // namespace

Desktop::Desktop(ProgramState& state, const DesktopServices& services)
    : state_(state), services_(services), printing_{services.dialogs, services.messages, [&state] {
                                                        return state.files.directory();
                                                    }} {}

Desktop::~Desktop() {
    for (auto& [use, editor] : editors_) delete editor;
    delete print_;
    delete data_;
}

bool Desktop::Start() {
    if (!StartOptions()) return false;
    if (state_.options[kTitleOption] != 0.0F) ShowTitle();
    const Hourglass hourglass;
    StartSettings();
    MeasureScreen();
    state_.method = MethodOfOptions(state_.options);
    MakeWindows();
    RegisterCommands();
    main_->TickMethod(state_.method);
    ShowMainWindow();
    ShowEntryWindows();
    return true;
}

void Desktop::TellShortOptions(int lines) {
    const std::string note = OptionsNote(state_.files, lines);
    if (note.empty()) return;
    services_.messages.Tell("Warning!", note + kShortOptionsText, MessageIcon::Warning);
}

void Desktop::StartSettings() {
    const Result<Settings> read = ReadSettings(state_.files.directory());
    keepsSettings_ = static_cast<bool>(read);
    state_.settings = read ? *read : DefaultSettings(state_.files.directory());
    if (keepsSettings_) return;
    services_.messages.Tell("Warning!", read.message() + kSettingsUnreadText, MessageIcon::Warning);
}

bool Desktop::StartOptions() {
    const Result<int> read = LoadOptions(state_.files, state_.options);
    if (read) {
        TellShortOptions(*read);
        return true;
    }
    const std::string fault = read.message();
    const Path master = state_.files.Find(kOptionsMasterName);
    if (!IsReadableFile(master)) {
        services_.messages.Tell("Error!",
                                fault + " There is no copy to restore it from either: " +
                                    std::string(kOptionsMasterName) + " is missing.",
                                MessageIcon::Stop);
        return false;
    }
    const bool restores = services_.messages.AskYesNo(
        "Error!", fault + " The program needs it. Restore it from " + master.string() + "?");
    if (!restores) return false;
    if (const Result<RestoredOptions> restored = RestoreOptions(state_.files); !restored) {
        services_.messages.Tell("Error!", restored.message(), MessageIcon::Stop);
        return false;
    }
    const Result<int> again = LoadOptions(state_.files, state_.options);
    if (!again) services_.messages.Tell("Error!", again.message(), MessageIcon::Stop);
    return static_cast<bool>(again);
}

void Desktop::ShowTitle() {
    Title title;
    title.exec();
}

void Desktop::MeasureScreen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return;
    state_.screen = ScreenConstantsFor(screen->size().width(), screen->logicalDotsPerInchX());
}

void Desktop::MakeWindows() {
    MakeWindowsAccessible();
    main_ = std::make_unique<TOLVANIS>();
    connect(main_.get(), &TOLVANIS::exitRequested, this, &Desktop::Exit);
    connect(main_.get(), &TOLVANIS::textFileChosen, this,
            [this](const std::string& file) { ShowTextFile(file); });
    connect(main_.get(), &TOLVANIS::houseSystemChosen, this, &Desktop::mnuHouse_Click);
    connect(main_.get(), &TOLVANIS::theoryChosen, this, &Desktop::mnuPositions_Click);
    connect(main_.get(), &TOLVANIS::commandChosen, this,
            [this](const std::string& control) { commands_.at(control)(); });

    births_ = std::make_unique<BirthDesk>(state_, services_.messages, services_.dialogs, services_.clock);
    connect(births_.get(), &BirthDesk::computeRequested, this, &Desktop::Compute);
    connect(births_.get(), &BirthDesk::mainWindowRequested, this, &Desktop::FocusMainWindow);
    connect(births_.get(), &BirthDesk::windowClosed, this, &Desktop::ShowWayBack);
    connect(births_.get(), &BirthDesk::editorRequested, this, &Desktop::ShowEditor);
    wheel_ = std::make_unique<WheelDesk>(state_, printing_);
    connect(wheel_.get(), &WheelDesk::dataBufferRequested, this, &Desktop::ShowDataBuffer);
    connect(wheel_.get(), &WheelDesk::textFileRequested, this,
            [this](const std::string& file) { ShowTextFile(file); });
    connect(wheel_.get(), &WheelDesk::editorRequested, this, &Desktop::ShowEditor);
    connect(wheel_.get(), &WheelDesk::mainWindowRequested, this, &Desktop::FocusMainWindow);

    interp_ = std::make_unique<InterpDesk>(state_, printing_);
    connect(interp_.get(), &InterpDesk::dataBufferRequested, this, &Desktop::ShowDataBuffer);
    connect(interp_.get(), &InterpDesk::lessonRequested, this,
            [this](const std::string& file) { ShowTextFile(file, TextUse::Lesson); });
    connect(interp_.get(), &InterpDesk::mainWindowRequested, this, &Desktop::FocusMainWindow);

    clock_.setInterval(1000);
    connect(&clock_, &QTimer::timeout, this, &Desktop::UpdateClock);
}

void Desktop::RegisterCommands() {
    const auto run = [this](void (Desktop::*command)()) { return [this, command] { (this->*command)(); }; };
    commands_ = {
        {"mnuFileExit", run(&Desktop::Exit)},
        {"mnuInputData", run(&Desktop::mnuInputData_Click)},
        {"mnuOptions", run(&Desktop::mnuOptions_Click)},
        {"mnuHeader", run(&Desktop::mnuHeader_Click)},
        {"mnuDataNatalData", run(&Desktop::mnuDataNatalData_Click)},
        {"mnuDataMeanings", [this] { interp_->OpenMeanings(); }},
        {"mnuWheels", [this] { wheel_->Open(); }},
        {"mnuReportNatal", [this] { interp_->OpenReport(); }},
        {"mnuKeywordS", [this] { interp_->OpenKeywords(); }},
        {"mnuKeywordSystem", [this] { interp_->OpenKeywordSystem(); }},
        {"mnuHelpAbout", run(&Desktop::mnuHelpAbout_Click)},
        {"mnuHelpPrintHelp", run(&Desktop::mnuHelpPrintHelp_Click)},
    };
    for (const MenuItem& item : MainMenu()) {
        const bool command = item.RunsCommand();
        if (command && !commands_.contains(item.control)) main_->ItemOf(item.control)->setEnabled(false);
    }
    connect(main_->ItemOf("mnuPhilosophy")->menu(), &QMenu::aboutToShow, this, &Desktop::EnableStudyTexts);
    EnableStudyTexts();
}

// A study text can be chosen while its file is there.
void Desktop::EnableStudyTexts() {
    for (const MenuItem& item : MainMenu()) {
        if (item.menu != "mnuPhilosophy") continue;
        main_->ItemOf(item.control)->setEnabled(IsReadableFile(state_.files.FindText(item.textFile)));
    }
}

void Desktop::PlaceMainWindow() {
    const Settings& settings = state_.settings;
    QRect wanted = ToPixels(
        {settings.TOLVANISTop, settings.TOLVANISLeft, settings.TOLVANISHeight, settings.TOLVANISWidth},
        state_.screen.twipsPerPixel);
    wanted.setHeight(wanted.height() - CaptionHeight());
    wanted.setSize(wanted.size().expandedTo({kNarrowestStrip, main_->menuBar()->sizeHint().height()}));
    PlaceWindow(*main_, BroughtIntoView(wanted, UsableScreens()));
}

void Desktop::ShowMainWindow() {
    PlaceMainWindow();
    UpdateClock();
    clock_.start();
    main_->show();
    mainPlace_ = {main_->pos(), main_->size()};
}

void Desktop::KeepMainPlacement() {
    const QRect place(main_->pos(), main_->size());
    if (IsSamePlace(place, mainPlace_) || main_->isMinimized() || main_->isMaximized()) return;
    const TwipsPlacement twips =
        ToTwips(place.adjusted(0, 0, 0, CaptionHeight()), state_.screen.twipsPerPixel);
    state_.settings.TOLVANISTop = twips.top;
    state_.settings.TOLVANISLeft = twips.left;
    state_.settings.TOLVANISHeight = twips.height;
    state_.settings.TOLVANISWidth = twips.width;
}

void Desktop::UpdateClock() {
    main_->setWindowTitle(ToQt(ClockCaption(state_.titlePrefix, services_.clock(), state_.order)));
}

void Desktop::FocusMainWindow() {
    main_->FocusMenu();
}

void Desktop::ShowEntryWindows() {
    // Frames are not known before the window system has made them.
    births_->Show(QRect(main_->pos(), main_->size() + QSize(0, 2 * CaptionHeight())));
}

// The way back to the natal input and its list.
void Desktop::ShowWayBack() {
    main_->ShowItem("mnuInputData");
}

void Desktop::UnloadChartWindows() {
    wheel_->Close();
    interp_->CloseMeanings();
    delete data_;
}

void Desktop::ShowInputFault(EntryField field) {
    if (!births_->IsShown()) ShowEntryWindows();
    BringForward(natalInput());
    natalInput().FocusField(field);
}

void Desktop::ShowDataBuffer() {
    if (data_ == nullptr) {
        if (state_.buffer.BufferLineCount() == 0) return;
        data_ = new OutputD1({state_.buffer, state_.settings.dataView, state_.options, state_.chart.natal,
                              state_.files.directory(), state_.titlePrefix, state_.SaveFileName,
                              state_.screen.fontStep, state_.screen.twipsPerPixel, services_.messages,
                              services_.dialogs});
        connect(data_, &OutputD1::mainWindowRequested, this, &Desktop::FocusMainWindow);
        connect(data_, &OutputD1::helpRequested, this, [this] { ShowTextFile(std::string(kDataHelpFile)); });
        connect(data_, &OutputD1::printFileWritten, this, &Desktop::OutputD1_printFileWritten);
    }
    data_->ShowDataBuffer();
}

void Desktop::ShowTextFile(const std::string& textFileName, TextUse use) {
    const Path path = state_.files.FindText(textFileName);
    const Result<int> read = [&] {
        const Hourglass hourglass;
        return ListTextFile(state_.buffer, path, use);
    }();
    if (!read) {
        services_.messages.Tell("Warning!", UnreadTextMessage(path, read.fault()), MessageIcon::Stop);
    }
    // A lesson has taken the place of what the buffer held, be it only with a blank line.
    if (use == TextUse::Lesson || (read && *read > 0)) ShowDataBuffer();
}

void Desktop::Compute() {
    const Hourglass hourglass;
    births_->CloseTimeZones();
    state_.buffer.ClearDataBuffer();
    const ComputeOutcome outcome = ComputeChart(natalInput().Entry(), state_.method, state_.order.iDate,
                                                state_.options, services_.messages);
    if (outcome.toCorrect) return ShowInputFault(*outcome.toCorrect);
    if (!outcome.chart) return;
    state_.chart = *outcome.chart;
    state_.chartComputed = true;
    WriteChart(state_.buffer, state_.chart, state_.options);
    births_->Hide();
    main_->ShowChartItems();
    ShowDataBuffer();
    if (!KeepsListing(state_.options)) state_.buffer.ClearBufferLines();
}

// What the Input command does before its windows are shown.
void Desktop::PrepareInput() {
    state_.SaveFileName.clear();
    UnloadChartWindows();
    if (natalInput().HoldsPresentMoment()) natalInput().FillNow();
}

void Desktop::mnuInputData_Click() {
    PrepareInput();
    ShowEntryWindows();
}

void Desktop::mnuHouse_Click(HouseSystem system) {
    state_.method.houses = system;
    RecomputeByMethod();
}

void Desktop::mnuPositions_Click(Theory theory) {
    state_.method.theory = theory;
    RecomputeByMethod();
}

void Desktop::RecomputeByMethod() {
    main_->TickMethod(state_.method);
    PrepareInput();
    // The entry windows are hidden again by a computation that succeeds; they come up only when it will not.
    if (!CheckEntry(natalInput().Entry(), state_.method.houses).empty()) ShowEntryWindows();
    Compute();
}

void Desktop::mnuDataNatalData_Click() {
    if (!state_.chartComputed) return;
    WriteChart(state_.buffer, state_.chart, state_.options);
    ShowDataBuffer();
}

void Desktop::mnuOptions_Click() {
    ShowEditor(EditorUse::Options, state_.files.Own(kOptionsFileName));
}

void Desktop::mnuHeader_Click() {
    ShowEditor(EditorUse::P_Name, state_.files.Own(kPersonalBlockName));
}

void Desktop::ShowEditor(EditorUse use, const Path& file) {
    QPointer<EditorWindow>& editor = editors_[use];
    if (editor != nullptr && editor->file() != file) {
        if (!editor->MayClose()) return;
        delete editor;
    }
    if (editor != nullptr) {
        editor->Refresh();
    } else {
        editor = new EditorWindow(use, file, services_.messages);
        connect(editor, &EditorWindow::saved, this, [this, use] { EditorSaved(use); });
        connect(editor, &EditorWindow::closed, this, [this, use] { EditorClosed(use); });
        connect(editor, &EditorWindow::restoreRequested, this,
                [this, opened = editor.data()] { RestoreDefaultOptions(*opened); });
        LeadEscapeTo(*editor, [this] { FocusMainWindow(); });
        editorPlaces_[use].Apply(*editor, QRect(main_->geometry().bottomLeft(), editor->size()));
    }
    BringForward(*editor);
}

void Desktop::EditorSaved(EditorUse use) {
    births_->FileEdited(use);
    if (use != EditorUse::Options) return;
    Options edited = state_.options;
    if (const Result<int> read = LoadOptions(state_.files, edited); read) {
        state_.options = edited;
        TellShortOptions(*read);
    } else {
        services_.messages.Tell("Warning!", read.message() + kNoOptionsText, MessageIcon::Warning);
    }
    state_.titlePrefix = kTitlePrefixAfterOptions;
    UpdateClock();
}

void Desktop::EditorClosed(EditorUse use) {
    if (births_ != nullptr) births_->EditorLeft(use);
}

void Desktop::RestoreDefaultOptions(EditorWindow& editor) {
    const bool asks = editor.HasUnsavedChanges();
    if (asks && services_.messages.AskYesNoCancel("Warning!", kUnsavedLostText) != Answer::Yes) return;
    const Result<RestoredOptions> restored = RestoreOptions(state_.files);
    if (!restored) {
        services_.messages.Tell("Warning!", kRestoreFailedText, MessageIcon::Information);
        return;
    }
    editor.Load();
    const std::string kept =
        restored->keptAs ? " The former ones are kept as " + restored->keptAs->filename().string() + "." : "";
    services_.messages.Tell("Information", "The default settings are restored." + kept,
                            MessageIcon::Information);
}

void Desktop::OutputD1_printFileWritten() {
    delete print_;
    print_ = new PrntFile(state_.options, printing_);
    BringForward(*print_);
}

void Desktop::mnuHelpAbout_Click() {
    (new About(main_.get()))->open();
}

void Desktop::mnuHelpPrintHelp_Click() {
    const Path path = state_.files.FindText(kHelpPrintFile);
    const Result<std::vector<std::string>> lines = ReadLines(path);
    if (!lines) {
        services_.messages.Tell("Warning!", UnreadTextMessage(path, lines.fault()), MessageIcon::Stop);
        return;
    }
    PrintPages(printing_, "Tolvanis help",
               {SplitIntoPages(*lines, state_.options[kLinesPerPrintedPageOption]), PrintPointSize(false)});
}

void Desktop::KeepSettings() {
    KeepMainPlacement();
    if (!keepsSettings_) return;
    if (const Result<void> written = WriteSettings(state_.files.directory(), state_.settings); !written)
        services_.messages.Tell("Error!", written.message(), MessageIcon::Stop);
}

void Desktop::Exit() {
    for (const auto& [use, editor] : editors_) {
        if (editor != nullptr && !editor->MayClose()) return;
    }
    if (std::exchange(ended_, true)) return;
    interp_.reset();
    KeepSettings();
    clock_.stop();
    wheel_.reset();
    // An atlas lookup may still be under way in here: the desk is only hidden until the event loops are left.
    births_->CloseTimeZones();
    births_->Hide();
    main_->hide();
    for (auto& [use, editor] : editors_) delete editor;
    delete print_;
    delete data_;
    Q_EMIT ended();
}

}  // namespace tolvanis
