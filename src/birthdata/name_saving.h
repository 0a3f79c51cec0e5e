#pragma once
// Saving of a record into a names file.

#include <functional>
#include <optional>
#include <string>

#include "birthdata/natal_entry.h"
#include "platform/files.h"
#include "platform/messages.h"

namespace tolvanis {

struct SaveOutcome {
    std::optional<Path> file;             // into which the record was saved
    std::optional<EntryField> toCorrect;  // where the user corrects a refused entry first

    explicit operator bool() const { return file.has_value(); }
};

// Saves an entry in the names file that `chooseFile` names (an empty text ends the saving): for every record
// of the same name, letter case aside, the user says whether the new one replaces it; the new record goes to
// the end of the list. Where nothing was saved, the user has been told why.
//
// Every other line is kept as it is, also those that cannot be read as records; only in the list itself a
// line that is not UTF-8 is rewritten in it, one that ends in a bare CR or not at all gets CR LF, and the
// marks that LineText drops go. A line that ends the list for every reader (one with an empty name, one that
// is no record) gets the new record in front of it, because behind it nobody would see it. Unless the list
// then reads back with every record it had and the new one, nothing is saved. The file is replaced as a whole
// and its previous content kept under BackupPath. When another program changes the file between the reading
// and the replacing, the saving is done again from its new content.
//
// An entry that no chart could be computed of, whatever the house system, is refused: an empty minute would
// be saved as an exact one, a minute of 77 could never be computed. So is one that would not read back as it
// was typed (an empty name, a time zone that is no number), because it would end the list for every reader.
SaveOutcome SaveRecord(const NatalEntry& entry, const std::function<std::string()>& chooseFile,
                       Messages& messages);

}  // namespace tolvanis
