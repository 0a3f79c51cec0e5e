// The wheel as the main menu opens it.
#include "app/qt/wheel_desk.h"

#include <QMenuBar>
#include <QSignalSpy>

#include "app/qt/desktop.h"
#include "platform/qt/symbol_font.h"
#include "support/desktop_fixture.h"

namespace tolvanis {
namespace {

class WheelDeskTest : public DesktopWindow {
  protected:
    Wheels& wheels() { return *desktop_->wheelDesk().wheels(); }
    void Trigger(const char* item) { Find<QAction>(wheels(), item).trigger(); }
    void OpenWheel() {
        ASSERT_TRUE(LoadSymbolFont(DataFiles(Path(DELIVERED_DATA_DIR).parent_path() / "fonts")));
        TypeBirth();
        PressOK();
        Choose("mnuWheels");
        ASSERT_NE(desktop_->wheelDesk().wheels(), nullptr);
    }
};

TEST_F(WheelDeskTest, ShowsTheComputedChartAndItsTexts) {
    OpenWheel();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&wheels()));
    EXPECT_EQ(wheels().windowTitle(), QStringLiteral("Natal Chartwheel Ann Smith"));
    Trigger("mnuAsciiChart");
    EXPECT_TRUE(ListingHas("     Ann Smith - natal\n     22 Sep 1949\n     9.05 P.M. (4)"));
    Trigger("mnuHelp");
    EXPECT_TRUE(ListingHas("THE WHEEL WINDOW"));
    EXPECT_EQ(messages_.TakeTold(), std::vector<std::string>{});
}

TEST_F(WheelDeskTest, ClosesWithTheInputAndKeepsTheTypeForTheNextWheel) {
    OpenWheel();
    Trigger("mnuCTEuropean");
    Trigger("mnuAspects");
    const QPointer<CWAspect> aspects = wheels().aspectWindow();
    Choose("mnuInputData");
    EXPECT_EQ(desktop_->wheelDesk().wheels(), nullptr);
    EXPECT_EQ(aspects, nullptr);
    PressOK();
    Choose("mnuWheels");
    EXPECT_TRUE(Find<QAction>(wheels(), "mnuCTEuropean").isChecked());
}

TEST_F(WheelDeskTest, OpensBesideTheOthersAndThenWhereItsUserPutIt) {
    OpenWheel();
    const QRect menu(desktop_->mainWindow().pos(), desktop_->mainWindow().size());
    EXPECT_FALSE(QRect(wheels().pos(), wheels().size()).intersects(menu));
    EXPECT_GT(wheels().width(), 300);
    const QRect wish(210, 190, 333, 310);
    wheels().resize(wish.size());
    wheels().move(wish.topLeft());
    Choose("mnuWheels");
    EXPECT_EQ(QRect(wheels().pos(), wheels().size()), wish);
}

TEST_F(WheelDeskTest, AspectsOpenBesideTheWheelAndThenWhereTheirUserPutThem) {
    OpenWheel();
    Trigger("mnuAspects");
    const auto placeOf = [](const QWidget& window) { return QRect(window.pos(), window.size()); };
    const QRect opened = placeOf(*wheels().aspectWindow());
    EXPECT_GT(opened.height(), 100);
    for (const QWidget* other :
         {static_cast<QWidget*>(&desktop_->mainWindow()), static_cast<QWidget*>(wheels().menuBar())}) {
        const QRect place(other->mapToGlobal(QPoint()), other->size());
        EXPECT_FALSE(opened.intersects(place)) << other->objectName().toStdString();
    }
    const QRect wish(50, 90, 201, 222);
    PlaceWindow(*wheels().aspectWindow(), wish);
    for (const bool newWheel : {false, true}) {
        if (newWheel) {
            Choose("mnuWheels");
        } else {
            wheels().aspectWindow()->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        EXPECT_EQ(wheels().aspectWindow(), nullptr);
        Trigger("mnuAspects");
        EXPECT_EQ(placeOf(*wheels().aspectWindow()), wish) << newWheel;
    }
    QTest::keyClick(&Find<QPlainTextEdit>(*wheels().aspectWindow(), "Text1"), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&desktop_->mainWindow()));
}

// On a small screen a wheel rather covers something than shrinks to a thumbnail.
TEST(WheelPlacement, KeepsASizeThatCanBeRead) {
    const QSize smallest(480, 516);
    const ShownWindows others = {{{0, 100, 800, 500}, {0, 0, 800, 60}},
                                 {{0, 130, 800, 36}, {0, 30, 800, 30}}};
    const QRect place = ClearPlace({0, 0, 480, 516}, smallest, others, {{0, 0, 800, 600}});
    EXPECT_EQ(place.size(), smallest);
    EXPECT_GT(place.top(), 60) << "beside the main menu";
}

TEST_F(WheelDeskTest, EditsTheOrbsInUse) {
    OpenWheel();
    Trigger("mnuOrbsEdit");
    QWidget* editor = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("OrbsEdit")) editor = window;
    }
    ASSERT_NE(editor, nullptr);
    EXPECT_TRUE(editor->windowTitle().endsWith(QStringLiteral("NATAL.ORB")));
}

}  // namespace
}  // namespace tolvanis
