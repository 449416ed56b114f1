#pragma once

#include "measuring/AlignmentFit.h"
#include "measuring/MeasuringModel.h"
#include "measuring/Uncertainty.h"

#include <Eigen/SparseCore>

#include <optional>
#include <vector>

namespace Drevon::Zalento::Measuring {

/** How a factor is distributed. */
enum class Distribution {
    Normal,
    Rectangular,
};

/**
 * One independent cause of errors, with the standard deviation 1: all that it moves, it moves
 * together. Inputs that depend on each other, such as the fields of a fitted alignment, are moved
 * by several factors.
 */
struct UncertaintyFactor
{
    UncertaintySource source = UncertaintySource::Clicks; ///< the row of the budget
    Distribution distribution = Distribution::Normal;     ///< that is drawn from
    /** Of the inputs by one standard deviation; a click moves few of many. */
    Eigen::SparseVector<double> shift;
};

/**
 * The factors of a session's values.
 * @param session one that measures something, its points placed
 * @param fit of its alignment, if it has one
 */
std::vector<UncertaintyFactor> uncertaintyFactors(const Session &session,
                                                  const std::optional<AlignmentFit> &fit,
                                                  const MeasuringModel &model);

} // namespace Drevon::Zalento::Measuring
