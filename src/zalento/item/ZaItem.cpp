#include "zalento/item/ZaItem.h"

#include "zalento/math/truncateToInt.h"
#include "zalento/pipes/ViewObject.h"
#include "zalento/pipes/gestureUnits.h"

#include <drevon/AppState.h>
#include <drevon/CLocaleSupport.h>

#include <QDir>
#include <QPainter>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace Drevon::Zalento {

namespace {

constexpr double mPerMM = 0.001;
constexpr double fractionPerPercent = 0.01;

constexpr double initialCameraHeightPercent = 50.0;
constexpr double initialFovYDEG = 37.5;

constexpr double smallestLateralDeg = 30.0;
constexpr double largestLateralDeg = 150.0;
constexpr double largestBendDeg = 90.0;

// A clock rotation of 0 turns the lateral this far about the pipe axis.
constexpr qint64 clockZeroDeg = 90;

const char *const nominalSizeField = "OBJ_Size1";
constexpr qint64 mmPerCatalogueMetre = 100;
constexpr double mmPerFoot = 304.8;
constexpr double mmPerInch = 25.4;

QPoint truncatedPoint(double x, double y)
{
    return {truncateToInt(x), truncateToInt(y)};
}

// Nominal size in mm of a catalogue value with its unit.
double nominalSizeMM(int size, const QString &unit)
{
    if (unit == QLatin1String("m")) {
        return static_cast<double>(mmPerCatalogueMetre * size);
    }
    if (unit == QLatin1String("ft")) {
        return truncateToInt(size * mmPerFoot);
    }
    if (unit == QLatin1String("inch")) {
        return truncateToInt(size * mmPerInch);
    }
    return size;
}

} // namespace

ZaItem::ZaItem(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setDiameter(sharedMainPipeDiameter());
    setCameraHeight(initialCameraHeightPercent);
    m_settings.pipeDiameterMM = 100;
    m_settings.fovYDEG = initialFovYDEG;
    m_settings.fovYHeightMM = 100.0;
    m_settings.fovYDistanceMM = 322.0;
    setFovDeg(initialFovYDEG);

    connect(&m_pipe, &Pipe::hitPointListSizeChanged, this, &ZaItem::onHitPointListSizeChanged);
    connect(&m_pipe, &Pipe::measure1Changed, this, &ZaItem::measure1Changed);
    connect(&m_pipe, &Pipe::measure2Changed, this, &ZaItem::measure2Changed);
    connect(AppState::instance(), &AppState::activeStructureChanged, this,
            &ZaItem::onInspectionChanged);
    const auto structure = AppState::instance()->getActiveStructure();
    if (structure) {
        onInspectionChanged(structure);
    }
}

ZaItem::~ZaItem() = default;

double &ZaItem::sharedMainPipeDiameter()
{
    static double diameterMM = 300.0;
    return diameterMM;
}

template <typename Operation>
void ZaItem::forAllObjects(Operation operation)
{
    operation(m_pipe);
    operation(m_lateral);
    operation(m_bend);
    operation(m_joint);
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
void ZaItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    geometryChanged(newGeometry, oldGeometry);
}
#endif

void ZaItem::geometryChanged(const QRectF &newGeometry, const QRectF &oldGeometry)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QQuickPaintedItem::geometryChanged(newGeometry, oldGeometry);
#else
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
#endif
    const double width = newGeometry.width();
    const double height = newGeometry.height();
    m_viewport = width > height ? QRectF((width - height) * 0.5, 0, height, height)
                                : QRectF(0, (height - width) * 0.5, width, width);
    forAllObjects([this](PipeBase &object) { object.camera.onResize(m_viewport); });
}

void ZaItem::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    const Vec3 requested(m_rearCircleOffset.x, m_rearCircleOffset.y, m_imageRotation.z);
    const QPoint offset = truncatedPoint(m_imageOffset.x, m_imageOffset.y);
    PipeBase &object = getCurrentViewObject();
    try {
        m_imageRotation =
            object.getNewImageRotationToKeepRearCircleInsideFrontCircle(offset, requested);
        object.render(*painter, ViewStyle(m_viewStyle), m_settings, m_imageRotation, offset);
    } catch (const std::range_error &) {
        // A camera that cannot be placed, because it stands where it looks, sees nothing.
    }
}

PipeBase &ZaItem::getCurrentViewObject()
{
    switch (ViewObject(m_viewObject)) {
    case ViewObject::Lateral:
        return m_lateral;
    case ViewObject::Bend:
        return m_bend;
    case ViewObject::Joint:
        return m_joint;
    default:
        return m_pipe;
    }
}

// Measurement kind

