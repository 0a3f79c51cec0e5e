#pragma once
// The file system as the program sees it: names found without regard to case, "\" and "/" alike, lines that
// end in CR LF or LF.

#include <cstddef>
#include <filesystem>
#include <limits>
#include <memory>
#include <optional>
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
// A link that points nowhere is found too. For reading, and for the files that the program knows by name; a
// file that the user names anew is the very one given.
Path FindPath(const Path& path);
Path FindFile(const Path& directory, std::string_view name);

// Whether the name is taken, be it by a link that points nowhere.
bool IsNameTaken(const Path& path);

// The file beside `path` whose name is the same but for letter case, where the directory has no entry with
// the very name; else nothing.
std::optional<Path> OtherSpelling(const Path& path);

// The path from the root of the file system; as it is when the working directory is gone.
Path AbsolutePath(const Path& path);

// The part after the last separator of either kind.
std::string_view FileNamePart(std::string_view path);

// A regular file that can be opened for reading.
bool IsReadableFile(const Path& path);

// What is read of one line and of one file at most, so that endless input (a device, a pipe) ends in a
// message and not in a full memory.
inline constexpr std::size_t kLongestLine = std::size_t{1} << 20;
inline constexpr std::size_t kLargestFile = std::size_t{1} << 28;
inline constexpr std::size_t kAnySize = std::numeric_limits<std::size_t>::max();

// The system's words for one of its error numbers; 0, which tells nothing, is an input or output error.
std::string SystemReason(int error);

// Takes the first line, with its end, off the bytes. A line ends in LF, in CR LF or in CRs alone; any number
// of CRs counts as one.
std::string_view TakeLine(std::string_view& bytes);
std::string_view WithoutLineEnd(std::string_view line);

// The text of a line as every reader gets it: without its end, without the byte order marks and DOS end marks
// (0x1A) that joined files and old editors leave at its ends, and read as Windows-1252 where it is not valid
// UTF-8.
std::string LineText(std::string_view line);

// The bytes of a file, piece by piece.
class ByteReader {
  public:
    // Finds the file as FindPath does.
    explicit ByteReader(const Path& path);
    ~ByteReader();
    ByteReader(const ByteReader&) = delete;
    ByteReader& operator=(const ByteReader&) = delete;

    // The next piece, valid until the next call; empty at the end and after a fault.
    std::string_view Next();
    // Why the file could not be opened or read to its end, or that nothing comes out of a pipe ("No such file
    // or directory"); empty when all is well.
    const std::string& fault() const { return fault_; }

  private:
    int descriptor_;
    bool begun_ = false;
    std::string fault_;
    std::vector<char> buffer_;
};

// Reads a text line by line, holding one line at a time. A last line without an end counts; a line of nothing
// but marks does not. Gives the lines' texts (LineText).
class LineReader {
  public:
    // A file of more than `most` bytes gives a fault when that many are read.
    explicit LineReader(const Path& path, std::size_t most = kLargestFile);
    // Reads a text in memory, which outlives the reader.
    static LineReader OfText(std::string_view text) { return LineReader(InMemory{}, text); }
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    // Whether the text could not be opened or, so far, not be read.
    bool HasFault() const { return !fault_.empty(); }
    // Why it could not be read to its end, as with ByteReader, or because a line is too long.
    const std::string& fault() const { return fault_; }

    bool Next(std::string& line);
    int LineNumber() const { return lineNumber_; }  // of the last line read, counted from 1

  private:
    struct InMemory {};
    LineReader(InMemory, std::string_view text) : rest_(text) {}
    std::string_view TakeRawLine();
    void ReadMore();

    std::unique_ptr<ByteReader> file_;  // until its end
    std::size_t left_ = 0;              // that may still be read of it
    std::string buffer_;                // what has been read of it and not been taken
    std::string_view rest_;             // of the buffer or of the text
    std::string fault_;
    int lineNumber_ = 0;
};

// The message that a file cannot be read, with the reason.
Fault CannotRead(const Path& path, std::string_view reason);

// All lines of a text file; one of more than kLargestFile bytes is refused.
Result<std::vector<std::string>> ReadLines(const Path& path);

// The bytes of a file as they are; more than kLargestFile are refused.
Result<std::string> ReadBytes(const Path& path);

// Reads one number a line from its first 7 characters into values[1], values[2] ... up to the first empty
// line, the end of the file or the end of the table; values[0] and entries without a line keep their value.
// With exponents such texts could say anything: beyond 9999999 the value is that, with its sign. Returns the
// number of non-empty lines in front of that end, also those beyond the table.
Result<int> ReadNumberLines(const Path& path, std::span<float> values);

// Lines joined with CR LF after each.
std::string JoinLines(std::span<const std::string> lines);

}  // namespace tolvanis
