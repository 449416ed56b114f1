#include "AlignmentTrial.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <optional>

namespace Drevon::Zalento::Tools {

using namespace Measuring;

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double radians = pi / 180;

constexpr int seed = 20;
constexpr int clicksOnJoint = 6;
constexpr int lines = 3;
constexpr int clicksOnLine = 4;

constexpr double smallestDiameterMM = 150.0;
constexpr double largestDiameterMM = 900.0;
constexpr double smallestFovDEG = 25.0;
constexpr double largestFovDEG = 100.0;
constexpr double largestEccentricity = 0.1; // of the diameter
constexpr double largestTurn = 0.25;        // of the field of view

// Of the mouth's middle above or below the picture's. The overlay's camera goes up to 0.5.
constexpr double largestHeight = 0.45;

// Radius of the first joint over the picture's shorter side, and of the second over the first.
constexpr double smallestJoint = 0.25;
constexpr double largestJoint = 0.48;
constexpr double smallestRatio = 0.3;
constexpr double largestRatio = 0.6;

// Operators keep about equal distances between their clicks.
constexpr double unevenness = 0.3;

struct Vector
{
    double x, y, z;
};

Vector operator+(const Vector &a, const Vector &b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
Vector operator-(const Vector &a, const Vector &b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
Vector operator*(double s, const Vector &v)
{
    return {s * v.x, s * v.y, s * v.z};
}
double dot(const Vector &a, const Vector &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
double norm(const Vector &v)
{
    return std::sqrt(dot(v, v));
}

class Random
{
public:
    explicit Random(std::mt19937_64 &engine)
        : m_engine(engine)
    {}
    double between(double a, double b) { return std::uniform_real_distribution(a, b)(m_engine); }
    double normal(double spread) { return spread * std::normal_distribution<>()(m_engine); }

private:
    std::mt19937_64 &m_engine;
};

/** A pipe before a pinhole camera. Lengths are diameters. */
struct View
{
    QSize picture;
    double focalPX;
    Vector mouth; // centre of the first joint
    Vector axis;  // of length 1, into the pipe
    Vector right; // across the pipe
    Vector down;

    static View towards(double yaw, double pitch, const QSize &picture, double fovDEG)
    {
        const double sideToFocal = 0.5 / std::tan(fovDEG * 0.5 * radians);
        return {
            picture,
            std::min(picture.width(), picture.height()) * sideToFocal,
            {},
            {std::cos(pitch) * std::sin(yaw), std::sin(pitch), std::cos(pitch) * std::cos(yaw)},
            {std::cos(yaw), 0, -std::sin(yaw)},
            {-std::sin(pitch) * std::sin(yaw), std::cos(pitch), -std::sin(pitch) * std::cos(yaw)}};
    }

    Vector onWall(double angle, double depth) const
    {
        return mouth + depth * axis + 0.5 * std::cos(angle) * right + 0.5 * std::sin(angle) * down;
    }

    QPointF seen(const Vector &p) const
    {
        return {picture.width() * 0.5 + focalPX * p.x / p.z,
                picture.height() * 0.5 + focalPX * p.y / p.z};
    }

    // Where the pixel's ray leaves the pipe.
    std::optional<Vector> wallAt(const QPointF &pixel) const
    {
        const Vector ray{(pixel.x() - picture.width() * 0.5) / focalPX,
                         (pixel.y() - picture.height() * 0.5) / focalPX, 1.0};
        const Vector along = ray - dot(ray, axis) * axis;
        const Vector eye = dot(mouth, axis) * axis - mouth; // from the axis, across it
        const double a = dot(along, along);
        const double b = dot(along, eye);
        const double c = dot(eye, eye) - 0.25;
        if (a == 0.0 || b * b < a * c) {
            return std::nullopt;
        }
        return ((-b + std::sqrt(b * b - a * c)) / a) * ray;
    }
};

// The fields of a session as the guide describes them: the mouth's centre in gesture units (576 a
// diameter, to the left) and in percent of the height; the mouth's size; the turn of the axis, of
// which half the field of view of the drawing area is 85 units to the left and 50 down.
Alignment alignmentOf(const View &view, double fovDEG)
{
    const double k = 0.5 * 1.02 / view.mouth.z / std::tan(fovDEG * 0.5 * radians);
    const double half = std::atan(0.5 * 1.02 / view.mouth.z);
    return {-576.0 * view.mouth.x,
            50.0 + 100.0 * view.mouth.y,
            -85.0 * std::atan2(view.axis.x, view.axis.z) / half,
            50.0 * std::asin(view.axis.y) / half,
            100.0 * k,
            fovDEG};
}

View viewOf(const Alignment &a, const QSize &picture)
{
    const double tangent = a.mouthPercent * 0.01 * std::tan(a.fovYDEG * 0.5 * radians);
    const double half = std::atan(tangent);
    View view = View::towards(-a.rearCircleX / 85.0 * half, a.rearCircleY / 50.0 * half, picture,
                              a.fovYDEG);
    view.mouth = {-a.offset / 576.0, (a.cameraHeightPercent - 50.0) * 0.01, 0.5 * 1.02 / tangent};
    return view;
}

View drawView(Random &random, double fovDEG)
{
    constexpr std::array<std::array<int, 2>, 4> sizes{
        {{768, 576}, {1024, 768}, {1280, 720}, {1600, 1200}}};
    const auto &size = sizes[static_cast<std::size_t>(random.between(0, sizes.size()))];
    const double turn = random.between(0, largestTurn) * fovDEG * radians;
    const double side = random.between(-pi, pi);
    View view = View::towards(turn * std::cos(side), turn * std::sin(side), QSize(size[0], size[1]),
                              fovDEG);
    const double radiusPX =
        random.between(smallestJoint, largestJoint) * std::min(size[0], size[1]);
    const double eccentricity = largestEccentricity * std::sqrt(random.between(0, 1));
    const double angle = random.between(-pi, pi);
    view.mouth = (view.focalPX * 0.5 / radiusPX) * view.axis +
                 eccentricity * std::cos(angle) * view.right +
                 eccentricity * std::sin(angle) * view.down;
    return view;
}

QPointF clicked(const View &view, Random &random, double angle, double depth, double spreadPX)
{
    const QPointF seen = view.seen(view.onWall(angle, depth));
    return {seen.x() + random.normal(spreadPX), seen.y() + random.normal(spreadPX)};
}

QVector<QPointF> clickRing(const View &view, Random &random, double depth, double first, double arc,
                           double spreadPX)
{
    QVector<QPointF> points;
    for (int i = 0; i < clicksOnJoint; ++i) {
        const double at = i + unevenness * random.between(-1, 1);
        points += clicked(view, random, first + at * arc / clicksOnJoint, depth, spreadPX);
    }
    return points;
}

QVector<QPointF> clickLine(const View &view, Random &random, double angle, double depth,
                           double spreadPX)
{
    QVector<QPointF> points;
    for (int i = 0; i < clicksOnLine; ++i) {
        points += clicked(view, random, angle, depth * (i + random.between(0, 1)) / clicksOnLine,
                          spreadPX);
    }
    return points;
}

AlignmentClicks drawClicks(Situation situation, const View &view, Random &random, double diameterMM,
                           double spreadPX)
{
    const double depth = view.mouth.z * (1 / random.between(smallestRatio, largestRatio) - 1);
    const double first = random.between(-pi, pi);
    const double arc = situation == Situation::PartialJoints ? 2 * pi / 3 : 2 * pi;
    AlignmentClicks clicks;
    clicks.fitsFov = situation == Situation::KnownDistanceAndFov;
    clicks.rings += {std::nullopt, clickRing(view, random, 0, first, arc, spreadPX)};
    if (situation == Situation::JointAndLines) {
        for (int i = 0; i < lines; ++i) {
            const double at = i + unevenness * random.between(-1, 1);
            clicks.lines += {clickLine(view, random, first + at * 2 * pi / lines, depth, spreadPX)};
        }
        return clicks;
    }
    RingClicks second{std::nullopt, clickRing(view, random, depth, first, arc, spreadPX)};
    if (situation == Situation::KnownDistance || situation == Situation::KnownDistanceAndFov) {
        second.distanceMM = depth * diameterMM;
    }
    clicks.rings += second;
    return clicks;
}

bool areInPicture(const AlignmentClicks &clicks, const QSize &picture)
{
    const QRectF area(QPointF(0, 0), picture);
    const auto isInside = [&](const QPointF &p) { return area.contains(p); };
    const auto areInside = [&](const auto &feature) {
        return std::all_of(feature.points.begin(), feature.points.end(), isInside);
    };
    return std::all_of(clicks.rings.begin(), clicks.rings.end(), areInside) &&
           std::all_of(clicks.lines.begin(), clicks.lines.end(), areInside);
}

} // namespace

AlignmentTrial drawTrial(Situation situation, std::mt19937_64 &engine, double spreadPX)
{
    Random random(engine);
    for (;;) {
        AlignmentTrial trial;
        const double fovDEG = random.between(smallestFovDEG, largestFovDEG);
        const View view = drawView(random, fovDEG);
        trial.picture = view.picture;
        trial.diameterMM = random.between(smallestDiameterMM, largestDiameterMM);
        trial.truth = alignmentOf(view, fovDEG);
        trial.clicks = drawClicks(situation, view, random, trial.diameterMM, spreadPX);
        std::array<Vector, 2> wall{};
        for (std::size_t i = 0; i < wall.size(); ++i) {
            wall[i] = view.onWall(random.between(-pi, pi), random.between(0, view.mouth.z));
            trial.wallPixels[i] = view.seen(wall[i]);
        }
        trial.lengthMM = norm(wall[0] - wall[1]) * trial.diameterMM;
        if (areInPicture(trial.clicks, trial.picture) && std::abs(view.mouth.y) < largestHeight) {
            return trial;
        }
    }
}

double lengthMM(const AlignmentTrial &trial, const Alignment &alignment)
{
    const View view = viewOf(alignment, trial.picture);
    const auto a = view.wallAt(trial.wallPixels[0]);
    const auto b = view.wallAt(trial.wallPixels[1]);
    return a && b ? norm(*a - *b) * trial.diameterMM : 0.0;
}

double TrialTally::medianLengthError() const
{
    std::vector<double> sorted = lengthErrors;
    const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
    std::nth_element(sorted.begin(), middle, sorted.end());
    return *middle;
}

TrialTally runTrials(Situation situation, int trials, double spreadPX)
{
    std::mt19937_64 engine(seed);
    TrialTally tally;
    for (tally.trials = 0; tally.trials < trials; ++tally.trials) {
        const AlignmentTrial trial = drawTrial(situation, engine, spreadPX);
        Alignment start;
        if (!trial.clicks.fitsFov) {
            start.fovYDEG = trial.truth.fovYDEG;
        }
        const auto fit =
            fitAlignment(trial.clicks, start, trial.diameterMM, trial.picture, spreadPX);
        if (!fit || !fit->undetermined.isEmpty()) {
            continue;
        }
        ++tally.fitted;
        tally.lengthErrors.push_back(
            std::abs(lengthMM(trial, fit->alignment) / trial.lengthMM - 1));
        for (const AlignmentField field : fit->fitted) {
            const auto i = static_cast<std::size_t>(field);
            const double error = fit->alignment.numbers()[i] - trial.truth.numbers()[i];
            tally.errorOverUncertainty[i] += std::pow(error / fit->standardUncertainty(field), 2);
        }
    }
    for (double &ratio : tally.errorOverUncertainty) {
        ratio = std::sqrt(ratio / tally.fitted);
    }
    return tally;
}

} // namespace Drevon::Zalento::Tools
