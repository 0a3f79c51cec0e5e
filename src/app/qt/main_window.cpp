#include "app/qt/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPainter>

#include "platform/qt/placement.h"
#include "platform/qt/text.h"

namespace tolvanis {
namespace {

// A menu bar that shows where the keyboard is as soon as it has it: the first item is marked, and the arrow
// keys go on from there.
class MainMenuBar : public QMenuBar {
  public:
    // Qt gives a menu bar the keyboard when the Alt key is pressed and let go, and in no other way.
    void MarkFirstItem() {
        if (activeAction() != nullptr) return;
        for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent alt(type, Qt::Key_Alt, type == QEvent::KeyRelease ? Qt::NoModifier : Qt::AltModifier);
            QCoreApplication::sendEvent(window(), &alt);
        }
    }

  protected:
    void focusInEvent(QFocusEvent* event) override {
        QMenuBar::focusInEvent(event);
        MarkFirstItem();
        update();
    }
    // Many styles mark only an item whose menu is open.
    void paintEvent(QPaintEvent* event) override {
        QMenuBar::paintEvent(event);
        if (!hasFocus() || activeAction() == nullptr) return;
        constexpr int kLine = 2;  // pixels
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), kLine));
        painter.drawRect(actionGeometry(activeAction()).adjusted(1, 1, -1, -1));
    }
};

}  // namespace

TOLVANIS::TOLVANIS() : items_(MainMenu()) {
    setObjectName(QStringLiteral("TOLVANIS"));
    setAccessibleName(QStringLiteral("Tolvanis main menu"));
    setMenuBar(new MainMenuBar);
    menuBar()->setNativeMenuBar(false);
    for (const MenuItem& item : items_) AddItem(item);
    qApp->installEventFilter(this);
    for (const MenuItem& item : items_) {
        if (item.needsChart) ItemOf(item.control)->setVisible(false);
    }
}

void TOLVANIS::AddItem(const MenuItem& item) {
    const QString name = ToQt(item.control);
    QAction* action = nullptr;
    if (item.opensMenu) {
        QMenu* parent = menus_.value(ToQt(item.menu));
        QMenu* menu =
            parent == nullptr ? menuBar()->addMenu(ToQt(item.caption)) : parent->addMenu(ToQt(item.caption));
        menus_[name] = menu;
        action = menu->menuAction();
    } else {
        action = new QAction(ToQt(item.caption), this);
        QWidget* holder = menus_.value(ToQt(item.menu));
        (holder == nullptr ? menuBar() : holder)->addAction(action);
        ConnectItem(item, action);
    }
    action->setObjectName(name);
    actions_[name] = action;
}

void TOLVANIS::ConnectItem(const MenuItem& item, QAction* action) {
    if (!item.textFile.empty()) {
        connect(action, &QAction::triggered, this,
                [this, file = item.textFile] { Q_EMIT textFileChosen(file); });
    } else if (item.houseSystem) {
        action->setCheckable(true);
        connect(action, &QAction::triggered, this,
                [this, system = *item.houseSystem] { Q_EMIT houseSystemChosen(system); });
    } else if (item.theory) {
        action->setCheckable(true);
        connect(action, &QAction::triggered, this,
                [this, theory = *item.theory] { Q_EMIT theoryChosen(theory); });
    } else {
        connect(action, &QAction::triggered, this,
                [this, control = item.control] { Q_EMIT commandChosen(control); });
    }
}

QAction* TOLVANIS::ItemOf(const std::string& control) const {
    return actions_.value(ToQt(control));
}

void TOLVANIS::TickMethod(const Method& method) {
    for (const MenuItem& item : items_) {
        if (item.houseSystem) ItemOf(item.control)->setChecked(*item.houseSystem == method.houses);
        if (item.theory) ItemOf(item.control)->setChecked(*item.theory == method.theory);
    }
}

void TOLVANIS::ShowChartItems() {
    for (const MenuItem& item : items_) {
        if (item.needsChart) ShowItem(item.control);
    }
}

void TOLVANIS::ShowItem(const std::string& control) {
    ItemOf(control)->setVisible(true);
}

void TOLVANIS::FocusMenu() {
    BringForward(*this);
    menuBar()->setFocus();
    if (menuBar()->hasFocus()) static_cast<MainMenuBar*>(menuBar())->MarkFirstItem();
}

bool TOLVANIS::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool isAltLetter =
        key.modifiers() == Qt::AltModifier && key.key() >= Qt::Key_A && key.key() <= Qt::Key_Z;
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!isAltLetter || widget == nullptr || widget->window() == this) return false;
    if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr)
        return false;
    OpenMenuOf(QChar(key.key()));
    return true;  // also where no menu has the letter: a text box would take it for a letter to type
}

void TOLVANIS::OpenMenuOf(QChar letter) {
    for (QAction* action : menuBar()->actions()) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(action->text());
        if (mnemonic != QKeySequence(Qt::ALT | static_cast<Qt::Key>(letter.unicode()))) continue;
        if (!action->isVisible() || !action->isEnabled()) return;
        if (action->menu() == nullptr) return action->trigger();
        BringForward(*this);
        return menuBar()->setActiveAction(action);
    }
}

void TOLVANIS::closeEvent(QCloseEvent* event) {
    event->ignore();
    Q_EMIT exitRequested();
}

}  // namespace tolvanis
