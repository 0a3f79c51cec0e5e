#pragma once
// A computation as the user sees it: its faults told, its listing written.

#include <optional>

#include "astro/natal_chart.h"
#include "output/data_buffer.h"
#include "platform/messages.h"

namespace tolvanis {

// Starts a listing in the buffer and writes the birth, cusps, points and aspect grid of a chart.
void WriteChart(DataBuffer& buffer, const CurrentChart& chart, const Options& options);

struct ComputeOutcome {
    bool computed = false;
    std::optional<EntryField> toCorrect;  // where the user corrects the entry first
};

// The entry's chart into `chart` and its listing into the buffer, which the caller has emptied. Faults of the
// entry are told one by one and leave everything as it was, as does a computation that overflows.
ComputeOutcome ComputeChart(const NatalEntry& entry, const Method& method, int iDate, const Options& options,
                            CurrentChart& chart, DataBuffer& buffer, Messages& messages);

// Whether a computed listing stays in the buffer for saving and printing (option 165) once it has been shown.
bool KeepsListing(const Options& options);

}  // namespace tolvanis
