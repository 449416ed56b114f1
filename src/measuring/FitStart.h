#pragma once

#include "measuring/FitPlan.h"

#include <vector>

namespace Drevon::Zalento::Measuring {

/**
 * Numbers to begin the search with, in the order of FitProblem::values, from the clicks alone: the
 * size of a ring gives how far away it is, the centres of two rings or the point where lines meet
 * give the direction. Several, because neither the field of view nor a direction need be known.
 * Numbers that the search may change play no part, so that a fit begun at its own result repeats
 * it.
 */
std::vector<std::vector<double>> startingValues(const FitProblem &problem,
                                                const FitTargets &targets);

/** Sets the clock angle of each line to where its clicks lie on the wall. */
void lookUpClocks(FitProblem &problem);

} // namespace Drevon::Zalento::Measuring
