#include "birthdata/zone_periods.h"

#include <algorithm>
#include <cstdlib>

#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr int kHour = 3600;
constexpr std::int64_t kLongestSummer = std::int64_t{300} * 24 * kHour;

// +0530 or -004430: hours and as many minutes and seconds as there are.
std::string NumericAbbreviation(int offset) {
    const int seconds = std::abs(offset);
    std::string text = offset < 0 ? "-" : "+";
    text += TwoDigits(seconds / kHour);
    if (seconds % kHour != 0) text += TwoDigits(seconds / 60 % 60);
    if (seconds % 60 != 0) text += TwoDigits(seconds % 60);
    return text;
}

std::string AbbreviationOf(const ZoneEra& era, const std::string& letters, int save) {
    const std::string& format = era.format;
    if (const std::size_t slash = format.find('/'); slash != std::string::npos) {
        return save != 0 ? format.substr(slash + 1) : format.substr(0, slash);
    }
    const std::size_t percent = format.find('%');
    if (percent == std::string::npos) return format;
    const std::string filled =
        format[percent + 1] == 'z' ? NumericAbbreviation(era.standard + save) : letters;
    return format.substr(0, percent) + filled + format.substr(percent + 2);
}

bool IsMeanTime(const std::string& abbreviation, int standard) {
    const bool named = abbreviation.ends_with("MT") && abbreviation != "GMT";
    return named && standard % (15 * 60) != 0;
}

// The war times of North America and the peace times behind them: EWT, EPT.
bool IsWarTime(const std::string& abbreviation) {
    return abbreviation.size() >= 3 && (abbreviation.ends_with("WT") || abbreviation.ends_with("PT"));
}

// What rules say of a save of 0 where they know no summer, only a winter behind standard time.
bool HasWinterTimeOnly(const std::vector<ZoneRule>* rules) {
    if (rules == nullptr) return false;
    const auto back = [](const ZoneRule& rule) { return rule.save < 0; };
    const auto forward = [](const ZoneRule& rule) { return rule.save > 0; };
    return std::ranges::any_of(*rules, back) && std::ranges::none_of(*rules, forward);
}

ZoneKind KindOf(const ZonePeriod& period, bool winterTimeOnly) {
    if (period.abbreviation == "LMT") return ZoneKind::LocalMean;
    if (period.save > kHour) return ZoneKind::Double;
    if (period.save > 0) return IsWarTime(period.abbreviation) ? ZoneKind::War : ZoneKind::Daylight;
    if (period.save == 0 && winterTimeOnly) return ZoneKind::Daylight;
    const bool mean = IsMeanTime(period.abbreviation, period.offset);
    return mean ? ZoneKind::NationalMean : ZoneKind::Standard;
}

// Far outside of every calendar, and near enough that differences of moments can be taken.
constexpr std::int64_t kEndOfTime = std::int64_t{1} << 60;
constexpr std::int64_t kBeginningOfTime = -kEndOfTime;

// Works through the eras of one zone.
class PeriodMaker {
  public:
    PeriodMaker(const ZoneRuleSets& rules, int lastYear) : rules_(rules), lastYear_(lastYear) {}

    void Take(const ZoneEra& era) {
        save_ = 0;
        const auto found = rules_.find(era.rules);
        const std::vector<ZoneRule>* rules = found != rules_.end() ? &found->second : nullptr;
        winterTimeOnly_ = HasWinterTimeOnly(rules);
        if (era.rules.empty()) {
            save_ = era.save;
            Append(start_, era, {}, save_);
        } else if (rules != nullptr) {
            FollowRules(era, *rules);
        }
        start_ = UntilOf(era);
    }

    std::vector<ZonePeriod> Finish() {
        std::ranges::stable_sort(periods_, {}, &ZonePeriod::start);
        std::vector<ZonePeriod> joined;
        for (ZonePeriod& period : periods_) {
            if (BeginsBehindTheClock(joined, period)) {
                period.start = joined.back().start;
                joined.pop_back();
            }
            if (joined.empty() || !AreAlike(joined.back(), period)) joined.push_back(std::move(period));
        }
        for (std::size_t i = 0; i < joined.size(); ++i) {
            const bool isSummer =
                i + 1 < joined.size() && joined[i + 1].start - joined[i].start < kLongestSummer;
            const bool isForward = joined[i].save != 0;
            if (joined[i].kind == ZoneKind::Daylight && !isForward && !isSummer)
                joined[i].kind = ZoneKind::Standard;
        }
        return joined;
    }

