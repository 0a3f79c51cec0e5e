#include "platform/qt/palette.h"

#include <array>

namespace tolvanis {

QColor PaletteColour(int number) {
    constexpr std::array<QRgb, 16> kColours = {
        0xFF000000, 0xFF000080, 0xFF008000, 0xFF008080, 0xFF800000, 0xFF800080, 0xFF808000, 0xFFC0C0C0,
        0xFF808080, 0xFF0000FF, 0xFF00FF00, 0xFF00FFFF, 0xFFFF0000, 0xFFFF00FF, 0xFFFFFF00, 0xFFFFFFFF};
    return QColor::fromRgb(kColours[static_cast<std::size_t>(number & 15)]);
}

}  // namespace tolvanis
