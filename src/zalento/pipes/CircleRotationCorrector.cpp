#include "zalento/pipes/CircleRotationCorrector.h"

#include "zalento/geometry/Cylinder.h"
#include "zalento/math/angles.h"
#include "zalento/math/scaleValue.h"
#include "zalento/pipes/gestureUnits.h"
#include "zalento/render/MiniGL.h"
#include "zalento/render/ModelViewScope.h"

#include <cmath>
#include <limits>

namespace Drevon::Zalento {

namespace {

// Result of the angle check that asks for no correction.
constexpr double noDirectionDeg = 120.0;
constexpr double limitDeg = 90.0;

constexpr int maximumTurns = 50;

// The search on the front circle starts with a degree and ends when a turn changes the screen
// distance by less than this, in pixels².
constexpr double firstTurnDeg = 1.0;
constexpr double settledPx2 = 0.1;

// The walk of the rotation starts with 1/20 touch unit a turn and ends at this screen distance,
// in pixels².
constexpr double firstDivisor = 20.0;
constexpr double metPx2 = 2.0;

Vec3 turnedAboutZ(const Vec3 &p, double angleDeg)
{
    const double cs = std::cos(angleDeg * radiansPerDegree);
    const double sn = std::sin(angleDeg * radiansPerDegree);
    return {cs * p.x - sn * p.y, sn * p.x + cs * p.y, p.z};
}

} // namespace

Vec2 CircleRotationCorrector::getNewRotationToKeepRearCircleInsideFrontCircle(Vec3 rotation,
                                                                              double pipeDiameter)
{
    touchRotation.x = scaleValue(rotation.x, -rearCircleRangeX, rearCircleRangeX, -1.0, 1.0);
    touchRotation.y = scaleValue(rotation.y, -rearCircleRangeY, rearCircleRangeY, -1.0, 1.0);
    diameter = pipeDiameter;
    if (correctAngleBetweenPointOnFrontCircleAndRearCircle() < limitDeg) {
        correctTouchRotationWhenRearCircleBeyondFrontCircleLimit();
    }
    return touchRotation;
}

double CircleRotationCorrector::correctAngleBetweenPointOnFrontCircleAndRearCircle()
{
    const ModelViewScope scope(camera);
    camera.rotateByTouchRotationVector(touchRotation);
    direction = calculateDirectionVectorFromRearToFrontCircle();
    if (direction.isZeroLengthVector()) {
        return noDirectionDeg;
    }
    const Vec3 rearPoint = pointOnCircle(direction, rearZ());
    frontPoint = correctedPositionOfPointOnFrontCircleToBeNearPointOnRearCircle(
        pointOnCircle(direction, 0), rearPoint);
    const Vec2 w = camera.calculate2DDirectionVectorOnScreenFromTwo3DPoints(frontPoint, rearPoint);
    if (w.isZeroLengthVector()) {
        return noDirectionDeg;
    }
    return std::acos(direction.y * w.y + direction.x * w.x) * degreesPerRadian;
}

void CircleRotationCorrector::correctTouchRotationWhenRearCircleBeyondFrontCircleLimit()
{
    double previous = std::numeric_limits<double>::max();
    Vec2 candidate = touchRotation;
    double divisor = firstDivisor;
    for (int counter = 0; counter < maximumTurns; ++counter) {
        candidate.x += direction.x / divisor;
        candidate.y += -direction.y / divisor;
        const ModelViewScope scope(camera);
        camera.rotateByTouchRotationVector(candidate);
        const double dist = distanceBetweenFrontAndRearCircle();
        if (dist > previous) {
            if (divisor > 0) {
                touchRotation = candidate;
                if (dist < metPx2) {
                    return;
                }
            }
            divisor = -2 * divisor;
        }
        previous = dist;
    }
}

Vec3 CircleRotationCorrector::correctedPositionOfPointOnFrontCircleToBeNearPointOnRearCircle(
    Vec3 frontCirclePoint, Vec3 rearCirclePoint) const
{
    Vec3 p = frontCirclePoint;
    double dist = camera.getScreenDistance(p, rearCirclePoint);
    double previous = std::numeric_limits<double>::max();
    double step = firstTurnDeg;
    for (int turns = 0; turns < maximumTurns; ++turns) {
        if (dist > previous) {
            step = -step * 0.5;
        } else if (std::abs(dist - previous) < settledPx2) {
            break;
        }
        p = turnedAboutZ(p, step);
        previous = dist;
        dist = camera.getScreenDistance(p, rearCirclePoint);
    }
    return p;
}

Vec2 CircleRotationCorrector::calculateDirectionVectorFromRearToFrontCircle() const
{
    return camera.calculate2DDirectionVectorOnScreenFromTwo3DPoints(Vec3::Zero,
                                                                    Vec3(0, 0, rearZ()));
}

double CircleRotationCorrector::distanceBetweenFrontAndRearCircle() const
{
    const Vec2 axisDirection = calculateDirectionVectorFromRearToFrontCircle();
    return camera.getScreenDistance(frontPoint, pointOnCircle(axisDirection, rearZ()));
}

// The point of a circle at depth z on the side to which the axis runs on the screen. The screen
// shows the pipe mirrored, so scene coordinates run against screen coordinates.
Vec3 CircleRotationCorrector::pointOnCircle(const Vec2 &axisDirection, double z) const
{
    return {-(axisDirection.x * diameter) * 0.5, -(axisDirection.y * diameter) * 0.5, z};
}

double CircleRotationCorrector::rearZ() const
{
    return -Cylinder::lengthInDiameters * diameter;
}

} // namespace Drevon::Zalento
