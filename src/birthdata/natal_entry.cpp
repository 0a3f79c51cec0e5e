#include "birthdata/natal_entry.h"

#include <cmath>
#include <span>

#include "chart/angles.h"
#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr std::string_view kPolarLatitudeText =
    "Your latitude is too high. Lower to 66 degrees, 00 minutes or below OR change house systems.";

// Where the options hold the place of the home: degrees and minutes; other than 0 is east or south.
enum HomeOption : int {
    kHomeLongDegOption = 19,
    kHomeLongMinOption = 20,
    kHomeEastOption = 21,
    kHomeLatDegOption = 22,
    kHomeLatMinOption = 23,
    kHomeSouthOption = 24,
};

struct Box {
    EntryField field;
    std::string NatalEntry::*text;
    std::string_view label;
};

constexpr Box kMonth = {EntryField::Month, &NatalEntry::month, "birth month"};
constexpr Box kDay = {EntryField::Day, &NatalEntry::day, "birth day"};
constexpr Box kYear = {EntryField::Year, &NatalEntry::year, "birth year"};
constexpr Box kHour = {EntryField::BirthHour, &NatalEntry::birthHour, "birth hour"};
constexpr Box kMinute = {EntryField::BirthMinute, &NatalEntry::birthMinute, "birth minute"};
constexpr Box kZone = {EntryField::TimeZone, &NatalEntry::timeZone, "time zone"};
constexpr Box kLongDeg = {EntryField::LongDeg, &NatalEntry::longDeg, "longitude degrees"};
constexpr Box kLongMin = {EntryField::LongMin, &NatalEntry::longMin, "longitude minutes"};
constexpr Box kLatDeg = {EntryField::LatDeg, &NatalEntry::latDeg, "latitude degrees"};
constexpr Box kLatMin = {EntryField::LatMin, &NatalEntry::latMin, "latitude minutes"};

// Boxes whose faults are reported together as one.
constexpr Box kDate[] = {kMonth, kDay, kYear};
constexpr Box kTime[] = {kHour, kMinute, kZone};
constexpr Box kLongitude[] = {kLongDeg, kLongMin};
constexpr Box kLatitude[] = {kLatDeg, kLatMin};
constexpr std::span<const Box> kGroupsThatMustBeFilled[] = {kDate, kTime, kLongitude, kLatitude};

struct Bound {
    Box box;
    double limit;
    bool above;  // a value above the limit is a fault, else one below it
};

constexpr Bound kDateBounds[] = {{kYear, 2099, true}, {kMonth, 12, true}, {kDay, 31, true}};
constexpr Bound kTimeBounds[] = {{kHour, 12, true}, {kMinute, 59, true}};
constexpr Bound kZoneBounds[] = {{kZone, 12, true}, {kZone, -13, false}};
constexpr Bound kLongitudeBounds[] = {{kLongDeg, 180, true}, {kLongMin, 59, true}};
constexpr Bound kLatitudeBounds[] = {{kLatMin, 59, true}};
constexpr Bound kFirstYear[] = {{kYear, 100, false}};
constexpr std::span<const Bound> kBounds[] = {kDateBounds,      kTimeBounds,     kZoneBounds,
                                              kLongitudeBounds, kLatitudeBounds, kFirstYear};

double Value(const NatalEntry& entry, const Box& box) {
    return LeadingNumber(entry.*box.text);
}

std::string Quoted(const NatalEntry& entry, const Box& box) {
    constexpr std::size_t kMostShown = 20;
    const std::string_view text = TrimBlanks(entry.*box.text);
    return std::string(box.label) + " " + std::string(text.substr(0, kMostShown)) +
           (text.size() > kMostShown ? "..." : "");
}

// Collects the boxes that fail into one fault.
class FaultOf {
  public:
    void Add(EntryField field, const std::string& detail) {
        if (fault_.detail.empty()) fault_.field = field;
        fault_.detail += (fault_.detail.empty() ? "" : ", ") + detail;
    }
    void Report(std::vector<InputFault>& faults) const {
        if (!fault_.detail.empty()) faults.push_back(fault_);
    }

  private:
    InputFault fault_{EntryField::Name, "", false};
};

std::int16_t Whole(const std::string& text) {
    return RoundToInt16(LeadingNumber(text));
}

float Packed(const std::string& degrees, const std::string& minutes, bool negative) {
    return static_cast<float>(PackedOf(Whole(degrees), Whole(minutes), negative));
}

}  // namespace

std::string_view InputFault::Message() const {
    return polarLatitude ? kPolarLatitudeText : kInputErrorText;
}

