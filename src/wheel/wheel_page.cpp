#include "wheel/wheel_page.h"

#include <algorithm>

#include "output/text_files.h"
#include "text/columns.h"
#include "wheel/aspect_list.h"
#include "wheel/symbols.h"
#include "wheel/wheel_drawing.h"

namespace tolvanis {
namespace {

enum PageOption : int {
    kTitleOffsetOption = 170,
    kPersonalOffsetOption = 171,
    kPersonalOption = 174,
    kPersonalSizeOption = 176,
    kPersonalFurtherOption = 177,
    kGridOption = 178,
    kGridAcrossOption = 179,
    kFirstGridColourOption = 181,
    kGridDownOption = 188,
};

constexpr double kMiddleX = 16.0;  // of the page, right of the wheel's centre
constexpr double kMiddleY = -67.0;
constexpr double kHeightRatio = 600.0 / 480.0;

int GridColour(const Options& options, int code) {
    // By aspect code from the conjunction on: which of the seven family colours.
    constexpr std::array kFamilies = {0, 1, 2, 1, 2, 0, 3, 4, 4, 3, 5, 6, 5, 5, 5, 6};
    return ColourOf(options,
                    kFirstGridColourOption + kFamilies[static_cast<std::size_t>(code - kConjunction)]);
}

// A triangle: the points run down the diagonal, and each aspect stands where the row of one point meets the
// column of the other.
class AspectGridBlock {
  public:
    AspectGridBlock(const PageRequest& request, const Extent& page, const TextMeasure& measure)
        : request_(request), measure_(measure) {
        const TextBox glyph = measure.Measure(SymbolText(kStepGlyph), {kGlyphSize});
        glyphWidth_ = glyph.width;
        glyphHeight_ = glyph.height;
        const double down = double{request.options[kGridDownOption]} * CellHeight();
        left_ = kMiddleX + double{request.options[kGridAcrossOption]} - kChartPointCount * CellWidth() / 2;
        left_ = std::max(left_, page.left + 2.0);
        top_ = page.bottom + 2.0 + kChartPointCount * CellHeight() - down;
    }

    // The ground that each row covers.
    std::vector<Extent> Rows() const {
        std::vector<Extent> rows;
        for (int row = 1; row <= kChartPointCount; ++row) {
            rows.push_back({left_, RowTop(row), left_ + row * CellWidth(), RowTop(row + 1)});
        }
        return rows;
    }

    void Draw(DrawingSurface& surface) const {
        DrawRules(surface);
        for (int row = 1; row <= kChartPointCount; ++row) {
            const Point centre{left_ + (row - 0.5) * CellWidth(), RowTop(row) - CellHeight() / 2};
            const WheelText label =
                CentredText(measure_, centre, PointGlyph(kGridOrder[At(row)]), {kGlyphSize}, kBlack);
            surface.Text(label.corner, label.text, label.font, label.colour);
        }
        for (const ListedAspect& aspect : ListAspects(request_.chart, request_.orbs)) {
            const int row = GridPosition(aspect.first);
            const int column = GridPosition(aspect.second);
            if (column >= row) continue;
            const Point corner{left_ + (column - 1) * CellWidth() + glyphWidth_ / 3,
                               RowTop(row) - glyphHeight_ / 4};
            surface.Text(corner, AspectGlyph(aspect.code), {kAspectSize},
                         GridColour(request_.options, aspect.code));
        }
    }

  private:
    static constexpr double kGlyphSize = 10.5;
    static constexpr double kAspectSize = 7.5;

    static std::size_t At(int position) { return static_cast<std::size_t>(position - 1); }
    static int GridPosition(int point) {
        return static_cast<int>(std::ranges::find(kGridOrder, point) - kGridOrder.begin()) + 1;
    }
    double CellWidth() const { return 1.25 * glyphWidth_; }
    double CellHeight() const { return 1.25 * glyphHeight_; }
    double RowTop(int row) const { return top_ - (row - 1) * CellHeight(); }

