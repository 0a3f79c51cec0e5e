#include "interp/report_buffer.h"

#include "text/columns.h"

namespace tolvanis {

void ReportBuffer::Reset() {
    lines_.clear();
    overflowed_ = false;
}

void ReportBuffer::AppendLine(std::string_view line) {
    if (LineCount() == kMostLines) {
        overflowed_ = true;
        return;
    }
    lines_.emplace_back(line);
}

std::string_view ReportBuffer::Line(int n) const {
    return n < LineCount() ? std::string_view(lines_[static_cast<std::size_t>(n)]) : std::string_view{};
}

bool FindInReport(const ReportBuffer& report, std::string_view text, int from, SearchDirection direction,
                  ReportPlace& found) {
    const std::string wanted = UpperCase(text);
    const int count = report.LineCount();
    const int step = direction == SearchDirection::Forward ? 1 : count - 1;
    if (wanted.empty() || count == 0) return false;
    int line = ((from % count) + count) % count;
    for (int tried = 0; tried < count; ++tried, line = (line + step) % count) {
        const std::string here = UpperCase(report.Line(line));
        // What follows belongs to the place only as the rest of what begins here.
        const std::string both = here + " " + UpperCase(report.Line(line + 1));
        const std::size_t at = both.find(wanted);
        if (at >= here.size()) continue;
        found = {line, CharacterCount(std::string_view(here).substr(0, at))};
        return true;
    }
    return false;
}

}  // namespace tolvanis
