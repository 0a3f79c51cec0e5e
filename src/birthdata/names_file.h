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

// The name under which a names file's previous content is kept: the path with its last three characters
// replaced by "OLD". Where that would be the file itself, or a name of three characters and less, ".OLD" is
// appended.
Path NamesBackupPath(const Path& file);

// Saves an entry in the names file that `chooseFile` names (an empty text ends the saving): for every record
// of the same name, letter case aside, the user says whether the new one replaces it; the new record goes to
// the end. Returns whether it was saved; the user has been told why not.
//
// Every other line is kept byte for byte, also those that cannot be read as records; only a line that is not
// UTF-8 is rewritten in it, and a last line without a line end gets one. Where the file has a record with an
// empty name, which ends the list for every reader, the new record goes in front of that one. The file is
// replaced as a whole and its previous content kept under NamesBackupPath. When another program changes the
// file between the reading and the replacing, the saving is done again from its new content.
//
// An entry that would not read back as it was typed (an empty name, a year of five digits, a time zone that
// is no number) is refused, because it would end the list for every reader.
bool SaveRecord(const NatalEntry& entry, const std::function<std::string()>& chooseFile, Messages& messages);

}  // namespace tolvanis
