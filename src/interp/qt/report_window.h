#pragma once
// The report viewer.

#include <QWidget>
#include <string>

#include "interp/report_pages.h"
#include "output/text_saving.h"
#include "platform/qt/printing.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace tolvanis {

class EvenRows;

// What the viewer works on; all of it outlives the window.
struct ReportContext {
    const ReportBuffer& report;
    const Options& options;
    const std::string& titlePrefix;
    std::string& SaveFileName;
    PrintServices printing;
    Path reportsDirectory;  // where reports are saved; made when it is missing
};

// Shows the report in screens of 23 lines, whose letters grow with the window; finds, saves and prints.
class Report : public QWidget {
    Q_OBJECT

  public:
    // Deletes itself when closed.
    explicit Report(const ReportContext& context);

    // Shows the report, which is that of the person, from its beginning.
    void Load(const std::string& personName);

    int top() const { return screen_.top(); }

    // Of a window that can be read; its user may make it smaller.
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    void mainWindowRequested();

  public Q_SLOTS:
    void cmdDown1_Click();
    void cmdUp1_Click();
    void cmdPageDOWN_Click();
    void cmdPageUP_Click();
    void cmdSave_Click();
    void cmdSaveAs_Click();
    void btnCancel_Click();
    void btnPrint_Click();
    void OpenFind();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Build();
    void BuildFindBar();
    QPushButton* AddButton(const char* name, const char* caption, void (Report::*handler)());
    QSize SizeFor(double points, int row) const;
    void SetBars(bool needed);
    void AddShortcut(const QKeySequence& keys, const std::function<void()>& handler);
    void ShowScreen();
    void Redraw();
    void Move(int lines);
    bool HandleKey(int key);
    void Wheel(int angle);
    void FitLetters();
    void CloseFind();
    void Find(int from, SearchDirection direction);
    void MarkFound(const ReportPlace& place);
    TextToSave SavedText();
    Path SavingDirectory();

    ReportContext context_;
    ReportScreen screen_;
    TextSaving saving_;
    std::string personName_;
    int wheelAngle_ = 0;
    bool isWide_ = false;  // the report has lines of more characters than the window is made for
    QPlainTextEdit* txtContent_;
    EvenRows* buttons_;
    QPushButton *cmdPageDOWN_, *cmdPageUP_;
    QWidget* findBar_;
    QLineEdit* txtFind_;
    QLabel* lblFound_;
};

}  // namespace tolvanis
