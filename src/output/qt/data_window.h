#pragma once
// The Data window.

#include <QMainWindow>
#include <string>

#include "chart/natal_data.h"
#include "chart/options.h"
#include "output/data_buffer.h"
#include "output/data_view.h"
#include "output/text_saving.h"

class QPlainTextEdit;

namespace tolvanis {

// What the Data window works on; all of it outlives the window.
struct DataWindowContext {
    DataBuffer& buffer;
    DataViewSettings& view;
    const Options& options;
    const NatalData& natal;
    const Path& applicationDirectory;
    const std::string& titlePrefix;
    std::string& SaveFileName;
    double fontStep;       // points
    double twipsPerPixel;  // positive
    Messages& messages;
    FileDialogs& dialogs;
};

// Shows the data buffer's current listing in a fixed-pitch font, and saves and prints what the buffer holds.
// Moving and sizing the window changes the placement in the settings.
class OutputD1 : public QMainWindow {
    Q_OBJECT

  public:
    explicit OutputD1(const DataWindowContext& context);

    // Shows the current listing and the window. While the window is minimised or the buffer is empty nothing
    // happens; the listing appears at the next showing. A nearly full buffer is told at every showing, lines
    // that it could not keep are told once.
    void ShowDataBuffer();

  Q_SIGNALS:
    void printFileWritten();  // the print window is to be shown on the print file
    void helpRequested();
    void mainWindowRequested();

  public Q_SLOTS:
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuIncrease_Click();
    void mnuDecrease_Click();
    void mnuBold_Click(bool ticked);
    void mnuItalic_Click(bool ticked);
    void mnuClear_Click();
    void mnuPrintPage_Click();
    void mnuPrintData_Click();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

  private:
    void BuildMenu();
    void ApplyFont();
    void RefreshView();
    void ShowInNewFont();  // the reader stays where he is in the text
    void EnableFontItems();
    void KeepPlacement();
    TextToSave SavedBuffer() const;
    void WritePrintFile(const std::vector<std::string>& lines);

    DataWindowContext context_;
    TextSaving saving_;
    QPlainTextEdit* Text1_;
    QAction *mnuIncrease_, *mnuDecrease_, *mnuBold_, *mnuItalic_;
};

}  // namespace tolvanis
