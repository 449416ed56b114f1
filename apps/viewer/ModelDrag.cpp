#include "ModelDrag.h"

#include <zalento/geometry/Cylinder.h>
#include <zalento/math/angles.h>
#include <zalento/pipes/gestureUnits.h>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

namespace {

constexpr double percentPerOne = 100.0;

// Diameters in one picture pixel at the pipe's mouth.
double diametersPerPixel(const QSize &pictureSize)
{
    return frontCircleMargin / std::min(pictureSize.width(), pictureSize.height());
}

// Half fields of view by which the view turns about the mouth's centre while the rear circle moves
// by one picture pixel; exact for a small turn from straight ahead.
double halfFovsPerPixel(double fovYDEG, const QSize &pictureSize)
{
    const double halfFov = fovYDEG * radiansPerDegree * 0.5;
    const double t = std::tan(halfFov);
    const double eyeInDiameters = 0.5 / t * frontCircleMargin;
    const double halfSquare = std::min(pictureSize.width(), pictureSize.height()) * 0.5;
    const double pixelsPerRadian = Cylinder::lengthInDiameters /
                                   (eyeInDiameters + Cylinder::lengthInDiameters) / t * halfSquare;
    return 1.0 / (pixelsPerRadian * halfFov);
}

} // namespace

Measuring::Session modelDragged(const Measuring::Session &start, const QPointF &moved,
                                const QSize &pictureSize)
{
    // Positive numbers move to the left and down.
    Measuring::Session session = start;
    if (start.rearCircleActive) {
        const double turn = halfFovsPerPixel(start.fovYDEG, pictureSize);
        session.rearCircleX -= moved.x() * turn * rearCircleRangeX;
        session.rearCircleY += moved.y() * turn * rearCircleRangeY;
    } else {
        session.offset -= moved.x() * diametersPerPixel(pictureSize) * unitsPerDiameter;
        // A raised camera sees the pipe lower.
        session.cameraHeightPercent = std::clamp(
            start.cameraHeightPercent + moved.y() * diametersPerPixel(pictureSize) * percentPerOne,
            0.0, percentPerOne);
    }
    return session;
}

} // namespace Drevon::Zalento
