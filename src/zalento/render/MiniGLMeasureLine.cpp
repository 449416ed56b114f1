// The measuring line: where its points fall, what it measures, how that reads.
#include "zalento/math/angles.h"
#include "zalento/render/MarkerPens.h"
#include "zalento/render/MiniGL.h"
#include "zalento/settings/UnitConv.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Drevon::Zalento {

namespace {

constexpr double mmPerM = 1000;
constexpr double mm2PerM2 = 1000000;

constexpr double areaLabelOffset = -1.0;
constexpr double shareLabelOffset = 0.0;
constexpr double lengthLabelOffset = -0.5;

// A polygon needs two corners and the first one again.
constexpr std::size_t smallestPolygon = 3;

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

// Sum of the distances between neighbours, in 1/1000 of the positions' unit.
double lengthInMM(const std::vector<HitPoint> &points)
{
    double length = 0.0;
    for (std::size_t k = 1; k < points.size(); ++k) {
        length += (points[k].position - points[k - 1].position).length() * mmPerM;
    }
    return length;
}

// Area enclosed in the x/y plane by the shoelace formula, in mm² for positions in metres.
double areaInMM2(const std::vector<HitPoint> &points)
{
    double shoelace = 0.0;
    for (std::size_t k = 0; k + 1 < points.size(); ++k) {
        const Vec3 &a = points[k].position;
        const Vec3 &b = points[k + 1].position;
        shoelace += a.x * b.y - a.y * b.x;
    }
    return std::abs(shoelace * 0.5) * mm2PerM2;
}

bool isClosedPolygon(const std::vector<HitPoint> &points, MeasureMode mode)
{
    return (mode == MeasureMode::CrossSection || mode == MeasureMode::FreeCrossSection) &&
           points.front().position == points.back().position && points.size() >= smallestPolygon;
}

void drawMarkers(QPainter &painter, const QColor &color, const std::vector<HitPoint> &points)
{
    const PenScope scope(painter);
    const MarkerPens pens(color);
    for (const HitPoint &point : points) {
        drawMarker(painter, point, pens);
    }
}

QString fixedNumber(double value, int decimals)
{
    QString text;
    text.setNum(value, 'f', decimals);
    return text;
}

QString lengthText(double lengthMM, MeasureUnit unit, bool isDiameter, double pipeRadiusMM)
{
    QString text = UnitConv::lenStr(lengthMM, unit);
    if (isDiameter) {
        text += QStringLiteral(" (%1 %)").arg(fixedNumber(lengthMM * 100 / (2 * pipeRadiusMM), 1));
    }
    return text;
}

} // namespace

void MiniGL::renderMeasureLine(QPainter &painter, const QColor &color, double lineWidth,
                               std::vector<HitPoint> &points, MeasureUnit unit, double pipeRadiusMM,
                               double laserScale, MeasureMode mode, ObservableType &observable,
                               double &measure1, double &measure2) const
{
    const QPointF labelPos = projectPoints(measurementProjection(mode), points);
    observable = ObservableType::NothingObserved;
    QPen pen = solidPen(color, lineWidth);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::RoundJoin);
    painter.setPen(pen);

    if (isClosedPolygon(points, mode)) {
        const double area = areaInMM2(points);
        const double pipeArea = pi * (pipeRadiusMM * pipeRadiusMM);
        drawPolyLine(painter, points);
        double value = area;
        double share = area / pipeArea;
        if (mode == MeasureMode::CrossSection) {
            observable = ObservableType::Area;
            measure1 = value;
            measure2 = share;
        } else {
            drawMarkers(painter, color, points);
            value = pipeArea - area;
            share = value / pipeArea;
            observable = ObservableType::FreeAreaPercent;
            measure1 = share;
        }
        drawString(painter, UnitConv::areaStr(value, unit), labelPos, areaLabelOffset, color,
                   textBackgroundBrush);
        drawString(painter, QStringLiteral("%1 %").arg(fixedNumber(share * 100, 0)), labelPos,
                   shareLabelOffset, color, textBackgroundBrush);
        return;
    }

    points.front().draw(painter, color);
    if (points.size() == 1) {
        return;
    }
    drawPolyLine(painter, points);
    points.back().draw(painter, color);
    double length = lengthInMM(points);
    if (mode == MeasureMode::CrackWidth) {
        length *= viewport.width() * 0.001 * laserScale;
        if (length == 0.0) {
            return;
        }
    }
    measure1 = length;
    observable = ObservableType::Length;
    const bool isDiameter = mode == MeasureMode::CrossSection && points.size() == 2;
    drawString(painter, lengthText(length, unit, isDiameter, pipeRadiusMM), labelPos,
               lengthLabelOffset, color, textBackgroundBrush);
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
