#include "birthdata/zone_advice.h"

#include <algorithm>

#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr double kMostKm = 60.0;

std::optional<double> Degrees(const std::string& degrees, const std::string& minutes, int most,
                              bool negative) {
    const auto whole = WholeNumberIn(degrees, 0, most);
    const auto sixtieths = WholeNumberIn(minutes, 0, 59);
    if (!whole || !sixtieths) return std::nullopt;
    const double value = *whole + *sixtieths / 60.0;
    return negative ? -value : value;
}

std::string ZoneWords(const EntryReadings& found, const ZoneReading& reading) {
    return "zone " + ZoneHoursText(found.HoursOf(reading));
}

// What makes a reading less than sure, for the end of a line.
std::string Doubt(const ZoneReading& reading) {
    const bool sure = reading.grade == ZoneGrade::Sure || reading.grade == ZoneGrade::Reference ||
                      reading.grade == ZoneGrade::Local;
    return sure ? std::string() : ". " + GradeText(reading);
}

std::string OneAfterTheOther(const EntryReadings& found) {
    std::string text;
    for (const ZoneReading& reading : found.answer.readings) {
        if (!text.empty()) text += ", then ";
        text += ZoneWords(found, reading) + " (" + std::string(KindText(reading.kind)) + ")";
    }
    return text;
}

std::string Jump(const EntryReadings& found) {
    const ZoneReading& last = found.answer.around.front();
    const ZoneReading& first = found.answer.around.back();
    const bool sameDay = last.clock.date == first.clock.date;
    return "clocks went from " + ClockText(last.clock) + " (" + ZoneWords(found, last) + ") to " +
           (sameDay ? ClockText(first.clock) : MomentText(first.clock)) + " (" + ZoneWords(found, first) +
           ")";
}

std::string ZonesText(const EntryReadings& found) {
    switch (found.outcome()) {
        case ZoneOutcome::One:
            return ZoneWords(found, found.answer.readings.front());
        case ZoneOutcome::Twice:
            return OneAfterTheOther(found);
        case ZoneOutcome::Never:
            return Jump(found);
        case ZoneOutcome::Unknown:
            break;
    }
    return {};
}

}  // namespace

Result<ZoneBook> ZoneBook::Open(const DataFiles& files) {
    Result<ZoneHistory> history = ZoneHistory::Read(files.Find(kZoneHistoryFile));
    if (!history) return history.fault();
    Result<Atlas> atlas = Atlas::Read(files.Find(kAtlasFile));
    if (!atlas) return atlas.fault();
    return ZoneBook{std::move(*history), std::move(*atlas)};
}

std::optional<ClockMoment> ClockOfEntry(const NatalEntry& entry) {
    const auto year = WholeNumberIn(entry.year, 100, 2099);
    const auto month = WholeNumberIn(entry.month, 1, 12);
    const auto day = WholeNumberIn(entry.day, 1, 31);
    const auto hour = WholeNumberIn(entry.birthHour, 1, 12);
    const auto minute = WholeNumberIn(entry.birthMinute, 0, 59);
    if (!year || !month || !day || !hour || !minute) return std::nullopt;
    const int hours = *hour % 12 + (entry.pm ? 12 : 0);
    return ClockMoment{{*year, *month, *day}, hours * 3600 + *minute * 60};
}

EntryZone EntryZoneOf(int offset, double degreesEast) {
    const double hours = HoursOfOffset(offset);
    if (hours < -13.0 || (degreesEast < 0.0 && hours < -2.0)) return {hours + 24.0, -1};
    if (hours > 12.0) return {hours - 24.0, 1};
    return {hours, 0};
}

ZoneOutcome EntryReadings::outcome() const {
    if (answer.readings.size() == 1) return ZoneOutcome::One;
    if (!answer.readings.empty()) return ZoneOutcome::Twice;
    return answer.around.empty() ? ZoneOutcome::Unknown : ZoneOutcome::Never;
}

const std::vector<ZoneReading>& EntryReadings::Candidates() const {
    return answer.readings.empty() ? answer.around : answer.readings;
}

double EntryReadings::HoursOf(const ZoneReading& reading) const {
    return EntryZoneOf(reading.offset, place.place.degreesEast).hours;
}

