// Showing and changing the session; gestures stand in EditorGestures.cpp.
#include "MeasurementEditor.h"

#include "measuring/CalibrationFile.h"
#include "measuring/Editing.h"
#include "measuring/Measurands.h"
#include "measuring/PipeView.h"
#include "measuring/Repeats.h"
#include "measuring/Replay.h"
#include "measuring/SessionFit.h"
#include "measuring/UncertaintyText.h"

#include <drevon/AppState.h>

namespace Drevon::Zalento {

using Measuring::Session;
using Measuring::Uses;

namespace {

constexpr int scaleDigits = 4;

// How well the joints and lines fit, and what they leave as it was.
QString fitDescription(const Measuring::AlignmentFit &fit)
{
    using Field = Measuring::AlignmentField;
    QStringList left;
    if (fit.undetermined.contains(Field::RearCircleX) ||
        fit.undetermined.contains(Field::RearCircleY)) {
        left += MeasurementEditor::tr("the pipe's direction: click another joint, or lines");
    }
    if (fit.undetermined.contains(Field::Offset) ||
        fit.undetermined.contains(Field::MouthPercent)) {
        left += MeasurementEditor::tr("the mouth's place: click a joint");
    }
    if (fit.undetermined.contains(Field::FovYDEG)) {
        left += MeasurementEditor::tr("the field of view: give two joints their distance");
    }
    const QString text = MeasurementEditor::tr("Fitted: clicks lie %1 px off, at most %2 px.")
                             .arg(fit.rmsPX, 0, 'f', 1)
                             .arg(fit.largestPX, 0, 'f', 1);
    return left.isEmpty() ? text
                          : text + QLatin1Char(' ') +
                                MeasurementEditor::tr("Not determined: %1.")
                                    .arg(left.join(QLatin1String("; ")));
}

QString noteOn(const Session &session, const QVector<Measuring::Value> &values)
{
    const QVector<int> beyond = Measuring::pointsBeyondModel(session);
    if (!beyond.isEmpty()) {
        return MeasurementEditor::tr("Point %1 lies beyond the modelled pipe")
            .arg(beyond.first() + 1);
    }
    if (!values.isEmpty() && !values.first().uncertainty) {
        return MeasurementEditor::tr("Its uncertainty cannot be told");
    }
    const bool isPath = session.kind == Measuring::Kind::CrackWidth && session.points.size() > 2;
    return isPath ? MeasurementEditor::tr("Length of the path") : QString();
}

} // namespace

MeasurementEditor::MeasurementEditor(DocumentList &documents, Preferences &preferences,
                                     Guidance &guidance)
    : m_documents(documents)
    , m_preferences(preferences)
    , m_guidance(guidance)
{
    connect(&documents, &DocumentList::currentAboutToChange, this,
            &MeasurementEditor::leaveCurrent);
    connect(&preferences, &Preferences::displayChanged, this, &MeasurementEditor::showDisplay);
    connect(&documents, &DocumentList::currentChanged, this, &MeasurementEditor::showCurrent);
    refresh();
}

void MeasurementEditor::setItem(ZaItem *item)
{
    if (item == m_item) {
        return;
    }
    m_item = item;
    if (m_item) {
        m_item->setSettings(m_preferences.displaySettings());
    }
    // The item was connected before: it has the record's diameter already.
    connect(AppState::instance(), &AppState::activeStructureChanged, this,
            &MeasurementEditor::takeItemDiameter, Qt::UniqueConnection);
    Q_EMIT itemChanged();
    showCurrent();
}

const Session *MeasurementEditor::session() const
{
    const Document *document = m_documents.current();
    return document && document->session ? &*document->session : nullptr;
}

Session MeasurementEditor::sessionCopy() const
{
    return session() ? *session() : Session();
}

bool MeasurementEditor::usesDirection() const
{
    return infoOf(sessionCopy().kind).has(Uses::Direction);
}

bool MeasurementEditor::usesScale() const
{
    return infoOf(sessionCopy().kind).has(Uses::Scale);
}

bool MeasurementEditor::closesOutline() const
{
    return infoOf(sessionCopy().kind).mode == MeasureMode::CrossSection;
}

// Showing

void MeasurementEditor::leaveCurrent()
{
    if (m_gestureStart) {
        cancel();
    }
    selectPoint(-1);
    expectLaserSpots(0, {});
    m_selectedClick = -1;
}

void MeasurementEditor::showCurrent()
{
    goOnWithLastFeature();
    if (session()) {
        show(sessionCopy());
    } else {
        refresh();
    }
}

// The units are those of the session, which it keeps.
void MeasurementEditor::showDisplay()
{
    if (!m_item) {
        return;
    }
    m_item->setSettings(m_preferences.displaySettings());
    if (session()) {
        show(sessionCopy());
    }
}

void MeasurementEditor::show(Session session)
{
    fit(session);
    if (session.name != sessionCopy().name) {
        selectPoint(-1);
    }
    m_documents.current()->session = session;
    m_documents.showLens();
    if (isReady()) {
        Measuring::showSession(session, *m_item, m_documents.overlayScale());
    }
    assess(m_gestureStart ? Measuring::UncertaintyEffort::FirstOrder
                          : Measuring::UncertaintyEffort::Checked);
    refresh();
    Q_EMIT sessionChanged();
}

// While a gesture lasts the number has to follow it.
void MeasurementEditor::assess(Measuring::UncertaintyEffort effort)
{
    m_measurement = Measuring::measureWithUncertainty(*session(), m_fit, effort);
    Q_EMIT measurementChanged();
}

void MeasurementEditor::refresh()
{
    tell(shownNow());
    showPoints();
    showAlignmentClicks();
    showGuidance();
    m_documents.noteModified();
}

MeasurementEditor::Shown MeasurementEditor::shownNow() const
{
    Shown now;
    now.scaleText = tr("no scale yet");
    Document *document = m_documents.current();
    if (!session()) {
        return now;
    }
    const Session &s = *session();
    const auto &values = m_measurement.values;
    now.kind = infoOf(s.kind).nameText();
    now.hasModel = infoOf(s.kind).has(Uses::Model);
    const auto textAt = [&values](int i) {
        return i < values.size() ? Measuring::inTableUnit(values[i]).fullText() : QString();
    };
    now.value = textAt(0);
    now.secondValue = textAt(1);
    now.isSet = s.isSet;
    now.valueNote = noteOn(s, values);
    now.isImperial = s.unit != MeasureUnit::Metric;
    if (const auto scale = Measuring::scaleOf(s)) {
        now.hasScale = true;
        now.scaleText = tr("%1 mm per pixel").arg(QString::number(*scale, 'g', scaleDigits));
    }
    now.fitsFov = s.fitsFov;
    if (Measuring::hasAlignmentClicks(s)) {
        now.fitText = m_fit ? fitDescription(*m_fit) : m_fitProblem;
    }
    now.rearCircleActive = s.rearCircleActive;
    now.viewDownstream = s.viewDownstream;
    now.jointShown = s.jointShown;
    now.viewStyle = static_cast<int>(s.viewStyle);
    const QUndoStack &history = document->history();
    now.canUndo = history.canUndo();
    now.canRedo = history.canRedo();
    now.undoText = history.undoText();
    now.redoText = history.redoText();
    now.isModified = document->isModified();
    return now;
}

void MeasurementEditor::tell(const Shown &now)
{
    const Shown before = m_shown;
    m_shown = now;
    const auto tellOf = [&](auto member, auto signal) {
        if (before.*member != now.*member) {
            Q_EMIT(this->*signal)();
        }
    };
    tellOf(&Shown::kind, &MeasurementEditor::kindChanged);
    tellOf(&Shown::hasModel, &MeasurementEditor::hasModelChanged);
    tellOf(&Shown::value, &MeasurementEditor::valueChanged);
    tellOf(&Shown::secondValue, &MeasurementEditor::secondValueChanged);
    tellOf(&Shown::isSet, &MeasurementEditor::isSetChanged);
    tellOf(&Shown::valueNote, &MeasurementEditor::valueNoteChanged);
    tellOf(&Shown::isImperial, &MeasurementEditor::isImperialChanged);
    tellOf(&Shown::hasScale, &MeasurementEditor::hasScaleChanged);
    tellOf(&Shown::scaleText, &MeasurementEditor::scaleTextChanged);
    tellOf(&Shown::fitsFov, &MeasurementEditor::fitsFovChanged);
    tellOf(&Shown::fitText, &MeasurementEditor::fitTextChanged);
    tellOf(&Shown::rearCircleActive, &MeasurementEditor::rearCircleActiveChanged);
    tellOf(&Shown::viewDownstream, &MeasurementEditor::viewDownstreamChanged);
    tellOf(&Shown::jointShown, &MeasurementEditor::jointShownChanged);
    tellOf(&Shown::viewStyle, &MeasurementEditor::viewStyleChanged);
    tellOf(&Shown::canUndo, &MeasurementEditor::canUndoChanged);
    tellOf(&Shown::canRedo, &MeasurementEditor::canRedoChanged);
    tellOf(&Shown::undoText, &MeasurementEditor::undoTextChanged);
    tellOf(&Shown::redoText, &MeasurementEditor::redoTextChanged);
    tellOf(&Shown::isModified, &MeasurementEditor::isModifiedChanged);
}

// The last point of a closed outline is its first.
void MeasurementEditor::showPoints()
{
    QVector<QPointF> pixels;
    if (isReady() && infoOf(session()->kind).has(Uses::Points)) {
        const Measuring::PipeView view(*session());
        for (const Measuring::SessionPoint &point : session()->points) {
            pixels.append(view.project(point.position.value_or(Vec3())));
        }
        if (Measuring::isClosedOutline(*session())) {
            pixels.removeLast();
        }
    }
    m_points.setPoints(pixels);
    showClosingEdge();
    if (m_selectedPoint >= pixels.size()) {
        selectPoint(-1);
    }
}

void MeasurementEditor::showClosingEdge()
{
    QVariantList edge;
    if (isReady()) {
        for (const QPointF &pixel : Measuring::closingEdge(*session())) {
            edge += pixel;
        }
    }
    if (edge != m_closingEdge) {
        m_closingEdge = edge;
        Q_EMIT closingEdgeChanged();
    }
}

void MeasurementEditor::showGuidance()
{
    if (!isReady()) {
        m_guidance.setSituation(std::nullopt);
        return;
    }
    m_guidance.setSituation(
        Situation{*session(), m_measurement.state, Measuring::isClosedOutline(*session()),
                  !m_closingEdge.isEmpty(), m_laserSpotsExpected, m_isPanning, m_tool});
}

void MeasurementEditor::selectPoint(int index)
{
    const int selected = index >= 0 && index < m_points.count() ? index : -1;
    if (selected != m_selectedPoint) {
        m_selectedPoint = selected;
        Q_EMIT selectedPointChanged();
    }
}

void MeasurementEditor::setIsPanning(bool panning)
{
    m_guidance.clearNotice();
    if (panning != m_isPanning) {
        m_isPanning = panning;
        Q_EMIT isPanningChanged();
        showGuidance();
    }
}

// Changing

void MeasurementEditor::preview(Session next, Moves moves)
{
    if (!m_gestureStart) {
        m_gestureStart = sessionCopy();
    }
    if (moves == Moves::Model) {
        Measuring::pickPointsAnew(next);
    }
    m_guidance.clearNotice();
    show(next);
    tellHeldModel(next);
}

void MeasurementEditor::finishGesture(const QString &name, int mergeNumber)
{
    if (!m_gestureStart) {
        return;
    }
    const Session before = *m_gestureStart;
    m_gestureStart.reset();
    const Session after = sessionCopy();
    assess(Measuring::UncertaintyEffort::Checked);
    if (before != after) {
        const auto showAgain = [this](const Session &session) {
            m_guidance.clearNotice();
            show(session);
        };
        m_documents.current()->history().push(
            new SessionStep(name, before, after, mergeNumber, showAgain));
    }
    refresh();
}

void MeasurementEditor::change(const QString &name, const Session &session, Moves moves,
                               int mergeNumber)
{
    preview(session, moves);
    finishGesture(name, mergeNumber);
}

void MeasurementEditor::changeMeasurement(const QString &name, const Session &session)
{
    expectLaserSpots(0, {});
    change(name, session, Moves::Nothing);
}

// The host's active record has changed.
void MeasurementEditor::takeItemDiameter()
{
    if (isReady()) {
        Session session = sessionCopy();
        session.diameterMM = m_item->diameter();
        change(tr("Pipe record"), session, Moves::Model);
    }
}

// Steps

void MeasurementEditor::chooseKind(const QString &name)
{
    const auto kind = Measuring::kindNamed(name);
    if (!isReady() || !kind || session()->kind == *kind) {
        return;
    }
    Session session = sessionCopy();
    Measuring::changeKind(session, *kind);
    changeMeasurement(Measuring::translated(infoOf(*kind).title), session);
}

void MeasurementEditor::chooseKindAt(int row)
{
    const auto &kinds = Measuring::kinds();
    if (row >= 0 && row < static_cast<int>(kinds.size())) {
        chooseKind(kinds[static_cast<std::size_t>(row)].nameText());
    }
}

void MeasurementEditor::confirm()
{
    if (isReady()) {
        Session session = sessionCopy();
        session.isSet = true;
        change(tr("Confirm"), session, Moves::Nothing);
    }
}

void MeasurementEditor::toggleUnit()
{
    if (isReady()) {
        useUnits(!isImperial());
    }
}

void MeasurementEditor::useUnits(bool imperial)
{
    const MeasureUnit unit = imperial ? MeasureUnit::Imperial : MeasureUnit::Metric;
    m_preferences.setUnit(unit);
    Session session = sessionCopy();
    if (isReady() && session.unit != unit) {
        session.unit = unit;
        change(tr("Unit"), session, Moves::Nothing);
    }
}

void MeasurementEditor::measureAgain()
{
    Session session = sessionCopy();
    if (isReady() && Measuring::measureAgain(session)) {
        change(tr("Measure again"), session, Moves::Nothing);
    }
}

void MeasurementEditor::undo()
{
    if (m_gestureStart) {
        cancel();
    } else if (canUndo()) {
        m_documents.current()->history().undo();
        refresh();
    }
}

void MeasurementEditor::redo()
{
    if (!m_gestureStart && canRedo()) {
        m_documents.current()->history().redo();
        refresh();
    }
}

void MeasurementEditor::dropLastPoint()
{
    if (m_tool != Tool::Measure) {
        dropAlignmentClick();
    } else if (isReady() && !session()->points.isEmpty()) {
        Session session = sessionCopy();
        session.points.removeLast();
        change(tr("Drop last point"), session, Moves::Nothing);
    }
}

void MeasurementEditor::clearPoints()
{
    if (isReady() && !session()->points.isEmpty()) {
        Session session = sessionCopy();
        session.points.clear();
        change(tr("Clear"), session, Moves::Nothing);
    }
}

void MeasurementEditor::resetAlignment()
{
    if (!isReady()) {
        return;
    }
    const Session fresh = m_documents.newSession();
    Session session = sessionCopy();
    Measuring::setAlignment(session, Measuring::alignmentOf(fresh));
    session.rollDEG = fresh.rollDEG;
    session.rings.clear();
    session.lines.clear();
    change(tr("Reset alignment"), session, Moves::Model);
}

void MeasurementEditor::loadCalibration(const QString &path)
{
    const auto text = Measuring::loadCalibration(path);
    if (!text) {
        m_guidance.notice(Guidance::Error, text.problem().text());
        return;
    }
    if (!isReady()) {
        return;
    }
    chooseKind(infoOf(Measuring::Kind::CrackWidth).nameText());
    Session session = sessionCopy();
    session.calibrationText = *text;
    Measuring::setScale(session, std::nullopt);
    change(tr("Calibration file"), session, Moves::Nothing);
    if (!hasScale()) {
        m_guidance.notice(Guidance::Warning, tr("%1 gives no scale for a diameter of %2 mm.")
                                                 .arg(shortName(path))
                                                 .arg(session.diameterMM));
    }
}

// Choices

void MeasurementEditor::setRearCircleActive(bool active)
{
    if (isReady()) {
        Session session = sessionCopy();
        session.rearCircleActive = active;
        change(tr("Far end"), session, Moves::Nothing);
    }
}

void MeasurementEditor::setViewDownstream(bool downstream)
{
    if (isReady()) {
        Session session = sessionCopy();
        session.viewDownstream = downstream;
        change(tr("Viewing direction"), session, Moves::Nothing);
    }
}

void MeasurementEditor::setJointShown(bool shown)
{
    if (isReady()) {
        Session session = sessionCopy();
        session.jointShown = shown;
        change(tr("Bend or joint"), session, Moves::Nothing);
    }
}

void MeasurementEditor::setViewStyle(int style)
{
    if (isReady() && style >= static_cast<int>(ViewStyle::MeasureOnly) &&
        style <= static_cast<int>(ViewStyle::Full)) {
        Session session = sessionCopy();
        session.viewStyle = ViewStyle(style);
        change(tr("View style"), session, Moves::Nothing);
    }
}

} // namespace Drevon::Zalento
