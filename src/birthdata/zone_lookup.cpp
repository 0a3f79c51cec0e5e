#include "birthdata/zone_lookup.h"

#include <algorithm>
#include <cmath>

#include "chart/angles.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

using ZonePeriods = std::vector<ZonePeriod>;

constexpr double kKmOfReferenceCity = 15.0;
constexpr double kSecondsPerDegree = 240.0;
constexpr double kSecondsPerHour = 3600.0;

std::int64_t LocalSeconds(const ClockMoment& moment) {
    const CalendarDate& date = moment.date;
    const std::int64_t days = JulianDayNumberOf(date.year, date.month, date.day) - kJulianDayOf1970;
    return days * kSecondsPerDay + moment.seconds;
}

ClockMoment ClockOf(std::int64_t localSeconds) {
    std::int64_t days = localSeconds / kSecondsPerDay;
    std::int64_t seconds = localSeconds % kSecondsPerDay;
    if (seconds < 0) {
        seconds += kSecondsPerDay;
        --days;
    }
    return {DateOfJulianDayNumber(static_cast<int>(days + kJulianDayOf1970)), static_cast<int>(seconds)};
}

// The place's own mean time, on the side of the date line that the zone keeps.
int LocalMeanOffset(const ZonePlace& place, int ofReferenceCity) {
    int offset = static_cast<int>(std::lround(place.degreesEast * kSecondsPerDegree));
    while (offset - ofReferenceCity > kSecondsPerDay / 2) offset -= kSecondsPerDay;
    while (ofReferenceCity - offset > kSecondsPerDay / 2) offset += kSecondsPerDay;
    return offset;
}

int OffsetOf(const ZonePeriod& period, const ZonePlace& place) {
    return period.kind == ZoneKind::LocalMean ? LocalMeanOffset(place, period.offset) : period.offset;
}

bool HasBegun(const ZonePeriods& periods, ZonePeriods::const_iterator period, std::int64_t universal) {
    return period == periods.begin() || universal >= period->start;
}

bool IsOver(const ZonePeriods& periods, ZonePeriods::const_iterator period, std::int64_t universal) {
    const auto next = std::next(period);
    return next != periods.end() && universal >= next->start;
}

class Grader {
  public:
    Grader(const ZoneHistory& history, const ZonePlace& place) : history_(history), place_(place) {
        if (const ReferenceCity* city = history.ReferenceOf(place.zone)) {
            city_ = city;
            distance_ =
                DistanceKm(place.degreesNorth, place.degreesEast, city->degreesNorth, city->degreesEast);
        }
    }

    void Grade(ZoneReading& reading, std::int64_t universal) const {
        const ZoneCase* known = CaseOf(reading.clock.date);
        if (reading.kind == ZoneKind::LocalMean) {
            Set(reading, ZoneGrade::Local,
                "local mean time by the longitude of the place, 4 minutes a degree");
        } else if (known != nullptr) {
            Set(reading, ZoneGrade::Disputed, known->text + " (" + known->source + ")");
        } else if (universal >= 0) {
            Set(reading, ZoneGrade::Sure, "the clocks of this zone are on record since 1970");
        } else if (IsReference()) {
            Set(reading, ZoneGrade::Reference, "the clocks of " + city_->name + " are on record");
        } else {
            Set(reading, ZoneGrade::Nearest, ByCity());
        }
    }

    // The offsets that the clocks of the zones had which the case of this moment names.
    std::vector<int> OffsetsBeside(const ClockMoment& moment) const {
        const ZoneCase* known = CaseOf(moment.date);
        std::vector<int> offsets;
        for (const std::string& zone : known != nullptr ? known->clocks : std::vector<std::string>()) {
            const ZonePeriods& periods = history_.ClocksOf(zone);
            for (auto period = periods.begin(); period != periods.end(); ++period) {
                const std::int64_t universal = LocalSeconds(moment) - OffsetOf(*period, place_);
                if (HasBegun(periods, period, universal) && !IsOver(periods, period, universal))
                    offsets.push_back(OffsetOf(*period, place_));
            }
        }
        return offsets;
    }

  private:
    static void Set(ZoneReading& reading, ZoneGrade grade, std::string reason) {
        reading.grade = grade;
        reading.reason = std::move(reason);
    }

    bool IsReference() const { return city_ != nullptr && distance_ <= kKmOfReferenceCity; }

    // The reference city differs only where the case names its zone.
    const ZoneCase* CaseOf(const CalendarDate& date) const {
        const auto& cases = history_.cases();
        const auto found = std::ranges::find_if(cases, [&](const ZoneCase& one) {
            return !(IsReference() && one.zones.empty()) &&
                   one.Fits(date, place_.countryCode, place_.regionCode, place_.zone);
        });
        return found != cases.end() ? &*found : nullptr;
    }

    std::string ByCity() const {
        if (city_ == nullptr) return "before 1970 the clocks of single places are not on record";
        return "before 1970 the record is that of " + city_->name + ", " + NumberText(std::round(distance_)) +
               " km away; other places may have differed";
    }

    const ZoneHistory& history_;
    const ZonePlace& place_;
    const ReferenceCity* city_ = nullptr;
    double distance_ = 0.0;
};

