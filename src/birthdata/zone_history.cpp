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

int Whole(std::string_view text) {
    return RoundToInt16(LeadingNumber(text));
}

// Hours, minutes and seconds with colons between them, a minus sign in front or a lone "-" for 0.
int SecondsOf(std::string_view text) {
    const bool negative = text.starts_with('-');
    if (negative) text.remove_prefix(1);
    int seconds = 0;
    int unit = 3600;
    for (const std::string& part : SplitAt(text, ':')) {
        seconds += Whole(part) * unit;
        unit /= 60;
    }
    return negative ? -seconds : seconds;
}

// Days of the week may be cut short: "Su", "lastM".
int WeekdayOf(std::string_view text) {
    for (std::size_t day = 0; day < kWeekdays.size(); ++day) {
        if (StartsWithIgnoringAsciiCase(kWeekdays[day], text)) return static_cast<int>(day);
    }
    return -1;
}

bool ReadDay(std::string_view text, ZoneMoment& moment) {
    constexpr std::string_view kLast = "last";
    if (text.starts_with(kLast)) {
        moment.kind = ZoneMoment::Day::Last;
        moment.weekday = WeekdayOf(text.substr(kLast.size()));
        return moment.weekday >= 0;
    }
    const std::size_t sign = text.find_first_of("<>");
    if (sign == std::string_view::npos) {
        moment.day = Whole(text);
        return moment.day >= 1 && moment.day <= 31;
    }
    moment.kind = text[sign] == '>' ? ZoneMoment::Day::OnOrAfter : ZoneMoment::Day::OnOrBefore;
    moment.weekday = WeekdayOf(text.substr(0, sign));
    moment.day = Whole(text.substr(std::min(sign + 2, text.size())));
    return moment.weekday >= 0;
}

// A time of day with the letter of its clock behind it.
void ReadTime(std::string_view text, ZoneMoment& moment) {
    const char letter = text.empty() ? '\0' : text.back();
    if (letter == 's') moment.clock = ZoneMoment::Clock::Standard;
    if (letter == 'u') moment.clock = ZoneMoment::Clock::Universal;
    moment.seconds = SecondsOf(text);
}

// Month, day and time from as many fields as there are; the rest is the first of January at midnight.
bool ReadMoment(std::span<const std::string> fields, ZoneMoment& moment) {
    if (!fields.empty()) {
        const auto month = MonthOfAbbreviation(fields[0]);
        if (!month) return false;
        moment.month = *month;
    }
    if (fields.size() > 1 && !ReadDay(fields[1], moment)) return false;
    if (fields.size() > 2) ReadTime(fields[2], moment);
    return true;
}

std::vector<std::string> WordsOf(std::string_view line) {
    std::vector<std::string> words = SplitAt(line, ' ');
    std::erase(words, "");
    return words;
}

}  // namespace

// Reads the lines of the file: "R" rules, "Z" zones with the lines that continue them, "L" links, "V" the
// release, "C" reference cities and "D" cases.
class ZoneFileReader {
  public:
    // Whether the line could be read.
    bool Take(const std::string& line) {
        if (line.starts_with('#')) return true;
        if (line.starts_with("D\t")) return TakeCase(line.substr(2));
        const std::vector<std::string> words = WordsOf(line);
        if (words.empty()) return true;
        const std::span<const std::string> rest(words.begin() + 1, words.end());
        if (words[0] == "R") return TakeRule(rest);
        if (words[0] == "Z") return TakeZone(rest);
        if (words[0] == "L") return TakeLink(rest);
        if (words[0] == "V") return TakeRelease(rest);
        if (words[0] == "C") return TakeCity(rest);
        return TakeEra(words);
    }

    ZoneHistory Finish() { return std::move(history_); }

  private:
    bool TakeRule(std::span<const std::string> words) {
        if (words.size() != 9) return false;
        ZoneRule rule;
        rule.firstYear = Whole(words[1]);
        rule.lastYear = words[2].starts_with('o')   ? rule.firstYear
                        : words[2].starts_with('m') ? kLastYear
                                                    : Whole(words[2]);
        if (!ReadMoment(words.subspan(4, 3), rule.moment)) return false;
        rule.save = SecondsOf(words[7]);
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
        era.standard = SecondsOf(words[0]);
        const bool fixed = words[1].find_first_not_of("-0123456789:") == std::string::npos;
        (fixed ? void(era.save = SecondsOf(words[1])) : void(era.rules = words[1]));
        era.format = words[2];
        if (words.size() > 3) {
            era.untilYear = Whole(words[3]);
            if (!ReadMoment(words.subspan(4), era.until)) return false;
        }
        history_.zones_[zone_].push_back(era);
        if (!era.untilYear) zone_.clear();
        return true;
    }

    bool TakeLink(std::span<const std::string> words) {
        if (words.size() != 2) return false;
        history_.links_[words[1]] = words[0];
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
    if (!lines.IsOpen()) return Fault{"Cannot read the file " + file.string() + ": " + lines.Problem() + "."};
    return reader.Finish();
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

const ReferenceCity* ZoneHistory::ReferenceOf(std::string_view zone) const {
    auto city = references_.find(zone);
    if (city == references_.end()) city = references_.find(Resolved(zone));
    return city != references_.end() ? &city->second : nullptr;
}

std::vector<std::string> ZoneHistory::ZoneNames() const {
    std::vector<std::string> names;
    for (const auto& [name, eras] : zones_) names.push_back(name);
    return names;
}

}  // namespace tolvanis
