#include "zalento/render/HitPoint.h"

#include "zalento/render/PainterPens.h"
#include "zalento/render/truncatedRect.h"

#include <QPen>

namespace Drevon::Zalento {

namespace {

constexpr int markerRadiusPx = 3;
constexpr int highlightRadiusPx = 10;
constexpr double markerPenPx = 2.0;

QRect squareAround(const Vec2 &center, int radiusPx)
{
    return truncatedRect(center.x - radiusPx, center.y - radiusPx, 2 * radiusPx, 2 * radiusPx);
}

} // namespace

void HitPoint::draw(QPainter &p, const QColor &color) const
{
    if (!isVisible) {
        return;
    }
    const PenScope scope(p);
    QPen pen(color);
    p.setPen(pen);
    if (isHighlighted) {
        p.drawEllipse(squareAround(screenPos, highlightRadiusPx));
    }
    if (!isAnchor) {
        pen.setColor(Qt::black);
    }
    pen.setWidthF(markerPenPx);
    p.setPen(pen);
    p.drawEllipse(squareAround(screenPos, markerRadiusPx));
}

} // namespace Drevon::Zalento
