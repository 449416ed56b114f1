// One pick, beside a routine that does nothing but the arithmetic.
#include "zalento/geometry/Cylinder.h"
#include "zalento/math/angles.h"

#include <benchmark/benchmark.h>

#include <cmath>

using namespace Drevon::Zalento;

namespace {

const Vec3 rotation(0.2, -0.15, 30);
constexpr double agreementM = 1e-9;
constexpr double singlePrecisionAgreementM = 1e-5;

struct Scene
{
    MiniGL camera;
    Cylinder pipe{0.3};

    Scene()
    {
        camera.eye = Vec3(0, 0, 0.45);
        camera.onResize(QRectF(0, 0, 1080, 1080));
        pipe.createVerticesInWorldCoord(MeasureMode::NoMeasure);
        pipe.crossSectDistancePercent = 0.3;
    }
};

// Pixels all over the picture, so that no branch is learnt.
QPoint pixelOf(int k)
{
    return {(k * 7919) % 1080, (k * 104729) % 1080};
}

// What the pixel shows lies at eye + parameter * direction, both in the pipe frame. The camera
// looks along the scene's z axis.
struct PipeRay
{
    Vec3 eye;
    Vec3 direction;
};

Vec3 intoPipeFrame(const Vec3 &v, double sx, double cx, double sy, double cy, double sz, double cz)
{
    const double x = cx * v.x + sx * v.z;
    const double z = cx * v.z - sx * v.x;
    const double y = cy * v.y - sy * z;
    return {cz * x - sz * y, sz * x + cz * y, sy * v.y + cy * z};
}

PipeRay minimalRay(QPoint pixel, const MiniGL &camera)
{
    const double size =
        2 * std::tan(camera.fovYDEG * radiansPerDegree * 0.5) / camera.viewport.height();
    // Drawn mirrored through the eye.
    const Vec3 seen((camera.viewport.width() / 2 - pixel.x() - 0.5) * size,
                    (camera.viewport.height() / 2 - pixel.y() - 0.5) * size, -1);
    const double turn = camera.fovYDEG * 0.5 * radiansPerDegree;
    const double sx = std::sin(rotation.x * turn);
    const double cx = std::cos(rotation.x * turn);
    const double sy = std::sin(rotation.y * turn);
    const double cy = std::cos(rotation.y * turn);
    const double sz = std::sin(-rotation.z * radiansPerDegree);
    const double cz = std::cos(-rotation.z * radiansPerDegree);
    return {intoPipeFrame(camera.eye, sx, cx, sy, cy, sz, cz),
            intoPipeFrame(seen, sx, cx, sy, cy, sz, cz)};
}

bool minimalWallPick(QPoint pixel, const Scene &scene, Vec3 &hitPoint)
{
    const auto [e, v] = minimalRay(pixel, scene.camera);
    const double a = v.x * v.x + v.y * v.y;
    const double b = e.x * v.x + e.y * v.y;
    const double discriminant = b * b - a * (e.x * e.x + e.y * e.y - scene.pipe.radiusSquared);
    if (discriminant < 0) {
        return false;
    }
    const double root = std::sqrt(discriminant);
    if (-b - root > 0) {
        return false;
    }
    hitPoint = e + ((root - b) / a) * v;
    return true;
}

bool minimalPlanePick(QPoint pixel, const Scene &scene, Vec3 &hitPoint)
{
    const auto [e, v] = minimalRay(pixel, scene.camera);
    const double z = -scene.pipe.lengthM * scene.pipe.crossSectDistancePercent;
    hitPoint = e + ((z - e.z) / v.z) * v;
    return true;
}

bool wallPick(QPoint pixel, const Scene &scene, Vec3 &hitPoint)
{
    return scene.pipe.intersectRay(pixel, scene.camera, hitPoint, rotation);
}

bool planePick(QPoint pixel, const Scene &scene, Vec3 &hitPoint)
{
    return scene.pipe.intersectPlaneRay(pixel, scene.camera, hitPoint, rotation);
}

using Pick = bool (*)(QPoint, const Scene &, Vec3 &);

bool agree(const Scene &scene, Pick ours, Pick minimal, double toleranceM)
{
    for (int k = 0; k < 1000; ++k) {
        Vec3 a;
        Vec3 b;
        const bool hit = ours(pixelOf(k), scene, a);
        if (hit != minimal(pixelOf(k), scene, b) ||
            (hit && !((a - b).length() <= toleranceM * (1 + b.lengthSquared())))) {
            return false;
        }
    }
    return true;
}

void run(benchmark::State &state, Pick pick, Pick ours, Pick minimal, double toleranceM)
{
    const Scene scene;
    if (!agree(scene, ours, minimal, toleranceM)) {
        state.SkipWithError("the two routines pick different points");
        return;
    }
    int k = 0;
    for (auto _ : state) {
        Vec3 hitPoint;
        benchmark::DoNotOptimize(pick(pixelOf(k++ & 1023), scene, hitPoint));
        benchmark::DoNotOptimize(hitPoint);
    }
}

void wall(benchmark::State &state)
{
    run(state, wallPick, wallPick, minimalWallPick, agreementM);
}

void wallMinimal(benchmark::State &state)
{
    run(state, minimalWallPick, wallPick, minimalWallPick, agreementM);
}

void plane(benchmark::State &state)
{
    run(state, planePick, planePick, minimalPlanePick, singlePrecisionAgreementM);
}

void planeMinimal(benchmark::State &state)
{
    run(state, minimalPlanePick, planePick, minimalPlanePick, singlePrecisionAgreementM);
}

} // namespace

BENCHMARK(wall)->Name("pick/wall");
BENCHMARK(wallMinimal)->Name("pick/wall/control");
BENCHMARK(plane)->Name("pick/plane");
BENCHMARK(planeMinimal)->Name("pick/plane/control");
