#include "wheel/wheel_page.h"

#include <algorithm>

#include "output/text_files.h"
#include "text/columns.h"
#include "wheel/symbols.h"
#include "wheel/wheel_blocks.h"
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
    kGridDownOption = 188,
};

constexpr double kMiddleX = 16.0;  // of the page, right of the wheel's centre
constexpr double kMiddleY = -67.0;
constexpr double kHeightRatio = 600.0 / 480.0;

// The grid in the lower part of the page, from its middle.
AspectGridBlock PageGrid(const PageRequest& request, const BlockSource& source, const Extent& page,
                         const TextMeasure& measure) {
    constexpr double kGlyphSize = 10.5;
    constexpr double kAspectSize = 7.5;
    const TextBox glyph = measure.Measure(SymbolText(kStepGlyph), {kGlyphSize});
    const double width = 1.25 * glyph.width;
    const double height = 1.25 * glyph.height;
    const double left = kMiddleX + double{request.options[kGridAcrossOption]} - kChartPointCount * width / 2;
    const double down = double{request.options[kGridDownOption]} * height;
    const Point corner{std::max(left, page.left + 2.0), page.bottom + 2.0 + kChartPointCount * height - down};
    return {source,
            {.corner = corner,
             .cellWidth = width,
             .cellHeight = height,
             .glyphSize = kGlyphSize,
             .aspectSize = kAspectSize,
             .aspectCorner = Point{glyph.width / 3, glyph.height / 4}}};
}

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

bool IsFree(const Box& box, std::span<const Box> taken) {
    constexpr double kClear = 3.0;
    return std::ranges::none_of(taken, [&](const Box& other) { return Overlap(box, other, kClear); });
}

// The personal block, smaller where it would run into other blocks or off the page.
std::vector<WheelText> FitPersonalTexts(const PageRequest& request, const TextMeasure& measure,
                                        const Extent& page, std::span<const Box> taken) {
    constexpr double kSmallest = 4.0;
    const auto fits = [&](const WheelText& text) {
        const TextBox cell = measure.Measure(text.text, text.font);
        const Box box{text.corner.x, text.corner.y, text.corner.x + cell.width, text.corner.y - cell.height};
        return Inside(box, page) && IsFree(box, taken);
    };
    for (double size = SizeOf(request.options, kPersonalSizeOption);; size *= 0.95) {
        std::vector<WheelText> texts = PersonalTexts(request, measure, size);
        if (size <= kSmallest || std::ranges::all_of(texts, fits)) return texts;
    }
}

// A block in the lower part of the page, as large as there is room for between what is taken.
struct PlacedBlock {
    TextBlock block;
    Point corner;

    Box Ground() const { return block.At(corner); }
};
using MakeBlock = TextBlock (*)(const BlockSource& source, const TextMeasure& measure, double size);

// Where a block may stand.
struct BlockRoom {
    Point lowerRight;  // the block's own corner
    const Extent& page;
    std::span<const Box> taken;
};

// None where the block could not be read.
std::optional<PlacedBlock> FitBlock(MakeBlock make, const BlockSource& source, const TextMeasure& measure,
                                    const BlockRoom& room) {
    constexpr double kLargest = 10.0;
    constexpr double kSmallest = 5.0;
    constexpr double kClearRadius = 246.0;  // of the wheel with the nearer of its cusp labels
    for (double size = kLargest; size >= kSmallest; size -= 0.25) {
        TextBlock block = make(source, measure, size);
        const Point corner{room.lowerRight.x - block.width, room.lowerRight.y + block.height};
        const Box ground = block.At(corner);
        if (Inside(ground, room.page) && NearestToCentre(ground) >= kClearRadius &&
            IsFree(ground, room.taken)) {
            return PlacedBlock{std::move(block), corner};
        }
    }
    return std::nullopt;
}

// The blocks of the lower part: the grid at the left, the points at the right; between them, for a zodiac
// ring, elements and qualities.
struct LowerBlocks {
    std::optional<AspectGridBlock> grid;
    std::vector<PlacedBlock> tables;
    std::vector<Box> taken;
};

LowerBlocks FitLowerBlocks(const PageRequest& request, const BlockSource& source, const TextMeasure& measure,
                           const Extent& page) {
    constexpr double kMargin = 4.0;
    constexpr double kBetween = 14.0;
    LowerBlocks blocks;
    if (request.options[kGridOption] == 0.0F) return blocks;
    blocks.grid.emplace(PageGrid(request, source, page, measure));
    blocks.taken = blocks.grid->Rows();
    std::vector<MakeBlock> makers = {PointTable};
    if (ChartTypeOf(request.typeChart) == ChartType::ZodiacRing) makers.push_back(ElementTable);
    Point lowerRight{page.right - kMargin, page.bottom + kMargin};
    for (const MakeBlock make : makers) {
        auto placed = FitBlock(make, source, measure, {lowerRight, page, blocks.taken});
        if (!placed) continue;
        blocks.taken.push_back(placed->Ground());
        lowerRight.x = placed->Ground().left - kBetween;
        blocks.tables.push_back(std::move(*placed));
    }
    return blocks;
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
    std::vector<std::string> lines = ReadPersonalBlock(file);
    for (std::string& line : lines) line = TrimTrailingBlanks(line);
    while (!lines.empty() && lines.back().empty()) lines.pop_back();
    return lines;
}

void DrawPage(DrawingSurface& surface, const PageRequest& request) {
    constexpr double kTitleIndent = 30.0;
    const Extent page = PageExtent(request.width, request.height, request.typeChart);
    const WheelPlan plan{.chart = request.chart,
                         .data = request.data,
                         .options = request.options,
                         .form = kPrinterForm,
                         .type = ChartTypeOf(request.typeChart),
                         .surface = page,
                         .orbs = request.orbs};
    const BlockSource source{request.chart, request.options, request.orbs};
    surface.SetCoordinates(page);
    LowerBlocks blocks = FitLowerBlocks(request, source, surface, page);
    const double titleTop = page.top - double{request.options[kTitleOffsetOption]};
    const WheelParts parts = LayOutWheel(plan, surface, {kTitleIndent, titleTop}, blocks.taken);
    for (const WheelText& text : parts.cuspLabels.texts) blocks.taken.push_back(InkOf(text, surface));
    DrawParts(surface, plan, parts);
    DrawTexts(surface, FitPersonalTexts(request, surface, page, blocks.taken));
    if (blocks.grid) blocks.grid->Draw(surface);
    for (const PlacedBlock& placed : blocks.tables) placed.block.Draw(surface, placed.corner, kDarkGrey);
}

}  // namespace tolvanis
