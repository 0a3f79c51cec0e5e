#include "platform/qt/placement.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <compare>
#include <tuple>
#include <vector>

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

constexpr int kGap = 8;  // pixels between neighbouring windows

QRect ScreenOf(const QRect& window, const QList<QRect>& screens) {
    return *std::max_element(screens.begin(), screens.end(), [&](const QRect& a, const QRect& b) {
        return VisibleArea(window, a) < VisibleArea(window, b);
    });
}

// A part of one axis of the screen, in pixels; both ends belong to it.
struct Stretch {
    int first = 0, last = 0;
    auto operator<=>(const Stretch&) const = default;
};

template <typename T>
void KeepEachOnce(std::vector<T>& values) {
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
}

Stretch Horizontally(const QRect& rect) {
    return {rect.left(), rect.right()};
}

Stretch Vertically(const QRect& rect) {
    return {rect.top(), rect.bottom()};
}

// What stands along one axis.
std::vector<Stretch> Along(Stretch (*axis)(const QRect&), const QList<QRect>& rects) {
    std::vector<Stretch> shown;
    for (const QRect& rect : rects) shown.push_back(axis(rect));
    return shown;
}

struct WantedStretch {
    int start = 0, length = 0, shortest = 0;
};

// Where a window can begin and end along one axis so that it starts where it is wanted, or at the edge of the
// screen or of something that is shown.
std::vector<Stretch> Stretches(const WantedStretch& wanted, const Stretch& screen,
                               const std::vector<Stretch>& shown) {
    std::vector<int> starts = {wanted.start, screen.first};
    std::vector<int> ends = {screen.last};
    for (const Stretch& other : shown) {
        starts.push_back(other.last + kGap);
        ends.push_back(other.first - kGap);
    }
    KeepEachOnce(starts);
    KeepEachOnce(ends);
    const int shortest = std::min(wanted.shortest, screen.last - screen.first + 1);
    std::vector<Stretch> found;
    const auto add = [&](int first, int last) {
        if (first >= screen.first && last <= screen.last && last - first + 1 >= shortest)
            found.push_back({first, last});
    };
    for (const int end : ends) {
        for (const int start : starts) add(start, std::min(end, start + wanted.length - 1));
        add(end - wanted.length + 1, end);
        add(end - shortest + 1, end);
    }
    KeepEachOnce(found);
    return found;
}

int CoveredArea(const QRect& place, const QList<QRect>& others) {
    int area = 0;
    for (const QRect& other : others) area += VisibleArea(place, other);
    return area;
}

// A window's frame and controls, also before the window system has told how large its borders are.
void AddShown(ShownWindows& shown, const QWidget& window) {
    const bool framed = window.frameGeometry().size() != window.size();
    const QPoint inside(0, framed ? 0 : CaptionHeight());
    shown.frames.append(framed ? window.frameGeometry()
                               : QRect(window.pos(), window.size() + QSize(0, CaptionHeight())));
    const auto add = [&](const QWidget* control) {
        const QRect rect(control->mapToGlobal(QPoint()) + inside, control->size());
        if (control->isVisible()) shown.controls.append(rect);
    };
    for (const auto* button : window.findChildren<QPushButton*>()) add(button);
    for (const auto* box : window.findChildren<QCheckBox*>()) add(box);
    for (const auto* menu : window.findChildren<QMenuBar*>()) add(menu);
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

bool IsSamePlace(const QRect& a, const QRect& b) {
    constexpr int kRounding = 3;
    const int differences[] = {a.left() - b.left(), a.top() - b.top(), a.width() - b.width(),
                               a.height() - b.height()};
    return std::ranges::all_of(differences, [](int pixels) { return std::abs(pixels) <= kRounding; });
}

QRect ClearPlace(const QRect& wanted, const QSize& smallest, const ShownWindows& others,
                 const QList<QRect>& screens) {
    const QRect start = WhollyInView(wanted, screens);
    if (screens.isEmpty() || CoveredArea(start, others.frames) == 0) return start;
    const QRect screen = ScreenOf(start, screens);
    const auto cost = [&](const QRect& place) {
        return std::tuple(CoveredArea(place, others.controls), CoveredArea(place, others.frames),
                          -place.width() * place.height(),
                          (place.topLeft() - wanted.topLeft()).manhattanLength());
    };
    // A window that shows next to nothing is of no use: it shrinks by half of what it can, and by all of it
    // only where it would cover a control otherwise.
    QRect best = start;
    const QList<QRect> shown = others.frames + others.controls;
    for (const QSize& least : {(smallest + wanted.size()) / 2, smallest}) {
        const auto horizontal = Stretches({wanted.left(), wanted.width(), least.width()},
                                          Horizontally(screen), Along(&Horizontally, shown));
        const auto vertical = Stretches({wanted.top(), wanted.height(), least.height()}, Vertically(screen),
                                        Along(&Vertically, shown));
        for (const Stretch& across : horizontal) {
            for (const Stretch& down : vertical) {
                const QRect place(QPoint(across.first, down.first), QPoint(across.last, down.last));
                if (cost(place) < cost(best)) best = place;
            }
        }
        if (CoveredArea(best, others.controls) == 0) break;
    }
    return best;
}

int CaptionHeight() {
    return QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
}

void PlaceBesideOthers(QWidget& window, const QRect& wanted) {
    ShownWindows others;
    for (const QWidget* other : QApplication::topLevelWidgets()) {
        if (other != &window && other->isVisible() && !other->isMinimized()) AddShown(others, *other);
    }
    QList<QRect> screens = UsableScreens();
    for (QRect& screen : screens) screen.setHeight(screen.height() + CaptionHeight());
    const QSize caption(0, CaptionHeight());
    const QSize smallest = window.minimumSizeHint();
    const QRect frame(wanted.topLeft(), wanted.size().expandedTo(smallest) + caption);
    const QRect place = ClearPlace(frame, smallest + caption, others, screens);
    PlaceWindow(window, QRect(place.topLeft(), place.size() - caption));
}

void KeptPlace::Apply(QWidget& window, const QRect& otherwise) {
    if (wish_) {
        PlaceWindow(window, BroughtIntoView(*wish_, UsableScreens()));
    } else {
        PlaceBesideOthers(window, otherwise);
    }
    given_ = QRect(window.pos(), window.size());
    window.installEventFilter(this);
}

bool KeptPlace::eventFilter(QObject* window, QEvent* event) {
    if (event->type() == QEvent::Hide) Note(static_cast<const QWidget&>(*window));
    return QObject::eventFilter(window, event);
}

void KeptPlace::Note(const QWidget& window) {
    if (window.isMinimized() || window.isMaximized() || window.isFullScreen()) return;
    const QRect place(window.pos(), window.size());
    if (!IsSamePlace(place, given_)) wish_ = place;
}

QList<QRect> UsableScreens() {
    QList<QRect> areas;
    for (const QScreen* screen : QGuiApplication::screens()) {
        areas.append(screen->availableGeometry().adjusted(0, 0, 0, -CaptionHeight()));
    }
    return areas;
}

QSize RoomBesideMenu() {
    const QList<QRect> screens = UsableScreens();
    if (screens.isEmpty()) return {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
    const QSize screen = screens.front().size();
    return {screen.width(), screen.height() * 3 / 4};  // menu and captions need less than a quarter
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
