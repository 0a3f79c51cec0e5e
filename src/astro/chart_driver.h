#pragma once
// From a natal entry to a computed chart and its listing.

#include "aspects/aspect_grid.h"
#include "birthdata/natal_entry.h"
#include "chart/chart_positions.h"
#include "chart/natal_data.h"
#include "chart/options.h"
#include "output/data_buffer.h"
#include "platform/messages.h"
#include "platform/result.h"

namespace tolvanis {

// The whole computation of a chart as a function of the birth data: time frame, cusps, angles, positions,
// houses, Part of Fortune and declinations. Charts can be computed side by side. A fault says what could not
// be computed; no value of a returned chart is infinite or not a number.
Result<ChartPositions> ComputePositions(const NatalData& natal);

// The chart that the program works with.
struct CurrentChart {
    NatalData natal;
    ChartPositions positions;
    FoundAspects aspects;
    bool computed = false;
};

// Starts a listing in the buffer and writes the birth, cusps, points and aspect grid of a chart.
void WriteChart(DataBuffer& buffer, const CurrentChart& chart, const Options& options);

// What a computation does to the desktop around it.
class ChartDesktop {
  public:
    virtual ~ChartDesktop() = default;
    virtual void SetBusy(bool busy) = 0;  // the hourglass pointer
    virtual void HideEntryWindows() = 0;  // natal input, names list, cities list
    virtual void ShowChartMenus() = 0;    // Input, Data, Wheel and Report
    virtual void ShowDataBuffer() = 0;
    virtual void ShowInputFault(EntryField field) = 0;  // after the messages: where to correct first
};

// The entry's chart into `chart` and its listing into the buffer, shown by the desktop. The caller has
// emptied the buffer. Faults of the entry are told one by one and leave everything as it was, as does a
// computation that overflows. With option 165 not 0 the chart is shown but not kept in the buffer. Returns
// whether a chart was computed.
bool ComputeChart(const NatalEntry& entry, HouseSystem system, int iDate, const Options& options,
                  CurrentChart& chart, DataBuffer& buffer, Messages& messages, ChartDesktop& desktop);

}  // namespace tolvanis
