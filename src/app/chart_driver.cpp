#include "app/chart_driver.h"

#include "output/natal_listing.h"

namespace tolvanis {
namespace {

constexpr int kNotKeptOption = 165;

}  // namespace

void WriteChart(DataBuffer& buffer, const NatalChart& chart, const Options& options) {
    buffer.StartListing();
    WriteNatalListing(buffer, chart.natal, chart.positions);
    WriteAspectGrid(buffer, chart.positions, chart.aspects, options);
}

ComputeOutcome ComputeChart(const NatalEntry& entry, const Method& method, int iDate, const Options& options,
                            Messages& messages) {
    const Result<NatalChart, ChartFaults> made = MakeChart(entry, method, iDate, options);
    if (made) return {*made, {}};
    const ChartFaults& faults = made.fault();
    for (const InputFault& fault : faults.entry) {
        messages.Tell("Warning!", std::string(fault.Message()), MessageIcon::Information);
    }
    if (!faults.entry.empty()) return {{}, faults.entry.front().field};
    messages.Tell("Error!", "The chart cannot be computed: " + faults.computation + ".", MessageIcon::Stop);
    return {};
}

bool KeepsListing(const Options& options) {
    return options[kNotKeptOption] == 0.0F;
}

}  // namespace tolvanis
