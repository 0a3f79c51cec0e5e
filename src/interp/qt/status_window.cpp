#include "interp/qt/status_window.h"

#include <QCoreApplication>
#include <QPainter>
#include <algorithm>

#include "platform/qt/palette.h"
#include "platform/qt/placement.h"

namespace tolvanis {

StatusDlg::StatusDlg() {
    setObjectName(QStringLiteral("StatusDlg"));
    setWindowTitle(QStringLiteral("% Completed"));
    setAccessibleName(QStringLiteral("Progress of the report"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    const int line = fontMetrics().height();
    resize(20 * line, 2 * line);
    MoveToMiddle(*this);
}

void StatusDlg::Open() {
    fraction_ = 0.0;
    show();
    // The window system shows the window only when it is asked; the user's own doings wait meanwhile.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void StatusDlg::SetBar(double fraction) {
    fraction_ = std::min(fraction, 1.0);
    repaint();
}

void StatusDlg::Close() {
    hide();
}

void StatusDlg::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(QRectF(0.0, 0.0, width() * fraction_, height()), PaletteColour(kLightRed));
}

}  // namespace tolvanis
