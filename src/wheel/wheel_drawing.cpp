#include "wheel/wheel_drawing.h"

#include <algorithm>
#include <cmath>

#include "text/numbers.h"
#include "wheel/cusp_labels.h"
#include "wheel/planet_labels.h"

namespace tolvanis {
namespace {

constexpr double kWheelArea = 0.86;
constexpr double kWideHalfHeight = 225.0;
constexpr double kTallHalfWidth = 244.0;

// Line widths in wheel units.
constexpr double kCircleWidth = 1.3;
constexpr double kHouseLineWidth = 0.7;
constexpr double kAngleLineWidth = 1.5;  // Ascendant, Midheaven and the cusps opposite
constexpr double kAspectLineWidth = 0.8;

void DrawHouses(DrawingSurface& surface, const WheelPlan& plan) {
    const int colour = ColourOf(plan.options, kHouseLineColourOption);
    int house = 1;
    for (const double angle : HouseLineAngles(plan.chart.HouseCusps, plan.type)) {
        const Stroke stroke{colour, house % 3 == 1 ? kAngleLineWidth : kHouseLineWidth};
        const LineSpan line = HouseLine(angle);
        const LineSpan end = HouseLineEnd(line);
        surface.Line(line.from, line.to, stroke);
        surface.Line(end.from, end.to, stroke);
        ++house;
    }
    // The lines begin a little inside the inner circle; its disc covers that.
    const int background = plan.Background();
    const Stroke circle{ColourOf(plan.options, kCircleColourOption), kCircleWidth};
    for (const LineSpan& tick : SignTicks(plan.chart.HouseCusps, plan.type)) {
        surface.Line(tick.from, tick.to, {colour, kHouseLineWidth});
    }
    surface.Disc({}, kInnerRadius, background);
    surface.Circle({}, kOuterRadius, circle);
    surface.Circle({}, kInnerRadius, circle);
}

// Whether the line passes the rectangle closer than the gap.
bool Crosses(const LineSpan& line, const Extent& box, double gap) {
    const Point centre{(box.left + box.right) / 2, (box.top + box.bottom) / 2};
    const double x = line.to.x - line.from.x;
    const double y = line.to.y - line.from.y;
    const double length = std::hypot(x, y);
    const double along = ((centre.x - line.from.x) * x + (centre.y - line.from.y) * y) / length;
    const double across = std::abs((centre.x - line.from.x) * y - (centre.y - line.from.y) * x) / length;
    const double reach =
        ((box.right - box.left) * std::abs(y) + (box.top - box.bottom) * std::abs(x)) / length / 2;
    return across < reach + gap && along > -reach && along < length + reach;
}

// Discs of the background under the characters of labels that stand on a house line keep the text clear.
void DrawPlanets(DrawingSurface& surface, const WheelPlan& plan, const std::vector<WheelText>& texts) {
    constexpr double kClear = 0.8;
    for (const double angle : HouseLineAngles(plan.chart.HouseCusps, plan.type)) {
        const LineSpan line = HouseLine(angle);
        for (const WheelText& text : texts) {
            const Extent ink = InkOf(text, surface);
            if (!Crosses(line, ink, kClear)) continue;
            const double half = (ink.top - ink.bottom) / 2 + kClear;
            const double y = (ink.top + ink.bottom) / 2;
            const double slack = std::max((ink.right - ink.left) / 2 + kClear - half, 0.0);
            for (const double x : {-slack, 0.0, slack}) {
                surface.Disc({(ink.left + ink.right) / 2 + x, y}, half, plan.Background());
            }
        }
    }
    DrawTexts(surface, texts);
}

void DrawAspects(DrawingSurface& surface, const WheelPlan& plan, std::span<const PlacedGlyph> glyphs) {
    const std::vector<AspectLine> lines = AspectLines(plan, glyphs);
    for (const AspectLine& aspect : lines) {
        surface.Line(aspect.line.from, aspect.line.to, {AspectColour(plan, aspect.code), kAspectLineWidth});
    }
    // Each glyph stands in a gap of the background, so that no line runs through it.
    const int background = plan.Background();
    for (const WheelText& text : AspectGlyphs(plan, surface, lines)) {
        const Extent ink = InkOf(text, surface);
        const double radius = std::max(ink.right - ink.left, ink.top - ink.bottom) / 2 + 1.0;
        surface.Disc({(ink.left + ink.right) / 2, (ink.top + ink.bottom) / 2}, radius, background);
        surface.Text(text.corner, text.text, text.font, text.colour);
    }
}

}  // namespace

std::int16_t StartScale(double width, double height) {
    if (!(height > 0.0) || width < height) return static_cast<std::int16_t>(kTallHalfWidth);
    return RoundToInt16(kWideHalfHeight * width / height);
}

Extent WindowExtent(double width, double height) {
    const double halfWidth = StartScale(width, height) / kWheelArea;
    const double halfHeight = width > 0.0 ? halfWidth * height / width : halfWidth;
    return {-halfWidth, halfHeight, halfWidth, -halfHeight};
}

void DrawTexts(DrawingSurface& surface, std::span<const WheelText> texts) {
    for (const WheelText& text : texts) surface.Text(text.corner, text.text, text.font, text.colour);
}

void DrawWheelBody(DrawingSurface& surface, const WheelPlan& plan, std::span<const Extent> taken) {
    DrawHouses(surface, plan);
    DrawTexts(surface, CuspLabels(plan, surface, taken));
    DrawTexts(surface, SignRingTexts(plan, surface));
    const std::vector<PlacedGlyph> glyphs = PlaceGlyphs(plan.chart, plan.type);
    DrawPlanets(surface, plan, PlanetLabels(plan, surface, glyphs));
    if (plan.options[kAspectLinesOption] == 1.0F) DrawAspects(surface, plan, glyphs);
}

void DrawWheel(DrawingSurface& surface, const WheelRequest& request) {
    constexpr double kTitleIndent = 10.0;
    constexpr double kTitleTop = 6.0;
    const WheelPlan plan{request.chart,   request.data, request.options,
                         kScreenForm,     request.type, WindowExtent(request.width, request.height),
                         request.halfPage};
    surface.SetCoordinates(plan.surface);
    surface.Clear(plan.Background());
    const std::vector<WheelText> title =
        TitleTexts(plan, surface, kTitleIndent, plan.surface.top - kTitleTop);
    std::vector<Extent> taken;
    for (const WheelText& line : title) taken.push_back(InkOf(line, surface));
    DrawWheelBody(surface, plan, taken);
    DrawTexts(surface, title);
}

}  // namespace tolvanis
