#pragma once
// The wheel window.

#include <QMainWindow>
#include <QPointer>
#include <optional>

#include "platform/qt/painter_surface.h"
#include "platform/qt/printing.h"
#include "wheel/qt/aspect_window.h"
#include "wheel/qt/wheel_canvas.h"

class QAction;

namespace tolvanis {

// What a wheel window works with; all of it outlives the window.
struct WheelContext {
    const WheelData& data;
    const Options& options;
    Path orbsFile;           // the one that the window begins with
    Path personalBlock;      // its lines stand below a printed page
    PrintServices printing;  // also asks for orbs files and where to export to
};

// Draws the chart that it is opened with, whatever is computed later. Everything is redrawn on every paint,
// in proportion to the window and at the screen's own resolution. The current orbs file is the context's
// until the user selects another one.
class Wheels : public QMainWindow, private WheelPainter {
    Q_OBJECT

  public:
    Wheels(WheelSnapshot chart, const WheelContext& context, int typeChart, QWidget* parent = nullptr);

    const WheelSnapshot& chart() const { return chart_; }
    const Path& orbsFile() const { return orbsFile_; }
    CWAspect* aspectWindow() { return aspects_; }

    // Of a wheel that can be read; its user may make it smaller.
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    void typeChartChanged(int typeChart);    // to be kept in the settings
    void startScaleChanged(int startScale);  // to be kept in the settings
    void aspectsOpened();                    // aspectWindow() is new and not shown yet
    void asciiChartRequested();              // write chart() as an ASCII chart and show it
    void orbsEditRequested(const QString& orbsFile);
    void helpRequested();        // show WHEELS.HLP
    void mainWindowRequested();  // Esc or the right mouse button

  public Q_SLOTS:
    void mnuAspects_Click();
    void mnuOrbsChange_Click();
    void mnuPrintChartwheel_Click();
    void mnuCTAmerican_Click();
    void mnuCTEuropean_Click();
    void mnuCTRing_Click();
    void mnuExport_Click();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;  // the aspects go with their wheel

  private:
    // Draws the wheel, or nothing but the background when there is no symbol font.
    std::vector<DrawnPoint> PaintWheel(QPainter& painter, const QRect& area) override;
    QString TipOf(int point) const override;
    QString WordsOf(int point) const override;

    void BuildMenu();
    void SetTypeChart(ChartType type);
    void CheckType();
    void ReadOrbs();
    void Describe();
    WheelRequest RequestFor(QSizeF size, WheelUse use = WheelUse::Window) const;
    void PrintFullPage();
    void PrintHalfPage();
    std::optional<Path> ChoosePicture();
    std::string DocumentName() const;

    WheelSnapshot chart_;
    WheelContext context_;
    int typeChart_;
    Path orbsFile_;
    OrbTable orbs_{};  // of the zodiac ring; none where the file cannot be read
    bool hasFont_;
    TextOutlines outlines_;
    WheelCanvas* canvas_;
    QAction* mnuCTAmerican_ = nullptr;
    QAction* mnuCTEuropean_ = nullptr;
    QAction* mnuCTRing_ = nullptr;
    QPointer<CWAspect> aspects_;
};

}  // namespace tolvanis
