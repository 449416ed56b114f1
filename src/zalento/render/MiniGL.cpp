// The camera proper; drawing stands in the other MiniGL*.cpp files.
#include "zalento/render/MiniGL.h"

namespace Drevon::Zalento {

namespace {

// Depth range of the projection in metres. Nothing reads depths.
constexpr double nearPlaneM = 0.1;
constexpr double farPlaneM = 10.0;

} // namespace

void MiniGL::onResize(const QRectF &rect)
{
    viewport = rect;
    if (viewport.height() == 0.0) {
        viewport.setHeight(1.0);
    }
    projectionMatrix.setPerspective(fovYDEG, viewport.width(), viewport.height(), nearPlaneM,
                                    farPlaneM);
    viewportMatrix.setViewPort(viewport);
}

void MiniGL::setFovYDEG(double fovY)
{
    fovYDEG = fovY;
    onResize(viewport);
}

void MiniGL::pushModelViewMatrix()
{
    modelViewStack.push(modelViewMatrix);
}

void MiniGL::popModelViewMatrix()
{
    modelViewMatrix = modelViewStack.top();
    modelViewStack.pop();
}

void MiniGL::combinedMatrix(Mat4 &out) const
{
    out = viewportMatrix;
    out.multiply(projectionMatrix);
    out.multiply(modelViewMatrix);
}

double MiniGL::getScreenDistance(const Vec3 &a, const Vec3 &b) const
{
    Mat4 toPixels;
    combinedMatrix(toPixels);
    Vec2 pa;
    Vec2 pb;
    toPixels.multiply(a, pa);
    toPixels.multiply(b, pb);
    return (pa.x - pb.x) * (pa.x - pb.x) + (pa.y - pb.y) * (pa.y - pb.y);
}

Vec2 MiniGL::calculate2DDirectionVectorOnScreenFromTwo3DPoints(Vec3 a, Vec3 b) const
{
    Mat4 toPixels;
    combinedMatrix(toPixels);
    Vec2 pa;
    Vec2 pb;
    toPixels.multiply(a, pa);
    toPixels.multiply(b, pb);
    Vec2 direction(pb.x - pa.x, pb.y - pa.y);
    if (!direction.isZeroLengthVector()) {
        direction.normalize();
    }
    return direction;
}

void MiniGL::rotateByTouchRotationVector(Vec2 v)
{
    modelViewMatrix.rotate(-(v.x * fovYDEG * 0.5), 0, 1, 0);
    modelViewMatrix.rotate(-(v.y * fovYDEG * 0.5), 1, 0, 0);
}

} // namespace Drevon::Zalento
