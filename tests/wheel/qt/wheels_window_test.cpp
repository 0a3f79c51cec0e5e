// The wheel window as its user meets it, and pictures of charts that are not in the program.
#include "wheel/qt/wheels_window.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QMenuBar>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QXmlStreamReader>
#include <set>

#include "platform/file_replacing.h"
#include "platform/qt/palette.h"
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
    RecordedMessages messages;
    RecordedDialogs dialogs;
    Options options = DeliveredOptions();
    WheelData data = DeliveredWheelData();
    WheelSnapshot chart = SnapshotOf(kAnnSmith);
    WheelContext context{
        data, options, directory / "NATAL.ORB", directory / "PERSONAL.NAM", {dialogs, messages, [this] {
                                                                                 return directory.path();
                                                                             }}};

    void SetUp() override {
        for (const char* name : {"data/NATAL.ORB", "data/HCDATA.DAT", "data/RADIUS.DAT", "fonts/HORARY.ttf",
                                 "fonts/HORARY-Bold.ttf"}) {
            std::filesystem::copy(std::string(DELIVERED_DATA_DIR "/../") + name, directory.path());
        }
        ASSERT_TRUE(LoadSymbolFont(DataFiles(directory.path())));
    }
    Path WriteNoOrbs(const char* name) {
        std::string lines;
        for (int slot = 1; slot < kOrbSlotCount; ++slot) lines += "-1\r\n";
        return directory.Write(name, lines);
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
    Item(wheels, "mnuCTRing").trigger();
    EXPECT_EQ(changed.takeLast().at(0).toInt(), 2);
    EXPECT_FALSE(Item(wheels, "mnuCTEuropean").isChecked());
    for (int again = 0; again < 2; ++again) {
        EXPECT_EQ(Item(wheels, "mnuCTRing").isChecked(), again == 0);
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
    dialogs.answer = WriteNoOrbs("NONE.ORB").string();
    Item(wheels, "mnuOrbsChange").trigger();
    EXPECT_EQ(text(), QString());
    dialogs.answer.clear();
    Item(wheels, "mnuOrbsChange").trigger();
    EXPECT_EQ(wheels.orbsFile().filename(), "NONE.ORB") << "cancelling keeps the file";
    std::filesystem::remove(directory / "NONE.ORB");
    Item(wheels, "mnuAspects").trigger();
    ASSERT_EQ(messages.told.size(), 1u);
    EXPECT_EQ(messages.told[0].icon, MessageIcon::Stop);
}

TEST_F(WheelsTest, PrintsAsAsked) {
    directory.Write("PERSONAL.NAM", "Jane Doe\r\n");
    Wheels wheels(chart, context, 1);
    const Path file = directory / "wheel.pdf";
    dialogs.answer = file.string();
    messages.answers = {Answer::Cancel};
    Item(wheels, "mnuPrintChartwheel").trigger();
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_EQ(messages.asked.at(0).title, "Full page or half page chartwheel");
    EXPECT_EQ(messages.asked[0].text,
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
    std::filesystem::create_directory(directory / "other");
    dialogs.answers = {(directory / "other/Dr. Ann.gif").string(), ""};
    dialogs.saveRequests.clear();
    Item(wheels, "mnuExport").trigger();
    EXPECT_EQ(messages.told.size(), 1u);
    EXPECT_FALSE(std::filesystem::exists(directory / "other/Dr. Ann.gif"));
    ASSERT_EQ(dialogs.saveRequests.size(), 2u) << "the dialog comes again";
    EXPECT_EQ(dialogs.saveRequests[1].proposedName, "Dr. Ann.gif");
    EXPECT_EQ(dialogs.saveRequests[1].directory, directory / "other");
    for (const auto& [typed, saved] : {std::pair{"Dr. Ann", "Dr. Ann.svg"},
                                       {"a.JPG", "a.JPG"},
                                       {"Ann.PNG", "Ann.PNG"},
                                       {".pdf", ".pdf.svg"}}) {
        EXPECT_EQ(NameWithExtension(typed, dialogs.saveRequests[0]), saved);
    }
}

// A name may be longer than that of a file.
TEST_F(WheelsTest, ProposesNamesThatAFileCanHave) {
    chart.Name += "/?.";
    for (int i = 0; i < 150; ++i) chart.Name += "\xC3\xAB";
    Wheels wheels(chart, context, 0);
    Item(wheels, "mnuExport").trigger();
    messages.answers = {Answer::Yes};
    Item(wheels, "mnuPrintChartwheel").trigger();
    ASSERT_EQ(dialogs.saveRequests.size(), 2u);
    for (const char* extension : {".svg", ".pdf"}) {
        const SaveRequest& request = dialogs.saveRequests[extension[1] == 's' ? 0 : 1];
        EXPECT_TRUE(request.proposedName.ends_with(extension)) << request.proposedName;
        EXPECT_TRUE(ReplaceFile(directory / request.proposedName, "picture"));
        EXPECT_EQ(request.proposedName.size(), 254u) << "as long as can be, without half a letter";
        EXPECT_TRUE(QString::fromStdString(request.proposedName).startsWith(QStringLiteral("Ann Smith__.")));
    }
}

TEST_F(WheelsTest, AspectsComeForwardAndGoWithTheirWheel) {
    Wheels wheels(chart, context, 0);
    wheels.show();
    Item(wheels, "mnuAspects").trigger();
    const QPointer<CWAspect> aspects = wheels.aspectWindow();
    auto& text = Find<QPlainTextEdit>(*aspects, "Text1");
    text.moveCursor(QTextCursor::End);
    wheels.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&wheels));
    Item(wheels, "mnuAspects").trigger();
    EXPECT_TRUE(QTest::qWaitForWindowActive(aspects));
    ASSERT_EQ(wheels.aspectWindow(), aspects);
    EXPECT_FALSE(text.textCursor().atStart()) << "the reader stays where they were";
    QSignalSpy called(&wheels, &Wheels::mainWindowRequested);
    QTest::keyClick(&text, Qt::Key_Escape);
    EXPECT_EQ(called.count(), 1);
    wheels.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(aspects, nullptr);
}

