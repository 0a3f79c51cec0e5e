#pragma once
// The history of civil time: for every zone of the tz project the periods with one offset, from its first
// record to the end of 2100, worked out from the delivered rules alone, so that a chart is the same on every
// machine.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "birthdata/zone_case.h"
#include "platform/files.h"
#include "platform/result.h"

namespace tolvanis {

inline constexpr std::string_view kZoneHistoryFile = "ZONES.DAT";

// The last line of this file and of the atlas; one that is cut short does not have it.
inline constexpr std::string_view kEndLine = "# end";

// Moments are counted in seconds from the start of 1970, whose Julian day number this is.
inline constexpr int kJulianDayOf1970 = 2440588;
inline constexpr int kSecondsPerDay = 86400;

enum class ZoneKind { Standard, Daylight, Double, War, NationalMean, LocalMean };

// A period with one offset; it ends where the next one begins, the last one never.
struct ZonePeriod {
    std::int64_t start = 0;  // seconds of Universal Time since the start of 1970; the first period has none
    int offset = 0;          // seconds that clocks run ahead of Greenwich, positive east
    int save = 0;  // seconds of them that the rules call daylight saving; winter may have less than 0
    std::string abbreviation;
    ZoneKind kind = ZoneKind::Standard;
};

// The city whose clocks a zone records.
struct ReferenceCity {
    std::string name;
    double degreesNorth = 0.0;
    double degreesEast = 0.0;
};

// One step of rules: a rule that holds every year from `firstYear` to `lastYear`.
struct ZoneMoment {
    enum class Day { OfMonth, Last, OnOrAfter, OnOrBefore };
    enum class Clock { Wall, Standard, Universal };
    int month = 1;
    Day kind = Day::OfMonth;
    int weekday = 0;  // 0 Sunday
    int day = 1;
    int seconds = 0;  // after midnight, also beyond the day
    Clock clock = Clock::Wall;

    // Seconds since the start of 1970 on the clock that it names.
    std::int64_t In(int year) const;
};

struct ZoneRule {
    int firstYear = 0;
    int lastYear = 0;
    ZoneMoment moment;
    int save = 0;
    std::string letters;
};

// A stretch of a zone's history with one standard time.
struct ZoneEra {
    int standard = 0;
    std::string rules;  // the name of a rule set, or empty
    int save = 0;       // without a rule set
    std::string format;
    std::optional<int> untilYear;
    ZoneMoment until;
};

class ZoneHistory {
  public:
    // Reads the delivered file. A fault names file and line.
    static Result<ZoneHistory> Read(const Path& file);

    // The release of the tz data, as "2026-07-21".
    const std::string& release() const { return release_; }

    // The periods of a zone, which may go by an older name; empty for an unknown zone. Worked out at the
    // first call.
    const std::vector<ZonePeriod>& PeriodsOf(std::string_view zone) const;

    // The same as clocks there have shown: from 1970 on those of the zone that it is one with since, where
    // there is one. What the complete records say of the later time of such a zone is not checked by the tz
    // project.
    const std::vector<ZonePeriod>& ClocksOf(std::string_view zone) const;

    // Nothing for zones without a place, as those of ships.
    const ReferenceCity* ReferenceOf(std::string_view zone) const;

    const std::vector<ZoneCase>& cases() const { return cases_; }

  private:
    friend class ZoneFileReader;

    std::string_view Resolved(std::string_view zone) const;

    std::string release_;
    std::map<std::string, std::vector<ZoneRule>, std::less<>> rules_;
    std::map<std::string, std::vector<ZoneEra>, std::less<>> zones_;
    std::map<std::string, std::string, std::less<>> links_;
    std::map<std::string, std::string, std::less<>> merged_;
    std::map<std::string, ReferenceCity, std::less<>> references_;
    std::vector<ZoneCase> cases_;
    mutable std::map<std::string, std::vector<ZonePeriod>, std::less<>> periods_, clocks_;
};

}  // namespace tolvanis
