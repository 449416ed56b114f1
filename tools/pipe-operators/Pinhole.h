#pragma once

#include "measuring/AlignmentFit.h"

#include <QPointF>
#include <QSize>

#include <cmath>
#include <optional>
#include <random>

/**
 * @file
 * A pinhole camera of its own before a pipe, in the usual frame of a camera: x right, y down,
 * z forward. It shares nothing with the overlay's. Lengths are diameters.
 */
namespace Drevon::Zalento::Tools {

constexpr double pi = 3.14159265358979323846;
constexpr double radians = pi / 180;

struct Vector
{
    double x, y, z;
};

inline Vector operator+(const Vector &a, const Vector &b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vector operator-(const Vector &a, const Vector &b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vector operator*(double s, const Vector &v)
{
    return {s * v.x, s * v.y, s * v.z};
}
inline double dot(const Vector &a, const Vector &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline double norm(const Vector &v)
{
    return std::sqrt(dot(v, v));
}

/** What is left to chance. */
class Random
{
public:
    explicit Random(std::mt19937_64 &engine)
        : m_engine(engine)
    {}
    double between(double a, double b) { return std::uniform_real_distribution(a, b)(m_engine); }
    double normal(double spread) { return spread * std::normal_distribution<>()(m_engine); }

private:
    std::mt19937_64 &m_engine;
};

/** A pipe before the camera. */
struct View
{
    QSize picture;
    double focalPX;
    Vector mouth; // centre of the first joint
    Vector axis;  // of length 1, into the pipe
    Vector right; // across the pipe
    Vector down;

    static View towards(double yaw, double pitch, const QSize &picture, double fovDEG)
    {
        const double sideToFocal = 0.5 / std::tan(fovDEG * 0.5 * radians);
        return {
            picture,
            std::min(picture.width(), picture.height()) * sideToFocal,
            {},
            {std::cos(pitch) * std::sin(yaw), std::sin(pitch), std::cos(pitch) * std::cos(yaw)},
            {std::cos(yaw), 0, -std::sin(yaw)},
            {-std::sin(pitch) * std::sin(yaw), std::cos(pitch), -std::sin(pitch) * std::cos(yaw)}};
    }

    Vector onWall(double angle, double depth) const
    {
        return mouth + depth * axis + 0.5 * std::cos(angle) * right + 0.5 * std::sin(angle) * down;
    }

    QPointF seen(const Vector &p) const
    {
        return {picture.width() * 0.5 + focalPX * p.x / p.z,
                picture.height() * 0.5 + focalPX * p.y / p.z};
    }

    // Where the pixel's ray leaves the pipe.
    std::optional<Vector> wallAt(const QPointF &pixel) const
    {
        const Vector ray{(pixel.x() - picture.width() * 0.5) / focalPX,
                         (pixel.y() - picture.height() * 0.5) / focalPX, 1.0};
        const Vector along = ray - dot(ray, axis) * axis;
        const Vector eye = dot(mouth, axis) * axis - mouth; // from the axis, across it
        const double a = dot(along, along);
        const double b = dot(along, eye);
        const double c = dot(eye, eye) - 0.25;
        if (a == 0.0 || b * b < a * c) {
            return std::nullopt;
        }
        return ((-b + std::sqrt(b * b - a * c)) / a) * ray;
    }
};

/** The fields of a session for a view, and back. */
Measuring::Alignment alignmentOf(const View &view, double fovDEG);
View viewOf(const Measuring::Alignment &alignment, const QSize &picture);

/** Draws a picture's size, and a camera up to a tenth of the diameter off the axis and turned by up
    to a quarter of the field of view. */
View drawView(Random &random, double fovDEG);

} // namespace Drevon::Zalento::Tools
