#pragma once
// The window from which the lessons of the keyword system are opened.

#include <QComboBox>
#include <QWidget>

#include "interp/keyword_system.h"

class QGridLayout;

namespace tolvanis {

// A drop-down list whose entry is taken by choosing it in the opened list, the same one again too, or by
// Enter. The arrow keys and the mouse wheel only go through the entries of the closed list.
class LessonList : public QComboBox {
    Q_OBJECT

  public:
    explicit LessonList(std::span<const std::string_view> items);

  Q_SIGNALS:
    void taken(int index);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

class KW_SYSTM : public QWidget {
    Q_OBJECT

  public:
    // Deletes itself when closed.
    KW_SYSTM();

  Q_SIGNALS:
    void lessonChosen(const std::string& file);  // to be shown alone in the Data window
    void mainWindowRequested();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void AddList(QGridLayout& grid, int row, const LessonChoice& choice);
};

}  // namespace tolvanis
