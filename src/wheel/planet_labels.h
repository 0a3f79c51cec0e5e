#pragma once
// The glyphs and positions of the planets inside the ring.

#include "wheel/wheel_layout.h"

namespace tolvanis {

// The labels of all drawn glyphs, the glyph first. The items follow each other inwards along the glyph's ray
// so that the text reads degrees, sign, minutes from left to right on both sides. Numbers stand side by side;
// only where neighbours on a steep ray would meet, their labels run digit by digit.
std::vector<WheelText> PlanetLabels(const WheelPlan& plan, const TextMeasure& measure,
                                    std::span<const PlacedGlyph> glyphs);

}  // namespace tolvanis
