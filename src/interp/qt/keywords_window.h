#pragma once
// The card of keywords.

#include <QWidget>

#include "platform/messages.h"

class QLabel;
class QTableWidget;

namespace tolvanis {

// A click on a topic, or Enter or the space bar on it, tells about it. The card grows with the window.
class Keywords : public QWidget {
    Q_OBJECT

  public:
    // Deletes itself when closed.
    Keywords(Messages& messages, double twipsPerPixel);

  Q_SIGNALS:
    void mainWindowRequested();

  public Q_SLOTS:
    void grdOutput_Click();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void FillGrid();
    void FitGrid(const QSizeF& room);
    void DisplayMsgBox(const std::string& topic, const std::string& text);

    Messages& messages_;
    QSizeF cell_;  // the smallest, in pixels
    QLabel* Label2_;
    QTableWidget* grdOutput_;
};

}  // namespace tolvanis
