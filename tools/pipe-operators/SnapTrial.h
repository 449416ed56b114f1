#pragma once

#include "measuring/Session.h"

#include <QImage>

#include <random>
#include <vector>

namespace Drevon::Zalento::Tools {

/** A picture with a visible joint, and a session that has it roughly. */
struct SnapTrial
{
    QImage picture;
    Measuring::Session session;    ///< off by a twentieth of the diameter
    std::vector<QPointF> trueRing; ///< where the joint's edge is seen
};

/**
 * Draws a pipe with noise, light that falls off, dirt, water or a deposit, from a camera that is
 * off the axis and turned; dirt hides a third of the joint in every other picture.
 */
SnapTrial drawSnapTrial(std::mt19937_64 &random);

/** What became of many. */
struct SnapTally
{
    int trials = 0;
    int found = 0;
    int exact = 0; ///< within half a pixel, root mean square
    int wrong = 0; ///< found, but more than two pixels off
    double medianRmsPX = 0.0;
    double largestRmsPX = 0.0; ///< of those found
};

/** The first trials are the same however many there are. */
SnapTally runSnapTrials(int trials);

} // namespace Drevon::Zalento::Tools
