// The editor's gestures: points, the model, calibration.
#include "MeasurementEditor.h"
#include "ModelDrag.h"

#include "measuring/Count.h"
#include "measuring/Editing.h"
#include "measuring/PipeView.h"

#include <zalento/geometry/Cylinder.h>

#include <QLineF>

#include <cmath>

namespace Drevon::Zalento {

using Measuring::Session;
using Measuring::Uses;

namespace {

bool isBeyondModel(const Session &session, const QPointF &pixel)
{
    const std::optional<Vec3> place = Measuring::PipeView(session).pickWall(pixel);
    return place && Measuring::depthInDiameters(session, *place) > Cylinder::lengthInDiameters;
}

} // namespace

void MeasurementEditor::click(const QPointF &pixel)
{
    clickWith(Measuring::clickPoint, pixel);
}

void MeasurementEditor::clickKeepingOpen(const QPointF &pixel)
{
    clickWith(Measuring::addPoint, pixel);
}

bool MeasurementEditor::closesAt(const QPointF &pixel) const
{
    return isReady() && m_laserSpotsExpected == 0 && m_tool == Tool::Measure &&
           Measuring::closesOutline(*session(), pixel);
}

void MeasurementEditor::clickWith(SetPoint setPoint, const QPointF &pixel)
{
    if (!isReady()) {
        return;
    }
    if (!QRectF(QPointF(), QSizeF(m_documents.pictureSize())).contains(pixel)) {
        m_guidance.notice(Guidance::Warning, tr("That is beside the picture."));
    } else if (m_laserSpotsExpected > 0) {
        addLaserSpot(pixel);
    } else if (m_tool != Tool::Measure) {
        addAlignmentClick(pixel);
    } else if (infoOf(session()->kind).has(Uses::Points)) {
        setPointWith(setPoint, pixel);
    } else if (session()->kind == Measuring::Kind::WaterLevel) {
        setWaterLineAt(pixel);
    } else {
        m_guidance.notice(Guidance::Information,
                          tr("No points here: drag the pipe, and set the angle."));
    }
}

void MeasurementEditor::setPointWith(SetPoint setPoint, const QPointF &pixel)
{
    Session session = sessionCopy();
    if (setPoint(session, pixel) == Measuring::ClickResult::Missed) {
        m_guidance.notice(Guidance::Warning, tr("The pipe's wall is not there: no point was set."));
        return;
    }
    change(tr("Set point"), session, Moves::Nothing);
    selectPoint(m_points.count() - 1);
    if (Measuring::pointsBeyondModel(session).contains(session.points.size() - 1)) {
        m_guidance.notice(Guidance::Warning,
                          tr("That point lies beyond the modelled pipe: the line of sight hardly "
                             "meets the wall there. Backspace drops it."));
    }
}

void MeasurementEditor::setWaterLineAt(const QPointF &pixel)
{
    Session session = sessionCopy();
    if (!Measuring::setWaterLevelAt(session, pixel)) {
        m_guidance.notice(Guidance::Warning, tr("The pipe's wall is not there: the level stays."));
        return;
    }
    change(tr("Water level"), session, Moves::Nothing);
    if (isBeyondModel(session, pixel)) {
        m_guidance.notice(
            Guidance::Warning,
            tr("That is beyond the modelled pipe, where the line of sight hardly meets "
               "the wall: click nearer."));
    }
}

bool MeasurementEditor::beginDrag(const QPointF &pixel, double radius)
{
    if (!isReady()) {
        return false;
    }
    m_dragStart = pixel;
    m_draggedClick = m_tool == Tool::Measure ? -1 : nearestAlignmentClick(pixel, radius);
    m_draggedPoint = m_tool == Tool::Measure ? m_points.nearest(pixel, radius) : -1;
    const bool isModel = m_draggedClick < 0 && m_draggedPoint < 0;
    if (isModel && !beginModelDrag(pixel, radius)) {
        return false;
    }
    m_gestureStart = sessionCopy();
    // What is dragged keeps its distance from the pointer.
    if (m_draggedClick >= 0) {
        m_selectedClick = m_draggedClick;
        m_dragAnchor = *alignmentClicksOf(*m_gestureStart).at(m_draggedClick);
    } else if (m_draggedPoint >= 0) {
        m_dragAnchor = m_points.at(m_draggedPoint);
        selectPoint(m_draggedPoint);
    }
    return true;
}

// A grip on the mouth's rim changes its size, any other its place.
bool MeasurementEditor::beginModelDrag(const QPointF &pixel, double radius)
{
    if (!hasModel() || m_isLocked || m_tool != Tool::Measure) {
        return false;
    }
    const MouthCircle mouth = mouthCircle(*session());
    const double distance = QLineF(mouth.centre, pixel).length();
    const bool isRim =
        !rearCircleActive() && distance > 0.0 && std::abs(distance - mouth.radius) <= radius;
    m_rimStart = isRim ? distance : 0.0;
    return true;
}

void MeasurementEditor::dragTo(const QPointF &pixel)
{
    if (!m_gestureStart || !isReady()) {
        return;
    }
    const QPointF moved = pixel - m_dragStart;
    if (m_draggedClick >= 0) {
        Session session = *m_gestureStart;
        *alignmentClicksOf(session).at(m_draggedClick) = m_dragAnchor + moved;
        preview(session, Moves::Nothing);
    } else if (m_draggedPoint >= 0) {
        Session session = sessionCopy();
        if (Measuring::movePoint(session, m_draggedPoint, m_dragAnchor + moved)) {
            preview(session, Moves::Nothing);
        }
    } else if (m_rimStart > 0.0) {
        const QPointF centre = mouthCircle(*m_gestureStart).centre;
        preview(mouthScaled(*m_gestureStart, QLineF(centre, pixel).length() / m_rimStart),
                Moves::Model);
    } else {
        preview(modelDragged(*m_gestureStart, moved), Moves::Model);
    }
}

void MeasurementEditor::endDrag()
{
    const QString name = m_draggedClick >= 0   ? tr("Move click")
                         : m_draggedPoint >= 0 ? tr("Move point")
                         : m_rimStart > 0.0    ? tr("Size of the mouth")
                                               : tr("Move model");
    m_draggedPoint = -1;
    m_draggedClick = -1;
    finishGesture(name);
}

void MeasurementEditor::cancel()
{
    m_guidance.clearNotice();
    if (m_gestureStart) {
        m_draggedClick = -1;
        m_draggedPoint = -1;
        const Session start = *m_gestureStart;
        m_gestureStart.reset();
        show(start);
        return;
    }
    expectLaserSpots(0, {});
    selectPoint(-1);
}

void MeasurementEditor::beginPinch()
{
    if (isReady()) {
        m_gestureStart = sessionCopy();
    }
}

void MeasurementEditor::pinch(double turnDeg)
{
    if (!m_gestureStart || !isReady() || !hasModel()) {
        return;
    }
    Session session = sessionCopy();
    session.rollDEG = m_gestureStart->rollDEG - turnDeg; // a positive roll turns to the right
    if (session.rollDEG != sessionCopy().rollDEG) {
        preview(session, Moves::Model);
    }
}

void MeasurementEditor::endPinch()
{
    finishGesture(tr("Roll"));
}

bool MeasurementEditor::nudge(double dx, double dy, bool isRepeated)
{
    if (!isReady()) {
        return false;
    }
    if (!isRepeated) {
        ++m_nudgeNumber;
    }
    if (m_tool != Tool::Measure) {
        return nudgeAlignmentClick(QPointF(dx, dy));
    }
    if (m_selectedPoint < 0) {
        return false;
    }
    Session session = sessionCopy();
    const QPointF pixel = session.points.at(m_selectedPoint).pixel + QPointF(dx, dy);
    if (Measuring::movePoint(session, m_selectedPoint, pixel)) {
        change(tr("Nudge point"), session, Moves::Nothing, m_nudgeNumber);
    } else {
        m_guidance.notice(Guidance::Warning, tr("The pipe's wall ends there."));
    }
    return true;
}

void MeasurementEditor::startCalibration()
{
    if (!isReady()) {
        return;
    }
    chooseKind(infoOf(Measuring::Kind::CrackWidth).nameText());
    m_guidance.clearNotice();
    expectLaserSpots(Measuring::laserSpotCount, {});
}

void MeasurementEditor::expectLaserSpots(int count, const QVariantList &spots)
{
    const bool wasCalibrating = isCalibrating();
    m_laserSpotsExpected = count;
    if (spots != m_laserSpots) {
        m_laserSpots = spots;
        Q_EMIT laserSpotsChanged();
    }
    if (isCalibrating() != wasCalibrating) {
        Q_EMIT isCalibratingChanged();
    }
    showGuidance();
}

void MeasurementEditor::addLaserSpot(const QPointF &pixel)
{
    const QVariantList spots = m_laserSpots + QVariantList{pixel};
    if (spots.size() < Measuring::laserSpotCount) {
        expectLaserSpots(Measuring::laserSpotCount - Measuring::countOf(spots), spots);
        return;
    }
    expectLaserSpots(0, {});
    Session session = sessionCopy();
    const auto problem =
        Measuring::takeLaserScale(session, spots.first().toPointF(), spots.last().toPointF());
    if (problem) {
        m_guidance.notice(Guidance::Error, tr("No scale: %1.").arg(problem->text()));
        return;
    }
    change(tr("Calibrate"), session, Moves::Nothing);
}

} // namespace Drevon::Zalento
