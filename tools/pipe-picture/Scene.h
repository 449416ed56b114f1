#pragma once

#include "Camera.h"

#include <QString>
#include <vector>

namespace PipePicture {

/** What a picture is made for. */
enum class SceneKind { Crack, Dimension, Water, Branch, Bend, Joint, Section };

/** What the pipe is made of. */
enum class Material { Concrete, Clay };

/**
 * Clock position: degrees clockwise in the picture from twelve o'clock, as a direction across the
 * pipe in the pipe frame.
 */
inline Vec clockDirection(double clockDeg)
{
    return {-std::sin(radians(clockDeg)), std::cos(radians(clockDeg)), 0.0};
}

/** A crack along the wall; 0 mm wide means none. */
struct CrackSettings
{
    double widthMm = 0.0; ///< across, where the laser spots lie
    double lengthMm = 700.0;
    double depthMm = 60.0; ///< along the pipe from the mouth to the place it is measured at
    double clockDeg = 35.0;
};

/** Two laser spots side by side on the wall, one on each side of the crack; 0 mm means none. */
struct LaserSettings
{
    double distanceMm = 0.0; ///< straight line between the spots
    double spotMm = 4.0;     ///< diameter of a spot
};

/** A spot where the surface has come off the wall; 0 mm long means none. */
struct SpallSettings
{
    double lengthMm = 0.0; ///< along the pipe
    double widthMm = 90.0; ///< straight line across, in the middle of its length
    double depthMm = 90.0; ///< along the pipe from the mouth to its near tip
    double clockDeg = 305.0;
};

/** A branch; a share of 0 means none. Its near edge touches the plane of the mouth. */
struct BranchSettings
{
    double share = 0.0;     ///< branch diameter / pipe diameter
    double angleDeg = 90.0; ///< between branch and pipe; below 90 it leads away from the camera
    double clockDeg = 90.0;
};

/** A bend that begins at the mouth, or a joint whose next pipe is turned; 0 degrees means none. */
struct BendSettings
{
    double angleDeg = 0.0;
    double clockDeg = 90.0;     ///< towards which the pipe turns
    double radiusShare = 0.5;   ///< radius of the turned axis / diameter, at least 0.5
    double straightShare = 0.5; ///< straight piece up to the next joint / diameter
};

/** Hard deposit in the invert with a steep front; a height of 0 means none. */
struct DepositSettings
{
    double heightShare = 0.0; ///< highest point above the invert / diameter
    double depthShare = 0.1;  ///< front, as a share of the ten diameters of the modelled pipe
};

/** Lamp, lens and sensor. */
struct LensSettings
{
    double exposureStops = 0.0;
    double falloff = 2.0;   ///< light falls with the distance to this power
    double vignette = 0.35; ///< share of light lost in the corners
    double blurPx = 0.7;    ///< standard deviation
    double noise = 3.0;     ///< standard deviation, steps of 255
    int samples = 2;        ///< rays along each side of a pixel on an edge
};

/** Everything a picture is made from. */
struct SceneSettings
{
    SceneKind kind = SceneKind::Dimension;
    Material material = Material::Concrete;
    quint32 seed = 1;
    bool clean = false; ///< plain wall without texture or dirt
    double diameterMm = 300.0;
    double pipeLengthMm = 1000.0; ///< from joint to joint
    double waterShare = 0.0;      ///< water depth / diameter
    CameraSettings camera;
    CrackSettings crack;
    LaserSettings laser;
    SpallSettings spall;
    BranchSettings branch;
    BendSettings bend;
    DepositSettings deposit;
    LensSettings lens;

    double diameterM() const { return diameterMm * 0.001; }
    double radiusM() const { return diameterMm * 0.0005; }
};

/** The scene of a kind with values that show it well. */
SceneSettings presetScene(SceneKind kind);
/** Name of a kind on the command line. */
QString sceneName(SceneKind kind);
/** Every kind, in the order they are listed to a user. */
const std::vector<SceneKind> &sceneKinds();
/** What is wrong with the scene in words for the user; empty when it can be drawn. */
QString sceneError(const SceneSettings &scene);

} // namespace PipePicture
