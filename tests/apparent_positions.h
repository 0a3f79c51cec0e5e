#pragma once
// The table of apparent places from other ephemerides.

#include <optional>
#include <vector>

#include "reference_table.h"
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
    std::vector<ApparentReference> rows;
    ForEachReferenceRow(path, [&](const std::vector<std::string>& cells) {
        ApparentReference& row = rows.emplace_back();
        row.terrestrialDay = LeadingNumber(cells[0]);
        row.fromDe405 = cells[1] == "DE405";
        for (std::size_t i = 0; i < std::size(kReferenceBodies) && 2 * i + 3 < cells.size(); ++i) {
            row.longitude[kReferenceBodies[i]] = EntireNumber(cells[2 * i + 2]);
            row.latitude[kReferenceBodies[i]] = EntireNumber(cells[2 * i + 3]);
        }
    });
    return rows;
}

}  // namespace tolvanis
