#pragma once
// The rows of the tables of positions that other theories and ephemerides gave.

#include <string>
#include <vector>

#include "chart/chart_point.h"
#include "platform/files.h"
#include "text/fields.h"

namespace tolvanis {

// The bodies in the order of the tables' columns.
inline constexpr int kReferenceBodies[] = {kSun,     kMoon,   kMercury, kVenus,   kMars,
                                           kJupiter, kSaturn, kUranus,  kNeptune, kPluto};

// Calls `take` with the cells of every row; what does not begin with a digit is a heading.
template <typename Take>
void ForEachReferenceRow(const Path& path, Take take) {
    LineReader reader(path);
    for (std::string line; reader.Next(line);) {
        if (!line.empty() && line[0] >= '0' && line[0] <= '9') take(SplitAt(line, '\t'));
    }
}

}  // namespace tolvanis
