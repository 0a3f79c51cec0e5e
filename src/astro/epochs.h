#pragma once
// Epochs from which the theories count, and their units of time.

namespace tolvanis {

// Julian days.
inline constexpr double kEpoch1900 = 2415020.0;  // 1900 January 0, noon
inline constexpr double kJ2000 = 2451545.0;      // 2000 January 1, noon

inline constexpr double kDaysPerCentury = 36525.0;  // Julian
inline constexpr double kDaysPerMillennium = 10.0 * kDaysPerCentury;

}  // namespace tolvanis
