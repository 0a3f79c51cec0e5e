#pragma once
// The aspects of a chart and the triangular grid that shows them.

#include <vector>

#include "aspects/aspect_definitions.h"
#include "chart/chart_positions.h"
#include "chart/options.h"
#include "output/data_buffer.h"

namespace tolvanis {

struct FoundAspect {
    int row;  // grid positions 1 to 15, row < column
    int column;
    AspectCode code;
    double separation;  // degrees, 0 to 180
    double fromExact;   // separation less the aspect's angle
};

// The aspects between the points of a chart, in the grid's scan order: rows from the first, columns from the
// last.
class FoundAspects {
  public:
    void Add(const FoundAspect& aspect);
    const std::vector<FoundAspect>& list() const { return list_; }
    // The aspect code at a row and column of the upper triangle, kNoAspect where there is none.
    AspectCode CodeAt(int row, int column) const { return codes_[Index(row, column)]; }

  private:
    using Codes = std::array<AspectCode, kChartPointCount * kChartPointCount>;
    static std::size_t Index(int row, int column) {
        return static_cast<std::size_t>((row - 1) * kChartPointCount + column - 1);
    }
    static constexpr auto kEmpty = [] {
        Codes codes{};
        codes.fill(kNoAspect);
        return codes;
    }();
    Codes codes_ = kEmpty;
    std::vector<FoundAspect> list_;
};

// The aspects of a chart under the orbs of options 1 to 15; the quintile and nonagen families are searched
// only when option 16 is 1.
FoundAspects FindAspects(const ChartPositions& chart, const Options& options);

// Appends the grid, its legend and the list of aspects to the data buffer. The grid's lower triangle shows
// the parallels of declination under option 6; the legend names the five rarer aspects when option 16 is not
// 0.
void WriteAspectGrid(DataBuffer& buffer, const ChartPositions& chart, const FoundAspects& aspects,
                     const Options& options);

}  // namespace tolvanis
