#include "birthdata/names_file.h"

#include <algorithm>

#include "text/fields.h"

namespace tolvanis {
namespace {

constexpr int kEntriesAboveRemembered = 12;

std::string FaultOfLine(std::string_view line) {
    const Result<NameRecord> record = ParseNameRecord(line);
    if (!record) return record.message();
    const Result<void> checked = CheckNameRecord(*record);
    return checked ? std::string() : checked.message();
}

}  // namespace

RecordList ReadNamesFile(const Path& path) {
    return RecordList(path, FaultOfLine);
}

RecordList NamesOfText(std::string_view content) {
    return RecordList::OfText(content, FaultOfLine);
}

void TellNamesFault(const RecordFault& fault, Messages& messages) {
    TellRecordFault(fault, {"names", "Names"}, messages);
}

std::string NameAt(const RecordList& names, std::size_t index) {
    return FirstField(names.Line(index));
}

NameRecord NameRecordAt(const RecordList& names, std::size_t index) {
    const Result<NameRecord> record = ParseNameRecord(names.Line(index));
    return record ? *record : NameRecord{};
}

std::optional<std::size_t> FindName(const RecordList& names, std::string_view name) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (FirstField(names.Line(i)) == name) return i;
    }
    return std::nullopt;
}

std::optional<ListPosition> RestoredPosition(const NamesState& state, std::size_t count) {
    if (count == 0 || !(state.justSaved ? state.savedHere : state.locked)) return std::nullopt;
    const int last = static_cast<int>(count) - 1;
    const int selected = state.justSaved ? last : std::clamp(state.rememberedIndex, 0, last);
    return ListPosition{std::max(0, selected - kEntriesAboveRemembered), selected};
}

}  // namespace tolvanis
