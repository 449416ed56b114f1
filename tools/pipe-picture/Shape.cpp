#include "Shape.h"

#include <algorithm>

namespace PipePicture {

namespace {

// The modelled straight pipe is this many diameters long.
constexpr double modelLengthDiameters = 10.0;
// A ray along the axis meets nothing before this many diameters; it is dark there.
constexpr double farDiameters = 80.0;
// The march through the bend stops this close to the wall, as a share of the radius.
constexpr double marchTolerance = 1e-6;
constexpr int marchSteps = 600;
// Straight pieces along the wall in the outline of a deposit: few, because an outline that is
// clicked closes by itself at a click within an eighth of the diameter of its first point.
constexpr int outlineArcPieces = 4;

/** Where a ray from inside an endless cylinder leaves it. */
double cylinderExit(const Ray &ray, const Vec &start, const Vec &axis, double radius)
{
    const Vec rel = ray.origin - start;
    const Vec o = rel - axis * dot(rel, axis);
    const Vec d = ray.direction - axis * dot(ray.direction, axis);
    const double a = dot(d, d);
    const double b = dot(o, d);
    const double c = dot(o, o) - radius * radius;
    const double root = b * b - a * c;
    if (a <= 0.0 || root < 0.0)
        return -1.0;
    return (-b + std::sqrt(root)) / a;
}

/** Shape of a hard deposit: height over the width it covers, both as shares of 0 … 1. */
const std::vector<QPointF> &depositForm()
{
    static const std::vector<QPointF> form{{0.0, 0.0},   {0.16, 0.62}, {0.33, 0.94}, {0.48, 1.0},
                                           {0.66, 0.72}, {0.84, 0.55}, {1.0, 0.0}};
    return form;
}

} // namespace

double polygonArea(const QPolygonF &polygon)
{
    double twice = 0.0;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF a = polygon[i];
        const QPointF b = polygon[(i + 1) % polygon.size()];
        twice += a.x() * b.y() - b.x() * a.y();
    }
    return std::fabs(twice) * 0.5;
}

Shape::Shape(const SceneSettings &scene)
    : m_scene(scene)
    , m_radius(scene.radiusM())
    , m_waterY(scene.radiusM() * (2.0 * scene.waterShare - 1.0))
    , m_bendRadius(scene.bend.radiusShare * scene.diameterM())
    , m_depositZ(-scene.deposit.depthShare * modelLengthDiameters * scene.diameterM())
{
    const bool bends = scene.bend.angleDeg > 0.0;
    // At clock position 0 the side +x is turned up to +y.
    m_turn = rotationZ(90.0 + (bends ? scene.bend.clockDeg : scene.branch.clockDeg));

    const double angle = radians(scene.branch.angleDeg);
    m_branch.radius = m_radius * scene.branch.share;
    m_branch.axis = m_turn * Vec{std::sin(angle), 0.0, -std::cos(angle)};
    // Seen from the side the branch's near wall line runs r / sin A before its axis; it meets the
    // pipe's wall line x = R in the plane of the mouth.
    const double axisAtWall = -m_branch.radius / std::sin(angle);
    m_branch.start = {0.0, 0.0, axisAtWall + m_radius * std::cos(angle) / std::sin(angle)};

    if (scene.deposit.heightShare > 0.0) {
        // The deposit begins and ends where the wall reaches this share of its height.
        const double edgeY = m_radius * (2.0 * 0.35 * scene.deposit.heightShare - 1.0);
        const double topY = m_radius * (2.0 * scene.deposit.heightShare - 1.0);
        const double halfWidth = std::sqrt(squared(m_radius) - squared(edgeY));
        for (const QPointF &point : depositForm())
            m_depositProfile.emplace_back(mix(-halfWidth, halfWidth, point.x()),
                                          mix(edgeY, topY, point.y()));
    }
}

Vec Shape::wallPoint(double clockDeg, double depthM) const
{
    return clockDirection(clockDeg) * m_radius + Vec{0.0, 0.0, -depthM};
}

Hit Shape::pipeHit(const Ray &ray) const
{
    Hit hit;
    hit.part = Part::Pipe;
    hit.distance = cylinderExit(ray, {}, {0.0, 0.0, -1.0}, m_radius);
    const double farAway = farDiameters * m_scene.diameterM();
    if (hit.distance < 0.0 || hit.distance > farAway) {
        hit.part = Part::Nothing;
        hit.distance = farAway;
    }
    hit.point = ray.at(hit.distance);
    hit.normal = Vec{-hit.point.x, -hit.point.y, 0.0} * (1.0 / m_radius);
    hit.along = -hit.point.z;
    hit.height = (hit.point.y / m_radius + 1.0) * 0.5;
    return hit;
}

double Shape::distanceToBranch(const Vec &point) const
{
    const Vec rel = point - m_branch.start;
    const double along = dot(rel, m_branch.axis);
    const double across = length(rel - m_branch.axis * along);
    // On the far side of the pipe the branch's axis does not exist.
    return along > 0.0 ? across - m_branch.radius : m_radius;
}