NatalEntry FillNow(const LocalTime& now, const Options& options) {
    NatalEntry entry;
    entry.name = kNowName;
    entry.month = std::to_string(now.date.month);
    entry.day = std::to_string(now.date.day);
    entry.year = std::to_string(now.date.year);
    entry.birthHour = ApplyHourRule(std::to_string(now.hour)).text;
    entry.birthMinute = std::to_string(now.minute);
    entry.pm = now.hour >= 12;
    entry.timeZone = NumberText(options[kHomeZoneOption]);
    entry.longDeg = NumberText(options[kHomeLongDegOption]);
    entry.longMin = NumberText(options[kHomeLongMinOption]);
    entry.east = options[kHomeEastOption] != 0.0F;
    entry.latDeg = NumberText(options[kHomeLatDegOption]);
    entry.latMin = NumberText(options[kHomeLatMinOption]);
    entry.south = options[kHomeSouthOption] != 0.0F;
    return entry;
}

HourRule ApplyHourRule(std::string_view text) {
    if (TrimBlanks(text).empty()) return {HourRule::Outcome::AskForValue, std::string(text), false};
    const auto hour = EntireNumber(text);
    if (!hour) return {HourRule::Outcome::TooFast, std::string(text), false};
    if (*hour == 0) return {HourRule::Outcome::Keep, "12", false};
    if (*hour > 12) {
        // 12 is taken off until the hour lies on the dial.
        const double folded = *hour - 12.0 * std::ceil((*hour - 12.0) / 12.0);
        return {HourRule::Outcome::Keep, NumberText(folded), true};
    }
    return {HourRule::Outcome::Keep, std::string(text), false};
}

std::string ZoneForSide(std::string_view timeZone, bool east) {
    const double zone = std::abs(LeadingNumber(timeZone));
    return NumberText(east && zone != 0.0 ? -zone : zone);
}

std::vector<InputFault> CheckPresence(const NatalEntry& entry) {
    std::vector<InputFault> faults;
    FaultOf zero;
    for (const Box& box : kDate) {
        if (Value(entry, box) == 0) zero.Add(box.field, std::string(box.label) + " is 0");
    }
    zero.Report(faults);
    for (const auto& group : kGroupsThatMustBeFilled) {
        FaultOf empty;
        for (const Box& box : group) {
            if (TrimBlanks(entry.*box.text).empty())
                empty.Add(box.field, std::string(box.label) + " is empty");
        }
        empty.Report(faults);
    }
    if (!entry.east && Value(entry, kZone) < -2) {
        FaultOf side;
        side.Add(EntryField::TimeZone, Quoted(entry, kZone) + " lies too far east for a western longitude");
        side.Report(faults);
    }
    return faults;
}

std::vector<InputFault> CheckPolarLatitude(const NatalEntry& entry, HouseSystem system) {
    const double latitude = Value(entry, kLatDeg) + Value(entry, kLatMin) / 100.0;
    if (!NeedsModerateLatitude(system) || latitude <= 66.0) return {};
    const std::string detail = "latitude " + FormatMask(latitude, "#0.00") +
                               " is above 66.00, where only Meridian and Morinus houses are computed";
    return {{EntryField::LatDeg, detail, true}};
}

std::vector<InputFault> CheckRanges(const NatalEntry& entry) {
    std::vector<InputFault> faults;
    for (const auto& line : kBounds) {
        FaultOf fault;
        for (const Bound& bound : line) {
            const double value = Value(entry, bound.box);
            if (bound.above ? value <= bound.limit : value >= bound.limit) continue;
            fault.Add(bound.box.field, Quoted(entry, bound.box) +
                                           (bound.above ? " is above " : " is below ") +
                                           NumberText(bound.limit));
        }
        fault.Report(faults);
    }
    return faults;
}

std::vector<InputFault> CheckEntry(const NatalEntry& entry, HouseSystem system) {
    std::vector<InputFault> faults = CheckPresence(entry);
    for (const auto& more : {CheckPolarLatitude(entry, system), CheckRanges(entry)}) {
        faults.insert(faults.end(), more.begin(), more.end());
    }
    return faults;
}

NatalData ParseNatalData(const NatalEntry& entry, const Method& method, int iDate) {
    NatalData data;
    data.Name = Printable(entry.name);
    data.Day = Whole(entry.day);
    data.Month = Whole(entry.month);
    data.Year = Whole(entry.year);
    data.DateText = JoinDate(entry.year, entry.month, entry.day, iDate);
    data.ClockTime = PackedOf(Whole(entry.birthHour), Whole(entry.birthMinute), false);
    data.AmPm = entry.pm ? "P.M." : "A.M.";
    data.TimeZone = LeadingNumber(entry.timeZone);
    data.Longitude = Packed(entry.longDeg, entry.longMin, entry.east);
    data.LongitudeSide = data.Longitude < 0 ? "EAST" : "WEST";
    data.Latitude = Packed(entry.latDeg, entry.latMin, entry.south);
    data.LatitudeSide = data.Latitude < 0 ? "SOUTH" : "NORTH";
    data.HouseSystem = method.houses;
    data.Theory = method.theory;
    return data;
}

}  // namespace tolvanis
