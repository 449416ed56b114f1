#include "SnapTrial.h"

#include "Pinhole.h"
#include "Render.h"

#include "measuring/FitCamera.h"
#include "measuring/PipeView.h"
#include "measuring/SessionFit.h"
#include "measuring/Snap.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Tools {

using namespace Measuring;

namespace {

constexpr int seed = 22;
constexpr int ringSamples = 180;
constexpr double startError = 0.05; // of the diameter

PipePicture::SceneSettings drawScene(Random &random)
{
    PipePicture::SceneSettings scene = PipePicture::presetScene(PipePicture::SceneKind::Dimension);
    scene.seed = static_cast<quint32>(random.between(1, 1e6));
    scene.material =
        random.between(0, 1) < 0.7 ? PipePicture::Material::Concrete : PipePicture::Material::Clay;
    scene.diameterMm = random.between(150, 600);
    scene.waterShare = random.between(0.0, 0.25);
    if (random.between(0, 1) < 0.3) {
        scene.deposit.heightShare = random.between(0.1, 0.3);
        scene.deposit.depthShare = random.between(0.02, 0.1);
    }
    scene.spall.lengthMm = random.between(0, 1) < 0.5 ? 0.0 : 0.4 * scene.diameterMm;
    scene.spall.widthMm = 0.3 * scene.diameterMm;
    scene.spall.clockDeg = random.between(0, 360);
    scene.camera.picture = QSize(768, 576);
    scene.camera.fovDeg = random.between(35, 75);
    scene.camera.heightShare = random.between(0.43, 0.6);
    scene.camera.offsetPx = std::round(random.between(-45, 45));
    scene.camera.yawDeg = random.between(-5, 5);
    scene.camera.pitchDeg = random.between(-5, 5);
    scene.lens.exposureStops = random.between(-1.6, -0.2);
    scene.lens.falloff = random.between(1.0, 2.5);
    scene.lens.vignette = random.between(0.1, 0.5);
    scene.lens.blurPx = random.between(0.5, 1.2);
    scene.lens.noise = random.between(1.0, 7.0);
    return scene;
}

std::vector<QPointF> ringOf(const PipePicture::SceneSettings &scene)
{
    const PipePicture::Camera camera(scene.camera, scene.diameterM());
    std::vector<QPointF> ring;
    for (int i = 0; i < ringSamples; ++i) {
        const PipePicture::Vec place = PipePicture::clockDirection(i * 360.0 / ringSamples);
        ring.push_back(camera.project({place.x * scene.radiusM(), place.y * scene.radiusM(), 0.0}));
    }
    return ring;
}

// Soft dark blobs that lie over an arc of the joint.
void hideThird(QImage &picture, const std::vector<QPointF> &ring, Random &random)
{
    constexpr int blobs = 9;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const double first = random.between(0, ringSamples);
    for (int i = 0; i < blobs; ++i) {
        const auto at = static_cast<std::size_t>(first + i * ringSamples / 3.0 / (blobs - 1));
        const QPointF centre = ring[at % ring.size()];
        const double radius = random.between(0.8, 1.3) * picture.height() / 18.0;
        QRadialGradient gradient(centre, radius);
        const int grey = static_cast<int>(random.between(30, 90));
        gradient.setColorAt(0.0, QColor(grey, grey, grey));
        gradient.setColorAt(0.7, QColor(grey, grey, grey));
        gradient.setColorAt(1.0, QColor(grey, grey, grey, 0));
        painter.fillRect(picture.rect(), Qt::NoBrush);
        painter.setPen(Qt::NoPen);
        painter.setBrush(gradient);
        painter.drawEllipse(centre, radius, radius);
    }
}

// The true alignment by the joint as it is seen, then moved by a twentieth of the diameter.
Session roughSession(const PipePicture::SceneSettings &scene, Random &random)
{
    Session session;
    session.picture.size = scene.camera.picture;
    session.diameterMM = scene.diameterMm;
    session.fovYDEG = scene.camera.fovDeg;
    const PipePicture::Camera camera(scene.camera, scene.diameterM());
    for (const double depth : {0.0, 1.0}) {
        RingClicks ring;
        for (int i = 0; i < 12; ++i) {
            const PipePicture::Vec place = PipePicture::clockDirection(i * 30.0);
            ring.points += camera.project(
                {place.x * scene.radiusM(), place.y * scene.radiusM(), -depth * scene.diameterM()});
        }
        session.rings += ring;
    }
    if (!fitSession(session)) {
        return Session();
    }
    session.rings.clear();
    const double angle = random.between(-pi, pi);
    session.offset = std::round(session.offset + startError * 576 * std::cos(angle));
    session.cameraHeightPercent += startError * 100 * std::sin(angle);
    session.mouthPercent *= 1 + random.between(-0.04, 0.04);
    return session;
}

double rmsOff(const Session &session, const std::vector<QPointF> &ring)
{
    const FitCamera<double> camera(PipeView(session).drawnAlignment().numbers(),
                                   session.picture.size);
    double squares = 0.0;
    for (const QPointF &place : ring) {
        squares += std::pow(camera.ringDistance(place, 0.0), 2);
    }
    return std::sqrt(squares / static_cast<double>(ring.size()));
}

} // namespace

SnapTrial drawSnapTrial(std::mt19937_64 &engine)
{
    Random random(engine);
    for (;;) {
        const PipePicture::SceneSettings scene = drawScene(random);
        if (!PipePicture::sceneError(scene).isEmpty()) {
            continue;
        }
        SnapTrial trial;
        trial.trueRing = ringOf(scene);
        trial.session = roughSession(scene, random);
        if (trial.session.picture.size.isEmpty()) {
            continue;
        }
        trial.picture = PipePicture::renderPicture(scene);
        if (random.between(0, 1) < 0.5) {
            hideThird(trial.picture, trial.trueRing, random);
        }
        return trial;
    }
}

SnapTally runSnapTrials(int trials)
{
    std::mt19937_64 engine(seed);
    SnapTally tally;
    std::vector<double> offs;
    for (tally.trials = 0; tally.trials < trials; ++tally.trials) {
        SnapTrial trial = drawSnapTrial(engine);
        if (!snapToEdges(trial.session, trial.picture)) {
            continue;
        }
        const double off = rmsOff(trial.session, trial.trueRing);
        offs.push_back(off);
        ++tally.found;
        tally.exact += off <= 0.5 ? 1 : 0;
        tally.wrong += off > 2.0 ? 1 : 0;
    }
    std::sort(offs.begin(), offs.end());
    tally.medianRmsPX = offs.empty() ? 0.0 : offs[offs.size() / 2];
    tally.largestRmsPX = offs.empty() ? 0.0 : offs.back();
    return tally;
}

} // namespace Drevon::Zalento::Tools