    void DrawRules(DrawingSurface& surface) const {
        const Stroke rule{8, 0.4};
        const double bottom = RowTop(kChartPointCount + 1);
        for (int line = 0; line <= kChartPointCount; ++line) {
            const double right = left_ + std::min(line + 1, kChartPointCount) * CellWidth();
            surface.Line({left_, RowTop(line + 1)}, {right, RowTop(line + 1)}, rule);
            const double x = left_ + line * CellWidth();
            surface.Line({x, RowTop(std::max(line, 1))}, {x, bottom}, rule);
        }
    }

    const PageRequest& request_;
    const TextMeasure& measure_;
    double glyphWidth_ = 0.0;
    double glyphHeight_ = 0.0;
    double left_ = 0.0;
    double top_ = 0.0;
};

std::vector<WheelText> PersonalTexts(const PageRequest& request, const TextMeasure& measure, double size) {
    constexpr double kBelowWheel = -268.0;
    const TextFont font{size};
    Point corner{0.0, kBelowWheel - double{request.options[kPersonalOffsetOption]} -
                          double{request.options[kPersonalFurtherOption]}};
    std::vector<WheelText> texts;
    for (const std::string& line : request.personalLines) {
        const TextBox box = measure.Measure(line, font);
        corner.x = kMiddleX - box.width / 2;
        texts.push_back({corner, line, font, kBlack});
        corner.y -= measure.Measure("0", font).height;
    }
    return texts;
}

// The personal block, smaller where it would run into the grid or off the page.
std::vector<WheelText> FitPersonalTexts(const PageRequest& request, const TextMeasure& measure,
                                        const Extent& page, std::span<const Extent> grid) {
    constexpr double kSmallest = 4.0;
    const auto fits = [&](const WheelText& text) {
        const TextBox cell = measure.Measure(text.text, text.font);
        const Extent box{text.corner.x, text.corner.y, text.corner.x + cell.width,
                         text.corner.y - cell.height};
        return box.left >= page.left && box.right <= page.right && box.bottom >= page.bottom &&
               std::ranges::none_of(grid, [&](const Extent& row) { return Overlap(box, row, 2.0); });
    };
    for (double size = SizeOf(request.options, kPersonalSizeOption);; size *= 0.95) {
        std::vector<WheelText> texts = PersonalTexts(request, measure, size);
        if (size <= kSmallest || std::ranges::all_of(texts, fits)) return texts;
    }
}

}  // namespace

Extent PageExtent(double width, double height, int typeChart) {
    const double half = typeChart > 0 ? 272.0 : 265.0;
    const double ratio = width > 0.0 ? height / width : kHeightRatio;
    const double halfWidth = half * std::max(1.0, kHeightRatio / ratio);
    const double halfHeight = halfWidth * ratio;
    return {kMiddleX - halfWidth, halfHeight + kMiddleY, kMiddleX + halfWidth, kMiddleY - halfHeight};
}

std::vector<std::string> ReadPersonalLines(const Path& file, const Options& options) {
    if (options[kPersonalOption] == 0.0F) return {};
    Result<std::vector<std::string>> lines = ReadLines(file);
    if (!lines) return {};
    for (std::string& line : *lines) line = TrimTrailingBlanks(line);
    while (!lines->empty() && lines->back().empty()) lines->pop_back();
    return std::move(*lines);
}

void DrawPage(DrawingSurface& surface, const PageRequest& request) {
    constexpr double kTitleIndent = 30.0;
    const Extent page = PageExtent(request.width, request.height, request.typeChart);
    const WheelPlan plan{
        request.chart, request.data, request.options, kPrinterForm, ChartTypeOf(request.typeChart), page};
    surface.SetCoordinates(page);
    const std::vector<WheelText> title =
        TitleTexts(plan, surface, kTitleIndent, page.top - double{request.options[kTitleOffsetOption]});
    std::vector<Extent> taken;
    for (const WheelText& line : title) taken.push_back(InkOf(line, surface));
    const AspectGridBlock grid(request, page, surface);
    const bool showGrid = request.options[kGridOption] != 0.0F;
    const std::vector<Extent> gridRows = showGrid ? grid.Rows() : std::vector<Extent>();
    taken.insert(taken.end(), gridRows.begin(), gridRows.end());
    DrawWheelBody(surface, plan, taken);
    DrawTexts(surface, title);
    DrawTexts(surface, FitPersonalTexts(request, surface, page, gridRows));
    if (showGrid) grid.Draw(surface);
}

}  // namespace tolvanis
