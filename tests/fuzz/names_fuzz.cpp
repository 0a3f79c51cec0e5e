// A names file of any content: read as a list, every record as an entry, every entry as a chart in all forms.

#include "birthdata/names_file.h"
#include "cli/chart_output.h"
#include "fuzz_support.h"
#include "text/columns.h"

namespace tolvanis {

void Fuzz(std::string_view input) {
    const RecordList names = NamesOfText(input);
    const Options options;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const NameRecord record = NameRecordAt(names, i);
        const Result<NameRecord> again = ParseNameRecord(FormatNameRecord(record));
        Require(again && *again == record, "a record reads back as it was written");
        const Result<NatalEntry> entry = EntryFromRecord(record);
        Require(static_cast<bool>(entry), "a record of a list is an entry");
        const Method method{static_cast<HouseSystem>(i % kHouseSystems.size()),
                            i % 2 == 0 ? Theory::Classic : Theory::Modern};
        const auto chart = MakeChart(*entry, method, static_cast<int>(i % 3), options);
        if (!chart) continue;
        const std::string text = ChartAsText(*chart, options) + ChartAsJson(*chart) + ChartAsAscii(*chart);
        LineReader lines = LineReader::OfText(text);
        for (std::string line; lines.Next(line);) {
            Require(Printable(line) == line, "a chart holds no control characters");
        }
    }
}

}  // namespace tolvanis