Hit Shape::branchHit(const Ray &ray, const Hit &onPipe) const
{
    if (distanceToBranch(onPipe.point) >= 0.0)
        return onPipe;
    Hit hit;
    hit.part = Part::Branch;
    hit.distance = cylinderExit(ray, m_branch.start, m_branch.axis, m_branch.radius);
    hit.point = ray.at(hit.distance);
    const Vec rel = hit.point - m_branch.start;
    hit.along = dot(rel, m_branch.axis);
    const Vec foot = m_branch.start + m_branch.axis * hit.along;
    hit.normal = (foot - hit.point) * (1.0 / m_branch.radius);
    hit.height = ((hit.point.y - foot.y) / m_branch.radius + 1.0) * 0.5;
    return hit;
}

Hit Shape::elbowHit(const Ray &ray, double &distance) const
{
    const double bend = radians(m_scene.bend.angleDeg);
    // Outward normal of the bend's end plane, which holds the turn axis x = bend radius, z = 0.
    const Vec endNormal{std::sin(bend), 0.0, -std::cos(bend)};
    const Vec pivot{m_bendRadius, 0.0, 0.0};
    for (int step = 0; step < marchSteps; ++step) {
        const Vec p = ray.at(distance);
        const double toEnd = dot(pivot - p, endNormal);
        if (toEnd <= 0.0)
            return {};
        const double rho = std::hypot(m_bendRadius - p.x, p.z);
        const double turned = std::atan2(-p.z, m_bendRadius - p.x);
        const Vec foot{m_bendRadius * (1.0 - std::cos(turned)), 0.0,
                       -m_bendRadius * std::sin(turned)};
        const double free = m_radius - std::hypot(rho - m_bendRadius, p.y);
        if (free < marchTolerance * m_radius) {
            Hit hit;
            hit.part = Part::Elbow;
            hit.distance = distance;
            hit.point = p;
            hit.normal = normalized(foot - p);
            hit.along = turned * m_bendRadius;
            return hit;
        }
        const double closing = dot(ray.direction, endNormal);
        const double endStep = closing > 0.0 ? toEnd / closing : free;
        distance += std::min(free, std::max(endStep, 0.0) + marchTolerance * m_radius);
    }
    Hit lost;
    lost.part = Part::Elbow;
    lost.distance = distance;
    lost.point = ray.at(distance);
    lost.normal = ray.direction * -1.0;
    return lost;
}

Hit Shape::nextPipeHit(const Ray &ray, double from) const
{
    const double bend = radians(m_scene.bend.angleDeg);
    const Vec axis{std::sin(bend), 0.0, -std::cos(bend)};
    const Vec start{m_bendRadius * (1.0 - std::cos(bend)), 0.0, -m_bendRadius * std::sin(bend)};
    Hit hit;
    hit.part = Part::NextPipe;
    hit.distance = std::max(cylinderExit(ray, start, axis, m_radius), from);
    const double farAway = farDiameters * m_scene.diameterM();
    if (hit.distance > farAway) {
        hit.part = Part::Nothing;
        hit.distance = farAway;
    }
    hit.point = ray.at(hit.distance);
    const double along = dot(hit.point - start, axis);
    hit.normal = (start + axis * along - hit.point) * (1.0 / m_radius);
    hit.along = bendLengthM() + along;
    return hit;
}

Hit Shape::bendHit(const Ray &ray) const
{
    const Hit onPipe = pipeHit(ray);
    if (onPipe.point.z >= 0.0)
        return onPipe;
    // The bend lies towards +x of its own frame.
    const Ray turned{m_turn.inverse(ray.origin), m_turn.inverse(ray.direction)};
    double distance = std::max(-turned.origin.z / turned.direction.z, 0.0);
    Hit hit = elbowHit(turned, distance);
    if (hit.part == Part::Nothing)
        hit = nextPipeHit(turned, distance);
    hit.point = m_turn * hit.point;
    hit.normal = m_turn * hit.normal;
    hit.height = (1.0 - hit.normal.y) * 0.5;
    return hit;
}

double Shape::depositTop(double x) const
{
    if (m_depositProfile.empty() || x <= m_depositProfile.front().x() ||
        x >= m_depositProfile.back().x())
        return -m_radius;
    const auto next = std::find_if(m_depositProfile.begin(), m_depositProfile.end(),
                                   [x](const QPointF &p) { return p.x() > x; });
    const auto last = next - 1;
    return mix(last->y(), next->y(), (x - last->x()) / (next->x() - last->x()));
}

