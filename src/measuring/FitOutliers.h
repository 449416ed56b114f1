#pragma once

#include "measuring/FitProblem.h"

namespace Drevon::Zalento::Measuring {

/**
 * Takes clicks that do not fit the others out of a problem that stands at the minimum of Huber's
 * loss, and moves it to that of the rest: one in eight at most. @return the clicks taken out.
 *
 * Data snooping (W. Baarda, 1968): the click that stands out most goes first, the rest is fitted
 * again, and the click is wrong when it lies too far from where the rest puts its curve. As one
 * wrong click may hide behind another, one in eight are taken out in turn, and the last one that is
 * wrong decides how many stay out (B. Rosner, 1983).
 */
std::vector<FitClick> takeOutWrongClicks(FitProblem &problem, double spreadPX);

/** Standard deviation of a click: @p spreadPX, or the clicks' own where it is clearly larger. */
double spreadOf(const FitProblem &problem, double spreadPX);

} // namespace Drevon::Zalento::Measuring
