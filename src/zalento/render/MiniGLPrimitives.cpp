// Points, lines, outlines and labels.
#include "zalento/math/squaredDistance.h"
#include "zalento/math/truncateToInt.h"
#include "zalento/render/MiniGL.h"
#include "zalento/render/PainterPens.h"
#include "zalento/render/clearVectorRegisters.h"
#include "zalento/render/truncatedRect.h"

#include <QFontMetrics>
#include <QLine>
#include <QLineF>
#include <QRect>
#include <QVarLengthArray>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

namespace {

constexpr double startMarkRadiusPx = 3;
constexpr double pointMarkRadiusPx = 1;
constexpr double curveMarkRadiusPx = 2;
constexpr int outsideAlpha = 90;
constexpr double axisLengthM = 0.1;
constexpr double axisMarkRadiusPx = 4;

// A bisection ends when its bracket is this short, in pixels².
constexpr double outlineToleranceSq = 1.0;

// Rings and curves of up to this many points are handed on without heap memory.
constexpr int stackPointCount = 512;

// A convex outline has at least three corners and the first one again.
constexpr std::size_t smallestOutline = 4;

// The points that a painter is handed as one line.
using Polyline = QVarLengthArray<QPointF, stackPointCount>;

QPointF toPointF(const Vec2 &v)
{
    return {v.x, v.y};
}

void drawThrough(QPainter &p, const Polyline &line)
{
    if (line.size() < 2) {
        return;
    }
    clearVectorRegisters();
    p.drawPolyline(line.constData(), static_cast<int>(line.size()));
}

QRectF circleBox(const Vec2 &center, double radiusPx)
{
    return {center.x - radiusPx, center.y - radiusPx, 2 * radiusPx, 2 * radiusPx};
}

QRect integerCircleBox(const Vec2 &center, double radiusPx)
{
    return truncatedRect(center.x - radiusPx, center.y - radiusPx, 2 * radiusPx, 2 * radiusPx);
}

QLine integerLine(const Vec2 &a, const Vec2 &b)
{
    return {truncateToInt(a.x), truncateToInt(a.y), truncateToInt(b.x), truncateToInt(b.y)};
}

// A segment of an outline in integer pixels, with a mark where it starts.
void drawOutlineSegment(QPainter &p, const Vec2 &a, const Vec2 &b, const Vec2 &mark,
                        bool markPoints)
{
    clearVectorRegisters();
    p.drawLine(integerLine(a, b));
    if (markPoints) {
        p.drawEllipse(integerCircleBox(mark, pointMarkRadiusPx));
    }
}

bool isSame(const Vec2 &a, const Vec2 &b)
{
    return a.x == b.x && a.y == b.y;
}

bool isFinite(const Vec2 &v)
{
    return std::isfinite(v.x) && std::isfinite(v.y);
}

} // namespace

void MiniGL::renderPoint(QPainter &p, const QColor &color, double lineWidth, const Vec3 &point,
                         double radius) const
{
    Mat4 toPixels;
    combinedMatrix(toPixels);
    Vec2 s;
    toPixels.multiply(point, s);
    p.setPen(solidPen(color, lineWidth));
    p.drawEllipse(integerCircleBox(s, radius));
}

void MiniGL::renderLines(QPainter &p, const QColor &color, double lineWidth,
                         const std::vector<Vec3> &points, bool markPoints) const
{
    Mat4 toPixels;
    combinedMatrix(toPixels);
    p.setPen(solidPen(color, lineWidth));
    Vec2 previous;
    for (std::size_t i = 0; i < points.size(); ++i) {
        Vec2 s;
        toPixels.multiply(points[i], s);
        if (i == 0) {
            p.drawEllipse(circleBox(s, startMarkRadiusPx));
        } else {
            drawLine(p, previous, s);
            if (markPoints) {
                p.drawEllipse(circleBox(previous, pointMarkRadiusPx));
            }
        }
        previous = s;
    }
}

void MiniGL::renderCurve(QPainter &p, const QColor &color, double lineWidth,
                         const std::vector<Vec3> &points, bool markPoints) const
{
    if (points.empty()) {
        return;
    }
    Mat4 toPixels;
    combinedMatrix(toPixels);
    Polyline outline(static_cast<int>(points.size()) + 1);
    std::transform(points.begin(), points.end(), outline.begin(), [&](const Vec3 &point) {
        Vec2 s;
        toPixels.multiply(point, s);
        return toPointF(s);
    });
    outline.back() = outline.front();

    p.setPen(solidPen(color, lineWidth));
    drawThrough(p, outline);
    if (markPoints) {
        p.setPen(QColor(Qt::red));
        for (const QPointF &s : outline) {
            p.drawEllipse(circleBox(Vec2(s.x(), s.y()), curveMarkRadiusPx));
        }
    }
}

