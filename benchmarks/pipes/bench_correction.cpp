// The correction that keeps the rear circle visible, beside the bare projections of a full search.
#include "support/PaintedObject.h"
#include "support/require.h"

#include <benchmark/benchmark.h>

#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Benchmarks;

namespace {

constexpr int viewportPx = 1080;
// The ends of the gesture's range, far beyond the front circle, and a little off the middle.
const Vec3 outside(85, 50, 0);
const Vec3 inside(1, 1, 0);
constexpr double rounding = 1e-12;

std::unique_ptr<PipeBase> pipe()
{
    auto result = straightPipe(MeasureMode::NoMeasure, 0);
    result->camera.onResize(QRectF(0, 0, viewportPx, viewportPx));
    return result;
}

Vec3 corrected(PipeBase &pipe, const Vec3 &rotation)
{
    return pipe.getNewImageRotationToKeepRearCircleInsideFrontCircle(QPoint(0, 0), rotation);
}

void run(benchmark::State &state, const Vec3 &rotation)
{
    const auto object = pipe();
    const Vec3 far = corrected(*object, outside);
    require(std::abs(far.x) < 1 && std::abs(far.y) < 1, "the rear circle was left outside");
    const Vec3 near = corrected(*object, inside);
    require(std::abs(near.x - inside.x / outside.x) <= rounding &&
                std::abs(near.y - inside.y / outside.y) <= rounding,
            "a rear circle inside was moved");
    for (auto _ : state) {
        benchmark::DoNotOptimize(corrected(*object, rotation));
    }
}

void correctOutside(benchmark::State &state)
{
    run(state, outside);
}

void checkInside(benchmark::State &state)
{
    run(state, inside);
}

// Both searches turn at most 50 times; each turn projects two points.
void projections(benchmark::State &state)
{
    const auto object = pipe();
    object->setupMiniGL(object->getDiameterM(), QPoint(0, 0));
    for (auto _ : state) {
        for (int turn = 0; turn < 2 * 50; ++turn) {
            benchmark::DoNotOptimize(
                object->camera.getScreenDistance(Vec3(0, 0.15, 0), Vec3(0, 0.15, -3)));
        }
    }
}

} // namespace

BENCHMARK(correctOutside)->Name("correction/outside");
BENCHMARK(checkInside)->Name("correction/inside");
BENCHMARK(projections)->Name("correction/control");
