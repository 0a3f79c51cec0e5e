#pragma once
// The text of a position: degrees, sign, minutes.

#include <array>
#include <string>

#include "chart/options.h"
#include "platform/drawing_surface.h"

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

// Tens and units of the degrees, which are bold, the sign's glyph, tens and units of the minutes.
std::array<LabelPart, 5> PositionLabel(const Options& options, const LabelLook& look, double longitude);

}  // namespace tolvanis
