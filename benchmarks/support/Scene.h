#pragma once

#include "zalento/render/MiniGL.h"

#include <cmath>
#include <vector>

namespace Drevon::Zalento::Benchmarks {

/** Side of the square viewport in pixels. */
constexpr int viewportPx = 800;

/** A camera at the mouth of a pipe, turned a little. */
inline MiniGL pipeCamera()
{
    MiniGL camera;
    camera.onResize(QRectF(0, 0, viewportPx, viewportPx));
    camera.modelViewMatrix.lookAt(camera.eye, camera.center, camera.up);
    camera.rotateByTouchRotationVector(Vec2(0.1, -0.2));
    return camera;
}

/** A ring of @p count points around the pipe axis: radius 0.15 m, 0.5 m behind the mouth. */
inline std::vector<Vec3> ring(int count)
{
    constexpr double radiusM = 0.15;
    constexpr double depthM = -0.5;
    const double step = 2 * std::acos(-1.0) / count;
    std::vector<Vec3> points;
    for (int i = 0; i < count; ++i) {
        points.emplace_back(radiusM * std::sin(i * step), -radiusM * std::cos(i * step), depthM);
    }
    return points;
}

} // namespace Drevon::Zalento::Benchmarks
