// From a clicked pixel to a point of the pipe.
#include "zalento/geometry/Cylinder.h"

#include "zalento/math/angles.h"
#include "zalento/math/squaredDistance.h"

#include <drevon/Utils3d.h>

#include <QVector3D>

#include <cmath>
#include <limits>

namespace Drevon::Zalento {

namespace {

Vec2 placeOf(const QPoint &pixel)
{
    return {static_cast<double>(pixel.x()), static_cast<double>(pixel.y())};
}

QVector3D toSinglePrecision(const Vec3 &v)
{
    return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
}

} // namespace

Vec3 Cylinder::nearestVertices(QPoint pixel) const
{
    Vec3 result;
    double best = std::numeric_limits<double>::max();
    for (std::size_t i = 0; i < screenVertices.size(); ++i) {
        for (std::size_t j = 0; j < screenVertices[i].size(); ++j) {
            const double d = squaredDistance(screenVertices[i][j], placeOf(pixel));
            if (d < best) {
                best = d;
                result = vertices[i][j];
            }
        }
    }
    return result;
}

void Cylinder::closestIndex(int ring1, int index1, int ring2, int index2, const Vec2 &p, int &ring,
                            int &index, double &distSq) const
{
    const auto distanceTo = [&](int r, int i) {
        return squaredDistance(
            screenVertices[static_cast<std::size_t>(r)][static_cast<std::size_t>(i)], p);
    };
    const double d1 = distanceTo(ring1, index1);
    const double d2 = distanceTo(ring2, index2);
    const bool secondIsNearer = d2 <= d1;
    ring = secondIsNearer ? ring2 : ring1;
    index = secondIsNearer ? index2 : index1;
    distSq = secondIsNearer ? d2 : d1;
}

void Cylinder::rayVectors(QPoint pixel, const MiniGL &camera, Vec3 &origin, Vec3 &direction) const
{
    rayVectorsAt(placeOf(pixel), camera, origin, direction);
}

void Cylinder::rayVectorsAt(const Vec2 &place, const MiniGL &camera, Vec3 &origin,
                            Vec3 &direction) const
{
    const double t = std::tan(camera.fovYDEG * radiansPerDegree * 0.5);
    const double halfWidth = camera.viewport.width() / camera.viewport.height() * t;
    const double pixelSize = 2 * halfWidth / camera.viewport.width();

    Mat4 view;
    view.lookAt(camera.eye, camera.center, camera.up);
    Vec3 e;
    Vec3 f;
    Vec3 u;
    view.getLookAt(e, f, u);
    Vec3 right = f.cross(u);
    right.normalize();

    // Centre of pixel (0, 0) at unit distance.
    const Vec3 corner =
        f - halfWidth * right + t * u + (pixelSize / 2) * right - (pixelSize / 2) * u;
    Vec3 towards = corner + (place.x * pixelSize) * right - (place.y * pixelSize) * u;
    towards.normalize();
    origin = e;
    direction = towards;
}

Vec3 Cylinder::getNormalVectorOfPlaneInTheCilinder(double fovYDEG, Vec3 rotation) const
{
    const double h = fovYDEG * 0.5;
    Mat4 view;
    view.rotate(-rotation.x * h, 0, 1, 0);
    view.rotate(-rotation.y * h, 1, 0, 0);
    view.translate(Vec3(0, 0, -lengthM));
    Vec3 normal = view.multiply(Vec3::Zero);
    normal.normalize();
    return normal;
}

Vec3 Cylinder::getHitPointPositionBeforeRotation(double fovYDEG, Vec3 rotation, Vec3 point) const
{
    const double h = fovYDEG * 0.5;
    Mat4 inverseView;
    inverseView.rotate(-rotation.z, 0, 0, 1);
    inverseView.rotate(rotation.y * h, 1, 0, 0);
    inverseView.rotate(rotation.x * h, 0, 1, 0);
    inverseView.translate(point);
    return inverseView.multiply(Vec3::Zero);
}

bool Cylinder::intersectRay(QPoint pixel, const MiniGL &camera, Vec3 &hitPoint, Vec3 rotation) const
{
    return intersectRayAt(placeOf(pixel), camera, hitPoint, rotation);
}

bool Cylinder::intersectRayAt(const Vec2 &place, const MiniGL &camera, Vec3 &hitPoint,
                              Vec3 rotation) const
{
    if (!hasExtent()) {
        return false;
    }
    Vec3 origin;
    Vec3 direction;
    rayVectorsAt(place, camera, origin, direction);
    const Vec3 axis = getNormalVectorOfPlaneInTheCilinder(camera.fovYDEG, rotation);
    const Vec3 rc = origin - axisStart;

    Vec3 n = direction.cross(axis);
    const double ln = n.length();
    if (ln == 0.0) {
        const double d = rc.dot(axis);
        return (rc - d * axis).length() <= radiusM;
    }
    n = n / ln;
    const double dist = rc.dot(n);
    if (radiusM < std::abs(dist)) {
        return false;
    }
    const double t = -rc.cross(axis).dot(n) / ln;
    Vec3 o = n.cross(axis);
    o.normalize();
    const double s = std::abs(std::sqrt(radiusSquared - dist * dist) / direction.dot(o));
    if (t + s < 0) {
        return false;
    }
    const Vec3 picked =
        getHitPointPositionBeforeRotation(camera.fovYDEG, rotation, origin + (t - s) * direction);
    if (!isFinite(picked)) {
        return false;
    }
    hitPoint = picked;
    return true;
}

bool Cylinder::intersectPlaneRay(QPoint pixel, const MiniGL &camera, Vec3 &hitPoint,
                                 Vec3 rotation) const
{
    return intersectPlaneRayAt(placeOf(pixel), camera, hitPoint, rotation);
}

bool Cylinder::intersectPlaneRayAt(const Vec2 &place, const MiniGL &camera, Vec3 &hitPoint,
                                   Vec3 rotation) const
{
    if (!hasExtent()) {
        return false;
    }
    Vec3 origin;
    Vec3 direction;
    rayVectorsAt(place, camera, origin, direction);
    const double distance = lengthM * crossSectDistancePercent;
    const QVector3D normal =
        toSinglePrecision(getNormalVectorOfPlaneInTheCilinder(camera.fovYDEG, rotation));

    QVector3D out(0, 0, 0);
    if (!View3d::Utils3d::rayPlaneIntersection(toSinglePrecision(origin),
                                               toSinglePrecision(direction), out,
                                               normal * static_cast<float>(distance), normal)) {
        return false;
    }
    const Vec3 picked = getHitPointPositionBeforeRotation(camera.fovYDEG, rotation,
                                                          Vec3(out.x(), out.y(), out.z()));
    if (!isFinite(picked)) {
        return false;
    }
    hitPoint = picked;
    return true;
}

// Sizes whose squares underflow or overflow are too small or too large to compute with.
bool Cylinder::hasExtent() const
{
    return radiusM > 0.0 && radiusSquared > 0.0 && lengthSquared > 0.0 &&
           std::isfinite(lengthSquared);
}

} // namespace Drevon::Zalento
