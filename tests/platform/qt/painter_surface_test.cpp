// What a drawing on a painter shows, dot by dot, and how the boxes and fonts behave that windows are made of.
#include "platform/qt/painter_surface.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QImage>
#include <QTest>
#include <numbers>

#include "platform/qt/entry_box.h"
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
