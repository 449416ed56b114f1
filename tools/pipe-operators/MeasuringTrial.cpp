#include "MeasuringTrial.h"

#include "Pinhole.h"

#include "measuring/Editing.h"
#include "measuring/Measurement.h"
#include "measuring/SessionFit.h"
#include "measuring/StandardUncertainties.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Tools {

using namespace Measuring;

namespace {

constexpr int seed = 21;

constexpr double smallestDiameterMM = 150.0;
constexpr double largestDiameterMM = 900.0;
constexpr double smallestFovDEG = 25.0;
constexpr double largestFovDEG = 100.0;
constexpr double largestHeight = 0.45;

constexpr int clicksOnJoint = 6;
constexpr int corners = 8;
constexpr double farEnd = 10.0; // the model's length
constexpr double largestDepth = 1.5;

constexpr double smallestLevel = 0.1;
constexpr double largestLevel = 0.9;
constexpr int edgeSamples = 40;
// What the method of Newton takes its slopes from.
constexpr double levelStep = 1e-4;
constexpr double depthStep = 1e-4;

constexpr double laserMM = 50.0; // the session's default calibration text

// The picture, the truth, and where chance comes from.
struct Scene
{
    View view;
    double fovDEG;
    double diameterMM;
    Random &random;
};

// What the operator sees of a place and clicks: the picture is made of whole pixels.
QPointF clicked(const QPointF &seen, Random &random)
{
    return {std::floor(seen.x()) + 0.5 + random.normal(defaultClickPX),
            std::floor(seen.y()) + 0.5 + random.normal(defaultClickPX)};
}

double ringRadiusPX(const View &view, double depth)
{
    const QPointF middle = view.seen(view.mouth + depth * view.axis);
    double sum = 0.0;
    for (int i = 0; i < edgeSamples; ++i) {
        const QPointF way = view.seen(view.onWall(2 * pi * i / edgeSamples, depth)) - middle;
        sum += std::hypot(way.x(), way.y());
    }
    return sum / edgeSamples;
}

// What the eye sees of the mouth: half its width.
double halfWidthPX(const View &view)
{
    const QPointF way = view.seen(view.onWall(0, 0)) - view.seen(view.onWall(pi, 0));
    return std::hypot(way.x(), way.y()) / 2;
}

Vector rayThrough(const View &view, const QPointF &pixel)
{
    return {(pixel.x() - view.picture.width() * 0.5) / view.focalPX,
            (pixel.y() - view.picture.height() * 0.5) / view.focalPX, 1.0};
}

// The view whose mouth has its middle and half width, and whose far ring its middle, where the
// operator drew them.
View viewByEye(const Scene &scene, double fovDEG)
{
    const View &truth = scene.view;
    const auto drawn = [&](const QPointF &seen) {
        return QPointF(seen.x() + scene.random.normal(defaultAlignmentPX),
                       seen.y() + scene.random.normal(defaultAlignmentPX));
    };
    const QPointF mouth = drawn(truth.seen(truth.mouth));
    const QPointF far = drawn(truth.seen(truth.mouth + farEnd * truth.axis));
    const double radius = halfWidthPX(truth) + scene.random.normal(defaultAlignmentPX);

    View view = View::towards(0, 0, truth.picture, fovDEG);
    double depth = view.focalPX * 0.5 / radius;
    constexpr int rounds = 30;
    for (int i = 0; i < rounds; ++i) {
        const Vector place = depth * rayThrough(view, mouth);
        const Vector ray = rayThrough(view, far);
        // The place on the ray that is as far from the mouth as the far end.
        const double a = dot(ray, ray);
        const double b = dot(ray, place);
        const double c = dot(place, place) - farEnd * farEnd;
        const Vector axis = (1 / farEnd) * (((b + std::sqrt(b * b - a * c)) / a) * ray - place);
        view = View::towards(std::atan2(axis.x, axis.z), std::asin(axis.y), truth.picture, fovDEG);
        view.mouth = place;
        depth *= halfWidthPX(view) / radius;
    }
    return view;
}

Session newSession(const Scene &scene, Kind kind)
{
    Session session;
    session.picture.size = scene.view.picture;
    session.kind = kind;
    session.diameterMM = scene.diameterMM;
    return session;
}

void clickJoints(const Scene &scene, Session &session)
{
    const double depth = scene.view.mouth.z * scene.random.between(0.8, 2.0);
    for (const double at : {0.0, depth}) {
        RingClicks ring;
        const double first = scene.random.between(-pi, pi);
        for (int i = 0; i < clicksOnJoint; ++i) {
            ring.points +=
                clicked(scene.view.seen(scene.view.onWall(first + 2 * pi * i / clicksOnJoint, at)),
                        scene.random);
        }
        session.rings += ring;
    }
    // A distance that somebody measured along the pipe.
    session.rings.last().distanceMM = depth * scene.diameterMM;
}

// The operator's nominal diameter and field of view are not the true ones. False when the model
// can't be aligned.
bool align(Scene &scene, AlignedBy aligned, Session &session)
{
    session.fovYDEG = scene.fovDEG + scene.random.normal(defaultFovDEG);
    if (aligned == AlignedBy::Joints) {
        clickJoints(scene, session);
    } else {
        const View view = viewByEye(scene, session.fovYDEG);
        setAlignment(session, alignmentOf(view, session.fovYDEG));
        session.offset = std::round(session.offset);
    }
    const double nominal = session.diameterMM;
    session.diameterMM = nominal * (1 + scene.random.normal(defaultDiameterPart));
    return aligned == AlignedBy::Eye ? !checkSession(session) : bool(fitSession(session));
}

void measureLength(const Scene &scene, MeasuringTrial &trial)
{
    std::array<Vector, 2> ends{};
    for (Vector &end : ends) {
        end =
            scene.view.onWall(scene.random.between(-pi, pi), scene.random.between(0, largestDepth));
        trial.session.points += {clicked(scene.view.seen(end), scene.random), {}, {}};
    }
    trial.truth = norm(ends[0] - ends[1]) * scene.diameterMM;
}

// Newton's method for a number by which something that is seen becomes what it should be.
template <typename Seen>
double matched(double start, double step, const Seen &error)
{
    constexpr int rounds = 20;
    double number = start;
    for (int i = 0; i < rounds; ++i) {
        const double slope = (error(number + step) - error(number - step)) / (2 * step);
        number -= error(number) / slope;
    }
    return number;
}

void measureArea(const Scene &scene, MeasuringTrial &trial)
{
    const double depth = scene.random.between(0.2, largestDepth);
    const View model = viewOf(alignmentOf(trial.session), scene.view.picture);
    const double seen = ringRadiusPX(scene.view, depth) + scene.random.normal(defaultAlignmentPX);
    const double laid =
        matched(depth, depthStep, [&](double d) { return ringRadiusPX(model, d) - seen; });
    trial.session.percentage = std::clamp(laid / farEnd * 100.0, 0.0, 100.0);
    double shoelace = 0.0;
    std::array<std::array<double, 2>, corners> places{};
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * pi * i / corners;
        const double r = scene.random.between(0.25, 0.45);
        places[static_cast<std::size_t>(i)] = {r * std::cos(angle), r * std::sin(angle)};
        const Vector place = scene.view.mouth + depth * scene.view.axis +
                             r * std::cos(angle) * scene.view.right +
                             r * std::sin(angle) * scene.view.down;
        trial.session.points += {clicked(scene.view.seen(place), scene.random), {}, {}};
    }
    trial.session.points += trial.session.points.first();
    for (std::size_t i = 0; i < corners; ++i) {
        const auto &a = places[i];
        const auto &b = places[(i + 1) % corners];
        shoelace += a[0] * b[1] - a[1] * b[0];
    }
    trial.truth = std::abs(shoelace) / 2 * scene.diameterMM * scene.diameterMM;
}

