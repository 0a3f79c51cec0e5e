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

// The zones that were in force, or those around a time that never was.
std::string InForce(const EntryReadings& found) {
    if (found.outcome() == ZoneOutcome::Unknown) return {};
    std::string text = found.outcome() == ZoneOutcome::Never ? "; the time did not exist there, around it: "
                                                             : "; in force: ";
    for (const ZoneReading& reading : found.Candidates()) {
        if (!text.ends_with(": ")) text += ", then ";
        text += "zone " + ZoneHoursText(HoursOfOffset(reading.offset)) + " " + ReadingText(reading);
    }
    return text;
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

void AddNote(PlacedBirth& birth, const std::string& note) {
    birth.note += (birth.note.empty() ? "" : "\n  ") + note;
}

// Where the zone of an entry would lie out of its range, the date moves by a day and the zone by 24 hours.
void SetZone(NatalEntry& entry, PlacedBirth& birth, const ClockMoment& clock, int offset) {
    const EntryZone zone = EntryZoneOf(offset, birth.place.place.degreesEast);
    birth.zone = zone.hours;
    entry.timeZone = NumberText(zone.hours);
    if (zone.days == 0) return;
    const ClockMoment moved = DaysLater(clock, zone.days);
    SetDate(entry, moved.date);
    AddNote(birth, birth.place.name + " keeps the date of the other side of the date line; the entry has " +
                       DateText(moved) + " with the zone " + NumberText(zone.hours));
}

// Whether an entry can hold a zone that clocks there did not show: beyond the range of entries only where the
// place keeps the date of that other side.
bool CanHold(const EntryReadings& found, double zone) {
    const double east = found.place.place.degreesEast;
    const int days = EntryZoneOf(OffsetOfHours(zone), east).days;
    return days == 0 || std::ranges::any_of(found.Candidates(), [&](const ZoneReading& reading) {
               return EntryZoneOf(reading.offset, east).days == days;
           });
}

// What the user should know of the zone that the look-up has found.
void NoteGrade(PlacedBirth& birth) {
    const ZoneGrade grade = birth.reading->grade;
    if (grade != ZoneGrade::Disputed && grade != ZoneGrade::Nearest) return;
    AddNote(birth, "zone " + ZoneHoursText(birth.zone) + " was taken for " + birth.place.FullName() + ". " +
                       GradeText(*birth.reading));
}

void SetPlace(NatalEntry& entry, const AtlasPlace& place) {
    FillPlace(entry, {place.Longitude(), place.Latitude(), entry.timeZone});
}

// A zone for the entry, and whether the user has chosen it or the look-up found it.
struct WantedZone {
    std::optional<double> hours;
    bool isChosen = false;
};

Result<PlacedBirth> PlaceBirthIn(const ZoneBook& book, const FoundPlace& place, const WantedZone& zone,
                                 NatalEntry& entry) {
    PlacedBirth birth{book.atlas.At(place.index), 0.0, std::nullopt, book.history.release(), {}};
    if (place.hasNamesakes)
        AddNote(birth, birth.place.NameAndCoordinates() + " was taken; smaller places have the same name");
    SetPlace(entry, birth.place);
    const auto clock = ClockOfEntry(entry);
    if (!clock) {
        // The checks of the entry say what is wrong with its date or time.
        entry.timeZone = NumberText(zone.hours.value_or(0.0));
        return birth;
    }
    const EntryReadings found = ReadingsAt(book, birth.place, *clock);
    if (const ZoneReading* reading = ReadingOf(found, zone.hours)) {
        birth.reading = *reading;
        SetZone(entry, birth, *clock, reading->offset);
        if (!zone.isChosen) NoteGrade(birth);
        return birth;
    }
    if (!zone.hours) return Undecided(found);
    const std::string hours = "zone " + ZoneHoursText(*zone.hours);
    const std::string where = birth.place.FullName() + " on " + MomentText(*clock) + InForce(found);
    if (!CanHold(found, *zone.hours)) return Fault{hours + " cannot be that of " + where};
    if (found.outcome() != ZoneOutcome::Unknown && !found.RanBeside(*zone.hours))
        AddNote(birth, hours + " was not in force in " + where);
    SetZone(entry, birth, *clock, OffsetOfHours(*zone.hours));
    return birth;
}

}  // namespace

Result<PlacedBirth> PlaceBirth(const ZoneBook& book, const std::string& at, std::optional<double> zone,
                               NatalEntry& entry) {
    const Result<FoundPlace> place = book.atlas.FindOne(ToUtf8(at));
    if (!place) return place.fault();
    return PlaceBirthIn(book, *place, {zone, zone.has_value()}, entry);
}

Result<PlacedBirth> PlacePresentMoment(const ZoneBook& book, const std::string& at,
                                       std::optional<double> zone, const LocalTime& universal,
                                       NatalEntry& entry) {
    const Result<FoundPlace> found = book.atlas.FindOne(ToUtf8(at));
    if (!found) return found.fault();
    const AtlasPlace place = book.atlas.At(found->index);
    const ClockMoment moment{universal.date,
                             universal.hour * 3600 + universal.minute * 60 + universal.second};
    const auto offset =
        zone ? OffsetOfHours(*zone) : OffsetAtUniversal(book.history, place.AsEntered(), moment);
    if (!offset) return Undecided(ReadingsAt(book, place, moment));
    const ClockMoment there = Later(moment, *offset);
    const LocalTime now{there.date, there.seconds / 3600, there.seconds / 60 % 60, there.seconds % 60};
    entry = FillNow(now, Options{});  // the home that it fills in gives way to the place
    return PlaceBirthIn(book, *found, {HoursOfOffset(*offset), zone.has_value()}, entry);
}

}  // namespace tolvanis
