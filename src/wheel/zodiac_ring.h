#pragma once
// The third chart type: a graduated zodiac around the houses, everything at its true angle.

#include "wheel/aspect_list.h"
#include "wheel/planet_labels.h"

namespace tolvanis {

// The aspects of all points under the plan's orbs, each once, the closest last, so that it is drawn on top.
std::vector<ListedAspect> RingAspects(const WheelPlan& plan);

// Bands, degrees, house lines that spare the labels, house numbers and aspects.
void DrawZodiacRing(DrawingSurface& surface, const WheelPlan& plan, std::span<const PlanetLabel> labels);

}  // namespace tolvanis
