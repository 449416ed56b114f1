#include "zalento/render/Ellipse.h"

#include "zalento/render/PainterPens.h"
#include "zalento/render/truncatedRect.h"

namespace Drevon::Zalento {

void Ellipse::set(double cx, double cy, double rx, double ry)
{
    centerX = cx;
    centerY = cy;
    radiusX = rx;
    radiusY = ry;
    invRadiusXSq = 1 / (rx * rx);
    invRadiusYSq = 1 / (ry * ry);
}

bool Ellipse::pointIsInside(double x, double y) const
{
    const double dx = x - centerX;
    const double dy = y - centerY;
    return dx * dx * invRadiusXSq + dy * dy * invRadiusYSq <= 1.0;
}

void Ellipse::draw(QPainter &p, const QPen &pen) const
{
    const PenScope scope(p);
    p.setPen(pen);
    p.drawEllipse(truncatedRect(centerX - radiusX, centerY - radiusY, 2 * radiusX, 2 * radiusY));
}

} // namespace Drevon::Zalento
