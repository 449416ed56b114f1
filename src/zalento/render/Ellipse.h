#pragma once

#include "zalento/Export.h"

#include <QPainter>
#include <QPen>

namespace Drevon::Zalento {

/** An ellipse in the picture with axes along x and y, in pixels. */
struct ZALENTO_EXPORT Ellipse
{
    double centerX = 0.0;      ///< to the right
    double centerY = 0.0;      ///< downwards
    double radiusX = 1.0;      ///< along x
    double radiusY = 1.0;      ///< along y
    double invRadiusXSq = 1.0; ///< 1 / radiusX², kept by set()
    double invRadiusYSq = 1.0; ///< 1 / radiusY², kept by set()

    /** Around the origin with both radii 1. */
    Ellipse() = default;
    /** Around (cx, cy). */
    Ellipse(double cx, double cy, double rx, double ry) { set(cx, cy, rx, ry); }

    /** Replaces centre and radii. */
    void set(double cx, double cy, double rx, double ry);

    /** True inside and on the outline; false for NaN. */
    bool pointIsInside(double x, double y) const;

    /** Draws the outline; the painter's pen is restored. */
    void draw(QPainter &p, const QPen &pen) const;
};

} // namespace Drevon::Zalento
