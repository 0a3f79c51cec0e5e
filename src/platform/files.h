#pragma once
// The file system as the program sees it: names found without regard to case, "\" and "/" alike, lines that
// end in CR LF or LF, and files of the user's that are replaced whole or not at all.

#include <filesystem>
#include <fstream>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/result.h"

namespace tolvanis {

using Path = std::filesystem::path;

// A path from a UTF-8 text in which "\" and "/" both separate.
Path PathFromText(std::string_view text);

// The file or directory that the path names. A component that does not exist as written is looked up without
// regard to letter case; where nothing fits, the path is returned as written, so that messages can name it.
Path FindPath(const Path& path);
Path FindFile(const Path& directory, std::string_view name);

// The part after the last separator of either kind.
std::string_view FileNamePart(std::string_view path);

// A regular file that can be opened for reading.
bool IsReadableFile(const Path& path);

// Reads a text file line by line, holding one line at a time. The ends of lines (CR LF or LF) are taken off;
// a last line without one counts. A line that is not valid UTF-8 is read as Windows-1252.
class LineReader {
  public:
    // Finds the file as FindPath does.
    explicit LineReader(const Path& path);

    bool IsOpen() const { return fault_.empty(); }
    // Why the file could not be opened or read to its end ("No such file or directory"); empty when all is
    // well.
    const std::string& Problem() const { return fault_; }

    bool Next(std::string& line);
    int LineNumber() const { return lineNumber_; }  // of the last line read, counted from 1

  private:
    std::ifstream file_;
    std::string fault_;
    int lineNumber_ = 0;
    bool first_ = true;
};

// All lines of a text file.
Result<std::vector<std::string>> ReadLines(const Path& path);

// The bytes of a file as they are.
Result<std::string> ReadBytes(const Path& path);

// Reads one number a line from its first 7 characters into values[1], values[2] ... up to the first empty
// line, the end of the file or the end of the table; values[0] and entries without a line keep their value.
// Returns the number of non-empty lines in front of that end, also those beyond the table.
Result<int> ReadNumberLines(const Path& path, std::span<float> values);

// Receives pieces of a file's new content; false when a piece could not be written.
using Sink = std::function<bool(std::string_view)>;

// Replaces the file at `path` (or makes it): the content is written to a new file beside it, flushed to the
// disk and renamed into place, so that at any moment the old or the new content is there in full. Symbolic
// links are followed, the mode of an existing file is kept, and a read-only file is refused. A device or a
// pipe is written to, never replaced. On a fault the old file is untouched and the message names the file and
// the reason.
Result<void> ReplaceFile(const Path& path, std::string_view content);
Result<void> ReplaceFile(const Path& path, const std::function<bool(const Sink&)>& write);

// Replaces the file only while its content is still `expected` (a file that does not exist counts as empty),
// and keeps that content under the name `backup`; an earlier backup is replaced. False, with nothing touched,
// when another program has changed the file meanwhile. Two programs that call this for files of one directory
// take turns. At any moment the file holds the old or the new content in full and is never missing; the
// backup holds the content that was there before, or for an instant the present one.
Result<bool> ReplaceIfUnchanged(const Path& path, const Path& backup, std::string_view expected,
                                std::string_view content);

// Lines joined with CR LF after each.
std::string JoinLines(std::span<const std::string> lines);

}  // namespace tolvanis
