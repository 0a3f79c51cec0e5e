#pragma once
// Colours on the screen and on paper.

#include <QColor>

#include "platform/colours.h"

namespace tolvanis {

inline QColor PaletteColour(int colour) {
    return QColor::fromRgb(static_cast<QRgb>(RgbOf(colour)) | 0xFF000000U);
}

}  // namespace tolvanis
