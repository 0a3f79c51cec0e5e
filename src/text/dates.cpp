#include "text/dates.h"

#include <array>
#include <vector>

#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr std::array<std::string_view, 12> kMonths = {"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};

std::vector<std::string_view> SplitParts(std::string_view text) {
    constexpr std::string_view kSeparators = " \t-/.";
    std::vector<std::string_view> parts;
    parts.reserve(4);
    while (true) {
        const std::size_t start = text.find_first_not_of(kSeparators);
        if (start == std::string_view::npos) return parts;
        const std::size_t end = std::min(text.find_first_of(kSeparators, start), text.size());
        parts.push_back(text.substr(start, end - start));
        text.remove_prefix(end);
    }
}

std::optional<int> MonthNumber(std::string_view name) {
    if (name.size() < 3) return std::nullopt;
    for (std::size_t i = 0; i < kMonths.size(); ++i) {
        if (StartsWithIgnoringAsciiCase(kMonths[i], name)) return static_cast<int>(i) + 1;
    }
    return std::nullopt;
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

std::string JoinDate(std::string_view year, std::string_view month, std::string_view day, int iDate) {
    const auto join = [](std::string_view a, std::string_view b, std::string_view c) {
        return std::string(a).append("/").append(b).append("/").append(c);
    };
    if (iDate == 0) return join(month, day, year);
    if (iDate == 2) return join(year, month, day);
    return join(day, month, year);
}

}  // namespace tolvanis
