#pragma once
// Names files: the birth data of many people, one record a line.

#include <optional>

#include "birthdata/name_record.h"
#include "birthdata/record_list.h"
#include "platform/messages.h"

namespace tolvanis {

inline constexpr std::string_view kDefaultNamesFile = "NAMES.FIL";

// The records of a names file in front of the first one that cannot be read, in file order. The list ends
// there for every window and every save: a damaged line is to be seen and mended, not passed over, and a new
// record goes in front of it. (The commands tell of each record that they refuse, and read on.)
RecordList ReadNamesFile(const Path& path);
// The same of such a file's content.
RecordList NamesOfText(std::string_view content);

// Tells the user that a names file could not be read, or not to its end.
void TellNamesFault(const RecordFault& fault, Messages& messages);

std::string NameAt(const RecordList& names, std::size_t index);
NameRecord NameRecordAt(const RecordList& names, std::size_t index);

// The first record with exactly this name.
std::optional<std::size_t> FindName(const RecordList& names, std::string_view name);

// What the names window remembers while it is closed.
struct NamesState {
    bool locked = false;      // the list reopens at the remembered entry
    int rememberedIndex = 0;  // counted from 0
    bool justSaved = false;   // a record was appended since the last pick: the position is not restored
    bool savedHere = false;   // that record is the last of the current list
};

// Where a list of `count` entries reopens: at the record that was just saved in it, or, when it is locked, at
// the remembered entry, kept within the list; twelve below the top. Nothing when the list is empty or no
// position is to be restored.
struct ListPosition {
    int top = 0;
    int selected = 0;
};
std::optional<ListPosition> RestoredPosition(const NamesState& state, std::size_t count);

}  // namespace tolvanis
