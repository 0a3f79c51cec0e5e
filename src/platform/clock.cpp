#include "platform/clock.h"

#include <langinfo.h>
#include <locale.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <string>

namespace tolvanis {

namespace {

LocalTime FromParts(const std::tm& parts) {
    return {
        {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday}, parts.tm_hour, parts.tm_min, parts.tm_sec};
}

// The letters of a format's conversions, "dBY" for "%d de %B %Y", with those that stand for several of them
// spelled out.
std::string ConversionsIn(std::string_view format) {
    std::string letters;
    for (std::size_t at = format.find('%'); at != std::string_view::npos; at = format.find('%', at + 1)) {
        at = format.find_first_not_of("EO-_0^#123456789", at + 1);  // flags, width and modifiers
        if (at == std::string_view::npos) break;
        if (format[at] == 'D') {
            letters += "mdy";
        } else if (format[at] == 'F') {
            letters += "Ymd";
        } else {
            letters += format[at];
        }
    }
    return letters;
}

}  // namespace

std::time_t HostClock() {
    return std::time(nullptr);
}

LocalTime OnHostsClock(std::time_t moment) {
    std::tm parts{};
    ::localtime_r(&moment, &parts);
    return FromParts(parts);
}

LocalTime OnClockOfZone(std::time_t moment, double hoursWest) {
    constexpr double kSecondsPerHour = 3600.0;
    constexpr double kMostHours = 48.0;  // no clock is further off, whatever a damaged file says
    const double hours = std::isnan(hoursWest) ? 0.0 : std::clamp(hoursWest, -kMostHours, kMostHours);
    const std::time_t shown = moment - std::lround(hours * kSecondsPerHour);
    std::tm parts{};
    ::gmtime_r(&shown, &parts);
    return FromParts(parts);
}

LocalTime PresentMoment() {
    return OnHostsClock(HostClock());
}

DateTimeOrder OrderOfFormats(std::string_view dateFormat, std::string_view timeFormat) {
    DateTimeOrder order;
    const std::string date = ConversionsIn(dateFormat);
    const std::size_t year = date.find_first_of("yYG");
    const std::size_t month = date.find_first_of("mbBh");
    const std::size_t day = date.find_first_of("de");
    constexpr std::size_t kNone = std::string::npos;
    if (year != kNone && month != kNone && day != kNone) {
        order.iDate = year < month ? 2 : month < day ? 0 : 1;
    }
    const bool twelve = ConversionsIn(timeFormat).find_first_of("IlrpP") != kNone;
    order.iTime = twelve ? 0 : 1;
    return order;
}

DateTimeOrder HostDateTimeOrder() {
    const locale_t locale = ::newlocale(LC_TIME_MASK, "", nullptr);
    if (locale == nullptr) return {};
    const DateTimeOrder order =
        OrderOfFormats(::nl_langinfo_l(D_FMT, locale), ::nl_langinfo_l(T_FMT, locale));
    ::freelocale(locale);
    return order;
}

}  // namespace tolvanis
