#pragma once
// Calendar dates as text, with English month abbreviations on every system.

#include <optional>
#include <string>
#include <string_view>

namespace tolvanis {

// A date as entered: the day may lie beyond its month's end (31 April), the parts are never adjusted.
struct CalendarDate {
    int year = 0;
    int month = 0;  // 1 to 12
    int day = 0;

    friend bool operator==(const CalendarDate&, const CalendarDate&) = default;
};

// "Jan" to "Dec" for 1 to 12, "???" for any other month.
std::string_view MonthAbbreviation(int month);

// The month whose English name begins with this text, of several the first; letter case does not matter.
std::optional<int> MonthOfAbbreviation(std::string_view text);

// The form "dd mmm yyyy": 05 Jan 0277.
std::string FormatDate(const CalendarDate& date);

// Reads day, month name and year, or year, month name and day, separated by blanks, "-", "/" or ".". The
// month may be written out; letter case does not matter. The year is the part of more than two digits, or
// the last one. Nothing for any other text, a day outside 1 to 31 or a year of more than four digits.
std::optional<CalendarDate> ParseDate(std::string_view text);

// The Julian day number (at noon) of a date: Gregorian from 15 October 1582 on, Julian before. Days beyond
// the month's end run on into the next month. Source of the formula: the day count by months of 1461 / 48
// days, with the century correction of the Gregorian rule. Months 1 to 12, years 100 to 2100.
int JulianDayNumberOf(int year, int month, int day);

// The date of a Julian day number, in the same calendars.
CalendarDate DateOfJulianDayNumber(int number);

// How the system orders the parts of a date and shows the time.
struct DateTimeOrder {
    int iDate = 1;  // 0 month-day-year, 1 day-month-year, 2 year-month-day
    int iTime = 1;  // 1 the 24-hour clock, anything else the 12-hour clock
};

// The parts joined by "/" in the order of iDate; any value but 0 and 2 counts as 1.
std::string JoinDate(std::string_view year, std::string_view month, std::string_view day, int iDate);

}  // namespace tolvanis
