#include "zalento/pipes/PipeLateral.h"

#include "zalento/render/ModelViewScope.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

namespace {

constexpr double smallestShare = 0.01;
// A branch as thick as the main pipe has no placement; this one looks like it.
constexpr double largestShare = 0.999;
constexpr double fullShareFrom = 0.99;

constexpr double curvePenPx = 2.0;

} // namespace

void PipeLateral::setDiameterM(double d)
{
    mainCylinder.setDiameterM(d);
    lateralCylinder.setDiameterM(lateralDiameterPercent * d);
    invalidateGrids();
}

double PipeLateral::getLateralDiameterPercent() const
{
    return lateralDiameterPercent < fullShareFrom ? lateralDiameterPercent : 1.0;
}

void PipeLateral::setLateralDiameterPercent(double p)
{
    if (std::isnan(p)) {
        return;
    }
    lateralDiameterPercent = std::clamp(p, smallestShare, largestShare);
    lateralCylinder.setDiameterM(lateralDiameterPercent * mainCylinder.diameterM);
    invalidateGrids();
}

void PipeLateral::setAngleDeg(double a)
{
    lateralCylinder.angleDeg = a;
    measure1 = a;
    observable = ObservableType::BranchAngle;
    invalidateGrids();
}

void PipeLateral::render(QPainter &painter, ViewStyle viewStyle, const ZASettings &settings,
                         Vec3 rotation, QPoint offset)
{
    if (viewStyle == ViewStyle::MeasureOnly) {
        return;
    }
    mainCylinder.createVerticesInWorldCoord(lateralCylinder);
    lateralCylinder.createVerticesInWorldCoord(mainCylinder);
    mainCylinder.buildIntersectionLine(lateralCylinder);

    setupMiniGL(getDiameterM(), offset);
    const ModelViewScope scope(camera);
    applyViewRotation(rotation);
    const int lastRing = static_cast<int>(mainCylinder.vertices.size()) - 1;
    camera.renderCylinder(painter, settings.colCylinder1, settings.colMeasures, mainCylinder,
                          viewStyle == ViewStyle::Full ? 1 : lastRing);
    camera.renderCurve(painter, settings.colCylinder2, curvePenPx, mainCylinder.intersectionLine,
                       false);
}

void PipeLateral::invalidateGrids()
{
    mainCylinder.verticesUpToDate = false;
    lateralCylinder.verticesUpToDate = false;
}

} // namespace Drevon::Zalento