void ZaItem::setiWantToMeasure(QString kind)
{
    if (kind == m_iWantToMeasure) {
        return;
    }
    m_iWantToMeasure = std::move(kind);
    clearMeasurementPoints();
    setMeasureSettings(measureMentSettingsOf(m_iWantToMeasure));
    Q_EMIT iWantToMeasureChanged(m_iWantToMeasure);
}

void ZaItem::setMeasureSettings(MeasureMentSettings measureSettings)
{
    m_viewObject = measureSettings.viewObject;
    m_pipe.measureMode = MeasureMode(measureSettings.measureMode);
    m_measureType = measureSettings.measureType;
    update();
}

void ZaItem::setViewMode(int viewObject)
{
    m_viewObject = viewObject;
    update();
    Q_EMIT viewModeChanged(viewObject);
}

void ZaItem::setViewStyle(int viewStyle)
{
    m_viewStyle = viewStyle;
    update();
    Q_EMIT viewStyleChanged(viewStyle);
}

void ZaItem::setMeasureType(int measureType)
{
    m_measureType = measureType;
    update();
    Q_EMIT measureTypeChanged();
}

int ZaItem::measureUnit() const
{
    return static_cast<int>(m_settings.MeasureUnit);
}

void ZaItem::setMeasureUnit(int measureUnit)
{
    m_settings.MeasureUnit = MeasureUnit(measureUnit);
    update();
    Q_EMIT measureUnitChanged();
}

void ZaItem::setSettings(const ZASettings &settings)
{
    const ZASettings before = m_settings;
    m_settings = settings;
    for (QColor ZASettings::*colour :
         {&ZASettings::colMeasures, &ZASettings::colCylinder1, &ZASettings::colCylinder2}) {
        if (!(m_settings.*colour).isValid()) {
            m_settings.*colour = before.*colour;
        }
    }
    update();
    if (m_settings.MeasureUnit != before.MeasureUnit) {
        Q_EMIT measureUnitChanged();
    }
}

double ZaItem::measure1() const
{
    return ViewObject(m_viewObject) == ViewObject::StraightPipe ? m_pipe.measure1 : 0.0;
}

double ZaItem::measure2() const
{
    return ViewObject(m_viewObject) == ViewObject::StraightPipe ? m_pipe.measure2 : 0.0;
}

// Diameter

double ZaItem::diameter() const
{
    return m_pipe.diameterMM;
}

void ZaItem::setDiameter(double diameterMM)
{
    if (std::isnan(diameterMM)) {
        return;
    }
    sharedMainPipeDiameter() = diameterMM;
    forAllObjects([diameterMM](PipeBase &object) {
        object.diameterMM = diameterMM;
        object.setDiameterM(diameterMM * mPerMM);
    });
    update();
    Q_EMIT diameterChanged();
}

void ZaItem::refreshMainPipeDiameter()
{
    setDiameter(sharedMainPipeDiameter());
}

void ZaItem::onInspectionChanged(QSharedPointer<Drevon::Database::CDomainObject> obj)
{
    if (!obj) {
        return;
    }
    const QString field = QLatin1String(nominalSizeField);
    bool isNumber = false;
    const int size = obj->readValue(field).toInt(&isNumber);
    if (isNumber) {
        setDiameter(nominalSizeMM(size, Shared::CLocaleSupport::catalogTemplateColumnUnit(field)));
    }
}

// Camera and model

double ZaItem::cameraHeight() const
{
    return m_pipe.cameraHeight;
}

void ZaItem::setCameraHeight(double percent)
{
    if (std::isnan(percent)) {
        return;
    }
    if (m_pipe.rearCircleActive) {
        m_rearCircleOffset.y = percent - centredPercent;
    } else {
        const double fraction = std::clamp(percent * fractionPerPercent, 0.0, 1.0);
        forAllObjects([fraction](PipeBase &object) { object.cameraHeight = fraction; });
    }
    update();
    Q_EMIT cameraHeightChanged(percent);
}

bool ZaItem::rearCircleActive() const
{
    return m_pipe.rearCircleActive;
}

void ZaItem::setRearCircleActive(bool active)
{
    forAllObjects([active](PipeBase &object) { object.rearCircleActive = active; });
    update();
    Q_EMIT rearCircleActiveChanged(active);
}

double ZaItem::getFovDeg()
{
    return m_pipe.camera.fovYDEG;
}

void ZaItem::setFovDeg(double s)
{
    if (s == m_pipe.camera.fovYDEG || s == 0.0 || std::isnan(s)) {
        return;
    }
    forAllObjects([s](PipeBase &object) { object.camera.setFovYDEG(s); });
    update();
    Q_EMIT vertFovChanged(s);
}

