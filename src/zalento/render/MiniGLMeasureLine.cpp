// The measuring line: where its points fall, and how they and their value are drawn.
#include "zalento/measure/measureLine.h"
#include "zalento/measure/valueTexts.h"
#include "zalento/render/MarkerPens.h"
#include "zalento/render/MiniGL.h"

#include <algorithm>
#include <limits>

namespace Drevon::Zalento {

namespace {

constexpr double areaLabelOffset = -1.0;
constexpr double shareLabelOffset = 0.0;
constexpr double lengthLabelOffset = -0.5;

// Projects all points and returns the centre of their bounding box.
QPointF projectPoints(const Mat4 &toPixels, std::vector<HitPoint> &points)
{
    constexpr double largest = std::numeric_limits<double>::max();
    Vec2 low(largest, largest);
    Vec2 high(-largest, -largest);
    for (HitPoint &point : points) {
        toPixels.multiply(point.position, point.screenPos);
        low.x = std::min(low.x, point.screenPos.x);
        low.y = std::min(low.y, point.screenPos.y);
        high.x = std::max(high.x, point.screenPos.x);
        high.y = std::max(high.y, point.screenPos.y);
    }
    return {(low.x + high.x) * 0.5, (low.y + high.y) * 0.5};
}

std::vector<Vec3> positionsOf(const std::vector<HitPoint> &points)
{
    std::vector<Vec3> positions;
    positions.reserve(points.size());
    for (const HitPoint &point : points) {
        positions.push_back(point.position);
    }
    return positions;
}

void drawMarkers(QPainter &painter, const QColor &color, const std::vector<HitPoint> &points)
{
    const PenScope scope(painter);
    const MarkerPens pens(color);
    for (const HitPoint &point : points) {
        drawMarker(painter, point, pens);
    }
}

} // namespace

void MiniGL::renderMeasureLine(QPainter &painter, const QColor &color, double lineWidth,
                               std::vector<HitPoint> &points, MeasureUnit unit, double pipeRadiusMM,
                               double laserScale, MeasureMode mode, ObservableType &observable,
                               double &measure1, double &measure2) const
{
    const QPointF labelPos = projectPoints(measurementProjection(mode), points);
    const LineMeasure measure =
        measureLine(positionsOf(points), mode, {pipeRadiusMM, viewport.width(), laserScale});
    QPen pen = solidPen(color, lineWidth);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::RoundJoin);
    painter.setPen(pen);
    drawLinePoints(painter, color, points, measure.observable);
    const auto label = [&](const QString &text, double offset) {
        drawString(painter, text, labelPos, offset, color, textBackgroundBrush);
    };

    observable = measure.observable;
    switch (observable) {
    case ObservableType::Length:
        measure1 = measure.value.number;
        label(lengthWithShareText(measure, unit), lengthLabelOffset);
        break;
    case ObservableType::Area:
        measure1 = measure.value.number;
        measure2 = measure.share.number;
        label(valueText(measure.value, unit), areaLabelOffset);
        label(valueText(measure.share, unit), shareLabelOffset);
        break;
    case ObservableType::FreeAreaPercent:
        measure1 = measure.share.number;
        label(valueText(measure.value, unit), areaLabelOffset);
        label(valueText(measure.share, unit), shareLabelOffset);
        break;
    default:
        break;
    }
}

// A polygon is marked at every point where its free section is measured, else nowhere; an open line
// at its ends.
void MiniGL::drawLinePoints(QPainter &painter, const QColor &color,
                            const std::vector<HitPoint> &points, ObservableType observed) const
{
    switch (observed) {
    case ObservableType::Area:
        drawPolyLine(painter, points);
        return;
    case ObservableType::FreeAreaPercent:
        drawPolyLine(painter, points);
        drawMarkers(painter, color, points);
        return;
    default:
        break;
    }
    points.front().draw(painter, color);
    if (points.size() > 1) {
        drawPolyLine(painter, points);
        points.back().draw(painter, color);
    }
}

// In a crack-width measurement positions are fractions of the viewport.
Mat4 MiniGL::measurementProjection(MeasureMode mode) const
{
    Mat4 toPixels;
    if (mode == MeasureMode::CrackWidth) {
        toPixels.translation(viewport.x(), viewport.y(), 0, false);
        toPixels.scale(viewport.width(), viewport.height(), 1);
    } else {
        combinedMatrix(toPixels);
    }
    return toPixels;
}

} // namespace Drevon::Zalento
