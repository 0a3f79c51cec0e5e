// The wheel without a surface: placement and ASCII chart.
#include <benchmark/benchmark.h>

#include "astro/natal_chart.h"
#include "birthdata/name_record.h"
#include "wheel/ascii_chart.h"
#include "wheel/wheel_placement.h"

namespace tolvanis {
namespace {

WheelSnapshot SampleWheel() {
    const auto entry = EntryFromRecord(*ParseNameRecord("Ann Smith,22 Sep 1949,9.05,A,5,073.59,40.45"));
    const NatalData natal = ParseNatalData(*entry, {}, 1);
    return MakeWheelSnapshot(natal, *ComputePositions(natal));
}

void PlaceEuropeanGlyphs(benchmark::State& state) {
    const WheelSnapshot chart = SampleWheel();
    for (auto _ : state) benchmark::DoNotOptimize(PlaceGlyphs(chart, ChartType::European));
}
BENCHMARK(PlaceEuropeanGlyphs);

void AsciiChart(benchmark::State& state) {
    const WheelSnapshot chart = SampleWheel();
    for (auto _ : state) benchmark::DoNotOptimize(DrawAsciiChart(chart));
}
BENCHMARK(AsciiChart);

}  // namespace
}  // namespace tolvanis
