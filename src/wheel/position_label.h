#pragma once
// The text of a position: degrees, sign, minutes.

#include <array>
#include <string>

#include "wheel/wheel_layout.h"

namespace tolvanis {

struct LabelPart {
    std::string text;
    TextFont font;
    int colour;
};

// Numbers of the options that size and colour a position's parts.
struct LabelLook {
    int degreesSize, degreesColour;
    int signSize, signColour;
    int minutesSize, minutesColour;
};

// The degrees as two digits, which are bold, the sign's glyph, the minutes as two digits.
std::array<LabelPart, 3> PositionLabel(const WheelPlan& plan, const LabelLook& look, double longitude);

}  // namespace tolvanis
