#pragma once
// Texts of the wheel and the room that they take.

#include <span>
#include <string>
#include <vector>

#include "platform/drawing_surface.h"

namespace tolvanis {

struct WheelText {
    Point corner;  // upper left, as DrawingSurface::Text takes it
    std::string text;
    TextFont font;
    int colour = 0;
};

// A rectangle that something fills, in wheel units.
struct Box {
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;

    double Width() const { return right - left; }
    double Height() const { return top - bottom; }
    Point Middle() const { return {(left + right) / 2, (top + bottom) / 2}; }
};

// The rectangle that a text's ink fills.
Box InkOf(const WheelText& text, const TextMeasure& measure);
bool Overlap(const Box& a, const Box& b, double gap = 0.0);
bool Inside(const Box& box, const Extent& surface, double margin = 0.0);

// The same closer to the letters: the octagon that the ink fills.
struct InkShape {
    Box box;
    double leastSum, mostSum;                // of x + y
    double leastDifference, mostDifference;  // of x - y
};
InkShape ShapeOf(const WheelText& text, const TextMeasure& measure);
// Whether two octagons come closer than the gap.
bool Touch(const InkShape& a, const InkShape& b, double gap);

// Whether the line passes the rectangle closer than the gap.
bool Crosses(const LineSpan& line, const Box& box, double gap);

// A text whose cell is centred on the point from side to side, the middle of its capitals up and down.
WheelText CentredText(const TextMeasure& measure, Point centre, std::string text, TextFont font, int colour);

// The point at a wheel angle and radius.
Point OnWheel(double angle, double radius);

// The nearest that a rectangle comes to the wheel's centre.
double NearestToCentre(const Box& box);

// What remains of a line from the centre outwards where texts stand on it: each label, a group of texts,
// takes away the piece from its first text that the line meets to its last.
std::vector<LineSpan> Interrupted(const LineSpan& line, std::span<const std::vector<WheelText>> labels,
                                  const TextMeasure& measure);

void DrawTexts(DrawingSurface& surface, std::span<const WheelText> texts);

}  // namespace tolvanis
