#include "wheel/planet_labels.h"

#include <algorithm>
#include <cmath>

#include "chart/angles.h"
#include "text/numbers.h"
#include "wheel/position_label.h"
#include "wheel/symbols.h"

namespace tolvanis {
namespace {

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
    const bool cuts = !form.onPaper || angle <= 75.0 || angle >= 310.0;
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
    const LabelLook look{form.degreesSize, form.degreesColour, form.signSize,
                         form.signColour,  form.minutesSize,   form.minutesColour};
    const auto parts = PositionLabel(plan.options, look, plan.chart.PointLongitude[glyph.point]);
    std::vector<LabelPart> items(parts.begin(), parts.end());
    if (!ReadsInwards(plan, glyph)) std::ranges::reverse(items);
    if (glyph.point <= kMoon && plan.chart.IsRetrograde[glyph.point]) {
        items.push_back({"R",
                         {SizeOf(plan.options, form.retrogradeSize)},
                         ColourOf(plan.options, form.retrogradeColour)});
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

}  // namespace tolvanis
