#include "drevon/Utils3d.h"

namespace Drevon::View3d {

bool Utils3d::rayPlaneIntersection(const QVector3D &origin, const QVector3D &direction,
                                   QVector3D &out, const QVector3D &planePoint,
                                   const QVector3D &planeNormal)
{
    const float approach = QVector3D::dotProduct(direction, planeNormal);
    if (approach == 0.0F) {
        return false;
    }
    const float parameter = QVector3D::dotProduct(planePoint - origin, planeNormal) / approach;
    out = origin + direction * parameter;
    return true;
}

} // namespace Drevon::View3d
