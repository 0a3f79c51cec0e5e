#include "astro/natal_chart.h"

#include <cmath>

#include "astro/derived_points.h"
#include "astro/houses.h"
#include "astro/planetary_positions.h"
#include "astro/time_frame.h"

namespace tolvanis {
namespace {

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
    chart.Theory = frame.Theory;
    chart.DeltaT = frame.DeltaT;
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
        return placed.fault();
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

std::vector<std::string> ChartFaults::Details() const {
    if (!computation.empty()) return {computation};
    std::vector<std::string> details;
    for (const InputFault& fault : entry) details.push_back(fault.detail);
    return details;
}

Result<NatalChart, ChartFaults> MakeChart(const NatalEntry& entry, const Method& method, int iDate,
                                          const Options& options) {
    std::vector<InputFault> faults = CheckEntry(entry, method.houses);
    if (!faults.empty()) return ChartFaults{std::move(faults), {}};
    const NatalData natal = ParseNatalData(entry, method, iDate);
    const Result<ChartPositions> positions = ComputePositions(natal);
    if (!positions) return ChartFaults{{}, positions.message()};
    return NatalChart{natal, *positions, FindAspects(*positions, options)};
}

}  // namespace tolvanis
