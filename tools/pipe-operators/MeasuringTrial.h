#pragma once

#include "measuring/Session.h"
#include "measuring/Uncertainty.h"

#include <array>
#include <random>

namespace Drevon::Zalento::Tools {

/** What an operator measures. */
enum class Task {
    Length,     ///< between two points of the wall
    Area,       ///< of an outline on a plane that was laid by eye
    CrackWidth, ///< with a scale from laser spots
    WaterLevel, ///< set by eye
};

/** How the model comes to lie on the picture. */
enum class AlignedBy {
    Joints, ///< fitted to two joints of six clicks, the distance between them known
    Eye,    ///< the mouth's ring and the far ring drawn onto those of the picture
};

/**
 * One operator's measurement, with everything as wrong as the default standard uncertainties say:
 * clicks and whole pixels, diameter, field of view, alignment, laser, and what is set by eye.
 */
struct MeasuringTrial
{
    Measuring::Session session; ///< as the operator leaves it
    double truth = 0.0;         ///< of the first value, in its unit
};

MeasuringTrial drawTrial(Task task, AlignedBy aligned, std::mt19937_64 &random);

/** How the stated uncertainties of many operators compare with their errors. */
struct CoverageTally
{
    int trials = 0;     ///< with a value
    int covered = 0;    ///< by value ± U
    int firstOrder = 0; ///< for which the first order passed the check
    /** Of those, whose standard uncertainties by both methods differ by no more than a tenth. */
    int agreeing = 0;
    /** Root mean square of error over standard uncertainty. */
    double errorOverUncertainty = 0.0;
    double medianRelativeU = 0.0; ///< of U over the value
};

/** The first trials are the same however many there are. */
CoverageTally runTrials(Task task, AlignedBy aligned, int trials);

} // namespace Drevon::Zalento::Tools
