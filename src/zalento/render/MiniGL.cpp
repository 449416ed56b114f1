// The camera proper; drawing stands in the other MiniGL*.cpp files.
#include "zalento/render/MiniGL.h"

#include "zalento/render/clearVectorRegisters.h"

namespace Drevon::Zalento {

namespace {

// Depth range of the projection in metres. Nothing reads depths.
constexpr double nearPlaneM = 0.1;
constexpr double farPlaneM = 10.0;

struct ScreenPair
{
    Vec2 a;
    Vec2 b;
};

ScreenPair projectedPair(const MiniGL &camera, const Vec3 &a, const Vec3 &b)
{
    Mat4 toPixels;
    camera.combinedMatrix(toPixels);
    ScreenPair pair;
    toPixels.multiply(a, pair.a);
    toPixels.multiply(b, pair.b);
    return pair;
}

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
    clearVectorRegisters();
    out = viewportMatrix;
    out.multiply(projectionMatrix);
    out.multiply(modelViewMatrix);
}

double MiniGL::getScreenDistance(const Vec3 &a, const Vec3 &b) const
{
    const ScreenPair pair = projectedPair(*this, a, b);
    const double dx = pair.a.x - pair.b.x;
    const double dy = pair.a.y - pair.b.y;
    return dx * dx + dy * dy;
}

Vec2 MiniGL::calculate2DDirectionVectorOnScreenFromTwo3DPoints(Vec3 a, Vec3 b) const
{
    const ScreenPair pair = projectedPair(*this, a, b);
    Vec2 direction(pair.b.x - pair.a.x, pair.b.y - pair.a.y);
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
