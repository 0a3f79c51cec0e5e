#pragma once
// A computation as the user sees it: its faults told, its listing in the buffer.

#include <optional>

#include "astro/natal_chart.h"
#include "output/data_buffer.h"
#include "platform/messages.h"

namespace tolvanis {

// Starts a listing in the buffer and writes the birth, cusps, points and aspect grid of a chart.
void WriteChart(DataBuffer& buffer, const NatalChart& chart, const Options& options);

struct ComputeOutcome {
    std::optional<NatalChart> chart;
    std::optional<EntryField> toCorrect;  // without a chart: where the user corrects the entry first
};

// The chart of an entry. Faults of the entry are told one by one, and so is a computation that overflows.
ComputeOutcome ComputeChart(const NatalEntry& entry, const Method& method, int iDate, const Options& options,
                            Messages& messages);

// Whether a computed listing stays in the buffer for saving and printing (option 165) once it has been shown.
bool KeepsListing(const Options& options);

}  // namespace tolvanis
