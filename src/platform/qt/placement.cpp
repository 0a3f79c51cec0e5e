#include "platform/qt/placement.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace tolvanis {
namespace {

constexpr double kMostPixels = 100000.0;

int Pixels(double twips, double twipsPerPixel) {
    const double pixels = twips / twipsPerPixel;
    return std::isnan(pixels) ? 0
                              : static_cast<int>(std::lround(std::clamp(pixels, -kMostPixels, kMostPixels)));
}

int VisibleArea(const QRect& window, const QRect& screen) {
    const QRect shown = window.intersected(screen);
    return shown.isEmpty() ? 0 : shown.width() * shown.height();
}

QRect ScreenOf(const QRect& window, const QList<QRect>& screens) {
    return *std::max_element(screens.begin(), screens.end(), [&](const QRect& a, const QRect& b) {
        return VisibleArea(window, a) < VisibleArea(window, b);
    });
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

QRect BroughtIntoView(const QRect& wanted, const QList<QRect>& screens) {
    if (screens.isEmpty()) return wanted;
    const QRect screen = ScreenOf(wanted, screens);
    const QRect inside = WhollyInView(wanted, screens);
    if (VisibleArea(wanted, screen) < inside.width() * inside.height() / 4) return inside;
    const int top = std::max(wanted.top(), screen.top());
    const int height = std::min(wanted.height(), screen.bottom() + 1 - top);
    return {QPoint(wanted.width() > screen.width() ? inside.left() : wanted.left(), top),
            QSize(inside.width(), height)};
}

QRect WhollyInView(QRect wanted, const QList<QRect>& screens) {
    if (screens.isEmpty()) return wanted;
    const QRect screen = ScreenOf(wanted, screens);
    wanted.setWidth(std::clamp(wanted.width(), 1, screen.width()));
    wanted.setHeight(std::clamp(wanted.height(), 1, screen.height()));
    const int left =
        std::clamp(wanted.left(), screen.left(), screen.left() + screen.width() - wanted.width());
    const int top = std::clamp(wanted.top(), screen.top(), screen.top() + screen.height() - wanted.height());
    wanted.moveTopLeft({left, top});
    return wanted;
}

QList<QRect> UsableScreens() {
    const int caption = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
    QList<QRect> areas;
    for (const QScreen* screen : QGuiApplication::screens()) {
        areas.append(screen->availableGeometry().adjusted(0, 0, 0, -caption));
    }
    return areas;
}

void ResizeToFit(QWidget& window, const QSize& wanted) {
    const QList<QRect> screens = UsableScreens();
    window.resize(screens.isEmpty() ? wanted : wanted.boundedTo(screens.front().size()));
}

void MoveToMiddle(QWidget& window) {
    const QList<QRect> screens = UsableScreens();
    if (screens.isEmpty()) return;
    QRect place(QPoint(), window.size());
    place.moveCenter(screens.front().center());
    window.move(WhollyInView(place, screens).topLeft());
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
