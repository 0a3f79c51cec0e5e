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

void TOLVANIS::closeEvent(QCloseEvent* event) {
    event->ignore();
    Q_EMIT exitRequested();
}

}  // namespace tolvanis
