#pragma once
// From a natal entry to the whole chart.

#include <string>
#include <vector>

#include "aspects/aspect_grid.h"
#include "birthdata/natal_entry.h"
#include "chart/chart_positions.h"
#include "chart/natal_data.h"
#include "chart/options.h"
#include "platform/result.h"

namespace tolvanis {

// The whole computation of a chart as a function of the birth data: time frame, cusps, angles, positions,
// houses, Part of Fortune and declinations. Charts can be computed side by side. A fault says what could not
// be computed; no value of a returned chart is infinite or not a number.
Result<ChartPositions> ComputePositions(const NatalData& natal);

// The whole chart of a birth.
struct NatalChart {
    NatalData natal;
    ChartPositions positions;
    FoundAspects aspects;
};

// Why there is no chart: what is wrong with the entry, or what could not be computed.
struct ChartFaults {
    std::vector<InputFault> entry;
    std::string computation;  // empty when the entry is at fault

    // Each fault as a report tells it.
    std::vector<std::string> Details() const;
};

// The chart of an entry: checked, read, computed, its aspects searched under the orbs of the options. iDate
// is the system's date order.
Result<NatalChart, ChartFaults> MakeChart(const NatalEntry& entry, const Method& method, int iDate,
                                          const Options& options);

}  // namespace tolvanis
