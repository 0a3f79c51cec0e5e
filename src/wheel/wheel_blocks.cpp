#include "wheel/wheel_blocks.h"

#include <algorithm>

#include "output/zodiac_text.h"
#include "text/columns.h"
#include "text/numbers.h"
#include "wheel/aspect_list.h"
#include "wheel/symbols.h"

namespace tolvanis {
namespace {

constexpr int kFirstGridColourOption = 181;
constexpr double kRuleWidth = 0.4;

constexpr std::array kElements = {"Fire", "Earth", "Air", "Water"};
constexpr std::array kQualities = {"Cardinal", "Fixed", "Mutable"};

// The glyphs of the points by element and quality.
using ElementCells = std::array<std::array<std::string, kQualities.size()>, kElements.size()>;

ElementCells CellsOf(const WheelSnapshot& chart) {
    ElementCells cells;
    for (const int point : kGridOrder) {
        if (point == kNorthNode || point == kSouthNode || point == kPartOfFortune) continue;
        const auto sign = static_cast<std::size_t>(SignOf(chart.PointLongitude[point]) - 1);
        cells[sign % kElements.size()][sign % kQualities.size()] += PointGlyph(point);
    }
    return cells;
}

// Sizes of the table of elements.
struct ElementLook {
    TextFont glyphs, names, elements;
    int colour;            // of all but the elements' names
    int ground;            // behind them
    double label, column;  // widths
    double line;           // height

