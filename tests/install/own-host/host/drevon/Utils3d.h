#pragma once

#include <QVector3D>

namespace Drevon::View3d {

/** A host without geometry of its own: nothing ever meets. */
struct Utils3d
{
    static bool rayPlaneIntersection(QVector3D const &, QVector3D const &, QVector3D &,
                                     QVector3D const &, QVector3D const &)
    {
        return false;
    }
};

} // namespace Drevon::View3d
