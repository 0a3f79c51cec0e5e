#pragma once
// The host's clock and its customs of writing dates and times.

#include <ctime>

#include "text/dates.h"

namespace tolvanis {

struct LocalTime {
    CalendarDate date;
    int hour = 0;  // 0 to 23
    int minute = 0;
    int second = 0;
};

// What tells the present moment: seconds of Universal Time since 1970.
using Clock = std::time_t (*)();
std::time_t HostClock();

// What a program takes from its host: the clock, and the order in which its user writes dates and times.
struct HostTime {
    Clock clock;
    DateTimeOrder order;
};

// A moment on a clock in the host's time zone, and on one that runs `hoursWest` hours behind Greenwich.
LocalTime OnHostsClock(std::time_t moment);
LocalTime OnClockOfZone(std::time_t moment, double hoursWest);

// The present moment on the host's clock, in the host's time zone.
LocalTime PresentMoment();

// Order and clock as in the conversions of the POSIX date and time formats of a locale ("%d.%m.%Y",
// "%H:%M:%S"); a format without the day, month and year, or without an hour, leaves that value at 1.
DateTimeOrder OrderOfFormats(std::string_view dateFormat, std::string_view timeFormat);

// The order that the user's locale (LC_ALL, LC_TIME, LANG) asks for.
DateTimeOrder HostDateTimeOrder();

}  // namespace tolvanis
