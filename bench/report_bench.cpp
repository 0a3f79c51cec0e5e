// Reports a second on one core, from warm files.

#include <benchmark/benchmark.h>

#include "app/options_file.h"
#include "cli/chart_output.h"

namespace tolvanis {
namespace {

void NatalReport(benchmark::State& state) {
    const DataFiles files(DELIVERED_DATA_DIR);
    Options options;
    if (!ReadOptions(files, options)) state.SkipWithError("no options");
    if (!IsReadableFile(files.FindText("RISING.TXT"))) state.SkipWithError("no texts");
    const NatalEntry entry{"Ann Smith", "9",  "22", "1949", "9",  "5",  false,
                           "5",         "73", "59", false,  "40", "45", false};
    const auto chart = MakeChart(entry, Method{}, 1, options);
    for (auto _ : state) benchmark::DoNotOptimize(ChartAsReport(*chart, options, files));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(NatalReport)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tolvanis
