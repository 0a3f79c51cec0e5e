#include "app/clock_caption.h"

#include "text/numbers.h"

namespace tolvanis {
namespace {

std::string TimeText(const LocalTime& now, bool twentyFourHours) {
    const std::string rest = ":" + TwoDigits(now.minute) + ":" + TwoDigits(now.second);
    if (twentyFourHours) return TwoDigits(now.hour) + rest;
    const int hour = now.hour % 12 == 0 ? 12 : now.hour % 12;
    return std::to_string(hour) + rest + (now.hour < 12 ? " AM" : " PM");
}

}  // namespace

std::string ClockCaption(std::string_view titlePrefix, const LocalTime& now, const DateTimeOrder& order) {
    return std::string(titlePrefix) + FormatDate(now.date) + "     " + TimeText(now, order.iTime == 1);
}

}  // namespace tolvanis
