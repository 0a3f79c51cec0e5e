#pragma once
// The table of time zones: name, abbreviation and offset in hours, west of Greenwich positive.

#include <optional>
#include <string>

#include "birthdata/record_list.h"
#include "platform/messages.h"

namespace tolvanis {

inline constexpr std::string_view kTimeZoneFile = "TZ.DAT";

// The readable records of the table. A name of more than 32 characters or an abbreviation of more than four,
// for which the list has no room, counts as one that cannot be read.
RecordList ReadTimeZones(const Path& path);

// Tells the user that the table is damaged, or that it cannot be read at all.
void TellTimeZoneFault(const RecordFault& fault, Messages& messages);
void TellTimeZonesCorrupt(Messages& messages);

// The line of the list: name, " - ", abbreviation, " =" and offset, each in its column.
std::string TimeZoneLineAt(const RecordList& zones, std::size_t index);

struct ZoneChoice {
    std::string timeZone;  // the offset as a plain number
    bool east = false;     // the offset is negative
};

// What a click on a line of the list chooses: the first zone whose name is the line's text in front of its
// first hyphen. Nothing for a name that itself holds one.
std::optional<ZoneChoice> ChooseTimeZone(const RecordList& zones, std::string_view line);

}  // namespace tolvanis
