#pragma once

#include "zalento/render/HitPoint.h"
#include "zalento/render/PainterPens.h"

namespace Drevon::Zalento {

/** The pens of measurement points in one color, for the drawing of many. */
struct MarkerPens
{
    static constexpr double widthPx = 2.0; ///< of all three

    /** For points of this colour. */
    explicit MarkerPens(const QColor &color)
        : highlight(color)
        , anchor(solidPen(color, widthPx))
        , other(solidPen(Qt::black, widthPx))
    {}

    QPen highlight; ///< of a highlighted point
    QPen anchor;    ///< of a contour's anchor
    QPen other;     ///< of every other point
};

/** HitPoint::draw() with pens at hand; one of them stays on the painter. */
void drawMarker(QPainter &p, const HitPoint &point, const MarkerPens &pens);

} // namespace Drevon::Zalento
