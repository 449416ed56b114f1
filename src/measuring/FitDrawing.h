#pragma once

#include "measuring/AlignmentFit.h"

#include "zalento/math/Mat4.h"
#include "zalento/math/Vec3.h"

namespace Drevon::Zalento::Measuring {

/**
 * The model as the overlay draws it for an alignment, by the overlay's own camera and pipe: whole
 * gesture units, single precision and the correction of the far end included.
 */
class FitDrawing
{
public:
    /** The pipe of this inner diameter, aligned so. */
    FitDrawing(const Alignment &alignment, double diameterMM, const QSize &picture);

    /** True when drawing turns the view because the far end would leave the mouth. */
    bool isCorrected() const { return m_isCorrected; }

    /** From the nearest point of the ring at @p depthMM to @p pixel, in pixels. */
    QPointF fromRing(const QPointF &pixel, double depthMM) const;

    /** From the nearest point of the wall's line at @p clockDEG to @p pixel, in pixels. */
    QPointF fromLine(const QPointF &pixel, double clockDEG) const;

private:
    QPointF projected(const Vec3 &p) const;
    Vec3 onWall(double angle, double depthM) const;

    Mat4 m_toPixels;
    double m_radiusM;
    bool m_isCorrected = false;
};

} // namespace Drevon::Zalento::Measuring
