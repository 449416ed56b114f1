#pragma once

#include "measuring/AlignmentFit.h"

#include <array>
#include <random>
#include <vector>

namespace Drevon::Zalento::Tools {

/** What an operator sees of the pipe and clicks on. */
enum class Situation {
    KnownDistance,       ///< two joints of six clicks, with the distance between them
    KnownDistanceAndFov, ///< the same; the field of view is asked for
    UnknownDistance,     ///< two joints of six clicks
    PartialJoints,       ///< two joints of six clicks on the third of the circle that can be seen
    JointAndLines        ///< a joint of six clicks and three lines of four
};

/**
 * One operator before one picture. The camera is a pinhole of its own, in the usual frame of a
 * camera (x right, y down, z forward), and shares nothing with the overlay's.
 */
struct AlignmentTrial
{
    QSize picture;
    double diameterMM = 0.0;
    Measuring::Alignment truth;
    Measuring::AlignmentClicks clicks;
    std::array<QPointF, 2> wallPixels; ///< exactly where two points of the wall are seen
    double lengthMM = 0.0;             ///< the straight distance between them
};

/**
 * Draws a pipe of 150 to 900 mm, a field of view of 25 to 100 degrees, a camera up to a tenth of
 * the diameter off the axis and turned by up to a quarter of the field of view, and clicks with a
 * normal spread of @p spreadPX in x and y. Everything that is clicked lies in the picture, and the
 * picture's middle lies between the heights of the mouth's top and bottom.
 */
AlignmentTrial drawTrial(Situation situation, std::mt19937_64 &random, double spreadPX);

/** Length between the trial's two points of the wall for another alignment; 0 when a point does not
    lie on its wall. */
double lengthMM(const AlignmentTrial &trial, const Measuring::Alignment &alignment);

/** What many operators got. */
struct TrialTally
{
    int trials = 0;
    int fitted = 0;                   ///< fits with everything determined that was asked for
    std::vector<double> lengthErrors; ///< relative, of each fit
    /** Root mean square of error over standard uncertainty, of each field; 0 where not fitted. */
    Measuring::AlignmentNumbers errorOverUncertainty{};

    /** The median of #lengthErrors. */
    double medianLengthError() const;
};

/** The first trials are the same however many there are. Fields that are not fitted start as they
    are in truth. */
TrialTally runTrials(Situation situation, int trials, double spreadPX);

} // namespace Drevon::Zalento::Tools
