#include "app/qt/main_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPainter>

#include "platform/qt/placement.h"
#include "platform/qt/text.h"

namespace tolvanis {
namespace {

// Frames the item that the arrow keys have reached; many styles mark only one whose menu is open.
class MainMenuBar : public QMenuBar {
  protected:
    void paintEvent(QPaintEvent* event) override {
        QMenuBar::paintEvent(event);
        if (!hasFocus() || activeAction() == nullptr) return;
        constexpr int kLine = 2;  // pixels
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), kLine));
        painter.drawRect(actionGeometry(activeAction()).adjusted(1, 1, -1, -1));
    }
    void focusInEvent(QFocusEvent* event) override {
        QMenuBar::focusInEvent(event);
        update();
    }
};

}  // namespace

TOLVANIS::TOLVANIS() : items_(MainMenu()) {
    setObjectName(QStringLiteral("TOLVANIS"));
    setAccessibleName(QStringLiteral("Tolvanis main menu"));
    setMenuBar(new MainMenuBar);
    menuBar()->setNativeMenuBar(false);
    for (const MenuItem& item : items_) AddItem(item);
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
    } else {
        connect(action, &QAction::triggered, this,
                [this, control = item.control] { Q_EMIT commandChosen(control); });
    }
}

QAction* TOLVANIS::ItemOf(const std::string& control) const {
    return actions_.value(ToQt(control));
}

void TOLVANIS::TickHouseSystem(HouseSystem system) {
    for (const MenuItem& item : items_) {
        if (item.houseSystem) ItemOf(item.control)->setChecked(*item.houseSystem == system);
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

// A menu bar takes the keyboard when the Alt key is pressed and let go, and in no other way.
void TOLVANIS::FocusMenu() {
    BringForward(*this);
    if (menuBar()->activeAction() != nullptr) return;
    menuBar()->setFocus();
    for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        const auto modifiers = type == QEvent::KeyRelease ? Qt::NoModifier : Qt::AltModifier;
        QKeyEvent alt(type, Qt::Key_Alt, modifiers);
        QCoreApplication::sendEvent(this, &alt);
    }
}

void TOLVANIS::closeEvent(QCloseEvent* event) {
    event->ignore();
    Q_EMIT exitRequested();
}

}  // namespace tolvanis
