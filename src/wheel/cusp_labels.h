#pragma once
// The positions of the house cusps around the wheel.

#include "wheel/wheel_layout.h"

namespace tolvanis {

// The labels that stand where the table of cusp labels puts them: all of the American type; otherwise those
// of Ascendant and Descendant.
std::vector<WheelText> TableCuspLabels(const WheelPlan& plan);

struct CuspLabelRows {
    std::vector<WheelText> texts;
    std::vector<LineSpan> leaders;  // fine lines from a label that stands elsewhere to its cusp
};

// The labels that stand in a row beside the end of their house line, as near to it as what is `taken` (signs,
// table labels, title) and each other allow: first beside it, then further out; never where something stands.
CuspLabelRows CuspLabels(const WheelPlan& plan, const TextMeasure& measure, std::span<const Box> taken);

}  // namespace tolvanis
