#pragma once
// The table of apparent places from other ephemerides.

#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "chart/chart_point.h"
#include "platform/files.h"
#include "text/numbers.h"

namespace tolvanis {

struct ApparentReference {
    double terrestrialDay = 0.0;
    bool fromDe405 = false;
    PerPoint<std::optional<double>> longitude;  // degrees; absent where the source does not reach
    PerPoint<std::optional<double>> latitude;
};

// The rows of the table: Julian day, source, then longitude and latitude of Sun, Moon, Mercury ... Pluto.
inline std::vector<ApparentReference> ReadApparentReferences(const Path& path) {
    constexpr int kColumns[] = {kSun,     kMoon,   kMercury, kVenus,   kMars,
                                kJupiter, kSaturn, kUranus,  kNeptune, kPluto};
    std::vector<ApparentReference> rows;
    LineReader reader(path);
    for (std::string line; reader.Next(line);) {
        if (line.empty() || line[0] < '0' || line[0] > '9') continue;
        std::vector<std::string> cells;
        std::istringstream rest(line);
        for (std::string cell; std::getline(rest, cell, '\t');) cells.push_back(cell);
        ApparentReference row;
        row.terrestrialDay = LeadingNumber(cells[0]);
        row.fromDe405 = cells[1] == "DE405";
        for (std::size_t i = 0; i < std::size(kColumns) && 2 * i + 3 < cells.size(); ++i) {
            row.longitude[kColumns[i]] = WholeNumber(cells[2 * i + 2]);
            row.latitude[kColumns[i]] = WholeNumber(cells[2 * i + 3]);
        }
        rows.push_back(row);
    }
    return rows;
}

}  // namespace tolvanis
