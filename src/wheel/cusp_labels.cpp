#include "wheel/cusp_labels.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "chart/angles.h"
#include "wheel/position_label.h"

namespace tolvanis {
namespace {

std::array<LabelPart, 3> CuspParts(const WheelPlan& plan, double longitude) {
    const LabelLook look{plan.form.cuspDegreesSize, kCuspDegreesColourOption,  plan.form.cuspSignSize,
                         kCuspSignColourOption,     plan.form.cuspMinutesSize, kCuspMinutesColourOption};
    return PositionLabel(plan, look, longitude);
}

// The table has a place for each digit.
void AddTableLabel(const WheelPlan& plan, int position, std::vector<WheelText>& texts) {
    auto element = static_cast<std::size_t>(10 * position - 10);
    const auto add = [&](std::string text, const LabelPart& part) {
        const Point corner{static_cast<double>(plan.data.cuspLabels[element]),
                           static_cast<double>(plan.data.cuspLabels[element + 1])};
        texts.push_back({corner, std::move(text), part.font, part.colour});
        element += 2;
    };
    const auto [degrees, sign, minutes] = CuspParts(plan, plan.chart.HouseCusps[position]);
    add(degrees.text.substr(0, 1), degrees);
    add(degrees.text.substr(1), degrees);
    add(sign.text, sign);
    add(minutes.text.substr(0, 1), minutes);
    add(minutes.text.substr(1), minutes);
}

// A cusp's label as one row of text.
struct LabelRow {
    std::array<LabelPart, 3> parts;
    double width = 0.0;
    double height = 0.0;  // of the ink
};

constexpr double kRowGap = 1.5;  // between the parts

LabelRow MeasureRow(const WheelPlan& plan, const TextMeasure& measure, double longitude, double size) {
    LabelRow row{CuspParts(plan, longitude)};
    row.width = 2 * kRowGap;
    for (LabelPart& part : row.parts) {
        part.font.size *= size;
        const TextBox box = measure.Measure(part.text, part.font);
        row.width += box.width;
        row.height = std::max(row.height, box.inkBottom - box.inkTop);
    }
    return row;
}

void AddRow(const LabelRow& row, Point start, const TextMeasure& measure, std::vector<WheelText>& texts) {
    double x = start.x;
    for (const LabelPart& part : row.parts) {
        const double width = measure.Measure(part.text, part.font).width;
        texts.push_back(CentredText(measure, {x + width / 2, start.y}, part.text, part.font, part.colour));
        x += width + kRowGap;
    }
}

Box BoxOf(const LabelRow& row, Point start) {
    return {start.x, start.y + row.height / 2, start.x + row.width, start.y - row.height / 2};
}

// How far left of its point on the ray a label starts.
double RowShift(double angle) {
    if ((angle >= 80.0 && angle <= 100.0) || (angle >= 260.0 && angle <= 280.0)) return 23.0;
    return angle > 100.0 && angle < 260.0 ? 49.0 : 0.0;
}

Box Around(const LineSpan& line) {
    return {std::min(line.from.x, line.to.x), std::max(line.from.y, line.to.y),
            std::max(line.from.x, line.to.x), std::min(line.from.y, line.to.y)};
}

constexpr double kCircleGap = 3.0;  // between the outer circle and a label
constexpr double kLabelGap = 2.5;   // between a label and other texts
constexpr double kMostOutwards = 75.0;
constexpr double kMostAside = 150.0;

double SeenAt(const Box& box) {
    const auto [x, y] = box.Middle();
    return DirectionDeg(x, y);
}

// From the end of a house line to a label that does not stand at it, in short pieces that wind outwards and
// so never enter the circle. Empty when the label stands at the line.
std::vector<LineSpan> LeaderTo(double angle, const Box& box) {
    constexpr double kNear = 9.0;
    constexpr double kClear = 1.2;
    constexpr double kPiece = 3.0;  // degrees
    const Point end = OnWheel(angle, kOuterRadius + kCircleGap);
    const Point anchor{std::clamp(end.x, box.left - kClear, box.right + kClear),
                       std::clamp(end.y, box.bottom - kClear, box.top + kClear)};
    if (std::hypot(anchor.x - end.x, anchor.y - end.y) < kNear) return {};
    const double turn = SignedArc(angle, DirectionDeg(anchor.x, anchor.y));
    const double reach = std::max(std::hypot(anchor.x, anchor.y), kOuterRadius);
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(turn) / kPiece)));
    std::vector<LineSpan> leader;
    Point from = OnWheel(angle, kOuterRadius);
    for (int piece = 1; piece <= pieces; ++piece) {
        const double share = piece * 1.0 / pieces;
        const Point to = OnWheel(angle + share * turn, kOuterRadius + share * (reach - kOuterRadius));
        leader.push_back({from, to});
        from = to;
    }
    return leader;
}

// What stands already: rectangles, leaders, and under which angle each label is seen from the centre.
struct Standing {
    struct Label {
        double cusp, seen;
    };
    std::vector<Box> taken;
    std::vector<LineSpan> leaders;
    std::vector<Label> labels;

    bool IsFree(const Box& box, double gap) const {
        return std::ranges::none_of(taken, [&](const Box& other) { return Overlap(box, other, gap); });
    }
    // Whether a label seen at `seen` would stand among the others as its cusp does among theirs.
    bool KeepsOrder(double cusp, double seen) const {
        return std::ranges::all_of(labels, [&](const Label& other) {
            const double turn = SignedArc(other.cusp, cusp);
            return std::abs(turn) > 90.0 || turn * SignedArc(other.seen, seen) >= 0.0;
        });
    }
    // Whether neither the leader meets a text nor the box another's leader.
    bool IsClear(const std::vector<LineSpan>& leader, const Box& box) const {
        constexpr double kClear = 1.0;
        const auto meets = [&](const Box& other) {
            return std::ranges::any_of(leader,
                                       [&](const LineSpan& line) { return Crosses(line, other, kClear); });
        };
        return std::ranges::none_of(taken, meets) && std::ranges::none_of(leaders, [&](const LineSpan& line) {
                   return Crosses(line, box, kClear);
               });
    }
};

