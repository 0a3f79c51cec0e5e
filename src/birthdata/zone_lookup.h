#pragma once
// The time zone in force at a place on a date at a clock time, and how sure that is.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "birthdata/zone_history.h"
#include "text/dates.h"

namespace tolvanis {

// How sure a reading is.
enum class ZoneGrade {
    Sure,       // from 1970 on
    Reference,  // the place is the city whose clocks are on record
    Nearest,    // by the reference city of its zone
    Disputed,   // the clocks of this place are known to have differed, or are in dispute
    Local,      // local mean time, by the place's own longitude
};

// A place as a look-up needs it.
struct ZonePlace {
    std::string zone;         // of the tz project: America/New_York
    std::string countryCode;  // US
    std::string regionCode;   // GA
    double degreesNorth = 0.0;
    double degreesEast = 0.0;
};

// A date with a clock time.
struct ClockMoment {
    CalendarDate date;
    int seconds = 0;  // after midnight

    friend bool operator==(const ClockMoment&, const ClockMoment&) = default;
};
ClockMoment DaysLater(const ClockMoment& moment, int days);
ClockMoment Later(const ClockMoment& moment, int seconds);

struct ZoneReading {
    int offset = 0;  // seconds that the clock ran ahead of Greenwich, positive east
    std::string abbreviation;
    ZoneKind kind = ZoneKind::Standard;
    ZoneGrade grade = ZoneGrade::Sure;
    std::string reason;  // for the grade, as a sentence without its full stop
    ClockMoment clock;   // what the clock showed
};

// One reading; two where the clocks were put back over this time; none where they jumped over it. Then
// `around` holds the last one in front and the first one behind, at the time that each clock showed.
struct ZoneAnswer {
    std::vector<ZoneReading> readings;
    std::vector<ZoneReading> around;
    // Offsets of the other clocks that people there lived by at that time, in a case that knows of them.
    std::vector<int> beside;
};

// Dates are read as everywhere in the program: Gregorian from 15 October 1582, Julian before. Where a zone
// has local mean time the place's own longitude counts, 4 minutes a degree. Nothing for an unknown zone.
ZoneAnswer LookUpZone(const ZoneHistory& history, const ZonePlace& place, const ClockMoment& moment);

// The offset in force at a moment of Universal Time; nothing for an unknown zone.
std::optional<int> OffsetAtUniversal(const ZoneHistory& history, const ZonePlace& place,
                                     const ClockMoment& universal);

// "daylight saving", "local mean time" ...
std::string_view KindText(ZoneKind kind);
// The words of the JSON output: standard, daylight, double, war, nationalMean, localMean; sure, reference ...
std::string_view KindCode(ZoneKind kind);
std::string_view GradeCode(ZoneGrade grade);

// A zone as seconds, positive east, and as hours, positive west.
double HoursOfOffset(int offset);
int OffsetOfHours(double hoursWest);
// Whether zones in hours are the same to the second.
bool IsSameZone(double hoursWest, double otherHoursWest);

// Hours of a zone in the shortest text that gives the second.
std::string ZoneHoursText(double hoursWest);

// "4:05 A.M.", with the seconds where there are some.
std::string ClockText(const ClockMoment& moment);
// The date in a sentence: "5 Jan 1951"; and with the clock time behind it.
std::string DateText(const ClockMoment& moment);
std::string MomentText(const ClockMoment& moment);

// Kilometres between two places.
double DistanceKm(double north1, double east1, double north2, double east2);

}  // namespace tolvanis
