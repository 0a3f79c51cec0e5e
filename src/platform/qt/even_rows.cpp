#include "platform/qt/even_rows.h"

#include <QApplication>
#include <QStyle>

namespace tolvanis {

EvenRows::~EvenRows() {
    qDeleteAll(items_);
}

QLayoutItem* EvenRows::takeAt(int index) {
    return index >= 0 && index < count() ? items_.takeAt(index) : nullptr;
}

// Large enough for every widget.
QSize EvenRows::Cell() const {
    QSize cell(1, 1);
    for (const QLayoutItem* item : items_) cell = cell.expandedTo(item->sizeHint());
    return cell;
}

int EvenRows::Gap() const {
    const QStyle& style = *QApplication::style();
    const int gap = style.pixelMetric(QStyle::PM_LayoutHorizontalSpacing);
    if (gap >= 0) return gap;
    return style.layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, Qt::Horizontal);
}

int EvenRows::ColumnsIn(int width) const {
    const int most = (width + Gap()) / (Cell().width() + Gap());
    return RowsOf(RowsOf(qBound(1, most, qMax(1, count()))));  // the rows are equally long
}

int EvenRows::RowsOf(int columns) const {
    return qMax(1, (count() + columns - 1) / columns);
}

int EvenRows::heightForWidth(int width) const {
    return RowsOf(ColumnsIn(width)) * (Cell().height() + Gap()) - Gap();
}

QSize EvenRows::sizeHint() const {
    return {count() * (Cell().width() + Gap()) - Gap(), Cell().height()};
}

QSize EvenRows::minimumSize() const {
    return Cell();
}

void EvenRows::setGeometry(const QRect& place) {
    QLayout::setGeometry(place);
    const int columns = ColumnsIn(place.width());
    const double step = (place.width() + Gap()) * 1.0 / columns;
    for (int i = 0; i < count(); ++i) {
        const int left = qRound(i % columns * step);
        const int right = qRound((i % columns + 1) * step) - Gap();
        items_[i]->setGeometry({place.left() + left, place.top() + i / columns * (Cell().height() + Gap()),
                                right - left, Cell().height()});
    }
}

}  // namespace tolvanis
