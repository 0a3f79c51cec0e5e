#include "platform/qt/bevel_frame.h"

#include <QPainter>

namespace tolvanis {

void BevelFrame::paintEvent(QPaintEvent*) {
    const QColor grey(0x80, 0x80, 0x80);
    QPainter painter(this);
    const QRect edge = rect().adjusted(0, 0, -1, -1);
    // The white lines lie one pixel inside the grey ones, as light falling on a groove from the upper left.
    painter.setPen(Qt::white);
    painter.drawRect(edge.adjusted(1, 1, 0, 0));
    painter.setPen(grey);
    painter.drawRect(edge.adjusted(0, 0, -1, -1));
}

}  // namespace tolvanis
