#include "wheel/wheel_drawing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "text/numbers.h"
#include "wheel/wheel_blocks.h"
#include "wheel/zodiac_ring.h"

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
constexpr double kLeaderWidth = 0.5;

void DrawHouses(DrawingSurface& surface, const WheelPlan& plan, std::span<const PlanetLabel> labels) {
    const int colour = plan.LineColour(kHouseLineColourOption);
    std::vector<std::vector<WheelText>> texts;
    for (const PlanetLabel& label : labels) texts.push_back(label.texts);
    int house = 1;
    for (const double angle : HouseLineAngles(plan.chart.HouseCusps, plan.type)) {
        const Stroke stroke{colour, house % 3 == 1 ? kAngleLineWidth : kHouseLineWidth};
        const LineSpan line = HouseLine(angle);
        const LineSpan end = HouseLineEnd(line);
        for (const LineSpan& piece : Interrupted(line, texts, surface)) {
            surface.Line(piece.from, piece.to, stroke);
        }
        surface.Line(end.from, end.to, stroke);
        ++house;
    }
    // The lines begin a little inside the inner circle; its disc covers that.
    const Stroke circle{plan.LineColour(kCircleColourOption), kCircleWidth};
    surface.Lines(SignTicks(plan.chart.HouseCusps, plan.type), {colour, kHouseLineWidth});
    surface.Disc({}, kInnerRadius, plan.Background());
    surface.Circle({}, kOuterRadius, circle);
    surface.Circle({}, kInnerRadius, circle);
}

void DrawAspects(DrawingSurface& surface, const WheelPlan& plan, std::span<const PlacedGlyph> glyphs) {
    const std::vector<AspectLine> lines = AspectLines(plan, glyphs);
    for (const AspectLine& aspect : lines) {
        surface.Line(aspect.line.from, aspect.line.to, {AspectColour(plan, aspect.code), kAspectLineWidth});
    }
    // Each glyph stands in a gap of the background, so that no line runs through it.
    const int background = plan.Background();
    for (const WheelText& text : AspectGlyphs(plan, surface, lines)) {
        const Box ink = InkOf(text, surface);
        const double radius = std::max(ink.Width(), ink.Height()) / 2 + 1.0;
        surface.Disc(ink.Middle(), radius, background);
        surface.Text(text.corner, text.text, text.font, text.colour);
    }
}

// The blocks in the lower corners of a zodiac ring: the aspects at the left, elements and qualities at the
// right.
struct CornerBlocks {
    AspectGridBlock grid;
    TextBlock elements;
    Point elementsCorner;

    std::vector<Box> Taken() const {
        std::vector<Box> taken = grid.Rows();
        taken.push_back(elements.At(elementsCorner));
        return taken;
    }
    void Draw(DrawingSurface& surface, const WheelPlan& plan) const {
        grid.Draw(surface);
        elements.Draw(surface, elementsCorner, plan.OnGround(kDarkGrey, kLineContrast));
    }
};