// Every exported SVG is XML whatever the name holds, with the name as its title.
TEST_F(WheelsTest, SvgIsReadByAnXmlReader) {
    const struct {
        const char* name;
        const char* title;
    } cases[] = {{"Ann Smith", "Ann Smith - natal"},
                 {"A & B <script>alert(\"x\")</script> ]]> 'c'",
                  "A & B <script>alert(\"x\")</script> ]]> 'c' - natal"},
                 {"Bell\a and\x1b[31m tab\t", "Bell and[31m tab - natal"},
                 {"Zo\xC3\xAB \xE2\x82\xAC", "Zo\xC3\xAB \xE2\x82\xAC - natal"},
                 {"bytes \xFF\xFE", nullptr},
                 {"no \xEF\xBF\xBE\xEF\xBF\xBF", "no  - natal"},
                 {"wheel-title", "wheel-title - natal"}};
    for (const auto& c : cases) {
        chart.TitleLines[0] = std::string(c.name) + " - natal";
        for (const int type : {0, 1, 2}) {
            const Path file = directory / "a.svg";
            ASSERT_TRUE(ExportWheel({chart, data, options, ChartTypeOf(type), 500.0, 500.0}, file));
            QXmlStreamReader reader(QByteArray::fromStdString(FileContent(file)));
            QStringList elements;
            QString title;
            while (!reader.atEnd()) {
                reader.readNext();
                if (!reader.isStartElement()) continue;
                elements += reader.name().toString();
                if (reader.name() == QLatin1String("title")) title = reader.readElementText();
            }
            EXPECT_FALSE(reader.hasError()) << c.name << ": " << reader.errorString().toStdString();
            EXPECT_TRUE(!c.title || title.toStdString() == c.title) << title.toStdString();
            EXPECT_FALSE(elements.contains(QLatin1String("script")));
            EXPECT_GT(elements.count(QLatin1String("path")), 60);
        }
    }
}

// Notes what is drawn while it is drawn.
class NotedSurface : public PainterSurface {
  public:
    using PainterSurface::PainterSurface;
    std::vector<WheelText> texts;
    Extent extent;

    void SetCoordinates(const Extent& given) override {
        extent = given;
        PainterSurface::SetCoordinates(given);
    }
    void Text(Point corner, std::string_view text, TextFont font, int colour) override {
        texts.push_back({corner, std::string(text), font, colour});
        PainterSurface::Text(corner, text, font, colour);
    }
};

// The share of an area's pixels that are nearer to the colour than to the picture's ground.
double Covered(const QImage& picture, QRect area, QColor colour) {
    const auto distance = [](QColor a, QColor b) {
        return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
    };
    const QColor ground = picture.pixelColor(0, 0);
    int covered = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            covered += distance(pixel, colour) < distance(pixel, ground);
        }
    }
    return covered * 1.0 / (area.width() * area.height());
}

