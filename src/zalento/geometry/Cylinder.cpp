// Sizes, grid and water level.
#include "zalento/geometry/Cylinder.h"

#include "zalento/math/angles.h"
#include "zalento/math/truncateToInt.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

namespace {

// A lateral is drawn this much longer than it takes to leave the main pipe.
constexpr double lateralLengthFactor = 1.25;

// sin and cos of a ring's angles; they accumulate from the start angle by addition.
std::vector<Vec2> unitCircle(double startAngleRAD, double segmentRAD, int segments)
{
    std::vector<Vec2> circle;
    circle.reserve(static_cast<std::size_t>(segments) + 1);
    double a = startAngleRAD;
    for (int j = 0; j <= segments; ++j) {
        circle.emplace_back(std::sin(a), std::cos(a));
        a += segmentRAD;
    }
    return circle;
}

// Angle of an arc that is cut by a chord at the distance `depth` from the circle's top.
double capAngleRAD(double depth, double diameter)
{
    const double r = diameter / 2;
    const double x = r - depth;
    const double halfChord = std::sqrt(r * r - x * x);
    return 2 * std::asin(2 * halfChord / diameter);
}

} // namespace

Cylinder::Cylinder(double diameter)
{
    setDiameterM(diameter);
}

void Cylinder::setDiameterM(double d)
{
    diameterM = d;
    setLengthM(lengthInDiameters * d);
    radiusM = 0.5 * d;
    radiusSquared = radiusM * radiusM;
    ringSpacingM = d;
    const double intervals = lengthM / d;
    ringCount = std::isfinite(intervals) ? roundTo<int>(intervals) : 0;
    verticesUpToDate = false;
}

void Cylinder::setLengthM(double l)
{
    lengthM = l;
    lengthSquared = l * l;
}

void Cylinder::createVerticesInWorldCoord(MeasureMode mode)
{
    if (verticesUpToDate) {
        return;
    }
    // Any cylinder that is not thicker leaves this one in its own frame.
    const Cylinder thinner(radiusM);
    createVerticesInWorldCoord(thinner, -pi);
    verticesUpToDate = true;
    if (mode != MeasureMode::WaterLevel) {
        waterLevelPercent = 0.0;
    }
    setWaterLevelStartAndEnd();
    buildFrontCircle();
}

void Cylinder::createVerticesInWorldCoord(const Cylinder &other)
{
    if (verticesUpToDate) {
        return;
    }
    // Vertex 0 of the main pipe faces the lateral.
    createVerticesInWorldCoord(other, other.radiusM < radiusM ? halfPi : -halfPi);
}

void Cylinder::createVerticesInWorldCoord(const Cylinder &other, double startAngleRAD)
{
    Mat4 placement = placementBeside(other);
    buildRings(placement, startAngleRAD);
    axisStart = placement.multiply(Vec3::Zero);
    placement.translate(0, 0, -lengthM);
    axisEnd = placement.multiply(Vec3::Zero);
}

// The thinner of two pipes is placed so that its axis starts on the other's axis and runs along
// (sin A, 0, -cos A); it takes the length that this needs. The thicker one stays where it is.
Mat4 Cylinder::placementBeside(const Cylinder &other)
{
    Mat4 placement;
    if (radiusM < other.radiusM) {
        const double offset = lateralOffset(other);
        placement.translate(other.radiusM, 0, 0);
        placement.rotate(-angleDeg, 0, 1, 0);
        placement.translate(-radiusM, 0, offset);
    }
    return placement;
}

// Distance along the lateral's axis from the main pipe's axis to the wall on the farther side.
double Cylinder::lateralOffset(const Cylinder &other)
{
    if (angleDeg > 90) {
        const double b = (angleDeg - 90) * radiansPerDegree;
        const double offset = other.radiusM / std::cos(b) + std::tan(b) * radiusM;
        setLengthM(lateralLengthFactor * offset);
        return offset;
    }
    if (angleDeg == 90) {
        setLengthM(2 * other.radiusM);
        return other.radiusM;
    }
    const double a = angleDeg * radiansPerDegree;
    const double offset = other.radiusM / std::sin(a) - radiusM / std::tan(a);
    setLengthM(lateralLengthFactor *
               (offset + std::tan((90 - angleDeg) * radiansPerDegree) * diameterM));
    return offset;
}

void Cylinder::buildRings(const Mat4 &placement, double startAngleRAD)
{
    const auto rings = static_cast<std::size_t>(std::max(ringCount, -1) + 1);
    vertices.resize(rings);
    screenVertices.resize(rings);
    waterLevelStart.assign(rings, 0);
    waterLevelEnd.assign(rings, segmentCount);
    const std::vector<Vec2> circle = unitCircle(startAngleRAD, segmentAngleRAD(), segmentCount);
    double z = 0;
    for (std::size_t i = 0; i < rings; ++i) {
        vertices[i].resize(circle.size());
        screenVertices[i].resize(circle.size());
        for (std::size_t j = 0; j < circle.size(); ++j) {
            vertices[i][j] =
                placement.multiply(Vec3(radiusM * circle[j].x, radiusM * circle[j].y, z));
        }
        z -= ringSpacingM;
    }
}

void Cylinder::buildFrontCircle()
{
    const std::vector<Vec2> circle = unitCircle(-pi, segmentAngleRAD(), segmentCount);
    frontCircle.resize(circle.size());
    for (std::size_t k = 0; k < circle.size(); ++k) {
        frontCircle[k] = Vec3(radiusM * circle[k].x, radiusM * circle[k].y, 0);
    }
}

double Cylinder::segmentAngleRAD() const
{
    return twoPi / segmentCount;
}

double Cylinder::circleSegmentAngleRAD(double fillFraction, double diameter) const
{
    if (fillFraction < 0) {
        return 0;
    }
    if (fillFraction > 1) {
        return twoPi;
    }
    if (fillFraction <= 0.5) {
        return capAngleRAD(diameter * fillFraction, diameter);
    }
    return twoPi - capAngleRAD(diameter * (1 - fillFraction), diameter);
}

void Cylinder::setWaterLevelStartAndEnd()
{
    if (!verticesUpToDate) {
        return;
    }
    const double wetAngle = circleSegmentAngleRAD(waterLevelPercent, diameterM);
    // A wet angle that is not a number counts as no water; that of a negative diameter is negative,
    // or more than a full turn.
    const int wetSegments =
        std::clamp(roundTo<int>(0.5 * wetAngle / segmentAngleRAD()), 0, segmentCount);
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        waterLevelStart[i] = wetSegments;
        waterLevelEnd[i] = segmentCount - wetSegments;
    }
}

bool Cylinder::pointIsInside(const Vec3 &p) const
{
    const Vec3 v = p - axisStart;
    const double t = (axisEnd - axisStart).dot(v);
    if (t < 0 || lengthSquared < t) {
        return false;
    }
    const double distanceSquared = v.lengthSquared() - t * t / lengthSquared;
    return radiusSquared >= distanceSquared;
}

} // namespace Drevon::Zalento
