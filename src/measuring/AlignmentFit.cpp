#include "measuring/AlignmentFit.h"

#include "measuring/Count.h"
#include "measuring/FitCamera.h"
#include "measuring/FitDrawing.h"
#include "measuring/FitOutliers.h"
#include "measuring/FitPlan.h"
#include "measuring/FitStart.h"
#include "measuring/Text.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Drevon::Zalento::Measuring {

namespace {

// Variance of what rounding to whole gesture units leaves: rectangular, 1 unit wide.
constexpr double roundingVariance = 1.0 / 12.0;

// What is being fitted, and where the search stands.
struct Fitting
{
    FitTargets targets;
    FitProblem problem;
    std::vector<FitClick> wrong;
};

Problem problemWith(const QString &what)
{
    return {QStringLiteral("alignment"), what};
}

Problem noneFits()
{
    return problemWith(Text::tr("no round pipe fits the clicks"));
}

Problem tooFewPlaces()
{
    return problemWith(Text::tr(
        "the clicks lie too near to each other, or on one side, to tell where the pipe is"));
}

bool areFinite(const QVector<QPointF> &points)
{
    return std::all_of(points.begin(), points.end(), [](const QPointF &p) {
        return std::isfinite(p.x()) && std::isfinite(p.y());
    });
}

bool areFinite(const AlignmentClicks &clicks)
{
    return std::all_of(clicks.rings.begin(), clicks.rings.end(),
                       [](const RingClicks &ring) {
                           return areFinite(ring.points) &&
                                  std::isfinite(ring.distanceMM.value_or(0.0));
                       }) &&
           std::all_of(clicks.lines.begin(), clicks.lines.end(),
                       [](const LineClicks &line) { return areFinite(line.points); });
}

bool isBetween(double value, double smallest, double largest)
{
    return value >= smallest && value <= largest;
}

bool canBeShown(const Alignment &alignment)
{
    const AlignmentNumbers numbers = alignment.numbers();
    return std::all_of(numbers.begin(), numbers.end(),
                       [](double number) { return std::isfinite(number); }) &&
           isBetween(alignment.fovYDEG, smallestFovDEG, largestFovDEG) &&
           isBetween(alignment.mouthPercent, smallestMouthPercent, largestMouthPercent);
}

Outcome inputProblem(const AlignmentClicks &clicks, const Alignment &start, double diameterMM,
                     const QSize &picture, double spreadPX)
{
    const bool isPipe = std::isfinite(diameterMM) && diameterMM > 0.0;
    if (!isPipe || picture.isEmpty() || !canBeShown(start) || !areFinite(clicks) ||
        !(spreadPX > 0.0)) {
        return problemWith(Text::tr(
            "expected a diameter, a picture and an alignment to begin with, found other numbers"));
    }
    if (possibleTargets(clicks).isEmpty()) {
        return problemWith(Text::tr(
            "expected three clicks on a joint, or two on each of two lines along the pipe"));
    }
    return std::nullopt;
}

bool isInsidePipe(const FitProblem &problem)
{
    const FitCamera<double> camera(problem.fields(), problem.picture);
    return std::hypot(camera.eye().x, camera.eye().y) < 0.5;
}

// The nearest of the minima that the searches end in, one with the camera inside first.
std::optional<FitProblem> bestMinimum(const FitProblem &problem, const FitTargets &targets)
{
    std::optional<FitProblem> best;
    std::pair<bool, double> bestRank;
    for (const std::vector<double> &values : startingValues(problem, targets)) {
        FitProblem candidate = problem;
        candidate.values = values;
        const FitOutcome outcome = minimize(candidate, FitLoss::Huber);
        const std::pair<bool, double> rank(!isInsidePipe(candidate), outcome.loss);
        if (outcome.converged && (!best || rank < bestRank)) {
            best = candidate;
            bestRank = rank;
        }
    }
    return best;
}

// One set of targets, without wrong clicks.
std::optional<Fitting> fitted(const FitProblem &problem, const FitTargets &targets, double spreadPX)
{
    std::optional<FitProblem> best = bestMinimum(problem, targets);
    if (!best) {
        return std::nullopt;
    }
    const std::vector<FitClick> wrong = takeOutWrongClicks(*best, spreadPX);
    if (!minimize(*best, FitLoss::Squares).converged) {
        return std::nullopt;
    }
    return Fitting{targets, *best, wrong};
}

// Fits what the clicks determine, beginning with everything that they might.
Result<Fitting> fittedWhereDetermined(const AlignmentClicks &clicks, const FitProblem &numbers,
                                      double spreadPX)
{
    FitTargets targets = possibleTargets(clicks);
    bool isRound = true;
    while (!targets.isEmpty()) {
        const FitProblem problem = problemFor(clicks, numbers, targets);
        if (problem.degreesOfFreedom() < 0) {
            (targets.fov ? targets.fov : targets.direction) = false;
            continue;
        }
        const std::optional<Fitting> fitting = fitted(problem, targets, spreadPX);
        if (!fitting) {
            return noneFits();
        }
        const double spread = spreadOf(fitting->problem, spreadPX);
        const FitTargets determined = determinedTargets(fitting->problem, targets, spread);
        if (determined == targets) {
            return *fitting;
        }
        isRound = spread == spreadPX;
        targets = determined;
    }
    return isRound ? tooFewPlaces() : noneFits();
}

// The offset is drawn in whole gesture units: the others follow where it is rounded. False when
// they do not find a place.
bool roundOffset(Fitting &fitting, AlignmentFit &fit)
{
    FitProblem &problem = fitting.problem;
    double &offset = problem.values[placeOfField(AlignmentField::Offset)];
    offset = std::round(offset);
    problem.free.erase(std::remove(problem.free.begin(), problem.free.end(),
                                   static_cast<int>(AlignmentField::Offset)),
                       problem.free.end());
    const std::size_t at = placeOfField(AlignmentField::Offset);
    const AlignmentNumbers along = fit.covariance[at];
    for (std::size_t i = 0; i < along.size(); ++i) {
        for (std::size_t j = 0; j < along.size(); ++j) {
            fit.covariance[i][j] +=
                along[i] * along[j] / (along[at] * along[at]) * roundingVariance;
        }
    }
    return minimize(problem, FitLoss::Squares).converged;
}

void setCovariance(const FitProblem &problem, double spreadPX, AlignmentFit &fit)
{
    const double spread = spreadOf(problem, spreadPX);
    const Eigen::MatrixXd covariance = unitCovariance(problem) * (spread * spread);
    for (std::size_t i = 0; i < problem.free.size(); ++i) {
        for (std::size_t j = 0; j < problem.free.size(); ++j) {
            const auto row = static_cast<std::size_t>(problem.free[i]);
            const auto column = static_cast<std::size_t>(problem.free[j]);
            if (row < alignmentFieldCount && column < alignmentFieldCount) {
                fit.covariance[row][column] =
                    covariance(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(j));
            }
        }
    }
}

// The derivatives of the distances with respect to one number.
Eigen::VectorXd slopesOf(FitProblem problem, int number)
{
    problem.free = {number};
    return derivatives(problem);
}

Eigen::VectorXd slopesOfDiameter(FitProblem problem)
{
    constexpr double stepMM = 1e-3;
    problem.diameterMM += stepMM;
    const Eigen::VectorXd larger = distances(problem);
    problem.diameterMM -= 2 * stepMM;
    return (larger - distances(problem)) / (2 * stepMM);
}

void setResponses(const FitProblem &problem, AlignmentFit &fit)
{
    const auto isFree = [&problem](int number) {
        return std::find(problem.free.begin(), problem.free.end(), number) != problem.free.end();
    };
    const auto spread = [&](const Eigen::VectorXd &response, auto &&put) {
        for (std::size_t i = 0; i < problem.free.size(); ++i) {
            const auto field = static_cast<std::size_t>(problem.free[i]);
            if (field < alignmentFieldCount) {
                put(field, response[static_cast<Eigen::Index>(i)]);
            }
        }
    };
    for (std::size_t other = 0; other < alignmentFieldCount; ++other) {
        const int number = static_cast<int>(other);
        if (!isFree(number)) {
            spread(responseTo(problem, slopesOf(problem, number)),
                   [&](std::size_t field, double by) { fit.response[field][other] = by; });
        }
    }
    spread(responseTo(problem, slopesOfDiameter(problem)),
           [&](std::size_t field, double by) { fit.diameterResponse[field] = by; });
}

void setTargets(const FitTargets &targets, bool asksForFov, AlignmentFit &fit)
{
    for (std::size_t i = 0; i < alignmentFieldCount; ++i) {
        const auto field = static_cast<AlignmentField>(i);
        const bool isDirection =
            field == AlignmentField::RearCircleX || field == AlignmentField::RearCircleY;
        const bool isFov = field == AlignmentField::FovYDEG;
        const bool isFitted =
            isFov ? targets.fov : (isDirection ? targets.direction : targets.place);
        if (isFitted) {
            fit.fitted.append(field);
        } else if (!isFov || asksForFov) {
            fit.undetermined.append(field);
        }
    }
}

// Lines that say nothing of the alignment still have a place on the wall.
void fitClocks(const AlignmentClicks &clicks, FitProblem &numbers)
{
    FitProblem problem = clocksProblem(clicks, numbers);
    lookUpClocks(problem);
    if (minimize(problem, FitLoss::Squares).converged) {
        numbers.values = problem.values;
    }
}

Outcome drawingProblem(const FitProblem &problem, const Alignment &alignment,
                       const FitDrawing &drawing)
{
    if (!isInsidePipe(problem)) {
        return problemWith(Text::tr("the clicks say that the camera stands outside of the pipe"));
    }
    if (!isBetween(alignment.cameraHeightPercent, 0.0, 100.0)) {
        return problemWith(
            Text::tr("the first joint lies too far above or below the middle of the picture"));
    }
    if (!canBeShown(alignment)) {
        return problemWith(Text::tr(
            "the clicks say that the first joint or the field of view has an impossible size"));
    }
    if (drawing.isCorrected()) {
        return problemWith(
            Text::tr("the clicks say that the far end lies outside of the first joint"));
    }
    return std::nullopt;
}

void describeCurves(const AlignmentClicks &clicks, const FitProblem &problem,
                    const FitDrawing &drawing, AlignmentFit &fit)
{
    for (int ring = 0; ring < clicks.rings.size(); ++ring) {
        fit.ringDepthsMM.append(std::nullopt);
        fit.ringResiduals.append(QVector<QPointF>());
        if (isComplete(clicks.rings[ring])) {
            const double depthMM = problem.values[placeOfRing(ring)];
            fit.ringDepthsMM.last() = depthMM;
            for (const QPointF &point : clicks.rings[ring].points) {
                fit.ringResiduals.last().append(drawing.fromRing(point, depthMM));
            }
        }
    }
    for (int line = 0; line < clicks.lines.size(); ++line) {
        fit.lineClocksDEG.append(std::nullopt);
        fit.lineResiduals.append(QVector<QPointF>());
        if (isComplete(clicks.lines[line])) {
            const double clockDEG = problem.values[placeOfLine(clicks, line)];
            fit.lineClocksDEG.last() = clockDEG - 360.0 * std::floor(clockDEG / 360.0);
            for (const QPointF &point : clicks.lines[line].points) {
                fit.lineResiduals.last().append(drawing.fromLine(point, clockDEG));
            }
        }
    }
}

void describeDistances(const Fitting &fitting, AlignmentFit &fit)
{
    double squares = 0.0;
    for (const FitClick &click : fitting.problem.clicks) {
        const ClickIndex &at = click.index;
        const QPointF way =
            (at.isLine ? fit.lineResiduals : fit.ringResiduals)[at.feature][at.point];
        squares += QPointF::dotProduct(way, way);
        fit.largestPX = std::max(fit.largestPX, std::hypot(way.x(), way.y()));
    }
    fit.rmsPX = std::sqrt(squares / static_cast<double>(fitting.problem.clicks.size()));
    for (const FitClick &click : fitting.wrong) {
        fit.suspicious.append(click.index);
    }
}

} // namespace