// A picture file shows what was to be drawn: each text where it belongs, in its colour, and both circles.
TEST_F(WheelsTest, PicturesShowWhatIsDrawn) {
    for (const int type : {0, 1, 2}) {
        constexpr int kSize = 1000;
        const WheelRequest request{chart, data, options, ChartTypeOf(type), kSize, kSize};
        TextOutlines outlines;
        QImage image(kSize, kSize, QImage::Format_RGB32);
        QPainter painter(&image);
        NotedSurface surface(painter, image.rect(), outlines);
        DrawWheel(surface, request);
        ASSERT_TRUE(ExportWheel(request, directory / "a.png"));
        const QImage picture(QString::fromStdString((directory / "a.png").string()));
        ASSERT_EQ(picture.size(), image.size());
        const double scale = kSize / (surface.extent.right - surface.extent.left);
        const auto pixel = [&](double x, double y) {
            return QPoint(qRound((x - surface.extent.left) * scale),
                          qRound((surface.extent.top - y) * scale));
        };
        EXPECT_GT(surface.texts.size(), 100u);
        for (const WheelText& text : surface.texts) {
            const Box ink = InkOf(text, surface);
            const QRect area(pixel(ink.left, ink.top), pixel(ink.right, ink.bottom));
            const double covered = Covered(picture, area, PaletteColour(text.colour));
            EXPECT_GT(covered, 0.08) << text.text << " of type " << type;
            EXPECT_LT(covered, 0.97) << text.text << " of type " << type;
        }
        for (const double angle : {33.0, 100.0, 222.0}) {
            const Point on = OnWheel(angle, kOuterRadius);
            EXPECT_GT(Covered(picture, QRect(pixel(on.x, on.y) - QPoint(3, 3), QSize(7, 7)), Qt::black),
                      0.15);
        }
        EXPECT_LT(Covered(picture, QRect(kSize - 90, 10, 80, 80), Qt::black), 0.01) << "an empty corner";
    }
}

QImage PictureOfPage(const Path& pdf) {
    const QString picture = QString::fromStdString(pdf.string()) + QStringLiteral(".page");
    QProcess::execute(QStringLiteral("pdftoppm"),
                      {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-r"),
                       QStringLiteral("50"), QString::fromStdString(pdf.string()), picture});
    return QImage(picture + QStringLiteral(".png"));
}

// The rectangle of a printed page that holds ink, in shares of the page.
QRectF InkOfPage(const Path& pdf) {
    const QImage page = PictureOfPage(pdf);
    QRect ink;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            if (qGray(page.pixel(x, y)) < 160) ink |= QRect(x, y, 1, 1);
        }
    }
    const double width = page.width();
    const double height = page.height();
    return {ink.left() / width, ink.top() / height, ink.width() / width, ink.height() / height};
}

TEST_F(WheelsTest, PrintsFillTheirPageOrItsUpperHalf) {
    for (const int type : {0, 1, 2}) {
        Wheels wheels(chart, context, type);
        const Path file = directory / "wheel.pdf";
        dialogs.answer = file.string();
        messages.answers = {Answer::Yes};
        Item(wheels, "mnuPrintChartwheel").trigger();
        const QRectF full = InkOfPage(file);
        EXPECT_LT(full.left(), 0.12);
        EXPECT_GT(full.right(), 0.88);
        EXPECT_LT(full.top(), 0.1) << "the title";
        EXPECT_GT(full.bottom(), 0.9) << "grid and table";
        messages.answers = {Answer::No};
        Item(wheels, "mnuPrintChartwheel").trigger();
        const QRectF half = InkOfPage(file);
        EXPECT_LT(half.bottom(), 0.51);
        EXPECT_GT(half.height(), 0.3);
        EXPECT_GT(half.left(), 0.02);
        EXPECT_LT(half.right(), 0.98);
    }
}

// A page without orbs shows no aspect, not even that of the nodes, which are always opposite.
TEST_F(WheelsTest, PrintsNoAspectsWithoutOrbs) {
    const Path file = directory / "wheel.pdf";
    const auto print = [&] {
        Wheels wheels(chart, context, 2);
        dialogs.answer = file.string();
        messages.answers = {Answer::Yes};
        Item(wheels, "mnuPrintChartwheel").trigger();
        return PictureOfPage(file);
    };
    const QImage usual = print();
    WriteNoOrbs("NATAL.ORB");
    const QImage bare = print();
    EXPECT_NE(bare, usual);
    EXPECT_EQ(messages.told.size(), 0u);
    std::filesystem::remove(directory / "NATAL.ORB");
    EXPECT_EQ(print(), bare);
    ASSERT_EQ(messages.told.size(), 1u) << "the file that cannot be read is told";
    EXPECT_EQ(messages.told[0].icon, MessageIcon::Stop);
}

