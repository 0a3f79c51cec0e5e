#pragma once
// The printed page: wheel, title, personal block and aspect grid.

#include "aspects/orbs_file.h"
#include "wheel/wheel_layout.h"

namespace tolvanis {

// What a page of this shape shows: the wheel's centre 16 units left of the page's middle and 67 above it. The
// half-extent is 265 units, and 272 for chart type numbers above 0; a page less than 1.25 times as high as
// wide shows more to the sides, so that everything stays on it.
Extent PageExtent(double width, double height, int typeChart);

struct PageRequest {
    const WheelSnapshot& chart;
    const WheelData& data;
    const Options& options;
    int typeChart = 0;
    std::vector<std::string> personalLines{};
    OrbTable orbs{};
    double width = 1.0;  // of the printable area, in any unit
    double height = 1.25;
};

// The lines of the personal block without the blanks and the empty lines at their ends; none when there is no
// such file or option 174 is 0.
std::vector<std::string> ReadPersonalLines(const Path& file, const Options& options);

void DrawPage(DrawingSurface& surface, const PageRequest& request);

}  // namespace tolvanis
