#pragma once
// Texts cut into printed pages.

#include <span>
#include <string>
#include <vector>

namespace tolvanis {

struct PrintText {
    std::vector<std::vector<std::string>> pages;
    int pointSize = 12;
    bool wholePages = false;  // a page is never continued on another sheet: its lines move closer instead
};

// Whether a line is longer than `longest` characters; a limit below 1 lets every text pass.
bool HasLongLine(std::span<const std::string> lines, double longest);

// The point size for a text: 10 with long lines, else 12.
int PrintPointSize(bool longLines);

// Pages of `linesPerPage` lines, rounded half to even; below 1 everything stands on one page. A form feed
// ends a page where it stands. Empty lines at the text's end are left out, so that no empty sheet follows; a
// text without any line has no page.
std::vector<std::vector<std::string>> SplitIntoPages(std::span<const std::string> lines, double linesPerPage);

}  // namespace tolvanis