    double MiddleOfColumn(std::size_t quality) const {
        return label + (static_cast<double>(quality) + 0.5) * column;
    }
    double MiddleOfRow(std::size_t element) const { return -(static_cast<double>(element) + 1.5) * line; }
};

// A cell holds three to six glyphs side by side, as many as the fullest needs; more become smaller.
ElementLook LookFor(const ElementCells& cells, const BlockSource& source, const TextMeasure& measure,
                    double size) {
    std::size_t most = 3;
    for (const auto& row : cells) {
        for (const std::string& points : row) most = std::max(most, CharacterCount(points));
    }
    ElementLook look{.glyphs = {size},
                     .names = {size * 0.8},
                     .elements = {size * 0.8, true},
                     .colour = source.Colour(kBlack, kTextContrast),
                     .ground = source.ground,
                     .label = 0.0,
                     .column = 0.0,
                     .line = 1.55 * size};
    const double glyph = measure.Measure(SymbolText(kStepGlyph), look.glyphs).width;
    const double widest = static_cast<double>(std::min<std::size_t>(most, 6)) * glyph + 4.0;
    look.label = measure.Measure("Earth ", look.elements).width + 3.0;
    look.column = std::max(widest, measure.Measure("Cardinal", look.names).width + 3.0);
    return look;
}

void AddElementName(TextBlock& block, const ElementLook& look, std::size_t element,
                    const TextMeasure& measure) {
    const double y = look.MiddleOfRow(element);
    const int colour = ElementColour(static_cast<int>(element) + 1, look.ground);
    WheelText name = CentredText(measure, {0.0, y}, kElements[element], look.elements, colour);
    name.corner.x = 1.5;
    block.texts.push_back(std::move(name));
    block.rules.push_back({{0.0, y + look.line / 2}, {block.width, y + look.line / 2}});
}

// `points` in the cell at this middle, smaller where they would not fit.
void AddElementPoints(TextBlock& block, const ElementLook& look, Point middle, const std::string& points,
                      const TextMeasure& measure) {
    if (points.empty()) return;
    const double width = measure.Measure(points, look.glyphs).width;
    const double room = look.column - 2.0;
    const double size = look.glyphs.size;
    block.texts.push_back(
        CentredText(measure, middle, points, {width > room ? size * room / width : size}, look.colour));
}

void AddQualityHeading(TextBlock& block, const ElementLook& look, std::size_t quality,
                       const TextMeasure& measure) {
    const double x = look.MiddleOfColumn(quality);
    block.texts.push_back(
        CentredText(measure, {x, -look.line / 2}, kQualities[quality], look.names, look.colour));
    block.rules.push_back({{x - look.column / 2, 0.0}, {x - look.column / 2, -block.height}});
}

// Where the columns of the points' table begin, the first one aside, and where they end.
struct PointColumns {
    double degrees, sign, minutes, mark, declination, declinationEnd, width;
};

PointColumns ColumnsFor(const TextMeasure& measure, TextFont font) {
    const double digit = measure.Measure("0", font).width;
    const double glyph = measure.Measure(SymbolText(kStepGlyph), font).width;
    PointColumns columns{};
    columns.degrees = glyph + digit;
    columns.sign = columns.degrees + 2.2 * digit;
    columns.minutes = columns.sign + glyph;
    columns.mark = columns.minutes + 2.4 * digit;
    columns.declination = columns.mark + 2.0 * digit;
    const double house = columns.declination + 6.6 * digit;
    columns.declinationEnd = house - 1.2 * digit;
    columns.width = house + 2.4 * digit;
    return columns;
}

// A text of the points' table, which begins at x or ends there.
enum class Align { Left, Right };
struct Cell {
    double x;
    std::string text;
    TextFont font;
    Align align = Align::Left;
};

std::vector<Cell> HeadingCells(const PointColumns& columns, double size) {
    return {{columns.degrees, "Position", {size * 0.75}},
            {columns.declination, "Declination", {size * 0.75}},
            {columns.width, "H", {size}, Align::Right}};
}

std::vector<Cell> PointCells(const WheelSnapshot& chart, int point, const PointColumns& columns,
                             double size) {
    const ZodiacPlace place = SplitZodiac(chart.PointLongitude[point]);
    return {{0.0, PointGlyph(point), {size}},
            {columns.degrees, TwoDigits(place.degrees), {size, true}},
            {columns.sign, SignGlyph(place.sign), {size * 0.95}},
            {columns.minutes, TwoDigits(place.minutes), {size}},
            {columns.mark, chart.IsRetrograde[point] ? "R" : "", {size}},
            {columns.declinationEnd, FormatDeclination(chart.PointDeclination[point]), {size}, Align::Right},
            {columns.width, std::to_string(chart.PointHouse[point]), {size}, Align::Right}};
}

void AddLine(TextBlock& block, double y, std::span<const Cell> cells, int colour,
             const TextMeasure& measure) {
    for (const Cell& cell : cells) {
        if (cell.text.empty()) continue;
        WheelText text = CentredText(measure, {0.0, y}, cell.text, cell.font, colour);
        const bool isLeft = cell.align == Align::Left;
        text.corner.x = isLeft ? cell.x : cell.x - measure.Measure(cell.text, cell.font).width;
        block.texts.push_back(std::move(text));
    }
}

}  // namespace

int BlockSource::Colour(int colour, double contrast) const {
    return turnsColours ? ForGround(colour, ground, contrast) : Legible(colour, ground, contrast);
}

int GridColour(const Options& options, AspectCode code) {
    // By aspect code from the conjunction on: which of the seven family colours.
    constexpr std::array kFamilies = {0, 1, 2, 1, 2, 0, 3, 4, 4, 3, 5, 6, 5, 5, 5, 6};
    return ColourOf(options,
                    kFirstGridColourOption + kFamilies[static_cast<std::size_t>(code - kConjunction)]);
}

std::vector<Box> AspectGridBlock::Rows() const {
    std::vector<Box> rows;
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
    surface.Lines(rules, {source_.Colour(kDarkGrey, kLineContrast), kRuleWidth});
    const auto middle = [&](int row, int column) {
        return Point{left + (column - 0.5) * look_.cellWidth, RowTop(row) - look_.cellHeight / 2};
    };
    std::vector<WheelText> texts;
    for (int row = 1; row <= kChartPointCount; ++row) {
        texts.push_back(CentredText(surface, middle(row, row), PointGlyph(GridPoint(row)), {look_.glyphSize},
                                    source_.Colour(kBlack, kTextContrast)));
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
    const ElementCells cells = CellsOf(source.chart);
    const ElementLook look = LookFor(cells, source, measure, size);
    TextBlock block;
    block.width = look.label + static_cast<double>(kQualities.size()) * look.column;
    block.height = static_cast<double>(kElements.size() + 1) * look.line;
    for (std::size_t element = 0; element < kElements.size(); ++element) {
        AddElementName(block, look, element, measure);
        for (std::size_t quality = 0; quality < kQualities.size(); ++quality) {
            const Point middle{look.MiddleOfColumn(quality), look.MiddleOfRow(element)};
            AddElementPoints(block, look, middle, cells[element][quality], measure);
        }
    }
    for (std::size_t quality = 0; quality < kQualities.size(); ++quality) {
        AddQualityHeading(block, look, quality, measure);
    }
    return block;
}

TextBlock PointTable(const BlockSource& source, const TextMeasure& measure, double size) {
    const int colour = source.Colour(kBlack, kTextContrast);
    const PointColumns columns = ColumnsFor(measure, {size});
    const double line = 1.45 * size;
    double y = -line / 2;
    TextBlock block;
    block.width = columns.width;
    block.height = line * (kChartPointCount + 1);
    AddLine(block, y, HeadingCells(columns, size), colour, measure);
    block.rules.push_back({{0.0, -line}, {block.width, -line}});
    for (const int point : kGridOrder) {
        y -= line;
        AddLine(block, y, PointCells(source.chart, point, columns, size), colour, measure);
    }
    return block;
}

}  // namespace tolvanis
