#pragma once

#include "zalento/math/Mat4.h"
#include "zalento/math/Vec2.h"
#include "zalento/math/Vec3.h"
#include "zalento/render/MiniGL.h"

#include <QPoint>
#include <QRectF>

#include <cmath>

namespace Drevon::Zalento::Test {

/** A camera in front of a pipe that is turned by a view rotation, as the pipe objects set it up. */
struct PipeView
{
    MiniGL camera;
    Vec3 rotation; ///< touch units, touch units, degrees

    PipeView(const QRectF &viewport, double fovYDEG, const Vec3 &eye, const Vec3 &viewRotation)
        : rotation(viewRotation)
    {
        camera.eye = eye;
        camera.fovYDEG = fovYDEG;
        camera.onResize(viewport);
        camera.modelViewMatrix.lookAt(camera.eye, camera.center, camera.up);
        camera.rotateByTouchRotationVector(Vec2(rotation.x, rotation.y));
        camera.modelViewMatrix.rotate(rotation.z, 0, 0, 1);
    }

    /** Pipe frame to item pixels. */
    Vec2 project(const Vec3 &point) const
    {
        Mat4 toPixels;
        camera.combinedMatrix(toPixels);
        Vec2 result;
        toPixels.multiply(point, result);
        return result;
    }

    /** From the eye to the far side of what the pixel's centre shows; depth along the view is 1. */
    Vec3 visibleDirection(QPoint pixel) const
    {
        Vec3 forward = camera.center - camera.eye;
        forward.normalize();
        Vec3 right = forward.cross(camera.up);
        right.normalize();
        const Vec3 up = right.cross(forward);
        const double pixelSize =
            2 * std::tan(camera.fovYDEG * std::acos(-1.0) / 360) / camera.viewport.height();
        const double x = (pixel.x() + 0.5 - camera.viewport.width() / 2) * pixelSize;
        const double y = (pixel.y() + 0.5 - camera.viewport.height() / 2) * pixelSize;
        return -(forward + x * right - y * up);
    }

    /** Turns a scene direction or point into the pipe frame, by plane rotations. */
    Vec3 toPipeFrame(const Vec3 &v) const
    {
        const double turn = camera.fovYDEG / 2 * std::acos(-1.0) / 180;
        const double ax = rotation.x * turn;
        const double ay = rotation.y * turn;
        const double az = -rotation.z * std::acos(-1.0) / 180;
        const Vec3 a(std::cos(ax) * v.x + std::sin(ax) * v.z, v.y,
                     std::cos(ax) * v.z - std::sin(ax) * v.x);
        const Vec3 b(a.x, std::cos(ay) * a.y - std::sin(ay) * a.z,
                     std::sin(ay) * a.y + std::cos(ay) * a.z);
        return {std::cos(az) * b.x - std::sin(az) * b.y, std::sin(az) * b.x + std::cos(az) * b.y,
                b.z};
    }
};

/** The camera that the straight pipe places in the middle of its mouth, with default settings. */
inline PipeView frontView(double diameterM, const QRectF &viewport = QRectF(0, 0, 576, 576),
                          const Vec3 &rotation = Vec3::Zero)
{
    constexpr double fovYDEG = 37.5;
    const double distance = diameterM * 0.51 / std::tan(fovYDEG * std::acos(-1.0) / 360);
    return PipeView(viewport, fovYDEG, Vec3(0, 0, distance), rotation);
}

} // namespace Drevon::Zalento::Test
