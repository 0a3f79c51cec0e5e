#pragma once
// Longitudes and declinations as the listings write them.

#include <string>

namespace tolvanis {

// A longitude in whole degrees of its sign and minutes rounded to the nearest; 60 minutes are shown as 59.
struct ZodiacPlace {
    int sign = 1;     // 1 Aries to 12 Pisces
    int degrees = 0;  // 0 to 29
    int minutes = 0;  // 0 to 59
};

// Longitudes are degrees, 0 <= longitude < 360.
ZodiacPlace SplitZodiac(double longitude);

// "15 ARI 32"
std::string FormatDegMin(double longitude);

// "15 ARI 32m 10s", minutes and seconds truncated
std::string FormatDegMinSec(double longitude);

// "23N26", "23S26": degrees, -90 to 90; minutes as in SplitZodiac
std::string FormatDeclination(double declination);

}  // namespace tolvanis
