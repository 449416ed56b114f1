#include "Marks.h"

#include "Noise.h"

namespace PipePicture {

namespace {

constexpr double modelLengthDiameters = 10.0;
constexpr quint32 crackSeed = 101;
// How far a crack wanders from a straight line, as a share of the radius.
constexpr double crackWander = 0.10;
// Bends of a crack per metre.
constexpr double crackBends = 7.0;
// Lengths, as shares of the diameter, up to which a crack is straight and from which it is free.
constexpr double crackStraight = 0.06;
constexpr double crackFree = 0.5;

Vec wall(const SceneSettings &scene, double clockDeg, double depthMm)
{
    return clockDirection(clockDeg) * scene.radiusM() + Vec{0.0, 0.0, -depthMm * 0.001};
}

PointPair chord(const SceneSettings &scene, double clockDeg, double depthMm, double lengthMm)
{
    const double half = degrees(std::asin(lengthMm / scene.diameterMm));
    return {wall(scene, clockDeg - half, depthMm), wall(scene, clockDeg + half, depthMm)};
}

} // namespace

double halfArcM(const SceneSettings &scene, double chordMm)
{
    return scene.radiusM() * std::asin(chordMm / scene.diameterMm);
}

double arcFromClock(const SceneSettings &scene, const Vec &point, double clockDeg)
{
    const double turned = std::atan2(-point.x, point.y) - radians(clockDeg);
    return scene.radiusM() * std::remainder(turned, 2.0 * pi);
}

CrackProfile crackProfile(const SceneSettings &scene, double depthM)
{
    const double u = depthM - scene.crack.depthMm * 0.001;
    const double away = std::fabs(u);
    const double free = smoothStep(crackStraight, crackFree, away / scene.diameterM());
    const double bends = fractal({u * crackBends, 0.4, 0.3}, 6, scene.seed + crackSeed);
    const double swell = fractal({u * 45.0, 7.4, 0.3}, 3, scene.seed + crackSeed);
    const double taper = 1.0 - smoothStep(0.2, 1.0, away / (scene.crack.lengthMm * 0.0005));
    CrackProfile profile;
    profile.wander = free * crackWander * scene.radiusM() * bends;
    profile.halfWidth = halfArcM(scene, scene.crack.widthMm) * (1.0 + 0.45 * free * swell) * taper;
    return profile;
}

PointPair crackEdges(const SceneSettings &scene)
{
    return chord(scene, scene.crack.clockDeg, scene.crack.depthMm, scene.crack.widthMm);
}

PointPair laserSpots(const SceneSettings &scene)
{
    return chord(scene, scene.crack.clockDeg, scene.crack.depthMm, scene.laser.distanceMm);
}

PointPair spallTips(const SceneSettings &scene)
{
    const SpallSettings &spall = scene.spall;
    return {wall(scene, spall.clockDeg, spall.depthMm),
            wall(scene, spall.clockDeg, spall.depthMm + spall.lengthMm)};
}

PointPair spallSides(const SceneSettings &scene)
{
    const SpallSettings &spall = scene.spall;
    return chord(scene, spall.clockDeg, spall.depthMm + spall.lengthMm * 0.5, spall.widthMm);
}

std::vector<double> jointDepths(const SceneSettings &scene)
{
    std::vector<double> depths;
    const double end = modelLengthDiameters * scene.diameterM();
    const double pipe = scene.pipeLengthMm * 0.001;
    for (int i = 0; i * pipe <= end; ++i)
        depths.push_back(i * pipe);
    return depths;
}

} // namespace PipePicture
