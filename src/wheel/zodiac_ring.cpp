#include "wheel/zodiac_ring.h"

#include <algorithm>
#include <cmath>

#include "chart/angles.h"
#include "wheel/symbols.h"

namespace tolvanis {
namespace {

constexpr double kCircleWidth = 1.0;
constexpr double kFineWidth = 0.5;
constexpr double kHouseLineWidth = 0.7;
constexpr double kAxisWidth = 1.8;
constexpr double kBandTint = 0.17;

double TrueAngle(const WheelPlan& plan, int point) {
    return WheelAngle(plan.chart.PointLongitude[point], plan.chart.HouseCusps);
}

void DrawSigns(DrawingSurface& surface, const WheelPlan& plan) {
    const TextFont font{SizeOf(plan.options, plan.form.signRingSize) + 2.0, true};
    const int line = plan.LineColour(kCircleColourOption);
    std::vector<LineSpan> borders;
    for (int sign = 1; sign <= 12; ++sign) {
        const double from = WheelAngle(30.0 * (sign - 1), plan.chart.HouseCusps);
        const int tint = Mixed(plan.SignColour(sign), plan.Background(), kBandTint);
        surface.Sector({kRingBandRadius, kOuterRadius, from, from + 30.0}, tint);
        borders.push_back({OnWheel(from, kRingScaleRadius), OnWheel(from, kOuterRadius)});
        const WheelText glyph =
            CentredText(surface, OnWheel(from + 15.0, (kRingBandRadius + kOuterRadius) / 2), SignGlyph(sign),
                        font, ElementColour(sign, tint));
        surface.Text(glyph.corner, glyph.text, glyph.font, glyph.colour);
    }
    surface.Lines(borders, {line, kCircleWidth});
}

// A tick for each degree, longer at 5 and at 10.
void DrawDegrees(DrawingSurface& surface, const WheelPlan& plan) {
    std::vector<LineSpan> ticks;
    for (int degree = 0; degree < 360; ++degree) {
        if (degree % 30 == 0) continue;
        const double length = degree % 10 == 0 ? 7.0 : degree % 5 == 0 ? 5.0 : 2.8;
        const double angle = WheelAngle(degree, plan.chart.HouseCusps);
        ticks.push_back({OnWheel(angle, kRingBandRadius), OnWheel(angle, kRingBandRadius - length)});
    }
    surface.Lines(ticks, {plan.LineColour(kCircleColourOption), kFineWidth});
}

void DrawHouseLines(DrawingSurface& surface, const WheelPlan& plan, std::span<const PlanetLabel> labels) {
    std::vector<std::vector<WheelText>> texts;
    for (const PlanetLabel& label : labels) texts.push_back(label.texts);
    std::vector<LineSpan> cusps;
    std::vector<LineSpan> axes;
    int house = 1;
    for (const double angle : HouseLineAngles(plan.chart.HouseCusps, plan.type)) {
        std::vector<LineSpan>& lines = house % 3 == 1 ? axes : cusps;
        const LineSpan line{OnWheel(angle, kRingAspectRadius), OnWheel(angle, kRingScaleRadius)};
        const std::vector<LineSpan> pieces = Interrupted(line, texts, surface);
        lines.insert(lines.end(), pieces.begin(), pieces.end());
        if (house % 3 == 1) {
            lines.push_back({OnWheel(angle, kRingScaleRadius), OnWheel(angle, kRingBandRadius)});
        }
        ++house;
    }
    surface.Lines(cusps, {plan.LineColour(kHouseLineColourOption), kHouseLineWidth});
    surface.Lines(axes, {plan.LineColour(kCircleColourOption), kAxisWidth});
}

void DrawHouseNumbers(DrawingSurface& surface, const WheelPlan& plan) {
    constexpr double kNarrow = 4.0;  // degrees; a house has no room for its number below
    const TextFont font{SizeOf(plan.options, plan.form.minutesSize) * 0.85};
    const std::array<double, 12> angles = HouseLineAngles(plan.chart.HouseCusps, plan.type);
    for (std::size_t house = 0; house < angles.size(); ++house) {
        const double width = Norm360(angles[(house + 1) % angles.size()] - angles[house]);
        const Point middle = OnWheel(angles[house] + width / 2, (kRingInnerRadius + kRingAspectRadius) / 2);
        const WheelText number = CentredText(surface, middle, std::to_string(house + 1), font,
                                             Legible(kDarkGrey, plan.Background(), kTextContrast));
        const double needed = RadToDeg(surface.Measure(number.text, font).width / kRingAspectRadius);
        if (width < std::max(kNarrow, 1.3 * needed)) continue;
        surface.Text(number.corner, number.text, number.font, number.colour);
    }
}

void DrawPointMarks(DrawingSurface& surface, const WheelPlan& plan, std::span<const PlanetLabel> labels) {
    constexpr double kBend = 3.0;
    std::vector<LineSpan> marks;
    std::vector<LineSpan> leaders;
    for (const PlanetLabel& label : labels) {
        const double angle = TrueAngle(plan, label.point);
        const InkShape glyph = ShapeOf(label.texts[0], surface);
        const Point centre = glyph.box.Middle();
        const double half = std::hypot(glyph.box.Width(), glyph.box.Height()) / 2;
        const Point bend = OnWheel(angle, kRingScaleRadius - kBend);
        const double way = std::hypot(bend.x - centre.x, bend.y - centre.y);
        const double share = std::max(0.0, 1.0 - (half * 0.82 + 0.8) / std::max(way, 1e-9));
        marks.push_back({OnWheel(angle, kRingBandRadius), bend});
        leaders.push_back(
            {bend, {bend.x + share * (centre.x - bend.x), bend.y + share * (centre.y - bend.y)}});
        marks.push_back({OnWheel(angle, kRingAspectRadius), OnWheel(angle, kRingAspectRadius + 3.5)});
    }
    const int colour = plan.LineColour(plan.form.planetColour);
    surface.Lines(marks, {colour, 1.4});
    surface.Lines(leaders, {plan.OnGround(kDarkGrey, kLineContrast), kFineWidth});
}

int RingAspectColour(const WheelPlan& plan, AspectCode code, double contrast) {
    const auto colour = [&](int number) { return plan.OnGround(number, contrast); };
    switch (code) {
        case kConjunction:
            return colour(kBlack);
        case kSextile:
        case kSquare:
        case kTrine:
        case kOpposition:
        case kQuincunx:
            return AspectColour(plan, code, contrast);
        case kSemiSextile:
            return AspectColour(plan, kQuincunx, contrast);
        case kSemiSquare:
        case kSesquisquare:
            return AspectColour(plan, kSquare, contrast);
        default:
            return colour(kMagenta);  // the families of five, seven and nine
    }
}

bool IsMajor(AspectCode code) {
    return code >= kConjunction && code <= kOpposition;
}

// The lines of an aspect: a chord, or for a conjunction a short arc inside the circle.
std::vector<LineSpan> AspectSpans(const WheelPlan& plan, const ListedAspect& aspect) {
    constexpr double kArcRadius = kRingAspectRadius - 3.5;
    const double from = TrueAngle(plan, aspect.first);
    const double to = TrueAngle(plan, aspect.second);
    if (aspect.code != kConjunction) {
        return {{OnWheel(from, kRingAspectRadius), OnWheel(to, kRingAspectRadius)}};
    }
    constexpr int kPieces = 6;
    const double turn = SignedArc(from, to);
    std::vector<LineSpan> arc = {{OnWheel(from, kRingAspectRadius), OnWheel(from, kArcRadius)}};
    for (int piece = 0; piece < kPieces; ++piece) {
        arc.push_back({OnWheel(from + turn * piece / kPieces, kArcRadius),
                       OnWheel(from + turn * (piece + 1) / kPieces, kArcRadius)});
    }
    arc.push_back({OnWheel(to, kArcRadius), OnWheel(to, kRingAspectRadius)});
    return arc;
}

void DrawRingAspects(DrawingSurface& surface, const WheelPlan& plan) {
    constexpr double kWidest = 1.9;
    constexpr double kFinest = 0.45;
    constexpr double kBetweenGlyphs = 5.0;
    const double size = SizeOf(plan.options, plan.form.aspectSize) * 0.85;
    const std::vector<ListedAspect> aspects = RingAspects(plan);
    std::vector<Box> taken;
    std::vector<WheelText> glyphs;
    for (const ListedAspect& aspect : aspects) {
        const double widest = IsMajor(aspect.code) ? kWidest : kWidest * 0.6;
        const double width = kFinest + (widest - kFinest) * aspect.exactness * aspect.exactness;
        surface.Lines(AspectSpans(plan, aspect), {RingAspectColour(plan, aspect.code, kLineContrast), width});
    }
    for (auto aspect = aspects.rbegin(); aspect != aspects.rend(); ++aspect) {
        if (aspect->code == kConjunction) continue;
        const LineGlyph glyph{AspectSpans(plan, *aspect)[0],
                              AspectGlyph(aspect->code),
                              {size},
                              RingAspectColour(plan, aspect->code, kTextContrast),
                              kBetweenGlyphs};
        const auto text = GlyphOnLine(glyph, surface, taken);
        if (!text) continue;
        taken.push_back(InkOf(*text, surface));
        glyphs.push_back(*text);
    }
    for (std::size_t i = 0; i < glyphs.size(); ++i) {
        const Box& ink = taken[i];
        const double radius = std::max(ink.Width(), ink.Height()) / 2 + 0.8;
        surface.Disc(ink.Middle(), radius, plan.Background());
    }
    DrawTexts(surface, glyphs);
}

}  // namespace

std::vector<ListedAspect> RingAspects(const WheelPlan& plan) {
    std::vector<ListedAspect> aspects = ListAspects(plan.chart, plan.orbs);
    std::erase_if(aspects, [](const ListedAspect& aspect) { return aspect.first > aspect.second; });
    std::ranges::stable_sort(aspects, {}, &ListedAspect::exactness);
    return aspects;
}

void DrawZodiacRing(DrawingSurface& surface, const WheelPlan& plan, std::span<const PlanetLabel> labels) {
    DrawSigns(surface, plan);
    DrawDegrees(surface, plan);
    if (plan.options[kAspectLinesOption] == 1.0F) DrawRingAspects(surface, plan);
    DrawHouseLines(surface, plan, labels);
    const int colour = plan.LineColour(kCircleColourOption);
    for (const double radius : {kOuterRadius, kRingBandRadius}) {
        surface.Circle({}, radius, {colour, kCircleWidth});
    }
    for (const double radius : {kRingInnerRadius, kRingAspectRadius}) {
        surface.Circle({}, radius, {plan.LineColour(kHouseLineColourOption), kFineWidth});
    }
    DrawHouseNumbers(surface, plan);
    DrawPointMarks(surface, plan, labels);
}

}  // namespace tolvanis
