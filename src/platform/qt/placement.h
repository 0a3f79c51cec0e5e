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

// The rectangle for a window that its user may have put partly beside the screen: its top edge on the screen
// that shows most of it, its bottom cut off there. A window of which less than a quarter would show comes
// wholly into view.
QRect BroughtIntoView(const QRect& wanted, const QList<QRect>& screens);

// The rectangle, moved onto the screen that shows most of it and cut where it is larger.
QRect WhollyInView(QRect wanted, const QList<QRect>& screens);

// The areas of all screens in which the insides of windows fit below their captions, the primary one first.
QList<QRect> UsableScreens();

// Gives a window the size it wants, or that of the primary screen where it is smaller.
void ResizeToFit(QWidget& window, const QSize& wanted);

// Moves a window to the middle of the primary screen, its caption in view.
void MoveToMiddle(QWidget& window);

// Shows a window, from the task bar too, in front of the others and gives it the focus.
void BringForward(QWidget& window);

// Places a window: the position is that of its frame, the size that of its inside.
void PlaceWindow(QWidget& window, const QRect& place);

}  // namespace tolvanis
