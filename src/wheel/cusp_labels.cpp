#include "wheel/cusp_labels.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "chart/angles.h"
#include "wheel/position_label.h"

namespace tolvanis {
namespace {

std::array<LabelPart, 5> CuspParts(const WheelPlan& plan, double longitude) {
    const LabelLook look{plan.form.cuspDegreesSize, kCuspDegreesColourOption,  plan.form.cuspSignSize,
                         kCuspSignColourOption,     plan.form.cuspMinutesSize, kCuspMinutesColourOption};
    return PositionLabel(plan.options, look, longitude);
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
constexpr double kMostAside = 130.0;

// Moves a row that would be cut off by the surface's edge back onto it.
Point BroughtInside(Point start, const LabelRow& row, const Extent& surface) {
    const double half = row.height / 2;
    start.x = std::max(surface.left + kLabelGap, std::min(start.x, surface.right - kLabelGap - row.width));
    start.y = std::max(surface.bottom + kLabelGap + half, std::min(start.y, surface.top - kLabelGap - half));
    return start;
}

double SeenAt(const Extent& box) {
    return DirectionDeg((box.left + box.right) / 2, (box.top + box.bottom) / 2);
}

// A label that stands already: the angle of its cusp and the angle under which it is seen from the centre.
struct StandingLabel {
    double cusp, seen;
};

// The way round from one angle to another, -180 to 180.
double Turn(double from, double to) {
    return Norm360(to - from + 180.0) - 180.0;
}

// Whether a label seen at `seen` would stand among the others as its cusp does among theirs.
bool KeepsOrder(double cusp, double seen, std::span<const StandingLabel> others) {
    return std::ranges::all_of(others, [&](const StandingLabel& other) {
        const double turn = Turn(other.cusp, cusp);
        return std::abs(turn) > 90.0 || turn * Turn(other.seen, seen) >= 0.0;
    });
}

// The start of a row at the ray, moved outwards and aside as little as keeps it clear of everything taken and
// in order.
Point FindRowPlace(const LabelRow& row, double angle, std::span<const Extent> taken,
                   std::span<const StandingLabel> others, const Extent& surface) {
    const double first = kOuterRadius + kCircleGap + 1.0;
    const SinCos ray = SinCosDeg(angle);
    const double shift = RowShift(angle);
    Point best = BroughtInside({first * ray.cos - shift, first * ray.sin}, row, surface);
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
            if (!KeepsOrder(angle, SeenAt(box), others)) continue;
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
    std::vector<StandingLabel> standing = {{180.0, 180.0}, {0.0, 0.0}};  // Ascendant and Descendant
    for (const int position : {1, 7, 3, 5, 9, 11, 2, 6, 8, 12}) {
        const double longitude = plan.chart.HouseCusps[position];
        const double angle = Norm360(longitude - plan.chart.HouseCusps.OfHouse(7));
        const LabelRow row = MeasureRow(plan, measure, longitude);
        const Point start = FindRowPlace(row, angle, busy, standing, plan.surface);
        AddRow(row, start, measure, texts);
        busy.push_back({start.x, start.y + row.height / 2, start.x + row.width, start.y - row.height / 2});
        standing.push_back({angle, SeenAt(busy.back())});
    }
    return texts;
}

}  // namespace

std::vector<WheelText> CuspLabels(const WheelPlan& plan, const TextMeasure& measure,
                                  std::span<const Extent> taken) {
    if (plan.type == ChartType::European) return EuropeanLabels(plan, measure, taken);
    std::vector<WheelText> texts;
    for (int position = 1; position <= 12; ++position) AddTableLabel(plan, position, texts);
    return texts;
}

}  // namespace tolvanis
