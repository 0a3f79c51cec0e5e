#include "wheel/wheel_drawing.h"

#include <algorithm>
#include <cmath>

#include "text/numbers.h"

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
    const int background = &plan.form == &kPrinterForm ? kWhite : plan.Background();
    const Stroke circle{ColourOf(plan.options, kCircleColourOption), kCircleWidth};
    surface.Disc({}, kInnerRadius, background);
    surface.Circle({}, kOuterRadius, circle);
    surface.Circle({}, kInnerRadius, circle);
}

void DrawAspects(DrawingSurface& surface, const WheelPlan& plan, std::span<const PlacedGlyph> glyphs) {
    const std::vector<AspectLine> lines = AspectLines(plan, glyphs);
    for (const AspectLine& aspect : lines) {
        surface.Line(aspect.line.from, aspect.line.to, {AspectColour(plan, aspect.code), kAspectLineWidth});
    }
    // Each glyph stands in a gap of the background, so that no line runs through it.
    const int background = &plan.form == &kPrinterForm ? kWhite : plan.Background();
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
    for (const PlacedGlyph& glyph : glyphs) {
        if (glyph.drawn) DrawTexts(surface, PlanetLabel(plan, surface, glyph));
    }
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
