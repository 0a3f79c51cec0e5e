// What a drawing on a painter shows, dot by dot, and how the boxes and fonts behave that windows are made of.
#include "platform/qt/painter_surface.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QImage>
#include <QPushButton>
#include <QTest>
#include <numbers>

#include "platform/qt/entry_box.h"
#include "platform/qt/even_rows.h"
#include "platform/qt/listing_font.h"

namespace tolvanis {
namespace {

constexpr int kRed = kRgbColour | 0xC00000;

// A picture of 200 x 200 dots of the wheel units from -50 to 50, both ways.
class PainterSurfaceTest : public testing::Test {
  protected:
    PainterSurfaceTest() {
        surface_.SetCoordinates({-50.0, 50.0, 50.0, -50.0});
        surface_.Clear(kWhite);
    }
    bool Inked(double x, double y) const {
        return picture_.pixelColor(static_cast<int>(100 + 2 * x), static_cast<int>(100 - 2 * y)) ==
               QColor(0xC0, 0, 0);
    }

    QImage picture_{200, 200, QImage::Format_RGB32};
    QPainter painter_{&picture_};
    TextOutlines outlines_;
    PainterSurface surface_{painter_, QRectF(0, 0, 200, 200), outlines_};
};

TEST_F(PainterSurfaceTest, LinesLeadFromPointToPoint) {
    surface_.Line({-40, 10}, {40, 30}, {kRed, 4.0});
    const LineSpan others[] = {{{-40, -10}, {0, -10}}, {{10, -10}, {10, -40}}};
    surface_.Lines(others, {kRed, 4.0});
    for (const Point on :
         {Point{-39, 10.2}, {0, 20}, {39, 29.8}, {-39, -10}, {-1, -10}, {10, -11}, {10, -39}})
        EXPECT_TRUE(Inked(on.x, on.y)) << on.x << ' ' << on.y;
    for (const Point off :
         {Point{-44, 9}, {44, 31}, {0, 0}, {0, 24}, {0, 16}, {5, -10}, {10, -44}, {-40, -30}})
        EXPECT_FALSE(Inked(off.x, off.y)) << off.x << ' ' << off.y;
}

TEST_F(PainterSurfaceTest, CirclesAreHollowDiscsAndSectorsFull) {
    surface_.Circle({}, 40.0, {kRed, 3.0});
    surface_.Disc({-10, 10}, 6.0, kRed);
    surface_.Sector({20.0, 30.0, 180.0, 270.0}, kRed);
    for (int degree = 0; degree < 360; degree += 15) {
        const double angle = degree * std::numbers::pi / 180;
        EXPECT_TRUE(Inked(40 * std::cos(angle), 40 * std::sin(angle))) << degree;
        EXPECT_FALSE(Inked(35 * std::cos(angle), 35 * std::sin(angle))) << degree;
        if (degree % 90 == 0) continue;
        EXPECT_EQ(Inked(25 * std::cos(angle), 25 * std::sin(angle)), degree > 180 && degree < 270) << degree;
    }
    EXPECT_TRUE(Inked(-10, 10) && Inked(-6, 12) && Inked(-14, 8));
    EXPECT_FALSE(Inked(-10, 18) || Inked(10, 10) || Inked(-10, -10));
}

// What keeps texts apart is an octagon around their ink: it holds the whole outline, and every side touches
// it.
TEST(TextOutlinesTest, TheOctagonIsTheTightestAroundTheInk) {
    TextOutlines outlines;
    for (const char* text : {"A", "/", "\\", "L", "12", "O"}) {
        const auto& [path, cell] = outlines.Of(text, false);
        constexpr double kFar = 1e9;
        TextBox want{cell.width, cell.height, kFar, kFar, -kFar, -kFar, kFar, -kFar, kFar, -kFar};
        const auto widen = [](double& least, double& most, double value) {
            least = std::min(least, value);
            most = std::max(most, value);
        };
        for (const QPolygonF& polygon : path.toSubpathPolygons()) {
            for (const QPointF& point : polygon) {
                widen(want.inkLeft, want.inkRight, point.x());
                widen(want.inkTop, want.inkBottom, point.y());
                widen(want.leastSum, want.mostSum, point.x() + point.y());
                widen(want.leastDifference, want.mostDifference, point.x() - point.y());
            }
        }
        for (const auto side :
             {&TextBox::inkLeft, &TextBox::inkTop, &TextBox::inkRight, &TextBox::inkBottom,
              &TextBox::leastSum, &TextBox::mostSum, &TextBox::leastDifference, &TextBox::mostDifference}) {
            EXPECT_NEAR(cell.*side, want.*side, 0.5) << text;
        }
    }
}

TEST(EvenRowsTest, ButtonsGoIntoAsManyEqualRowsAsTheWidthAsksFor) {
    QWidget window;
    EvenRows rows;
    for (int i = 0; i < 5; ++i) rows.addWidget(new QPushButton(QStringLiteral("Button"), &window));
    const QSize cell = rows.minimumSize();
    const int whole = rows.sizeHint().width();
    const struct {
        int width;
        int columns;
    } cases[] = {{whole, 5}, {2 * whole, 5}, {whole - 1, 3}, {whole / 2, 2}, {cell.width(), 1}, {1, 1}};
    for (const auto& test : cases) {
        rows.setGeometry({0, 0, test.width, 500});
        const auto place = [&](int i) { return rows.itemAt(i)->geometry(); };
        int inFirstRow = 0;
        for (int i = 0; i < 5; ++i) inFirstRow += place(i).top() == place(0).top() ? 1 : 0;
        EXPECT_EQ(inFirstRow, test.columns) << test.width;
        EXPECT_EQ(place(4).bottom() + 1, rows.heightForWidth(test.width)) << test.width;
    }
}

TEST(ListingFontTest, OnlyEvenWidthsAreFixed) {
    EXPECT_TRUE(IsReallyFixedPitch(QFont(QStringLiteral("Liberation Mono"))));
    EXPECT_FALSE(IsReallyFixedPitch(QFont(QStringLiteral("Liberation Sans"))));
    EXPECT_TRUE(IsReallyFixedPitch(ListingFont(10.0)));
    EXPECT_EQ(ListingFont(1.0).pointSizeF(), 4.0);
    EXPECT_EQ(ListingFont(99.0).pointSizeF(), 72.0);
}

TEST(EntryBoxTest, TheFirstClickMarksTheTextAndTheNextSetsTheCaret) {
    QWidget window;
    EntryBox other({}, 0, &window);
    EntryBox box({}, 8, &window);
    box.move(0, 50);
    box.Fill(QStringLiteral("1949"));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    other.setFocus();
    for (const bool marked : {true, false, false}) {
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
        EXPECT_EQ(box.selectedText(), marked ? QStringLiteral("1949") : QString());
        QTest::qWait(QApplication::doubleClickInterval() + 20);
    }
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(box.selectedText(), QStringLiteral("1949"));
}

}  // namespace
}  // namespace tolvanis
