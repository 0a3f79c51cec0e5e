#include "wheel/qt/wheel_canvas.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QToolTip>

namespace tolvanis {
namespace {

// A point of the wheel as assistive technology meets it.
class PointAccessible : public QAccessibleInterface {
  public:
    PointAccessible(WheelCanvas& canvas, int index) : canvas_(&canvas), index_(index) {}

    bool isValid() const override { return canvas_ && index_ < static_cast<int>(canvas_->points().size()); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(canvas_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name && isValid() ? canvas_->WordsOf(Shown().point) : QString();
    }
    QRect rect() const override {
        if (!isValid()) return {};
        return {canvas_->mapToGlobal(Shown().place.topLeft()), Shown().place.size()};
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = true;
        state.focused = isValid() && canvas_->hasFocus() && canvas_->current() == index_;
        state.readOnly = true;
        return state;
    }

  private:
    const WheelCanvas::ShownPoint& Shown() const {
        return canvas_->points()[static_cast<std::size_t>(index_)];
    }

    QPointer<WheelCanvas> canvas_;
    int index_;
};

// The wheel as a list of its points.
class WheelAccessible : public QAccessibleWidget {
  public:
    explicit WheelAccessible(WheelCanvas& canvas) : QAccessibleWidget(&canvas, QAccessible::List) {}
    ~WheelAccessible() override {
        for (const QAccessible::Id id : children_) QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return static_cast<int>(Canvas().points().size()); }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) return nullptr;
        while (static_cast<int>(children_.size()) <= index) {
            children_.push_back(QAccessible::registerAccessibleInterface(
                new PointAccessible(Canvas(), static_cast<int>(children_.size()))));
        }
        return QAccessible::accessibleInterface(children_[static_cast<std::size_t>(index)]);
    }
    int indexOfChild(const QAccessibleInterface* wanted) const override {
        for (int index = 0; index < childCount(); ++index) {
            if (child(index) == wanted) return index;
        }
        return -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        return child(Canvas().IndexAt(Canvas().mapFromGlobal(QPoint(x, y))));
    }
    QAccessibleInterface* focusChild() const override {
        return Canvas().hasFocus() ? child(Canvas().current()) : nullptr;
    }

  private:
    WheelCanvas& Canvas() const { return *static_cast<WheelCanvas*>(object()); }

    mutable std::vector<QAccessible::Id> children_;
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
    auto* canvas = qobject_cast<WheelCanvas*>(object);
    return canvas ? new WheelAccessible(*canvas) : nullptr;
}

}  // namespace

WheelCanvas::WheelCanvas(WheelPainter& wheel, QWidget* parent) : QWidget(parent), wheel_(wheel) {
    static const bool isInstalled = (QAccessible::installFactory(MakeAccessible), true);
    Q_UNUSED(isInstalled);
    setObjectName(QStringLiteral("canvas"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(120, 120);
}

void WheelCanvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Extent extent = WindowExtent(width(), height());
    const double scale = width() / (extent.right - extent.left);
    points_.clear();
    for (const DrawnPoint& point : wheel_.PaintWheel(painter, rect())) {
        const QRectF place(
            QPointF((point.ink.left - extent.left) * scale, (extent.top - point.ink.top) * scale),
            QPointF((point.ink.right - extent.left) * scale, (extent.top - point.ink.bottom) * scale));
        points_.push_back({point.point, place.toAlignedRect()});
    }
    current_ = qMin(current_, static_cast<int>(points_.size()) - 1);
    if (current_ < 0 || !hasFocus()) return;
    constexpr int kRoom = 3;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(
        points_[static_cast<std::size_t>(current_)].place.adjusted(-kRoom, -kRoom, kRoom, kRoom), kRoom,
        kRoom);
}

void WheelCanvas::resizeEvent(QResizeEvent* event) {
    Q_EMIT resized(event->size());
}

int WheelCanvas::IndexAt(QPoint place) const {
    constexpr int kNear = 3;
    int nearest = -1;
    int least = 0;
    for (std::size_t i = 0; i < points_.size(); ++i) {
        const QRect& glyph = points_[i].place;
        if (!glyph.adjusted(-kNear, -kNear, kNear, kNear).contains(place)) continue;
        const int distance = (glyph.center() - place).manhattanLength();
        if (nearest >= 0 && distance >= least) continue;
        nearest = static_cast<int>(i);
        least = distance;
    }
    return nearest;
}

bool WheelCanvas::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        ShowTip(IndexAt(static_cast<QHelpEvent*>(event)->pos()));
        return true;
    }
    if (event->type() == QEvent::PaletteChange) update();
    return QWidget::event(event);
}

void WheelCanvas::ShowTip(int index) {
    if (index < 0) return QToolTip::hideText();
    const ShownPoint& shown = points_[static_cast<std::size_t>(index)];
    QToolTip::showText(mapToGlobal(shown.place.bottomRight()), wheel_.TipOf(shown.point), this, shown.place);
}

void WheelCanvas::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Right:
        case Qt::Key_Down:
            return GoTo(current_ + 1);
        case Qt::Key_Left:
        case Qt::Key_Up:
            return GoTo(qMax(current_, 0) - 1);
        case Qt::Key_Home:
            return GoTo(0);
        case Qt::Key_End:
            return GoTo(-1);
        default:
            QWidget::keyPressEvent(event);
    }
}

bool WheelCanvas::focusNextPrevChild(bool next) {
    if (points_.empty()) return QWidget::focusNextPrevChild(next);
    GoTo(next || current_ < 0 ? current_ + 1 : current_ - 1);
    return true;
}

// Behind the last point comes the first again.
void WheelCanvas::GoTo(int index) {
    const int count = static_cast<int>(points_.size());
    if (count == 0) return;
    current_ = (index + count) % count;
    update();
    ShowTip(current_);
    QAccessibleEvent focus(this, QAccessible::Focus);
    focus.setChild(current_);
    QAccessible::updateAccessibility(&focus);
}

}  // namespace tolvanis
