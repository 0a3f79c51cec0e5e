#include "wheel/wheel_layout.h"

#include <algorithm>
#include <cmath>

#include "chart/angles.h"
#include "wheel/symbols.h"

namespace tolvanis {
namespace {

constexpr double kLineFlattening = 0.9675;
constexpr double kSignCell = 20.0;  // width of a sign's place in the ring
constexpr double kTickLength = 9.0;
constexpr double kSharedSector = 11.0;  // degrees between two signs in one American sector

}  // namespace

Extent InkOf(const WheelText& text, const TextMeasure& measure) {
    const TextBox box = measure.Measure(text.text, text.font);
    return {text.corner.x + box.inkLeft, text.corner.y - box.inkTop, text.corner.x + box.inkRight,
            text.corner.y - box.inkBottom};
}

bool Overlap(const Extent& a, const Extent& b, double gap) {
    return a.left < b.right + gap && b.left < a.right + gap && a.bottom < b.top + gap &&
           b.bottom < a.top + gap;
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

std::array<double, 12> HouseLineAngles(const HouseCusps& cusps, ChartType type) {
    std::array<double, 12> angles{};
    for (int house = 1; house <= 12; ++house) {
        angles[static_cast<std::size_t>(house - 1)] = type == ChartType::European
                                                          ? WheelAngle(cusps.OfHouse(house), cusps)
                                                          : Norm360(150.0 + 30.0 * house);
    }
    return angles;
}

LineSpan HouseLine(double angle) {
    const SinCos ray = SinCosDeg(angle);
    return {{kInnerRadius * ray.cos, kInnerRadius * kLineFlattening * ray.sin},
            {kOuterRadius * ray.cos, kOuterRadius * kLineFlattening * ray.sin}};
}

LineSpan HouseLineEnd(const LineSpan& line) {
    const double stretch = kOuterRadius / std::hypot(line.to.x, line.to.y);
    return {line.to, {line.to.x * stretch, line.to.y * stretch}};
}

std::vector<SignMark> SignRing(const HouseCusps& cusps, ChartType type) {
    std::vector<SignMark> ring;
    if (type == ChartType::European) {
        for (int sign = 1; sign <= 12; ++sign) ring.push_back({sign, WheelAngle(30.0 * sign - 15.0, cusps)});
        return ring;
    }
    std::array<bool, 12> drawn{};
    for (int house = 1; house <= 12; ++house) {
        const int first = SignOf(cusps.OfHouse(house)) - 1;
        const int next = SignOf(cusps.OfHouse(house % 12 + 1)) - 1;
        std::vector<int> signs;
        int sign = first;
        do {
            if (!drawn[static_cast<std::size_t>(sign)]) signs.push_back(sign + 1);
            drawn[static_cast<std::size_t>(sign)] = true;
            sign = (sign + 1) % 12;
        } while (first != next && sign != next);
        const double middle = (house + 5) % 12 * 30.0 + 15.0;
        const double spread = kSharedSector / std::max<double>(1.0, static_cast<double>(signs.size()) / 2.0);
        for (std::size_t i = 0; i < signs.size(); ++i) {
            const double place = static_cast<double>(i) - static_cast<double>(signs.size() - 1) / 2.0;
            ring.push_back({signs[i], Norm360(middle + place * spread)});
        }
    }
    return ring;
}

std::vector<LineSpan> SignTicks(const HouseCusps& cusps, ChartType type) {
    std::vector<LineSpan> ticks;
    for (int sign = 0; type == ChartType::European && sign < 12; ++sign) {
        const double angle = WheelAngle(30.0 * sign, cusps);
        ticks.push_back({OnWheel(angle, kOuterRadius), OnWheel(angle, kOuterRadius + kTickLength)});
    }
    return ticks;
}

std::vector<WheelText> SignRingTexts(const WheelPlan& plan, const TextMeasure& measure) {
    constexpr std::array kElementColours = {12, 2, 6, 9};  // fire, earth, air, water
    const TextFont font{SizeOf(plan.options, plan.form.signRingSize), true};
    std::vector<WheelText> texts;
    for (const SignMark& mark : SignRing(plan.chart.HouseCusps, plan.type)) {
        Point place = OnWheel(mark.angle, kSignRadius);
        // The cell begins at the radius; on the left half it ends there.
        const bool leftHalf = mark.angle >= 90.0 && mark.angle <= 270.0;
        place.x += leftHalf ? kSignCell / 2 - kSignCell : kSignCell / 2;
        const int colour = kElementColours[static_cast<std::size_t>(mark.sign - 1) % kElementColours.size()];
        texts.push_back(CentredText(measure, place, SignGlyph(mark.sign), font, colour));
    }
    return texts;
}

std::vector<WheelText> TitleTexts(const WheelPlan& plan, const TextMeasure& measure, double indent,
                                  double top) {
    const TextFont font{SizeOf(plan.options, plan.form.titleSize)};
    const double lineHeight = measure.Measure("0", font).height;
    std::vector<WheelText> texts;
    Point corner{plan.surface.left + indent, top};
    for (const std::string& line : plan.chart.TitleLines) {
        texts.push_back({corner, line, font, ColourOf(plan.options, plan.form.titleColour)});
        corner.y -= lineHeight;
    }
    return texts;
}

std::vector<AspectLine> AspectLines(const WheelPlan& plan, std::span<const PlacedGlyph> glyphs) {
    PerPoint<double> angles;
    for (const PlacedGlyph& glyph : glyphs) angles[glyph.point] = glyph.angle;
    std::vector<AspectLine> lines;
    for (int first = kSun; first < kMoon; ++first) {
        for (int second = first + 1; second <= kMoon; ++second) {
            const double separation =
                Separation(plan.chart.PointLongitude[first], plan.chart.PointLongitude[second]);
            const int code = MatchAspect(separation, kLineSearch, plan.options.table()).code;
            if (code == kNoAspect) continue;
            lines.push_back({first,
                             second,
                             code,
                             {OnWheel(angles[first], kInnerRadius), OnWheel(angles[second], kInnerRadius)}});
        }
    }
    return lines;
}

std::vector<WheelText> AspectGlyphs(const WheelPlan& plan, const TextMeasure& measure,
                                    std::span<const AspectLine> lines) {
    constexpr double kSlide = 2.0;  // units from one try to the next
    const TextFont font{SizeOf(plan.options, plan.form.aspectSize)};
    std::vector<WheelText> texts;
    std::vector<Extent> taken;
    for (const AspectLine& aspect : lines) {
        const Point from = aspect.line.from;
        const Point to = aspect.line.to;
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        const double reach = length / 2 - font.size;
        const auto at = [&](double offset) {
            const double t = length > 0.0 ? 0.5 + offset / length : 0.5;
            return CentredText(measure, {from.x + t * (to.x - from.x), from.y + t * (to.y - from.y)},
                               AspectGlyph(aspect.code), font, AspectColour(plan, aspect.code));
        };
        const auto isFree = [&](const WheelText& text) {
            const Extent ink = InkOf(text, measure);
            return std::ranges::none_of(taken, [&](const Extent& other) { return Overlap(ink, other, 2.0); });
        };
        WheelText text = at(0.0);
        for (double offset = kSlide; offset <= reach && !isFree(text); offset += kSlide) {
            text = at(offset);
            if (!isFree(text)) text = at(-offset);
        }
        if (!isFree(text)) text = at(0.0);
        taken.push_back(InkOf(text, measure));
        texts.push_back(std::move(text));
    }
    return texts;
}

int AspectColour(const WheelPlan& plan, int code) {
    switch (code) {
        case kSquare:
        case kOpposition:
            return ColourOf(plan.options, plan.form.hardColour);
        case kQuincunx:
            return ColourOf(plan.options, plan.form.quincunxColour);
        default:
            return plan.halfPage ? kBlack : ColourOf(plan.options, plan.form.softColour);
    }
}

}  // namespace tolvanis
