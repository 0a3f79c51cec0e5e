#include "platform/clock.h"

#include <langinfo.h>
#include <locale.h>

#include <cmath>
#include <ctime>

namespace tolvanis {

namespace {

LocalTime FromParts(const std::tm& parts) {
    return {
        {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday}, parts.tm_hour, parts.tm_min, parts.tm_sec};
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
    const std::time_t shown = moment - std::lround(hoursWest * kSecondsPerHour);
    std::tm parts{};
    ::gmtime_r(&shown, &parts);
    return FromParts(parts);
}

LocalTime PresentMoment() {
    return OnHostsClock(HostClock());
}

DateTimeOrder OrderOfFormats(std::string_view dateFormat, std::string_view timeFormat) {
    DateTimeOrder order;
    // The compound conversions stand for their POSIX expansions.
    if (dateFormat.find("%D") != std::string_view::npos) dateFormat = "%m/%d/%y";
    if (dateFormat.find("%F") != std::string_view::npos) dateFormat = "%Y-%m-%d";
    const std::size_t year = dateFormat.find_first_of("yY");
    const std::size_t month = dateFormat.find_first_of("mbB");
    const std::size_t day = dateFormat.find_first_of("de");
    constexpr std::size_t kNone = std::string_view::npos;
    if (year != kNone && month != kNone && day != kNone) {
        order.iDate = year < month ? 2 : month < day ? 0 : 1;
    }
    const bool twelve = timeFormat.find_first_of("Ilrp") != kNone;
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