Hit Shape::depositHit(const Ray &ray) const
{
    Hit hit;
    if (m_depositProfile.empty() || ray.direction.z >= 0.0)
        return hit;
    const auto set = [&hit, &ray](Part part, double distance, const Vec &normal) {
        hit.part = part;
        hit.distance = distance;
        hit.point = ray.at(distance);
        hit.normal = normal;
        hit.along = -hit.point.z;
    };
    const double toFront = (m_depositZ - ray.origin.z) / ray.direction.z;
    const Vec front = ray.at(toFront);
    if (toFront > 0.0 && front.y < depositTop(front.x)) {
        set(Part::DepositFront, toFront, {0.0, 0.0, 1.0});
        return hit;
    }
    for (std::size_t i = 1; i < m_depositProfile.size(); ++i) {
        const QPointF a = m_depositProfile[i - 1];
        const QPointF b = m_depositProfile[i];
        const Vec normal = normalized({a.y() - b.y(), b.x() - a.x(), 0.0});
        const double closing = dot(ray.direction, normal);
        if (closing >= 0.0)
            continue;
        const double distance = dot(Vec{a.x(), a.y(), 0.0} - ray.origin, normal) / closing;
        const Vec p = ray.at(distance);
        const bool nearer = hit.part == Part::Nothing || distance < hit.distance;
        if (distance > 0.0 && p.z <= m_depositZ && p.x >= a.x() && p.x <= b.x() && nearer)
            set(Part::DepositTop, distance, normal);
    }
    return hit;
}

Hit Shape::traceDry(const Ray &ray) const
{
    Hit hit = m_scene.bend.angleDeg > 0.0 ? bendHit(ray) : pipeHit(ray);
    if (m_scene.branch.share > 0.0)
        hit = branchHit(ray, hit);
    const Hit deposit = depositHit(ray);
    return deposit.part != Part::Nothing && deposit.distance < hit.distance ? deposit : hit;
}

Hit Shape::trace(const Ray &ray) const
{
    const Hit dry = traceDry(ray);
    if (m_scene.waterShare <= 0.0 || ray.direction.y >= 0.0)
        return dry;
    const double toWater = (m_waterY - ray.origin.y) / ray.direction.y;
    if (toWater <= 0.0 || toWater >= dry.distance)
        return dry;
    Hit hit;
    hit.part = Part::Water;
    hit.distance = toWater;
    hit.point = ray.at(toWater);
    hit.normal = {0.0, 1.0, 0.0};
    hit.along = -hit.point.z;
    return hit;
}

Vec Shape::branchRimPoint(double turnDeg) const
{
    // Perpendiculars of the branch's axis: one in the plane of both axes, one across the pipe.
    const Vec across = m_turn * Vec{0.0, 1.0, 0.0};
    const Vec inPlane{m_branch.axis.y * across.z - m_branch.axis.z * across.y,
                      m_branch.axis.z * across.x - m_branch.axis.x * across.z,
                      m_branch.axis.x * across.y - m_branch.axis.y * across.x};
    const Vec side = across * std::cos(radians(turnDeg)) + inPlane * std::sin(radians(turnDeg));
    const Ray line{m_branch.start + side * m_branch.radius, m_branch.axis};
    return line.at(cylinderExit(line, {}, {0.0, 0.0, -1.0}, m_radius));
}

Vec Shape::bendRingPoint(double turnDeg, double alongM) const
{
    const double turned = std::min(alongM, bendLengthM()) / m_bendRadius;
    const double straight = std::max(alongM - bendLengthM(), 0.0);
    const Vec outward{-std::cos(turned), 0.0, -std::sin(turned)};
    const Vec forward{std::sin(turned), 0.0, -std::cos(turned)};
    const Vec centre = Vec{m_bendRadius, 0.0, 0.0} + outward * m_bendRadius + forward * straight;
    return m_turn * (centre + outward * (m_radius * std::cos(radians(turnDeg))) +
                     Vec{0.0, m_radius * std::sin(radians(turnDeg)), 0.0});
}

double Shape::depositAreaM2() const
{
    if (m_depositProfile.empty())
        return 0.0;
    // The outline's area and the circle segments that its straight pieces cut off.
    const QPointF end = m_depositProfile.back();
    const double half = std::atan2(end.x(), -end.y());
    const double piece = 2.0 * half / outlineArcPieces;
    const double cutOff = outlineArcPieces * squared(m_radius) * 0.5 * (piece - std::sin(piece));
    return polygonArea(depositOutline()) + cutOff;
}

QPolygonF Shape::depositOutline() const
{
    QPolygonF outline;
    for (const QPointF &point : m_depositProfile)
        outline << point;
    if (outline.isEmpty())
        return outline;
    const double from = std::atan2(outline.last().y(), outline.last().x());
    const double to = std::atan2(outline.first().y(), outline.first().x());
    for (int i = 1; i < outlineArcPieces; ++i) {
        const double angle =
            mix(from, to < from ? to : to - 2.0 * pi, double(i) / outlineArcPieces);
        outline << QPointF(m_radius * std::cos(angle), m_radius * std::sin(angle));
    }
    return outline;
}

} // namespace PipePicture
