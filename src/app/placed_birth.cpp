#include "app/placed_birth.h"

#include <algorithm>

#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

std::string Described(const ZoneReading& reading) {
    return "\n  zone " + ZoneHoursText(HoursOfOffset(reading.offset)) + ": " + ClockText(reading.clock) +
           " " + ReadingText(reading) + ", " + GradeText(reading);
}

Fault Undecided(const EntryReadings& found) {
    std::string text = WhatHappened(found, found.place.FullName());
    if (found.outcome() != ZoneOutcome::Unknown) text += "; --zone settles it:";
    for (const ZoneReading& reading : found.Candidates()) text += Described(reading);
    return {text};
}

// The reading that the user means; `zone` is what clocks there showed, or what an entry takes for it.
const ZoneReading* ReadingOf(const EntryReadings& found, std::optional<double> zone) {
    const auto& readings = found.answer.readings;
    if (!zone) return readings.size() == 1 ? &readings.front() : nullptr;
    const auto fits = [&](const ZoneReading& reading) {
        return IsSameZone(HoursOfOffset(reading.offset), *zone);
    };
    const auto& around = found.answer.around;
    if (const auto known = std::ranges::find_if(readings, fits); known != readings.end()) return &*known;
    if (const auto known = std::ranges::find_if(around, fits); known != around.end()) return &*known;
    return found.WithZone(*zone);
}

void SetDate(NatalEntry& entry, const CalendarDate& date) {
    entry.year = std::to_string(date.year);
    entry.month = std::to_string(date.month);
    entry.day = std::to_string(date.day);
}

// Where the zone of an entry would lie out of its range, the date moves by a day and the zone by 24 hours.
void SetZone(NatalEntry& entry, PlacedBirth& birth, const ClockMoment& clock, int offset) {
    const EntryZone zone = EntryZoneOf(offset, birth.place.place.degreesEast);
    birth.zone = zone.hours;
    entry.timeZone = NumberText(zone.hours);
    if (zone.days == 0) return;
    const ClockMoment moved = DaysLater(clock, zone.days);
    SetDate(entry, moved.date);
    birth.note = birth.place.name + " keeps the date of the other side of the date line; the entry has " +
                 DateText(moved) + " with the zone " + NumberText(zone.hours);
}

void SetPlace(NatalEntry& entry, const AtlasPlace& place) {
    FillPlace(entry, {place.Longitude(), place.Latitude(), entry.timeZone});
}

Result<PlacedBirth> PlaceBirthIn(const ZoneBook& book, const AtlasPlace& place, std::optional<double> zone,
                                 NatalEntry& entry) {
    PlacedBirth birth{place, 0.0, std::nullopt, book.history.release(), {}};
    SetPlace(entry, place);
    const auto clock = ClockOfEntry(entry);
    if (!clock) {
        // The checks of the entry say what is wrong with its date or time.
        entry.timeZone = NumberText(zone.value_or(0.0));
        return birth;
    }
    const EntryReadings found = ReadingsAt(book, place, *clock);
    const ZoneReading* reading = ReadingOf(found, zone);
    if (reading == nullptr && !zone) return Undecided(found);
    if (reading != nullptr) birth.reading = *reading;
    SetZone(entry, birth, *clock, reading != nullptr ? reading->offset : OffsetOfHours(*zone));
    return birth;
}

}  // namespace

Result<PlacedBirth> PlaceBirth(const ZoneBook& book, const std::string& at, std::optional<double> zone,
                               NatalEntry& entry) {
    const Result<std::size_t> place = book.atlas.FindOne(ToUtf8(at));
    if (!place) return place.fault();
    return PlaceBirthIn(book, book.atlas.At(*place), zone, entry);
}

Result<PlacedBirth> PlacePresentMoment(const ZoneBook& book, const std::string& at,
                                       std::optional<double> zone, const LocalTime& universal,
                                       NatalEntry& entry) {
    const Result<std::size_t> found = book.atlas.FindOne(ToUtf8(at));
    if (!found) return found.fault();
    const AtlasPlace place = book.atlas.At(*found);
    const ClockMoment moment{universal.date,
                             universal.hour * 3600 + universal.minute * 60 + universal.second};
    const auto offset =
        zone ? OffsetOfHours(*zone) : OffsetAtUniversal(book.history, place.AsEntered(), moment);
    if (!offset) return Undecided(ReadingsAt(book, place, moment));
    const ClockMoment there = Later(moment, *offset);
    const LocalTime now{there.date, there.seconds / 3600, there.seconds / 60 % 60, there.seconds % 60};
    entry = FillNow(now, Options{});  // the home that it fills in gives way to the place
    return PlaceBirthIn(book, place, HoursOfOffset(*offset), entry);
}

}  // namespace tolvanis
