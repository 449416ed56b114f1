#include "ViewerController.h"

#include "Guidance.h"

#include "measuring/Kind.h"
#include "measuring/Replay.h"

#include <drevon/AppState.h>

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

using Measuring::Session;

namespace {

const Pipe *straightPipe(ZaItem &item)
{
    return dynamic_cast<const Pipe *>(&item.getCurrentViewObject());
}

} // namespace

ViewerController::ViewerController(QObject *parent)
    : QObject(parent)
{}

ViewerController::~ViewerController() = default;

void ViewerController::setItem(ZaItem *item)
{
    m_item = item;
    // The item was connected before: it has the record's diameter already.
    connect(AppState::instance(), &AppState::activeStructureChanged, this,
            &ViewerController::takeItemDiameter, Qt::UniqueConnection);
    if (m_index >= 0) {
        showPicture(m_index);
    }
    notifyChanged();
}

// What is on view

Document *ViewerController::current() const
{
    return m_index < 0 ? nullptr : m_documents[static_cast<std::size_t>(m_index)].get();
}

bool ViewerController::isReady() const
{
    return m_item && m_picture && session();
}

const Session *ViewerController::session() const
{
    const Document *document = current();
    return document && document->session ? &*document->session : nullptr;
}

const Measuring::Measurement *ViewerController::measurement() const
{
    return session() ? &current()->measurement : nullptr;
}

Session ViewerController::sessionCopy() const
{
    return session() ? *session() : Session();
}

QString ViewerController::pictureSource() const
{
    return m_picture ? QStringLiteral("image://picture/%1").arg(m_pictureNumber) : QString();
}

QString ViewerController::pictureName() const
{
    return current() ? QFileInfo(current()->picturePath).fileName() : QString();
}

QString ViewerController::pictureProblem() const
{
    return current() ? current()->problem : QString();
}

QVariantList ViewerController::kinds() const
{
    QVariantList list;
    for (const Measuring::MeasurementKind &kind : Measuring::measurementKinds()) {
        list.append(QVariantMap{{QStringLiteral("name"), kind.name},
                                {QStringLiteral("title"), kind.title},
                                {QStringLiteral("description"), kind.description}});
    }
    return list;
}

QString ViewerController::kind() const
{
    return sessionCopy().kind;
}

QStringList ViewerController::kindFields() const
{
    return session() ? Zalento::kindFields(*session()) : QStringList();
}

QStringList ViewerController::alignmentFields() const
{
    return session() ? Zalento::alignmentFields(*session()) : QStringList();
}

bool ViewerController::hasModel() const
{
    return session() && Zalento::hasModel(session()->kind);
}

QString ViewerController::value() const
{
    const Measuring::Measurement *measured = measurement();
    return measured && !measured->values.isEmpty() ? measured->values.first().text : QString();
}

QString ViewerController::secondValue() const
{
    const Measuring::Measurement *measured = measurement();
    return measured && measured->values.size() > 1 ? measured->values.at(1).text : QString();
}

bool ViewerController::isImperial() const
{
    return sessionCopy().unit != MeasureUnit::Metric;
}

bool ViewerController::hasScale() const
{
    return isReady() && Measuring::hasScale(*m_item);
}

QString ViewerController::scaleText() const
{
    if (!hasScale()) {
        return tr("no scale yet");
    }
    constexpr int significantDigits = 4;
    return tr("%1 mm per pixel")
        .arg(QString::number(straightPipe(*m_item)->laserScale, 'g', significantDigits));
}

QString ViewerController::status() const
{
    if (!m_notice.isEmpty()) {
        return m_notice;
    }
    if (!isReady()) {
        return tr("Open a picture: press Open, or drop pictures onto this window.");
    }
    return guidance(
        {*session(), *measurement(), isClosedPolygon(), m_laserSpotsExpected, m_isPanning});
}

int ViewerController::statusLevel() const
{
    if (!m_notice.isEmpty()) {
        return static_cast<int>(m_noticeLevel);
    }
    const bool lacksScale = isReady() && measurement()->state == Measuring::MeasureState::NoScale;
    return static_cast<int>(lacksScale ? Level::Warning : Level::Information);
}

