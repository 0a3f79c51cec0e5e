#pragma once
// The chart that an open wheel shows.

#include <array>
#include <string>

#include "chart/chart_positions.h"
#include "chart/natal_data.h"

namespace tolvanis {

inline constexpr int kTitleLineCount = 7;

// Copied when a wheel is opened, so that the wheel keeps its chart whatever is computed afterwards.
struct WheelSnapshot {
    std::string Name;
    PerPoint<double> PointLongitude;  // degrees, 0 <= x < 360
    tolvanis::HouseCusps HouseCusps;
    PerPoint<double> PointDeclination;
    PerPoint<int> PointHouse;     // 1 to 12
    PerPoint<bool> IsRetrograde;  // of Mercury to Pluto only
    std::array<std::string, kTitleLineCount> TitleLines;
};

WheelSnapshot MakeWheelSnapshot(const NatalData& natal, const ChartPositions& chart);

}  // namespace tolvanis
