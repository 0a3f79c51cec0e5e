#include "platform/qt/scroll_box.h"

#include <QApplication>
#include <QScrollBar>

namespace tolvanis {

ScrollBox::ScrollBox(QWidget* contents) {
    setWidget(contents);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);  // the controls inside have it
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { ShowFocus(now); });
}

QSize ScrollBox::sizeHint() const {
    return widget()->sizeHint();
}

QSize ScrollBox::minimumSizeHint() const {
    constexpr int kLetters = 20;
    constexpr int kLines = 6;
    const QSize few(kLetters * fontMetrics().averageCharWidth(), kLines * fontMetrics().lineSpacing());
    const QSize bars(verticalScrollBar()->sizeHint().width(), horizontalScrollBar()->sizeHint().height());
    return (few + bars).boundedTo(sizeHint());
}

void ScrollBox::ShowFocus(QWidget* control) {
    if (control != nullptr && widget()->isAncestorOf(control)) ensureWidgetVisible(control);
}

}  // namespace tolvanis
