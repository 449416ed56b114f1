#pragma once

#include "drevon/Export.h"

#include <QVector3D>

namespace Drevon::View3d {

/** The host's geometry helpers, in single precision. */
class DREVON_EXPORT Utils3d
{
public:
    /**
     * Where the whole line through @p origin along @p direction (any length but 0) meets the
     * plane through @p planePoint with the normal @p planeNormal (any length but 0). The meeting
     * point may lie on either side of @p origin.
     *
     * @param[out] out the meeting point; unchanged when there is none.
     * @return false for a line parallel to the plane, one that lies in it included.
     */
    static bool rayPlaneIntersection(const QVector3D &origin, const QVector3D &direction,
                                     QVector3D &out, const QVector3D &planePoint,
                                     const QVector3D &planeNormal);
};

} // namespace Drevon::View3d
