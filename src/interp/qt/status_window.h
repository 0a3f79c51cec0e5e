#pragma once
// The window that shows how far the report has been built.

#include <QWidget>

#include "interp/natal_report.h"

namespace tolvanis {

class StatusDlg : public QWidget, public ReportProgress {
    Q_OBJECT

  public:
    StatusDlg();

    void Open() override;
    void SetBar(double fraction) override;
    void Close() override;

    double bar() const { return fraction_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double fraction_ = 0.0;
};

}  // namespace tolvanis
