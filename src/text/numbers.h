#pragma once
// Numbers to text and back, in the forms that the program's files, windows and listings use.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tolvanis {

// The classic leading-number reading: leading blanks are skipped, then the longest prefix that is a number
// (sign, digits, one decimal point, an exponent introduced by E or D) is taken. Text without such a prefix
// reads as 0; a value beyond the range of a double reads as the largest double of its sign.
double LeadingNumber(std::string_view text);

// The number that makes up the whole text, blanks around it allowed, and nothing where there is more or less
// than one number.
std::optional<double> EntireNumber(std::string_view text);

// The same where the number is a whole one from `least` to `most`.
std::optional<int> WholeNumberIn(std::string_view text, int least, int most);

// The value rounded half to even into 16 bits. Values beyond the range become the nearest bound and an
// invalid number becomes 0, so that a damaged settings file can never stop the program.
std::int16_t RoundToInt16(double value);

// The shortest text that reads back as the same value, without exponent: 5, -3.5, 0.25.
std::string NumberText(double value);
std::string NumberText(float value);

// NumberText with a blank in front of a value that is not negative: " 8.5", "-1".
std::string ClassicNumberText(double value);
std::string ClassicNumberText(float value);

// The value in a digit mask such as "00", "#0", "##0.0", "##0.00", "##.#0" or "#00#.#0".
// "0" is a place that is always filled, "#" one that is filled when needed; a "#" after a "0" in front of the
// point and a "#" before a "0" behind it count as "0". Digits that exceed the places in front of the point
// are kept. Halves are rounded away from zero, judged on the value's shortest decimal text (5.25 is 5.3 in
// "##0.0"), and a result of zero carries no sign.
std::string FormatMask(double value, std::string_view mask);
std::string FormatMask(float value, std::string_view mask);

// A whole number from 0 to 99 as two digits.
std::string TwoDigits(int value);

// The text of a whole number with two blanks in front when its value is below 10, one when below 100.
std::string PadToThree(std::string_view numberText);

// The text of a signed number with blanks in front so that whole numbers fill four characters: one blank
// when the value is 100 or more, two when 10 or more, three when 0 or more, two when above -10, one when
// above -100, else none. A text that begins "-0," gets two.
std::string PadSignedToFour(std::string_view numberText);

}  // namespace tolvanis
