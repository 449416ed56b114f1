// The editor's joints and lines, to which the model is fitted.
#include "MeasurementEditor.h"

#include "measuring/Count.h"
#include "measuring/SessionFit.h"
#include "measuring/SessionLens.h"
#include "measuring/Snap.h"

#include <QLocale>

#include <algorithm>
#include <numeric>

namespace Drevon::Zalento {

using Measuring::Session;

namespace {

bool hasWholeRing(const Session &session)
{
    return std::any_of(session.rings.begin(), session.rings.end(), [](const auto &ring) {
        return ring.points.size() >= Measuring::smallestRingClicks;
    });
}

// The clicks of the feature of this number; a new one where there is none.
template <typename Clicks>
QVector<QPointF> &featureToClick(QVector<Clicks> &features, int number)
{
    if (number >= features.size()) {
        features.append(Clicks());
        return features.last().points;
    }
    return features[number].points;
}

// Takes out the click of this number, and its feature when it was the only one there. Where there
// are fewer clicks, the number becomes the one among what follows.
template <typename Clicks>
bool takeOutClick(QVector<Clicks> &features, int &number)
{
    for (int i = 0; i < features.size(); ++i) {
        QVector<QPointF> &clicks = features[i].points;
        if (number < clicks.size()) {
            clicks.removeAt(number);
            if (clicks.isEmpty()) {
                features.removeAt(i);
            }
            return true;
        }
        number -= Measuring::countOf(clicks);
    }
    return false;
}

template <typename Clicks>
int clickCount(const QVector<Clicks> &features)
{
    return std::accumulate(features.begin(), features.end(), 0, [](int count, const auto &feature) {
        return count + feature.points.size();
    });
}

bool isSuspicious(const Measuring::AlignmentFit &fit, bool isLine, int feature, int point)
{
    return std::any_of(fit.suspicious.begin(), fit.suspicious.end(), [&](const auto &click) {
        return click.isLine == isLine && click.feature == feature && click.point == point;
    });
}

// What the scene draws for each click of the features of one sort.
template <typename Clicks>
void addMarks(QVariantList &marks, const QVector<Clicks> &features, bool isLine,
              const std::optional<Measuring::AlignmentFit> &fit, int selected)
{
    for (int i = 0; i < features.size(); ++i) {
        QVector<QPointF> residuals;
        if (fit) {
            residuals = (isLine ? fit->lineResiduals : fit->ringResiduals).value(i);
        }
        for (int k = 0; k < features[i].points.size(); ++k) {
            marks.append(QVariantMap{
                {QStringLiteral("pixel"), features[i].points[k]},
                {QStringLiteral("residual"), residuals.value(k)},
                {QStringLiteral("isSuspicious"), fit && isSuspicious(*fit, isLine, i, k)},
                {QStringLiteral("isSelected"), marks.size() == selected}});
        }
    }
}

} // namespace

void MeasurementEditor::setToolNumber(int tool)
{
    m_guidance.clearNotice();
    const Tool chosen = Tool(std::clamp(tool, 0, static_cast<int>(Tool::Line)));
    if (chosen == m_tool) {
        return;
    }
    m_tool = chosen;
    m_selectedClick = -1;
    goOnWithLastFeature();
    expectLaserSpots(0, {});
    selectPoint(-1);
    Q_EMIT toolChanged();
    refresh();
}

void MeasurementEditor::setIsLocked(bool locked)
{
    if (locked != m_isLocked) {
        m_isLocked = locked;
        Q_EMIT isLockedChanged();
    }
}

void MeasurementEditor::setFitsFov(bool fits)
{
    if (isReady()) {
        Session session = sessionCopy();
        session.fitsFov = fits;
        change(tr("Fit the field of view"), session, Moves::Nothing);
    }
}

// A fit that fails leaves the alignment; why is said as soon as there is something to fit.
void MeasurementEditor::fit(Session &session)
{
    m_fit.reset();
    m_fitProblem.clear();
    if (!Measuring::hasAlignmentClicks(session)) {
        return;
    }
    const auto fitted = Measuring::fitSession(session);
    if (fitted) {
        m_fit = *fitted;
    } else if (hasWholeRing(session)) {
        m_fitProblem = fitted.problem().text();
    }
}

// A hand that moves a model in vain is told why.
void MeasurementEditor::tellHeldModel(const Session &asked)
{
    const auto start = Measuring::alignmentOf(*m_gestureStart).numbers();
    const auto shown = Measuring::alignmentOf(*session()).numbers();
    if (Measuring::alignmentOf(asked).numbers() != start && shown == start) {
        m_guidance.notice(
            Guidance::Information,
            tr("The clicked joints and lines hold the model. Remove them to move it."));
    }
}

void MeasurementEditor::showAlignmentClicks()
{
    QVariantList marks;
    if (isReady()) {
        addMarks(marks, session()->rings, false, m_fit, m_selectedClick);
        addMarks(marks, session()->lines, true, m_fit, m_selectedClick);
        m_features.setFeatures(*session(), m_fit);
    } else {
        m_features.clear();
    }
    if (marks != m_alignmentMarks) {
        m_alignmentMarks = marks;
        Q_EMIT alignmentMarksChanged();
    }
}

void MeasurementEditor::addAlignmentClick(const QPointF &pixel)
{
    Session session = sessionCopy();
    const bool isJoint = m_tool == Tool::Joint;
    m_clickedFeature = std::min(m_clickedFeature, featureCount());
    QVector<QPointF> &clicks = isJoint ? featureToClick(session.rings, m_clickedFeature)
                                       : featureToClick(session.lines, m_clickedFeature);
    clicks.append(pixel);
    m_selectedClick = static_cast<int>(alignmentClicksOf(session).indexOf(&clicks.last()));
    change(isJoint ? tr("Click a joint") : tr("Click a line"), session, Moves::Nothing);
    if (!m_fitProblem.isEmpty()) {
        m_guidance.notice(Guidance::Warning, m_fitProblem);
    }
}

// The selected click, else the tool's last one.
void MeasurementEditor::dropAlignmentClick()
{
    if (!isReady() || featureCount() == 0) {
        return;
    }
    Session session = sessionCopy();
    const int ringClicks = clickCount(session.rings);
    const int last =
        (m_tool == Tool::Joint ? ringClicks : ringClicks + clickCount(session.lines)) - 1;
    int number = m_selectedClick < 0 ? last : m_selectedClick;
    if (takeOutClick(session.rings, number) || takeOutClick(session.lines, number)) {
        m_selectedClick = -1;
        change(tr("Drop click"), session, Moves::Nothing);
    }
}

bool MeasurementEditor::selectAlignmentClick(const QPointF &pixel, double radius)
{
    const bool isAligning = isReady() && m_tool != Tool::Measure && !isCalibrating();
    const int nearest = isAligning ? nearestAlignmentClick(pixel, radius) : -1;
    if (nearest >= 0) {
        m_selectedClick = nearest;
        showAlignmentClicks();
    }
    return nearest >= 0;
}

// In the order of the marks.
QVector<QPointF *> MeasurementEditor::alignmentClicksOf(Session &session)
{
    QVector<QPointF *> clicks;
    const auto add = [&clicks](auto &features) {
        for (auto &feature : features) {
            for (QPointF &point : feature.points) {
                clicks += &point;
            }
        }
    };
    add(session.rings);
    add(session.lines);
    return clicks;
}

int MeasurementEditor::nearestAlignmentClick(const QPointF &pixel, double radius) const
{
    Session session = sessionCopy();
    QVector<QPointF> places;
    for (const QPointF *click : alignmentClicksOf(session)) {
        places += *click;
    }
    PointModel clicks;
    clicks.setPoints(places);
    return clicks.nearest(pixel, radius);
}

bool MeasurementEditor::nudgeAlignmentClick(const QPointF &step)
{
    Session session = sessionCopy();
    const QVector<QPointF *> clicks = alignmentClicksOf(session);
    if (m_selectedClick < 0 || m_selectedClick >= clicks.size()) {
        return false;
    }
    *clicks.at(m_selectedClick) += step;
    change(tr("Nudge click"), session, Moves::Nothing, m_nudgeNumber);
    return true;
}

int MeasurementEditor::featureCount() const
{
    const Session shown = sessionCopy();
    return m_tool == Tool::Line ? Measuring::countOf(shown.lines) : Measuring::countOf(shown.rings);
}

void MeasurementEditor::goOnWithLastFeature()
{
    m_clickedFeature = std::max(0, featureCount() - 1);
}

void MeasurementEditor::beginFeature()
{
    m_clickedFeature = featureCount();
    m_guidance.notice(Guidance::Information, m_tool == Tool::Line
                                                 ? tr("Click along another line of the wall.")
                                                 : tr("Click on the edge of another joint."));
}

void MeasurementEditor::removeFeature(int row)
{
    if (!isReady() || row < 0 || row >= m_features.count()) {
        return;
    }
    Session session = sessionCopy();
    const int line = row - Measuring::countOf(session.rings);
    if (line < 0) {
        session.rings.removeAt(row);
    } else {
        session.lines.removeAt(line);
    }
    m_selectedClick = -1;
    change(tr("Remove from the alignment"), session, Moves::Nothing);
    goOnWithLastFeature();
}

QString MeasurementEditor::setFeatureDistance(int row, const QString &mm)
{
    if (!isReady() || row < 0 || row >= session()->rings.size()) {
        return {};
    }
    QString text = mm.trimmed();
    bool isNumber = true;
    const double distance =
        text.isEmpty()
            ? 0.0
            : QLocale::c().toDouble(text.replace(QLatin1Char(','), QLatin1Char('.')), &isNumber);
    if (!isNumber) {
        return tr("This is not a number.");
    }
    Session session = sessionCopy();
    session.rings[row].distanceMM = text.isEmpty() ? std::nullopt : std::optional<double>(distance);
    if (const auto problem = Measuring::checkSession(session)) {
        return problem->what;
    }
    change(tr("Distance of a joint"), session, Moves::Nothing);
    return {};
}

void MeasurementEditor::alignAsBefore()
{
    const int before = m_documents.currentIndex() - 1;
    if (!isReady() || before < 0 || !m_documents.at(before).session) {
        m_guidance.notice(Guidance::Warning, tr("There is no aligned picture before this one."));
        return;
    }
    const Session &other = *m_documents.at(before).session;
    Session session = sessionCopy();
    if (const auto problem = Measuring::takeLens(session, other.lens)) {
        m_guidance.notice(Guidance::Warning, problem->text());
        return;
    }
    Measuring::setAlignment(session, Measuring::alignmentOf(other));
    session.rings.clear();
    session.lines.clear();
    session.rollDEG = other.rollDEG;
    session.diameterMM = other.diameterMM;
    change(tr("Align as before"), session, Moves::Model);
}

void MeasurementEditor::snap()
{
    if (!isReady()) {
        return;
    }
    Session session = sessionCopy();
    const auto found = Measuring::snapToEdges(session, m_documents.picture());
    if (!found) {
        m_guidance.notice(Guidance::Warning,
                          tr("No edge was found: %1. The model stays.").arg(found.problem().what));
        return;
    }
    change(tr("Snap"), session, Moves::Model);
    m_guidance.notice(Guidance::Information, tr("The joint's edge was found at %n place(s).",
                                                nullptr, Measuring::countOf(found->edgePoints)));
}

} // namespace Drevon::Zalento
