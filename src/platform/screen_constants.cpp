#include "platform/screen_constants.h"

#include <cmath>

namespace tolvanis {
namespace {

constexpr double kTwipsPerInch = 1440.0;

struct ScreenClass {
    int windowWidth, windowHeight;
    double fontStep;
};

constexpr ScreenClass kSmall = {8490, 7200, 1.5};
constexpr ScreenClass kMedium = {10725, 8940, 1.5};
constexpr ScreenClass kMediumDense = {8400, 7200, 1.2};
constexpr ScreenClass kLargeDense = {10970, 9204, 1.2};
constexpr ScreenClass kLarge = {14050, 11505, 1.5};

const ScreenClass& ClassOf(int widthPixels, int twipsPerPixel) {
    if (widthPixels == 640) return kSmall;
    if (widthPixels == 800) return twipsPerPixel == 12 ? kMediumDense : kMedium;
    return twipsPerPixel == 15 ? kLarge : kLargeDense;
}

}  // namespace

ScreenConstants ScreenConstantsFor(int widthPixels, double dotsPerInch) {
    const double twipsPerPixel = kTwipsPerInch / (dotsPerInch > 0.0 ? dotsPerInch : 96.0);
    const ScreenClass& kind = ClassOf(widthPixels, static_cast<int>(std::lround(twipsPerPixel)));
    return {twipsPerPixel, kind.windowWidth, kind.windowHeight, kind.fontStep};
}

}  // namespace tolvanis
