#pragma once

#include "zalento/Export.h"
#include "zalento/math/Vec2.h"
#include "zalento/math/Vec3.h"

namespace Drevon::Zalento {

class MiniGL;

/**
 * Corrects a view rotation so that a pipe's far circle stays visible through its near one.
 *
 * The near (front) circle lies at z = 0, the far (rear) circle ten diameters behind it. The
 * correction works on the screen: it looks at the point where the front circle is nearest to the
 * rear circle, and turns the view back along the pipe axis' screen direction when the rear circle
 * has run past it. Screen distances are squared, in pixels². Every search ends after 50 turns.
 */
class ZALENTO_EXPORT CircleRotationCorrector
{
public:
    MiniGL &camera;        ///< of the pipe object; not owned
    Vec2 touchRotation;    ///< candidate view rotation in touch units
    double diameter = 0.0; ///< of the pipe, in metres
    Vec3 frontPoint;       ///< on the front circle, found by the last angle check; metres
    Vec2 direction;        ///< unit screen direction of the pipe axis, from the last angle check

    /** Corrects the view of this camera, which has to outlive it. */
    explicit CircleRotationCorrector(MiniGL &pipeCamera)
        : camera(pipeCamera)
    {}

    /**
     * @param rotation the requested offsets of the rear circle: x in [-85, 85] and y in [-50, 50]
     *        are one touch unit to either side; larger ones are extrapolated
     * @param pipeDiameter in metres
     * @return the view rotation to use, in touch units
     */
    Vec2 getNewRotationToKeepRearCircleInsideFrontCircle(Vec3 rotation, double pipeDiameter);

    /**
     * Angle in degrees between the axis' screen direction and the way from the front circle's
     * point to the rear circle's. Below 90 the rear circle has left the front circle; 120 where
     * the screen shows no direction; NaN when rounding takes the cosine beyond 1.
     */
    double correctAngleBetweenPointOnFrontCircleAndRearCircle();

    /** Walks #touchRotation along #direction until the rear circle meets #frontPoint. */
    void correctTouchRotationWhenRearCircleBeyondFrontCircleLimit();

    /** Turns @p frontCirclePoint about the pipe axis until it is nearest to @p rearCirclePoint. */
    Vec3 correctedPositionOfPointOnFrontCircleToBeNearPointOnRearCircle(Vec3 frontCirclePoint,
                                                                        Vec3 rearCirclePoint) const;

    /** Unit screen direction from the front circle's centre to the rear circle's. */
    Vec2 calculateDirectionVectorFromRearToFrontCircle() const;

    /** Screen distance between #frontPoint and the rear circle's point nearest to it. */
    double distanceBetweenFrontAndRearCircle() const;

private:
    Vec3 pointOnCircle(const Vec2 &axisDirection, double z) const;
    double rearZ() const;
};

} // namespace Drevon::Zalento
