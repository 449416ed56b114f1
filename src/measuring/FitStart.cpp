#include "measuring/FitStart.h"

#include "measuring/FitCamera.h"

#include <Eigen/Dense>

#include <map>
#include <optional>

namespace Drevon::Zalento::Measuring {

namespace {

using Eigen::Vector2d;
using Eigen::Vector3d;

// A search finds its way from the nearest of these for every camera from 25 to 100 degrees.
constexpr double fovsToTryDEG[] = {30.0, 45.0, 65.0, 90.0};

struct Circle
{
    Vector2d centre; // pixels from the picture's middle
    double radius;
};

std::map<int, std::vector<Vector2d>> clicksByOwn(const FitProblem &problem, bool ofLines)
{
    std::map<int, std::vector<Vector2d>> result;
    for (const FitClick &click : problem.clicks) {
        if (click.index.isLine == ofLines) {
            result[click.own].emplace_back(click.pixel.x() - problem.picture.width() * 0.5,
                                           click.pixel.y() - problem.picture.height() * 0.5);
        }
    }
    return result;
}

// x² + y² = 2 x a + 2 y b + c by least squares (I. Kåsa, 1976). The ellipse of a ring is nearly a
// circle unless the camera is turned far.
Circle circleThrough(const std::vector<Vector2d> &clicks)
{
    Eigen::MatrixXd a(clicks.size(), 3);
    Eigen::VectorXd squares(clicks.size());
    for (std::size_t i = 0; i < clicks.size(); ++i) {
        const auto row = static_cast<Eigen::Index>(i);
        a.row(row) << 2 * clicks[i].transpose(), 1.0;
        squares[row] = clicks[i].squaredNorm();
    }
    const Vector3d x = a.colPivHouseholderQr().solve(squares);
    const Vector2d centre = x.head<2>();
    return {centre, std::sqrt(std::max(x[2] + centre.squaredNorm(), 1.0))};
}

// Where lines through the clicks meet, by least squares.
Vector2d meetingPoint(const std::map<int, std::vector<Vector2d>> &lines)
{
    Eigen::Matrix2d normals = Eigen::Matrix2d::Zero();
    Vector2d offsets = Vector2d::Zero();
    for (const auto &[own, clicks] : lines) {
        const Vector2d along = (clicks.back() - clicks.front()).normalized();
        const Eigen::Matrix2d across = Eigen::Matrix2d::Identity() - along * along.transpose();
        normals += across;
        offsets += across * clicks.front();
    }
    return normals.colPivHouseholderQr().solve(offsets);
}

// The scene of a pinhole camera, in diameters: the camera looks along -z and shows it mirrored.
Vector3d seenAt(const Vector2d &pixel, double focalPX)
{
    return {-pixel.x() / focalPX, -pixel.y() / focalPX, -1.0};
}

const Vector3d straightAhead(0.0, 0.0, -1.0);

// What the clicks tell for one focal length.
struct Scene
{
    std::map<int, Vector3d> centres; // of the rings, from the camera; the mouth's first
    std::vector<Vector3d> axes;      // directions that the pipe may take inwards
};

Scene sceneOf(const std::map<int, Circle> &rings, const std::map<int, std::vector<Vector2d>> &lines,
              double focalPX)
{
    Scene scene;
    for (const auto &[own, circle] : rings) {
        scene.centres[own] = seenAt(circle.centre, focalPX) * (focalPX * 0.5 / circle.radius);
    }
    if (rings.size() > 1) {
        const Vector3d between = scene.centres.rbegin()->second - scene.centres.begin()->second;
        scene.axes.push_back((between.z() > 0 ? -between : between).normalized());
        scene.axes.push_back(scene.centres.rbegin()->second.normalized());
    }
    if (lines.size() > 1) {
        scene.axes.push_back(seenAt(meetingPoint(lines), focalPX).normalized());
    }
    scene.axes.push_back(straightAhead);
    return scene;
}

double &field(std::vector<double> &values, AlignmentField f)
{
    return values[placeOfField(f)];
}

void setPlace(std::vector<double> &values, const Vector3d &mouthFromEye, double tangent)
{
    const double distance = -mouthFromEye.z();
    field(values, AlignmentField::Offset) = unitsPerDiameter * mouthFromEye.x();
    field(values, AlignmentField::CameraHeightPercent) = centredPercent - 100.0 * mouthFromEye.y();
    field(values, AlignmentField::MouthPercent) =
        100.0 * 0.5 * frontCircleMargin / (distance * tangent);
}

void setDirection(std::vector<double> &values, const Vector3d &axis, double tangent)
{
    const double k = field(values, AlignmentField::MouthPercent) * 0.01;
    const double touch = std::atan(k * tangent);
    const double aboutY = std::atan2(-axis.x(), -axis.z());
    const double aboutX = std::asin(std::clamp(axis.y(), -1.0, 1.0));
    field(values, AlignmentField::RearCircleX) = -aboutY / touch * rearCircleRangeX;
    field(values, AlignmentField::RearCircleY) = -aboutX / touch * rearCircleRangeY;
}

// Depths that are known stay.
void setDepths(FitProblem &problem, const Scene &scene, const Vector3d &axis)
{
    for (const int place : problem.free) {
        const auto ring = scene.centres.find(place);
        if (ring != scene.centres.end()) {
            const Vector3d behindMouth = ring->second - scene.centres.begin()->second;
            problem.values[static_cast<std::size_t>(place)] =
                behindMouth.dot(axis) * problem.diameterMM;
        }
    }
}

// The side of the wall at which a ray meets the wall; its own side where it never does.
Vector2d wallSide(const FitCamera<double> &camera, const QPointF &pixel)
{
    const FitVector<double> ray = camera.rayThrough(pixel);
    const Vector2d along(ray.x, ray.y);
    const Vector2d eye(camera.eye().x, camera.eye().y);
    const double a = along.squaredNorm();
    const double b = along.dot(eye);
    const double discriminant = b * b - a * (eye.squaredNorm() - 0.25);
    const double reach = a > 0.0 && discriminant > 0.0 ? (-b + std::sqrt(discriminant)) / a : 0.0;
    return reach > 0.0 ? Vector2d(eye + reach * along) : along;
}

} // namespace

void lookUpClocks(FitProblem &problem)
{
    const FitCamera<double> camera(problem.fields(), problem.picture);
    std::map<int, Vector2d> sides;
    for (const FitClick &click : problem.clicks) {
        if (click.index.isLine) {
            const auto known = sides.emplace(click.own, Vector2d::Zero()).first;
            known->second += wallSide(camera, click.pixel).normalized();
        }
    }
    for (const auto &[own, side] : sides) {
        problem.values[static_cast<std::size_t>(own)] =
            std::atan2(-side.x(), side.y()) * degreesPerRadian;
    }
}

std::vector<std::vector<double>> startingValues(const FitProblem &problem,
                                                const FitTargets &targets)
{
    std::map<int, Circle> rings;
    for (const auto &[own, clicks] : clicksByOwn(problem, false)) {
        rings[own] = circleThrough(clicks);
    }
    const auto lines = clicksByOwn(problem, true);
    std::vector<double> fovs{problem.values[placeOfField(AlignmentField::FovYDEG)]};
    if (targets.fov) {
        fovs.assign(std::begin(fovsToTryDEG), std::end(fovsToTryDEG));
    }
    std::vector<std::vector<double>> result;
    for (const double fovDEG : fovs) {
        FitProblem start = problem;
        start.values[placeOfField(AlignmentField::FovYDEG)] = fovDEG;
        const double tangent = std::tan(fovDEG * 0.5 * radiansPerDegree);
        const double side = std::min(problem.picture.width(), problem.picture.height());
        const Scene scene = sceneOf(rings, lines, side * 0.5 / tangent);
        if (targets.place) {
            setPlace(start.values, scene.centres.begin()->second, tangent);
        }
        for (const Vector3d &axis : targets.direction ? scene.axes : std::vector{straightAhead}) {
            if (targets.direction) {
                setDirection(start.values, axis, tangent);
            }
            setDepths(start, scene, axis);
            lookUpClocks(start);
            result.push_back(start.values);
        }
    }
    return result;
}

} // namespace Drevon::Zalento::Measuring
