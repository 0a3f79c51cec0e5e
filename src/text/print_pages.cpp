#include "text/print_pages.h"

#include <algorithm>

#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

bool IsEmpty(const std::string& line) {
    return line.find_first_not_of(" \f") == std::string::npos;
}

class PageCutter {
  public:
    explicit PageCutter(std::size_t linesPerPage) : linesPerPage_(linesPerPage) {}

    void AddLine(std::string line) {
        const bool full = linesPerPage_ > 0 && !pages_.empty() && pages_.back().size() >= linesPerPage_;
        if (startPage_ || full) pages_.emplace_back();
        startPage_ = false;
        pages_.back().push_back(std::move(line));
    }
    void EndPage() { startPage_ = true; }

    std::vector<std::vector<std::string>> TakePages() { return std::move(pages_); }

  private:
    std::size_t linesPerPage_;
    std::vector<std::vector<std::string>> pages_;
    bool startPage_ = true;
};

}  // namespace

bool HasLongLine(std::span<const std::string> lines, double longest) {
    return longest >= 1.0 && std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
               return static_cast<double>(CharacterCount(line)) > longest;
           });
}

int PrintPointSize(bool longLines) {
    return longLines ? 10 : 12;
}

std::vector<std::vector<std::string>> SplitIntoPages(std::span<const std::string> lines,
                                                     double linesPerPage) {
    while (!lines.empty() && IsEmpty(lines.back())) lines = lines.first(lines.size() - 1);
    PageCutter cutter(static_cast<std::size_t>(std::max<int>(0, RoundToInt16(linesPerPage))));
    for (std::string_view line : lines) {
        std::size_t feed = line.find('\f');
        if (feed == std::string_view::npos) {
            cutter.AddLine(std::string(line));
            continue;
        }
        for (; feed != std::string_view::npos; feed = line.find('\f')) {
            if (feed > 0) cutter.AddLine(std::string(line.substr(0, feed)));
            cutter.EndPage();
            line.remove_prefix(feed + 1);
        }
        if (!line.empty()) cutter.AddLine(std::string(line));
    }
    return cutter.TakePages();
}

}  // namespace tolvanis
