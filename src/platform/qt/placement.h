#pragma once
// Windows' places on the screen, in twips of 1/1440 logical inch.

#include <QList>
#include <QRect>

class QWidget;

namespace tolvanis {

struct TwipsPlacement {
    double top = 0.0, left = 0.0, height = 0.0, width = 0.0;
};

// twipsPerPixel is positive. Values too large for a screen of any size are cut to 100,000 pixels.
QRect ToPixels(const TwipsPlacement& placement, double twipsPerPixel);
TwipsPlacement ToTwips(const QRect& pixels, double twipsPerPixel);

// The rectangle, moved and cut as little as needed so that a window there can be seen and dragged: no larger
// than the screen that shows most of it, its top edge on that screen, a hand's breadth of it in view.
QRect BroughtIntoView(QRect wanted, const QList<QRect>& screens);

// The usable areas of all screens, the primary one first.
QList<QRect> UsableScreens();

// Shows a window, from the task bar too, in front of the others and gives it the focus.
void BringForward(QWidget& window);

// Places a window: the position is that of its frame, the size that of its inside.
void PlaceWindow(QWidget& window, const QRect& place);

}  // namespace tolvanis