void measureCrack(const Scene &scene, MeasuringTrial &trial)
{
    Random &random = scene.random;
    const QPointF middle(scene.view.picture.width() * random.between(0.4, 0.6),
                         scene.view.picture.height() * random.between(0.4, 0.6));
    const double spotsPX = random.between(60, 400);
    const double trueMM = laserMM * (1 + random.normal(defaultLaserPart));
    const QPointF half(spotsPX / 2, random.between(-20, 20));
    const double mmPerPixel = trueMM / (2 * std::hypot(half.x(), half.y()));
    takeLaserScale(trial.session, clicked(middle - half, random), clicked(middle + half, random));
    const double angle = random.between(-pi, pi);
    const double widthPX = random.between(8, 120);
    const QPointF across(widthPX * std::cos(angle), widthPX * std::sin(angle));
    for (const QPointF &edge : {middle, middle + across}) {
        trial.session.points += {clicked(edge, random), {}, {}};
    }
    trial.truth = widthPX * mmPerPixel;
}

// The water's edges on both sides and its width in the mouth.
std::vector<QPointF> waterEdges(const View &view, double level)
{
    const double down = 0.5 - level;
    const double across = std::sqrt(0.25 - down * down);
    std::vector<QPointF> edges{view.seen(view.mouth - across * view.right + down * view.down),
                               view.seen(view.mouth + across * view.right + down * view.down)};
    for (const double side : {-across, across}) {
        for (int i = 0; i < edgeSamples; ++i) {
            const double depth = std::min(1.0 / (1.0 - i / (edgeSamples + 1.0)) - 1.0, farEnd);
            edges.push_back(
                view.seen(view.mouth + depth * view.axis + side * view.right + down * view.down));
        }
    }
    return edges;
}

