#include "wheel/wheel_blocks.h"

#include <algorithm>

#include "output/zodiac_text.h"
#include "text/numbers.h"
#include "wheel/aspect_list.h"
#include "wheel/symbols.h"

namespace tolvanis {
namespace {

constexpr int kFirstGridColourOption = 181;
constexpr double kRuleWidth = 0.4;

int GridPosition(int point) {
    return static_cast<int>(std::ranges::find(kGridOrder, point) - kGridOrder.begin()) + 1;
}

}  // namespace

int BlockSource::Colour(int colour, double contrast) const {
    constexpr double kMiddleLuminance = 0.18;
    const bool turns = turnsColours && Luminance(ground) < kMiddleLuminance;
    return Legible(turns ? LightnessTurned(colour) : colour, ground, contrast);
}

int GridColour(const Options& options, int code) {
    // By aspect code from the conjunction on: which of the seven family colours.
    constexpr std::array kFamilies = {0, 1, 2, 1, 2, 0, 3, 4, 4, 3, 5, 6, 5, 5, 5, 6};
    return ColourOf(options,
                    kFirstGridColourOption + kFamilies[static_cast<std::size_t>(code - kConjunction)]);
}

std::vector<Extent> AspectGridBlock::Rows() const {
    std::vector<Extent> rows;
    for (int row = 1; row <= kChartPointCount; ++row) {
        rows.push_back(
            {look_.corner.x, RowTop(row), look_.corner.x + row * look_.cellWidth, RowTop(row + 1)});
    }
    return rows;
}

void AspectGridBlock::Draw(DrawingSurface& surface) const {
    const double left = look_.corner.x;
    std::vector<LineSpan> rules;
    for (int line = 0; line <= kChartPointCount; ++line) {
        const double right = left + std::min(line + 1, kChartPointCount) * look_.cellWidth;
        rules.push_back({{left, RowTop(line + 1)}, {right, RowTop(line + 1)}});
        const double x = left + line * look_.cellWidth;
        rules.push_back({{x, RowTop(std::max(line, 1))}, {x, RowTop(kChartPointCount + 1)}});
    }
    surface.Lines(rules, {source_.Colour(8, kLineContrast), kRuleWidth});
    const auto middle = [&](int row, int column) {
        return Point{left + (column - 0.5) * look_.cellWidth, RowTop(row) - look_.cellHeight / 2};
    };
    std::vector<WheelText> texts;
    for (int row = 1; row <= kChartPointCount; ++row) {
        texts.push_back(CentredText(surface, middle(row, row),
                                    PointGlyph(kGridOrder[static_cast<std::size_t>(row - 1)]),
                                    {look_.glyphSize}, source_.Colour(kBlack, kTextContrast)));
    }
    for (const ListedAspect& aspect : ListAspects(source_.chart, source_.orbs)) {
        const int row = GridPosition(aspect.first);
        const int column = GridPosition(aspect.second);
        if (column >= row) continue;
        WheelText text =
            CentredText(surface, middle(row, column), AspectGlyph(aspect.code), {look_.aspectSize},
                        source_.Colour(GridColour(source_.options, aspect.code), kTextContrast));
        if (look_.aspectCorner) {
            text.corner = {left + (column - 1) * look_.cellWidth + look_.aspectCorner->x,
                           RowTop(row) - look_.aspectCorner->y};
        }
        texts.push_back(std::move(text));
    }
    DrawTexts(surface, texts);
}

void TextBlock::Draw(DrawingSurface& surface, Point corner, int ruleColour) const {
    std::vector<LineSpan> moved = rules;
    for (LineSpan& rule : moved) {
        for (Point* end : {&rule.from, &rule.to}) *end = {end->x + corner.x, end->y + corner.y};
    }
    surface.Lines(moved, {ruleColour, kRuleWidth});
    for (const WheelText& text : texts) {
        surface.Text({text.corner.x + corner.x, text.corner.y + corner.y}, text.text, text.font, text.colour);
    }
}

TextBlock ElementTable(const BlockSource& source, const TextMeasure& measure, double size) {
    constexpr std::array kElements = {"Fire", "Earth", "Air", "Water"};
    constexpr std::array kQualities = {"Cardinal", "Fixed", "Mutable"};
    std::array<std::array<std::string, 3>, 4> cells;
    std::size_t most = 3;
    for (const int point : kGridOrder) {
        if (point == kNorthNode || point == kSouthNode || point == kPartOfFortune) continue;
        const auto sign = static_cast<std::size_t>(SignOf(source.chart.PointLongitude[point]) - 1);
        std::string& cell = cells[sign % 4][sign % 3];
        cell += PointGlyph(point);
        most = std::max(most, cell.size() / PointGlyph(point).size());
    }
    const int black = source.Colour(kBlack, kTextContrast);
    const double glyph = measure.Measure(SymbolText(kStepGlyph), {size}).width;
    const double label = measure.Measure("Earth ", {size * 0.8, true}).width + 3.0;
    // A cell holds up to six glyphs side by side; more become smaller.
    const double widest = static_cast<double>(std::min<std::size_t>(most, 6)) * glyph + 4.0;
    const double column = std::max(widest, measure.Measure("Cardinal", {size * 0.8}).width + 3.0);
    const double line = 1.55 * size;
    TextBlock block;
    block.width = label + 3 * column;
    block.height = 5 * line;
    for (std::size_t row = 0; row < kElements.size(); ++row) {
        const double y = -(static_cast<double>(row) + 1.5) * line;
        const int colour = [&] {
            constexpr std::array kColours = {Rgb(0xD0261E), Rgb(0x1E7A1E), Rgb(0x8A6100), Rgb(0x1F4FD8)};
            return Legible(kColours[row], source.ground, kTextContrast);
        }();
        WheelText name = CentredText(measure, {0.0, y}, kElements[row], {size * 0.8, true}, colour);
        name.corner.x = 1.5;
        block.texts.push_back(std::move(name));
        block.rules.push_back({{0.0, y + line / 2}, {block.width, y + line / 2}});
        for (std::size_t quality = 0; quality < kQualities.size(); ++quality) {
            const std::string& points = cells[row][quality];
            const double x = label + (static_cast<double>(quality) + 0.5) * column;
            const double width = measure.Measure(points, {size}).width;
            const double fitted = width > column - 2.0 ? size * (column - 2.0) / width : size;
            if (!points.empty()) block.texts.push_back(CentredText(measure, {x, y}, points, {fitted}, black));
        }
    }
    for (std::size_t quality = 0; quality < kQualities.size(); ++quality) {
        const double x = label + (static_cast<double>(quality) + 0.5) * column;
        block.texts.push_back(CentredText(measure, {x, -line / 2}, kQualities[quality], {size * 0.8}, black));
        block.rules.push_back({{x - column / 2, 0.0}, {x - column / 2, -block.height}});
    }
    return block;
}

TextBlock PointTable(const BlockSource& source, const TextMeasure& measure, double size) {
    const int black = source.Colour(kBlack, kTextContrast);
    const double line = 1.45 * size;
    const double digit = measure.Measure("0", {size}).width;
    const double glyph = measure.Measure(SymbolText(kStepGlyph), {size}).width;
    // Where the columns begin.
    const double degrees = glyph + digit;
    const double sign = degrees + 2.2 * digit;
    const double minutes = sign + glyph;
    const double mark = minutes + 2.4 * digit;
    const double declination = mark + 2.0 * digit;
    const double house = declination + 6.6 * digit;
    TextBlock block;
    block.width = house + 2.4 * digit;
    double y = -line / 2;
    const auto add = [&](double x, std::string text, bool bold = false, int colour = kBlack,
                         double part = 1.0) {
        WheelText placed = CentredText(measure, {0.0, y}, std::move(text), {size * part, bold}, colour);
        placed.corner.x = x;
        block.texts.push_back(std::move(placed));
    };
    const auto addToRight = [&](double right, std::string text, bool bold = false) {
        add(right - measure.Measure(text, {size, bold}).width, text, bold, black);
    };
    add(degrees, "Position", false, black, 0.75);
    add(declination, "Declination", false, black, 0.75);
    addToRight(block.width, "H");
    block.rules.push_back({{0.0, -line}, {block.width, -line}});
    for (const int point : kGridOrder) {
        y -= line;
        const ZodiacPlace place = SplitZodiac(source.chart.PointLongitude[point]);
        add(0.0, PointGlyph(point), false, black);
        add(degrees, TwoDigits(place.degrees), true, black);
        add(sign, SignGlyph(place.sign), false, black, 0.95);
        add(minutes, TwoDigits(place.minutes), false, black);
        if (point <= kMoon && source.chart.IsRetrograde[point]) add(mark, "R", false, black);
        addToRight(house - 1.2 * digit, FormatDeclination(source.chart.PointDeclination[point]));
        addToRight(block.width, std::to_string(source.chart.PointHouse[point]));
    }
    block.height = line * (kChartPointCount + 1);
    return block;
}

}  // namespace tolvanis
