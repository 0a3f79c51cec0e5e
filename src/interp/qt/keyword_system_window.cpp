#include "interp/qt/keyword_system_window.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "platform/qt/push_button.h"
#include "platform/qt/text.h"

namespace tolvanis {

LessonList::LessonList(std::span<const std::string_view> items) {
    for (const std::string_view item : items) addItem(ToQt(item));
    setMaxVisibleItems(static_cast<int>(items.size()));
    connect(this, &QComboBox::activated, this, &LessonList::taken);
}

void LessonList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT taken(currentIndex());
        return;
    }
    const QSignalBlocker quiet(this);
    QComboBox::keyPressEvent(event);
}

void LessonList::wheelEvent(QWheelEvent* event) {
    const QSignalBlocker quiet(this);
    QComboBox::wheelEvent(event);
}

KW_SYSTM::KW_SYSTM() {
    setObjectName(QStringLiteral("KW_SYSTM"));
    setWindowTitle(QStringLiteral("Keyword System of Analysis"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* grid = new QGridLayout(this);
    int row = 0;
    for (const LessonChoice& choice : kLessonChoices) AddList(*grid, row++, choice);
    row = 0;
    for (const LessonButton& lesson : kLessonButtons) {
        QPushButton* button = MakePushButton(lesson.control, QLatin1String(lesson.caption));
        connect(button, &QPushButton::clicked, this,
                [this, file = lesson.file] { Q_EMIT lessonChosen(file); });
        grid->addWidget(button, row++, 2);
    }
    QPushButton* quit = MakePushButton("Command1", QStringLiteral("Quit"));
    connect(quit, &QPushButton::clicked, this, &QWidget::close);
    grid->addWidget(quit, row - 1, 0, 1, 2, Qt::AlignLeft);
    setTabOrder(grid->itemAtPosition(row - 1, 2)->widget(), quit);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(fontMetrics().height());
}

void KW_SYSTM::AddList(QGridLayout& grid, int row, const LessonChoice& choice) {
    auto* list = new LessonList(choice.items);
    list->setObjectName(QLatin1String(choice.control));
    auto* label = new QLabel(QLatin1String(choice.caption));
    label->setBuddy(list);
    list->setAccessibleName(label->text().remove(QLatin1Char('&')));
    connect(list, &LessonList::taken, this,
            [this, fileOf = choice.fileOf](int index) { Q_EMIT lessonChosen(fileOf(index + 1)); });
    grid.addWidget(label, row, 0);
    grid.addWidget(list, row, 1);
}

void KW_SYSTM::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT mainWindowRequested();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace tolvanis
