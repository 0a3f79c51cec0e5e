#include "wheel/wheel_layout.h"

#include <algorithm>
#include <cmath>

#include "chart/angles.h"
#include "text/columns.h"
#include "wheel/symbols.h"

namespace tolvanis {
namespace {

constexpr double kLineFlattening = 0.9675;
constexpr double kSignCell = 20.0;  // width of a sign's place in the ring
constexpr double kTickLength = 9.0;
constexpr const char* kEllipsis = "\xE2\x80\xA6";
constexpr double kSharedSector = 11.0;  // degrees between two signs in one American sector

}  // namespace

int ElementColour(int sign, int ground) {
    constexpr std::array kColours = {Rgb(0xD0261E), Rgb(0x1E7A1E), Rgb(0x8A6100), Rgb(0x1F4FD8)};
    return Legible(kColours[static_cast<std::size_t>(sign - 1) % kColours.size()], ground, kTextContrast);
}

int WheelPlan::Background() const {
    if (IsOnPaper()) return kWhite;
    return desktopGround ? *desktopGround : ColourOf(options, kBackgroundOption);
}

int WheelPlan::OnGround(int colour, double contrast) const {
    return IsOnPaper() || !desktopGround ? colour : ForGround(colour, *desktopGround, contrast);
}

bool WheelPlan::IsReduced() const {
    constexpr double kLeastMinutes = 8.0;  // pixels
    return pixelsPerUnit > 0.0 && SizeOf(options, form.minutesSize) * pixelsPerUnit < kLeastMinutes;
}

std::array<double, 12> HouseLineAngles(const HouseCusps& cusps, ChartType type) {
    std::array<double, 12> angles{};
    for (int house = 1; house <= 12; ++house) {
        angles[static_cast<std::size_t>(house - 1)] = type == ChartType::American
                                                          ? Norm360(150.0 + 30.0 * house)
                                                          : WheelAngle(cusps.OfHouse(house), cusps);
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
    if (type != ChartType::American) {
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

std::vector<WheelText> SignRingTexts(const WheelPlan& plan, const TextMeasure& measure,
                                     std::span<const Box> taken) {
    constexpr double kSlide = 0.5;  // degrees from one try to the next
    constexpr double kMostSlide = 14.0;
    const TextFont font{SizeOf(plan.options, plan.form.signRingSize), true};
    const auto at = [&](const SignMark& mark, double slide) {
        const double angle = Norm360(mark.angle + slide);
        Point place = OnWheel(angle, kSignRadius);
        // The cell begins at the radius; on the left half it ends there.
        const bool leftHalf = angle >= 90.0 && angle <= 270.0;
        place.x += leftHalf ? kSignCell / 2 - kSignCell : kSignCell / 2;
        return CentredText(measure, place, SignGlyph(mark.sign), font, plan.SignColour(mark.sign));
    };
    std::vector<Box> busy(taken.begin(), taken.end());
    const auto isFree = [&](const WheelText& text) {
        const Box ink = InkOf(text, measure);
        return Inside(ink, plan.surface) &&
               std::ranges::none_of(busy, [&](const Box& other) { return Overlap(ink, other, 1.0); });
    };
    std::vector<WheelText> texts;
    for (const SignMark& mark : SignRing(plan.chart.HouseCusps, plan.type)) {
        WheelText text = at(mark, 0.0);
        for (double slide = kSlide; slide <= kMostSlide && !isFree(text); slide += kSlide) {
            text = at(mark, slide);
            if (!isFree(text)) text = at(mark, -slide);
        }
        busy.push_back(InkOf(text, measure));
        texts.push_back(std::move(text));
    }
    return texts;
}

std::vector<WheelText> TitleTexts(const WheelPlan& plan, const TextMeasure& measure, double indent,
                                  double top, std::span<const Box> taken) {
    constexpr double kClear = 2.0;
    constexpr double kSmallest = 0.66;  // of the size in the options
    const double fullSize = SizeOf(plan.options, plan.form.titleSize);
    const auto build = [&](double size) {
        std::vector<WheelText> texts;
        Point corner{plan.surface.left + indent, top};
        for (const std::string& line : plan.chart.TitleLines) {
            texts.push_back({corner, line, {size}, plan.TextColour(plan.form.titleColour)});
            corner.y -= measure.Measure("0", {size}).height;
        }
        return texts;
    };
    const auto fits = [&](const WheelText& text) {
        const Box ink = InkOf(text, measure);
        return ink.right <= plan.surface.right - kClear &&
               std::ranges::none_of(taken, [&](const Box& other) { return Overlap(ink, other, kClear); });
    };
    std::vector<WheelText> texts = build(fullSize);
    for (double size = fullSize * 0.95; !std::ranges::all_of(texts, fits); size *= 0.95) {
        if (size < fullSize * kSmallest) break;
        texts = build(size);
    }
    for (WheelText& text : texts) {
        const std::string whole = text.text;
        for (std::size_t count = CharacterCount(whole); count > 1 && !fits(text); --count) {
            text.text = std::string(FirstCharacters(whole, count - 1)) + kEllipsis;
        }
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
            const AspectCode code = MatchAspect(separation, kLineSearch, plan.options.table()).code;
            if (code == kNoAspect) continue;
            lines.push_back({first,
                             second,
                             code,
                             {OnWheel(angles[first], kInnerRadius), OnWheel(angles[second], kInnerRadius)}});
        }
    }
    return lines;
}

std::optional<WheelText> GlyphOnLine(const LineGlyph& glyph, const TextMeasure& measure,
                                     std::span<const Box> taken) {
    constexpr double kSlide = 2.0;  // units from one try to the next
    const auto [from, to] = glyph.line;
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    const double reach = std::max(length / 2 - glyph.font.size, kSlide);
    const auto isFree = [&](const Box& ink) {
        return std::ranges::none_of(taken, [&](const Box& other) { return Overlap(ink, other, glyph.gap); });
    };
    for (double offset = 0.0; offset < reach; offset += kSlide) {
        for (const double side : {1.0, -1.0}) {
            const double t = length > 0.0 ? 0.5 + side * offset / length : 0.5;
            const Point place{from.x + t * (to.x - from.x), from.y + t * (to.y - from.y)};
            WheelText text = CentredText(measure, place, glyph.text, glyph.font, glyph.colour);
            if (isFree(InkOf(text, measure))) return text;
        }
    }
    return std::nullopt;
}

std::vector<WheelText> AspectGlyphs(const WheelPlan& plan, const TextMeasure& measure,
                                    std::span<const AspectLine> lines) {
    constexpr double kGap = 2.0;
    const double size = SizeOf(plan.options, plan.form.aspectSize);
    std::vector<WheelText> texts;
    std::vector<Box> taken;
    for (const AspectLine& aspect : lines) {
        for (const double share : {1.0, 0.85, 0.7}) {
            const LineGlyph glyph{aspect.line,
                                  AspectGlyph(aspect.code),
                                  {size * share},
                                  AspectColour(plan, aspect.code, kTextContrast),
                                  kGap};
            auto text = GlyphOnLine(glyph, measure, taken);
            if (!text) continue;
            taken.push_back(InkOf(*text, measure));
            texts.push_back(std::move(*text));
            break;
        }
    }
    return texts;
}

int AspectColour(const WheelPlan& plan, AspectCode code, double contrast) {
    const auto option = [&](int number) { return plan.OnGround(ColourOf(plan.options, number), contrast); };
    switch (code) {
        case kSquare:
        case kOpposition:
            return option(plan.form.hardColour);
        case kQuincunx:
            return option(plan.form.quincunxColour);
        default:
            return plan.use == WheelUse::HalfPage ? kBlack : option(plan.form.softColour);
    }
}

}  // namespace tolvanis