TEST_F(WheelsTest, TheFirstKeyGoesToTheFirstOrTheLastPoint) {
    constexpr int kLast = kChartPointCount - 1;
    for (const auto& [key, index] : {std::pair{Qt::Key_Tab, 0},
                                     {Qt::Key_Right, 0},
                                     {Qt::Key_Down, 0},
                                     {Qt::Key_Home, 0},
                                     {Qt::Key_Left, kLast},
                                     {Qt::Key_Up, kLast},
                                     {Qt::Key_End, kLast}}) {
        Wheels wheels(chart, context, 2);
        auto& canvas = Find<WheelCanvas>(wheels, "canvas");
        canvas.grab();
        ASSERT_EQ(canvas.current(), -1);
        QTest::keyClick(&canvas, key);
        EXPECT_EQ(canvas.current(), index) << key;
    }
}

// Tab and arrows go around the wheel; each stop shows a tip and is what a screen reader finds in focus.
TEST_F(WheelsTest, KeyboardAndScreenReaderMeetThePoints) {
    Wheels wheels(chart, context, 2);
    wheels.show();
    auto& canvas = Find<WheelCanvas>(wheels, "canvas");
    canvas.grab();
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&canvas);
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->childCount(), kChartPointCount);
    canvas.setFocus();
    QTest::keyClick(&canvas, Qt::Key_Tab);
    EXPECT_EQ(canvas.current(), 0);
    QTest::keyClick(&canvas, Qt::Key_Right);
    QTest::keyClick(&canvas, Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(&canvas, Qt::Key_Left);
    EXPECT_EQ(canvas.current(), kChartPointCount - 1) << "behind the first comes the last";
    QTest::keyClick(&canvas, Qt::Key_Home);
    EXPECT_EQ(canvas.current(), 0);
    QTest::keyClick(&canvas, Qt::Key_End);
    EXPECT_EQ(canvas.current(), kChartPointCount - 1);
    std::set<int> points;
    for (int index = 0; index < kChartPointCount; ++index) {
        const int point = canvas.points()[static_cast<std::size_t>(index)].point;
        points.insert(point);
        const QString words = list->child(index)->text(QAccessible::Name);
        EXPECT_TRUE(words.startsWith(QString::fromUtf8(PointName(point).data()))) << words.toStdString();
        EXPECT_TRUE(canvas.accessibleDescription().contains(words));
        const QPoint middle = list->child(index)->rect().center();
        EXPECT_EQ(list->childAt(middle.x(), middle.y()), list->child(index));
        EXPECT_EQ(list->indexOfChild(list->child(index)), index);
    }
    EXPECT_EQ(points.size(), static_cast<std::size_t>(kChartPointCount));
    const QString before = canvas.accessibleDescription();
    Item(wheels, "mnuCTAmerican").trigger();
    EXPECT_NE(canvas.accessibleDescription(), before) << "it tells the aspects of the picture";
    QHelpEvent rest(QEvent::ToolTip, canvas.points()[0].place.center(),
                    canvas.mapToGlobal(canvas.points()[0].place.center()));
    QApplication::sendEvent(&canvas, &rest);
    EXPECT_TRUE(QToolTip::text().startsWith(QString::fromUtf8(PointName(canvas.points()[0].point).data())));
}

// Tiny and odd windows, every latitude that can be computed, sizes of zero in the options: nothing fails.
TEST_F(WheelsTest, OddWindowsAndOptionsStillDraw) {
    const WheelSnapshot north = SnapshotOf("Far North,21 Jun 1985,11.40,P,-2,-018.57,65.40");
    for (int option = 60; option <= 114; ++option) options[option] = 0.0F;
    for (const QSize size : {QSize(1, 1), QSize(2000, 20), QSize(20, 2000), QSize(300, 300)}) {
        for (const ChartType type : {ChartType::American, ChartType::European, ChartType::ZodiacRing}) {
            const Path file = directory / "odd.png";
            EXPECT_TRUE(
                ExportWheel({north, data, options, type, size.width() * 1.0, size.height() * 1.0}, file));
            EXPECT_EQ(QImage(QString::fromStdString(file.string())).size(), size);
        }
    }
}

}  // namespace
}  // namespace tolvanis
