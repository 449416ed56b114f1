#include "measuring/FitDrawing.h"

#include "zalento/geometry/Cylinder.h"
#include "zalento/math/angles.h"
#include "zalento/math/truncateToInt.h"
#include "zalento/pipes/PipeBase.h"
#include "zalento/pipes/gestureUnits.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double mPerMM = 0.001;

// The nearest point of a ring is looked for among this many, then refined.
constexpr int ringSamples = 72;
constexpr int refinements = 8;
constexpr double differenceRad = 1e-4;

// The camera and set-up of a pipe without anything to draw.
class BarePipe : public PipeBase
{
public:
    void render(QPainter &, ViewStyle, const ZASettings &, Vec3, QPoint) override {}
};

} // namespace

FitDrawing::FitDrawing(const Alignment &alignment, double diameterMM, const QSize &picture)
    : m_radiusM(diameterMM * mPerMM * 0.5)
{
    const double k = alignment.mouthPercent * 0.01;
    const double side = k * std::min(picture.width(), picture.height());
    const double halfFov = alignment.fovYDEG * 0.5 * radiansPerDegree;
    BarePipe pipe;
    pipe.setDiameterM(diameterMM * mPerMM);
    pipe.cameraHeight = alignment.cameraHeightPercent * 0.01;
    pipe.camera.fovYDEG = 2.0 * std::atan(k * std::tan(halfFov)) * degreesPerRadian;
    pipe.camera.onResize(
        QRectF((picture.width() - side) * 0.5, (picture.height() - side) * 0.5, side, side));

    const QPoint offset(truncateToInt(alignment.offset), 0);
    const Vec3 rotation = pipe.getNewImageRotationToKeepRearCircleInsideFrontCircle(
        offset, Vec3(alignment.rearCircleX, alignment.rearCircleY, 0));
    // Divided as scaleValue() does, a view that is not corrected may differ by a rounding.
    constexpr double rounding = 1e-9;
    m_isCorrected = !(std::abs(rotation.x - alignment.rearCircleX / rearCircleRangeX) < rounding &&
                      std::abs(rotation.y - alignment.rearCircleY / rearCircleRangeY) < rounding);
    pipe.setupMiniGL(pipe.getDiameterM(), offset);
    pipe.camera.rotateByTouchRotationVector(Vec2(rotation.x, rotation.y));
    pipe.camera.combinedMatrix(m_toPixels);
}

QPointF FitDrawing::fromRing(const QPointF &pixel, double depthMM) const
{
    const auto toPixel = [&](double angle) {
        return pixel - projected(onWall(angle, depthMM * mPerMM));
    };
    const auto squared = [](const QPointF &v) { return QPointF::dotProduct(v, v); };
    double nearest = 0.0;
    for (int i = 1; i < ringSamples; ++i) {
        const double angle = i * twoPi / ringSamples;
        if (squared(toPixel(angle)) < squared(toPixel(nearest))) {
            nearest = angle;
        }
    }
    // Gauss-Newton: the part of the way that runs along the curve becomes 0.
    for (int i = 0; i < refinements; ++i) {
        const QPointF way = toPixel(nearest);
        const QPointF slope =
            (toPixel(nearest - differenceRad) - toPixel(nearest + differenceRad)) /
            (2 * differenceRad);
        nearest += QPointF::dotProduct(way, slope) / squared(slope);
    }
    return toPixel(nearest);
}

QPointF FitDrawing::fromLine(const QPointF &pixel, double clockDEG) const
{
    const double angle = halfPi + clockDEG * radiansPerDegree;
    const QPointF a = projected(onWall(angle, 0.0));
    const QPointF along = projected(onWall(angle, 2 * m_radiusM * Cylinder::lengthInDiameters)) - a;
    const QPointF way = pixel - a;
    return way - along * (QPointF::dotProduct(way, along) / QPointF::dotProduct(along, along));
}

QPointF FitDrawing::projected(const Vec3 &p) const
{
    Vec2 pixel;
    m_toPixels.multiply(p, pixel);
    return {pixel.x, pixel.y};
}

// Angles run from the scene's x axis towards y.
Vec3 FitDrawing::onWall(double angle, double depthM) const
{
    return {m_radiusM * std::cos(angle), m_radiusM * std::sin(angle), -depthM};
}

} // namespace Drevon::Zalento::Measuring
