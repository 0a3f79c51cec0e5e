#pragma once
// The natal entry: what the user has typed for one birth, the rules of its boxes and the checks in front of a
// computation.

#include <string>
#include <vector>

#include "chart/method.h"
#include "chart/natal_data.h"
#include "chart/options.h"
#include "platform/clock.h"

namespace tolvanis {

enum class EntryField {
    Name,
    Month,
    Day,
    Year,
    BirthHour,
    BirthMinute,
    TimeZone,
    LongDeg,
    LongMin,
    LatDeg,
    LatMin,
};

// The boxes as texts, the option pairs as flags.
struct NatalEntry {
    std::string name;
    std::string month, day, year;
    std::string birthHour, birthMinute;  // on the 12-hour dial
    bool pm = false;
    std::string timeZone;  // decimal hours, west positive
    std::string longDeg, longMin;
    bool east = false;
    std::string latDeg, latMin;
    bool south = false;

    friend bool operator==(const NatalEntry&, const NatalEntry&) = default;
};

// The name that marks a chart of the present moment.
inline constexpr std::string_view kNowName = "Now";

// The present moment at the home location of options 18 to 24. The zone is taken as the options give it, so
// that a home west of Greenwich in a zone east of it (Madrid) stays right.
NatalEntry FillNow(const LocalTime& now, const Options& options);

// What the hour box does with its text on every change.
struct HourRule {
    enum class Outcome { Keep, AskForValue, TooFast };
    Outcome outcome = Outcome::Keep;
    std::string text;      // what the box holds afterwards
    bool ticksPm = false;  // an hour above 12 was folded onto the dial
};
HourRule ApplyHourRule(std::string_view text);

// The zone box after a click on East (minus its absolute value) or West (its absolute value).
std::string ZoneForSide(std::string_view timeZone, bool east);

// What the window shows of an entry that cannot be computed or saved.
inline constexpr std::string_view kInputErrorText = "Error in natal input data section. Please correct.";

struct InputFault {
    EntryField field;    // the first box concerned
    std::string detail;  // what is wrong, for a report: "birth month 13 is above 12"
    bool polarLatitude = false;

    // The sentence that the window shows.
    std::string_view Message() const;
};

// The three checks, in the order in which a computation runs them; every fault is reported, none stops them.
std::vector<InputFault> CheckPresence(const NatalEntry& entry);
std::vector<InputFault> CheckPolarLatitude(const NatalEntry& entry, HouseSystem system);
std::vector<InputFault> CheckRanges(const NatalEntry& entry);
std::vector<InputFault> CheckEntry(const NatalEntry& entry, HouseSystem system);

// The option with the time zone of the home.
inline constexpr int kHomeZoneOption = 18;

// The birth data of an entry that passed the checks; iDate is the system's date order. Numbers are read with
// the leading-number reading, whole ones rounded half to even.
NatalData ParseNatalData(const NatalEntry& entry, const Method& method, int iDate);

}  // namespace tolvanis
