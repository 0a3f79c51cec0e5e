#include "interp/section_file.h"

#include <algorithm>

#include "text/columns.h"

namespace tolvanis {
namespace {

constexpr int kMostEmptyLines = 9;  // between which a heading is still found

// Blanks alone: a tabulator is text here.
std::string_view WithoutLeadingBlanks(std::string_view line) {
    return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

bool IsTerminator(std::string_view line) {
    const std::string_view text = WithoutLeadingBlanks(line);
    return text == "*" || text == "[]";
}

// Reads on to the heading, which is then in `line`.
bool FindHeading(LineReader& file, std::string_view key, SearchEnd searchEnd, std::string& line) {
    int emptyLines = 0;
    while (file.Next(line)) {
        emptyLines = line.empty() ? emptyLines + 1 : 0;
        if (searchEnd == SearchEnd::TenEmptyLines && emptyLines > kMostEmptyLines) return false;
        if (StartsWithIgnoringAsciiCase(WithoutLeadingBlanks(line), key)) return true;
    }
    return false;
}

}  // namespace

SectionOutcome TakeSection(LineReader& file, std::string_view key, SearchEnd searchEnd,
                           const LineTaker& take) {
    std::string line;
    if (!FindHeading(file, key, searchEnd, line)) return SectionOutcome::Absent;
    take(line);
    while (file.Next(line)) {
        if (IsTerminator(line)) return SectionOutcome::Complete;
        take(line);
    }
    return SectionOutcome::CutShort;
}

}  // namespace tolvanis
