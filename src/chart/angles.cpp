#include "chart/angles.h"

#include <algorithm>

namespace tolvanis {
namespace {

constexpr double kAlmostZero = 1.74533e-9;

double Leg(double x) {
    return std::sqrt(std::max(0.0, 1.0 - x * x));
}

}  // namespace

Rect PolarToRect(double r, double angle) {
    if (angle == 0.0) angle = kAlmostZero;
    return {r * std::cos(angle), r * std::sin(angle)};
}

Polar RectToPolar(double x, double y) {
    if (y == 0.0) y = kAlmostZero;
    double angle = std::atan(y / x);
    if (angle < 0.0) angle += kPi;
    if (y < 0.0) angle += kPi;
    return {std::sqrt(x * x + y * y), angle};
}

double ArcSin(double x) {
    return std::atan(x / Leg(x));
}

double ArcCos(double x) {
    return x == 0.0 ? kPi / 2.0 : std::atan(Leg(x) / x);
}

double QuotientAngle(double n, double d, bool farHalf) {
    double angle = d == 0.0 ? kPi / 2.0 : std::atan(n / d);
    if (angle < 0.0) angle += kPi;
    if (farHalf) angle += kPi;
    return Norm360(RadToDeg(angle));
}

}  // namespace tolvanis