bool ViewerController::isClosedPolygon() const
{
    const Pipe *pipe = isReady() ? straightPipe(*m_item) : nullptr;
    return pipe && pipe->measureMode == MeasureMode::CrossSection && pipe->hitPoints.size() > 2 &&
           pipe->hitPoints.front().position == pipe->hitPoints.back().position;
}

// The last point of a closed polygon is its first.
QVariantList ViewerController::points() const
{
    QVariantList list;
    const Pipe *pipe = isReady() ? straightPipe(*m_item) : nullptr;
    if (!pipe || pipe->measureMode == MeasureMode::WaterLevel) {
        return list;
    }
    for (const HitPoint &point : pipe->hitPoints) {
        list.append(QPointF(point.screenPos.x, point.screenPos.y));
    }
    if (isClosedPolygon()) {
        list.removeLast();
    }
    return list;
}

void ViewerController::selectPoint(int index)
{
    const int count = points().size();
    m_selectedPoint = index >= 0 && index < count ? index : -1;
    notifyChanged();
}

void ViewerController::setIsPanning(bool panning)
{
    m_isPanning = panning;
    m_notice.clear();
    notifyChanged();
}

// Showing and changing

void ViewerController::show(const Session &session)
{
    Document *document = current();
    if (!document) {
        return;
    }
    document->session = session;
    m_notice.clear();
    if (m_item && m_picture) {
        const QVector<QPointF> missed = Measuring::applySession(*document->session, *m_item);
        if (!missed.isEmpty()) {
            m_noticeLevel = Level::Warning;
            m_notice = tr("%n point(s) of the session meet no wall and were left out.", nullptr,
                          missed.size());
        }
        document->measurement = Measuring::measure(*m_item);
    }
    if (m_selectedPoint >= points().size()) {
        m_selectedPoint = -1;
    }
    notifyChanged();
}

void ViewerController::notifyChanged()
{
    const QStringList shown = kindFields() + alignmentFields() + QStringList{kind()};
    if (shown != m_shownFields) {
        m_shownFields = shown;
        Q_EMIT fieldsChanged();
    }
    ++m_revision;
    Q_EMIT changed();
}

// Points mark places on the picture: when the model has moved they are looked up there again. One
// that the model does not meet there keeps its place on the model.
void ViewerController::pickPointsAnew()
{
    Session &shown = *current()->session;
    const QVector<Measuring::SessionPoint> clicked = shown.points;
    const int count = isClosedPolygon() ? clicked.size() - 1 : clicked.size();
    for (int i = 0; i < count; ++i) {
        Measuring::movePoint(shown, *m_item, i, clicked.at(i).pixel);
    }
    current()->measurement = Measuring::measure(*m_item);
}

void ViewerController::preview(const Session &session, bool movesModel)
{
    if (!m_gestureStart) {
        m_gestureStart = sessionCopy();
    }
    show(session);
    if (movesModel && isReady() && !session.points.isEmpty()) {
        pickPointsAnew();
        notifyChanged();
    }
}

void ViewerController::finishGesture(const QString &name, int mergeNumber)
{
    if (!m_gestureStart) {
        return;
    }
    const Session before = *m_gestureStart;
    m_gestureStart.reset();
    const Session after = sessionCopy();
    if (before == after) {
        notifyChanged();
        return;
    }
    current()->history().push(new SessionStep(name, before, after, mergeNumber,
                                              [this](const Session &session) { show(session); }));
    notifyChanged();
}

void ViewerController::change(const QString &name, const Session &session, bool movesModel,
                              int mergeNumber)
{
    preview(session, movesModel);
    finishGesture(name, mergeNumber);
}

void ViewerController::notice(Level level, const QString &text)
{
    m_noticeLevel = level;
    m_notice = text;
    notifyChanged();
}

// The host's active record has changed.
void ViewerController::takeItemDiameter()
{
    if (!isReady()) {
        return;
    }
    Session session = sessionCopy();
    session.diameterMM = m_item->diameter();
    change(tr("Pipe record"), session, true);
}

// Steps

void ViewerController::chooseKind(const QString &name)
{
    const Measuring::MeasurementKind *kind = Measuring::findMeasurementKind(name);
    if (!isReady() || !kind || session()->kind == name) {
        return;
    }
    m_laserSpotsExpected = 0;
    m_laserSpots.clear();
    m_selectedPoint = -1;
    Session session = sessionCopy();
    session.kind = name;
    session.points.clear();
    session.percentage = kind->initialPercentage;
    session.angleDEG = kind->initialAngleDEG;
    session.jointShown = false;
    change(kind->title, session, false);
}

