#include "measuring/FitOutliers.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr int clicksForOneWrong = 8;

// A click further off than this many standard deviations is wrong: of 2000 good ones it takes one.
constexpr double largestDeviation = 3.5;

// Keeps the deviation of a click finite that alone determines a number.
constexpr double smallestFreedom = 1e-3;

// Of good clicks one picture in a thousand has a spread that seems larger than it is.
constexpr double normalQuantile999 = 3.090;

// What is left when one click goes.
struct Rest
{
    FitProblem problem;
    FitClick taken;
    double loss;
};

// How much of a click's own error a fit takes up that counts clicks with these weights.
Eigen::VectorXd leverages(const FitProblem &problem, const Eigen::VectorXd &weights)
{
    const Eigen::MatrixXd j = weights.cwiseSqrt().asDiagonal() * derivatives(problem);
    return (j * inverseOfSquares(j)).cwiseProduct(j).rowwise().sum();
}

// The click that stands out most from the nearest minimum, without it.
std::optional<Rest> withoutMostDeviating(FitProblem problem, FitLoss loss)
{
    if (!minimize(problem, loss).converged) {
        return std::nullopt;
    }
    const Eigen::VectorXd r = distances(problem);
    const Eigen::VectorXd weights =
        loss == FitLoss::Huber ? huberWeights(r) : Eigen::VectorXd::Ones(r.size());
    const Eigen::VectorXd free = (1.0 - leverages(problem, weights).array()).max(smallestFreedom);
    Eigen::Index worst = 0;
    (r.array().abs() / free.array().sqrt()).maxCoeff(&worst);

    Rest rest{problem, problem.clicks[static_cast<std::size_t>(worst)], 0.0};
    rest.problem.clicks.erase(rest.problem.clicks.begin() + worst);
    const FitOutcome outcome = minimize(rest.problem, FitLoss::Huber);
    rest.loss = outcome.loss;
    return outcome.converged ? std::optional<Rest>(rest) : std::nullopt;
}

// Squares tell a small mistake best, Huber's loss a large one: the better rest decides.
std::optional<Rest> withoutWorst(const FitProblem &problem)
{
    const std::optional<Rest> a = withoutMostDeviating(problem, FitLoss::Squares);
    const std::optional<Rest> b = withoutMostDeviating(problem, FitLoss::Huber);
    return !b || (a && a->loss <= b->loss) ? a : b;
}

// How far a click lies from where the others put its curve, in standard deviations of both. The
// standard deviation of a click is the larger one of spreadPX and what the others show.
double deviationFrom(const FitProblem &others, const FitClick &click, double spreadPX)
{
    FitProblem one = others;
    one.clicks = {click};
    const double distance = distances(one)[0];
    const Eigen::MatrixXd slope = derivatives(one);
    const double taken = (slope * unitCovariance(others) * slope.transpose())(0, 0);
    const double spread =
        std::max(spreadPX, std::sqrt(distances(others).squaredNorm() / others.degreesOfFreedom()));
    return std::abs(distance) / (spread * std::sqrt(1.0 + taken));
}

// Of chi-square over its degrees of freedom (E. B. Wilson, M. M. Hilferty, 1931).
double chiSquareQuantile999(int degreesOfFreedom)
{
    const double v = 2.0 / (9.0 * degreesOfFreedom);
    return std::pow(1.0 - v + normalQuantile999 * std::sqrt(v), 3);
}

} // namespace

std::vector<FitClick> takeOutWrongClicks(FitProblem &problem, double spreadPX)
{
    const int most =
        (static_cast<int>(problem.clicks.size()) + clicksForOneWrong - 1) / clicksForOneWrong;
    FitProblem rest = problem;
    std::vector<FitClick> taken;
    std::size_t wrong = 0;
    while (static_cast<int>(taken.size()) < most && rest.degreesOfFreedom() > 1) {
        const std::optional<Rest> next = withoutWorst(rest);
        if (!next) {
            break;
        }
        taken.push_back(next->taken);
        rest = next->problem;
        if (deviationFrom(rest, taken.back(), spreadPX) > largestDeviation) {
            wrong = taken.size();
            problem = rest;
        }
    }
    taken.resize(wrong);
    return taken;
}

double spreadOf(const FitProblem &problem, double spreadPX)
{
    const int freedom = problem.degreesOfFreedom();
    if (freedom < 1) {
        return spreadPX;
    }
    const double variance = distances(problem).squaredNorm() / freedom;
    const bool isLarger = variance > spreadPX * spreadPX * chiSquareQuantile999(freedom);
    return isLarger ? std::sqrt(variance) : spreadPX;
}

} // namespace Drevon::Zalento::Measuring
