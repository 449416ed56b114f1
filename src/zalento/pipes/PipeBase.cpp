#include "zalento/pipes/PipeBase.h"

#include "zalento/math/angles.h"
#include "zalento/math/scaleValue.h"
#include "zalento/pipes/gestureUnits.h"
#include "zalento/render/ModelViewScope.h"

#include <cmath>

namespace Drevon::Zalento {

namespace {

// A drag over the whole control.
constexpr double dragRangeInDiameters = dragRange / unitsPerDiameter;

} // namespace

void PipeBase::setupMiniGL(double d, QPoint offset)
{
    const double t = std::tan(camera.fovYDEG * radiansPerDegree * 0.5);
    const auto sideways = static_cast<float>(
        scaleValue(offset.x(), -dragRange, dragRange, -dragRangeInDiameters, dragRangeInDiameters));
    camera.eye.x = -d * static_cast<double>(sideways);
    camera.eye.y = d * cameraHeight - d * 0.5;
    camera.eye.z = d * 0.5 / t * frontCircleMargin;
    camera.modelViewMatrix.lookAt(camera.eye, camera.center, camera.up);
}

void PipeBase::applyZRotation(Vec3 rotation)
{
    if (clockDeg == 0.0 && rotation.z == 0.0) {
        return;
    }
    camera.modelViewMatrix.rotate(clockDeg + rotation.z, 0, 0, 1);
}

Vec3 PipeBase::getNewImageRotationToKeepRearCircleInsideFrontCircle(QPoint offset, Vec3 rotation)
{
    const ModelViewScope scope(camera);
    setupMiniGL(getDiameterM(), offset);
    const Vec2 corrected =
        rotationCorrector.getNewRotationToKeepRearCircleInsideFrontCircle(rotation, getDiameterM());
    return {corrected.x, corrected.y, rotation.z};
}

void PipeBase::applyViewRotation(Vec3 rotation)
{
    camera.rotateByTouchRotationVector(Vec2(rotation.x, rotation.y));
    applyZRotation(rotation);
}

} // namespace Drevon::Zalento
