// The atlas and the zone history: opening, look-up, search.
#include <benchmark/benchmark.h>

#include "birthdata/zone_advice.h"
#include "birthdata/zone_lookup.h"

namespace tolvanis {
namespace {

void OpenZoneBook(benchmark::State& state) {
    const DataFiles files{Path(DELIVERED_DATA_DIR)};
    for (auto _ : state) benchmark::DoNotOptimize(ZoneBook::Open(files));
}
BENCHMARK(OpenZoneBook)->Unit(benchmark::kMillisecond);

void LookUpZoneOfBirth(benchmark::State& state) {
    const Result<ZoneBook> book = ZoneBook::Open(DataFiles{Path(DELIVERED_DATA_DIR)});
    if (!book) return state.SkipWithError("no zone book");
    const ZonePlace place = book->atlas.At(book->atlas.FindOne("New York City")->index).place;
    for (auto _ : state) {
        benchmark::DoNotOptimize(LookUpZone(book->history, place, {{1943, 7, 1}, 43200}));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(LookUpZoneOfBirth);

void SearchAtlas(benchmark::State& state) {
    const Result<ZoneBook> book = ZoneBook::Open(DataFiles{Path(DELIVERED_DATA_DIR)});
    if (!book) return state.SkipWithError("no zone book");
    for (auto _ : state) benchmark::DoNotOptimize(book->atlas.Search("san", 100));
}
BENCHMARK(SearchAtlas)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tolvanis
