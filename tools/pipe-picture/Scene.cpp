#include "Scene.h"

#include <QCoreApplication>

namespace PipePicture {

namespace {

// The bend model of the overlay draws the straight piece 0.65 nominal diameters long and everything
// else at 0.9512 of it.
constexpr double bendStraightShare = 0.65 / 0.9512;

QString text(const char *message)
{
    return QCoreApplication::translate("PipePicture", message);
}

bool within(double value, double least, double most)
{
    return value >= least && value <= most;
}

QString cameraError(const SceneSettings &scene)
{
    const CameraSettings &camera = scene.camera;
    constexpr int leastSide = 64;
    constexpr int mostSide = 4096;
    const QSize size = camera.picture;
    if (!within(size.width(), leastSide, mostSide) || !within(size.height(), leastSide, mostSide))
        return text("The picture's sides must be from 64 to 4096 pixels.");
    if (!within(camera.fovDeg, 10.0, 90.0))
        return text("The field of view must be from 10 to 90 degrees.");
    if (!within(camera.k1, -0.4, 1.0) || !within(camera.k2, -0.4, 1.0))
        return text("The distortion must be from -0.4 to 1.");
    const Vec eye = Camera(camera, scene.diameterM()).eyeInPipe();
    if (std::hypot(eye.x, eye.y) >= 0.98 * scene.radiusM() || eye.z <= 0.0)
        return text("The camera stands outside the pipe.");
    if (eye.y <= scene.radiusM() * (2.0 * scene.waterShare - 1.0))
        return text("The camera stands under water.");
    return {};
}

QString wallError(const SceneSettings &scene)
{
    if (scene.crack.widthMm > 0.2 * scene.diameterMm)
        return text("The crack must not be wider than a fifth of the diameter.");
    if (scene.crack.lengthMm <= 0.0)
        return text("The crack must have a length.");
    if (scene.laser.distanceMm >= scene.diameterMm || scene.laser.spotMm <= 0.0)
        return text("The laser spots must fit into the pipe.");
    if (scene.spall.lengthMm > 0.0 && !within(scene.spall.widthMm, 1.0, 0.9 * scene.diameterMm))
        return text("The spalled spot must be narrower than the pipe.");
    return {};
}

QString shapeError(const SceneSettings &scene)
{
    const bool branch = scene.branch.share > 0.0;
    const bool bend = scene.bend.angleDeg > 0.0;
    if (branch && !within(scene.branch.share, 0.01, 0.999))
        return text("The branch's diameter share must be from 1 to 99.9 percent.");
    if (branch && !within(scene.branch.angleDeg, 30.0, 150.0))
        return text("The branch's angle must be from 30 to 150 degrees.");
    if (bend && !within(scene.bend.angleDeg, 0.0, 90.0))
        return text("The bend's angle must be from 0 to 90 degrees.");
    if (bend && (scene.bend.radiusShare < 0.5 || scene.bend.straightShare < 0.0))
        return text("The bend's radius must be at least half the diameter.");
    if (branch && bend)
        return text("A picture shows either a branch or a bend.");
    if (scene.deposit.heightShare > 0.0 && (branch || bend))
        return text("A deposit is drawn in a straight pipe without a branch only.");
    if (!within(scene.deposit.heightShare, 0.0, 0.8) || !within(scene.deposit.depthShare, 0.0, 1.0))
        return text("The deposit must be at most 80 percent high and lie within the pipe.");
    return {};
}

QString lensError(const LensSettings &lens)
{
    if (!within(lens.samples, 1, 8))
        return text("The rays along a pixel's side must be from 1 to 8.");
    if (!within(lens.blurPx, 0.0, 20.0) || !within(lens.noise, 0.0, 100.0))
        return text("Blur must be from 0 to 20 pixels and noise from 0 to 100.");
    if (!within(lens.vignette, 0.0, 1.0) || !within(lens.falloff, 0.0, 4.0))
        return text("Vignette must be from 0 to 1 and falloff from 0 to 4.");
    return {};
}

} // namespace

const std::vector<SceneKind> &sceneKinds()
{
    static const std::vector<SceneKind> kinds{
        SceneKind::Crack, SceneKind::Dimension, SceneKind::Water,  SceneKind::Branch,
        SceneKind::Bend,  SceneKind::Joint,     SceneKind::Section};
    return kinds;
}

QString sceneName(SceneKind kind)
{
    switch (kind) {
    case SceneKind::Crack:
        return QStringLiteral("crack");
    case SceneKind::Dimension:
        return QStringLiteral("dimension");
    case SceneKind::Water:
        return QStringLiteral("water");
    case SceneKind::Branch:
        return QStringLiteral("branch");
    case SceneKind::Bend:
        return QStringLiteral("bend");
    case SceneKind::Joint:
        return QStringLiteral("joint");
    case SceneKind::Section:
        return QStringLiteral("section");
    }
    return {};
}

SceneSettings presetScene(SceneKind kind)
{
    SceneSettings scene;
    scene.kind = kind;
    scene.seed = 1 + quint32(kind);
    scene.waterShare = 0.03;
    switch (kind) {
    case SceneKind::Crack:
        scene.crack.widthMm = 8.0;
        scene.laser.distanceMm = 50.0;
        break;
    case SceneKind::Dimension:
        scene.spall.lengthMm = 160.0;
        break;
    case SceneKind::Water:
        scene.waterShare = 0.25;
        break;
    case SceneKind::Branch:
        scene.material = Material::Clay;
        scene.branch.share = 0.5;
        scene.branch.angleDeg = 45.0;
        break;
    case SceneKind::Bend:
        scene.material = Material::Clay;
        scene.bend.angleDeg = 30.0;
        scene.bend.straightShare = bendStraightShare;
        break;
    case SceneKind::Joint:
        scene.bend.angleDeg = 10.0;
        scene.bend.straightShare = 0.5;
        break;
    case SceneKind::Section:
        scene.deposit.heightShare = 0.32;
        break;
    }
    return scene;
}

QString sceneError(const SceneSettings &scene)
{
    if (!within(scene.diameterMm, 50.0, 5000.0))
        return text("The diameter must be from 50 to 5000 mm.");
    if (scene.pipeLengthMm < 0.5 * scene.diameterMm)
        return text("A pipe must be at least half a diameter long.");
    if (!within(scene.waterShare, 0.0, 1.0))
        return text("The water level must be from 0 to 100 percent.");
    for (const QString &error :
         {cameraError(scene), wallError(scene), shapeError(scene), lensError(scene.lens)}) {
        if (!error.isEmpty())
            return error;
    }
    return {};
}

} // namespace PipePicture
