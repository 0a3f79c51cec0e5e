#include "output/zodiac_text.h"

#include <algorithm>
#include <cmath>

#include "chart/chart_point.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

int RoundedMinutes(double value) {
    const double fraction = value - std::floor(value);
    return std::min(static_cast<int>(std::floor(fraction * 60.0 + 0.5)), 59);
}

std::string DegreesAndSign(double longitude) {
    const int degrees = static_cast<int>(std::floor(longitude)) % 30;
    std::string text = TwoDigits(degrees);
    return text.append(" ").append(SignAbbreviation(SignOf(longitude))).append(" ");
}

}  // namespace

ZodiacPlace SplitZodiac(double longitude) {
    return {SignOf(longitude), static_cast<int>(std::floor(longitude)) % 30, RoundedMinutes(longitude)};
}

std::string FormatDegMin(double longitude) {
    return DegreesAndSign(longitude) + TwoDigits(RoundedMinutes(longitude));
}

std::string FormatDegMinSec(double longitude) {
    const double minutes = (longitude - std::floor(longitude)) * 60.0;
    const double seconds = (minutes - std::floor(minutes)) * 60.0;
    return DegreesAndSign(longitude) + TwoDigits(static_cast<int>(minutes)) + "m " +
           TwoDigits(static_cast<int>(seconds)) + "s";
}

std::string FormatDeclination(double declination) {
    const double size = std::abs(declination);
    return TwoDigits(static_cast<int>(size)) + (declination >= 0 ? "N" : "S") +
           TwoDigits(RoundedMinutes(size));
}

}  // namespace tolvanis
