// The wheel window as its user meets it, and pictures of charts that are not in the program.
#include "wheel/qt/wheels_window.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QImage>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>

#include "platform/qt/symbol_font.h"
#include "support/window_user.h"
#include "wheel/qt/wheel_export.h"
#include "wheel/symbols.h"
#include "wheel/wheel_page.h"
#include "wheel/wheel_support.h"

namespace tolvanis {
namespace {

struct WheelsTest : ::testing::Test {
    ScratchDirectory directory;
    RecordingMessages messages;
    RecordedDialogs dialogs;
    Options options = DeliveredOptions();
    WheelData data = DeliveredWheelData();
    WheelSnapshot chart = SnapshotOf(kAnnSmith);
    WheelContext context{data,
                         options,
                         directory / "NATAL.ORB",
                         directory / "PERSONAL.NAM",
                         {dialogs, messages, directory.path()}};

    void SetUp() override {
        for (const char* name : {"data/NATAL.ORB", "data/HCDATA.DAT", "data/RADIUS.DAT", "fonts/HORARY.ttf",
                                 "fonts/HORARY-Bold.ttf"}) {
            std::filesystem::copy(std::string(DELIVERED_DATA_DIR "/../") + name, directory.path());
        }
        ASSERT_TRUE(LoadSymbolFont(DataFiles(directory.path())));
    }
    static QAction& Item(Wheels& wheels, const char* name) { return Find<QAction>(wheels, name); }
};

TEST_F(WheelsTest, MenuAndCaption) {
    Wheels wheels(chart, context, 1);
    EXPECT_EQ(wheels.windowTitle().toStdString(), "Natal Chartwheel Ann Smith");
    QStringList captions;
    for (const QAction* action : wheels.menuBar()->actions()) captions += action->text();
    EXPECT_EQ(captions.join(QLatin1Char(' ')).toStdString(),
              "AS&CII &Aspects &Orbs &Print &Type &Help &Export");
    EXPECT_TRUE(Item(wheels, "mnuCTEuropean").isChecked());
    QSignalSpy changed(&wheels, &Wheels::typeChartChanged);
    for (int again = 0; again < 2; ++again) {
        Item(wheels, "mnuCTAmerican").trigger();
        EXPECT_TRUE(Item(wheels, "mnuCTAmerican").isChecked());
        EXPECT_FALSE(Item(wheels, "mnuCTEuropean").isChecked());
    }
    EXPECT_EQ(changed.takeLast().at(0).toInt(), 0);
    Wheels unknownType(chart, context, 7);
    EXPECT_TRUE(Item(unknownType, "mnuCTAmerican").isChecked());
}

TEST_F(WheelsTest, EscAndTheRightButtonCallTheMainWindow) {
    Wheels wheels(chart, context, 0);
    QSignalSpy called(&wheels, &Wheels::mainWindowRequested);
    QTest::keyClick(&wheels, Qt::Key_A);
    QTest::mouseClick(&wheels, Qt::LeftButton);
    EXPECT_EQ(called.count(), 0);
    QTest::keyClick(&wheels, Qt::Key_Escape);
    QTest::mouseClick(wheels.centralWidget(), Qt::RightButton);
    EXPECT_EQ(called.count(), 2);
}

TEST_F(WheelsTest, ResizingReportsTheScale) {
    Wheels wheels(chart, context, 0);
    wheels.show();
    QSignalSpy scaled(&wheels, &Wheels::startScaleChanged);
    wheels.centralWidget()->resize(1000, 700);
    ASSERT_GE(scaled.count(), 1);
    EXPECT_EQ(scaled.last().at(0).toInt(), 321);
}

TEST_F(WheelsTest, AspectWindowIsRebuiltFromTheSelectedOrbs) {
    Wheels wheels(chart, context, 0);
    Item(wheels, "mnuAspects").trigger();
    const auto text = [&] { return wheels.aspectWindow()->findChild<QPlainTextEdit*>()->toPlainText(); };
    EXPECT_TRUE(text().startsWith(QString::fromStdString("  " + PointGlyph(kSun) + " ")));
    std::string noOrbs;
    for (int i = 0; i < 16; ++i) noOrbs += "-1\r\n";
    dialogs.answer = directory.Write("NONE.ORB", noOrbs).string();
    Item(wheels, "mnuOrbsChange").trigger();
    EXPECT_EQ(text(), QString());
    dialogs.answer.clear();
    Item(wheels, "mnuOrbsChange").trigger();
    EXPECT_EQ(wheels.orbsFile().filename(), "NONE.ORB") << "cancelling keeps the file";
    std::filesystem::remove(directory / "NONE.ORB");
    Item(wheels, "mnuAspects").trigger();
    EXPECT_EQ(messages.told.size(), 1u);
}

TEST_F(WheelsTest, PrintsAsAsked) {
    directory.Write("PERSONAL.NAM", "Jane Doe\r\n");
    Wheels wheels(chart, context, 1);
    const Path file = directory / "wheel.pdf";
    dialogs.answer = file.string();
    messages.answers = {Answer::Cancel};
    Item(wheels, "mnuPrintChartwheel").trigger();
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_EQ(messages.told[0].title, "Full page or half page chartwheel");
    EXPECT_EQ(messages.told[0].text,
              "Click 'YES' for full page chartwheel. Click 'NO' for half page chartwheel.");
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        messages.answers = {answer};
        Item(wheels, "mnuPrintChartwheel").trigger();
        EXPECT_TRUE(FileContent(file).starts_with("%PDF"));
        std::filesystem::remove(file);
    }
}

TEST_F(WheelsTest, ExportsByExtension) {
    Wheels wheels(chart, context, 0);
    wheels.resize(700, 720);
    const struct {
        const char* name;
        const char* start;
    } cases[] = {{"a.svg", "<?xml"}, {"a.PDF", "%PDF"}, {"a.png", "\x89PNG"}};
    for (const auto& c : cases) {
        dialogs.answer = (directory / c.name).string();
        Item(wheels, "mnuExport").trigger();
        EXPECT_TRUE(FileContent(dialogs.answer).starts_with(c.start)) << c.name;
    }
    EXPECT_EQ(FileContent(directory / "a.svg").find("<text"), std::string::npos)
        << "text needs the font installed";
    dialogs.answer = (directory / "a.gif").string();
    Item(wheels, "mnuExport").trigger();
    EXPECT_EQ(messages.told.size(), 1u);
    EXPECT_FALSE(std::filesystem::exists(dialogs.answer));
}

// All texts of a drawing; the wheel is measured with the real font.
class TextCollector : public PainterSurface {
  public:
    using PainterSurface::PainterSurface;
    std::vector<std::pair<std::string, Extent>> inks;
    Extent extent;

