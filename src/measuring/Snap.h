#pragma once

#include "measuring/AlignmentFit.h"
#include "measuring/Export.h"
#include "measuring/Result.h"
#include "measuring/Session.h"

#include <QImage>
#include <QPointF>
#include <QVector>

namespace Drevon::Zalento::Measuring {

/** The edges of joints that were found in a picture. */
struct Snap
{
    QVector<QPointF> edgePoints; ///< of all joints, in pixels with their fractions
    double rmsPX = 0.0;          ///< of the points from the drawn rings
};

/**
 * Finds the edge of each joint of the session in its picture, or that of the mouth where none was
 * clicked, and fits the alignment to it: the strongest edges along the normals of the ring, below a
 * pixel, that lie on one ring together; arcs without an edge are left out. The edge has to lie
 * within an eighth of the ring's radius or so of where the session has it.
 *
 * On success the session's rings consist of points of the edges, and its alignment is the fit's.
 * A problem says why nothing convincing was found; the session stays as it was then. Nothing is
 * taken that another ring explains nearly as well.
 */
ZALENTO_MEASURING_EXPORT Result<Snap> snapToEdges(Session &session, const QImage &picture);

} // namespace Drevon::Zalento::Measuring
