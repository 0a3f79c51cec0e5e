#pragma once
// Windows' places on the screen, in twips of 1/1440 logical inch.

#include <QList>
#include <QObject>
#include <QRect>
#include <optional>

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

// Whether a window still is where the program has put it: window systems round places and sizes on screens of
// fractional scale by a few pixels, which is no wish of the user's.
bool IsSamePlace(const QRect& a, const QRect& b);

// What a new window had better not cover.
struct ShownWindows {
    QList<QRect> frames;
    QList<QRect> controls;  // their push buttons, check boxes and menu bars
};

// The rectangle for a new window where it covers as little as can be of others' controls, then of their
// windows. Where several do, it keeps its size as far as can be and comes as near as can be to where it is
// wanted. It shrinks by half of what it can, and down to `smallest` only to keep off a control; it stays on
// one screen.
QRect ClearPlace(const QRect& wanted, const QSize& smallest, const ShownWindows& others,
                 const QList<QRect>& screens);

// Places a window that is not shown yet so, beside the program's others. The position is that of its frame,
// the size that of its inside.
void PlaceBesideOthers(QWidget& window, const QRect& wanted);

// The place that the user has given a window, kept from one window to the next of its kind. It is noted when
// the window is hidden or closed; one that is deleted while it shows leaves none.
class KeptPlace : public QObject {
  public:
    // Places the window where the user wants it, or else beside the others.
    void Apply(QWidget& window, const QRect& otherwise);

    bool eventFilter(QObject* window, QEvent* event) override;

  private:
    void Note(const QWidget& window);

    QRect given_;  // by the program
    std::optional<QRect> wish_;
};

// The height of a window's caption in pixels, as far as it can be known before a window is shown.
int CaptionHeight();

// The areas of all screens in which the insides of windows fit below their captions, the primary one first.
QList<QRect> UsableScreens();

// The largest size with which a window leaves the main menu in view on the primary screen.
QSize RoomBesideMenu();

// Gives a window the size it wants, or that of the primary screen where it is smaller.
void ResizeToFit(QWidget& window, const QSize& wanted);

// Moves a window to the middle of the primary screen, its caption in view.
void MoveToMiddle(QWidget& window);

// Shows a window, from the task bar too, in front of the others and gives it the focus.
void BringForward(QWidget& window);

// Places a window: the position is that of its frame, the size that of its inside.
void PlaceWindow(QWidget& window, const QRect& place);

}  // namespace tolvanis
