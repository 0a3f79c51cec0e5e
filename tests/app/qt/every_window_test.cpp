// What holds for every window of the program.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QLabel>
#include <QMenuBar>

#include "app/qt/editor_window.h"
#include "app/qt/select_file_window.h"
#include "app/qt/title_window.h"
#include "birthdata/qt/atlas_window.h"
#include "interp/qt/status_window.h"
#include "platform/qt/symbol_font.h"
#include "support/desktop_fixture.h"

namespace tolvanis {
namespace {

bool IsInner(const QWidget& widget) {  // a part of one of Qt's own controls
    for (const QWidget* part = &widget; part != nullptr && !part->isWindow(); part = part->parentWidget()) {
        if (part->objectName().startsWith(QLatin1String("qt_"))) return true;
        if (part != &widget && qobject_cast<const QAbstractItemView*>(part) != nullptr) return true;
    }
    return false;
}

// The captions of a menu, those of its menus in parentheses behind them.
std::string ItemsOf(const QWidget& menu) {
    std::string items;
    for (const QAction* action : menu.actions()) {
        if (!action->isVisible()) continue;
        if (!items.empty()) items += ", ";
        items += action->isSeparator() ? "-" : action->text().toStdString();
        if (action->menu() != nullptr) items += " (" + ItemsOf(*action->menu()) + ")";
    }
    return items;
}

// The names of the controls that the Tab key leads through.
std::string TabOrderOf(const QWidget& window) {
    std::string names;
    const QWidget* control = &window;
    do {
        const bool stops =
            (control->focusPolicy() & Qt::TabFocus) != 0 && control->isVisible() && control->isEnabled();
        if (stops && !IsInner(*control)) names += control->objectName().toStdString() + " ";
        control = control->nextInFocusChain();
    } while (control != &window);
    return names;
}

class EveryWindow : public DesktopWindow {
  protected:
    // The windows that are open now.
    void CheckAll() {
        QCoreApplication::processEvents();
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && !window->objectName().isEmpty()) Check(*window);
        }
    }
    void Check(QWidget& window) {
        const QAccessible::Role role = QAccessible::queryAccessibleInterface(&window)->role();
        EXPECT_TRUE(role == QAccessible::Window || role == QAccessible::Dialog)
            << window.objectName().toStdString() << " is no window to a screen reader";
        titles_[window.objectName().toStdString()] = window.windowTitle().toStdString();
        order_[window.objectName().toStdString()] = TabOrderOf(window);
        for (const auto* menu : window.findChildren<QMenuBar*>()) {
            menus_[window.objectName().toStdString()] = ItemsOf(*menu);
        }
        for (auto* control : window.findChildren<QWidget*>()) {
            if (!control->isVisible() || IsInner(*control)) continue;
            const std::string what =
                (window.objectName() + QLatin1Char(' ') + control->objectName()).toStdString() + " (" +
                control->metaObject()->className() + ")";
            if (control->focusPolicy() != Qt::NoFocus) {
                const auto* reader = QAccessible::queryAccessibleInterface(control);
                EXPECT_TRUE(reader != nullptr && !reader->text(QAccessible::Name).isEmpty())
                    << what << " has no name for those who cannot see it";
            }
            if (const auto* button = qobject_cast<QAbstractButton*>(control)) {
                EXPECT_GE(button->width(), button->minimumSizeHint().width())
                    << what << " cuts " << button->text().toStdString();
            }
            const auto* label = qobject_cast<QLabel*>(control);
            if (label != nullptr && !label->objectName().isEmpty()) {
                EXPECT_NE(label->textFormat(), Qt::AutoText) << what << " may take a name for markup";
            }
        }
    }

    std::map<std::string, std::string> titles_;
    std::map<std::string, std::string> menus_;
    std::map<std::string, std::string> order_;
};

