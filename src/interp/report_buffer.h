#pragma once
// The lines of the natal report built last.

#include <string>
#include <string_view>
#include <vector>

namespace tolvanis {

// Lines as they were appended, and one empty line behind them that is always there. Lines beyond the
// buffer's room are dropped and the drop is noted.
class ReportBuffer {
  public:
    static constexpr int kMostLines = 32767;

    void Reset();
    void AppendLine(std::string_view line);
    void AppendEmptyLine() { AppendLine({}); }

    int LineCount() const { return static_cast<int>(lines_.size()); }
    // 0 <= n <= LineCount().
    std::string_view Line(int n) const;
    bool overflowed() const { return overflowed_; }

  private:
    std::vector<std::string> lines_;
    bool overflowed_ = false;
};

// A place in the report: a line, and how many characters of it stand in front.
struct ReportPlace {
    int line = 0;
    std::size_t column = 0;
    friend bool operator==(const ReportPlace&, const ReportPlace&) = default;
};

enum class SearchDirection { Forward, Backward };

// The first place of a text, in the line `from` or beyond it in the direction, going on at the other end of
// the report. Letter case does not matter, and the end of a line counts as a blank, so that a phrase is found
// across it. Of several places in one line the first counts. False when there is none.
bool FindInReport(const ReportBuffer& report, std::string_view text, int from, SearchDirection direction,
                  ReportPlace& found);

}  // namespace tolvanis
