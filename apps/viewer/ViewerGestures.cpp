// The controller's gestures: points, the model, calibration.
#include "ViewerController.h"

#include "ModelDrag.h"

#include "measuring/Kind.h"
#include "measuring/Replay.h"

#include <QLineF>

#include <algorithm>

namespace Drevon::Zalento {

using Measuring::Session;

namespace {

constexpr int laserSpotCount = 2;
constexpr double percentPerOne = 100.0;
constexpr double mmPerMetre = 1000.0;
// Length of the modelled pipe; beyond, one pixel is more than a diameter.
constexpr double modelledDiameters = 10.0;

} // namespace

void ViewerController::click(const QPointF &pixel)
{
    if (!isReady()) {
        return;
    }
    if (!QRectF(QPointF(), QSizeF(pictureSize())).contains(pixel)) {
        notice(Level::Warning, tr("That is beside the picture."));
        return;
    }
    const Measuring::MeasurementKind *kind = Measuring::findMeasurementKind(session()->kind);
    if (m_laserSpotsExpected > 0) {
        addLaserSpot(pixel);
    } else if (kind && kind->usesPoints) {
        setPointAt(pixel);
    } else if (session()->kind == QLatin1String("WaterLevel")) {
        setWaterLineAt(pixel);
    } else {
        notice(Level::Information, tr("No points here: drag the pipe, and set the angle."));
    }
}

void ViewerController::setPointAt(const QPointF &pixel)
{
    Session session = sessionCopy();
    if (Measuring::clickPoint(session, *m_item, pixel) == Measuring::ClickResult::Missed) {
        notice(Level::Warning, tr("The pipe's wall is not there: no point was set."));
        return;
    }
    change(tr("Set point"), session, false);
    selectPoint(points().size() - 1);
    const double depthMM = -session.points.last().position->z * mmPerMetre;
    if (depthMM > modelledDiameters * session.diameterMM) {
        notice(Level::Warning, tr("That point lies beyond the pipe's modelled end: a pixel there "
                                  "is metres of pipe. Backspace drops it."));
    }
}

// The water stands as high as the clicked place on the wall, which another kind picks.
void ViewerController::setWaterLineAt(const QPointF &pixel)
{
    Session picked = sessionCopy();
    picked.kind = QStringLiteral("PipeDimension");
    picked.points.clear();
    Measuring::applySession(picked, *m_item);
    const Measuring::ClickResult result = Measuring::clickPoint(picked, *m_item, pixel);
    Session session = sessionCopy();
    if (result != Measuring::ClickResult::Missed) {
        const double heightMM = picked.points.last().position->y * mmPerMetre;
        session.percentage =
            std::clamp((heightMM / session.diameterMM + 0.5) * percentPerOne, 0.0, percentPerOne);
    }
    change(tr("Water level"), session, false);
    if (result == Measuring::ClickResult::Missed) {
        notice(Level::Warning, tr("The pipe's wall is not there: the level stays."));
    }
}

int ViewerController::pointNear(const QPointF &pixel, double radius) const
{
    int nearest = -1;
    double smallest = radius;
    const QVariantList shown = points();
    for (int i = 0; i < shown.size(); ++i) {
        const double distance = QLineF(pixel, shown.at(i).toPointF()).length();
        if (distance <= smallest) {
            smallest = distance;
            nearest = i;
        }
    }
    return nearest;
}

bool ViewerController::beginDrag(const QPointF &pixel, double radius)
{
    if (!isReady()) {
        return false;
    }
    m_draggedPoint = pointNear(pixel, radius);
    if (m_draggedPoint < 0 && !hasModel()) {
        return false;
    }
    m_gestureStart = sessionCopy();
    m_dragStart = pixel;
    if (m_draggedPoint >= 0) {
        // The point keeps its distance from the pointer.
        m_dragAnchor = points().at(m_draggedPoint).toPointF();
        selectPoint(m_draggedPoint);
    }
    return true;
}

void ViewerController::dragTo(const QPointF &pixel)
{
    if (!m_gestureStart || !isReady()) {
        return;
    }
    const QPointF moved = pixel - m_dragStart;
    if (m_draggedPoint < 0) {
        preview(modelDragged(*m_gestureStart, moved, pictureSize()), true);
        return;
    }
    Session session = sessionCopy();
    if (Measuring::movePoint(session, *m_item, m_draggedPoint, m_dragAnchor + moved)) {
        preview(session, false);
    }
}

void ViewerController::endDrag()
{
    const bool wasPoint = m_draggedPoint >= 0;
    m_draggedPoint = -1;
    finishGesture(wasPoint ? tr("Move point") : tr("Move model"));
}

void ViewerController::cancel()
{
    if (m_gestureStart) {
        m_draggedPoint = -1;
        const Session start = *m_gestureStart;
        m_gestureStart.reset();
        show(start);
        return;
    }
    if (m_laserSpotsExpected > 0) {
        m_laserSpotsExpected = 0;
        m_laserSpots.clear();
    }
    m_notice.clear();
    selectPoint(-1);
}

void ViewerController::beginPinch()
{
    if (isReady()) {
        m_gestureStart = sessionCopy();
    }
}

void ViewerController::pinch(double turnDeg, double scale)
{
    if (!m_gestureStart || !isReady()) {
        return;
    }
    Session session = sessionCopy();
    if (hasModel()) {
        session.rollDEG = m_gestureStart->rollDEG - turnDeg; // a positive roll turns to the right
    }
    preview(session, session.rollDEG != sessionCopy().rollDEG);
    m_item->moveScaleRotate(0.0, 0.0, scale, session.rollDEG);
}

void ViewerController::endPinch()
{
    finishGesture(tr("Roll"));
}

bool ViewerController::nudge(double dx, double dy, bool isRepeated)
{
    const QVariantList shown = points();
    if (!isReady() || m_selectedPoint < 0 || m_selectedPoint >= shown.size()) {
        return false;
    }
    if (!isRepeated) {
        ++m_nudgeNumber;
    }
    Session session = sessionCopy();
    const QPointF pixel = session.points.at(m_selectedPoint).pixel + QPointF(dx, dy);
    if (Measuring::movePoint(session, *m_item, m_selectedPoint, pixel)) {
        change(tr("Nudge point"), session, false, m_nudgeNumber);
    } else {
        notice(Level::Warning, tr("The pipe's wall ends there."));
    }
    return true;
}

void ViewerController::startCalibration()
{
    if (!isReady()) {
        return;
    }
    chooseKind(QStringLiteral("CrackWidth"));
    m_laserSpots.clear();
    m_laserSpotsExpected = laserSpotCount;
    m_notice.clear();
    notifyChanged();
}

void ViewerController::addLaserSpot(const QPointF &pixel)
{
    m_laserSpots.append(pixel);
    --m_laserSpotsExpected;
    if (m_laserSpotsExpected > 0) {
        notifyChanged();
        return;
    }
    QString problem;
    const std::optional<double> scale = Measuring::laserScale(
        *session(), *m_item, m_laserSpots.at(0).toPointF(), m_laserSpots.at(1).toPointF(), problem);
    m_laserSpots.clear();
    if (!scale) {
        notice(Level::Error, tr("No scale: %1.").arg(problem));
        return;
    }
    Session session = sessionCopy();
    session.mmPerPixel = scale;
    change(tr("Calibrate"), session, false);
}

} // namespace Drevon::Zalento