void ViewerController::chooseKindNumber(int number)
{
    const auto &kinds = Measuring::measurementKinds();
    if (number >= 1 && number <= kinds.size()) {
        chooseKind(kinds.at(number - 1).name);
    }
}

void ViewerController::toggleUnit()
{
    if (!isReady()) {
        return;
    }
    Session session = sessionCopy();
    session.unit = isImperial() ? MeasureUnit::Metric : MeasureUnit::Imperial;
    ZASettings display = m_store.displaySettings();
    display.MeasureUnit = session.unit;
    m_store.setDisplaySettings(display);
    change(tr("Unit"), session, false);
    Q_EMIT fieldsChanged();
}

void ViewerController::undo()
{
    if (m_gestureStart) {
        cancel();
    } else if (canUndo()) {
        current()->history().undo();
        notifyChanged();
    }
}

void ViewerController::redo()
{
    if (!m_gestureStart && canRedo()) {
        current()->history().redo();
        notifyChanged();
    }
}

bool ViewerController::canUndo() const
{
    return current() && current()->history().canUndo();
}

bool ViewerController::canRedo() const
{
    return current() && current()->history().canRedo();
}

QString ViewerController::undoText() const
{
    return current() ? current()->history().undoText() : QString();
}

QString ViewerController::redoText() const
{
    return current() ? current()->history().redoText() : QString();
}

bool ViewerController::isModified() const
{
    return current() && current()->isModified();
}

int ViewerController::unsavedCount() const
{
    return static_cast<int>(std::count_if(m_documents.begin(), m_documents.end(),
                                          [](const auto &d) { return d->isModified(); }));
}

void ViewerController::dropLastPoint()
{
    if (!isReady() || session()->points.isEmpty()) {
        return;
    }
    Session session = sessionCopy();
    session.points.removeLast();
    change(tr("Drop last point"), session, false);
}

void ViewerController::clearPoints()
{
    if (!isReady() || session()->points.isEmpty()) {
        return;
    }
    Session session = sessionCopy();
    session.points.clear();
    change(tr("Clear"), session, false);
}

void ViewerController::resetAlignment()
{
    if (!isReady()) {
        return;
    }
    const Session fresh = newSession();
    Session session = sessionCopy();
    session.offset = fresh.offset;
    session.rollDEG = fresh.rollDEG;
    session.cameraHeightPercent = fresh.cameraHeightPercent;
    session.fovYDEG = fresh.fovYDEG;
    session.rearCircleX = fresh.rearCircleX;
    session.rearCircleY = fresh.rearCircleY;
    change(tr("Reset alignment"), session, true);
}

bool ViewerController::rearCircleActive() const
{
    return sessionCopy().rearCircleActive;
}

void ViewerController::setRearCircleActive(bool active)
{
    if (isReady()) {
        Session session = sessionCopy();
        session.rearCircleActive = active;
        change(tr("Far end"), session, false);
    }
}

bool ViewerController::viewDownstream() const
{
    return sessionCopy().viewDownstream;
}

void ViewerController::setViewDownstream(bool downstream)
{
    if (isReady()) {
        Session session = sessionCopy();
        session.viewDownstream = downstream;
        change(tr("Viewing direction"), session, false);
    }
}

bool ViewerController::jointShown() const
{
    return sessionCopy().jointShown;
}

void ViewerController::setJointShown(bool shown)
{
    if (isReady()) {
        Session session = sessionCopy();
        session.jointShown = shown;
        change(tr("Bend or joint"), session, false);
    }
}

int ViewerController::viewStyle() const
{
    return static_cast<int>(sessionCopy().viewStyle);
}

void ViewerController::setViewStyle(int style)
{
    if (isReady() && style >= static_cast<int>(ViewStyle::MeasureOnly) &&
        style <= static_cast<int>(ViewStyle::Full)) {
        Session session = sessionCopy();
        session.viewStyle = ViewStyle(style);
        change(tr("View style"), session, false);
    }
}

void ViewerController::setWindowSize(const QSize &size)
{
    if (size != windowSize()) {
        m_store.setWindowSize(size);
        Q_EMIT windowSizeChanged();
    }
}

} // namespace Drevon::Zalento
