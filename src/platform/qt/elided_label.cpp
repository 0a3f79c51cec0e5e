#include "platform/qt/elided_label.h"

#include <QPainter>
#include <QStyle>

namespace tolvanis {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedLabel::sizeHint() const {
    return minimumSizeHint();
}

QSize ElidedLabel::minimumSizeHint() const {
    constexpr int kFewestLetters = 4;
    return {fontMetrics().averageCharWidth() * kFewestLetters, fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
    style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}

}  // namespace tolvanis
