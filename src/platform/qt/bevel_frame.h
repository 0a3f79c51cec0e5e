#pragma once
// A frame that looks cut into the window: grey and white lines around a group of boxes.

#include <QWidget>

namespace tolvanis {

class BevelFrame : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tolvanis
