#include "platform/screen_constants.h"

#include <cmath>

namespace tolvanis {
namespace {

constexpr double kTwipsPerInch = 1440.0;

struct ScreenClass {
    int referenceWidth, referenceHeight, windowWidth, windowHeight;
    double fontStep;
};

constexpr ScreenClass kSmall = {640, 480, 8490, 7200, 1.5};
constexpr ScreenClass kMedium = {800, 600, 10725, 8940, 1.5};
constexpr ScreenClass kMediumDense = {800, 600, 8400, 7200, 1.2};
constexpr ScreenClass kLargeDense = {1024, 768, 10970, 9204, 1.2};
constexpr ScreenClass kLarge = {1024, 768, 14050, 11505, 1.5};

const ScreenClass& ClassOf(int widthPixels, int twipsPerPixel) {
    if (widthPixels == 640) return kSmall;
    if (widthPixels == 800) return twipsPerPixel == 12 ? kMediumDense : kMedium;
    return twipsPerPixel == 15 ? kLarge : kLargeDense;
}

}  // namespace

ScreenConstants ScreenConstantsFor(int widthPixels, int heightPixels, double dotsPerInch) {
    const double twipsPerPixel = kTwipsPerInch / (dotsPerInch > 0.0 ? dotsPerInch : 96.0);
    const ScreenClass& kind = ClassOf(widthPixels, static_cast<int>(std::lround(twipsPerPixel)));
    return {widthPixels,          heightPixels,     twipsPerPixel,     kind.referenceWidth,
            kind.referenceHeight, kind.windowWidth, kind.windowHeight, kind.fontStep};
}

}  // namespace tolvanis
