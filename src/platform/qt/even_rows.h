#pragma once
// Controls side by side, in as many rows as the window's width asks for.

#include <QLayout>
#include <QList>

namespace tolvanis {

// Lays widgets of equal width side by side, in their order: in one row where they fit, else in rows of about
// as many each, so that none is ever out of reach on a small screen.
class EvenRows : public QLayout {
  public:
    EvenRows() = default;
    ~EvenRows() override;

    void addItem(QLayoutItem* item) override { items_.append(item); }
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override { return items_.value(index); }
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;     // of one row
    QSize minimumSize() const override;  // of one widget
    void setGeometry(const QRect& place) override;

  private:
    QSize Cell() const;
    int Gap() const;
    int ColumnsIn(int width) const;
    int RowsOf(int columns) const;

    QList<QLayoutItem*> items_;
};

}  // namespace tolvanis
