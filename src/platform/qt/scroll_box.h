#pragma once
// A part of a window that gets scroll bars on a screen too small for it.

#include <QScrollArea>

namespace tolvanis {

// Wants the whole room of its contents, and makes do with a few lines of them. What has the focus is in view.
class ScrollBox : public QScrollArea {
  public:
    explicit ScrollBox(QWidget* contents);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  private:
    void ShowFocus(QWidget* control);
};

}  // namespace tolvanis
