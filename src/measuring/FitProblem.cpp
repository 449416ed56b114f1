#include "measuring/FitProblem.h"

#include "measuring/FitCamera.h"

#include <Eigen/SVD>
#include <unsupported/Eigen/AutoDiff>
#include <unsupported/Eigen/NonLinearOptimization>

#include <algorithm>

namespace Drevon::Zalento::Measuring {

namespace {

// A click's distance depends on the alignment and on one number of its ring or line.
constexpr int ownPlace = alignmentFieldCount;
using Slopes = Eigen::Matrix<double, alignmentFieldCount + 1, 1>;
using Differentiable = Eigen::AutoDiffScalar<Slopes>;

// Where Huber's loss goes over from squares to a straight line: two standard deviations of a click.
constexpr double huberPX = 2.0 * clickSpreadPX;

// Searches that need more steps than this go nowhere.
constexpr int largestEvaluations = 200;
constexpr double relativeTolerance = 1e-10;

// Singular values below this share of the largest one count as this share.
constexpr double smallestShare = 1e-9;

template <typename T>
T distanceOf(const FitProblem &problem, const FitCamera<T> &camera, const FitClick &click,
             const T &own)
{
    return click.index.isLine ? camera.lineDistance(click.pixel, own)
                              : camera.ringDistance(click.pixel, own * (1 / problem.diameterMM));
}

// The signed root of Huber's loss, so that its square is what counts.
double dampened(double distance)
{
    const double size = std::abs(distance);
    return size <= huberPX ? distance
                           : std::copysign(std::sqrt(huberPX * (2 * size - huberPX)), distance);
}

double dampenedSlope(double distance)
{
    return std::abs(distance) <= huberPX ? 1.0 : huberPX / std::abs(dampened(distance));
}

// The shape that the library's solver asks for.
struct Functor
{
    using Scalar = double;
    FitProblem &problem;
    FitLoss loss;

    void take(const Eigen::VectorXd &x) const
    {
        for (std::size_t i = 0; i < problem.free.size(); ++i) {
            problem.values[static_cast<std::size_t>(problem.free[i])] =
                x[static_cast<Eigen::Index>(i)];
        }
    }
    Eigen::VectorXd given() const
    {
        Eigen::VectorXd x(problem.free.size());
        for (std::size_t i = 0; i < problem.free.size(); ++i) {
            x[static_cast<Eigen::Index>(i)] =
                problem.values[static_cast<std::size_t>(problem.free[i])];
        }
        return x;
    }

    Eigen::Index inputs() const { return static_cast<Eigen::Index>(problem.free.size()); }
    Eigen::Index values() const { return static_cast<Eigen::Index>(problem.clicks.size()); }

    int operator()(const Eigen::VectorXd &x, Eigen::VectorXd &result) const
    {
        take(x);
        result = distances(problem);
        if (loss == FitLoss::Huber) {
            result = result.unaryExpr(&dampened);
        }
        return 0;
    }

    int df(const Eigen::VectorXd &x, Eigen::MatrixXd &result) const
    {
        take(x);
        result = derivatives(problem);
        if (loss == FitLoss::Huber) {
            result = distances(problem).unaryExpr(&dampenedSlope).asDiagonal() * result;
        }
        return 0;
    }
};

} // namespace

AlignmentNumbers FitProblem::fields() const
{
    AlignmentNumbers fields;
    std::copy_n(values.begin(), fields.size(), fields.begin());
    return fields;
}

Eigen::VectorXd distances(const FitProblem &problem)
{
    const FitCamera<double> camera(problem.fields(), problem.picture);
    Eigen::VectorXd result(problem.clicks.size());
    for (std::size_t i = 0; i < problem.clicks.size(); ++i) {
        const FitClick &click = problem.clicks[i];
        const double own = problem.values[static_cast<std::size_t>(click.own)];
        result[static_cast<Eigen::Index>(i)] = distanceOf(problem, camera, click, own);
    }
    return result;
}

Eigen::MatrixXd derivatives(const FitProblem &problem)
{
    std::array<Differentiable, alignmentFieldCount> fields;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i] = Differentiable(problem.values[i], ownPlace + 1, static_cast<int>(i));
    }
    const FitCamera<Differentiable> camera(fields, problem.picture);
    Eigen::MatrixXd result = Eigen::MatrixXd::Zero(static_cast<int>(problem.clicks.size()),
                                                   static_cast<int>(problem.free.size()));
    for (std::size_t row = 0; row < problem.clicks.size(); ++row) {
        const FitClick &click = problem.clicks[row];
        const Differentiable own(problem.values[static_cast<std::size_t>(click.own)], ownPlace + 1,
                                 ownPlace);
        const Slopes slopes = distanceOf(problem, camera, click, own).derivatives();
        for (std::size_t column = 0; column < problem.free.size(); ++column) {
            const int place = problem.free[column];
            if (place < ownPlace || place == click.own) {
                result(static_cast<int>(row), static_cast<int>(column)) =
                    slopes[std::min(place, ownPlace)];
            }
        }
    }
    return result;
}

Eigen::VectorXd huberWeights(const Eigen::VectorXd &distances)
{
    return (huberPX * distances.cwiseAbs().cwiseMax(huberPX).cwiseInverse());
}

// From the singular values, after the columns are brought to length 1: the free numbers have
// different units.
Eigen::MatrixXd inverseOfSquares(const Eigen::MatrixXd &given)
{
    Eigen::MatrixXd j = given;
    const Eigen::VectorXd scale = j.colwise().norm().cwiseMax(smallestShare).cwiseInverse();
    j *= scale.asDiagonal();
    const Eigen::JacobiSVD<Eigen::MatrixXd> svd(j, Eigen::ComputeThinU | Eigen::ComputeThinV);
    const Eigen::VectorXd &s = svd.singularValues();
    const Eigen::VectorXd inverse = s.cwiseMax(s.maxCoeff() * smallestShare).cwiseInverse();
    const Eigen::MatrixXd root = scale.asDiagonal() * svd.matrixV() * inverse.asDiagonal();
    return root * root.transpose();
}

Eigen::MatrixXd unitCovariance(const FitProblem &problem)
{
    return inverseOfSquares(derivatives(problem));
}

// The normal equations of Gauss and Newton.
Eigen::VectorXd responseTo(const FitProblem &problem, const Eigen::VectorXd &change)
{
    const Eigen::MatrixXd slopes = derivatives(problem);
    return -inverseOfSquares(slopes) * (slopes.transpose() * change);
}

FitOutcome minimize(FitProblem &problem, FitLoss loss)
{
    if (problem.clicks.empty() || problem.degreesOfFreedom() < 0) {
        return {};
    }
    Functor functor{problem, loss};
    Eigen::VectorXd x = functor.given();
    if (x.size() > 0) {
        Eigen::LevenbergMarquardt<Functor> solver(functor);
        solver.parameters.maxfev = largestEvaluations;
        solver.parameters.ftol = relativeTolerance;
        solver.parameters.xtol = relativeTolerance;
        const auto status = solver.minimize(x);
        if (status == Eigen::LevenbergMarquardtSpace::TooManyFunctionEvaluation ||
            status == Eigen::LevenbergMarquardtSpace::ImproperInputParameters) {
            return {};
        }
    }
    Eigen::VectorXd result(problem.clicks.size());
    functor(x, result);
    const bool allSeen = distances(problem).cwiseAbs().maxCoeff() < outOfSightPX;
    return {allSeen && result.allFinite() && x.allFinite(), result.squaredNorm()};
}

} // namespace Drevon::Zalento::Measuring
