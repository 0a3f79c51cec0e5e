// Drawing the wheel: repaints of a window, and pictures written to a file.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <filesystem>

#include "app/options_file.h"
#include "astro/natal_chart.h"
#include "birthdata/name_record.h"
#include "platform/qt/painter_surface.h"
#include "platform/qt/symbol_font.h"
#include "wheel/qt/wheel_export.h"

namespace tolvanis {
namespace {

struct Sample {
    WheelSnapshot chart;
    WheelData data;
    Options options;
    OrbTable orbs{};

    Sample() {
        const auto entry = EntryFromRecord(*ParseNameRecord("Ann Smith,22 Sep 1949,9.05,A,5,073.59,40.45"));
        const NatalData natal = ParseNatalData(*entry, {}, 1);
        chart = MakeWheelSnapshot(natal, *ComputePositions(natal));
        data = *ReadWheelData(DataFiles(DELIVERED_DATA_DIR));
        (void)ReadOptions(DataFiles(DELIVERED_DATA_DIR), options);
        (void)ReadOrbsFile(DELIVERED_DATA_DIR "/NATAL.ORB", orbs);
        LoadSymbolFont(DataFiles(FONTS_DIR));
    }
    WheelRequest Request(int type, double size) const {
        return {.chart = chart,
                .data = data,
                .options = options,
                .type = ChartTypeOf(type),
                .width = size,
                .height = size,
                .orbs = orbs};
    }
};

void Repaint(benchmark::State& state) {
    const Sample sample;
    const int size = static_cast<int>(state.range(1));
    QImage image(size, size, QImage::Format_RGB32);
    TextOutlines outlines;
    for (auto _ : state) {
        QPainter painter(&image);
        PainterSurface surface(painter, image.rect(), outlines);
        DrawWheel(surface, sample.Request(static_cast<int>(state.range(0)), size));
    }
}
BENCHMARK(Repaint)
    ->ArgNames({"type", "size"})
    ->Unit(benchmark::kMillisecond)
    ->Args({0, 1000})
    ->Args({1, 1000})
    ->Args({2, 1000})
    ->Args({1, 2000});

void Export(benchmark::State& state, const char* name) {
    const Sample sample;
    const Path file = std::filesystem::temp_directory_path() / name;
    for (auto _ : state) benchmark::DoNotOptimize(ExportWheel(sample.Request(1, 1000), file));
    std::filesystem::remove(file);
}
BENCHMARK_CAPTURE(Export, svg, "wheel-bench.svg")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Export, pdf, "wheel-bench.pdf")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Export, png, "wheel-bench.png")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tolvanis

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
