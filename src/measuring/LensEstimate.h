#pragma once

#include "measuring/Export.h"
#include "measuring/Lens.h"
#include "measuring/Result.h"
#include "measuring/Session.h"

namespace Drevon::Zalento::Measuring {

/** A lens with one radial coefficient that the joints of a session tell of. */
struct RadialEstimate
{
    Lens lens;                        ///< with #k1 as its only coefficient
    double k1 = 0.0;                  ///< of r², without unit
    double standardUncertainty = 0.0; ///< of #k1
};

/** Fewest joints that a radial coefficient is estimated from. */
constexpr int smallestRadialRings = 3;

/**
 * Estimates the radial distortion k1 of the lens through which the session's picture was taken from
 * the clicks on three joints or more, whose distances from each other have to be known or that
 * stand well beside the picture's middle: the coefficient with which the fit of the alignment
 * leaves the smallest residuals in the picture as it was taken. The lens's middle is taken for the
 * picture's. Its focal length is the one that the session's field of view gives, or the fitted one
 * where the session asks for it.
 *
 * The uncertainty follows the curvature of the sum of squares at its smallest, and with it the
 * spread of the clicks.
 *
 * @return a problem for a session with a lens, for too few joints, where the alignment fits with no
 *         coefficient, and where the clicks leave it open by more than they stand off
 */
ZALENTO_MEASURING_EXPORT Result<RadialEstimate> estimateRadial(const Session &session);

} // namespace Drevon::Zalento::Measuring
