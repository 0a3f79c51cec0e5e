#pragma once
// The desktop: the program's windows, and the commands that their signals run.

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "app/editor_uses.h"
#include "app/program_state.h"
#include "app/qt/birth_desk.h"
#include "app/qt/interp_desk.h"
#include "app/qt/main_window.h"
#include "app/qt/wheel_desk.h"
#include "output/qt/data_window.h"
#include "output/text_files.h"
#include "platform/file_dialogs.h"
#include "platform/messages.h"
#include "platform/qt/printing.h"

namespace tolvanis {

class EditorWindow;
class PrntFile;

// How the desktop reaches the user and the clock; tests put their own in place.
struct DesktopServices {
    Messages& messages;
    FileDialogs& dialogs;
    InputD::LocalClock clock;
};

// Owns the windows and works on the program's state. No window knows another one: each says by signals what
// its user wants, and the commands here carry it out. An item of the main menu whose name has no command is
// disabled.
class Desktop : public QObject {
    Q_OBJECT

  public:
    // `state` has its data files set. Nothing is shown yet.
    Desktop(ProgramState& state, const DesktopServices& services);
    ~Desktop() override;

    // Reads options and settings and opens the first windows. Where options are missing or empty the user is
    // asked whether to restore them from the master copy. Returns false when the program cannot run.
    bool Start();

    TOLVANIS& mainWindow() { return *main_; }
    BirthDesk& birthDesk() { return *births_; }
    WheelDesk& wheelDesk() { return *wheel_; }
    InterpDesk& interpDesk() { return *interp_; }
    InputD& natalInput() { return births_->natalInput(); }
    OutputD1* dataWindow() { return data_; }

    void ShowDataBuffer();

    // Shows a text file of the application directory in the Data window.
    void ShowTextFile(const std::string& textFileName, TextUse use = TextUse::Reading);

    // Opens the editor of this use on the file, or brings it forward.
    void ShowEditor(EditorUse use, const Path& file);

  Q_SIGNALS:
    void ended();  // the settings are written and the windows closed

  public Q_SLOTS:
    void Exit();

  private:
    using Command = std::function<void()>;

    bool StartOptions();
    void TellShortOptions(int lines);
    void StartSettings();
    void ShowTitle();
    void MeasureScreen();
    void MakeWindows();
    void RegisterCommands();
    void EnableStudyTexts();
    void PlaceMainWindow();
    void KeepMainPlacement();
    void KeepSettings();
    void ShowMainWindow();
    void ShowEntryWindows();
    void UnloadChartWindows();
    void FocusMainWindow();
    void UpdateClock();
    void EditorSaved(EditorUse use);
    void EditorClosed(EditorUse use);
    void RestoreDefaultOptions(EditorWindow& editor);
    void PrepareInput();
    void Compute();
    void ShowInputFault(EntryField field);

    void mnuInputData_Click();
    void mnuHouse_Click(HouseSystem system);
    void mnuPositions_Click(Theory theory);
    void RecomputeByMethod();
    void mnuOptions_Click();
    void mnuHeader_Click();
    void mnuDataNatalData_Click();
    void mnuHelpAbout_Click();
    void mnuHelpPrintHelp_Click();
    void ShowWayBack();
    void OutputD1_printFileWritten();

    ProgramState& state_;
    DesktopServices services_;
    PrintServices printing_;
    std::unique_ptr<TOLVANIS> main_;
    std::unique_ptr<BirthDesk> births_;
    std::unique_ptr<WheelDesk> wheel_;
    std::unique_ptr<InterpDesk> interp_;
    QPointer<OutputD1> data_;
    QPointer<PrntFile> print_;
    std::map<EditorUse, QPointer<EditorWindow>> editors_;
    std::map<EditorUse, KeptPlace> editorPlaces_;
    std::map<std::string, Command> commands_;
    QTimer clock_;
    QRect mainPlace_;            // where the settings have put the main window
    bool keepsSettings_ = true;  // their file could be read
    bool ended_ = false;
};

}  // namespace tolvanis
