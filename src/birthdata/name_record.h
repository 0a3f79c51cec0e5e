#pragma once
// One record of a names file: seven comma-separated fields.

#include <array>
#include <string>
#include <string_view>

#include "birthdata/natal_entry.h"
#include "platform/result.h"

namespace tolvanis {

struct NameRecord {
    std::string name;
    std::string date;       // "dd mmm yyyy"
    std::string time;       // packed hours on the 12-hour dial, "##.#0"
    std::string halfDay;    // "A" or "P"
    std::string timeZone;   // decimal hours, west positive, as typed
    std::string longitude;  // packed degrees, west positive, "#00#.#0"
    std::string latitude;   // packed degrees, north positive, "#0#.#0"

    friend bool operator==(const NameRecord&, const NameRecord&) = default;
};

// The record of a line. A fault says how many fields there are instead of seven. A record with an empty name,
// which ends a file, is returned with all fields empty whatever follows.
Result<NameRecord> ParseNameRecord(std::string_view line);

// The seven fields joined by commas, without a line end. A name that would not read back as it stands (one in
// quotes, say) is put in quotes.
std::string FormatNameRecord(const NameRecord& record);

// Whether all fields convert; a fault names the one that does not.
Result<void> CheckNameRecord(const NameRecord& record);

// The entry that a record describes. An hour from 13 to 23 is folded onto the dial when the half day is not
// "A". A fault names the field that is no date or no number. Packed values are split by truncation towards
// zero, their minutes rounded to whole numbers, and the sign of the time zone is kept whatever the
// hemisphere.
Result<NatalEntry> EntryFromRecord(const NameRecord& record);

// The record of an entry, the fields formatted as a names file holds them, the name without blanks around it.
NameRecord RecordFromEntry(const NatalEntry& entry);

}  // namespace tolvanis
