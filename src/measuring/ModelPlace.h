#pragma once

#include "measuring/FitCamera.h"

#include "zalento/geometry/Cylinder.h"
#include "zalento/math/Vec3.h"

#include <cmath>
#include <limits>

namespace Drevon::Zalento::Measuring {

/** Where a pixel lies on the model before its roll, in diameters; nowhere: not a number. */
inline Vec3 placeAlong(const FitCamera<double> &camera, const FitVector<double> &ray, double reach)
{
    return {camera.eye().x + reach * ray.x, camera.eye().y + reach * ray.y,
            camera.eye().z + reach * ray.z};
}

/** On the wall: the farther of the two places on the ray, which is seen from inside. */
inline Vec3 placeOnWall(const FitCamera<double> &camera, const QPointF &pixel)
{
    constexpr double radius = 0.5;
    const FitVector<double> ray = camera.rayThrough(pixel);
    const FitVector<double> &eye = camera.eye();
    const double a = ray.x * ray.x + ray.y * ray.y;
    const double b = eye.x * ray.x + eye.y * ray.y;
    const double c = eye.x * eye.x + eye.y * eye.y - radius * radius;
    const double reach = (std::sqrt(b * b - a * c) - b) / a;
    return reach > 0.0 ? placeAlong(camera, ray, reach)
                       : Vec3(std::numeric_limits<double>::quiet_NaN(), 0, 0);
}

/** On the plane of a cross section; its depth in percent of the modelled pipe. */
inline Vec3 placeOnPlane(const FitCamera<double> &camera, const QPointF &pixel, double percent)
{
    const double depth = percent * 0.01 * Cylinder::lengthInDiameters;
    const FitVector<double> ray = camera.rayThrough(pixel);
    Vec3 place = placeAlong(camera, ray, (-depth - camera.eye().z) / ray.z);
    place.z = -depth;
    return place;
}

} // namespace Drevon::Zalento::Measuring
