#include "ModelDrag.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

namespace {

// The pipe's mouth is drawn this many times smaller than the square in which the item draws.
constexpr double mouthMargin = 1.02;
// Gesture units of ZaItem::move() in one diameter.
constexpr double unitsPerDiameter = 576.0;
constexpr double percentPerOne = 100.0;

// Rear circle: gesture units that turn the view by half the field of view, sideways and up.
constexpr double unitsPerHalfFovX = 85.0;
constexpr double unitsPerHalfFovY = 50.0;
// Length of the modelled pipe in diameters.
constexpr double lengthInDiameters = 10.0;
constexpr double radiansPerDegree = 3.14159265358979323846 / 180.0;

// Diameters in one picture pixel at the pipe's mouth.
double diametersPerPixel(const QSize &pictureSize)
{
    return mouthMargin / std::min(pictureSize.width(), pictureSize.height());
}

// Half fields of view by which the view turns about the mouth's centre while the rear circle moves
// by one picture pixel; exact for a small turn from straight ahead.
double halfFovsPerPixel(double fovYDEG, const QSize &pictureSize)
{
    const double halfFov = fovYDEG * radiansPerDegree * 0.5;
    const double t = std::tan(halfFov);
    const double eyeInDiameters = 0.5 / t * mouthMargin;
    const double halfSquare = std::min(pictureSize.width(), pictureSize.height()) * 0.5;
    const double pixelsPerRadian =
        lengthInDiameters / (eyeInDiameters + lengthInDiameters) / t * halfSquare;
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
        session.rearCircleX -= moved.x() * turn * unitsPerHalfFovX;
        session.rearCircleY += moved.y() * turn * unitsPerHalfFovY;
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
