#include "birthdata/name_record.h"

#include <cmath>

#include "birthdata/record_list.h"
#include "chart/angles.h"
#include "text/columns.h"
#include "text/dates.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr std::size_t kFieldCount = 7;

Fault FieldFault(int number, std::string_view label, std::string_view text, std::string_view problem) {
    return {"field " + std::to_string(number) + " (" + std::string(label) + "): \"" + std::string(text) +
            "\" " + std::string(problem)};
}

struct PackedParts {
    std::string whole;
    std::string sixtieths;
};

PackedParts SplitPacked(double value) {
    const double whole = std::trunc(value);
    const double sixtieths = std::abs(value - whole) * 100.0;
    return {NumberText(std::abs(whole)), FormatMask(sixtieths, "#0")};
}

double PackedNumber(const std::string& whole, const std::string& sixtieths, bool negative) {
    return PackedOf(RoundToInt16(LeadingNumber(whole)), RoundToInt16(LeadingNumber(sixtieths)), negative);
}

struct BirthNumbers {
    CalendarDate date;
    double time = 0.0;
    double timeZone = 0.0;
    double longitude = 0.0;
    double latitude = 0.0;
};

Result<BirthNumbers> NumbersOf(const NameRecord& record) {
    const auto date = ParseDate(record.date);
    if (!date) return FieldFault(2, "birth date", record.date, "is no date of the form dd mmm yyyy");
    const auto time = EntireNumber(record.time);
    if (!time) return FieldFault(3, "clock time", record.time, "is no number");
    // Hours of the 24-hour clock are folded onto the dial, unless the record contradicts itself.
    const bool onDial = *time >= 0 && *time < 13;
    const bool foldable = *time >= 13 && *time < 24 && !EqualIgnoringCase(record.halfDay, "A");
    if (!onDial && !foldable) {
        return FieldFault(3, "clock time", record.time, "is no time on the 12-hour dial");
    }
    const auto zone = EntireNumber(record.timeZone);
    if (!zone) return FieldFault(5, "time zone", record.timeZone, "is no number");
    const auto longitude = EntireNumber(record.longitude);
    if (!longitude) return FieldFault(6, "longitude", record.longitude, "is no number");
    const auto latitude = EntireNumber(record.latitude);
    if (!latitude) return FieldFault(7, "latitude", record.latitude, "is no number");
    return BirthNumbers{*date, *time, *zone, *longitude, *latitude};
}

}  // namespace

Result<NameRecord> ParseNameRecord(std::string_view line) {
    std::vector<std::string> fields = SplitFields(line);
    if (fields.front().empty()) return NameRecord{};
    if (fields.size() != kFieldCount) {
        return Fault{"the record has " + WrongFieldCount(fields.size(), kFieldCount) +
                     (fields.size() > kFieldCount ? " (a name cannot hold a comma)" : "")};
    }
    return NameRecord{fields[0], fields[1], fields[2], fields[3], fields[4], fields[5], fields[6]};
}

std::string FormatNameRecord(const NameRecord& record) {
    std::string line = QuotedWhereNeeded(record.name);
    for (const std::string* field : {&record.date, &record.time, &record.halfDay, &record.timeZone,
                                     &record.longitude, &record.latitude}) {
        line.append(",").append(*field);
    }
    return line;
}

Result<void> CheckNameRecord(const NameRecord& record) {
    const Result<BirthNumbers> numbers = NumbersOf(record);
    if (!numbers) return numbers.fault();
    return {};
}

Result<NatalEntry> EntryFromRecord(const NameRecord& record) {
    const Result<BirthNumbers> numbers = NumbersOf(record);
    if (!numbers) return numbers.fault();

    NatalEntry entry;
    entry.name = record.name;
    entry.day = std::to_string(numbers->date.day);
    entry.month = std::to_string(numbers->date.month);
    entry.year = std::to_string(numbers->date.year);
    const PackedParts clock = SplitPacked(numbers->time);
    entry.birthHour = ApplyHourRule(clock.whole).text;
    entry.birthMinute = clock.sixtieths;
    entry.pm = !EqualIgnoringCase(record.halfDay, "A");
    entry.timeZone = NumberText(numbers->timeZone);
    const PackedParts longitude = SplitPacked(numbers->longitude);
    entry.longDeg = longitude.whole;
    entry.longMin = longitude.sixtieths;
    entry.east = numbers->longitude < 0;
    const PackedParts latitude = SplitPacked(numbers->latitude);
    entry.latDeg = latitude.whole;
    entry.latMin = latitude.sixtieths;
    entry.south = numbers->latitude < 0;
    return entry;
}

NameRecord RecordFromEntry(const NatalEntry& entry) {
    const auto number = [](const std::string& text) { return int{RoundToInt16(LeadingNumber(text))}; };
    NameRecord record;
    record.name = TrimBlanks(entry.name);
    record.date = FormatDate({number(entry.year), number(entry.month), number(entry.day)});
    record.time = FormatMask(PackedNumber(entry.birthHour, entry.birthMinute, false), "##.#0");
    record.halfDay = entry.pm ? "P" : "A";
    record.timeZone = entry.timeZone;
    record.longitude = FormatMask(PackedNumber(entry.longDeg, entry.longMin, entry.east), "#00#.#0");
    record.latitude = FormatMask(PackedNumber(entry.latDeg, entry.latMin, entry.south), "#0#.#0");
    return record;
}

}  // namespace tolvanis
