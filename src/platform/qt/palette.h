#pragma once
// The standard 16-colour palette.

#include <QColor>

namespace tolvanis {

// Colours 0 to 15: black, blue, green, cyan, red, magenta, brown, light grey, dark grey and the light six,
// yellow, white. A number beyond them folds into the palette.
QColor PaletteColour(int number);

}  // namespace tolvanis
