#include "app/placed_birth.h"

#include <algorithm>
#include <cmath>

#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

std::string Described(const ZoneReading& reading) {
    return "\n  zone " + ZoneHoursText(-reading.offset / 3600.0) + ": " + ClockText(reading.clock) + " " +
           ReadingText(reading) + ", " + GradeText(reading);
}

Fault Undecided(const EntryReadings& found) {
    const bool twice = !found.answer.readings.empty();
    if (!twice && found.answer.around.empty())
        return {"the zone history knows nothing of the zone " + found.place.place.zone};
    std::string text = FormatDate(found.clock.date) + " " + ClockText(found.clock) +
                       (twice ? " came twice in " : " did not exist in ") + found.place.FullName() +
                       "; --zone settles it:";
    for (const ZoneReading& reading : twice ? found.answer.readings : found.answer.around) {
        text += Described(reading);
    }
    return {text};
}

// The reading that the user means; `zone` is what clocks there showed, or what an entry takes for it.
const ZoneReading* ReadingOf(const EntryReadings& found, std::optional<double> zone) {
    const auto& readings = found.answer.readings;
    if (!zone) return readings.size() == 1 ? &readings.front() : nullptr;
    const auto fits = [&](const ZoneReading& reading) {
        return std::abs(-reading.offset / 3600.0 - *zone) < 1.0 / 3600.0;
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
    SetDate(entry, DaysLater(clock, zone.days).date);
    birth.note = birth.place.name + " keeps the date of the other side of the date line; the entry has " +
                 FormatDate(DaysLater(clock, zone.days).date) + " with the zone " + NumberText(zone.hours);
}

void SetPlace(NatalEntry& entry, const AtlasPlace& place) {
    FillPlace(entry, {place.Longitude(), place.Latitude(), entry.timeZone});
}

}  // namespace

Result<PlacedBirth> PlaceBirth(const ZoneBook& book, const std::string& at, std::optional<double> zone,
                               NatalEntry& entry) {
    const Result<std::size_t> place = book.atlas.FindOne(ToUtf8(at));
    if (!place) return place.fault();
    PlacedBirth birth{book.atlas.At(*place), 0.0, std::nullopt, book.history.release(), {}};
    SetPlace(entry, birth.place);
    const auto clock = ClockOfEntry(entry);
    if (!clock) {
        // The checks of the entry say what is wrong with its date or time.
        entry.timeZone = NumberText(zone.value_or(0.0));
        return birth;
    }
    const EntryReadings found{birth.place, *clock, LookUpZone(book.history, birth.place.AsEntered(), *clock)};
    const ZoneReading* reading = ReadingOf(found, zone);
    if (reading == nullptr && !zone) return Undecided(found);
    if (reading != nullptr) birth.reading = *reading;
    SetZone(entry, birth, *clock,
            reading != nullptr ? reading->offset : static_cast<int>(std::lround(*zone * -3600.0)));
    return birth;
}

Result<PlacedBirth> PlacePresentMoment(const ZoneBook& book, const std::string& at,
                                       std::optional<double> zone, const LocalTime& universal,
                                       const Options& options, NatalEntry& entry) {
    const Result<std::size_t> place = book.atlas.FindOne(ToUtf8(at));
    if (!place) return place.fault();
    const ClockMoment moment{universal.date,
                             universal.hour * 3600 + universal.minute * 60 + universal.second};
    const ZonePlace entered = book.atlas.At(*place).AsEntered();
    const int offset = zone ? static_cast<int>(std::lround(*zone * -3600.0))
                            : OffsetAtUniversal(book.history, entered, moment);
    const ClockMoment there = Later(moment, offset);
    entry = FillNow({there.date, there.seconds / 3600, there.seconds / 60 % 60, there.seconds % 60}, options);
    return PlaceBirth(book, at, -offset / 3600.0, entry);
}

}  // namespace tolvanis
