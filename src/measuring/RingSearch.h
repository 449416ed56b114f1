#pragma once

#include "measuring/AlignmentFit.h"
#include "measuring/PictureEdges.h"
#include "measuring/Result.h"

#include <QLineF>
#include <QPointF>
#include <QVector>

#include <vector>

namespace Drevon::Zalento::Measuring {

/** A cross-section's ring as the picture shows it, sampled, with its normals. */
class RingCurve
{
public:
    /** A point of the curve. */
    struct Point
    {
        QPointF place;  ///< in the picture, in pixels
        QPointF normal; ///< outwards, of length 1
    };

    /** @param depth behind the mouth, in diameters */
    RingCurve(const Alignment &alignment, double depth, const QSize &picture);

    /** Of the curve, in pixels. */
    const QPointF &middle() const { return m_middle; }
    /** In order around the curve. */
    const std::vector<Point> &points() const { return m_points; }

private:
    QPointF m_middle;
    std::vector<Point> m_points;
};

/**
 * The edge points near a ring that lie on one ring together.
 * @param widePX how far from the curve the picture is looked at to tell edges from noise
 * @param reachPX how far from the curve they may lie, no farther than that
 * @return a problem when too little of a ring is found, or another one is nearly as good
 */
Result<QVector<QPointF>> findRing(const RingCurve &curve, const PictureEdges &edges, double widePX,
                                  double reachPX);

} // namespace Drevon::Zalento::Measuring
