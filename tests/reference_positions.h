#pragma once
// The table of positions from a modern theory, and this program's positions for the same instants.

#include <optional>
#include <vector>

#include "astro/planetary_positions.h"
#include "chart/chart_positions.h"
#include "reference_table.h"
#include "text/numbers.h"

namespace tolvanis {

struct ReferencePositions {
    double julianDay = 0.0;
    int year = 0;
    PerPoint<std::optional<double>> longitude;  // degrees; absent where the theory does not reach
};

// The rows of the table: Julian day, calendar date, then the longitudes of Sun, Moon, Mercury ... Pluto.
inline std::vector<ReferencePositions> ReadReferencePositions(const Path& path) {
    std::vector<ReferencePositions> rows;
    ForEachReferenceRow(path, [&](const std::vector<std::string>& cells) {
        ReferencePositions& row = rows.emplace_back();
        row.julianDay = LeadingNumber(cells[0]);
        row.year = static_cast<int>(LeadingNumber(cells[1]));
        for (std::size_t i = 0; i < std::size(kReferenceBodies) && i + 2 < cells.size(); ++i) {
            row.longitude[kReferenceBodies[i]] = EntireNumber(cells[i + 2]);
        }
    });
    return rows;
}

// The longitudes of the ten bodies at an instant.
inline PerPoint<double> GeocentricLongitudesAt(double julianDay) {
    TimeFrame frame;
    frame.JulianDayNumber = std::floor(julianDay);
    frame.UtDayFraction = julianDay - frame.JulianDayNumber + 0.5;
    frame.Centuries = (julianDay - 2415020.0) / 36525.0;
    frame.ObliquityDegrees = MeanObliquity(frame.Centuries);
    ChartPositions chart;
    const auto placed = ComputePlanetaryPositions(frame, chart);
    return placed ? chart.PointLongitude : PerPoint<double>{};
}

}  // namespace tolvanis