// As large as the corners allow; none where they would be too small to read.
std::optional<CornerBlocks> FitCornerBlocks(const WheelPlan& plan, const TextMeasure& measure) {
    constexpr double kMargin = 6.0;
    constexpr double kClearRadius = 258.0;  // of the circle with most of its cusp labels
    constexpr double kLargestCell = 15.0;
    constexpr double kLeastPixels = 10.5;
    if (plan.type != ChartType::ZodiacRing) return std::nullopt;
    const Extent& all = plan.surface;
    // The steps of the grid's triangle lie on a line that keeps clear of the circle.
    const double room = all.right - all.bottom - 2 * kMargin - kClearRadius * std::numbers::sqrt2;
    const double cell = std::min(kLargestCell, room / (kChartPointCount + 1));
    if (cell * plan.pixelsPerUnit < kLeastPixels) return std::nullopt;
    const BlockSource source{.chart = plan.chart,
                             .options = plan.options,
                             .orbs = plan.orbs,
                             .ground = plan.Background(),
                             .turnsColours = plan.desktopGround.has_value()};
    const Point corner{all.left + kMargin, all.bottom + kMargin + kChartPointCount * cell};
    const AspectGridBlock grid(source, {.corner = corner,
                                        .cellWidth = cell,
                                        .cellHeight = cell,
                                        .glyphSize = 0.82 * cell,
                                        .aspectSize = 0.66 * cell});
    TextBlock elements = ElementTable(source, measure, 0.8 * cell);
    const Point place{all.right - kMargin - elements.width, all.bottom + kMargin + elements.height};
    return CornerBlocks{grid, std::move(elements), place};
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

WheelPlan PlanFor(const WheelRequest& request) {
    const Extent surface = WindowExtent(request.width, request.height);
    WheelPlan plan{.chart = request.chart,
                   .data = request.data,
                   .options = request.options,
                   .form = kScreenForm,
                   .type = request.type,
                   .surface = surface,
                   .use = request.use,
                   .pixelsPerUnit = request.width / (surface.right - surface.left),
                   .orbs = request.orbs};
    if (request.options[kFollowDesktopOption] == 1.0F) plan.desktopGround = request.desktopGround;
    return plan;
}

WheelParts LayOutWheel(const WheelPlan& plan, const TextMeasure& measure, TitlePlace title,
                       std::span<const Box> taken) {
    WheelParts parts;
    std::vector<Box> busy(taken.begin(), taken.end());
    const auto take = [&](const std::vector<WheelText>& texts) {
        for (const WheelText& text : texts) busy.push_back(InkOf(text, measure));
    };
    parts.tableLabels = TableCuspLabels(plan);
    take(parts.tableLabels);
    if (plan.type != ChartType::ZodiacRing) parts.signs = SignRingTexts(plan, measure, busy);
    take(parts.signs);
    parts.title = TitleTexts(plan, measure, title.indent, title.top, busy);
    take(parts.title);
    parts.cuspLabels = CuspLabels(plan, measure, busy);
    parts.glyphs = PlaceGlyphs(plan.chart, plan.type);
    parts.planets = PlanetLabels(plan, measure, parts.glyphs);
    return parts;
}

void DrawParts(DrawingSurface& surface, const WheelPlan& plan, const WheelParts& parts) {
    const bool isRing = plan.type == ChartType::ZodiacRing;
    if (isRing) {
        DrawZodiacRing(surface, plan, parts.planets);
    } else {
        DrawHouses(surface, plan, parts.planets);
    }
    const Stroke fine{plan.LineColour(kHouseLineColourOption), kLeaderWidth};
    surface.Lines(parts.cuspLabels.leaders, fine);
    DrawTexts(surface, parts.tableLabels);
    DrawTexts(surface, parts.cuspLabels.texts);
    DrawTexts(surface, parts.signs);
    for (const PlanetLabel& label : parts.planets) {
        if (label.leader) surface.Line(label.leader->from, label.leader->to, fine);
        DrawTexts(surface, label.texts);
    }
    if (!isRing && plan.options[kAspectLinesOption] == 1.0F) DrawAspects(surface, plan, parts.glyphs);
    DrawTexts(surface, parts.title);
}

std::vector<DrawnPoint> DrawWheel(DrawingSurface& surface, const WheelRequest& request) {
    constexpr double kTitleIndent = 10.0;
    constexpr double kTitleTop = 6.0;
    const WheelPlan plan = PlanFor(request);
    surface.SetCoordinates(plan.surface);
    surface.Clear(plan.Background());
    const std::optional<CornerBlocks> corners = FitCornerBlocks(plan, surface);
    const WheelParts parts = LayOutWheel(plan, surface, {kTitleIndent, plan.surface.top - kTitleTop},
                                         corners ? corners->Taken() : std::vector<Box>());
    DrawParts(surface, plan, parts);
    if (corners) corners->Draw(surface, plan);
    std::vector<DrawnPoint> points;
    for (const int point : PlacementOrder(request.chart)) {
        const auto label = std::ranges::find(parts.planets, point, &PlanetLabel::point);
        if (label != parts.planets.end()) points.push_back({point, InkOf(label->texts[0], surface)});
    }
    return points;
}

}  // namespace tolvanis
