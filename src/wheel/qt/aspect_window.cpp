#include "wheel/qt/aspect_window.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QtMath>

#include "platform/qt/hourglass.h"
#include "platform/qt/symbol_font.h"

namespace tolvanis {

CWAspect::CWAspect(QWidget* parent) : QWidget(parent, Qt::Window), Text1_(this) {
    setObjectName(QStringLiteral("CWAspect"));
    setWindowTitle(QStringLiteral("Aspects"));
    setAttribute(Qt::WA_DeleteOnClose);
    Text1_.setObjectName(QStringLiteral("Text1"));
    Text1_.setAccessibleName(QStringLiteral("Aspects"));
    Text1_.setReadOnly(true);
    Text1_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QFont font(QString::fromLatin1(kSymbolFontFamily));
    font.setPointSizeF(12.0);
    Text1_.setFont(font);
    setFocusProxy(&Text1_);
    resize(sizeHint());
}

void CWAspect::List(const WheelSnapshot& chart, const Path& orbsFile, Messages& messages) {
    const Hourglass hourglass;
    OrbTable orbs{};
    QString text;
    if (const Result<void> read = ReadOrbsFile(orbsFile, orbs); !read) {
        messages.Tell("Error!", read.message(), MessageIcon::Stop);
    } else {
        text = QString::fromStdString(AspectListText(ListAspects(chart, orbs)));
    }
    if (Text1_.toPlainText() != text) Text1_.setPlainText(text);
}

QSize CWAspect::SizeFor(int letters, int lines) const {
    const QFontMetrics metrics(Text1_.font());
    const int margin = 2 * (Text1_.frameWidth() + qCeil(Text1_.document()->documentMargin()));
    return {letters * metrics.averageCharWidth() + margin + Text1_.verticalScrollBar()->sizeHint().width(),
            lines * metrics.lineSpacing() + margin};
}

QSize CWAspect::sizeHint() const {
    return SizeFor(18, 24);
}

QSize CWAspect::minimumSizeHint() const {
    return SizeFor(15, 8);
}

void CWAspect::resizeEvent(QResizeEvent*) {
    Text1_.setGeometry(rect());
}

void CWAspect::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT mainWindowRequested();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace tolvanis
