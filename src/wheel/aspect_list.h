#pragma once
// The aspects of the chart in the wheel, as the aspect window and the printed grid show them.

#include <string>
#include <vector>

#include "aspects/aspect_definitions.h"
#include "aspects/orbs_file.h"
#include "wheel/wheel_snapshot.h"

namespace tolvanis {

struct ListedAspect {
    int first = kSun;  // chart points
    int second = kSun;
    AspectCode code = kNoAspect;
    double exactness = 0.0;  // 0 at the bound of the orb, 1 when exact
};

// Every aspect twice, once under each of its points; points in grid order. All fifteen aspects are searched
// from sextile to septile, then the conjunction, and the last that matches counts.
std::vector<ListedAspect> ListAspects(const WheelSnapshot& chart, const OrbTable& orbs);

// One line an aspect, in glyphs of the symbol font: two blanks, point, blank, aspect, blank, point.
std::string AspectListText(const std::vector<ListedAspect>& aspects);

}  // namespace tolvanis
