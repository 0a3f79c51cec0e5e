#pragma once
// A computed chart.

#include <string>

#include "chart/chart_point.h"
#include "chart/house_system.h"
#include "chart/theory.h"

namespace tolvanis {

// Longitudes lie in 0 <= x < 360; all angles are degrees unless a comment says radians.
struct ChartPositions {
    tolvanis::Theory Theory = tolvanis::Theory::Classic;
    double DeltaT = 0.0;  // seconds by which the theory's time is ahead; the classic theory takes none
    bool PlutoFromOldSeries = false;  // of a modern chart before 1600 or after 2199
    double JulianDay = 0.0;           // of the birth's Universal Time
    double Centuries = 0.0;           // Julian centuries from 1900 January 0.5
    double Obliquity = 0.0;           // radians
    double ObliquityDegrees = 0.0;
    double RAMC = 0.0;  // radians
    std::string SiderealTimeText;
    double Midheaven = 0.0;
    double Ascendant = 0.0;
    double Vertex = 0.0;
    double EquatorialAscendant = 0.0;
    double CoAscendant = 0.0;
    double PolarAscendant = 0.0;
    tolvanis::HouseCusps HouseCusps;
    PerPoint<double> PointLongitude;
    PerPoint<double> PointLatitude;
    PerPoint<double> PointDeclination;
    PerPoint<int> PointHouse;           // 1 to 12
    PerPoint<double> NextDayLongitude;  // one day later; for the retrograde flags only
    std::string RetrogradeFlags = std::string(kChartPointCount, ' ');  // "R" at a retrograde point's place
    double TrueNodeLongitude = -100.0;
    double TrueNodeDeclination = 0.0;

    bool IsRetrograde(int point) const { return RetrogradeFlags[static_cast<std::size_t>(point - 1)] == 'R'; }
};

// What a listing says where PlutoFromOldSeries.
inline constexpr std::string_view kOldPlutoRemark = "Pluto by the classic series";

}  // namespace tolvanis
