#pragma once
// The print dialog: a text to look over, change and print.

#include <QDialog>

#include "chart/options.h"
#include "platform/qt/printing.h"

class QPlainTextEdit;

namespace tolvanis {

inline constexpr int kLinesPerPrintedPageOption = 30;
inline constexpr int kLongestPrintedLineOption = 117;

// Shows the print file of the application directory. Deletes itself when closed.
class PrntFile : public QDialog {
    Q_OBJECT

  public:
    PrntFile(const Options& options, const PrintServices& services);

  public Q_SLOTS:
    void btnPrint_Click();
    void btnCancel_Click();

  private:
    void Load();
    Path File() const;

    const Options& options_;
    PrintServices services_;
    QPlainTextEdit* txtContent_;
    bool longLines_ = false;  // noted when the file is loaded
};

}  // namespace tolvanis
