#pragma once
// The positions of the house cusps around the wheel.

#include "wheel/wheel_layout.h"

namespace tolvanis {

// The degrees, sign and minutes of all cusps. American labels, and the European ones of Ascendant and
// Descendant, stand where the table of cusp labels puts them. Other European labels stand in a row beside the
// end of their line, as near to it as the signs, the `taken` rectangles and each other allow.
std::vector<WheelText> CuspLabels(const WheelPlan& plan, const TextMeasure& measure,
                                  std::span<const Extent> taken);

}  // namespace tolvanis
