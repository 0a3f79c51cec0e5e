#include "app/qt/main_window.h"

#include <QCloseEvent>
#include <QMenuBar>

#include "platform/qt/text.h"

namespace tolvanis {

TOLVANIS::TOLVANIS() : items_(MainMenu()) {
    setObjectName(QStringLiteral("TOLVANIS"));
    setAccessibleName(QStringLiteral("Tolvanis main menu"));
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

void TOLVANIS::closeEvent(QCloseEvent* event) {
    event->ignore();
    Q_EMIT exitRequested();
}

}  // namespace tolvanis
