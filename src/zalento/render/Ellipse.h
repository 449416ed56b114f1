#pragma once

#include "zalento/Export.h"

#include <QPainter>
#include <QPen>

namespace Drevon::Zalento {

/** An ellipse in the picture with axes along x and y, in pixels. */
struct ZALENTO_EXPORT Ellipse
{
    double centerX = 0.0;
    double centerY = 0.0;
    double radiusX = 1.0;
    double radiusY = 1.0;
    double invRadiusXSq = 1.0; ///< 1 / radiusX², kept by set()
    double invRadiusYSq = 1.0; ///< 1 / radiusY², kept by set()

    /** Around the origin with both radii 1. */
    Ellipse() = default;
    Ellipse(double cx, double cy, double rx, double ry) { set(cx, cy, rx, ry); }

    void set(double cx, double cy, double rx, double ry);

    /** True inside and on the outline; false for NaN. */
    bool pointIsInside(double x, double y) const;

    /** Draws the outline; the painter's pen is restored. */
    void draw(QPainter &p, const QPen &pen) const;
};

} // namespace Drevon::Zalento
