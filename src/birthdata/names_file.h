#pragma once
// Names files: the birth data of many people, one record a line.

#include <functional>
#include <optional>

#include "birthdata/name_record.h"
#include "birthdata/record_list.h"
#include "platform/messages.h"

namespace tolvanis {

inline constexpr std::string_view kDefaultNamesFile = "NAMES.FIL";

// The readable records of a names file, in file order.
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
};

// Where a locked list of `count` entries reopens: the remembered entry, kept within the list, twelve below
// the top. Nothing when the list is empty or the position is not to be restored.
struct ListPosition {
    int top = 0;
    int selected = 0;
};
std::optional<ListPosition> RestoredPosition(const NamesState& state, std::size_t count);

// Saves an entry in the names file that `chooseFile` names (an empty text ends the saving): for every record
// of the same name, letter case aside, the user says whether the new one replaces it; the new record goes to
// the end. Returns whether it was saved; the user has been told why not.
//
// Every other line is kept as it is, also those that cannot be read as records; only in the list itself a
// line that is not UTF-8 is rewritten in it, one that ends in a bare CR or not at all gets CR LF, and the
// marks that LineText drops go. A line that ends the list for every reader (one with an empty name, one that
// is no record) gets the new record in front of it, because behind it nobody would see it. Unless the list
// then reads back with every record it had and the new one, nothing is saved. The file is replaced as a whole
// and its previous content kept under BackupPath. When another program changes the file between the reading
// and the replacing, the saving is done again from its new content.
//
// An entry that would not read back as it was typed (an empty name, a year of five digits, a time zone that
// is no number) is refused, because it would end the list for every reader.
bool SaveRecord(const NatalEntry& entry, const std::function<std::string()>& chooseFile, Messages& messages);

}  // namespace tolvanis
