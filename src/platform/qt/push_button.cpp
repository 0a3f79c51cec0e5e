#include "platform/qt/push_button.h"

#include <QPainter>

namespace tolvanis {
namespace {

// Many styles draw a button that has the focus as they draw the default one; a dotted line inside tells which
// it is.
class PushButton : public QPushButton {
  public:
    using QPushButton::QPushButton;

  protected:
    void paintEvent(QPaintEvent* event) override {
        QPushButton::paintEvent(event);
        if (!hasFocus()) return;
        constexpr int kInside = 3;  // pixels from the button's edge
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::ButtonText), 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(kInside, kInside, -kInside - 1, -kInside - 1));
    }
};

}  // namespace

QPushButton* MakePushButton(const char* objectName, const QString& caption) {
    auto* button = new PushButton(caption);
    button->setObjectName(QLatin1String(objectName));
    button->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
    button->setAutoDefault(true);
    return button;
}

}  // namespace tolvanis
