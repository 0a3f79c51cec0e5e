#pragma once
// Text in columns. Texts are UTF-8; widths, positions and "first n characters" count characters, never bytes.

#include <cstddef>
#include <string>
#include <string_view>

namespace tolvanis {

std::size_t CharacterCount(std::string_view text);

// The first `count` characters, or the whole text when it is shorter.
std::string_view FirstCharacters(std::string_view text, std::size_t count);

// The text followed by blanks up to `width` characters; a longer text is returned unchanged.
std::string PadRight(std::string_view text, std::size_t width);

// The text with blanks in front up to `width` characters; a longer text is returned unchanged.
std::string PadLeft(std::string_view text, std::size_t width);

std::string_view TrimBlanks(std::string_view text);
std::string_view TrimLeadingBlanks(std::string_view text);
std::string_view TrimTrailingBlanks(std::string_view text);

// Upper case for the letters of the Latin, Greek and Cyrillic alphabets; every other character stays.
std::string UpperCase(std::string_view text);

// Whether two texts are equal without regard to letter case, in the sense of UpperCase.
bool EqualIgnoringCase(std::string_view a, std::string_view b);

// Whether the text begins with the prefix, without regard to the case of ASCII letters.
bool StartsWithIgnoringAsciiCase(std::string_view text, std::string_view prefix);

// The mark that some programs put in front of UTF-8 text.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
std::string_view WithoutByteOrderMark(std::string_view text);

// The text with a blank in place of every control character, so that it can do nothing to a terminal.
std::string Printable(std::string_view text);

// The bytes as UTF-8: valid UTF-8 is returned as it is without a byte order mark, anything else is taken as
// Windows-1252.
std::string ToUtf8(std::string_view bytes);

}  // namespace tolvanis
