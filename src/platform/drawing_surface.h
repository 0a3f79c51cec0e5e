#pragma once
// What the wheel is drawn on: the screen, a printed page, a picture file, or a test's record.

#include <span>
#include <string_view>

#include "platform/colours.h"

namespace tolvanis {

// Wheel units: x to the right, y upwards, the wheel's centre at (0, 0).
struct Point {
    double x = 0.0;
    double y = 0.0;
    friend bool operator==(const Point&, const Point&) = default;
};

// What the edges of the surface show, in wheel units.
struct Extent {
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;
};

struct Stroke {
    int colour = 0;
    double width = 1.0;  // wheel units; never drawn thinner than the surface can show
};

// The symbol font at a size in wheel units.
struct TextFont {
    double size = 10.0;
    bool bold = false;
};

// The cell of a text, from its upper left corner, y downwards: advance width, line height, and where its ink
// lies; on the slant the ink lies between two values of x + y and of x - y.
struct TextBox {
    double width = 0.0;
    double height = 0.0;
    double inkLeft = 0.0;
    double inkTop = 0.0;
    double inkRight = 0.0;
    double inkBottom = 0.0;
    double leastSum = 0.0;
    double mostSum = 0.0;
    double leastDifference = 0.0;
    double mostDifference = 0.0;
};

struct LineSpan {
    Point from;
    Point to;
};

// A sector of a ring, anticlockwise from one wheel angle to the other, degrees.
struct RingSector {
    double innerRadius = 0.0;
    double outerRadius = 0.0;
    double from = 0.0;
    double to = 0.0;
};

// Measures texts in the symbol font; layout needs no more than this.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;
    virtual TextBox Measure(std::string_view text, TextFont font) const = 0;
};

class DrawingSurface : public TextMeasure {
  public:
    // Fits the extent to the whole surface; everything that follows is in its units.
    virtual void SetCoordinates(const Extent& extent) = 0;
    virtual void Clear(int colour) = 0;
    virtual void Line(Point from, Point to, Stroke stroke) = 0;
    // Many lines of one stroke.
    virtual void Lines(std::span<const LineSpan> lines, Stroke stroke) = 0;
    virtual void Circle(Point centre, double radius, Stroke stroke) = 0;
    virtual void Disc(Point centre, double radius, int colour) = 0;
    // Fills a sector of a ring about the origin.
    virtual void Sector(const RingSector& sector, int colour) = 0;
    // The upper left corner of the text's cell stands at the point.
    virtual void Text(Point corner, std::string_view text, TextFont font, int colour) = 0;
};

}  // namespace tolvanis