  private:
    static bool AreAlike(const ZonePeriod& a, const ZonePeriod& b) {
        return a.offset == b.offset && a.save == b.save && a.abbreviation == b.abbreviation;
    }

    // Whether a period begins at a clock time that the change before it has jumped over: both are one change.
    static bool BeginsBehindTheClock(const std::vector<ZonePeriod>& before, const ZonePeriod& period) {
        if (before.size() < 2) return false;
        const ZonePeriod& last = before.back();
        return period.start + last.offset <= last.start + before[before.size() - 2].offset;
    }

    struct Event {
        const ZoneRule* rule;
        std::int64_t moment;  // on the rule's own clock
    };

    std::int64_t ToUniversal(std::int64_t moment, ZoneMoment::Clock clock, int standard) const {
        if (clock == ZoneMoment::Clock::Universal) return moment;
        return moment - standard - (clock == ZoneMoment::Clock::Wall ? save_ : 0);
    }

    std::int64_t UntilOf(const ZoneEra& era) const {
        if (!era.untilYear) return kEndOfTime;
        return ToUniversal(era.until.In(*era.untilYear), era.until.clock, era.standard);
    }

    void Append(std::int64_t start, const ZoneEra& era, const std::string& letters, int save) {
        ZonePeriod period{start, era.standard + save, save, AbbreviationOf(era, letters, save), {}};
        period.kind = KindOf(period, winterTimeOnly_);
        periods_.push_back(period);
    }

    // An era begins with the save of the last rule in front of its start, else with standard time under the
    // letters of the first rule that gives it.
    void FollowRules(const ZoneEra& era, const std::vector<ZoneRule>& rules) {
        int startSave = 0;
        std::optional<std::string> startLetters;
        bool needsStart = true;
        const int firstYear = std::ranges::min_element(rules, {}, &ZoneRule::firstYear)->firstYear;
        const int lastYear = std::min(era.untilYear.value_or(lastYear_), lastYear_);
        for (int year = firstYear; year <= lastYear; ++year) {
            std::vector<Event> events = EventsOf(rules, year);
            while (!events.empty()) {
                const auto next = std::ranges::min_element(
                    events, {}, [&](const Event& event) { return Universal(event, era); });
                const std::int64_t moment = Universal(*next, era);
                const ZoneRule& rule = *next->rule;
                events.erase(next);
                const bool past = moment >= UntilOf(era);
                if (!past) save_ = rule.save;
                if (moment == start_) needsStart = false;
                if (needsStart && !past && moment < start_) {
                    startSave = rule.save;
                    startLetters = rule.letters;
                    continue;
                }
                if (needsStart && !startLetters && rule.save == startSave) startLetters = rule.letters;
                if (past) break;
                Append(moment, era, rule.letters, rule.save);
            }
        }
        if (needsStart) Append(start_, era, startLetters.value_or(""), startSave);
    }

    std::int64_t Universal(const Event& event, const ZoneEra& era) const {
        return ToUniversal(event.moment, event.rule->moment.clock, era.standard);
    }

    static std::vector<Event> EventsOf(const std::vector<ZoneRule>& rules, int year) {
        std::vector<Event> events;
        for (const ZoneRule& rule : rules) {
            if (year >= rule.firstYear && year <= rule.lastYear)
                events.push_back({&rule, rule.moment.In(year)});
        }
        return events;
    }

    const ZoneRuleSets& rules_;
    int lastYear_;
    std::vector<ZonePeriod> periods_;
    std::int64_t start_ = kBeginningOfTime;  // of the era
    int save_ = 0;
    bool winterTimeOnly_ = false;
};

}  // namespace

std::vector<ZonePeriod> MakeZonePeriods(const std::vector<ZoneEra>& eras, const ZoneRuleSets& rules,
                                        int lastYear) {
    PeriodMaker maker(rules, lastYear);
    for (const ZoneEra& era : eras) maker.Take(era);
    return maker.Finish();
}

}  // namespace tolvanis
