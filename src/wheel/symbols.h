#pragma once
// The glyphs of the symbol font.

#include <string>

#include "aspects/aspect_definitions.h"

namespace tolvanis {

// The text of a glyph code from 128 to 255. The glyphs live at U+F000 + code, because the codes themselves
// belong to accented letters.
std::string SymbolText(int code);

std::string PointGlyph(int point);           // ChartPoint 1 to 15
std::string SignGlyph(int sign);             // 1 Aries to 12 Pisces
std::string AspectGlyph(AspectCode aspect);  // kConjunction to kSeptile
inline constexpr int kStepGlyph = 236;       // the glyph whose size gives the steps of a planet's label

}  // namespace tolvanis
