#pragma once
// The angle arithmetic that all of the computation shares.

#include <cmath>

namespace tolvanis {

// Ten decimals, as the theory's constants were fitted with.
inline constexpr double kPi = 3.1415926535;

constexpr double DegToRad(double degrees) {
    return degrees * kPi / 180.0;
}
constexpr double RadToDeg(double radians) {
    return radians * 180.0 / kPi;
}

// The angle in 0 <= x < 360. A value that would round to 360 itself is 0.
inline double Norm360(double degrees) {
    const double angle = degrees - 360.0 * std::floor(degrees / 360.0);
    return angle < 360.0 ? angle : 0.0;
}

// The shorter way round from one angle to another in degrees, -180 <= a < 180; ahead is positive.
inline double SignedArc(double from, double to) {
    return Norm360(to - from + 180.0) - 180.0;
}

// Sine and cosine of an angle in degrees.
inline double SinDeg(double degrees) {
    return std::sin(DegToRad(degrees));
}
inline double CosDeg(double degrees) {
    return std::cos(DegToRad(degrees));
}

struct SinCos {
    double sin;
    double cos;
};
inline SinCos SinCosDeg(double degrees) {
    const double radians = DegToRad(degrees);
    return {std::sin(radians), std::cos(radians)};
}

// Degrees and minutes / 100 to decimal degrees (or hours): 40.45 is 40 deg 45 min, 40.75.
inline double PackedToDecimal(double packed) {
    const double whole = std::floor(packed);
    return whole + (packed - whole) * 100.0 / 60.0;
}

// The same for a value that may be negative: the sign belongs to degrees and minutes alike.
inline double SignedPackedToDecimal(double packed) {
    const double size = PackedToDecimal(std::abs(packed));
    return packed < 0 ? -size : size;
}

// Whole degrees (or hours) and minutes in the packed form.
inline double PackedOf(double whole, double minutes, bool negative) {
    const double packed = whole + minutes / 100.0;
    return negative ? -packed : packed;
}

// Rectangular and polar coordinates; angles are radians. Zeros that would make an angle indefinite are moved
// by 1.74533e-9, a ten millionth of a degree.
struct Rect {
    double x;
    double y;
};
struct Polar {
    double r;
    double angle;  // 0 <= angle < 2 pi
};
Rect PolarToRect(double r, double angle);
Polar RectToPolar(double x, double y);

// Arc sine and arc cosine by the arctangent, radians. ArcCos gives -pi/2 to pi/2: for a negative x the caller
// adds pi. ArcCos(0) is pi/2. An argument beyond 1 by rounding counts as 1.
double ArcSin(double x);
double ArcCos(double x);

// The arctangent of n / d as an angle of a half circle, 0 <= a < pi, plus pi when `farHalf` is set, in
// degrees, 0 <= a < 360. A zero divisor stands for a right angle.
double QuotientAngle(double n, double d, bool farHalf);

// The quadrant rule of the house cusps: the far half is the one with a negative numerator.
inline double QuadrantAngle(double n, double d) {
    return QuotientAngle(n, d, n < 0.0);
}

// The direction of (x, y) in degrees, 0 <= a < 360.
inline double DirectionDeg(double x, double y) {
    return Norm360(RadToDeg(std::atan2(y, x)));
}

}  // namespace tolvanis
