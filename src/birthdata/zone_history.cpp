#include "birthdata/zone_history.h"

#include <algorithm>
#include <array>
#include <span>

#include "birthdata/zone_periods.h"
#include "text/columns.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr int kLastYear = 2100;

constexpr std::array<std::string_view, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                       "Thursday", "Friday", "Saturday"};

// Each reader takes a text over into a value, or leaves the value and returns false.

bool ReadWhole(std::string_view text, int& value) {
    if (text.empty() || text.size() > 4 || text.find_first_not_of("0123456789") != std::string_view::npos)
        return false;
    value = static_cast<int>(LeadingNumber(text));
    return true;
}

// Hours, minutes and seconds with colons between them, a minus sign in front or a lone "-" for 0.
bool ReadSeconds(std::string_view text, int& value) {
    const bool negative = text.starts_with('-');
    if (negative) text.remove_prefix(1);
    int seconds = 0;
    int unit = 3600;
    for (const std::string& part : SplitAt(negative && text.empty() ? "0" : text, ':')) {
        int count = 0;
        if (unit == 0 || !ReadWhole(part, count)) return false;
        seconds += count * unit;
        unit /= 60;
    }
    value = negative ? -seconds : seconds;
    return true;
}

// Days of the week may be cut short: "Su", "lastM".
bool ReadWeekday(std::string_view text, int& weekday) {
    const auto named = std::ranges::find_if(
        kWeekdays, [&](std::string_view day) { return StartsWithIgnoringAsciiCase(day, text); });
    if (text.empty() || named == kWeekdays.end()) return false;
    weekday = static_cast<int>(named - kWeekdays.begin());
    return true;
}

bool ReadDay(std::string_view text, ZoneMoment& moment) {
    constexpr std::string_view kLast = "last";
    if (text.starts_with(kLast)) {
        moment.kind = ZoneMoment::Day::Last;
        return ReadWeekday(text.substr(kLast.size()), moment.weekday);
    }
    const std::size_t sign = text.find_first_of("<>");
    if (sign != std::string_view::npos) {
        moment.kind = text[sign] == '>' ? ZoneMoment::Day::OnOrAfter : ZoneMoment::Day::OnOrBefore;
        if (!ReadWeekday(text.substr(0, sign), moment.weekday)) return false;
        text.remove_prefix(std::min(sign + 2, text.size()));
    }
    return ReadWhole(text, moment.day) && moment.day >= 1 && moment.day <= 31;
}

// A time of day with the letter of its clock behind it.
bool ReadTime(std::string_view text, ZoneMoment& moment) {
    if (text.ends_with('s')) moment.clock = ZoneMoment::Clock::Standard;
    if (text.ends_with('u')) moment.clock = ZoneMoment::Clock::Universal;
    if (moment.clock != ZoneMoment::Clock::Wall) text.remove_suffix(1);
    return ReadSeconds(text, moment.seconds);
}

// Month, day and time from as many fields as there are; the rest is the first of January at midnight.
bool ReadMoment(std::span<const std::string> fields, ZoneMoment& moment) {
    if (!fields.empty()) {
        const auto month = MonthOfAbbreviation(fields[0]);
        if (!month) return false;
        moment.month = *month;
    }
    if (fields.size() > 1 && !ReadDay(fields[1], moment)) return false;
    return fields.size() < 3 || ReadTime(fields[2], moment);
}

// A name, two with a slash between them, or one with a place for letters ("%s") or for the offset ("%z").
bool IsAbbreviationFormat(std::string_view text) {
    const std::size_t percent = text.find('%');
    if (percent == std::string_view::npos) return true;
    const std::string_view behind = text.substr(percent + 1);
    return (behind.starts_with('s') || behind.starts_with('z')) && behind.find('%') == std::string_view::npos;
}

std::vector<std::string> WordsOf(std::string_view line) {
    std::vector<std::string> words = SplitAt(line, ' ');
    std::erase(words, "");
    return words;
}

}  // namespace

// Reads the lines of the file: "R" rules, "Z" zones with the lines that continue them, "L" links, "M" merged
// zones, "V" the release, "C" reference cities and "D" cases.
class ZoneFileReader {
  public:
    // Whether the line could be read.
    bool Take(const std::string& line) {
        if (line == kEndLine) ended_ = true;
        if (line.starts_with('#')) return true;
        if (line.starts_with("D\t")) return TakeCase(line.substr(2));
        const std::vector<std::string> words = WordsOf(line);
        if (words.empty()) return true;
        const std::span<const std::string> rest(words.begin() + 1, words.end());
        if (words[0] == "R") return TakeRule(rest);
        if (words[0] == "Z") return TakeZone(rest);
        if (words[0] == "L") return TakeName(rest, history_.links_);
        if (words[0] == "M")
            return TakeName(std::vector<std::string>(rest.rbegin(), rest.rend()), history_.merged_);
        if (words[0] == "V") return TakeRelease(rest);
        if (words[0] == "C") return TakeCity(rest);
        return TakeEra(words);
    }

    // The history, or what is missing of it.
    Result<ZoneHistory> Finish() {
        if (!ended_) return Fault{"the file ends too early"};
        for (const auto& [zone, other] : history_.merged_) {
            if (!history_.zones_.contains(zone) || !history_.zones_.contains(other))
                return Fault{"the zone " + zone + " or " + other + " is missing"};
        }
        for (const auto& [zone, eras] : history_.zones_) {
            for (const ZoneEra& era : eras) {
                if (!era.rules.empty() && !history_.rules_.contains(era.rules))
                    return Fault{"the rules " + era.rules + " of the zone " + zone + " are missing"};
            }
        }
        return std::move(history_);
    }

