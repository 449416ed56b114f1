// Measurement points and painting; calibration and contour editing stand in files of their own.
#include "zalento/pipes/Pipe.h"

#include "zalento/render/ModelViewScope.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace Drevon::Zalento {

namespace {

const char *const defaultCalibration = "LASER;;;50";

// Snap distance in metres for a millimetre of the diameter: 12 % of it.
constexpr double snapMPerMM = 0.00012;

// From this many points on a click can close a polygon.
constexpr std::size_t closablePolygon = 3;

constexpr double measureLinePx = 2.0;
constexpr double highlightPenPx = 1.0;
constexpr double highlightRadiusPx = 10.0;
constexpr double mmPerM = 1000;

} // namespace

Pipe::Pipe()
{
    setCameraCrackIni(defaultCalibration);
    init();
}

void Pipe::init()
{
    cylinder.verticesUpToDate = false;
}

void Pipe::setDiameterM(double d)
{
    cylinder.setDiameterM(d);
    cylinder.verticesUpToDate = false;
    parseIniFile();
}

void Pipe::render(QPainter &painter, ViewStyle viewStyle, const ZASettings &settings, Vec3 rotation,
                  QPoint offset)
{
    cylinder.createVerticesInWorldCoord(measureMode);
    setupMiniGL(getDiameterM(), offset);
    const ModelViewScope scope(camera);
    applyViewRotation(rotation);
    if (measureMode != MeasureMode::CrackWidth) {
        renderCylinder(painter, viewStyle, settings);
    }
    if (measureMode == MeasureMode::WaterLevel) {
        observable = ObservableType::WaterLevelPercent;
        measure1 = cylinder.waterLevelPercent;
    } else if (!hitPoints.empty()) {
        renderMeasurement(painter, settings);
        Q_EMIT measure1Changed(measure1);
        Q_EMIT measure2Changed(measure2);
    }
}

void Pipe::renderCylinder(QPainter &painter, ViewStyle viewStyle, const ZASettings &settings)
{
    int ringStep = -1;
    if (viewStyle == ViewStyle::Full) {
        ringStep = 1;
    } else if (viewStyle == ViewStyle::Ends) {
        ringStep = static_cast<int>(cylinder.vertices.size()) - 1;
    }
    camera.renderCylinder(painter, settings.colCylinder1, settings.colMeasures, cylinder, ringStep,
                          measureMode, observable, settings.MeasureUnit);
}

void Pipe::renderMeasurement(QPainter &painter, const ZASettings &settings)
{
    if (measureMode == MeasureMode::CrossSection) {
        if (selectedIndex == 0 && !isClosed()) {
            hitPoints.front().isHighlighted = true;
        }
        if (highlightPoint != Vec3::Zero) {
            camera.renderPoint(painter, settings.colMeasures, highlightPenPx, highlightPoint,
                               highlightRadiusPx);
        }
    }
    camera.renderMeasureLine(painter, settings.colMeasures, measureLinePx, hitPoints,
                             settings.MeasureUnit, cylinder.radiusM * mmPerM, laserScale,
                             measureMode, observable, measure1, measure2);
}

void Pipe::addMeasurePoint(const QPoint &pos, double /*scale*/, Vec3 rotation)
{
    switch (measureMode) {
    case MeasureMode::CrossSection:
    case MeasureMode::FreeCrossSection:
        addCrossSectionPoint(pos, rotation);
        break;
    case MeasureMode::CrackWidth:
        addPicturePoint(pos);
        break;
    default:
        addWallPoint(pos, rotation);
        break;
    }
}

void Pipe::addCrossSectionPoint(const QPoint &pos, Vec3 rotation)
{
    Vec3 p;
    if (!pickOnPlane(pos, rotation, p)) {
        reportSize();
        return;
    }
    addPlanePoint(p);
}

void Pipe::addPlanePoint(const Vec3 &picked)
{
    const Vec3 p = snapToFirst(hitPoints, picked);
    if (hitPoints.size() >= closablePolygon) {
        if (isClosed()) {
            clearHitPoints();
            selectedIndex = -1;
        } else if (selectedIndex == 0) {
            hitPoints.push_back(hitPoints.front());
            reportSize();
            return;
        }
    }
    hitPoints.emplace_back(highlightPoint != Vec3::Zero ? highlightPoint : p);
    reportSize();
}

// Without a drawing area the pixel means no fraction of it: a miss.
void Pipe::addPicturePoint(const QPoint &pos)
{
    const Vec3 fraction(pos.x() / camera.viewport.width(), pos.y() / camera.viewport.height(), 0);
    if (std::isfinite(fraction.x) && std::isfinite(fraction.y)) {
        hitPoints.emplace_back(fraction);
    }
    reportSize();
}

void Pipe::addWallPoint(const QPoint &pos, Vec3 rotation)
{
    Vec3 p;
    if (pickOnWall(pos, rotation, p)) {
        hitPoints.emplace_back(p);
    }
    reportSize();
}

// A camera that cannot be placed, because it stands where it looks, sees nothing: a miss.
bool Pipe::pickOnPlane(const QPoint &pos, Vec3 rotation, Vec3 &hitPoint) const
{
    try {
        return cylinder.intersectPlaneRay(pos, camera, hitPoint, rotation);
    } catch (const std::range_error &) {
        return false;
    }
}

bool Pipe::pickOnWall(const QPoint &pos, Vec3 rotation, Vec3 &hitPoint) const
{
    try {
        return cylinder.intersectRay(pos, camera, hitPoint, rotation);
    } catch (const std::range_error &) {
        return false;
    }
}

Vec3 Pipe::snapToFirst(const std::vector<HitPoint> &list, const Vec3 &p) const
{
    if (hitPoints.size() < closablePolygon || list.empty()) {
        return p;
    }
    const Vec3 &first = list.front().position;
    return Vec3::approxEqual(first, p, closingReachM()) ? first : p;
}

double Pipe::closingReachM() const
{
    return diameterMM * snapMPerMM;
}

void Pipe::undoHitPointList()
{
    if (hitPoints.empty()) {
        return;
    }
    hitPoints.pop_back();
    reportSize();
}

void Pipe::setWaterLevelPercent(const double &p)
{
    cylinder.waterLevelPercent = p;
    cylinder.setWaterLevelStartAndEnd();
    if (p != 0.0) {
        clearHitPoints();
    }
}

void Pipe::setCrossSectDistancePercent(const double &p)
{
    if (std::isnan(p)) {
        return;
    }
    cylinder.crossSectDistancePercent = std::clamp(p, 0.0, 1.0);
    const double z = -(cylinder.lengthM * cylinder.crossSectDistancePercent);
    for (HitPoint &point : hitPoints) {
        point.position.z = z;
    }
}

void Pipe::clearHitPoints()
{
    hitPoints.clear();
    reportSize();
}

void Pipe::reportSize()
{
    Q_EMIT hitPointListSizeChanged(static_cast<int>(hitPoints.size()));
}

bool Pipe::isClosed() const
{
    return hitPoints.front().position == hitPoints.back().position;
}

} // namespace Drevon::Zalento
