#include "measuring/FitPlan.h"

#include "measuring/Count.h"

#include "zalento/math/angles.h"
#include "zalento/pipes/gestureUnits.h"

#include <Eigen/Eigenvalues>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <set>

namespace Drevon::Zalento::Measuring {

namespace {

// Beyond these standard uncertainties the clicks are no better than an alignment by eye: a fifth of
// the turn that brings the far end from the middle to the edge, a tenth of the diameter of the
// place, a tenth of the size of the mouth or of the tangent of half the field of view. They move a
// length on the wall by 12, 18, 3 and 2 percent (medians over random cameras). A free choice.
constexpr double largestTurn = 0.2;
constexpr double largestShift = 0.1;
constexpr double largestShare = 0.1;

template <typename Features>
int completeCount(const Features &features)
{
    return static_cast<int>(std::count_if(features.begin(), features.end(),
                                          [](const auto &feature) { return isComplete(feature); }));
}

int mouthOf(const AlignmentClicks &clicks)
{
    int ring = 0;
    while (ring < clicks.rings.size() && !isComplete(clicks.rings[ring])) {
        ++ring;
    }
    return ring;
}

// Distances count from the first ring.
std::optional<double> distanceOf(const AlignmentClicks &clicks, int ring)
{
    const std::optional<double> given = clicks.rings[ring].distanceMM;
    return given || ring > 0 ? given : std::optional<double>(0.0);
}

std::optional<double> knownDepth(const AlignmentClicks &clicks, int ring)
{
    const int mouth = mouthOf(clicks);
    if (ring == mouth) {
        return 0.0;
    }
    const std::optional<double> from = distanceOf(clicks, mouth);
    const std::optional<double> to = distanceOf(clicks, ring);
    return from && to ? std::optional<double>(*to - *from) : std::nullopt;
}

bool knowsADistance(const AlignmentClicks &clicks)
{
    for (int ring = mouthOf(clicks) + 1; ring < clicks.rings.size(); ++ring) {
        if (isComplete(clicks.rings[ring]) && knownDepth(clicks, ring)) {
            return true;
        }
    }
    return false;
}

void addClicks(FitProblem &problem, const QVector<QPointF> &points, ClickIndex index,
               std::size_t own)
{
    for (; index.point < points.size(); ++index.point) {
        problem.clicks.push_back({points[index.point], index, static_cast<int>(own)});
    }
}

void addRings(FitProblem &problem, const AlignmentClicks &clicks)
{
    for (int ring = 0; ring < clicks.rings.size(); ++ring) {
        if (!isComplete(clicks.rings[ring])) {
            continue;
        }
        const std::size_t place = placeOfRing(ring);
        addClicks(problem, clicks.rings[ring].points, {false, ring, 0}, place);
        if (const std::optional<double> depthMM = knownDepth(clicks, ring)) {
            problem.values[place] = *depthMM;
        } else {
            problem.free.push_back(static_cast<int>(place));
        }
    }
}

void addLines(FitProblem &problem, const AlignmentClicks &clicks)
{
    for (int line = 0; line < clicks.lines.size(); ++line) {
        if (isComplete(clicks.lines[line])) {
            const std::size_t place = placeOfLine(clicks, line);
            addClicks(problem, clicks.lines[line].points, {true, line, 0}, place);
            problem.free.push_back(static_cast<int>(place));
        }
    }
}

constexpr std::array placeFields{AlignmentField::Offset, AlignmentField::CameraHeightPercent,
                                 AlignmentField::MouthPercent};
constexpr std::array directionFields{AlignmentField::RearCircleX, AlignmentField::RearCircleY};

template <typename Fields>
void addFields(FitProblem &problem, const Fields &fields)
{
    for (const AlignmentField field : fields) {
        problem.free.push_back(static_cast<int>(field));
    }
}

// Alignment fields come first among the free numbers; returns the field's row in the covariance.
Eigen::Index rowOf(const FitProblem &problem, AlignmentField field)
{
    const auto found = std::find(problem.free.begin(), problem.free.end(), static_cast<int>(field));
    return found - problem.free.begin();
}

double uncertainty(const FitProblem &problem, const Eigen::MatrixXd &covariance,
                   AlignmentField field)
{
    const Eigen::Index row = rowOf(problem, field);
    return std::sqrt(covariance(row, row));
}

bool isFovDetermined(const FitProblem &problem, const Eigen::MatrixXd &covariance)
{
    const double fov = problem.values[placeOfField(AlignmentField::FovYDEG)] * radiansPerDegree;
    const double u = uncertainty(problem, covariance, AlignmentField::FovYDEG) * radiansPerDegree;
    // d ln tan(F/2) = dF / sin F
    return u <= largestShare * std::sin(fov);
}

// The worst direction of the two counts: one line along the pipe gives the other one well. The bent
// shape of a single ring tells two directions, not which of them.
bool isDirectionDetermined(const FitProblem &problem, const Eigen::MatrixXd &covariance)
{
    const Eigen::Index x = rowOf(problem, AlignmentField::RearCircleX);
    const Eigen::Index y = rowOf(problem, AlignmentField::RearCircleY);
    Eigen::Matrix2d block;
    block << covariance(x, x), covariance(x, y), covariance(y, x), covariance(y, y);
    const Eigen::Vector2d turns(1 / rearCircleRangeX, 1 / rearCircleRangeY);
    const Eigen::Matrix2d inTurns = turns.asDiagonal() * block * turns.asDiagonal();
    const Eigen::SelfAdjointEigenSolver<Eigen::Matrix2d> solver(inTurns, Eigen::EigenvaluesOnly);
    return solver.eigenvalues().maxCoeff() <= largestTurn * largestTurn;
}

// What the lines alone tell of the direction and of where they run.
FitProblem linesOf(const FitProblem &problem)
{
    FitProblem lines = problem;
    lines.clicks.clear();
    std::copy_if(problem.clicks.begin(), problem.clicks.end(), std::back_inserter(lines.clicks),
                 [](const FitClick &click) { return click.index.isLine; });
    lines.free.clear();
    addFields(lines, directionFields);
    for (const FitClick &click : lines.clicks) {
        if (lines.free.back() != click.own) {
            lines.free.push_back(click.own);
        }
    }
    return lines;
}

bool hasOneRing(const FitProblem &problem)
{
    std::set<int> rings;
    for (const FitClick &click : problem.clicks) {
        if (!click.index.isLine) {
            rings.insert(click.own);
        }
    }
    return rings.size() == 1;
}

bool isPlaceDetermined(const FitProblem &problem, const Eigen::MatrixXd &covariance)
{
    const auto u = [&](AlignmentField field) { return uncertainty(problem, covariance, field); };
    const double mouth = problem.values[placeOfField(AlignmentField::MouthPercent)];
    return u(AlignmentField::Offset) <= largestShift * unitsPerDiameter &&
           u(AlignmentField::CameraHeightPercent) <= largestShift * 100.0 &&
           u(AlignmentField::MouthPercent) <= largestShare * mouth;
}

} // namespace

bool isComplete(const RingClicks &ring)
{
    return ring.points.size() >= smallestRingClicks;
}

bool isComplete(const LineClicks &line)
{
    return line.points.size() >= smallestLineClicks;
}

std::size_t placeOfField(AlignmentField field)
{
    return static_cast<std::size_t>(field);
}

std::size_t placeOfRing(int ring)
{
    return alignmentFieldCount + static_cast<std::size_t>(ring);
}

std::size_t placeOfLine(const AlignmentClicks &clicks, int line)
{
    return placeOfRing(countOf(clicks.rings)) + static_cast<std::size_t>(line);
}

FitTargets possibleTargets(const AlignmentClicks &clicks)
{
    const int rings = completeCount(clicks.rings);
    const int lines = completeCount(clicks.lines);
    FitTargets targets;
    targets.place = rings > 0;
    targets.direction = targets.place ? rings + lines > 1 : lines > 1;
    targets.fov = clicks.fitsFov && knowsADistance(clicks);
    return targets;
}

FitProblem problemFor(const AlignmentClicks &clicks, const FitProblem &numbers,
                      const FitTargets &targets)
{
    FitProblem problem = numbers;
    problem.free.clear();
    problem.clicks.clear();
    if (targets.place) {
        addFields(problem, placeFields);
    }
    if (targets.fov) {
        problem.free.push_back(static_cast<int>(AlignmentField::FovYDEG));
    }
    addRings(problem, clicks);
    if (targets.direction) {
        addFields(problem, directionFields);
        addLines(problem, clicks);
    }
    return problem;
}

FitProblem clocksProblem(const AlignmentClicks &clicks, const FitProblem &numbers)
{
    FitProblem problem = numbers;
    problem.free.clear();
    problem.clicks.clear();
    addLines(problem, clicks);
    return problem;
}

FitTargets determinedTargets(const FitProblem &problem, const FitTargets &targets, double spreadPX)
{
    const double variance = spreadPX * spreadPX;
    const Eigen::MatrixXd covariance = unitCovariance(problem) * variance;
    FitTargets result = targets;
    if (targets.fov && !isFovDetermined(problem, covariance)) {
        result.fov = false;
    } else if (targets.direction && !isDirectionDetermined(problem, covariance)) {
        result.direction = false;
    } else if (targets.direction && hasOneRing(problem)) {
        const FitProblem lines = linesOf(problem);
        result.direction = lines.degreesOfFreedom() >= 0 &&
                           isDirectionDetermined(lines, unitCovariance(lines) * variance);
    }
    if (result == targets && targets.place && !isPlaceDetermined(problem, covariance)) {
        return {};
    }
    return result;
}

} // namespace Drevon::Zalento::Measuring
