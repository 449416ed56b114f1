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
#include <memory>
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

struct ZaItem::State
{
    template <typename Operation>
    void forAllObjects(Operation operation)
    {
        operation(pipe);
        operation(lateral);
        operation(bend);
        operation(joint);
    }

    ZASettings settings;
    QRectF viewport; ///< the drawing area, in item coordinates
    int viewObject = 0;
    int viewStyle = 2;
    int measureType = 0;
    QString iWantToMeasure;
    Pipe pipe;
    PipeLateral lateral;
    PipeBend bend;
    PipeJoint joint;
    bool useDistanceLasers = false;
    bool isTwoHitpointList = false;
    Vec3 imageRotation;    ///< x, y in touch units, refreshed on every paint; z the roll, degrees
    Vec2 imageOffset;      ///< of the model, in gesture units
    double imageScale = 1; ///< of the picture
    Vec2 rearCircleOffset; ///< of the rear circle, in gesture units
};

ZaItem::ZaItem(QQuickItem *parent)
    : QQuickPaintedItem(parent)
    , m_state(std::make_unique<State>())
{
    setDiameter(sharedMainPipeDiameter());
    setCameraHeight(initialCameraHeightPercent);
    m_state->settings.pipeDiameterMM = 100;
    m_state->settings.fovYDEG = initialFovYDEG;
    m_state->settings.fovYHeightMM = 100.0;
    m_state->settings.fovYDistanceMM = 322.0;
    setFovDeg(initialFovYDEG);

    connect(&m_state->pipe, &Pipe::hitPointListSizeChanged, this,
            &ZaItem::onHitPointListSizeChanged);
    connect(&m_state->pipe, &Pipe::measure1Changed, this, &ZaItem::measure1Changed);
    connect(&m_state->pipe, &Pipe::measure2Changed, this, &ZaItem::measure2Changed);
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

const ZASettings &ZaItem::settings() const
{
    return m_state->settings;
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
    m_state->viewport = width > height ? QRectF((width - height) * 0.5, 0, height, height)
                                       : QRectF(0, (height - width) * 0.5, width, width);
    m_state->forAllObjects([this](PipeBase &object) { object.camera.onResize(m_state->viewport); });
}

void ZaItem::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    const Vec3 requested(m_state->rearCircleOffset.x, m_state->rearCircleOffset.y,
                         m_state->imageRotation.z);
    const QPoint offset = truncatedPoint(m_state->imageOffset.x, m_state->imageOffset.y);
    PipeBase &object = getCurrentViewObject();
    try {
        m_state->imageRotation =
            object.getNewImageRotationToKeepRearCircleInsideFrontCircle(offset, requested);
        object.render(*painter, ViewStyle(m_state->viewStyle), m_state->settings,
                      m_state->imageRotation, offset);
    } catch (const std::range_error &) {
        // A camera that cannot be placed, because it stands where it looks, sees nothing.
    }
}

PipeBase &ZaItem::getCurrentViewObject()
{
    switch (ViewObject(m_state->viewObject)) {
    case ViewObject::Lateral:
        return m_state->lateral;
    case ViewObject::Bend:
        return m_state->bend;
    case ViewObject::Joint:
        return m_state->joint;
    default:
        return m_state->pipe;
    }
}

// Measurement kind

QString ZaItem::iWantToMeasure() const
{
    return m_state->iWantToMeasure;
}

void ZaItem::setiWantToMeasure(QString kind)
{
    if (kind == m_state->iWantToMeasure) {
        return;
    }
    m_state->iWantToMeasure = std::move(kind);
    clearMeasurementPoints();
    setMeasureSettings(measureMentSettingsOf(m_state->iWantToMeasure));
    Q_EMIT iWantToMeasureChanged(m_state->iWantToMeasure);
}

void ZaItem::setMeasureSettings(MeasureMentSettings measureSettings)
{
    m_state->viewObject = measureSettings.viewObject;
    m_state->pipe.measureMode = MeasureMode(measureSettings.measureMode);
    m_state->measureType = measureSettings.measureType;
    update();
}

int ZaItem::viewObject() const
{
    return m_state->viewObject;
}

void ZaItem::setViewMode(int viewObject)
{
    m_state->viewObject = viewObject;
    update();
    Q_EMIT viewModeChanged(viewObject);
}

