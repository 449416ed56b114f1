#pragma once

#include <cmath>

/** Tracer of pictures from inside pipes whose true measures are known. */
namespace PipePicture {

constexpr double pi = 3.14159265358979323846;

constexpr double radians(double degrees)
{
    return degrees * (pi / 180.0);
}
constexpr double degrees(double radians)
{
    return radians * (180.0 / pi);
}
constexpr double squared(double a)
{
    return a * a;
}
constexpr double mix(double a, double b, double share)
{
    return a + (b - a) * share;
}

/** 0 below \a from, 1 above \a to, smooth between; \a from may be the larger one. */
inline double smoothStep(double from, double to, double value)
{
    const double t = std::fmin(std::fmax((value - from) / (to - from), 0.0), 1.0);
    return t * t * (3.0 - 2.0 * t);
}

/** Point or direction in the scene (metres), or a linear colour (x red, y green, z blue). */
struct Vec
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    Vec &operator+=(const Vec &b)
    {
        x += b.x;
        y += b.y;
        z += b.z;
        return *this;
    }
};

constexpr Vec operator+(const Vec &a, const Vec &b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Vec operator-(const Vec &a, const Vec &b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Vec operator*(const Vec &a, double s)
{
    return {a.x * s, a.y * s, a.z * s};
}
/** Component by component: a colour seen through another. */
constexpr Vec operator*(const Vec &a, const Vec &b)
{
    return {a.x * b.x, a.y * b.y, a.z * b.z};
}

constexpr double dot(const Vec &a, const Vec &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline double length(const Vec &a)
{
    return std::sqrt(dot(a, a));
}
inline Vec normalized(const Vec &a)
{
    return a * (1.0 / length(a));
}
constexpr Vec mix(const Vec &a, const Vec &b, double share)
{
    return a + (b - a) * share;
}
constexpr Vec reflected(const Vec &incoming, const Vec &normal)
{
    return incoming - normal * (2.0 * dot(incoming, normal));
}

/** Half line; `direction` has length 1. */
struct Ray
{
    Vec origin;
    Vec direction;

    constexpr Vec at(double distance) const { return origin + direction * distance; }
};

/** Rotation in space, kept as the three rows of its matrix. */
struct Rotation
{
    Vec row0{1.0, 0.0, 0.0};
    Vec row1{0.0, 1.0, 0.0};
    Vec row2{0.0, 0.0, 1.0};

    constexpr Vec operator*(const Vec &p) const
    {
        return {dot(row0, p), dot(row1, p), dot(row2, p)};
    }
    constexpr Vec inverse(const Vec &p) const { return row0 * p.x + row1 * p.y + row2 * p.z; }
};

/** Right-handed rotations about the scene's axes. */
inline Rotation rotationX(double deg)
{
    const double c = std::cos(radians(deg));
    const double s = std::sin(radians(deg));
    return {{1.0, 0.0, 0.0}, {0.0, c, -s}, {0.0, s, c}};
}
inline Rotation rotationY(double deg)
{
    const double c = std::cos(radians(deg));
    const double s = std::sin(radians(deg));
    return {{c, 0.0, s}, {0.0, 1.0, 0.0}, {-s, 0.0, c}};
}
inline Rotation rotationZ(double deg)
{
    const double c = std::cos(radians(deg));
    const double s = std::sin(radians(deg));
    return {{c, -s, 0.0}, {s, c, 0.0}, {0.0, 0.0, 1.0}};
}

} // namespace PipePicture