const ZoneReading* EntryReadings::WithZone(double hours) const {
    const auto& readings = answer.readings;
    const auto fits = [&](const ZoneReading& reading) { return IsSameZone(HoursOf(reading), hours); };
    const auto found = std::ranges::find_if(readings, fits);
    return found != readings.end() ? &*found : nullptr;
}

bool EntryReadings::RanBeside(double hours) const {
    return std::ranges::any_of(answer.beside, [&](int offset) {
        return IsSameZone(EntryZoneOf(offset, place.place.degreesEast).hours, hours);
    });
}

EntryReadings ReadingsAt(const ZoneBook& book, AtlasPlace place, const ClockMoment& clock) {
    place.place = place.AsEntered();
    ZoneAnswer answer = LookUpZone(book.history, place.place, clock);
    return {std::move(place), clock, std::move(answer)};
}

std::optional<EntryReadings> ReadingsOfEntry(const ZoneBook& book, const NatalEntry& entry) {
    const auto clock = ClockOfEntry(entry);
    const auto east = Degrees(entry.longDeg, entry.longMin, 180, !entry.east);
    const auto north = Degrees(entry.latDeg, entry.latMin, 90, entry.south);
    if (!clock || !east || !north) return std::nullopt;
    const auto nearest = book.atlas.Nearest(*north, *east, kMostKm);
    if (!nearest) return std::nullopt;
    AtlasPlace place = book.atlas.At(*nearest);
    place.place.degreesNorth = *north;
    place.place.degreesEast = *east;
    EntryReadings found = ReadingsAt(book, place, *clock);
    if (found.outcome() == ZoneOutcome::Unknown) return found;
    // Beyond the date line an entry holds the date of another day.
    const int days = EntryZoneOf(found.Candidates().front().offset, *east).days;
    if (days == 0) return found;
    EntryReadings shifted = ReadingsAt(book, place, DaysLater(*clock, -days));
    const auto isShifted = [&](const ZoneReading& reading) {
        return EntryZoneOf(reading.offset, *east).days == days;
    };
    return std::ranges::all_of(shifted.answer.readings, isShifted) ? shifted : found;
}

std::string WhatHappened(const EntryReadings& found, const std::string& place) {
    switch (found.outcome()) {
        case ZoneOutcome::One:
            return DateText(found.clock) + " " + std::string(KindText(found.answer.readings.front().kind)) +
                   " was in force in " + place;
        case ZoneOutcome::Twice:
            return MomentText(found.clock) + " came twice in " + place;
        case ZoneOutcome::Never:
            return MomentText(found.clock) + " did not exist in " + place;
        case ZoneOutcome::Unknown:
            break;
    }
    return "the zone history knows nothing of the zone " + found.place.place.zone;
}

ZoneAdvice AdviseZone(const ZoneBook& book, const NatalEntry& entry) {
    const auto found = ReadingsOfEntry(book, entry);
    if (!found || found->outcome() == ZoneOutcome::Unknown) return {};
    const bool isOne = found->outcome() == ZoneOutcome::One;
    const auto typed = EntireNumber(entry.timeZone);
    if (isOne && typed && found->WithZone(*typed) != nullptr) return {};
    const ZoneReading& first = found->Candidates().front();
    return {"On " + WhatHappened(*found, found->place.name) + ": " + ZonesText(*found) + Doubt(first),
            isOne ? ZoneHoursText(found->HoursOf(first)) : std::string()};
}

std::string ReadingText(const ZoneReading& reading) {
    const std::string abbreviation = reading.abbreviation;
    const bool isWord = !abbreviation.empty() && abbreviation.find_first_of("+-") == std::string::npos;
    return std::string(KindText(reading.kind)) + (isWord ? " (" + abbreviation + ")" : "");
}

std::string GradeText(const ZoneReading& reading) {
    constexpr std::string_view kGrades[] = {"Sure: ", "Reference city: ", "Not certain: ", "Disputed: ", ""};
    std::string text = std::string(kGrades[static_cast<std::size_t>(reading.grade)]) + reading.reason;
    return text.replace(0, 1, UpperCase(text.substr(0, 1)));
}

}  // namespace tolvanis