ZoneReading MakeReading(const ZonePeriod& period, int offset, const ClockMoment& clock) {
    return {offset, period.abbreviation, period.kind, ZoneGrade::Sure, {}, clock};
}

struct Names {
    std::string_view text;
    std::string_view code;
};

constexpr Names kKinds[] = {{"standard time", "standard"},          {"daylight saving", "daylight"},
                            {"double daylight saving", "double"},   {"war time", "war"},
                            {"national mean time", "nationalMean"}, {"local mean time", "localMean"}};
constexpr std::string_view kGrades[] = {"sure", "reference", "nearest", "disputed", "local"};

}  // namespace

ClockMoment DaysLater(const ClockMoment& moment, int days) {
    return ClockOf(LocalSeconds(moment) + std::int64_t{days} * kSecondsPerDay);
}

ClockMoment Later(const ClockMoment& moment, int seconds) {
    return ClockOf(LocalSeconds(moment) + seconds);
}

std::optional<int> OffsetAtUniversal(const ZoneHistory& history, const ZonePlace& place,
                                     const ClockMoment& universal) {
    const std::vector<ZonePeriod>& periods = history.ClocksOf(place.zone);
    if (periods.empty()) return std::nullopt;
    const auto next = std::ranges::upper_bound(periods, LocalSeconds(universal), {}, &ZonePeriod::start);
    return OffsetOf(next == periods.begin() ? periods.front() : *std::prev(next), place);
}

ZoneAnswer LookUpZone(const ZoneHistory& history, const ZonePlace& place, const ClockMoment& moment) {
    const std::vector<ZonePeriod>& periods = history.ClocksOf(place.zone);
    const Grader grader(history, place);
    const std::int64_t local = LocalSeconds(moment);
    // Clocks lie less than two days from Greenwich.
    auto period = std::ranges::upper_bound(periods, local - 2 * kSecondsPerDay, {}, &ZonePeriod::start);
    if (period != periods.begin()) --period;

    ZoneAnswer answer;
    for (; period != periods.end() && period->start <= local + 2 * kSecondsPerDay; ++period) {
        const int offset = OffsetOf(*period, place);
        const std::int64_t universal = local - offset;
        const bool over = IsOver(periods, period, universal);
        const auto next = std::next(period);
        if (HasBegun(periods, period, universal) && !over) {
            answer.readings.push_back(MakeReading(*period, offset, moment));
            grader.Grade(answer.readings.back(), universal);
        } else if (over && local - OffsetOf(*next, place) < next->start) {
            for (const auto& [side, sideOffset] :
                 {std::pair(period, offset), std::pair(next, OffsetOf(*next, place))}) {
                answer.around.push_back(MakeReading(*side, sideOffset, ClockOf(next->start + sideOffset)));
                grader.Grade(answer.around.back(), next->start);
            }
        }
    }
    if (!answer.readings.empty()) answer.around.clear();
    answer.beside = grader.OffsetsBeside(moment);
    return answer;
}

std::string_view KindText(ZoneKind kind) {
    return kKinds[static_cast<std::size_t>(kind)].text;
}

std::string_view KindCode(ZoneKind kind) {
    return kKinds[static_cast<std::size_t>(kind)].code;
}

std::string_view GradeCode(ZoneGrade grade) {
    return kGrades[static_cast<std::size_t>(grade)];
}

double HoursOfOffset(int offset) {
    return -offset / kSecondsPerHour;
}

int OffsetOfHours(double hoursWest) {
    return static_cast<int>(std::lround(hoursWest * -kSecondsPerHour));
}

bool IsSameZone(double hoursWest, double otherHoursWest) {
    return std::abs(hoursWest - otherHoursWest) < 1.0 / kSecondsPerHour;
}

std::string ZoneHoursText(double hoursWest) {
    constexpr double kPerHour = 10000.0;  // four decimals tell seconds apart
    const double hours = std::round(hoursWest * kPerHour) / kPerHour;
    return NumberText(hours == 0.0 ? 0.0 : hours);
}

std::string ClockText(const ClockMoment& moment) {
    const int hour = moment.seconds / 3600;
    std::string text = std::to_string((hour + 11) % 12 + 1) + ":" + TwoDigits(moment.seconds / 60 % 60);
    if (moment.seconds % 60 != 0) text += ":" + TwoDigits(moment.seconds % 60);
    return text + (hour < 12 ? " A.M." : " P.M.");
}

std::string DateText(const ClockMoment& moment) {
    const std::string date = FormatDate(moment.date);
    return date.starts_with('0') ? date.substr(1) : date;
}

std::string MomentText(const ClockMoment& moment) {
    return DateText(moment) + " " + ClockText(moment);
}

double DistanceKm(double north1, double east1, double north2, double east2) {
    constexpr double kEarthRadiusKm = 6371.0;
    const double halfNorth = std::sin(DegToRad(north2 - north1) / 2.0);
    const double halfEast = std::sin(DegToRad(east2 - east1) / 2.0);
    const double chord =
        halfNorth * halfNorth + std::cos(DegToRad(north1)) * std::cos(DegToRad(north2)) * halfEast * halfEast;
    return 2.0 * kEarthRadiusKm * std::asin(std::min(1.0, std::sqrt(chord)));
}

}  // namespace tolvanis
