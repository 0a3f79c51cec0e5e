#pragma once
// A line of text that never widens its window.

#include <QLabel>

namespace tolvanis {

// Shows its text with the middle left out where there is no room for all of it.
class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tolvanis
