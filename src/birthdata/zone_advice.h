#pragma once
// What the zone history has to say to a natal entry.

#include <optional>
#include <string>

#include "birthdata/atlas.h"
#include "birthdata/natal_entry.h"
#include "birthdata/zone_lookup.h"
#include "platform/data_files.h"

namespace tolvanis {

// Zone history and atlas together.
struct ZoneBook {
    ZoneHistory history;
    Atlas atlas;

    // Reads both delivered files. A fault names the file that cannot be read.
    static Result<ZoneBook> Open(const DataFiles& files);
};

// Date and clock time of an entry; nothing while its boxes hold none.
std::optional<ClockMoment> ClockOfEntry(const NatalEntry& entry);

// The zone of an offset as an entry takes it. Places in west longitude that keep the date of the east, and
// the reverse, are entered with the clock time of `days` days later.
struct EntryZone {
    double hours = 0.0;  // positive west
    int days = 0;
};
EntryZone EntryZoneOf(int offset, double degreesEast);

// What the zone history has of a clock time.
enum class ZoneOutcome {
    One,      // one zone was in force
    Twice,    // the clocks were put back over it
    Never,    // they jumped over it
    Unknown,  // the zone history does not have the zone of the place
};

// What was in force at a place when its clocks showed a time.
struct EntryReadings {
    AtlasPlace place;  // at its coordinates as an entry has them
    ClockMoment clock;
    ZoneAnswer answer;

    ZoneOutcome outcome() const;
    // The readings, or those around a time that never was.
    const std::vector<ZoneReading>& Candidates() const;

    // The hours that the entry's boxes take for one of the readings.
    double HoursOf(const ZoneReading& reading) const;
    // The reading that has these hours, to the second.
    const ZoneReading* WithZone(double hours) const;
    // Whether these are the hours of another clock that people there lived by.
    bool RanBeside(double hours) const;
};
EntryReadings ReadingsAt(const ZoneBook& book, AtlasPlace place, const ClockMoment& clock);

// The readings where and when an entry says: at the place nearest to its coordinates within 60 km, taken at
// the coordinates themselves. Nothing while the entry is not complete, or in the middle of the sea.
std::optional<EntryReadings> ReadingsOfEntry(const ZoneBook& book, const NatalEntry& entry);

// What the clocks of a place, called by this name, did: "5 Apr 1951 2:30 A.M. did not exist in Atlanta".
// Without a full stop.
std::string WhatHappened(const EntryReadings& found, const std::string& place);

// One line for below the boxes; an empty text when the zone typed is the one in force, or nothing is known.
struct ZoneAdvice {
    std::string text;
    std::string zone;  // to be taken over; empty where there is not exactly one
};
ZoneAdvice AdviseZone(const ZoneBook& book, const NatalEntry& entry);

// A reading in words: "daylight saving (EDT)".
std::string ReadingText(const ZoneReading& reading);
// Its grade and the reason: "Sure: the clocks ...".
std::string GradeText(const ZoneReading& reading);

}  // namespace tolvanis
