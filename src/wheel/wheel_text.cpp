#include "wheel/wheel_text.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "chart/angles.h"

namespace tolvanis {
namespace {

struct Piece {
    double from, to;  // along a line
};

// The piece of the line that the rectangle, with some room around it, hides.
Piece Hidden(const LineSpan& line, const Box& box) {
    constexpr double kRoom = 1.4;
    const double x = line.to.x - line.from.x;
    const double y = line.to.y - line.from.y;
    const double length = std::hypot(x, y);
    const auto [middleX, middleY] = box.Middle();
    const double middle = ((middleX - line.from.x) * x + (middleY - line.from.y) * y) / length;
    const double reach = (box.Width() * std::abs(x) + box.Height() * std::abs(y)) / length / 2 + kRoom;
    return {middle - reach, middle + reach};
}

}  // namespace

Box InkOf(const WheelText& text, const TextMeasure& measure) {
    const TextBox box = measure.Measure(text.text, text.font);
    return {text.corner.x + box.inkLeft, text.corner.y - box.inkTop, text.corner.x + box.inkRight,
            text.corner.y - box.inkBottom};
}

bool Overlap(const Box& a, const Box& b, double gap) {
    return a.left < b.right + gap && b.left < a.right + gap && a.bottom < b.top + gap &&
           b.bottom < a.top + gap;
}

bool Inside(const Box& box, const Extent& surface, double margin) {
    return box.left >= surface.left + margin && box.right <= surface.right - margin &&
           box.top <= surface.top - margin && box.bottom >= surface.bottom + margin;
}

InkShape ShapeOf(const WheelText& text, const TextMeasure& measure) {
    const TextBox box = measure.Measure(text.text, text.font);
    const auto [x, y] = text.corner;
    // The cell's y runs downwards, the wheel's upwards: a cell's difference is a wheel's sum.
    return {{x + box.inkLeft, y - box.inkTop, x + box.inkRight, y - box.inkBottom},
            x + y + box.leastDifference,
            x + y + box.mostDifference,
            x - y + box.leastSum,
            x - y + box.mostSum};
}

bool Touch(const InkShape& a, const InkShape& b, double gap) {
    const double slant = gap * std::numbers::sqrt2;
    return Overlap(a.box, b.box, gap) && a.leastSum < b.mostSum + slant && b.leastSum < a.mostSum + slant &&
           a.leastDifference < b.mostDifference + slant && b.leastDifference < a.mostDifference + slant;
}

bool Crosses(const LineSpan& line, const Box& box, double gap) {
    const Point centre = box.Middle();
    const double x = line.to.x - line.from.x;
    const double y = line.to.y - line.from.y;
    const double length = std::hypot(x, y);
    if (length == 0.0) return false;
    const double along = ((centre.x - line.from.x) * x + (centre.y - line.from.y) * y) / length;
    const double across = std::abs((centre.x - line.from.x) * y - (centre.y - line.from.y) * x) / length;
    const double halfWidth = box.Width() / 2;
    const double halfHeight = box.Height() / 2;
    const double reachAcross = (halfWidth * std::abs(y) + halfHeight * std::abs(x)) / length;
    const double reachAlong = (halfWidth * std::abs(x) + halfHeight * std::abs(y)) / length;
    return across < reachAcross + gap && along > -reachAlong - gap && along < length + reachAlong + gap;
}

WheelText CentredText(const TextMeasure& measure, Point centre, std::string text, TextFont font, int colour) {
    const TextBox capitals = measure.Measure("0", font);
    const Point corner{centre.x - measure.Measure(text, font).width / 2,
                       centre.y + (capitals.inkTop + capitals.inkBottom) / 2};
    return {corner, std::move(text), font, colour};
}

Point OnWheel(double angle, double radius) {
    const SinCos ray = SinCosDeg(angle);
    return {radius * ray.cos, radius * ray.sin};
}

double NearestToCentre(const Box& box) {
    const double x = box.left > 0.0 ? box.left : std::min(box.right, 0.0);
    const double y = box.bottom > 0.0 ? box.bottom : std::min(box.top, 0.0);
    return std::hypot(x, y);
}

std::vector<LineSpan> Interrupted(const LineSpan& line, std::span<const std::vector<WheelText>> labels,
                                  const TextMeasure& measure) {
    constexpr double kClear = 0.8;
    constexpr double kShortest = 1.5;  // what is left between two labels is drawn from this length on
    std::vector<Piece> hidden;
    for (const std::vector<WheelText>& label : labels) {
        bool meets = false;
        for (const WheelText& text : label) {
            const Box ink = InkOf(text, measure);
            if (!Crosses(line, ink, kClear)) continue;
            const Piece piece = Hidden(line, ink);
            if (!meets) hidden.push_back(piece);
            hidden.back() = {std::min(hidden.back().from, piece.from), std::max(hidden.back().to, piece.to)};
            meets = true;
        }
    }
    if (hidden.empty()) return {line};
    std::ranges::sort(hidden, {}, &Piece::from);
    const double length = std::hypot(line.to.x - line.from.x, line.to.y - line.from.y);
    const auto at = [&](double along) {
        return Point{line.from.x + (line.to.x - line.from.x) * along / length,
                     line.from.y + (line.to.y - line.from.y) * along / length};
    };
    std::vector<LineSpan> pieces;
    double reached = 0.0;
    hidden.push_back({length, length});
    for (const Piece& piece : hidden) {
        const double end = std::min(piece.from, length);
        if (end - reached >= kShortest) pieces.push_back({at(reached), at(end)});
        reached = std::max(reached, piece.to);
    }
    return pieces;
}

void DrawTexts(DrawingSurface& surface, std::span<const WheelText> texts) {
    for (const WheelText& text : texts) surface.Text(text.corner, text.text, text.font, text.colour);
}

}  // namespace tolvanis
