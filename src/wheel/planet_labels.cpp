#include "wheel/planet_labels.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "chart/angles.h"
#include "text/numbers.h"
#include "wheel/position_label.h"
#include "wheel/symbols.h"

namespace tolvanis {
namespace {

// The room of an item: along x and y.
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
    const bool cuts = !form.onPaper || angle <= 75.0 || angle >= 310.0;
    if (cuts && options[form.minutesSize] >= options[form.largeMinutes]) {
        steps.digit.height -= double{options[form.heightCut]};
    }
    steps.glyph.height /= form.heightRatio;
    steps.digit.height /= form.heightRatio;
    return steps;
}

// Of the glyph's centre; the table gives that of its upper left corner.
double GlyphRadius(const WheelPlan& plan, const Cell& glyph, double angle) {
    if (plan.type == ChartType::ZodiacRing) return kRingGlyphRadius;
    const SinCos ray = SinCosDeg(angle);
    const auto degree = static_cast<std::size_t>(RoundToInt16(angle));
    return plan.data.radius[degree] + glyph.width / 2 * ray.cos - glyph.height / 2 * ray.sin;
}

bool ReadsInwards(const WheelPlan& plan, const PlacedGlyph& glyph) {
    if (plan.type != ChartType::American) return glyph.angle >= 75.0 && glyph.angle < 255.0;
    const int house = glyph.house;
    if (plan.options[kLeftLabelsOption] == 1.0F) return house <= 2 || house >= 9;
    return house <= 3 || house >= 10;
}

// How a label gives way to its neighbours, step by step.
struct Fit {
    double size;   // of its letters, to the full size
    bool isWide;   // with the distances of the options, not only with what the letters need
    double inset;  // how far every other label stands further inwards, in heights of its number
};
constexpr std::array kFits = {
    Fit{1.0, true, 0.0},   Fit{1.0, false, 0.0},  Fit{0.93, false, 0.0}, Fit{0.93, false, 1.0},
    Fit{0.86, false, 0.0}, Fit{0.86, false, 1.0}, Fit{0.8, false, 0.0},  Fit{0.8, false, 1.0},
    Fit{0.74, false, 0.0}, Fit{0.74, false, 1.0}, Fit{0.68, false, 0.0}, Fit{0.68, false, 1.0},
    Fit{0.62, false, 0.0}, Fit{0.62, false, 1.0}, Fit{0.56, false, 0.0}, Fit{0.5, false, 0.0}};
constexpr std::array kGlyphSizes = {1.0, 0.93, 0.87, 0.82, 0.77, 0.72, 0.66, 0.6};

// Letters of a label are at least that large, in wheel units: what can be read in a window 700 pixels high.
constexpr double kSmallestLetters = 6.2;
// Without minutes there is room for larger letters.
constexpr double kReducedGrowth = 1.25;

double Shrunk(double size, double factor) {
    return std::max(size * factor, std::min(size, kSmallestLetters));
}

// The items of a label behind the glyph, outermost first, in their own sizes.
std::vector<LabelPart> LabelItems(const WheelPlan& plan, const PlacedGlyph& glyph) {
    const WheelForm& form = plan.form;
    const LabelLook look{form.degreesSize, form.degreesColour, form.signSize,
                         form.signColour,  form.minutesSize,   form.minutesColour};
    auto [degrees, sign, minutes] = PositionLabel(plan, look, plan.chart.PointLongitude[glyph.point]);
    std::vector<LabelPart> items;
    if (plan.type == ChartType::ZodiacRing) {
        sign.colour = plan.SignColour(SignOf(plan.chart.PointLongitude[glyph.point]));
    }
    if (plan.IsReduced()) {
        degrees.font.size *= kReducedGrowth;
        sign.font.size *= kReducedGrowth;
        items = {std::move(degrees), std::move(sign)};
    } else {
        items = {std::move(degrees), std::move(sign), std::move(minutes)};
    }
    if (!ReadsInwards(plan, glyph)) std::ranges::reverse(items);
    if (plan.chart.IsRetrograde[glyph.point]) {
        items.push_back(
            {"R", {SizeOf(plan.options, form.retrogradeSize)}, plan.TextColour(form.retrogradeColour)});
    }
    return items;
}

bool IsDigit(const LabelPart& part) {
    return part.text[0] >= '0' && part.text[0] <= '9';
}

bool IsGlyph(const LabelPart& part) {
    return static_cast<unsigned char>(part.text[0]) >= 0x80;
}

// Along the ray from the middle of one cell to that of a cell that touches it.
double TouchingStep(const Cell& a, const Cell& b, const SinCos& ray) {
    const double across = (a.width + b.width) / 2;
    const double down = (a.height + b.height) / 2;
    const double x = std::abs(ray.cos);
    const double y = std::abs(ray.sin);
    return across * y < down * x ? across / x : down / y;
}

// A text's ink with the least room around it.
Cell InkCell(const TextMeasure& measure, const std::string& text, TextFont font) {
    constexpr double kRoomAcross = 2.0;
    constexpr double kRoomDown = 1.8;
    const TextBox box = measure.Measure(text, font);
    return {box.inkRight - box.inkLeft + kRoomAcross, box.inkBottom - box.inkTop + kRoomDown};
}

// The room that the options give an item; the mark of a retrograde planet is one letter.
Cell OptionCell(const LabelSteps& steps, const LabelPart& item) {
    if (IsGlyph(item)) return steps.glyph;
    return {IsDigit(item) ? 2.0 * steps.digit.width : steps.digit.width, steps.digit.height};
}

// A label as it is fitted among the others.
struct Fitted {
    PlacedGlyph glyph;
    bool isEven = false;  // of those that follow each other around the wheel
    std::size_t fit = 0;
    std::size_t glyphSize = 0;
    PlanetLabel label;
    std::vector<InkShape> shapes;
};

// How far a label has come along its ray: the middle of its last text, the room of its ink, and the room that
// the options give it.
struct Reached {
    double radius;
    Cell ink, wide;
};

Reached AddGlyph(const WheelPlan& plan, const TextMeasure& measure, const Cell& wide, Fitted& fitted) {
    const double angle = fitted.glyph.angle;
    const double radius = GlyphRadius(plan, wide, angle);
    const TextFont font{SizeOf(plan.options, plan.form.planetSize) * kGlyphSizes[fitted.glyphSize]};
    const std::string text = PointGlyph(fitted.glyph.point);
    fitted.label.texts.push_back(
        CentredText(measure, OnWheel(angle, radius), text, font, plan.TextColour(plan.form.planetColour)));
    return {radius, InkCell(measure, text, font), wide};
}

void AddItems(const WheelPlan& plan, const TextMeasure& measure, const LabelSteps& steps, Reached last,
              Fitted& fitted) {
    const Fit& fit = kFits[fitted.fit];
    const double angle = fitted.glyph.angle;
    const SinCos ray = SinCosDeg(angle);
    double inset = fitted.isEven ? fit.inset : 0.0;  // of the first item only
    for (LabelPart& item : LabelItems(plan, fitted.glyph)) {
        item.font.size = Shrunk(item.font.size, fit.size);
        const Cell ink = InkCell(measure, item.text, item.font);
        const Cell wide = OptionCell(steps, item);
        double step = TouchingStep(last.ink, ink, ray);
        if (fit.isWide) step = std::max(step, TouchingStep(last.wide, wide, ray));
        const double radius = last.radius - (step + inset * ink.height);
        if (inset > 0.0) {
            fitted.label.leader = {OnWheel(angle, last.radius - TouchingStep(last.ink, {}, ray)),
                                   OnWheel(angle, radius + TouchingStep(ink, {}, ray))};
        }
        fitted.label.texts.push_back(CentredText(measure, {radius * ray.cos, radius * ray.sin},
                                                 std::move(item.text), item.font, item.colour));
        last = {radius, ink, wide};
        inset = 0.0;
    }
}

void Build(const WheelPlan& plan, const TextMeasure& measure, Fitted& fitted) {
    const LabelSteps steps = MeasureSteps(plan, measure, fitted.glyph.angle);
    fitted.label = {.point = fitted.glyph.point, .texts = {}};
    const Reached glyph = AddGlyph(plan, measure, steps.glyph, fitted);
    AddItems(plan, measure, steps, glyph, fitted);
    fitted.shapes.clear();
    for (const WheelText& text : fitted.label.texts) fitted.shapes.push_back(ShapeOf(text, measure));
}

enum class Meeting { None, Glyphs, Labels };

constexpr double kBetweenLabels = 0.9;

bool LeaderMeets(const PlanetLabel& label, const std::vector<InkShape>& shapes) {
    return label.leader && std::ranges::any_of(shapes, [&](const InkShape& shape) {
               return Crosses(*label.leader, shape.box, kBetweenLabels);
           });
}

// What of two labels meets; glyphs that meet can only become smaller themselves.
Meeting MeetingOf(const Fitted& a, const Fitted& b) {
    if (Touch(a.shapes[0], b.shapes[0], kBetweenLabels)) return Meeting::Glyphs;
    for (const InkShape& one : a.shapes) {
        for (const InkShape& two : b.shapes) {
            if (Touch(one, two, kBetweenLabels)) return Meeting::Labels;
        }
    }
    return LeaderMeets(a.label, b.shapes) || LeaderMeets(b.label, a.shapes) ? Meeting::Labels : Meeting::None;
}

// The labels in the order around the wheel, and how they give way to each other.
class LabelCrowd {
  public:
    LabelCrowd(const WheelPlan& plan, const TextMeasure& measure, std::span<const PlacedGlyph> glyphs)
        : plan_(plan), measure_(measure) {
        for (const PlacedGlyph& glyph : glyphs) {
            if (glyph.drawn) labels_.emplace_back().glyph = glyph;
        }
        std::ranges::sort(labels_, {}, [](const Fitted& label) { return label.glyph.angle; });
        for (std::size_t i = 0; i < labels_.size(); ++i) {
            labels_[i].isEven = i % 2 == 0;
            Build(plan_, measure_, labels_[i]);
        }
    }

