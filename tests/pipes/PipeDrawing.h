#pragma once

#include "zalento/pipes/PipeBase.h"
#include "zalento/render/ModelViewScope.h"

#include <QPointF>

namespace Drevon::Zalento::Test {

/** Drawing area of the pipe tests, in item pixels: not at the origin, so that a forgotten offset
    shows. */
constexpr QRectF drawingArea{96, 0, 576, 576};

inline QPointF projected(const MiniGL &camera, const Vec3 &point)
{
    Mat4 toPixels;
    camera.combinedMatrix(toPixels);
    Vec2 pixel;
    toPixels.multiply(point, pixel);
    return {pixel.x, pixel.y};
}

/** Item pixel at which a point of the pipe frame is drawn. */
inline QPointF pixelOf(PipeBase &pipe, const Vec3 &point, const Vec3 &rotation = Vec3::Zero,
                       const QPoint &offset = {})
{
    pipe.setupMiniGL(pipe.getDiameterM(), offset);
    const ModelViewScope scope(pipe.camera);
    pipe.camera.rotateByTouchRotationVector(Vec2(rotation.x, rotation.y));
    pipe.applyZRotation(rotation);
    return projected(pipe.camera, point);
}

} // namespace Drevon::Zalento::Test
