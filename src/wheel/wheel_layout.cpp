#include "wheel/wheel_layout.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "astro/angles.h"
#include "output/zodiac_text.h"
#include "text/numbers.h"
#include "wheel/symbols.h"

namespace tolvanis {
namespace {

constexpr double kLineFlattening = 0.9675;
constexpr double kSignCell = 20.0;  // width of a sign's place in the ring
constexpr double kTickLength = 9.0;
constexpr double kSharedSector = 11.0;  // degrees between two signs in one American sector

// The five parts of a position: degrees, sign, minutes.
struct PositionParts {
    std::string degreesTens, degreesUnits, sign, minutesTens, minutesUnits;
};

PositionParts SplitPosition(double longitude) {
    const ZodiacPlace place = SplitZodiac(longitude);
    const std::string degrees = TwoDigits(place.degrees);
    const std::string minutes = TwoDigits(place.minutes);
    return {degrees.substr(0, 1), degrees.substr(1), SignGlyph(place.sign), minutes.substr(0, 1),
            minutes.substr(1)};
}

struct LabelPart {
    std::string text;
    TextFont font;
    int colour;
};

std::array<LabelPart, 5> CuspParts(const WheelPlan& plan, double longitude) {
    const PositionParts parts = SplitPosition(longitude);
    const Options& options = plan.options;
    const TextFont degrees{SizeOf(options, plan.form.cuspDegreesSize), true};
    const TextFont sign{SizeOf(options, plan.form.cuspSignSize)};
    const TextFont minutes{SizeOf(options, plan.form.cuspMinutesSize)};
    const int degreesColour = ColourOf(options, kCuspDegreesColourOption);
    const int minutesColour = ColourOf(options, kCuspMinutesColourOption);
    return {{{parts.degreesTens, degrees, degreesColour},
             {parts.degreesUnits, degrees, degreesColour},
             {parts.sign, sign, ColourOf(options, kCuspSignColourOption)},
             {parts.minutesTens, minutes, minutesColour},
             {parts.minutesUnits, minutes, minutesColour}}};
}

void AddTableLabel(const WheelPlan& plan, int position, std::vector<WheelText>& texts) {
    auto element = static_cast<std::size_t>(10 * position - 10);
    for (LabelPart& part : CuspParts(plan, plan.chart.HouseCusps[position])) {
        const Point corner{static_cast<double>(plan.data.cuspLabels[element]),
                           static_cast<double>(plan.data.cuspLabels[element + 1])};
        texts.push_back({corner, std::move(part.text), part.font, part.colour});
        element += 2;
    }
}

// A cusp's label as one row of text.
struct LabelRow {
    std::array<LabelPart, 5> parts;
    double width = 0.0;
    double height = 0.0;  // of the ink
};

constexpr double kRowGap = 1.5;  // in front of the sign and behind it

LabelRow MeasureRow(const WheelPlan& plan, const TextMeasure& measure, double longitude) {
    LabelRow row{CuspParts(plan, longitude)};
    row.width = 2 * kRowGap;
    for (const LabelPart& part : row.parts) {
        const TextBox box = measure.Measure(part.text, part.font);
        row.width += box.width;
        row.height = std::max(row.height, box.inkBottom - box.inkTop);
    }
    return row;
}

void AddRow(const LabelRow& row, Point start, const TextMeasure& measure, std::vector<WheelText>& texts) {
    double x = start.x;
    for (std::size_t i = 0; i < row.parts.size(); ++i) {
        if (i == 2 || i == 3) x += kRowGap;
        const LabelPart& part = row.parts[i];
        const double width = measure.Measure(part.text, part.font).width;
        texts.push_back(CentredText(measure, {x + width / 2, start.y}, part.text, part.font, part.colour));
        x += width;
    }
}

// How far left of its point on the ray a label starts.
double RowShift(double angle) {
    if ((angle >= 80.0 && angle <= 100.0) || (angle >= 260.0 && angle <= 280.0)) return 23.0;
    return angle > 100.0 && angle < 260.0 ? 49.0 : 0.0;
}

Extent Around(const LineSpan& line) {
    return {std::min(line.from.x, line.to.x), std::max(line.from.y, line.to.y),
            std::max(line.from.x, line.to.x), std::min(line.from.y, line.to.y)};
}

double DistanceFromCentre(const Extent& box) {
    const double x = box.left > 0.0 ? box.left : std::min(box.right, 0.0);
    const double y = box.bottom > 0.0 ? box.bottom : std::min(box.top, 0.0);
    return std::hypot(x, y);
}

bool Inside(const Extent& box, const Extent& surface, double margin) {
    return box.left >= surface.left + margin && box.right <= surface.right - margin &&
           box.top <= surface.top - margin && box.bottom >= surface.bottom + margin;
}

constexpr double kCircleGap = 3.0;  // between the outer circle and a label
constexpr double kLabelGap = 2.5;   // between a label and other texts
constexpr double kMostOutwards = 60.0;
constexpr double kMostAside = 72.0;

// The start of a row at the ray, moved outwards and aside as little as keeps it clear of everything taken.
Point FindRowPlace(const LabelRow& row, double angle, std::span<const Extent> taken, const Extent& surface) {
    const double first = kOuterRadius + kCircleGap + 1.0;
    const SinCos ray = SinCosDeg(angle);
    const double shift = RowShift(angle);
    Point best{first * ray.cos - shift, first * ray.sin};
    double bestCost = std::numeric_limits<double>::max();
    for (double outwards = 0.0; outwards <= kMostOutwards && outwards < bestCost; outwards += 1.5) {
        for (double aside = -kMostAside; aside <= kMostAside; aside += 1.5) {
            const double cost = outwards + 1.4 * std::abs(aside);
            if (cost >= bestCost) continue;
            const double radius = first + outwards;
            const Point start{radius * ray.cos - aside * ray.sin - shift, radius * ray.sin + aside * ray.cos};
            const Extent box{start.x, start.y + row.height / 2, start.x + row.width,
                             start.y - row.height / 2};
            if (DistanceFromCentre(box) < kOuterRadius + kCircleGap || !Inside(box, surface, kLabelGap))
                continue;
            const auto meets = [&](const Extent& other) { return Overlap(box, other, kLabelGap); };
            if (std::ranges::any_of(taken, meets)) continue;
            best = start;
            bestCost = cost;
        }
    }
    return best;
}

std::vector<WheelText> EuropeanLabels(const WheelPlan& plan, const TextMeasure& measure,
                                      std::span<const Extent> taken) {
    std::vector<WheelText> texts;
    for (const int position : {4, 10}) AddTableLabel(plan, position, texts);
    std::vector<Extent> busy(taken.begin(), taken.end());
    for (const WheelText& sign : SignRingTexts(plan, measure)) busy.push_back(InkOf(sign, measure));
    for (const WheelText& text : texts) busy.push_back(InkOf(text, measure));
    for (const LineSpan& tick : SignTicks(plan.chart.HouseCusps, plan.type)) busy.push_back(Around(tick));
    for (const int position : {1, 7, 3, 5, 9, 11, 2, 6, 8, 12}) {
        const double longitude = plan.chart.HouseCusps[position];
        const double angle = Norm360(longitude - plan.chart.HouseCusps.OfHouse(7));
        const LabelRow row = MeasureRow(plan, measure, longitude);
        const Point start = FindRowPlace(row, angle, busy, plan.surface);
        AddRow(row, start, measure, texts);
        busy.push_back({start.x, start.y + row.height / 2, start.x + row.width, start.y - row.height / 2});
    }
    return texts;
}

// The step sizes of a planet's label: each item stands in a cell of its kind.
struct Cell {
    double width = 0.0;
    double height = 0.0;
};
struct LabelSteps {
    Cell glyph;
    Cell digit;
};

LabelSteps MeasureSteps(const WheelPlan& plan, const TextMeasure& measure, double angle) {
    const WheelForm& form = plan.form;
    const Options& options = plan.options;
    const TextFont font{SizeOf(options, form.planetSize)};
    const TextBox glyph = measure.Measure(SymbolText(kStepGlyph), font);
    const TextBox digit = measure.Measure("0", font);
    LabelSteps steps{{glyph.width + double{options[form.glyphWidthAdd]},
                      glyph.height + double{options[form.glyphHeightAdd]}},
                     {digit.width + double{options[form.digitWidthAdd]},
                      digit.height + double{options[form.digitHeightAdd]}}};
    const bool cuts = &form == &kScreenForm || angle <= 75.0 || angle >= 310.0;
    if (cuts && options[form.minutesSize] >= options[form.largeMinutes]) {
        steps.digit.height -= double{options[form.heightCut]};
    }
    steps.glyph.height /= form.heightRatio;
    steps.digit.height /= form.heightRatio;
    return steps;
}

bool ReadsInwards(const WheelPlan& plan, const PlacedGlyph& glyph) {
    if (plan.type == ChartType::European) return glyph.angle >= 75.0 && glyph.angle < 255.0;
    const int house = glyph.house;
    if (plan.options[kLeftLabelsOption] == 1.0F) return house <= 2 || house >= 9;
    return house <= 3 || house >= 10;
}

// The items of a label behind the glyph, outermost first.
std::vector<LabelPart> LabelItems(const WheelPlan& plan, const PlacedGlyph& glyph) {
    const WheelForm& form = plan.form;
    const Options& options = plan.options;
    const PositionParts parts = SplitPosition(plan.chart.PointLongitude[glyph.point]);
    const TextFont degrees{SizeOf(options, form.degreesSize), true};
    const TextFont minutes{SizeOf(options, form.minutesSize)};
    const int degreesColour = ColourOf(options, form.degreesColour);
    const int minutesColour = ColourOf(options, form.minutesColour);
    std::vector<LabelPart> items = {
        {parts.degreesTens, degrees, degreesColour},
        {parts.degreesUnits, degrees, degreesColour},
        {parts.sign, {SizeOf(options, form.signSize)}, ColourOf(options, form.signColour)},
        {parts.minutesTens, minutes, minutesColour},
        {parts.minutesUnits, minutes, minutesColour},
    };
    if (!ReadsInwards(plan, glyph)) std::ranges::reverse(items);
    if (glyph.point <= kMoon && plan.chart.IsRetrograde[glyph.point]) {
        items.push_back(
            {"R", {SizeOf(options, form.retrogradeSize)}, ColourOf(options, form.retrogradeColour)});
    }
    return items;
}

// How the items of a label follow each other inwards.
enum class LabelStyle {
    Rows,    // numbers side by side, cells touching along the ray: reads best, needs room on steep rays
    Digits,  // digit by digit, for neighbours too close for rows
};

// Along the ray from the middle of one cell to that of a cell that touches it.
double TouchingStep(const Cell& a, const Cell& b, const SinCos& ray) {
    const double across = (a.width + b.width) / 2;
    const double down = (a.height + b.height) / 2;
    const double x = std::abs(ray.cos);
    const double y = std::abs(ray.sin);
    return across * y < down * x ? across / x : down / y;
}

// A cell that leaves a little room around a text's ink.
Cell InkCell(const TextMeasure& measure, std::string_view text, TextFont font) {
    constexpr double kRoomAcross = 3.2;
    constexpr double kRoomDown = 2.2;
    const TextBox box = measure.Measure(text, font);
    return {box.inkRight - box.inkLeft + kRoomAcross, box.inkBottom - box.inkTop + kRoomDown};
}

bool IsDigit(const LabelPart& part) {
    return part.text[0] >= '0' && part.text[0] <= '9';
}

bool IsGlyph(const LabelPart& part) {
    return static_cast<unsigned char>(part.text[0]) >= 0x80;
}

// Joins the two digits of each number, which follow each other in either order.
std::vector<LabelPart> JoinNumbers(std::vector<LabelPart> items, bool inwards) {
    std::vector<LabelPart> joined;
    for (std::size_t i = 0; i < items.size(); ++i) {
        joined.push_back(items[i]);
        if (!IsDigit(items[i])) continue;
        ++i;
        std::string& text = joined.back().text;
        text = inwards ? text + items[i].text : items[i].text + text;
    }
    return joined;
}

// Puts the tens of each number above its units, or left of them on flat rays, so that nobody reads 42 for 24.
void TurnNumbers(std::vector<LabelPart>& items, bool inwards, const Cell& digit, const SinCos& ray) {
    const bool steep = digit.height * std::abs(ray.sin) >= digit.width * std::abs(ray.cos);
    const bool tensOutside = steep ? ray.sin > 0.0 : ray.cos < 0.0;
    if (tensOutside == inwards) return;
    for (std::size_t i = 0; i + 1 < items.size(); ++i) {
        if (!IsDigit(items[i]) || !IsDigit(items[i + 1])) continue;
        std::swap(items[i], items[i + 1]);
        ++i;
    }
}

std::vector<WheelText> StyledLabel(const WheelPlan& plan, const TextMeasure& measure,
                                   const PlacedGlyph& glyph, LabelStyle style) {
    const LabelSteps steps = MeasureSteps(plan, measure, glyph.angle);
    const SinCos ray = SinCosDeg(glyph.angle);
    const auto degree = static_cast<std::size_t>(RoundToInt16(glyph.angle));
    // The table's radius is that of the glyph's corner; the glyph itself is centred on its ray.
    const double radius =
        plan.data.radius[degree] + steps.glyph.width / 2 * ray.cos - steps.glyph.height / 2 * ray.sin;
    Point place{radius * ray.cos, radius * ray.sin};
    std::vector<WheelText> texts = {CentredText(measure, place, PointGlyph(glyph.point),
                                                {SizeOf(plan.options, plan.form.planetSize)},
                                                ColourOf(plan.options, plan.form.planetColour))};
    std::vector<LabelPart> items = LabelItems(plan, glyph);
    const bool inwards = ReadsInwards(plan, glyph);
    if (style == LabelStyle::Rows) {
        items = JoinNumbers(std::move(items), inwards);
    } else {
        TurnNumbers(items, inwards, steps.digit, ray);
    }
    Cell last = style == LabelStyle::Rows ? InkCell(measure, texts[0].text, texts[0].font) : steps.glyph;
    for (LabelPart& item : items) {
        Cell cell = IsGlyph(item) ? steps.glyph : steps.digit;
        if (style == LabelStyle::Rows) {
            cell = InkCell(measure, item.text, item.font);
            const double step = TouchingStep(last, cell, ray);
            place = {place.x - step * ray.cos, place.y - step * ray.sin};
        } else {
            place.x -= (last.width + cell.width) / 2 * ray.cos;
            place.y -= (last.height + cell.height) / 2 * ray.sin;
        }
        texts.push_back(CentredText(measure, place, std::move(item.text), item.font, item.colour));
        last = cell;
    }
    return texts;
}

// The last slot of the twelfth house lies only 3 degrees from the first of the first house. Glyphs in both
// are drawn a little apart, and with them their neighbours, so that they do not touch.
std::vector<PlacedGlyph> Apart(std::span<const PlacedGlyph> placed) {
    constexpr double kLeast = 4.0;  // degrees
    constexpr int kRounds = 40;
    std::vector<PlacedGlyph> glyphs(placed.begin(), placed.end());
    std::vector<PlacedGlyph*> around;
    for (PlacedGlyph& glyph : glyphs) {
        if (glyph.drawn) around.push_back(&glyph);
    }
    std::ranges::sort(around, {}, [](const PlacedGlyph* glyph) { return glyph->angle; });
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 1; i < around.size(); ++i) {
            const double lack = kLeast - (around[i]->angle - around[i - 1]->angle);
            if (lack < 1e-3) continue;
            around[i - 1]->angle -= lack / 2;
            around[i]->angle += lack / 2;
        }
    }
    for (PlacedGlyph* glyph : around) glyph->angle = Norm360(glyph->angle);
    return glyphs;
}

