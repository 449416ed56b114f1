// The pipe: rings, water, cross-section disc.
#include "zalento/geometry/Cylinder.h"
#include "zalento/measure/valueTexts.h"
#include "zalento/render/MiniGL.h"
#include "zalento/render/ModelViewScope.h"
#include "zalento/render/PainterPens.h"
#include "zalento/render/clearVectorRegisters.h"

#include <QPainterPath>

#include <algorithm>

namespace Drevon::Zalento {

namespace {

constexpr int innerRingAlpha = 80;
constexpr double mouthPenPx = 3.0;
constexpr double innerRingPenPx = 2.0;
constexpr double lastRingPenPx = 1.0;
constexpr double mouthWaterPenPx = 2.0;
constexpr double waterPenPx = 1.0;

constexpr int discFillAlpha = 50;
constexpr double discOutlinePenPx = 3.0;
constexpr std::size_t smallestDisc = 4;

// From this percentage on the water-level label has room below the water line.
constexpr int labelBelowLinePercent = 4;
constexpr double labelBelowLineOffset = 1.25;
constexpr double labelAboveLineOffset = -0.25;

// Pens of the mouth, the last ring and the rings between.
struct RingPens
{
    QPen mouth;
    QPen last;
    QPen inner;

    const QPen &of(int ring, int lastRing) const
    {
        return ring == 0 ? mouth : (ring == lastRing ? last : inner);
    }
};

int lastRingOf(const Cylinder &cylinder)
{
    return static_cast<int>(cylinder.vertices.size()) - 1;
}

const Vec3 &vertexOf(const Cylinder &cylinder, int ring, int index)
{
    return cylinder.vertices[static_cast<std::size_t>(ring)][static_cast<std::size_t>(index)];
}

int dryStart(const Cylinder &cylinder, int ring)
{
    return cylinder.waterLevelStart[static_cast<std::size_t>(ring)];
}

int dryEnd(const Cylinder &cylinder, int ring)
{
    return cylinder.waterLevelEnd[static_cast<std::size_t>(ring)];
}

void appendProjected(const Mat4 &toPixels, const Vec3 &vertex, std::vector<Vec2> &points)
{
    Vec2 s;
    toPixels.multiply(vertex, s);
    points.push_back(s);
}

// Ring vertices first, first + 1, ... last.
void projectAscending(const Mat4 &toPixels, const Cylinder &cylinder, int ring, int first, int last,
                      std::vector<Vec2> &points)
{
    for (int j = first; j <= last; ++j) {
        appendProjected(toPixels, vertexOf(cylinder, ring, j), points);
    }
}

// Ring vertices first, first - 1, ... last.
void projectDescending(const Mat4 &toPixels, const Cylinder &cylinder, int ring, int first,
                       int last, std::vector<Vec2> &points)
{
    for (int j = first; j >= last; --j) {
        appendProjected(toPixels, vertexOf(cylinder, ring, j), points);
    }
}

Vec2 projected(const Mat4 &toPixels, const Vec3 &point)
{
    Vec2 s;
    toPixels.multiply(point, s);
    return s;
}

} // namespace

void MiniGL::renderCylinder(QPainter &painter, const QColor &cylinderColor,
                            const QColor &measureColor, const Cylinder &cylinder, int ringStep,
                            MeasureMode mode, ObservableType &observable, MeasureUnit /*unit*/)
{
    renderRings(painter, cylinderColor, cylinder, ringStep);
    switch (mode) {
    case MeasureMode::WaterLevel:
        renderWater(painter, measureColor, cylinder, ringStep);
        renderWaterLevelLabel(painter, measureColor, cylinder);
        break;
    case MeasureMode::CrossSection:
    case MeasureMode::FreeCrossSection:
        renderCrossSectionDisc(painter, measureColor, cylinder);
        observable = ObservableType::NothingObserved;
        break;
    default:
        break;
    }
}

void MiniGL::renderCylinder(QPainter &painter, const QColor &cylinderColor,
                            const QColor &measureColor, const Cylinder &cylinder, int ringStep)
{
    ObservableType discarded = ObservableType::NothingObserved;
    renderCylinder(painter, cylinderColor, measureColor, cylinder, ringStep, MeasureMode::NoMeasure,
                   discarded, MeasureUnit::Metric);
}

void MiniGL::renderRings(QPainter &painter, const QColor &color, const Cylinder &cylinder,
                         int ringStep) const
{
    if (ringStep <= 0) {
        return;
    }
    const RingPens pens{solidPen(color, mouthPenPx), solidPen(color, lastRingPenPx),
                        solidPen(withAlpha(color, innerRingAlpha), innerRingPenPx)};
    const int last = lastRingOf(cylinder);
    Mat4 toPixels;
    combinedMatrix(toPixels);
    std::vector<Vec2> points;
    points.reserve(static_cast<std::size_t>(cylinder.segmentCount) + 1);
    for (int ring = 0; ring <= last; ring += ringStep) {
        const int start = dryStart(cylinder, ring);
        const int end = dryEnd(cylinder, ring);
        if (end - start < 1) {
            continue;
        }
        points.clear();
        clearVectorRegisters();
        projectAscending(toPixels, cylinder, ring, start, end, points);
        painter.setPen(pens.of(ring, last));
        drawPolyLine(painter, points);
    }
}

void MiniGL::renderWater(QPainter &painter, const QColor &color, const Cylinder &cylinder,
                         int ringStep) const
{
    if (!(cylinder.waterLevelPercent > 0) || dryStart(cylinder, 0) <= 0) {
        return;
    }
    const RingPens pens{solidPen(color, mouthWaterPenPx), solidPen(color, waterPenPx),
                        solidPen(withAlpha(color, innerRingAlpha), waterPenPx)};
    const int last = lastRingOf(cylinder);
    // With a single ring the last one is ring 0, and any step leads past it.
    const int step = std::max(ringStep >= 0 ? ringStep : last, 1);
    Mat4 toPixels;
    combinedMatrix(toPixels);
    std::vector<Vec2> points;
    points.reserve(static_cast<std::size_t>(cylinder.segmentCount) + 2);
    for (int ring = 0; ring <= last; ring += step) {
        points.clear();
        clearVectorRegisters();
        projectDescending(toPixels, cylinder, ring, dryStart(cylinder, ring), 0, points);
        projectDescending(toPixels, cylinder, ring, cylinder.segmentCount, dryEnd(cylinder, ring),
                          points);
        painter.setPen(pens.of(ring, last));
        drawPolyLine(painter, points);
        drawLine(painter, points.front(), points.back());
    }
    if (dryEnd(cylinder, 0) != dryStart(cylinder, 0)) {
        painter.setPen(pens.last);
        drawLine(painter, projected(toPixels, vertexOf(cylinder, 0, dryEnd(cylinder, 0))),
                 projected(toPixels, vertexOf(cylinder, last, dryEnd(cylinder, last))));
        drawLine(painter, projected(toPixels, vertexOf(cylinder, 0, dryStart(cylinder, 0))),
                 projected(toPixels, vertexOf(cylinder, last, dryStart(cylinder, last))));
    }
}

void MiniGL::renderWaterLevelLabel(QPainter &painter, const QColor &color,
                                   const Cylinder &cylinder) const
{
    const int percent = waterLevelInPercent(cylinder.waterLevelPercent);
    const Vec3 waterLineCenter = (vertexOf(cylinder, 0, dryEnd(cylinder, 0)) +
                                  vertexOf(cylinder, 0, dryStart(cylinder, 0))) *
                                 0.5;
    Mat4 toPixels;
    combinedMatrix(toPixels);
    const Vec2 s = projected(toPixels, waterLineCenter);
    drawString(painter, QStringLiteral(" %1 ").arg(waterLevelText(cylinder.waterLevelPercent)),
               QPointF(s.x, s.y),
               percent >= labelBelowLinePercent ? labelBelowLineOffset : labelAboveLineOffset,
               color, textBackgroundBrush);
}

void MiniGL::renderCrossSectionDisc(QPainter &painter, const QColor &color,
                                    const Cylinder &cylinder)
{
    const ModelViewScope scope(*this);
    modelViewMatrix.translate(0, 0, -cylinder.lengthM * cylinder.crossSectDistancePercent);
    if (cylinder.frontCircle.size() < smallestDisc) {
        return;
    }
    Mat4 toPixels;
    combinedMatrix(toPixels);
    const Vec2 first = projected(toPixels, cylinder.frontCircle.front());
    QPainterPath disc;
    disc.reserve(static_cast<int>(cylinder.frontCircle.size()));
    disc.moveTo(first.x, first.y);
    for (std::size_t k = 1; k < cylinder.frontCircle.size(); ++k) {
        const Vec2 s = projected(toPixels, cylinder.frontCircle[k]);
        disc.lineTo(s.x, s.y);
    }
    painter.fillPath(disc, QBrush(withAlpha(color, discFillAlpha), Qt::SolidPattern));
    clearVectorRegisters();
    painter.strokePath(disc, solidPen(color, discOutlinePenPx));
}

} // namespace Drevon::Zalento
