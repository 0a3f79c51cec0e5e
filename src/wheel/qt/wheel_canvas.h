#pragma once
// The client area of the wheel window: the picture, and its points for keyboard, mouse and screen reader.

#include <QWidget>

#include "platform/qt/painter_surface.h"
#include "wheel/wheel_drawing.h"

namespace tolvanis {

// What the canvas shows; its owner answers.
class WheelPainter {
  public:
    virtual ~WheelPainter() = default;
    // Draws the wheel into the area and tells which points stand where, in wheel units.
    virtual std::vector<DrawnPoint> PaintWheel(QPainter& painter, const QRect& area) = 0;
    virtual QString TipOf(int point) const = 0;
    virtual QString WordsOf(int point) const = 0;
};

class WheelCanvas : public QWidget {
    Q_OBJECT

  public:
    explicit WheelCanvas(WheelPainter& wheel, QWidget* parent);

    struct ShownPoint {
        int point = kSun;
        QRect place;
    };
    // The points as last painted, from the Ascendant around the wheel, with the place of their glyphs.
    const std::vector<ShownPoint>& points() const { return points_; }
    // Index of the point that the keyboard stands on; -1 before the first key.
    int current() const { return current_; }
    int IndexAt(QPoint place) const;  // -1: none
    QString WordsOf(int point) const { return wheel_.WordsOf(point); }

  Q_SIGNALS:
    void resized(QSize size);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    void GoTo(int index);
    void ShowTip(int index);

    WheelPainter& wheel_;
    std::vector<ShownPoint> points_;
    int current_ = -1;
};

}  // namespace tolvanis