    void SetCoordinates(const Extent& given) override {
        extent = given;
        PainterSurface::SetCoordinates(given);
    }
    void Text(Point corner, std::string_view text, TextFont font, int colour) override {
        inks.emplace_back(text, InkOf({corner, std::string(text), font, colour}, *this));
        PainterSurface::Text(corner, text, font, colour);
    }
};

const char* const kOrdinaryBirths[] = {"Ann Smith,22 Sep 1949,9.05,A,5,073.59,40.45",
                                       "A Stellium,04 Feb 1962,7.30,P,8,122.25,37.46",
                                       "London Noon,11 Jan 1994,12.10,P,0,000.07,51.30",
                                       "Sydney,03 Mar 1986,6.15,A,-11,-151.12,-33.52",
                                       "Quito,01 May 2000,12.00,P,5,078.30,-00.13",
                                       "Cape Town,15 Aug 1971,3.33,A,-2,-018.25,-33.55",
                                       "Berlin,30 Apr 1945,3.30,P,-2,-013.25,52.31",
                                       "Tokyo,07 Jul 2007,7.07,A,-9,-139.42,35.41",
                                       "Alexandra Wilhelmina,17 Nov 1978,11.59,P,6,087.39,41.51"};

// Whether two characters look as if they touched: their rectangles overlap, and so do the ellipses in them.
bool Touch(const Extent& a, const Extent& b) {
    constexpr double kSlack = 0.5;
    if (!Overlap(a, b, -kSlack)) return false;
    const double x =
        (a.left + a.right - b.left - b.right) / (a.right - a.left + b.right - b.left - 2 * kSlack);
    const double y =
        (a.top + a.bottom - b.top - b.bottom) / (a.top - a.bottom + b.top - b.bottom - 2 * kSlack);
    return std::hypot(x, y) < 1.0;
}

// Draws on a picture of that size and expects all texts inside of it and clear of each other.
template <typename Draw>
void ExpectClear(QSize size, const std::string& what, Draw draw) {
    TextOutlines outlines;
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    TextCollector surface(painter, image.rect(), outlines);
    draw(surface);
    const auto& inks = surface.inks;
    for (std::size_t i = 0; i < inks.size(); ++i) {
        const auto& [text, ink] = inks[i];
        EXPECT_TRUE(ink.left >= surface.extent.left && ink.right <= surface.extent.right &&
                    ink.top <= surface.extent.top && ink.bottom >= surface.extent.bottom)
            << what << ": \"" << text << "\" leaves the picture";
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(Touch(ink, inks[j].second))
                << what << ' ' << size.width() << ": \"" << inks[j].first << "\" meets \"" << text << '"';
        }
    }
}

