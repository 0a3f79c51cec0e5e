#include "platform/qt/placement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace tolvanis {
namespace {

constexpr double kMostPixels = 100000.0;
constexpr int kVisibleWidth = 120;
constexpr int kVisibleHeight = 40;

int Pixels(double twips, double twipsPerPixel) {
    const double pixels = twips / twipsPerPixel;
    return std::isnan(pixels) ? 0
                              : static_cast<int>(std::lround(std::clamp(pixels, -kMostPixels, kMostPixels)));
}

int VisibleArea(const QRect& window, const QRect& screen) {
    const QRect shown = window.intersected(screen);
    return shown.isEmpty() ? 0 : shown.width() * shown.height();
}

}  // namespace

QRect ToPixels(const TwipsPlacement& placement, double twipsPerPixel) {
    return {Pixels(placement.left, twipsPerPixel), Pixels(placement.top, twipsPerPixel),
            Pixels(placement.width, twipsPerPixel), Pixels(placement.height, twipsPerPixel)};
}

TwipsPlacement ToTwips(const QRect& pixels, double twipsPerPixel) {
    return {pixels.top() * twipsPerPixel, pixels.left() * twipsPerPixel, pixels.height() * twipsPerPixel,
            pixels.width() * twipsPerPixel};
}

QRect BroughtIntoView(QRect wanted, const QList<QRect>& screens) {
    if (screens.isEmpty()) return wanted;
    const QRect screen = *std::max_element(
        screens.begin(), screens.end(),
        [&](const QRect& a, const QRect& b) { return VisibleArea(wanted, a) < VisibleArea(wanted, b); });
    wanted.setWidth(std::clamp(wanted.width(), 1, screen.width()));
    wanted.setHeight(std::clamp(wanted.height(), 1, screen.height()));
    const int shownWidth = std::min(kVisibleWidth, wanted.width());
    const int left = std::clamp(wanted.left(), screen.left() + shownWidth - wanted.width(),
                                screen.left() + screen.width() - shownWidth);
    const int top = std::clamp(wanted.top(), screen.top(), screen.top() + screen.height() - kVisibleHeight);
    wanted.moveTopLeft({left, top});
    return wanted;
}

QList<QRect> UsableScreens() {
    QList<QRect> areas;
    for (const QScreen* screen : QGuiApplication::screens()) areas.append(screen->availableGeometry());
    return areas;
}

void BringForward(QWidget& window) {
    if (window.isMinimized()) window.showNormal();
    window.show();
    window.raise();
    window.activateWindow();
}

void PlaceWindow(QWidget& window, const QRect& place) {
    window.resize(place.size());
    window.move(place.topLeft());
}

}  // namespace tolvanis