void setWaterLevel(const Scene &scene, MeasuringTrial &trial)
{
    const double level = scene.random.between(smallestLevel, largestLevel);
    const View model = viewOf(alignmentOf(trial.session), scene.view.picture);
    const std::vector<QPointF> seen = waterEdges(scene.view, level);
    // Across the edges, of all that are seen, weighted by length.
    const auto error = [&](double at) {
        const std::vector<QPointF> drawn = waterEdges(model, at);
        const std::vector<QPointF> further = waterEdges(model, at + levelStep);
        double sum = 0.0;
        double squares = 0.0;
        double length = 0.0;
        for (std::size_t i = 1; i < drawn.size(); ++i) {
            const QPointF along = drawn[i] - drawn[i - 1];
            const double piece = std::hypot(along.x(), along.y());
            const bool isBetweenCurves = i % edgeSamples == 2 % edgeSamples;
            if (isBetweenCurves || piece == 0.0) {
                continue;
            }
            const QPointF normal(-along.y() / piece, along.x() / piece);
            const double slope = QPointF::dotProduct(normal, further[i] - drawn[i]) / levelStep;
            sum += piece * slope * QPointF::dotProduct(normal, drawn[i] - seen[i]);
            squares += piece * slope * slope;
            length += piece;
        }
        return std::array<double, 2>{sum / squares, std::sqrt(squares / length)};
    };
    double at = level;
    constexpr int rounds = 20;
    for (int i = 0; i < rounds; ++i) {
        at = std::clamp(at - error(at)[0], 0.01, 0.99);
    }
    at += scene.random.normal(defaultAlignmentPX) / error(at)[1];
    trial.session.percentage = std::clamp(at, 0.0, 1.0) * 100.0;
    trial.truth = level * 100.0;
}

Kind kindOf(Task task)
{
    switch (task) {
    case Task::Length:
        return Kind::PipeDimension;
    case Task::Area:
        return Kind::CrossSection;
    case Task::CrackWidth:
        return Kind::CrackWidth;
    case Task::WaterLevel:
        break;
    }
    return Kind::WaterLevel;
}

void doTask(Task task, const Scene &scene, MeasuringTrial &trial)
{
    switch (task) {
    case Task::Length:
        return measureLength(scene, trial);
    case Task::Area:
        return measureArea(scene, trial);
    case Task::CrackWidth:
        return measureCrack(scene, trial);
    case Task::WaterLevel:
        return setWaterLevel(scene, trial);
    }
}

double median(std::vector<double> numbers)
{
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::nth_element(numbers.begin(), middle, numbers.end());
    return *middle;
}

} // namespace

MeasuringTrial drawTrial(Task task, AlignedBy aligned, std::mt19937_64 &engine)
{
    Random random(engine);
    for (;;) {
        const double fovDEG = random.between(smallestFovDEG, largestFovDEG);
        const double diameterMM = random.between(smallestDiameterMM, largestDiameterMM);
        Scene scene{drawView(random, fovDEG), fovDEG, diameterMM, random};
        if (std::abs(scene.view.mouth.y) > largestHeight) {
            continue;
        }
        MeasuringTrial trial;
        trial.session = newSession(scene, kindOf(task));
        if (task != Task::CrackWidth && !align(scene, aligned, trial.session)) {
            continue;
        }
        doTask(task, scene, trial);
        return trial;
    }
}

CoverageTally runTrials(Task task, AlignedBy aligned, int trials)
{
    std::mt19937_64 engine(seed);
    CoverageTally tally;
    std::vector<double> relative;
    for (int i = 0; i < trials; ++i) {
        MeasuringTrial trial = drawTrial(task, aligned, engine);
        std::optional<AlignmentFit> fit;
        if (hasAlignmentClicks(trial.session)) {
            fit = *fitSession(trial.session);
        }
        const Measurement measurement = measure(trial.session);
        const auto stated = uncertaintiesOf(trial.session, fit);
        if (measurement.state != MeasureState::Measured || !stated.first()) {
            continue;
        }
        const Uncertainty &uncertainty = *stated.first();
        const double error = measurement.values.first().number - trial.truth;
        ++tally.trials;
        tally.covered += std::abs(error) <= uncertainty.expanded() ? 1 : 0;
        tally.errorOverUncertainty += std::pow(error / uncertainty.standard, 2);
        relative.push_back(uncertainty.expanded() / measurement.values.first().number);
        if (uncertainty.method == UncertaintyMethod::FirstOrder) {
            const auto drawn =
                uncertaintiesOf(trial.session, fit, UncertaintyEffort::MonteCarlo).first();
            ++tally.firstOrder;
            const bool agrees =
                drawn && std::abs(drawn->standard / uncertainty.standard - 1) <= 0.1;
            tally.agreeing += agrees ? 1 : 0;
        }
    }
    tally.errorOverUncertainty = std::sqrt(tally.errorOverUncertainty / tally.trials);
    tally.medianRelativeU = median(relative);
    return tally;
}

} // namespace Drevon::Zalento::Tools
