#include "wheel/symbols.h"

namespace tolvanis {
namespace {
constexpr int kPrivateUse = 0xF000;
}

std::string SymbolText(int code) {
    const int unit = kPrivateUse + code;
    return {static_cast<char>(0xE0 | unit >> 12), static_cast<char>(0x80 | (unit >> 6 & 0x3F)),
            static_cast<char>(0x80 | (unit & 0x3F))};
}

std::string PointGlyph(int point) {
    return SymbolText(223 + point);
}

std::string SignGlyph(int sign) {
    return SymbolText(191 + sign);
}

std::string AspectGlyph(AspectCode aspect) {
    return SymbolText(159 + aspect);
}

}  // namespace tolvanis
