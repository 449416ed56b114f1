#include "AlignmentTrial.h"

#include "Pinhole.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Tools {

using namespace Measuring;

namespace {

constexpr int seed = 20;
constexpr int clicksOnJoint = 6;
constexpr int lines = 3;
constexpr int clicksOnLine = 4;

constexpr double smallestDiameterMM = 150.0;
constexpr double largestDiameterMM = 900.0;
constexpr double smallestFovDEG = 25.0;
constexpr double largestFovDEG = 100.0;

// Of the mouth's middle above or below the picture's. The overlay's camera goes up to 0.5.
constexpr double largestHeight = 0.45;

// Radius of the second joint over the first.
constexpr double smallestRatio = 0.3;
constexpr double largestRatio = 0.6;

// Operators keep about equal distances between their clicks.
constexpr double unevenness = 0.3;

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
