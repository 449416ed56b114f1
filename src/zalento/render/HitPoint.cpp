#include "zalento/render/HitPoint.h"

#include "zalento/render/MarkerPens.h"
#include "zalento/render/truncatedRect.h"

namespace Drevon::Zalento {

namespace {

constexpr int markerRadiusPx = 3;
constexpr int highlightRadiusPx = 10;

QRect squareAround(const Vec2 &center, int radiusPx)
{
    return truncatedRect(center.x - radiusPx, center.y - radiusPx, 2 * radiusPx, 2 * radiusPx);
}

} // namespace

void HitPoint::draw(QPainter &p, const QColor &color) const
{
    const PenScope scope(p);
    drawMarker(p, *this, MarkerPens(color));
}

void drawMarker(QPainter &p, const HitPoint &point, const MarkerPens &pens)
{
    if (!point.isVisible) {
        return;
    }
    if (point.isHighlighted) {
        p.setPen(pens.highlight);
        p.drawEllipse(squareAround(point.screenPos, highlightRadiusPx));
    }
    p.setPen(point.isAnchor ? pens.anchor : pens.other);
    p.drawEllipse(squareAround(point.screenPos, markerRadiusPx));
}

} // namespace Drevon::Zalento
