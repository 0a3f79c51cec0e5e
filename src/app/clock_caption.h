#pragma once
// The clock in the main window's caption.

#include <string>
#include <string_view>

#include "platform/clock.h"

namespace tolvanis {

// Prefix, date, five blanks and the time on the 24-hour or 12-hour clock:
// "Tolvanis - 05 Jan 2027     9:07:30 PM".
std::string ClockCaption(std::string_view titlePrefix, const LocalTime& now, const DateTimeOrder& order);

}  // namespace tolvanis