TEST_F(EveryWindow, HasItsCaptionNamesItsControlsAndGivesThemRoom) {
    LoadSymbolFont(DataFiles(Path(DELIVERED_DATA_DIR).parent_path() / "fonts"));
    CheckAll();
    Press(input(), "Label1");
    CheckAll();
    Q_EMIT desktop_->birthDesk().names()->citiesRequested();
    CheckAll();
    for (const char* window : {"TimeZone", "Geograph"}) {
        for (QWidget* open : QApplication::topLevelWidgets()) {
            if (open->objectName() == QLatin1String(window)) open->close();
        }
    }
    Press(input(), "Label1");
    CheckAll();
    TypeBirth();
    PressOK();
    Choose("mnuWheels");
    Find<QAction>(*desktop_->wheelDesk().wheels(), "mnuAspects").trigger();
    for (const char* item : {"mnuOptions", "mnuDataMeanings", "mnuReportNatal", "mnuKeywordS",
                             "mnuKeywordSystem", "mnuHelpPrintHelp"}) {
        Choose(item);
        CheckAll();
    }
    SelectFIle chooser(directory_.path(), "*.FIL", (directory_.path() / "NAMES.FIL").string());
    chooser.show();
    const Result<ZoneBook> book = ZoneBook::Open(DataFiles(Path(DELIVERED_DATA_DIR)));
    ASSERT_TRUE(book);
    AtlasWindow atlas(*book, input().Entry(), directory_ / "TSRTEMP.TXT", messages_);
    atlas.show();
    StatusDlg status;
    status.Open();
    About about(nullptr);
    about.show();
    ChooseInData("mnuPrintPage");
    CheckAll();
    const std::map<std::string, std::string> captions = {{"About", "About Tolvanis"},
                                                         {"Atlas", "Atlas"},
                                                         {"CWAspect", "Aspects"},
                                                         {"Geograph", "Cities"},
                                                         {"InputD", "Natal Input Data"},
                                                         {"KW_SYSTM", "Keyword System of Analysis"},
                                                         {"Keywords", "Keywords"},
                                                         {"MEANINGS", "TOLVANIS MEANINGS"},
                                                         {"Names", "Names"},
                                                         {"Options", "Edit: OPTIONS.OPT"},
                                                         {"OutputD1", "Tolvanis - Data"},
                                                         {"PrntFile", "Data To Be Printed"},
                                                         {"Report", "Tolvanis - REPORT"},
                                                         {"StatusDlg", "% Completed"},
                                                         {"SelectFIle", "Select a File"},
                                                         {"TOLVANIS", "Tolvanis - 05 Jan 2027     14:07:03"},
                                                         {"TimeZone", "Time Zones"},
                                                         {"Wheels", "Natal Chartwheel Ann Smith"}};
    EXPECT_EQ(titles_, captions);
    EXPECT_TRUE(std::ranges::any_of(about.findChildren<QLabel*>(), [](const QLabel* label) {
        return label->text().contains(QStringLiteral("GeoNames"));
    })) << "those whose work is used are named";
    const std::pair<const char*, const char*> orders[] = {
        {"InputD",
         "txtName txtMonth txtDay txtYear txtBirthHour txtBirthMinute optPM txtTZ txtLongDeg txtLongMin "
         "optWest txtLatDeg txtLatMin optNorth cmdNow cmdOK cmdSave Label1 Label2 "},
        {"Names", "txtFind NamesOnFile Check1 Command1 cmdEditList cmdNewFileList "},
        {"SelectFIle", "filList dirList drvList cmdSelect cmdCancel "},
        {"Atlas",
         "txtSearch lstPlaces txtMonth txtDay txtYear txtBirthHour txtBirthMinute optAM optPM cmdCancel "},
        {"Report", "txtContent cmdDown1 cmdUp1 cmdPageDOWN cmdPageUP cmdSave cmdSaveAs btnCancel btnPrint "},
        {"KW_SYSTM",
         "Combo1 Combo2 Combo3 OKIntro1 OKIntro2 OKKey1 OKGeneral1 OKExample1 OKExample2 OKAspects "
         "Command1 "}};
    for (const auto& [window, order] : orders) EXPECT_EQ(order_[window], order);
    EXPECT_EQ(menus_["OutputD1"],
              "&File (&Save, Save &As), F&ont (&Increase, &Decrease, &Bold, I&talic), &Clear all data, "
              "&Print page, Print &data, &Help");
    EXPECT_EQ(menus_["Wheels"],
              "AS&CII, &Aspects, &Orbs (&Select new orb file, &Edit orb file), &Print, "
              "&Type (&American, &European, &Zodiac ring), &Help, &Export");
}

