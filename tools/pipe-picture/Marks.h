#pragma once

#include "Scene.h"

#include <array>

namespace PipePicture {

/** Both ends of something that is measured, in the pipe frame, metres. */
using PointPair = std::array<Vec, 2>;

/** The place where a crack's width is measured, counted from its centre line: metres. */
struct CrackProfile
{
    double wander = 0.0;    ///< centre line beside the crack's clock position, along the wall
    double halfWidth = 0.0; ///< along the wall
};

/** Half of the arc, in metres along the wall, whose straight line is `chordMm` long. */
double halfArcM(const SceneSettings &scene, double chordMm);
/** Way along the wall from a clock position to a wall point, clockwise positive, metres. */
double arcFromClock(const SceneSettings &scene, const Vec &point, double clockDeg);

/** Course of the crack at a depth; straight and of the true width where it is measured. */
CrackProfile crackProfile(const SceneSettings &scene, double depthM);
/** Both edges of the crack at the laser spots' depth. */
PointPair crackEdges(const SceneSettings &scene);
/** Centres of the laser spots. */
PointPair laserSpots(const SceneSettings &scene);
/** Near and far tip of the spalled spot. */
PointPair spallTips(const SceneSettings &scene);
/** Both sides of the spalled spot in the middle of its length. */
PointPair spallSides(const SceneSettings &scene);
/** Depths of the joint rings behind the mouth that lie within the modelled length, metres. */
std::vector<double> jointDepths(const SceneSettings &scene);

} // namespace PipePicture