    // Lets labels that meet give way until none does; all of a crowd keep one size.
    void Settle() {
        while (GiveWay()) {
        }
    }

    std::vector<PlanetLabel> Take() {
        std::vector<PlanetLabel> labels;
        for (Fitted& label : labels_) labels.push_back(std::move(label.label));
        return labels;
    }

  private:
    bool LeavesRing(const Fitted& label) const {
        constexpr double kClear = 1.5;
        const double inner = plan_.type == ChartType::ZodiacRing ? kRingInnerRadius : kInnerRadius;
        return std::ranges::any_of(
            label.shapes, [&](const InkShape& shape) { return NearestToCentre(shape.box) < inner + kClear; });
    }

    // One round: finds the crowds of labels that meet and lets each take its next step. False when nothing
    // meets, or nothing can give way any more.
    bool GiveWay() {
        const std::size_t count = labels_.size();
        std::vector<std::size_t> crowd(count);
        std::iota(crowd.begin(), crowd.end(), std::size_t{0});
        std::vector<bool> labelsMeet(count);
        std::vector<bool> glyphsMeet(count);
        for (std::size_t i = 0; i < count; ++i) {
            if (LeavesRing(labels_[i])) labelsMeet[i] = true;
            for (std::size_t j = 0; j < i; ++j) {
                const Meeting meeting = MeetingOf(labels_[i], labels_[j]);
                if (meeting == Meeting::None) continue;
                (meeting == Meeting::Glyphs ? glyphsMeet : labelsMeet)[i] = true;
                const std::size_t joined = crowd[j];
                std::ranges::replace(crowd, joined, crowd[i]);
            }
        }
        bool changed = false;
        for (std::size_t first = 0; first < count; ++first) {
            std::vector<std::size_t> members;
            for (std::size_t i = 0; i < count; ++i) {
                if (crowd[i] == first) members.push_back(i);
            }
            changed = Step(members, labelsMeet, &Fitted::fit, kFits.size()) || changed;
            changed = Step(members, glyphsMeet, &Fitted::glyphSize, kGlyphSizes.size()) || changed;
        }
        return changed;
    }

    bool Step(std::span<const std::size_t> members, const std::vector<bool>& meets,
              std::size_t Fitted::*stage, std::size_t stages) {
        if (std::ranges::none_of(members, [&](std::size_t i) { return meets[i]; })) return false;
        std::size_t next = 0;
        for (const std::size_t i : members) next = std::max(next, labels_[i].*stage + 1);
        next = std::min(next, stages - 1);
        bool changed = false;
        for (const std::size_t i : members) {
            if (labels_[i].*stage == next) continue;
            labels_[i].*stage = next;
            Build(plan_, measure_, labels_[i]);
            changed = true;
        }
        return changed;
    }

    const WheelPlan& plan_;
    const TextMeasure& measure_;
    std::vector<Fitted> labels_;
};

}  // namespace

std::vector<PlanetLabel> PlanetLabels(const WheelPlan& plan, const TextMeasure& measure,
                                      std::span<const PlacedGlyph> glyphs) {
    LabelCrowd crowd(plan, measure, glyphs);
    crowd.Settle();
    return crowd.Take();
}

}  // namespace tolvanis