bool ZaItem::viewDownstream() const
{
    return m_bend.getViewDownstream();
}

void ZaItem::setViewDownstream(bool viewDownstream)
{
    if (viewDownstream == m_bend.getViewDownstream()) {
        return;
    }
    m_bend.setViewDownstream(viewDownstream);
    Q_EMIT bendDownstreamChanged(viewDownstream);
    update();
}

double ZaItem::angle() const
{
    switch (ViewObject(m_viewObject)) {
    case ViewObject::Lateral:
        return m_lateral.getAngleDeg();
    case ViewObject::Bend:
        return m_bend.angleDeg;
    default:
        return 0.0;
    }
}

void ZaItem::setAngle(double angleDeg)
{
    if (std::isnan(angleDeg)) {
        return;
    }
    const double lateralDeg = std::clamp(angleDeg, smallestLateralDeg, largestLateralDeg);
    const double bendDeg = std::clamp(angleDeg, 0.0, largestBendDeg);
    m_lateral.setAngleDeg(lateralDeg);
    m_bend.setAngleDeg(bendDeg);
    m_joint.setAngleDeg(bendDeg);
    Q_EMIT angleChanged(lateralDeg);
    update();
}

void ZaItem::setClock(int clockDeg)
{
    const auto rotationDeg = static_cast<double>(clockDeg + clockZeroDeg);
    m_lateral.clockDeg = rotationDeg;
    m_bend.clockDeg = rotationDeg;
    m_joint.clockDeg = rotationDeg;
    update();
}

double ZaItem::percentage() const
{
    return m_pipe.cylinder.waterLevelPercent;
}

void ZaItem::setPercentage(double percent)
{
    if (std::isnan(percent)) {
        return;
    }
    const double fraction = percent * fractionPerPercent;
    if (m_pipe.measureMode == MeasureMode::CrossSection) {
        m_pipe.setCrossSectDistancePercent(fraction);
    } else {
        m_pipe.setWaterLevelPercent(fraction);
    }
    m_lateral.setLateralDiameterPercent(fraction);
    m_joint.setOffsetZ_Percent(fraction);
    Q_EMIT percentageChanged(percent);
    update();
}

// Gestures

void ZaItem::move(double x, double /*y*/)
{
    if (!std::isfinite(x)) {
        return;
    }
    (m_pipe.rearCircleActive ? m_rearCircleOffset : m_imageOffset).x = x;
    update();
}

void ZaItem::rotate(double r)
{
    if (!std::isfinite(r)) {
        return;
    }
    m_imageRotation.z = r;
    update();
}

void ZaItem::moveScaleRotate(double x, double y, double s, double r)
{
    const Vec2 offset(m_imageOffset.x + x, m_imageOffset.y + y);
    // The offset accumulates: a step that is not a number would stay in it for good.
    if (!std::isfinite(offset.x) || !std::isfinite(offset.y) || !std::isfinite(s) ||
        !std::isfinite(r)) {
        return;
    }
    m_imageOffset = offset;
    m_imageRotation.z = r;
    m_imageScale = s;
    update();
}

// Measurement points

void ZaItem::mouseClick(double x, double y)
{
    if (ViewObject(m_viewObject) != ViewObject::StraightPipe || !std::isfinite(x) ||
        !std::isfinite(y)) {
        return;
    }
    m_pipe.addMeasurePoint(calculatePos(x, y), m_imageScale, m_imageRotation);
    update();
}

QPoint ZaItem::calculatePos(double x, double y) const
{
    return truncatedPoint(x - m_viewport.x(), y - m_viewport.y());
}

void ZaItem::onHitPointListSizeChanged(int size)
{
    const bool isTwo = size == 2;
    if (isTwo != m_isTwoHitpointList) {
        m_isTwoHitpointList = isTwo;
        Q_EMIT isTwoHitpointListChanged(isTwo);
    }
}

void ZaItem::clearMeasurementPoints()
{
    m_pipe.hitPoints.clear();
    Q_EMIT m_pipe.hitPointListSizeChanged(0);
    update();
}

void ZaItem::undo()
{
    m_pipe.undoHitPointList();
    update();
}

void ZaItem::requestCameraCalibration(double mmPerPixel)
{
    if (!std::isfinite(mmPerPixel)) {
        return;
    }
    m_pipe.calibrateLaser(mmPerPixel);
    update();
}

QString ZaItem::xxx()
{
    return QStringLiteral("file:///") + QDir::currentPath() + QStringLiteral("/") +
           QStringLiteral("Connection.jpg");
}

} // namespace Drevon::Zalento
