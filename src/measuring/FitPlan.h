#pragma once

#include "measuring/FitProblem.h"

namespace Drevon::Zalento::Measuring {

/** What the search looks for; the rest of the alignment stays as it is. */
struct FitTargets
{
    bool place = false;     ///< offset, camera height and size of the mouth
    bool direction = false; ///< rear circle
    bool fov = false;       ///< vertical field of view

    /** Nothing is to be fitted. */
    bool isEmpty() const { return !place && !direction && !fov; }
};

inline bool operator==(const FitTargets &a, const FitTargets &b)
{
    return a.place == b.place && a.direction == b.direction && a.fov == b.fov;
}

/** True for a ring of three clicks and for a line of two; others are left out. */
bool isComplete(const RingClicks &ring);
bool isComplete(const LineClicks &line);

/** Where a feature's own number stands in FitProblem::values. */
std::size_t placeOfField(AlignmentField field);
std::size_t placeOfRing(int ring);
std::size_t placeOfLine(const AlignmentClicks &clicks, int line);

/** What the clicks may determine, by their kinds and number. */
FitTargets possibleTargets(const AlignmentClicks &clicks);

/** The problem for these targets from numbers to begin with: rings always count, lines where the
    direction is looked for. */
FitProblem problemFor(const AlignmentClicks &clicks, const FitProblem &numbers,
                      const FitTargets &targets);

/** The lines alone, for an alignment that stands. */
FitProblem clocksProblem(const AlignmentClicks &clicks, const FitProblem &numbers);

/**
 * The targets without the first one that the clicks of a problem at its minimum do not determine,
 * by its standard uncertainty; the same targets when they determine all of them. None is left when
 * they do not even determine the place.
 */
FitTargets determinedTargets(const FitProblem &problem, const FitTargets &targets, double spreadPX);

} // namespace Drevon::Zalento::Measuring
