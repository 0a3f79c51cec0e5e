#include "text/columns.h"

#include <algorithm>
#include <array>

namespace tolvanis {
namespace {

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

void AppendCodePoint(std::string& out, char32_t code) {
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (code >> 12));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    }
}

// The length of the well-formed UTF-8 sequence at `at`, or 0.
std::size_t SequenceLength(std::string_view bytes, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned lead = byte(at);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 0 || at + length > bytes.size()) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsContinuation(bytes[at + i])) return 0;
    }
    if (length < 3) return length;
    const unsigned second = byte(at + 1);
    const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
    const bool outside = (lead == 0xED && second > 0x9F) || (lead == 0xF4 && second > 0x8F);
    return overlong || outside ? 0 : length;
}

bool IsUtf8(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t length = SequenceLength(bytes, at);
        if (length == 0) return false;
        at += length;
    }
    return true;
}

// The characters that Windows-1252 has at 0x80 to 0x9F; the five unassigned places keep their own codes.
constexpr std::array<char32_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct CaseRange {
    char32_t first, last;  // lower-case letters
    int toUpper;           // added to the code
    int step;              // 2 where upper and lower case alternate
};

constexpr std::array kCaseRanges = {
    CaseRange{U'a', U'z', -32, 1},   CaseRange{0xE0, 0xF6, -32, 1},    CaseRange{0xF8, 0xFE, -32, 1},
    CaseRange{0xFF, 0xFF, 121, 1},   CaseRange{0x101, 0x12F, -1, 2},   CaseRange{0x133, 0x137, -1, 2},
    CaseRange{0x13A, 0x148, -1, 2},  CaseRange{0x14B, 0x177, -1, 2},   CaseRange{0x17A, 0x17E, -1, 2},
    CaseRange{0x1CE, 0x1DC, -1, 2},  CaseRange{0x1DF, 0x1EF, -1, 2},   CaseRange{0x1F9, 0x21F, -1, 2},
    CaseRange{0x223, 0x233, -1, 2},  CaseRange{0x3AC, 0x3AC, -38, 1},  CaseRange{0x3AD, 0x3AF, -37, 1},
    CaseRange{0x3B1, 0x3C1, -32, 1}, CaseRange{0x3C2, 0x3C2, -31, 1},  CaseRange{0x3C3, 0x3CB, -32, 1},
    CaseRange{0x3CC, 0x3CC, -64, 1}, CaseRange{0x3CD, 0x3CE, -63, 1},  CaseRange{0x430, 0x44F, -32, 1},
    CaseRange{0x450, 0x45F, -80, 1}, CaseRange{0x461, 0x481, -1, 2},   CaseRange{0x48B, 0x4BF, -1, 2},
    CaseRange{0x4D1, 0x52F, -1, 2},  CaseRange{0x1E01, 0x1E95, -1, 2}, CaseRange{0x1EA1, 0x1EFF, -1, 2},
};

char32_t Upper(char32_t code) {
    for (const CaseRange& range : kCaseRanges) {
        if (code < range.first) return code;
        if (code > range.last) continue;
        const bool lower = range.step == 1 || (code - range.first) % 2 == 0;
        return lower ? code + static_cast<char32_t>(range.toUpper) : code;
    }
    return code;
}

char AsciiUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

// How many bytes of valid UTF-8 at the start of a text are a control character, 0 for none: U+0000 to U+001F,
// U+007F to U+009F, line and paragraph separators, and what turns the direction of the text behind it.
std::size_t ControlLength(std::string_view text) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    if (byte(0) < 0x20 || byte(0) == 0x7F) return 1;
    if (byte(0) == 0xC2) return byte(1) < 0xA0 ? 2 : 0;
    if (byte(0) != 0xE2) return 0;
    const bool turnsOrEnds = byte(1) == 0x80 && byte(2) >= 0xA8 && byte(2) <= 0xAE;  // U+2028 to U+202E
    const bool isolates = byte(1) == 0x81 && byte(2) >= 0xA6 && byte(2) <= 0xA9;     // U+2066 to U+2069
    return turnsOrEnds || isolates ? 3 : 0;
}

}  // namespace

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (const char byte : text) count += IsContinuation(byte) ? 0 : 1;
    return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!IsContinuation(text[at]) && count-- == 0) return text.substr(0, at);
    }
    return text;
}

std::string PadRight(std::string_view text, std::size_t width) {
    const std::size_t length = CharacterCount(text);
    std::string padded(text);
    if (length < width) padded.append(width - length, ' ');
    return padded;
}

std::string PadLeft(std::string_view text, std::size_t width) {
    const std::size_t length = CharacterCount(text);
    return std::string(length < width ? width - length : 0, ' ').append(text);
}

std::string_view TrimLeadingBlanks(std::string_view text) {
    const std::size_t start = text.find_first_not_of(" \t");
    return start == std::string_view::npos ? std::string_view{} : text.substr(start);
}

std::string_view TrimTrailingBlanks(std::string_view text) {
    return text.substr(0, text.find_last_not_of(" \t") + 1);
}

std::string_view TrimBlanks(std::string_view text) {
    return TrimTrailingBlanks(TrimLeadingBlanks(text));
}

std::string UpperCase(std::string_view text) {
    std::string upper;
    upper.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const auto lead = static_cast<unsigned char>(text[at]);
        const std::size_t length = SequenceLength(text, at);
        if (length == 2 || length == 3) {
            char32_t code = length == 2 ? lead & 0x1FU : lead & 0x0FU;
            for (std::size_t i = 1; i < length; ++i) {
                code = (code << 6) | (static_cast<unsigned char>(text[at + i]) & 0x3FU);
            }
            AppendCodePoint(upper, Upper(code));
        } else if (length == 4) {
            upper += text.substr(at, 4);
        } else {
            upper += AsciiUpper(text[at]);
        }
        at += length == 0 ? 1 : length;
    }
    return upper;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return a == b || UpperCase(a) == UpperCase(b);
}

bool StartsWithIgnoringAsciiCase(std::string_view text, std::string_view prefix) {
    if (text.size() < prefix.size()) return false;
    for (std::size_t i = 0; i < prefix.size(); ++i) {
        if (AsciiUpper(text[i]) != AsciiUpper(prefix[i])) return false;
    }
    return true;
}

std::string_view WithoutByteOrderMark(std::string_view text) {
    if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    return text;
}

std::string Printable(std::string_view text) {
    const std::string whole = ToUtf8(text);
    std::string printable;
    printable.reserve(whole.size());
    for (std::string_view rest = whole; !rest.empty();) {
        const std::size_t length = ControlLength(rest);
        printable += length > 0 ? ' ' : rest.front();
        rest.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return printable;
}

std::string ToUtf8(std::string_view bytes) {
    if (IsUtf8(bytes)) return std::string(WithoutByteOrderMark(bytes));
    std::string text;
    text.reserve(bytes.size() * 2);
    for (const char byte : bytes) {
        const char32_t code = static_cast<unsigned char>(byte);
        AppendCodePoint(text, code >= 0x80 && code < 0xA0 ? kWindows1252[code - 0x80] : code);
    }
    return text;
}

}  // namespace tolvanis
