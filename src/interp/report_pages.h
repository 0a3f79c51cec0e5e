#pragma once
// The report as it is shown on the screen and as printed pages.

#include <string>
#include <string_view>
#include <vector>

#include "chart/options.h"
#include "interp/report_buffer.h"

namespace tolvanis {

// Lines of the report on one screen.
inline constexpr int kScreenLines = 23;

// Which lines the screen shows.
class ReportScreen {
  public:
    explicit ReportScreen(const ReportBuffer& report) : report_(report) {}

    int top() const { return top_; }
    int last() const;  // the line shown last

    // Whether there is more to see further down.
    bool CanGoDown() const { return top_ + kScreenLines - 1 <= report_.LineCount(); }

    // Moves the first line shown by so many lines, down only where CanGoDown and never above the first line
    // of the report. Returns whether the screen is to be drawn anew.
    bool Move(int lines);
    void GoTo(int line) { top_ = line; }

    // The lines shown, each with CR LF behind it.
    std::string Text() const;

  private:
    const ReportBuffer& report_;
    int top_ = 0;
};

struct ReportPageForm {
    int lines = 61;     // of text on a page, the margin at its top included
    int topMargin = 3;  // empty lines on top of every page but the first; none below 1
};

// The form that options 29, 31 and 32 give.
ReportPageForm ReportPageFormOf(const Options& options);

using ReportPage = std::vector<std::string>;

// The report and the empty line behind it in pages, margins and numbered footers included. The last page
// holds nothing but its margin when the report ends with a full page.
std::vector<ReportPage> PaginateReport(const ReportBuffer& report, const ReportPageForm& form);

// The pages that printing needs: without a last one that holds nothing but its margin.
std::vector<ReportPage> PrintedReport(const ReportBuffer& report, const ReportPageForm& form);

// What Save writes: the pages, a line with a form feed after each.
std::string SavedReport(const ReportBuffer& report, const ReportPageForm& form, std::string_view lineEnd);

}  // namespace tolvanis
