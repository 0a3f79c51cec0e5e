#pragma once
// The glyphs and positions of the planets inside the ring.

#include "wheel/wheel_layout.h"

namespace tolvanis {

struct PlanetLabel {
    int point = kSun;
    std::vector<WheelText> texts;      // the glyph first
    std::optional<LineSpan> leader{};  // from the glyph to its position, where that stands further inwards
};

// The labels of all drawn glyphs. The items (degrees, sign, minutes, retrograde mark) follow each other
// inwards along the glyph's ray, so that the text reads degrees, sign, minutes from left to right on both
// sides; a number is always whole and upright. Labels that would touch each other or the inner circle draw
// closer, become smaller, and stand further inwards in turn, until none does.
std::vector<PlanetLabel> PlanetLabels(const WheelPlan& plan, const TextMeasure& measure,
                                      std::span<const PlacedGlyph> glyphs);

}  // namespace tolvanis
