#pragma once
// Units of angles; directions, places and rotations in space.

#include <array>
#include <cmath>
#include <numbers>

namespace tolvanis::modern {

inline constexpr double kTurn = 2.0 * std::numbers::pi;
inline constexpr double kRadiansPerDegree = std::numbers::pi / 180.0;
inline constexpr double kRadiansPerArcSecond = kRadiansPerDegree / 3600.0;

struct Vector {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

constexpr Vector operator+(const Vector& a, const Vector& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Vector operator-(const Vector& a, const Vector& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Vector operator*(double factor, const Vector& a) {
    return {factor * a.x, factor * a.y, factor * a.z};
}
constexpr double Dot(const Vector& a, const Vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
constexpr Vector Cross(const Vector& a, const Vector& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Length(const Vector& a) {
    return std::sqrt(Dot(a, a));
}

// A rotation of the axes; the rows are the new axes.
struct Rotation {
    Vector x;
    Vector y;
    Vector z;

    constexpr Vector operator*(const Vector& a) const { return {Dot(x, a), Dot(y, a), Dot(z, a)}; }
    constexpr Rotation Inverse() const { return {{x.x, y.x, z.x}, {x.y, y.y, z.y}, {x.z, y.z, z.z}}; }
    constexpr Rotation operator*(const Rotation& first) const {
        const Rotation columns = first.Inverse();
        return {columns * x, columns * y, columns * z};
    }
};

// Rotations of the axes by an angle in radians about the x and the z axis.
inline Rotation AboutX(double angle) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {{1.0, 0.0, 0.0}, {0.0, c, s}, {0.0, -s, c}};
}
inline Rotation AboutZ(double angle) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {{c, s, 0.0}, {-s, c, 0.0}, {0.0, 0.0, 1.0}};
}

// The value of a polynomial, lowest power first.
template <std::size_t N>
constexpr double Polynomial(const std::array<double, N>& coefficients, double t) {
    double value = 0.0;
    for (std::size_t i = N; i > 0; --i) value = value * t + coefficients[i - 1];
    return value;
}

// A body in motion, referred to the axes of the ICRS: astronomical units and days.
struct Motion {
    Vector place;
    Vector velocity;
};

}  // namespace tolvanis::modern
