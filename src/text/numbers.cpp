#include "text/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tolvanis {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at;
}

std::size_t SkipBlanks(std::string_view text, std::size_t at) {
    while (at < text.size() && (text[at] == ' ' || text[at] == '\t')) ++at;
    return at;
}

struct NumberPrefix {
    double value = 0.0;
    std::size_t end = 0;  // one past the number's last character; 0 when there is no number
};

// Whether digits, with at least one that is not 0, stand for less than 1.
bool IsFraction(std::string_view digits) {
    const std::size_t mantissaEnd = std::min(digits.find('e'), digits.size());
    const std::string_view mantissa = digits.substr(0, mantissaEnd);
    const std::string_view exponentText = digits.substr(std::min(mantissaEnd + 1, digits.size()));
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    std::int32_t exponent = 0;
    const auto read =
        std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
    if (read.ec == std::errc::result_out_of_range) return exponentText.front() == '-';
    return point - first + (first < point ? 0 : 1) + exponent <= 0;
}

double Convert(std::string_view digits, bool negative) {
    double value = 0.0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        value = IsFraction(digits) ? 0.0 : std::numeric_limits<double>::max();
    }
    return negative ? -value : value;
}

NumberPrefix ReadPrefix(std::string_view text) {
    std::size_t at = SkipBlanks(text, 0);
    bool negative = false;
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) negative = text[at++] == '-';
    const std::size_t start = at;
    at = SkipDigits(text, at);
    std::size_t digits = at - start;
    if (at < text.size() && text[at] == '.') {
        const std::size_t fraction = SkipDigits(text, at + 1);
        digits += fraction - at - 1;
        if (digits > 0) at = fraction;
    }
    if (digits == 0) return {};

    std::string number(text.substr(start, at - start));
    if (number.front() == '.') number.insert(0, 1, '0');
    if (at < text.size() && std::string_view("eEdD").find(text[at]) != std::string_view::npos) {
        std::size_t exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == '-' || text[exponent] == '+')) ++exponent;
        const std::size_t end = SkipDigits(text, exponent);
        if (end > exponent) {
            number += text[at + 1] == '-' ? "e-" : "e";
            number += text.substr(exponent, end - exponent);
            at = end;
        }
    }
    return {Convert(number, negative), at};
}

template <typename Real>
std::string PlainText(Real value) {
    if (!std::isfinite(value) || value == Real{0}) return "0";
    char buffer[400];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
    return std::string(buffer, result.ptr);
}

template <typename Real>
std::string WithLeadingBlank(Real value) {
    std::string text = PlainText(value);
    return text.front() == '-' ? text : ' ' + text;
}

struct MaskShape {
    std::size_t leastWhole = 0;     // digits in front of the point that are always there
    std::size_t leastFraction = 0;  // digits behind the point that are always there
    std::size_t mostFraction = 0;
    bool point = false;
};

MaskShape ShapeOf(std::string_view mask) {
    MaskShape shape;
    const std::size_t point = mask.find('.');
    const std::string_view whole = mask.substr(0, point);
    const std::size_t firstZero = whole.find('0');
    shape.leastWhole = firstZero == std::string_view::npos ? 0 : whole.size() - firstZero;
    if (point == std::string_view::npos) return shape;
    const std::string_view fraction = mask.substr(point + 1);
    const std::size_t lastZero = fraction.rfind('0');
    shape.point = true;
    shape.leastFraction = lastZero == std::string_view::npos ? 0 : lastZero + 1;
    shape.mostFraction = fraction.size();
    return shape;
}

// Adds one unit in the last place to a string of decimal digits.
void Increment(std::string& digits) {
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return;
        }
        *digit = '0';
    }
    digits.insert(0, 1, '1');
}

std::string ApplyMask(std::string text, std::string_view mask) {
    const MaskShape shape = ShapeOf(mask);
    const bool negative = text.front() == '-';
    if (negative) text.erase(0, 1);
    const std::size_t point = text.find('.');
    std::string digits = text.substr(0, point);
    std::string fraction = point == std::string::npos ? "" : text.substr(point + 1);
    const bool up = fraction.size() > shape.mostFraction && fraction[shape.mostFraction] >= '5';
    fraction.resize(shape.mostFraction, '0');

    digits += fraction;
    if (up) Increment(digits);
    const bool zero = digits.find_first_not_of('0') == std::string::npos;
    std::string whole = digits.substr(0, digits.size() - shape.mostFraction);
    fraction = digits.substr(digits.size() - shape.mostFraction);

    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
    if (whole.size() < shape.leastWhole) whole.insert(0, shape.leastWhole - whole.size(), '0');
    while (fraction.size() > shape.leastFraction && fraction.back() == '0') fraction.pop_back();
    return (negative && !zero ? "-" : "") + whole + (shape.point ? "." : "") + fraction;
}

}  // namespace

double LeadingNumber(std::string_view text) {
    return ReadPrefix(text).value;
}

std::optional<double> EntireNumber(std::string_view text) {
    const NumberPrefix prefix = ReadPrefix(text);
    if (prefix.end == 0 || SkipBlanks(text, prefix.end) != text.size()) return std::nullopt;
    return prefix.value;
}

std::optional<int> WholeNumberIn(std::string_view text, int least, int most) {
    const auto number = EntireNumber(text);
    if (!number || *number < least || *number > most || *number != std::floor(*number)) return std::nullopt;
    return static_cast<int>(*number);
}

std::int16_t RoundToInt16(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (std::isnan(value)) return 0;
    const double bounded = std::clamp(value, double{Limits::min()}, double{Limits::max()});
    return static_cast<std::int16_t>(std::nearbyint(bounded));
}

std::string NumberText(double value) {
    return PlainText(value);
}

std::string NumberText(float value) {
    return PlainText(value);
}

std::string ClassicNumberText(double value) {
    return WithLeadingBlank(value);
}

std::string ClassicNumberText(float value) {
    return WithLeadingBlank(value);
}

std::string FormatMask(double value, std::string_view mask) {
    return ApplyMask(PlainText(value), mask);
}

std::string FormatMask(float value, std::string_view mask) {
    return ApplyMask(PlainText(value), mask);
}

std::string TwoDigits(int value) {
    std::string text = std::to_string(value);
    return text.size() < 2 ? '0' + text : text;
}

std::string PadToThree(std::string_view numberText) {
    const double value = LeadingNumber(numberText);
    const std::size_t blanks = value < 10 ? 2 : value < 100 ? 1 : 0;
    return std::string(blanks, ' ').append(numberText);
}

std::string PadSignedToFour(std::string_view numberText) {
    const double value = LeadingNumber(numberText);
    std::size_t blanks = 0;
    if (numberText.starts_with("-0,")) {
        blanks = 2;
    } else if (value >= 100) {
        blanks = 1;
    } else if (value >= 10) {
        blanks = 2;
    } else if (value >= 0) {
        blanks = 3;
    } else if (value > -10) {
        blanks = 2;
    } else if (value > -100) {
        blanks = 1;
    }
    return std::string(blanks, ' ').append(numberText);
}

}  // namespace tolvanis
