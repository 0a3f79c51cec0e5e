#pragma once
// A birth at a place of the atlas: its zone looked up, or chosen by the user.

#include <optional>
#include <string>

#include "birthdata/zone_advice.h"

namespace tolvanis {

// Where the zone of an entry comes from.
struct PlacedBirth {
    AtlasPlace place;
    double zone = 0.0;                   // hours, positive west, as used
    std::optional<ZoneReading> reading;  // nothing where the user has given a zone that was not in force
    std::string release;                 // of the zone history
    std::string note;                    // what the user should know, or empty
};

// Fills place and zone of an entry that holds date and time. A fault lists all candidates: places, or the
// readings where a time came twice or did not exist, or says that the zone of the place is not known; `zone`
// settles the time. One that was not in force there is taken with a note, but refused where an entry cannot
// hold it.
Result<PlacedBirth> PlaceBirth(const ZoneBook& book, const std::string& at, std::optional<double> zone,
                               NatalEntry& entry);

// The entry of the present moment there; `universal` is the present moment in Universal Time.
Result<PlacedBirth> PlacePresentMoment(const ZoneBook& book, const std::string& at,
                                       std::optional<double> zone, const LocalTime& universal,
                                       NatalEntry& entry);

}  // namespace tolvanis