  private:
    bool TakeRule(std::span<const std::string> words) {
        if (words.size() != 9) return false;
        ZoneRule rule;
        if (!ReadWhole(words[1], rule.firstYear)) return false;
        rule.lastYear = words[2].starts_with('o') ? rule.firstYear : kLastYear;
        const bool named = words[2].starts_with('o') || words[2].starts_with('m');
        if (!named && !ReadWhole(words[2], rule.lastYear)) return false;
        if (!ReadMoment(words.subspan(4, 3), rule.moment)) return false;
        if (!ReadSeconds(words[7], rule.save)) return false;
        rule.letters = words[8] == "-" ? std::string() : words[8];
        history_.rules_[words[0]].push_back(rule);
        return true;
    }

    bool TakeZone(std::span<const std::string> words) {
        if (words.empty()) return false;
        zone_ = words[0];
        return TakeEra(words.subspan(1));
    }

    bool TakeEra(std::span<const std::string> words) {
        if (zone_.empty() || words.size() < 3) return false;
        ZoneEra era;
        if (!ReadSeconds(words[0], era.standard) || !IsAbbreviationFormat(words[2])) return false;
        if (!ReadSeconds(words[1], era.save)) era.rules = words[1];
        era.format = words[2];
        if (words.size() > 3) {
            if (!ReadWhole(words[3], era.untilYear.emplace())) return false;
            if (!ReadMoment(words.subspan(4), era.until)) return false;
        }
        history_.zones_[zone_].push_back(era);
        if (!era.untilYear) zone_.clear();
        return true;
    }

    // A name and behind it another one that leads to it.
    static bool TakeName(std::span<const std::string> words,
                         std::map<std::string, std::string, std::less<>>& names) {
        if (words.size() != 2) return false;
        names[words[1]] = words[0];
        return true;
    }

    bool TakeRelease(std::span<const std::string> words) {
        if (words.size() != 1) return false;
        history_.release_ = words[0];
        return true;
    }

    bool TakeCity(std::span<const std::string> words) {
        if (words.size() < 4) return false;
        ReferenceCity city{words[3], LeadingNumber(words[1]), LeadingNumber(words[2])};
        for (const std::string& word : words.subspan(4)) city.name.append(" ").append(word);
        history_.references_[words[0]] = city;
        return true;
    }

    bool TakeCase(std::string_view line) {
        const Result<ZoneCase> made = ParseZoneCase(line);
        if (made) history_.cases_.push_back(*made);
        return static_cast<bool>(made);
    }

    ZoneHistory history_;
    std::string zone_;  // the one whose lines go on
    bool ended_ = false;
};

std::int64_t ZoneMoment::In(int year) const {
    const auto weekdayOf = [](int julianDay) { return (julianDay + 1) % 7; };
    int number = JulianDayNumberOf(year, month, day);
    if (kind == Day::Last) {
        number =
            (month == 12 ? JulianDayNumberOf(year + 1, 1, 1) : JulianDayNumberOf(year, month + 1, 1)) - 1;
    }
    if (kind == Day::OnOrAfter) number += (weekday - weekdayOf(number) + 7) % 7;
    if (kind == Day::Last || kind == Day::OnOrBefore) number -= (weekdayOf(number) - weekday + 7) % 7;
    return (std::int64_t{number} - kJulianDayOf1970) * kSecondsPerDay + seconds;
}

Result<ZoneHistory> ZoneHistory::Read(const Path& file) {
    LineReader lines(file);
    ZoneFileReader reader;
    for (std::string line; lines.Next(line);) {
        if (reader.Take(line)) continue;
        return Fault{file.string() + ":" + std::to_string(lines.LineNumber()) +
                     ": this line of the zone history cannot be read"};
    }
    if (lines.HasFault()) return CannotRead(file, lines.fault());
    Result<ZoneHistory> history = reader.Finish();
    if (!history) return Fault{file.string() + ": " + history.message()};
    return history;
}

std::string_view ZoneHistory::Resolved(std::string_view zone) const {
    const auto link = links_.find(zone);
    return link != links_.end() ? std::string_view(link->second) : zone;
}

const std::vector<ZonePeriod>& ZoneHistory::PeriodsOf(std::string_view zone) const {
    const std::string name(Resolved(zone));
    if (const auto known = periods_.find(name); known != periods_.end()) return known->second;
    const auto eras = zones_.find(name);
    std::vector<ZonePeriod>& made = periods_[name];
    if (eras != zones_.end()) made = MakeZonePeriods(eras->second, rules_, kLastYear);
    return made;
}

const std::vector<ZonePeriod>& ZoneHistory::ClocksOf(std::string_view zone) const {
    const auto merged = merged_.find(Resolved(zone));
    if (merged == merged_.end()) return PeriodsOf(zone);
    if (const auto known = clocks_.find(merged->first); known != clocks_.end()) return known->second;
    std::vector<ZonePeriod> clocks = PeriodsOf(zone);
    std::erase_if(clocks, [](const ZonePeriod& period) { return period.start >= 0; });
    const std::vector<ZonePeriod>& later = PeriodsOf(merged->second);
    auto next = std::ranges::upper_bound(later, 0, {}, &ZonePeriod::start);
    if (next != later.begin()) {
        clocks.push_back(*std::prev(next));
        clocks.back().start = 0;
    }
    clocks.insert(clocks.end(), next, later.end());
    return clocks_[merged->first] = std::move(clocks);
}

const ReferenceCity* ZoneHistory::ReferenceOf(std::string_view zone) const {
    auto city = references_.find(zone);
    if (city == references_.end()) city = references_.find(Resolved(zone));
    return city != references_.end() ? &city->second : nullptr;
}

}  // namespace tolvanis
