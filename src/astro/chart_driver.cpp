#include "astro/chart_driver.h"

#include <cmath>

#include "astro/derived_points.h"
#include "astro/houses.h"
#include "astro/planetary_positions.h"
#include "astro/time_frame.h"
#include "output/natal_listing.h"

namespace tolvanis {
namespace {

constexpr int kNotKeptOption = 165;

// Points that lie on the ecliptic and get their declination from the longitude alone.
void PlaceEclipticPoints(ChartPositions& chart) {
    for (int point = kNorthNode; point <= kMidheaven; ++point) {
        chart.PointDeclination[point] =
            DeclinationOf(chart.PointLongitude[point], 0.0, chart.ObliquityDegrees);
    }
    chart.TrueNodeDeclination = DeclinationOf(chart.TrueNodeLongitude, 0.0, chart.ObliquityDegrees);
}

bool AllFinite(const ChartPositions& chart) {
    const auto finite = [](double value) { return std::isfinite(value); };
    for (int point = 1; point <= kChartPointCount; ++point) {
        if (!finite(chart.PointLongitude[point]) || !finite(chart.PointDeclination[point])) return false;
    }
    for (int position = 1; position <= 12; ++position) {
        if (!finite(chart.HouseCusps[position])) return false;
    }
    return finite(chart.Vertex) && finite(chart.EquatorialAscendant) && finite(chart.CoAscendant) &&
           finite(chart.PolarAscendant) && finite(chart.TrueNodeDeclination);
}

}  // namespace

Result<ChartPositions> ComputePositions(const NatalData& natal) {
    const TimeFrame frame = ComputeTimeFrame(natal);
    ChartPositions chart;
    chart.JulianDay = frame.JulianDay;
    chart.Centuries = frame.Centuries;
    chart.Obliquity = frame.Obliquity;
    chart.ObliquityDegrees = frame.ObliquityDegrees;
    chart.RAMC = frame.RAMC;
    chart.SiderealTimeText = SiderealTimeText(frame);
    chart.Midheaven = frame.Midheaven;
    chart.Ascendant = frame.Ascendant;
    const AuxiliaryAngles angles = ComputeAuxiliaryAngles(frame);
    chart.Vertex = angles.Vertex;
    chart.EquatorialAscendant = angles.EquatorialAscendant;
    chart.CoAscendant = angles.CoAscendant;
    chart.PolarAscendant = angles.PolarAscendant;
    chart.HouseCusps = ComputeHouseCusps(natal.HouseSystem, frame);

    if (const Result<void> placed = ComputePlanetaryPositions(frame, chart); !placed) {
        return Fault{placed.message()};
    }
    chart.PointLongitude[kAscendant] = chart.Ascendant;
    chart.PointLongitude[kMidheaven] = chart.Midheaven;
    PlaceEclipticPoints(chart);
    if (!AllFinite(chart)) return Fault{"an angle or a cusp is not a number at this time and place"};
    for (int point = 1; point <= kChartPointCount; ++point) {
        chart.PointHouse[point] = HouseOf(chart.PointLongitude[point], chart.HouseCusps);
    }
    return chart;
}

void WriteChart(DataBuffer& buffer, const CurrentChart& chart, const Options& options) {
    buffer.StartListing();
    WriteNatalListing(buffer, chart.natal, chart.positions);
    WriteAspectGrid(buffer, chart.positions, chart.aspects, options);
}

bool ComputeChart(const NatalEntry& entry, HouseSystem system, int iDate, const Options& options,
                  CurrentChart& chart, DataBuffer& buffer, Messages& messages, ChartDesktop& desktop) {
    const std::vector<InputFault> faults = CheckEntry(entry, system);
    for (const InputFault& fault : faults) {
        messages.Tell("Warning!", std::string(fault.Message()), MessageIcon::Information);
    }
    if (!faults.empty()) {
        desktop.ShowInputFault(faults.front().field);
        return false;
    }

    desktop.SetBusy(true);
    const NatalData natal = ParseNatalData(entry, system, iDate);
    const Result<ChartPositions> positions = ComputePositions(natal);
    if (!positions) {
        desktop.SetBusy(false);
        messages.Tell("Error!", "The chart cannot be computed: " + positions.message() + ".",
                      MessageIcon::Stop);
        return false;
    }
    desktop.HideEntryWindows();
    chart = {natal, *positions, FindAspects(*positions, options), true};
    desktop.ShowChartMenus();
    WriteChart(buffer, chart, options);
    desktop.ShowDataBuffer();
    if (options[kNotKeptOption] != 0.0F) buffer.ClearBufferLines();
    desktop.SetBusy(false);
    return true;
}

}  // namespace tolvanis
