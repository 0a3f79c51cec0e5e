#pragma once
// Sectioned text files: a section begins at its heading line and ends at a line "*" or "[]".

#include <functional>
#include <string_view>

#include "platform/files.h"

namespace tolvanis {

using LineTaker = std::function<void(std::string_view line)>;

// Where the search for a heading is given up.
enum class SearchEnd {
    TenEmptyLines,  // at the tenth empty line in a row, or at the end of the file
    FileEnd,        // at the end of the file
};

enum class SectionOutcome {
    Absent,    // no heading: nothing was taken
    Complete,  // taken up to its terminator
    CutShort,  // taken up to the end of the file, or to the place where reading failed
};

// Takes the first section whose heading begins with the key: its heading and the lines up to the terminator,
// all of them unchanged. Leading blanks of a line and the case of ASCII letters do not matter for heading and
// terminator; a line of blanks is not an empty line. What hindered the reading is found in the reader.
SectionOutcome TakeSection(LineReader& file, std::string_view key, SearchEnd searchEnd,
                           const LineTaker& take);

}  // namespace tolvanis
