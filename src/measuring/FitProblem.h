#pragma once

#include "measuring/AlignmentFit.h"

#include <Eigen/Core>

#include <vector>

namespace Drevon::Zalento::Measuring {

/** A click with the feature's own number that it depends on beside the alignment. */
struct FitClick
{
    QPointF pixel;    ///< where it was clicked
    ClickIndex index; ///< which one it is
    int own = 0;      ///< place in FitProblem::values: the ring's depth or the line's clock angle
};

/**
 * A least-squares problem: numbers, some of them free, and clicks whose distances from their curves
 * are to become small.
 */
struct FitProblem
{
    QSize picture;           ///< upright, in pixels
    double diameterMM = 0.0; ///< inner diameter of the pipe
    /** The alignment in the order of AlignmentField, then the depth of each ring in mm, then the
        clock angle of each line in degrees. */
    std::vector<double> values;
    std::vector<int> free;        ///< places in #values that the search may change
    std::vector<FitClick> clicks; ///< those that count

    /** Clicks beyond those that the free numbers need. */
    int degreesOfFreedom() const
    {
        return static_cast<int>(clicks.size()) - static_cast<int>(free.size());
    }
    /** The alignment among #values. */
    AlignmentNumbers fields() const;
};

/** How the squares of the distances count. */
enum class FitLoss {
    Squares, ///< as they are
    Huber    ///< beyond two pixels linearly, so that wrong clicks pull less (P. J. Huber, 1964)
};

/** Distances of the clicks in pixels, signed. */
ZALENTO_MEASURING_EXPORT Eigen::VectorXd distances(const FitProblem &problem);

/** Derivatives of the distances with respect to the free numbers, a row a click. */
ZALENTO_MEASURING_EXPORT Eigen::MatrixXd derivatives(const FitProblem &problem);

/** How much each click counts in the normal equations of Huber's loss, (0, 1]. */
Eigen::VectorXd huberWeights(const Eigen::VectorXd &distances);

/** The inverse of @p j's transpose times @p j, of which no element is infinite. */
Eigen::MatrixXd inverseOfSquares(const Eigen::MatrixXd &j);

/** Covariance of the free numbers for clicks of variance 1 px². A direction that the clicks do not
    determine at all gets a variance that is very large, but finite. */
Eigen::MatrixXd unitCovariance(const FitProblem &problem);

/** How the free numbers follow at a minimum when the distances change by @p change, first order. */
Eigen::VectorXd responseTo(const FitProblem &problem, const Eigen::VectorXd &change);

/** Moves the free numbers to the nearest minimum of the loss (Levenberg-Marquardt); false when it
    finds none. @return also the loss there, in px². */
struct FitOutcome
{
    bool converged = false; ///< a minimum was found
    double loss = 0.0;      ///< there, in px²
};
FitOutcome minimize(FitProblem &problem, FitLoss loss);

} // namespace Drevon::Zalento::Measuring
