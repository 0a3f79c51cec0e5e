#pragma once
// The main window: the program's menu and a clock in the caption.

#include <QMainWindow>
#include <QMap>

#include "app/menu_table.h"
#include "astro/natal_chart.h"

namespace tolvanis {

// The Alt key with the underlined letter of a menu opens that menu from every window of the program that has
// no use of its own for the letter.
class TOLVANIS : public QMainWindow {
    Q_OBJECT

  public:
    TOLVANIS();

    // The action of an item or the menu action of a menu; the name is one of the menu table's.
    QAction* ItemOf(const std::string& control) const;

    // Ticks the items of a method.
    void TickMethod(const Method& method);
    // Shows the items that need a computed chart.
    void ShowChartItems();
    void ShowItem(const std::string& control);

    // Brings the window forward and gives the keyboard to its menu: the first item is marked and the arrow
    // keys go on from it.
    void FocusMenu();

  Q_SIGNALS:
    void textFileChosen(const std::string& fileName);
    void houseSystemChosen(tolvanis::HouseSystem system);
    void theoryChosen(tolvanis::Theory theory);
    void commandChosen(const std::string& control);
    // The user closes the window; it is the receiver who decides whether the program ends.
    void exitRequested();

  protected:
    void closeEvent(QCloseEvent* event) override;
    // Sees the keys of the whole program.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void OpenMenuOf(QChar letter);
    void AddItem(const MenuItem& item);
    void ConnectItem(const MenuItem& item, QAction* action);

    std::vector<MenuItem> items_;
    QMap<QString, QMenu*> menus_;
    QMap<QString, QAction*> actions_;
};

}  // namespace tolvanis
