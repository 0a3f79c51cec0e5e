#include "text/dates.h"

#include <algorithm>
#include <array>
#include <vector>

#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr std::array<std::string_view, 12> kMonths = {"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};

constexpr int kFirstGregorianDay = 2299171;  // 15 October 1582, still counted in the Julian calendar

// The parts between separators; one with a minus sign of its own has it still, and is no number.
std::vector<std::string_view> SplitParts(std::string_view text) {
    constexpr std::string_view kSeparators = " \t-/.";
    std::vector<std::string_view> parts;
    parts.reserve(4);
    while (true) {
        const std::size_t start = text.find_first_not_of(kSeparators);
        if (start == std::string_view::npos) return parts;
        const std::size_t end = std::min(text.find_first_of(kSeparators, start), text.size());
        const bool isSigned = start > (parts.empty() ? 0U : 1U) && text[start - 1] == '-';
        const std::size_t begin = start - (isSigned ? 1 : 0);
        parts.push_back(text.substr(begin, end - begin));
        text.remove_prefix(end);
    }
}

std::optional<int> MonthNumber(std::string_view name) {
    return name.size() < 3 ? std::nullopt : MonthOfAbbreviation(name);
}

std::optional<int> Digits(std::string_view text) {
    if (text.empty() || text.size() > 4) return std::nullopt;
    int value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') return std::nullopt;
        value = value * 10 + (c - '0');
    }
    return value;
}

}  // namespace

std::string_view MonthAbbreviation(int month) {
    return month >= 1 && month <= 12 ? kMonths[static_cast<std::size_t>(month) - 1].substr(0, 3) : "???";
}

std::optional<int> MonthOfAbbreviation(std::string_view text) {
    for (std::size_t i = 0; i < kMonths.size(); ++i) {
        if (StartsWithIgnoringAsciiCase(kMonths[i], text)) return static_cast<int>(i) + 1;
    }
    return std::nullopt;
}

std::string FormatDate(const CalendarDate& date) {
    std::string year = std::to_string(date.year);
    if (year.size() < 4) year.insert(0, 4 - year.size(), '0');
    return TwoDigits(date.day).append(" ").append(MonthAbbreviation(date.month)).append(" ") + year;
}

std::optional<CalendarDate> ParseDate(std::string_view text) {
    const std::vector<std::string_view> parts = SplitParts(text);
    if (parts.size() != 3) return std::nullopt;
    const bool yearFirst = parts[0].size() > 2;
    const auto month = MonthNumber(parts[1]);
    const auto year = Digits(parts[yearFirst ? 0 : 2]);
    const auto day = Digits(parts[yearFirst ? 2 : 0]);
    if (!month || !year || !day || *day < 1 || *day > 31) return std::nullopt;
    return CalendarDate{*year, *month, *day};
}

int JulianDayNumberOf(int year, int month, int day) {
    const int months = (year + 4800) * 12 + month - 3;
    const int julian = (months * 365 + 2 * (months % 12) + 7) / 12 + day + months / 48 - 32083;
    return julian < kFirstGregorianDay ? julian : julian + months / 4800 - months / 1200 + 38;
}

// E. G. Richards, Calendars, in: Explanatory Supplement to the Astronomical Almanac, 3rd ed., section 15.11.
CalendarDate DateOfJulianDayNumber(int number) {
    constexpr int kGregorianReform = 2299161;
    const int century = number >= kGregorianReform ? (4 * number + 274277) / 146097 * 3 / 4 - 38 : 0;
    const int e = 4 * (number + 1401 + century) + 3;
    const int h = 5 * (e % 1461 / 4) + 2;
    const int month = (h / 153 + 2) % 12 + 1;
    return {e / 1461 - 4716 + (14 - month) / 12, month, h % 153 / 5 + 1};
}

std::string JoinDate(std::string_view year, std::string_view month, std::string_view day, int iDate) {
    const auto join = [](std::string_view a, std::string_view b, std::string_view c) {
        return std::string(a).append("/").append(b).append("/").append(c);
    };
    if (iDate == 0) return join(month, day, year);
    if (iDate == 2) return join(year, month, day);
    return join(day, month, year);
}

}  // namespace tolvanis