// What a label gives up when there is no place for it: the order among the others, the clear way of fine
// lines, its size.
struct Demand {
    double size;
    bool inOrder, clearLeaders;
};
constexpr std::array kDemands = {Demand{1.0, true, true},    Demand{1.0, false, true},
                                 Demand{0.82, true, true},   Demand{0.82, false, true},
                                 Demand{0.68, true, true},   Demand{0.68, false, true},
                                 Demand{0.82, false, false}, Demand{0.55, false, false}};

// The start of a row at the ray, moved outwards and aside as little as the demand takes.
std::optional<Point> FindRowPlace(const LabelRow& row, double angle, const Standing& standing,
                                  const Extent& surface, const Demand& demand) {
    const double first = kOuterRadius + kCircleGap + 1.0;
    const SinCos ray = SinCosDeg(angle);
    const double shift = RowShift(angle) * demand.size;
    constexpr double kStep = 2.0;
    const auto isPlace = [&](const Box& box) {
        if (!Inside(box, surface, kLabelGap) || NearestToCentre(box) < kOuterRadius + kCircleGap)
            return false;
        if (!standing.IsFree(box, kLabelGap)) return false;
        if (demand.inOrder && !standing.KeepsOrder(angle, SeenAt(box))) return false;
        return !demand.clearLeaders || standing.IsClear(LeaderTo(angle, box), box);
    };
    std::optional<Point> best;
    double bestCost = std::numeric_limits<double>::max();
    for (double outwards = 0.0; outwards <= kMostOutwards && outwards < bestCost; outwards += kStep) {
        const double radius = first + outwards;
        const Point beside{radius * ray.cos - shift, radius * ray.sin};
        for (double aside = 0.0; aside <= kMostAside; aside += kStep) {
            const double cost = outwards + 1.4 * aside;
            if (cost >= bestCost) break;
            for (const double way : {-aside, aside}) {
                const Point start{beside.x - way * ray.sin, beside.y + way * ray.cos};
                if (!isPlace(BoxOf(row, start))) continue;
                best = start;
                bestCost = cost;
                break;
            }
        }
    }
    return best;
}

// The nearest free place anywhere on the surface outside the circle.
Point AnyFreePlace(const LabelRow& row, double angle, const Standing& standing, const Extent& surface) {
    constexpr double kGrid = 4.0;
    const Point end = OnWheel(angle, kOuterRadius);
    Point best{surface.left + kLabelGap, surface.bottom + row.height};
    double bestDistance = std::numeric_limits<double>::max();
    for (double y = surface.bottom; y <= surface.top; y += kGrid) {
        for (double x = surface.left; x <= surface.right; x += kGrid) {
            const Box box = BoxOf(row, {x, y});
            const double distance = std::hypot(x - end.x, y - end.y);
            if (distance >= bestDistance || NearestToCentre(box) < kOuterRadius + kCircleGap) continue;
            if (!Inside(box, surface, 1.0) || !standing.IsFree(box, 0.5)) continue;
            best = {x, y};
            bestDistance = distance;
        }
    }
    return best;
}

// Places one label and takes its room.
void PlaceRow(const WheelPlan& plan, const TextMeasure& measure, int position, Standing& standing,
              CuspLabelRows& rows) {
    const double longitude = plan.chart.HouseCusps[position];
    const double angle = WheelAngle(longitude, plan.chart.HouseCusps);
    LabelRow row;
    std::optional<Point> start;
    for (const Demand& demand : kDemands) {
        row = MeasureRow(plan, measure, longitude, demand.size);
        start = FindRowPlace(row, angle, standing, plan.surface, demand);
        if (start) break;
    }
    if (!start) start = AnyFreePlace(row, angle, standing, plan.surface);
    AddRow(row, *start, measure, rows.texts);
    const Box box = BoxOf(row, *start);
    const std::vector<LineSpan> leader = LeaderTo(angle, box);
    rows.leaders.insert(rows.leaders.end(), leader.begin(), leader.end());
    standing.leaders = rows.leaders;
    standing.taken.push_back(box);
    standing.labels.push_back({angle, SeenAt(box)});
}

}  // namespace

std::vector<WheelText> TableCuspLabels(const WheelPlan& plan) {
    std::vector<WheelText> texts;
    for (int position = 1; position <= 12; ++position) {
        const bool isHorizon = position == 4 || position == 10;
        if (isHorizon || plan.type == ChartType::American) AddTableLabel(plan, position, texts);
    }
    return texts;
}

CuspLabelRows CuspLabels(const WheelPlan& plan, const TextMeasure& measure, std::span<const Box> taken) {
    CuspLabelRows rows;
    if (plan.type == ChartType::American) return rows;
    Standing standing{{taken.begin(), taken.end()}, {}, {{180.0, 180.0}, {0.0, 0.0}}};
    for (const LineSpan& tick : SignTicks(plan.chart.HouseCusps, plan.type)) {
        standing.taken.push_back(Around(tick));
    }
    for (const int position : {1, 7, 3, 5, 9, 11, 2, 6, 8, 12}) {
        PlaceRow(plan, measure, position, standing, rows);
    }
    return rows;
}

}  // namespace tolvanis