QString alignmentFieldName(AlignmentField field)
{
    switch (field) {
    case AlignmentField::Offset:
        return QStringLiteral("offset");
    case AlignmentField::CameraHeightPercent:
        return QStringLiteral("cameraHeightPercent");
    case AlignmentField::RearCircleX:
        return QStringLiteral("rearCircleX");
    case AlignmentField::RearCircleY:
        return QStringLiteral("rearCircleY");
    case AlignmentField::MouthPercent:
        return QStringLiteral("mouthPercent");
    case AlignmentField::FovYDEG:
        return QStringLiteral("fovYDEG");
    }
    return QString();
}

AlignmentNumbers Alignment::numbers() const
{
    return {offset, cameraHeightPercent, rearCircleX, rearCircleY, mouthPercent, fovYDEG};
}

Alignment Alignment::of(const AlignmentNumbers &numbers)
{
    return {numbers[0], numbers[1], numbers[2], numbers[3], numbers[4], numbers[5]};
}

double AlignmentFit::standardUncertainty(AlignmentField field) const
{
    const auto i = static_cast<std::size_t>(field);
    return std::sqrt(covariance[i][i]);
}

Result<AlignmentFit> fitAlignment(const AlignmentClicks &clicks, const Alignment &start,
                                  double diameterMM, const QSize &picture, double spreadPX)
{
    if (const Outcome wrong = inputProblem(clicks, start, diameterMM, picture, spreadPX)) {
        return *wrong;
    }
    FitProblem numbers{picture, diameterMM, {}, {}, {}};
    const AlignmentNumbers fields = start.numbers();
    numbers.values.assign(fields.begin(), fields.end());
    numbers.values.resize(placeOfLine(clicks, countOf(clicks.lines)));

    Result<Fitting> fitting = fittedWhereDetermined(clicks, numbers, spreadPX);
    if (!fitting) {
        return fitting.problem();
    }
    AlignmentFit fit;
    setTargets(fitting->targets, clicks.fitsFov, fit);
    setCovariance(fitting->problem, spreadPX, fit);
    setResponses(fitting->problem, fit);
    if (fitting->targets.place && !roundOffset(*fitting, fit)) {
        return noneFits();
    }
    if (!fitting->targets.direction) {
        fitClocks(clicks, fitting->problem);
    }
    fit.alignment = Alignment::of(fitting->problem.fields());
    const FitDrawing drawing(fit.alignment, diameterMM, picture);
    if (const Outcome wrong = drawingProblem(fitting->problem, fit.alignment, drawing)) {
        return *wrong;
    }
    describeCurves(clicks, fitting->problem, drawing, fit);
    describeDistances(*fitting, fit);
    return fit;
}

} // namespace Drevon::Zalento::Measuring