int ZaItem::viewStyle() const
{
    return m_state->viewStyle;
}

void ZaItem::setViewStyle(int viewStyle)
{
    m_state->viewStyle = viewStyle;
    update();
    Q_EMIT viewStyleChanged(viewStyle);
}

int ZaItem::measureType() const
{
    return m_state->measureType;
}

void ZaItem::setMeasureType(int measureType)
{
    m_state->measureType = measureType;
    update();
    Q_EMIT measureTypeChanged();
}

int ZaItem::measureUnit() const
{
    return static_cast<int>(m_state->settings.MeasureUnit);
}

void ZaItem::setMeasureUnit(int measureUnit)
{
    m_state->settings.MeasureUnit = MeasureUnit(measureUnit);
    update();
    Q_EMIT measureUnitChanged();
}

void ZaItem::setSettings(const ZASettings &settings)
{
    const ZASettings before = m_state->settings;
    m_state->settings = settings;
    for (QColor ZASettings::*colour :
         {&ZASettings::colMeasures, &ZASettings::colCylinder1, &ZASettings::colCylinder2}) {
        if (!(m_state->settings.*colour).isValid()) {
            m_state->settings.*colour = before.*colour;
        }
    }
    update();
    if (m_state->settings.MeasureUnit != before.MeasureUnit) {
        Q_EMIT measureUnitChanged();
    }
}

double ZaItem::measure1() const
{
    return ViewObject(m_state->viewObject) == ViewObject::StraightPipe ? m_state->pipe.measure1
                                                                       : 0.0;
}

double ZaItem::measure2() const
{
    return ViewObject(m_state->viewObject) == ViewObject::StraightPipe ? m_state->pipe.measure2
                                                                       : 0.0;
}

// Diameter

double ZaItem::diameter() const
{
    return m_state->pipe.diameterMM;
}

