#pragma once
// The data buffer: every text computed for the user, line by line.

#include <string>
#include <string_view>
#include <vector>

namespace tolvanis {

// Keeps two lists: the lines appended since the buffer was last cleared, for saving and printing, and those
// of the current listing, for showing. Each holds at most kMostLines lines: what is already kept stays,
// further lines are dropped and the drop is noted, so that the user can be told once.
class DataBuffer {
  public:
    static constexpr std::size_t kMostLines = 32767;
    static constexpr std::size_t kNearlyFull = 1000;  // more lines than this call for a warning

    void StartListing();
    void AppendLine(std::string_view line);
    void AppendBlankLine();

    void ClearDataBuffer();
    // Empties the list for saving and printing; the current listing stays.
    void ClearBufferLines();

    const std::vector<std::string>& BufferLines() const { return bufferLines_; }
    const std::vector<std::string>& ListingLines() const { return listingLines_; }
    std::size_t BufferLineCount() const { return bufferLines_.size(); }
    std::size_t ListingLineCount() const { return listingLines_.size(); }

    // Whether lines have been dropped since the last clearing; true only once.
    bool TakeOverflowNotice();

    // The current listing as one text: every line and one empty line, each with the line end given.
    std::string ListingText(std::string_view lineEnd) const;

  private:
    std::vector<std::string> bufferLines_;
    std::vector<std::string> listingLines_;
    bool overflowed_ = false;
    bool noticeGiven_ = false;
};

}  // namespace tolvanis
