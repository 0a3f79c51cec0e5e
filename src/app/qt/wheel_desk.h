#pragma once
// The wheel window among the program's windows.

#include <QObject>
#include <QPointer>
#include <optional>

#include "app/editor_uses.h"
#include "app/program_state.h"
#include "platform/qt/placement.h"
#include "wheel/qt/wheels_window.h"

namespace tolvanis {

class WheelDesk : public QObject {
    Q_OBJECT

  public:
    WheelDesk(ProgramState& state, const PrintServices& printing) : state_(state), printing_(printing) {}
    ~WheelDesk() override { Close(); }

    // Opens the wheel of the computed chart in place of the one that is open. A wheel table that is missing
    // or damaged is told to the user.
    void Open();
    // Closes the wheel and its aspect window.
    void Close();

    Wheels* wheels() { return wheels_; }

  Q_SIGNALS:
    void dataBufferRequested();  // the ASCII chart has been written
    void textFileRequested(const std::string& name);
    void editorRequested(EditorUse use, const Path& file);
    void mainWindowRequested();

  private:
    void Connect();
    void Place();
    void PlaceAspects();
    void WriteAscii();

    ProgramState& state_;
    PrintServices printing_;
    std::optional<WheelData> data_;
    QPointer<Wheels> wheels_;
    KeptPlace place_, aspectsPlace_;
};

}  // namespace tolvanis