void ZaItem::setDiameter(double diameterMM)
{
    if (std::isnan(diameterMM)) {
        return;
    }
    sharedMainPipeDiameter() = diameterMM;
    m_state->forAllObjects([diameterMM](PipeBase &object) {
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

double ZaItem::modelOffset() const
{
    return m_state->imageOffset.x;
}

double ZaItem::rollDEG() const
{
    return m_state->imageRotation.z;
}

Vec2 ZaItem::rearCircleOffset() const
{
    return m_state->rearCircleOffset;
}

double ZaItem::cameraHeight() const
{
    return m_state->pipe.cameraHeight;
}

void ZaItem::setCameraHeight(double percent)
{
    if (std::isnan(percent)) {
        return;
    }
    if (m_state->pipe.rearCircleActive) {
        m_state->rearCircleOffset.y = percent - centredPercent;
    } else {
        const double fraction = std::clamp(percent * fractionPerPercent, 0.0, 1.0);
        m_state->forAllObjects([fraction](PipeBase &object) { object.cameraHeight = fraction; });
    }
    update();
    Q_EMIT cameraHeightChanged(percent);
}

bool ZaItem::rearCircleActive() const
{
    return m_state->pipe.rearCircleActive;
}

void ZaItem::setRearCircleActive(bool active)
{
    m_state->forAllObjects([active](PipeBase &object) { object.rearCircleActive = active; });
    update();
    Q_EMIT rearCircleActiveChanged(active);
}

double ZaItem::getFovDeg()
{
    return m_state->pipe.camera.fovYDEG;
}

void ZaItem::setFovDeg(double s)
{
    if (s == m_state->pipe.camera.fovYDEG || s == 0.0 || std::isnan(s)) {
        return;
    }
    m_state->forAllObjects([s](PipeBase &object) { object.camera.setFovYDEG(s); });
    update();
    Q_EMIT vertFovChanged(s);
}

bool ZaItem::viewDownstream() const
{
    return m_state->bend.getViewDownstream();
}

void ZaItem::setViewDownstream(bool viewDownstream)
{
    if (viewDownstream == m_state->bend.getViewDownstream()) {
        return;
    }
    m_state->bend.setViewDownstream(viewDownstream);
    Q_EMIT bendDownstreamChanged(viewDownstream);
    update();
}

double ZaItem::angle() const
{
    switch (ViewObject(m_state->viewObject)) {
    case ViewObject::Lateral:
        return m_state->lateral.getAngleDeg();
    case ViewObject::Bend:
        return m_state->bend.angleDeg;
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
    m_state->lateral.setAngleDeg(lateralDeg);
    m_state->bend.setAngleDeg(bendDeg);
    m_state->joint.setAngleDeg(bendDeg);
    Q_EMIT angleChanged(lateralDeg);
    update();
}

void ZaItem::setClock(int clockDeg)
{
    const auto rotationDeg = static_cast<double>(clockDeg + clockZeroDeg);
    m_state->lateral.clockDeg = rotationDeg;
    m_state->bend.clockDeg = rotationDeg;
    m_state->joint.clockDeg = rotationDeg;
    update();
}

double ZaItem::percentage() const
{
    return m_state->pipe.cylinder.waterLevelPercent;
}

void ZaItem::setPercentage(double percent)
{
    if (std::isnan(percent)) {
        return;
    }
    const double fraction = percent * fractionPerPercent;
    if (m_state->pipe.measureMode == MeasureMode::CrossSection) {
        m_state->pipe.setCrossSectDistancePercent(fraction);
    } else {
        m_state->pipe.setWaterLevelPercent(fraction);
    }
    m_state->lateral.setLateralDiameterPercent(fraction);
    m_state->joint.setOffsetZ_Percent(fraction);
    Q_EMIT percentageChanged(percent);
    update();
}

// Gestures

void ZaItem::move(double x, double /*y*/)
{
    if (!std::isfinite(x)) {
        return;
    }
    (m_state->pipe.rearCircleActive ? m_state->rearCircleOffset : m_state->imageOffset).x = x;
    update();
}

void ZaItem::rotate(double r)
{
    if (!std::isfinite(r)) {
        return;
    }
    m_state->imageRotation.z = r;
    update();
}

void ZaItem::moveScaleRotate(double x, double y, double s, double r)
{
    const Vec2 offset(m_state->imageOffset.x + x, m_state->imageOffset.y + y);
    // The offset accumulates: a step that is not a number would stay in it for good.
    if (!std::isfinite(offset.x) || !std::isfinite(offset.y) || !std::isfinite(s) ||
        !std::isfinite(r)) {
        return;
    }
    m_state->imageOffset = offset;
    m_state->imageRotation.z = r;
    m_state->imageScale = s;
    update();
}

// Measurement points

void ZaItem::mouseClick(double x, double y)
{
    if (ViewObject(m_state->viewObject) != ViewObject::StraightPipe || !std::isfinite(x) ||
        !std::isfinite(y)) {
        return;
    }
    m_state->pipe.addMeasurePoint(calculatePos(x, y), m_state->imageScale, m_state->imageRotation);
    update();
}

QPoint ZaItem::calculatePos(double x, double y) const
{
    return truncatedPoint(x - m_state->viewport.x(), y - m_state->viewport.y());
}

bool ZaItem::isTwoHitpointList() const
{
    return m_state->isTwoHitpointList;
}

void ZaItem::onHitPointListSizeChanged(int size)
{
    const bool isTwo = size == 2;
    if (isTwo != m_state->isTwoHitpointList) {
        m_state->isTwoHitpointList = isTwo;
        Q_EMIT isTwoHitpointListChanged(isTwo);
    }
}

void ZaItem::clearMeasurementPoints()
{
    m_state->pipe.hitPoints.clear();
    Q_EMIT m_state->pipe.hitPointListSizeChanged(0);
    update();
}

void ZaItem::undo()
{
    m_state->pipe.undoHitPointList();
    update();
}

bool ZaItem::useDistanceLasers() const
{
    return m_state->useDistanceLasers;
}

void ZaItem::setUseDistanceLasers(bool use)
{
    m_state->useDistanceLasers = use;
}

void ZaItem::requestCameraCalibration(double mmPerPixel)
{
    if (!std::isfinite(mmPerPixel)) {
        return;
    }
    m_state->pipe.calibrateLaser(mmPerPixel);
    update();
}

QString ZaItem::xxx()
{
    return QStringLiteral("file:///") + QDir::currentPath() + QStringLiteral("/") +
           QStringLiteral("Connection.jpg");
}

} // namespace Drevon::Zalento