TEST_F(WheelsTest, TextsOfOrdinaryChartsStandClear) {
    OrbTable orbs{};
    ASSERT_TRUE(ReadOrbsFile(directory / "NATAL.ORB", orbs));
    const std::vector<std::string> personal = {"Jane Doe, Astrologer",
                                               "12 Long and Winding Lane, Upper Slaughter, Gloucestershire",
                                               "Telephone 555-0123"};
    for (const char* record : kOrdinaryBirths) {
        const WheelSnapshot birth = SnapshotOf(record);
        for (const ChartType type : {ChartType::American, ChartType::European}) {
            const int number = static_cast<int>(type);
            const std::string what = record + std::to_string(number);
            for (const QSize size : {QSize(700, 700), QSize(937, 740), QSize(1600, 900), QSize(600, 900)}) {
                ExpectClear(size, what, [&](DrawingSurface& surface) {
                    DrawWheel(surface, {birth, data, options, type, size.width() * 1.0, size.height() * 1.0});
                });
            }
            for (const QSize page : {QSize(523, 770), QSize(540, 720)}) {  // A4 and Letter less half an inch
                ExpectClear(page, what + " page", [&](DrawingSurface& surface) {
                    DrawPage(surface, {birth, data, options, number, personal, orbs, page.width() * 1.0,
                                       page.height() * 1.0});
                });
            }
        }
    }
}

// Tiny and odd windows, every latitude that can be computed, sizes of zero in the options: nothing fails.
TEST_F(WheelsTest, OddWindowsAndOptionsStillDraw) {
    const WheelSnapshot north = SnapshotOf("Far North,21 Jun 1985,11.40,P,-2,-018.57,65.40");
    for (int option = 60; option <= 114; ++option) options[option] = 0.0F;
    for (const QSize size : {QSize(1, 1), QSize(2000, 20), QSize(20, 2000), QSize(300, 300)}) {
        for (const ChartType type : {ChartType::American, ChartType::European}) {
            const Path file = directory / "odd.png";
            EXPECT_TRUE(
                ExportWheel({north, data, options, type, size.width() * 1.0, size.height() * 1.0}, file));
            EXPECT_EQ(QImage(QString::fromStdString(file.string())).size(), size);
        }
    }
}

}  // namespace
}  // namespace tolvanis
