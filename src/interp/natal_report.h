#pragma once
// The natal report: a title page, and the interpretations that fit the chart.

#include <span>
#include <string>
#include <vector>

#include "astro/natal_chart.h"
#include "interp/report_buffer.h"
#include "platform/data_files.h"

namespace tolvanis {

// What a report is built from.
struct ReportSource {
    const NatalChart& chart;
    const Options& options;
    const DataFiles& texts;                      // where the interpretations are looked up
    std::span<const std::string> personalBlock;  // closes the title page
};

// Is told how the building goes on.
class ReportProgress {
  public:
    virtual ~ReportProgress() = default;
    virtual void Open() = 0;
    virtual void SetBar(double fraction) = 0;  // 0 to 1
    virtual void Close() = 0;
};

// Builds the report of a chart in the place of what the buffer holds. A text that is missing, or a file that
// cannot be read, leaves a gap and nothing else. `progress` may be null.
void BuildNatalReport(ReportBuffer& report, const ReportSource& source, ReportProgress* progress = nullptr);

}  // namespace tolvanis
