// Where a lateral meets the main pipe.
#include "zalento/geometry/Cylinder.h"

#include <cmath>
#include <limits>

namespace Drevon::Zalento {

namespace {

// The bracket on a ring shrinks to 1 % of the vertex spacing; compared with squared lengths.
constexpr double arcToleranceSq = 0.0001;

// The bracket on a straight line shrinks to 1e-6 m; in m².
constexpr double straightToleranceSq = 1e-12;

Vec3 normalized(Vec3 v)
{
    v.normalize();
    return v;
}

// Watches the bracket of a bisection: it has shrunk enough, or it shrinks no more.
class Bracket
{
public:
    explicit Bracket(double toleranceSq)
        : m_toleranceSq(toleranceSq)
    {}

    bool isDone(const Vec3 &inside, const Vec3 &outside)
    {
        const double lengthSq = (inside - outside).lengthSquared();
        const bool shrinks = std::isfinite(lengthSq) && lengthSq < m_lastLengthSq;
        m_lastLengthSq = lengthSq;
        return lengthSq < m_toleranceSq || !shrinks;
    }

private:
    double m_toleranceSq;
    double m_lastLengthSq = std::numeric_limits<double>::infinity();
};

} // namespace

void Cylinder::buildIntersectionLine(const Cylinder &other)
{
    if (verticesUpToDate) {
        return;
    }
    for (std::size_t ring = 1; ring < vertices.size(); ++ring) {
        cutHole(ring, other);
    }
    intersectionLine.clear();
    if (isFinite(other.axisStart) && isFinite(other.axisEnd) && !other.vertices.empty()) {
        const std::vector<Vec3> &innerRing = other.vertices.front();
        const std::vector<Vec3> &outerRing = other.vertices.back();
        const Cylinder guide = guideAlongAxis();
        intersectionLine.resize((innerRing.size() - 1) / 2);
        for (std::size_t i = 0; i < intersectionLine.size(); ++i) {
            intersectionLine[i] = outerRing[2 * i];
            findExactIntersection(innerRing[2 * i], intersectionLine[i], guide);
        }
    }
    verticesUpToDate = true;
}

// The hole surrounds vertex 0 and its duplicate at the end: what stays is the arc between the
// first and the last vertex outside the lateral.
void Cylinder::cutHole(std::size_t ring, const Cylinder &other)
{
    std::vector<Vec3> &points = vertices[ring];
    const auto count = static_cast<int>(points.size());
    const auto at = [&points](int j) -> Vec3 & { return points[static_cast<std::size_t>(j)]; };

    int first = 0;
    while (first < count && other.pointIsInside(at(first))) {
        ++first;
    }
    if (first < count) {
        waterLevelStart[ring] = first;
        if (first > 0 && first + 1 < count) {
            findExactIntersection(at(first - 1), at(first), at(first + 1), other);
        }
    }
    if (waterLevelEnd[ring] <= 0) {
        return;
    }
    int last = count - 1;
    while (last >= 0 && other.pointIsInside(at(last))) {
        --last;
    }
    if (last >= 0) {
        waterLevelEnd[ring] = last;
        if (last < count - 1 && last > 0) {
            findExactIntersection(at(last + 1), at(last), at(last - 1), other);
        }
    }
}

// The main pipe continued by its own length in front of the mouth.
Cylinder Cylinder::guideAlongAxis() const
{
    Cylinder guide(diameterM);
    guide.axisEnd = axisEnd;
    guide.axisStart = Vec3(axisEnd.x, axisEnd.y, -axisEnd.z);
    guide.setLengthM((guide.axisStart - guide.axisEnd).length());
    return guide;
}

void Cylinder::findExactIntersection(const Vec3 &inside, Vec3 &outside, const Vec3 &neighbour,
                                     const Cylinder &other) const
{
    const Vec3 center = outside + radiusM * normalized(0.5 * (inside + neighbour) - outside);
    Vec3 in = inside;
    Bracket bracket(arcToleranceSq * (inside - outside).lengthSquared());
    do {
        const Vec3 mid = center + radiusM * normalized(0.5 * (in + outside) - center);
        if (other.pointIsInside(mid)) {
            in = mid;
        } else {
            outside = mid;
        }
    } while (!bracket.isDone(in, outside));
}

void Cylinder::findExactIntersection(const Vec3 &inside, Vec3 &outside, const Cylinder &other) const
{
    Vec3 in = inside;
    Bracket bracket(straightToleranceSq);
    do {
        const Vec3 mid = 0.5 * (in + outside);
        if (other.pointIsInside(mid)) {
            in = mid;
        } else {
            outside = mid;
        }
    } while (!bracket.isDone(in, outside));
}

} // namespace Drevon::Zalento
