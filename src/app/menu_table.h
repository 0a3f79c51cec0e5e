#pragma once
// The main menu as a table.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "chart/house_system.h"
#include "chart/theory.h"

namespace tolvanis {

struct MenuItem {
    std::string menu;     // the control of the menu that holds it; empty for the menu bar
    std::string control;  // the item's own name
    std::string caption;  // "&" in front of the access key
    bool opensMenu = false;
    std::string textFile;                    // shown in the Data window when not empty
    std::optional<HouseSystem> houseSystem;  // chosen by the item
    std::optional<Theory> theory;            // likewise
    bool needsChart = false;                 // hidden until a chart has been computed

    bool RunsCommand() const { return !opensMenu && textFile.empty() && !houseSystem && !theory; }
};

// Every item, a menu before its entries, in the order shown. Items with neither a text file nor something
// to choose run the command of their name.
std::vector<MenuItem> MainMenu();

}  // namespace tolvanis
