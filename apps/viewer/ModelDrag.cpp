#include "ModelDrag.h"

#include "measuring/PipeView.h"

#include <zalento/geometry/Cylinder.h>
#include <zalento/math/angles.h>
#include <zalento/pipes/gestureUnits.h>

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

namespace {

constexpr double percentPerOne = 100.0;
constexpr double radiusMPerDiameterMM = 0.0005;

// Of the square in which the item draws, in picture pixels.
double sideOf(const Measuring::ItemLayout &layout)
{
    return std::min(layout.geometry.width(), layout.geometry.height());
}

// Diameters in one picture pixel at the pipe's mouth.
double diametersPerPixel(const Measuring::ItemLayout &layout)
{
    return frontCircleMargin / sideOf(layout);
}

// Half fields of view by which the view turns about the mouth's centre while the rear circle moves
// by one picture pixel; exact for a small turn from straight ahead.
double halfFovsPerPixel(const Measuring::ItemLayout &layout)
{
    const double halfFov = layout.fovYDEG * radiansPerDegree * 0.5;
    const double t = std::tan(halfFov);
    const double eyeInDiameters = 0.5 / t * frontCircleMargin;
    const double pixelsPerRadian = Cylinder::lengthInDiameters /
                                   (eyeInDiameters + Cylinder::lengthInDiameters) / t *
                                   sideOf(layout) * 0.5;
    return 1.0 / (pixelsPerRadian * halfFov);
}

} // namespace

Measuring::Session modelDragged(const Measuring::Session &start, const QPointF &moved)
{
    // Positive numbers move to the left and down.
    const Measuring::ItemLayout layout = Measuring::itemLayout(start);
    Measuring::Session session = start;
    if (start.rearCircleActive) {
        const double turn = halfFovsPerPixel(layout);
        session.rearCircleX -= moved.x() * turn * rearCircleRangeX;
        session.rearCircleY += moved.y() * turn * rearCircleRangeY;
    } else {
        session.offset -= moved.x() * diametersPerPixel(layout) * unitsPerDiameter;
        // A raised camera sees the pipe lower.
        session.cameraHeightPercent = std::clamp(
            start.cameraHeightPercent + moved.y() * diametersPerPixel(layout) * percentPerOne, 0.0,
            percentPerOne);
    }
    return session;
}

// The circle grows about its own centre, whose place is told in diameters of it.
Measuring::Session mouthScaled(const Measuring::Session &start, double factor)
{
    Measuring::Session session = start;
    session.mouthPercent = std::clamp(start.mouthPercent * factor, Measuring::smallestMouthPercent,
                                      Measuring::largestMouthPercent);
    const double grown = session.mouthPercent / start.mouthPercent;
    session.offset = start.offset / grown;
    session.cameraHeightPercent = std::clamp(
        centredPercent + (start.cameraHeightPercent - centredPercent) / grown, 0.0, percentPerOne);
    return session;
}

MouthCircle mouthCircle(const Measuring::Session &session)
{
    const Measuring::PipeView view(session);
    const double radiusM = session.diameterMM * radiusMPerDiameterMM;
    const QPointF centre = view.project(Vec3(0, 0, 0));
    return {centre, QLineF(centre, view.project(Vec3(0, radiusM, 0))).length()};
}

} // namespace Drevon::Zalento