bool Meet(const std::vector<Extent>& a, const std::vector<Extent>& b) {
    constexpr double kBetweenLabels = 0.3;
    return std::ranges::any_of(a, [&](const Extent& one) {
        return std::ranges::any_of(b, [&](const Extent& two) { return Overlap(one, two, kBetweenLabels); });
    });
}

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

std::vector<WheelText> CuspLabels(const WheelPlan& plan, const TextMeasure& measure,
                                  std::span<const Extent> taken) {
    if (plan.type == ChartType::European) return EuropeanLabels(plan, measure, taken);
    std::vector<WheelText> texts;
    for (int position = 1; position <= 12; ++position) AddTableLabel(plan, position, texts);
    return texts;
}

std::vector<WheelText> PlanetLabels(const WheelPlan& plan, const TextMeasure& measure,
                                    std::span<const PlacedGlyph> placed) {
    const std::vector<PlacedGlyph> glyphs = Apart(placed);
    std::vector<std::vector<WheelText>> labels;
    std::vector<std::vector<Extent>> inks;
    std::vector<LabelStyle> styles(glyphs.size(), LabelStyle::Rows);
    const auto inksOf = [&](const std::vector<WheelText>& label) {
        std::vector<Extent> ink;
        for (const WheelText& text : label) ink.push_back(InkOf(text, measure));
        return ink;
    };
    for (const PlacedGlyph& glyph : glyphs) {
        labels.push_back(glyph.drawn ? StyledLabel(plan, measure, glyph, LabelStyle::Rows)
                                     : std::vector<WheelText>());
        inks.push_back(inksOf(labels.back()));
    }
    for (std::size_t i = 0; i < glyphs.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (Meet(inks[i], inks[j])) styles[i] = styles[j] = LabelStyle::Digits;
        }
    }
    std::vector<WheelText> texts;
    for (std::size_t i = 0; i < glyphs.size(); ++i) {
        if (styles[i] == LabelStyle::Digits)
            labels[i] = StyledLabel(plan, measure, glyphs[i], LabelStyle::Digits);
        texts.insert(texts.end(), labels[i].begin(), labels[i].end());
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
        const auto [from, to] = aspect.line;
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
