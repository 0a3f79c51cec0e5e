#include "interp/report_pages.h"

#include <algorithm>

#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr int kFootLinesOption = 29;
constexpr int kPageLengthOption = 31;
constexpr int kTopMarginOption = 32;
constexpr int kLinesAboveFooter = 4;

// Fills pages line by line.
class Paginator {
  public:
    explicit Paginator(const ReportPageForm& form) : form_(form) {}

    void Add(std::string_view line) {
        Page().emplace_back(line);
        if (position_ == form_.lines) EndPage();
        ++position_;
    }

    std::vector<ReportPage> Finish() {
        if (position_ > Margin() + 1) {
            AddEmptyLines(form_.lines - position_ + kLinesAboveFooter + 1);
            Page().push_back(Footer());
        }
        return std::move(pages_);
    }

  private:
    ReportPage& Page() { return pages_.back(); }
    int Margin() const { return std::max(form_.topMargin, 0); }

    std::string Footer() const { return std::string(37, ' ') + "Page " + std::to_string(pages_.size()); }

    void AddEmptyLines(int count) {
        for (int i = 0; i < count; ++i) Page().emplace_back();
    }

    void EndPage() {
        AddEmptyLines(kLinesAboveFooter);
        Page().push_back(pages_.size() == 1 ? std::string() : Footer());
        pages_.emplace_back();
        AddEmptyLines(Margin());
        position_ = Margin();
    }

    ReportPageForm form_;
    std::vector<ReportPage> pages_ = {{}};
    int position_ = 1;  // of the next line on its page
};

}  // namespace

int ReportScreen::last() const {
    return std::min(top_ + kScreenLines - 1, report_.LineCount());
}

bool ReportScreen::Move(int lines) {
    if (lines > 0 && !CanGoDown()) return false;
    top_ = std::max(top_ + lines, 0);
    return true;
}

std::string ReportScreen::Text() const {
    std::string text;
    for (int n = top_; n <= last(); ++n) text.append(report_.Line(n)).append("\r\n");
    return text;
}

ReportPageForm ReportPageFormOf(const Options& options) {
    return {RoundToInt16(double{options[kPageLengthOption]} - double{options[kFootLinesOption]}),
            RoundToInt16(double{options[kTopMarginOption]})};
}

std::vector<ReportPage> PaginateReport(const ReportBuffer& report, const ReportPageForm& form) {
    Paginator paginator(form);
    for (int n = 0; n <= report.LineCount(); ++n) paginator.Add(report.Line(n));
    return paginator.Finish();
}

std::vector<ReportPage> PrintedReport(const ReportBuffer& report, const ReportPageForm& form) {
    std::vector<ReportPage> pages = PaginateReport(report, form);
    const auto empty = [](const std::string& line) { return line.empty(); };
    if (std::ranges::all_of(pages.back(), empty)) pages.pop_back();
    return pages;
}

std::string SavedReport(const ReportBuffer& report, const ReportPageForm& form, std::string_view lineEnd) {
    std::string text;
    for (const ReportPage& page : PaginateReport(report, form)) {
        for (const std::string& line : page) text.append(line).append(lineEnd);
        text.append("\f").append(lineEnd);
    }
    return text;
}

}  // namespace tolvanis
