#include "birthdata/zone_advice.h"

#include <algorithm>
#include <cmath>

#include "chart/angles.h"
#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr double kMostKm = 60.0;
constexpr double kOneSecond = 1.0 / 3600.0;

std::optional<double> Degrees(const std::string& degrees, const std::string& minutes, int most,
                              bool negative) {
    const auto whole = WholeNumberIn(degrees, 0, most);
    const auto sixtieths = WholeNumberIn(minutes, 0, 59);
    if (!whole || !sixtieths) return std::nullopt;
    const double value = *whole + *sixtieths / 60.0;
    return negative ? -value : value;
}

std::string DateText(const ClockMoment& clock) {
    std::string date = FormatDate(clock.date);
    return date.starts_with('0') ? date.substr(1) : date;
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

ZoneAdvice OneReading(const EntryReadings& found, const ZoneReading& reading) {
    return {"On " + DateText(reading.clock) + " " + std::string(KindText(reading.kind)) +
                " was in force in " + found.place.name + ": " + ZoneWords(found, reading) + Doubt(reading),
            ZoneHoursText(found.HoursOf(reading))};
}

ZoneAdvice TwoReadings(const EntryReadings& found) {
    std::string text = "On " + DateText(found.clock) + " " + ClockText(found.clock) + " came twice in " +
                       found.place.name + ": ";
    for (const ZoneReading& reading : found.answer.readings) {
        if (&reading != &found.answer.readings.front()) text += ", then ";
        text += ZoneWords(found, reading) + " (" + std::string(KindText(reading.kind)) + ")";
    }
    return {text + Doubt(found.answer.readings.front()), {}};
}

ZoneAdvice NoReading(const EntryReadings& found) {
    const auto& around = found.answer.around;
    if (around.size() < 2) return {};
    const bool sameDay = around.front().clock.date == around.back().clock.date;
    return {"On " + DateText(found.clock) + " " + ClockText(found.clock) + " did not exist in " +
                found.place.name + ": clocks went from " + ClockText(around.front().clock) + " (" +
                ZoneWords(found, around.front()) + ") to " +
                (sameDay ? "" : DateText(around.back().clock) + " ") + ClockText(around.back().clock) + " (" +
                ZoneWords(found, around.back()) + ")" + Doubt(around.front()),
            {}};
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
    const double hours = -offset / 3600.0;
    if (hours < -13.0 || (degreesEast < 0.0 && hours < -2.0)) return {hours + 24.0, -1};
    if (hours > 12.0) return {hours - 24.0, 1};
    return {hours == 0.0 ? 0.0 : hours, 0};
}

double EntryReadings::HoursOf(const ZoneReading& reading) const {
    return EntryZoneOf(reading.offset, place.place.degreesEast).hours;
}

const ZoneReading* EntryReadings::WithZone(double hours) const {
    const auto& readings = answer.readings;
    const auto fits = [&](const ZoneReading& reading) {
        return std::abs(HoursOf(reading) - hours) < kOneSecond;
    };
    const auto found = std::ranges::find_if(readings, fits);
    return found != readings.end() ? &*found : nullptr;
}

std::optional<EntryReadings> ReadingsOfEntry(const ZoneBook& book, const NatalEntry& entry) {
    const auto clock = ClockOfEntry(entry);
    const auto east = Degrees(entry.longDeg, entry.longMin, 180, !entry.east);
    const auto north = Degrees(entry.latDeg, entry.latMin, 90, entry.south);
    if (!clock || !east || !north) return std::nullopt;
    const auto nearest = book.atlas.Nearest(*north, *east, kMostKm);
    if (!nearest) return std::nullopt;
    EntryReadings found{book.atlas.At(*nearest), *clock, {}};
    found.place.place.degreesNorth = *north;
    found.place.place.degreesEast = *east;
    found.answer = LookUpZone(book.history, found.place.place, *clock);
    // Beyond the date line an entry holds the date of another day.
    const auto& readings = found.answer.readings.empty() ? found.answer.around : found.answer.readings;
    if (readings.empty()) return found;
    const int days = EntryZoneOf(readings.front().offset, *east).days;
    if (days == 0) return found;
    const ZoneAnswer shifted = LookUpZone(book.history, found.place.place, DaysLater(*clock, -days));
    const auto isShifted = [&](const ZoneReading& reading) {
        return EntryZoneOf(reading.offset, *east).days == days;
    };
    if (std::ranges::all_of(shifted.readings, isShifted)) {
        found.clock = DaysLater(*clock, -days);
        found.answer = shifted;
    }
    return found;
}

ZoneAdvice AdviseZone(const ZoneBook& book, const NatalEntry& entry) {
    const auto found = ReadingsOfEntry(book, entry);
    if (!found) return {};
    const auto& readings = found->answer.readings;
    if (readings.empty()) return NoReading(*found);
    if (readings.size() > 1) return TwoReadings(*found);
    const auto typed = EntireNumber(entry.timeZone);
    if (typed && found->WithZone(*typed) != nullptr) return {};
    return OneReading(*found, readings.front());
}

std::string ReadingText(const ZoneReading& reading) {
    const std::string abbreviation = reading.abbreviation;
    const bool isWord = !abbreviation.empty() && abbreviation.find_first_of("+-") == std::string::npos;
    return std::string(KindText(reading.kind)) + (isWord ? " (" + abbreviation + ")" : "");
}

std::string GradeText(const ZoneReading& reading) {
    std::string text = reading.reason;
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z') text.front() -= 32;
    constexpr std::string_view kGrades[] = {"Sure: ", "Reference city: ", "Not certain: ", "Disputed: ", ""};
    return std::string(kGrades[static_cast<std::size_t>(reading.grade)]) +
           (reading.grade == ZoneGrade::Local ? text : reading.reason);
}

}  // namespace tolvanis
