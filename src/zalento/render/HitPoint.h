#pragma once

#include "zalento/Export.h"
#include "zalento/math/Vec2.h"
#include "zalento/math/Vec3.h"

#include <QColor>
#include <QPainter>

namespace Drevon::Zalento {

/** One measurement point. */
struct ZALENTO_EXPORT HitPoint
{
    /** Scene position in metres; in a crack-width measurement fractions of the viewport. */
    Vec3 position;
    /** Where the point was last drawn, in item pixels. */
    Vec2 screenPos;
    /** An anchor of the measuring line; other points are drawn in black. */
    bool isAnchor = true;
    /** Drawn, and found by searches for the nearest point. */
    bool isVisible = true;
    /** Drawn with an additional ring. */
    bool isHighlighted = false;

    // Implicit: a list of positions is a list of points.
    /** In metres, not highlighted. */
    HitPoint(const Vec3 &scenePosition)
        : position(scenePosition)
    {}

    /** Draws the marker at #screenPos; the painter's pen is restored. */
    void draw(QPainter &p, const QColor &color) const;
};

} // namespace Drevon::Zalento
