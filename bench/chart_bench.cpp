// Charts a second on one core.

#include <benchmark/benchmark.h>

#include "app/options_file.h"
#include "cli/chart_output.h"

namespace tolvanis {
namespace {

NatalData Birth(std::int64_t i, Theory theory = Theory::Classic) {
    NatalData natal;
    natal.Theory = theory;
    natal.Name = "Ann Smith";
    natal.Year = static_cast<std::int16_t>(1900 + i % 150);
    natal.Month = static_cast<std::int16_t>(1 + i % 12);
    natal.Day = static_cast<std::int16_t>(1 + i % 28);
    natal.ClockTime = 9.05;
    natal.TimeZone = 5;
    natal.Longitude = 73.59F;
    natal.Latitude = 40.45F;
    return natal;
}

void PositionsOnly(benchmark::State& state, Theory theory) {
    std::int64_t i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(ComputePositions(Birth(i++, theory)));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(PositionsOnly, classic, Theory::Classic);
BENCHMARK_CAPTURE(PositionsOnly, modern, Theory::Modern);

// The years for which no orbits are stored.
void PositionsOfOldTimes(benchmark::State& state) {
    NatalData natal = Birth(0, Theory::Modern);
    natal.Year = 1500;
    for (auto _ : state) benchmark::DoNotOptimize(ComputePositions(natal));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(PositionsOfOldTimes);

template <typename Print>
void Printed(benchmark::State& state, Print print) {
    Options options;
    if (!ReadOptions(DataFiles(DELIVERED_DATA_DIR), options)) state.SkipWithError("no options");
    std::int64_t i = 0;
    for (auto _ : state) {
        const NatalData natal = Birth(i++);
        const auto positions = ComputePositions(natal);
        const NatalChart chart{natal, *positions, FindAspects(*positions, options)};
        benchmark::DoNotOptimize(print(chart, options));
    }
    state.SetItemsProcessed(state.iterations());
}

void ListingAndGrid(benchmark::State& state) {
    Printed(state, ChartAsText);
}
BENCHMARK(ListingAndGrid);

void Json(benchmark::State& state) {
    Printed(state, [](const NatalChart& chart, const Options&) { return ChartAsJson(chart); });
}
BENCHMARK(Json);

}  // namespace
}  // namespace tolvanis