void MiniGL::renderEllipse(QPainter &p, const QColor &color, double lineWidth,
                           const std::vector<Vec3> &points, bool markPoints, bool storeScreenPoints,
                           std::vector<Vec2> *screenPoints) const
{
    const bool records = screenPoints != nullptr && storeScreenPoints;
    const bool clips = screenPoints != nullptr && !storeScreenPoints;
    const QPen insidePen = solidPen(color, lineWidth);
    const QPen outsidePen = solidPen(withAlpha(color, outsideAlpha), lineWidth);
    if (records) {
        screenPoints->resize(points.size());
    }
    p.setPen(insidePen);

    Mat4 toPixels;
    combinedMatrix(toPixels);
    Vec2 previous;
    bool previousInside = false;
    for (std::size_t i = 0; i < points.size(); ++i) {
        Vec2 s;
        toPixels.multiply(points[i], s);
        if (records) {
            (*screenPoints)[i] = s;
        }
        const bool inside = clips && pointIsInsideConvex(s, *screenPoints);
        if (i == 0) {
            p.drawEllipse(integerCircleBox(s, startMarkRadiusPx));
        } else if (!clips || (previousInside && inside)) {
            drawOutlineSegment(p, previous, s, previous, markPoints);
        } else if (previousInside) {
            const Vec2 leaving = pointOnPolygon(previous, s, *screenPoints);
            drawOutlineSegment(p, previous, leaving, previous, markPoints);
        } else if (inside) {
            const Vec2 entering = pointOnPolygon(s, previous, *screenPoints);
            drawOutlineSegment(p, entering, s, entering, markPoints);
        } else {
            p.setPen(outsidePen);
            drawOutlineSegment(p, previous, s, previous, markPoints);
            p.setPen(insidePen);
        }
        previous = s;
        previousInside = inside;
    }
}

void MiniGL::render3DCoordinateAxis(QPainter &p) const
{
    struct Axis
    {
        QColor color;
        Vec3 tip;
    };
    const Axis axes[] = {{Qt::blue, {axisLengthM, 0, 0}},
                         {Qt::red, {0, axisLengthM, 0}},
                         {Qt::black, {0, 0, -axisLengthM}}};
    constexpr double penPx = 1;

    const PenScope scope(p);
    Mat4 toPixels;
    combinedMatrix(toPixels);
    Vec2 origin;
    toPixels.multiply(Vec3::Zero, origin);
    for (const Axis &axis : axes) {
        Vec2 tip;
        toPixels.multiply(axis.tip, tip);
        renderPoint(p, axis.color, penPx, axis.tip, axisMarkRadiusPx);
        drawLine(p, origin, tip);
    }
    renderPoint(p, Qt::blue, penPx, Vec3::Zero, axisMarkRadiusPx);
}

void MiniGL::drawLine(QPainter &p, const Vec2 &a, const Vec2 &b) const
{
    const QLineF line(a.x, a.y, b.x, b.y);
    p.drawLines(&line, 1);
}

void MiniGL::drawPolyLine(QPainter &p, const std::vector<Vec2> &points) const
{
    Polyline line(static_cast<int>(points.size()));
    std::transform(points.begin(), points.end(), line.begin(), toPointF);
    drawThrough(p, line);
}

void MiniGL::drawPolyLine(QPainter &p, const std::vector<HitPoint> &points) const
{
    Polyline line(static_cast<int>(points.size()));
    std::transform(points.begin(), points.end(), line.begin(),
                   [](const HitPoint &point) { return toPointF(point.screenPos); });
    drawThrough(p, line);
}

void MiniGL::drawString(QPainter &p, const QString &text, const QPointF &pos, double lineOffset,
                        const QColor &color, const QBrush &background) const
{
    const QRectF box(p.fontMetrics().boundingRect(text));
    const QPointF origin(pos.x() - box.width() * 0.5, pos.y() + lineOffset * box.height());
    p.fillRect(QRectF(box.left() + origin.x(), box.top() + origin.y(), box.width(), box.height()),
               background);
    const PenScope scope(p);
    p.setPen(QPen(color));
    p.drawText(origin, text);
}

bool MiniGL::pointIsInsideConvex(const Vec2 &point, const std::vector<Vec2> &polygon) const
{
    if (polygon.size() < smallestOutline) {
        return false;
    }
    for (std::size_t k = 0; k + 1 < polygon.size(); ++k) {
        const Vec2 &a = polygon[k];
        const Vec2 &b = polygon[k + 1];
        const double cr = (point.x - a.x) * (b.y - a.y) - (b.x - a.x) * (point.y - a.y);
        if (cr > 0) {
            return false;
        }
    }
    return true;
}

Vec2 MiniGL::pointOnPolygon(Vec2 inside, Vec2 outside, const std::vector<Vec2> &polygon) const
{
    while (squaredDistance(inside, outside) > outlineToleranceSq) {
        const Vec2 m((inside.x + outside.x) * 0.5, (inside.y + outside.y) * 0.5);
        // Points at infinity, or too large to be told from their midpoint, come no closer.
        if (!isFinite(m) || isSame(m, inside) || isSame(m, outside)) {
            break;
        }
        if (pointIsInsideConvex(m, polygon)) {
            inside = m;
        } else {
            outside = m;
        }
    }
    return inside;
}

} // namespace Drevon::Zalento
