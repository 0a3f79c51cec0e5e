// Reading and saving of long lists.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>

#include "birthdata/cities_file.h"
#include "birthdata/name_saving.h"
#include "birthdata/names_file.h"
#include "birthdata/record_search.h"

namespace tolvanis {
namespace {

// Nobody is there to be asked.
class NoMessages : public Messages {
  public:
    void Tell(const std::string&, const std::string&, MessageIcon) override {}
    bool AskYesNo(const std::string&, const std::string&, Answer) override { return false; }
    Answer AskYesNoCancel(const std::string&, const std::string&) override { return Answer::No; }
    std::string AskText(const std::string&, const std::string&) override { return {}; }
};

// A names file that vanishes with the benchmark.
class NamesOnDisk {
  public:
    explicit NamesOnDisk(long count) {
        std::string name = (std::filesystem::temp_directory_path() / "tolvanis-bench-XXXXXX").string();
        directory_ = ::mkdtemp(name.data());
        std::ofstream content(path(), std::ios::binary);
        for (long i = 0; i < count; ++i)
            content << "Person " << i << ",22 Sep 1949,9.05,A,5,073.59,40.45\r\n";
    }
    ~NamesOnDisk() { std::filesystem::remove_all(directory_); }
    NamesOnDisk(const NamesOnDisk&) = delete;
    NamesOnDisk& operator=(const NamesOnDisk&) = delete;

    Path path() const { return directory_ / "MANY.FIL"; }

  private:
    Path directory_;
};

void ReadNames(benchmark::State& state) {
    const NamesOnDisk names(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(ReadNamesFile(names.path()));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(ReadNames)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

// Flushed to the disk, the content before kept as the backup.
void SaveName(benchmark::State& state) {
    const NamesOnDisk names(state.range(0));
    NoMessages messages;
    const NatalEntry entry{"Ann", "9",  "22", "1949", "9",  "5",  false,
                           "5",   "73", "59", false,  "40", "45", false};
    for (auto _ : state) {
        if (!SaveRecord(
                entry, [&] { return names.path().string(); }, messages))
            state.SkipWithError("not saved");
    }
}
BENCHMARK(SaveName)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)->UseRealTime();

void ReadLargestCitiesFile(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(ReadCitiesFile(DELIVERED_DATA_DIR "/EUROPE.LL"));
}
BENCHMARK(ReadLargestCitiesFile)->Unit(benchmark::kMillisecond);

RecordSearch SearchOf(const RecordList& cities) {
    return {cities.size(), [&](std::size_t i) { return CityTextAt(cities, i); }};
}

void PrepareCitySearch(benchmark::State& state) {
    const RecordList cities = ReadCitiesFile(DELIVERED_DATA_DIR "/EUROPE.LL");
    for (auto _ : state) benchmark::DoNotOptimize(SearchOf(cities));
}
BENCHMARK(PrepareCitySearch)->Unit(benchmark::kMillisecond);

void FindCityAsTyped(benchmark::State& state) {
    const RecordSearch search = SearchOf(ReadCitiesFile(DELIVERED_DATA_DIR "/EUROPE.LL"));
    for (auto _ : state) benchmark::DoNotOptimize(search.FindAll("saint et"));
}
BENCHMARK(FindCityAsTyped)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tolvanis
