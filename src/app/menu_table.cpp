#include "app/menu_table.h"

#include "app/study_texts.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

struct Entry {
    std::string_view menu, control, caption;
};

struct TextEntry {
    std::string_view control, caption, textFile;
};

struct HouseEntry {
    std::string_view control, caption;
    HouseSystem system;
};

constexpr HouseEntry kHouseItems[] = {
    {"mnuHousePlacidus", "&Placidus", HouseSystem::Placidus},
    {"mnuHouseRegiomontanus", "&Regiomontanus", HouseSystem::Regiomontanus},
    {"mnuHouseKoch", "&Koch", HouseSystem::Koch},
    {"mnuHouseCampanus", "&Campanus", HouseSystem::Campanus},
    {"mnuHousePorphyry", "P&orphyry", HouseSystem::Porphyry},
    {"mnuHouseEqualAsc", "&Equal - Asc", HouseSystem::EqualAsc},
    {"mnuHouseEqualMC", "E&qual - MC", HouseSystem::EqualMC},
    {"mnuHouseMeridian", "&Meridian", HouseSystem::Meridian},
    {"mnuHouseMorinus", "Mor&inus", HouseSystem::Morinus},
};

constexpr TextEntry kHelpItems[] = {
    {"mnuMainMenuHelp", "Tolvanis Main Menu", "TOLVANIS.HLP"},
    {"mnuHelpInputD", "Natal &Input Data Window", "INPUTD.HLP"},
    {"mnuHelpNames", "&Names Window", "NAMES.HLP"},
    {"mnuHelpCities", "Cities &Window", "GEOGRAPH.HLP"},
    {"mnuHelpOptions", "&Options Window", "OPTIONS.HLP"},
    {"mnuHelpOutputD1", "Da&ta Window", "OUTPUTD1.HLP"},
    {"mnuHelpNameedit", "&Edit A Name File Window", "NAMEEDIT.HLP"},
    {"mnuHelpLongLat", "Edit A Cit&y File Window", "LONGLAT.HLP"},
    {"mnuHelpSelect", "&Select A File Window", "SELECT.HLP"},
    {"mnuHelpPrntfile", "&File To Print  Window", "PRNTFILE.HLP"},
    {"mnuHelpHints", "Hints", "HINTS.HLP"},
    {"mnuHelpUpgrades", "Up&grades", "UPGRADES.HLP"},
    {"mnuShortcutKeys", "Shortcut &keys", "SHORTCUT.HLP"},
    {"mnuPhilosophyHelp", "Philosophy", "PHILO.HLP"},
    {"mnuHelpRevisions", "Re&vision history", "REVISION.HLP"},
};

class MenuBuilder {
  public:
    MenuItem& Add(const Entry& entry) {
        MenuItem item;
        item.menu = entry.menu;
        item.control = entry.control;
        item.caption = entry.caption;
        items_.push_back(std::move(item));
        return items_.back();
    }
    MenuItem& AddMenu(const Entry& entry) {
        MenuItem& item = Add(entry);
        item.opensMenu = true;
        return item;
    }
    void AddText(std::string_view menu, const TextEntry& entry) {
        Add({menu, entry.control, entry.caption}).textFile = entry.textFile;
    }
    std::vector<MenuItem> Take() { return std::move(items_); }

  private:
    std::vector<MenuItem> items_;
};

void AddChangeMenu(MenuBuilder& menu) {
    menu.AddMenu({"", "mnuChanges", "&Change"});
    menu.AddMenu({"mnuChanges", "mnuHouseSystem", "Hou&ses"});
    for (const HouseEntry& house : kHouseItems) {
        menu.Add({"mnuHouseSystem", house.control, house.caption}).houseSystem = house.system;
    }
    menu.Add({"mnuChanges", "mnuOptions", "&Options"});
    menu.Add({"mnuChanges", "mnuHeader", "&Header"});
    menu.AddMenu({"mnuChanges", "mnuPositions", "&Positions"});
    menu.Add({"mnuPositions", "mnuPositionsClassic", "&Classic"}).theory = Theory::Classic;
    menu.Add({"mnuPositions", "mnuPositionsModern", "&Modern"}).theory = Theory::Modern;
}

void AddPhilosophyMenu(MenuBuilder& menu) {
    menu.AddMenu({"", "mnuPhilosophy", "&Philosophy"});
    int number = 0;
    for (const StudyText& text : kStudyTexts) {
        const std::string control = "mnuPhilosophy" + TwoDigits(++number);
        menu.AddText("mnuPhilosophy", {control, text.title, text.fileName});
    }
}

void AddHelpMenu(MenuBuilder& menu) {
    menu.AddMenu({"", "mnuHelp", "&Help"});
    for (const TextEntry& text : kHelpItems) menu.AddText("mnuHelp", text);
    menu.Add({"mnuHelp", "mnuHelpAbout", "Abo&ut"});
    menu.Add({"mnuHelp", "mnuHelpPrintHelp", "Print Help Files"});
}

}  // namespace

std::vector<MenuItem> MainMenu() {
    MenuBuilder menu;
    menu.AddMenu({"", "mnuFile", "&File"});
    menu.Add({"mnuFile", "mnuFileExit", "E&xit"});
    menu.Add({"", "mnuInputData", "&Input"}).needsChart = true;
    AddChangeMenu(menu);
    menu.AddMenu({"", "mnuData", "&Data"}).needsChart = true;
    menu.Add({"mnuData", "mnuDataNatalData", "Natal &Data and Aspects"});
    menu.Add({"mnuData", "mnuDataMeanings", "&Meanings"});
    menu.Add({"", "mnuWheels", "&Wheel"}).needsChart = true;
    menu.Add({"", "mnuReportNatal", "&Report"}).needsChart = true;
    menu.AddMenu({"", "mnuKeywordTitle", "&Keywords"});
    menu.Add({"mnuKeywordTitle", "mnuKeywordS", "&General Information"});
    menu.Add({"mnuKeywordTitle", "mnuKeywordSystem", "&Keyword System"});
    AddPhilosophyMenu(menu);
    AddHelpMenu(menu);
    return menu.Take();
}

}  // namespace tolvanis
