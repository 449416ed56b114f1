// What a click costs by the number of points that are there already.
#include "support/PaintedObject.h"
#include "support/require.h"
#include "zalento/pipes/Pipe.h"

#include <benchmark/benchmark.h>

#include <memory>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Benchmarks;

namespace {

const QPoint click(500, 400);
const Vec3 noRotation;

std::unique_ptr<Pipe> openOutline(benchmark::State &state)
{
    const auto points = static_cast<int>(state.range(0));
    std::unique_ptr<Pipe> pipe(
        static_cast<Pipe *>(straightPipe(MeasureMode::CrossSection, points + 1).release()));
    pipe->hitPoints.pop_back();
    pipe->camera.onResize(QRectF(0, 0, 1080, 1080));
    pipe->setupMiniGL(pipe->getDiameterM(), QPoint(0, 0));
    return pipe;
}

// A point set and taken back.
void addAndUndo(benchmark::State &state)
{
    const auto pipe = openOutline(state);
    const std::size_t before = pipe->hitPoints.size();
    pipe->addMeasurePoint(click, 1, noRotation);
    require(pipe->hitPoints.size() == before + 1, "the click added no point");
    pipe->undoHitPointList();
    for (auto _ : state) {
        pipe->addMeasurePoint(click, 1, noRotation);
        pipe->undoHitPointList();
    }
}

void findNearest(benchmark::State &state)
{
    const auto pipe = openOutline(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(pipe->findNearestHitPoint(click, noRotation));
    }
}

// The plain control of the search: reading every point once.
void findNearestControl(benchmark::State &state)
{
    const auto pipe = openOutline(state);
    for (auto _ : state) {
        double sum = 0;
        for (const HitPoint &point : pipe->hitPoints) {
            sum += point.position.lengthSquared();
        }
        benchmark::DoNotOptimize(sum);
    }
}

} // namespace

BENCHMARK(addAndUndo)->Name("click/add")->RangeMultiplier(10)->Range(10, 100000);
BENCHMARK(findNearest)->Name("click/find")->RangeMultiplier(10)->Range(10, 100000);
BENCHMARK(findNearestControl)->Name("click/find/control")->RangeMultiplier(10)->Range(10, 100000);
