// An options file of any content: a chart of the present moment's home, and a wheel with everything on it.

#include "app/options_file.h"
#include "astro/natal_chart.h"
#include "birthdata/name_record.h"
#include "cli/chart_output.h"
#include "fuzz_support.h"
#include "output/text_files.h"
#include "text/print_pages.h"
#include "wheel/wheel_drawing.h"
#include "wheel/wheel_page.h"

namespace tolvanis {
namespace {

// Measures texts and draws nothing; what is drawn must have a place.
class BlindSurface : public DrawingSurface {
  public:
    void SetCoordinates(const Extent&) override {}
    void Clear(int) override {}
    void Line(Point from, Point to, Stroke) override { Check(from), Check(to); }
    void Lines(std::span<const LineSpan> lines, Stroke stroke) override {
        for (const LineSpan& line : lines) Line(line.from, line.to, stroke);
    }
    void Circle(Point centre, double, Stroke) override { Check(centre); }
    void Disc(Point centre, double, int) override { Check(centre); }
    TextBox Measure(std::string_view text, TextFont font) const override {
        const double width = 0.6 * font.size * static_cast<double>(text.size());
        return {width, 1.2 * font.size, 0.0, 0.2 * font.size, width, 0.9 * font.size};
    }
    void Sector(const RingSector&, int) override {}
    void Text(Point corner, std::string_view, TextFont, int) override { Check(corner); }

  private:
    static void Check(Point point) {
        Require(point.x - point.x == 0.0 && point.y - point.y == 0.0, "a place is a number");
    }
};

const WheelData& DeliveredWheelData() {
    static const Result<WheelData> data = ReadWheelData(DataFiles(DELIVERED_DATA_DIR));
    return *data;
}

void Draw(const NatalChart& chart, const Options& options) {
    const WheelSnapshot snapshot = MakeWheelSnapshot(chart.natal, chart.positions);
    BlindSurface surface;
    for (const ChartType type : {ChartType::American, ChartType::European, ChartType::ZodiacRing}) {
        WheelRequest request{snapshot, DeliveredWheelData(), options, type, 800, 600};
        request.orbs.fill(options[1]);
        Require(!DrawWheel(surface, request).empty(), "a wheel has points");
    }
    DrawPage(surface, {snapshot, DeliveredWheelData(), options, 0, {"Ann", "Main Street"}});
}

}  // namespace

void Fuzz(std::string_view input) {
    const MemoryFile file(input);
    Options options;
    if (!ReadNumberLines(file.path(), options.table())) return;
    const Method method = MethodOfOptions(options);
    static_cast<void>(MakeChart(FillNow({{2027, 1, 5}, 14, 7, 3}, options), method, 1, options));
    const Result<NameRecord> record = ParseNameRecord("Ann,5 Feb 1962,8.10,A,0,000.10,51.30");
    const auto chart = MakeChart(*EntryFromRecord(*record), method, 1, options);
    Require(static_cast<bool>(chart), "options do not refuse a birth");
    static_cast<void>(ChartAsText(*chart, options));
    Draw(*chart, options);
    const std::vector<std::string> lines(50, "a line");
    static_cast<void>(SavedListing(lines, options[45]));
    static_cast<void>(SplitIntoPages(lines, options[30]));
    static_cast<void>(HasLongLine(lines, options[117]));
}

}  // namespace tolvanis
