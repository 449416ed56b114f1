// Editing of a cross-section contour.
#include "zalento/pipes/Pipe.h"

#include <cmath>
#include <limits>

namespace Drevon::Zalento {

namespace {

constexpr int anchorEvery = 90;
constexpr int visibleEvery = 15;

// Squared screen distances in pixels².
constexpr double wallReachPx2 = 15.0;
constexpr double pointReachPx2 = 10.0;

// A point must keep this far from an anchor on the screen.
const QPoint anchorMarginPx(2, 2);

constexpr int noIndex = -1;

HitPoint contourPoint(const Vec3 &position, bool isAnchor, bool isVisible)
{
    HitPoint point(position);
    point.isAnchor = isAnchor;
    point.isVisible = isVisible;
    return point;
}

// How much a stretch grows when its free end moves; a stretch without extent stays as it is.
double stretchFactor(double moved, double anchor, double from)
{
    return from == anchor ? 1.0 : (moved - anchor) / (from - anchor);
}

} // namespace

void Pipe::deformHitPointList()
{
    hitPoints.clear();
    cylinder.createVerticesInWorldCoord(MeasureMode::NoMeasure);
    const std::vector<Vec3> &mouth = cylinder.vertices.front();
    hitPoints.reserve(mouth.size());
    for (int i = 0; i + 1 < static_cast<int>(mouth.size()); ++i) {
        hitPoints.push_back(contourPoint(mouth[static_cast<std::size_t>(i)], i % anchorEvery == 0,
                                         i % visibleEvery == 0));
    }
    hitPoints.push_back(contourPoint(mouth.front(), true, false));
    setCrossSectDistancePercent(cylinder.crossSectDistancePercent);
    reportSize();
}

int Pipe::findNearestHitPoint(const QPoint &pos, Vec3 rotation)
{
    selectedIndex = noIndex;
    highlightPoint = Vec3::Zero;
    Vec3 p;
    if (!pickOnPlane(pos, rotation, p)) {
        return noIndex;
    }
    Vec3 outwards = p - Vec3(0, 0, p.z);
    if (outwards != Vec3::Zero) {
        outwards.normalize();
        const Vec3 wallPoint = Vec3(0, 0, p.z) + outwards * cylinder.radiusM;
        if (camera.getScreenDistance(wallPoint, p) < wallReachPx2) {
            highlightPoint = wallPoint;
        }
    }

    int nearest = noIndex;
    double best = std::numeric_limits<double>::max();
    for (int i = 0; isIndex(i); ++i) {
        HitPoint &point = pointAt(i);
        if (!point.isVisible) {
            continue;
        }
        point.isHighlighted = false;
        const double d = (p - point.position).lengthSquared();
        if (d < best) {
            best = d;
            nearest = i;
        }
    }
    if (nearest != noIndex &&
        camera.getScreenDistance(pointAt(nearest).position, p) < pointReachPx2) {
        selectedIndex = nearest;
    }
    return selectedIndex;
}

void Pipe::moveHitPoint(int index, const QPoint &pos, Vec3 rotation)
{
    if (!isIndex(index)) {
        return;
    }
    // The contour's first and last point are the same place.
    const int last = static_cast<int>(hitPoints.size()) - 1;
    const int twin = index == 0 ? last : index;
    Vec3 moved;
    Vec3 probe;
    if (!pickOnPlane(pos, rotation, moved) || !pickOnPlane(pos + anchorMarginPx, rotation, probe)) {
        return;
    }
    const Vec3 tolerance(std::abs(moved.x - probe.x), std::abs(moved.y - probe.y), 0);
    const int forward = nextAnchor(index);
    const int backward = previousAnchor(twin);
    if (!isModifyAllowed(forward, moved, tolerance) ||
        !isModifyAllowed(backward, moved, tolerance)) {
        return;
    }
    modifyHitPointCurve(index, forward, 1, moved);
    modifyHitPointCurve(twin, backward, -1, moved);
    pointAt(index).position = moved;
    pointAt(twin).position = moved;
}

bool Pipe::isModifyAllowed(int anchor, const Vec3 &position, const Vec3 &tolerance) const
{
    if (!isIndex(anchor)) {
        return false;
    }
    const Vec3 &fixed = pointAt(anchor).position;
    return std::abs(position.x - fixed.x) >= tolerance.x &&
           std::abs(position.y - fixed.y) >= tolerance.y;
}

void Pipe::modifyHitPointCurve(int from, int to, int step, const Vec3 &position)
{
    const bool stepLeadsThere = (step == 1 && from <= to) || (step == -1 && from >= to);
    if (!isIndex(from) || !isIndex(to) || !stepLeadsThere) {
        return;
    }
    const Vec3 anchor = pointAt(to).position;
    const Vec3 start = pointAt(from).position;
    const double kx = stretchFactor(position.x, anchor.x, start.x);
    const double ky = stretchFactor(position.y, anchor.y, start.y);
    for (int i = from + step; i != to && from != to; i += step) {
        Vec3 &between = pointAt(i).position;
        between.x = anchor.x + (between.x - anchor.x) * kx;
        between.y = anchor.y + (between.y - anchor.y) * ky;
    }
}

bool Pipe::isIndex(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < hitPoints.size();
}

HitPoint &Pipe::pointAt(int index)
{
    return hitPoints[static_cast<std::size_t>(index)];
}

const HitPoint &Pipe::pointAt(int index) const
{
    return hitPoints[static_cast<std::size_t>(index)];
}

// The first anchor behind a point, or -1.
int Pipe::nextAnchor(int index) const
{
    for (int i = index + 1; isIndex(i); ++i) {
        if (pointAt(i).isAnchor) {
            return i;
        }
    }
    return noIndex;
}

// The last anchor before a point, or -1.
int Pipe::previousAnchor(int index) const
{
    for (int i = index - 1; isIndex(i); --i) {
        if (pointAt(i).isAnchor) {
            return i;
        }
    }
    return noIndex;
}

} // namespace Drevon::Zalento
