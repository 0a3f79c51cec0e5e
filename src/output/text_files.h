#pragma once
// Listings as files: the saved listing with its page breaks, the work file of the print window, and text
// files shown as listings.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "output/data_buffer.h"
#include "platform/files.h"

namespace tolvanis {

// The file through which the print commands hand their text to the print window.
inline constexpr std::string_view kPrintFileName = "PRNTFILE.XXX";

// What stands in front of every line of a listing of lessons or meanings.
inline constexpr std::string_view kListingIndent = "  ";

// The user's own name and address, printed under a full-page wheel and on a report's title page.
inline constexpr std::string_view kPersonalBlockName = "PERSONAL.NAM";

// What Save writes: every line and one empty line, and a line with a form feed after each line whose index
// (from 0, the first one aside) is divisible by linesPerPage - 1, rounded half to even, and after the last
// line. With fewer than 2 lines a page there is only the last form feed.
std::string SavedListing(std::span<const std::string> lines, double linesPerPage);

// What the print commands write: every line and one empty line.
std::string PrintFileText(std::span<const std::string> lines);

// A text as a file name may hold it, with "_" for each of the signs / \ : * ? " < > |.
std::string FileNameText(std::string text);

// A file name for a person's text: the name up to its first blank, at most 8 characters, as a file name may
// hold it, and the extension (".DOC"); without a name it is "CHART".
std::string ProposedFileName(std::string_view personName, std::string_view extension);

// How a text file becomes a listing.
enum class TextUse {
    Reading,  // the lines and one blank line; a file that cannot be read or is empty leaves the buffer as it
              // is
    Lesson,   // alone in the buffer: one blank line, then the lines, set in by two blanks
};

// Makes a text file the buffer's new listing; the returned number is that of the lines read. A fault names
// the file that cannot be read.
Result<int> ListTextFile(DataBuffer& buffer, const Path& path, TextUse use = TextUse::Reading);

// The lines of the personal block as they stand; none when there is no such file.
std::vector<std::string> ReadPersonalBlock(const Path& file);

// What the user is told of a text file that cannot be read: that it is not there, or else the fault.
std::string UnreadTextMessage(const Path& path, const Fault& fault);

}  // namespace tolvanis
