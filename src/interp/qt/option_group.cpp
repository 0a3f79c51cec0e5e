#include "interp/qt/option_group.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/qt/text.h"

namespace tolvanis {

OptionGroup::OptionGroup(const QString& name, const QString& caption,
                         std::span<const std::string_view> options, int chosen)
    : QGroupBox(caption), buttons_(new QButtonGroup(this)) {
    setObjectName(name);
    auto* column = new QVBoxLayout(this);
    for (const std::string_view option : options) {
        const int index = static_cast<int>(buttons_->buttons().size());
        auto* button = new QRadioButton(ToQt(option));
        button->setObjectName(name + QLatin1Char('_') + QString::number(index));
        button->setAccessibleName(caption + QLatin1String(": ") + button->text());
        button->installEventFilter(this);
        // Tab stops at the chosen one alone.
        button->setFocusPolicy(Qt::ClickFocus);
        connect(button, &QRadioButton::toggled, button, [button](bool chosenNow) {
            button->setFocusPolicy(chosenNow ? Qt::StrongFocus : Qt::ClickFocus);
        });
        buttons_->addButton(button, index);
        column->addWidget(button);
    }
    column->addStretch();
    buttons_->button(chosen)->setChecked(true);
}

int OptionGroup::Index() const {
    return buttons_->checkedId();
}

void OptionGroup::Choose(int index) {
    QAbstractButton* button = buttons_->button(index);
    button->setChecked(true);
    button->setFocus(Qt::TabFocusReason);
}

bool OptionGroup::HandleKey(int key) {
    const int count = static_cast<int>(buttons_->buttons().size());
    switch (key) {
        case Qt::Key_Down:
        case Qt::Key_Right:
            Choose((Index() + 1) % count);
            return true;
        case Qt::Key_Up:
        case Qt::Key_Left:
            Choose((Index() + count - 1) % count);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Q_EMIT opened();
            return true;
        default:
            return false;
    }
}

bool OptionGroup::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (!(key->modifiers() & ~Qt::KeypadModifier) && HandleKey(key->key())) return true;
    }
    const bool doubleClick = event->type() == QEvent::MouseButtonDblClick &&
                             static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (!doubleClick) return QGroupBox::eventFilter(object, event);
    qobject_cast<QRadioButton*>(object)->setChecked(true);
    Q_EMIT opened();
    return true;  // the button must not stay pressed while a message is shown
}

}  // namespace tolvanis
