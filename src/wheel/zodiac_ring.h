#pragma once
// The third chart type: a graduated zodiac around the houses, everything at its true angle.

#include "wheel/aspect_list.h"
#include "wheel/planet_labels.h"

namespace tolvanis {

// Radii, from outside: the band of the signs, the degrees, the planets, the house numbers, the aspects.
inline constexpr double kRingBandRadius = 193.0;  // inner edge of the signs' band, outer of the degrees
inline constexpr double kRingScaleRadius = 185.0;
inline constexpr double kRingGlyphRadius = 167.0;
inline constexpr double kRingInnerRadius = 110.0;
inline constexpr double kRingAspectRadius = 97.0;

// The aspects of all points under the plan's orbs, each once, the closest last, so that it is drawn on top.
std::vector<ListedAspect> RingAspects(const WheelPlan& plan);

// Bands, degrees, house lines that spare the labels, house numbers and aspects.
void DrawZodiacRing(DrawingSurface& surface, const WheelPlan& plan, std::span<const PlanetLabel> labels);

}  // namespace tolvanis