TEST_F(EveryWindow, OpensAgainWhereItsUserHasPutIt) {
    const std::pair<const char*, const char*> windows[] = {
        {"mnuOptions", "Options"},       {"mnuHeader", "P_Name"},      {"mnuWheels", "Wheels"},
        {"mnuDataMeanings", "MEANINGS"}, {"mnuReportNatal", "Report"}, {"mnuKeywordS", "Keywords"},
        {"mnuKeywordSystem", "KW_SYSTM"}};
    TypeBirth();
    PressOK();
    int step = 0;
    for (const auto& [item, name] : windows) {
        const auto open = [&, item = item, name = name]() -> QWidget& {
            Choose(item);
            for (QWidget* window : QApplication::topLevelWidgets()) {
                if (window->objectName() == QLatin1String(name) && window->isVisible()) return *window;
            }
            throw std::runtime_error(std::string(name) + " does not open");
        };
        const auto placeOf = [](const QWidget& window) { return QRect(window.pos(), window.size()); };
        QWidget& first = open();
        const QRect wish(QPoint(40 + 7 * ++step, 60), first.size() + QSize(9, 0));
        PlaceWindow(first, wish);
        first.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(placeOf(open()), wish) << name << " closed by its cross";
    }
}

TEST_F(EveryWindow, EditorsDifferInWhatTheyShowAndAsk) {
    const Path file = directory_.Write("MY.TXT", "text\r\n");
    const struct {
        EditorUse use;
        const char *name, *caption;
        bool hint, restores, asks;
    } cases[] = {{EditorUse::Options, "Options", "Edit: OPTIONS.OPT", false, true, true},
                 {EditorUse::NameEdit, "NameEdit", nullptr, true, false, true},
                 {EditorUse::LongLat, "LongLat", nullptr, true, false, true},
                 {EditorUse::P_Name, "P_Name", "Edit: PERSONAL.NAM", false, false, true},
                 {EditorUse::OrbsEdit, "OrbsEdit", nullptr, false, false, false}};
    for (const auto& test : cases) {
        EditorWindow editor(test.use, file, messages_);
        editor.setAttribute(Qt::WA_DeleteOnClose, false);
        editor.show();
        Check(editor);
        EXPECT_EQ(titles_[test.name], test.caption != nullptr ? test.caption : "Edit: " + file.string());
        const auto labels = editor.findChildren<QLabel*>();
        EXPECT_EQ(labels.size(), test.hint ? 1 : 0) << test.name;
        EXPECT_TRUE(!test.hint || labels[0]->text().startsWith(QLatin1String("Ctrl-C to copy.")));
        EXPECT_EQ(editor.findChild<QPushButton*>(QStringLiteral("cmdRestoreDefault")) != nullptr,
                  test.restores)
            << test.name;
        QTest::keyClicks(&Find<QPlainTextEdit>(editor, "txtContent"), QStringLiteral("new"));
        EXPECT_TRUE(editor.HasUnsavedChanges());
        messages_.asked.clear();
        messages_.answers = {Answer::Cancel};
        EXPECT_EQ(editor.MayClose(), !test.asks) << test.name;
        EXPECT_EQ(messages_.asked.size(), test.asks ? 1U : 0U) << test.name;
    }
}

}  // namespace
}  // namespace tolvanis
