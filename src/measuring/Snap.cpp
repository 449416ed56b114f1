#include "measuring/Snap.h"

#include "measuring/Count.h"
#include "measuring/FitCamera.h"
#include "measuring/PictureEdges.h"
#include "measuring/PipeView.h"
#include "measuring/RingSearch.h"
#include "measuring/SessionFit.h"
#include "measuring/Text.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

// Of the ring's radius: how far its edge may lie off at first, and when the fit has been near.
constexpr double coarseReach = 0.16;
constexpr double fineReachPX = 5.0;
constexpr double anyReachPX = 1e6;
constexpr double smallestReachPX = 8.0;
constexpr int finePasses = 2;

// Points that stand for an edge in the session: enough for every arc, few enough to be read.
constexpr int keptPoints = 36;

constexpr int smallestRing = 3;

Problem refusal(const QString &why)
{
    return {QStringLiteral("snap"), why};
}

// The rings to look for: depths in diameters behind the mouth.
QVector<double> depthsOf(const Session &session, const std::optional<AlignmentFit> &fit)
{
    QVector<double> depths;
    for (int i = 0; fit && i < session.rings.size(); ++i) {
        const auto depthMM = fit->ringDepthsMM.value(i);
        if (depthMM && session.rings[i].points.size() >= smallestRing) {
            depths += *depthMM / session.diameterMM;
        }
    }
    return depths.isEmpty() ? QVector<double>{0.0} : depths;
}

// Rings with fewer clicks say nothing, and those that were found take the place of the others.
QVector<RingClicks> completeRings(const Session &session)
{
    QVector<RingClicks> rings;
    for (const RingClicks &ring : session.rings) {
        if (ring.points.size() >= smallestRing) {
            rings += ring;
        }
    }
    return rings.isEmpty() ? QVector<RingClicks>{RingClicks()} : rings;
}

QVector<QPointF> thinned(const QVector<QPointF> &points)
{
    QVector<QPointF> kept;
    const int count = std::min(keptPoints, countOf(points));
    for (int i = 0; i < count; ++i) {
        kept += points[i * points.size() / count];
    }
    return kept;
}

double meanRadius(const RingCurve &curve)
{
    double sum = 0.0;
    for (const RingCurve::Point &point : curve.points()) {
        sum += QLineF(curve.middle(), point.place).length();
    }
    return sum / static_cast<double>(curve.points().size());
}

// One pass over all rings; those found become the session's.
Result<QVector<QPointF>> pass(Session &session, const PictureEdges &edges, double reachPX)
{
    Session found = session;
    const std::optional<AlignmentFit> fit = fitOf(session);
    const QVector<double> depths = depthsOf(session, fit);
    found.rings = completeRings(session);
    QVector<QPointF> all;
    for (int i = 0; i < depths.size(); ++i) {
        const RingCurve curve(PipeView(session).drawnAlignment(), depths[i], session.picture.size);
        const double widePX = std::max(coarseReach * meanRadius(curve), smallestReachPX);
        const Result<QVector<QPointF>> ring =
            findRing(curve, edges, widePX, std::min(reachPX, widePX));
        if (!ring) {
            return ring.problem();
        }
        found.rings[i].points = thinned(*ring);
        all += *ring;
    }
    const Result<AlignmentFit> refit = fitSession(found);
    if (!refit) {
        return refit.problem();
    }
    session = found;
    return all;
}

} // namespace

Result<Snap> snapToEdges(Session &session, const QImage &picture)
{
    if (!infoOf(session.kind).has(Uses::Model)) {
        return refusal(Text::tr("the kind %1 lays no pipe over the picture")
                           .arg(infoOf(session.kind).nameText()));
    }
    const auto stored = PictureEdges::of(picture, PictureEdges::Of::StoredValues);
    const auto light = PictureEdges::of(picture, PictureEdges::Of::Light);
    if (!stored || !light) {
        return stored.problem();
    }
    Session snapped = session;
    if (hasAlignmentClicks(snapped)) {
        if (const auto fit = fitSession(snapped); !fit) {
            return fit.problem();
        }
    }
    Result<QVector<QPointF>> points = pass(snapped, **stored, anyReachPX);
    for (int i = 0; points && i < finePasses; ++i) {
        points = pass(snapped, **light, fineReachPX);
    }
    if (!points) {
        return points.problem();
    }
    const std::optional<AlignmentFit> fit = fitOf(snapped);
    session = snapped;
    return Snap{*points, fit ? fit->rmsPX : 0.0};
}

} // namespace Drevon::Zalento::Measuring
