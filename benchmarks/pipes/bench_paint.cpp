// A paint of every pipe object, beside its floor: a bare painter that is handed the same calls.
#include "support/PaintFloor.h"
#include "support/PaintedObject.h"
#include "support/PairedTimes.h"
#include "support/allocations.h"
#include "support/require.h"

#include <benchmark/benchmark.h>

#include <string>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Benchmarks;

namespace {

constexpr double shortestRunSeconds = 0.2;
constexpr double usPerSecond = 1e6;

void paintBesideFloor(benchmark::State &state, PipeBase &pipe, ViewStyle style, int sizePx)
{
    const QSize size(sizePx, sizePx);
    pipe.camera.onResize(QRectF(QPointF(0, 0), size));
    const PaintFloor floor([&](QPainter &p) { paintObject(pipe, p, style); }, size);
    Canvas ours(size);
    Canvas bare(size);
    const std::function<void()> paintOurs = [&] { paintObject(pipe, ours.painter, style); };
    const std::function<void()> paintBare = [&] { floor.paint(bare.painter); };
    paintOurs();
    paintBare();
    require(floor.callCount() > 0, "nothing painted");
    require(ours.image == bare.image, "the recorded calls paint another picture");

    const std::size_t before = allocationCount();
    paintOurs();
    const std::size_t between = allocationCount();
    paintBare();
    const std::size_t after = allocationCount();

    PairedTimes times;
    for (auto _ : state) {
        times.run(paintOurs, paintBare);
        state.SetIterationTime(times.lastOurs());
    }
    state.counters["us"] = usPerSecond * times.ours();
    state.counters["floor_us"] = usPerSecond * times.bare();
    state.counters["ratio"] = times.ratio();
    state.counters["allocations"] =
        static_cast<double>(between - before) - static_cast<double>(after - between);
}

void registerPaint(const std::string &name, const std::function<std::unique_ptr<PipeBase>()> &make,
                   ViewStyle style, int sizePx)
{
    benchmark::RegisterBenchmark(
        name.c_str(),
        [=](benchmark::State &state) { paintBesideFloor(state, *make(), style, sizePx); })
        ->UseManualTime()
        ->MinTime(shortestRunSeconds)
        ->Unit(benchmark::kMicrosecond);
}

std::string numbered(const char *key, int value)
{
    return std::string("/") + key + ":" + std::to_string(value);
}

// Lines of a video frame, of full HD and of 4K.
const int paintIsRegistered = [] {
    for (const ObjectKind &kind : objectKinds()) {
        for (const ViewStyle style : kind.styles) {
            for (const int sizePx : {576, 1080, 2160}) {
                registerPaint(std::string("paint/") + kind.name +
                                  numbered("style", static_cast<int>(style)) +
                                  numbered("px", sizePx),
                              kind.make, style, sizePx);
            }
        }
    }
    return 0;
}();

const int growthIsRegistered = [] {
    const std::pair<const char *, MeasureMode> modes[] = {
        {"section", MeasureMode::CrossSection},
        {"crack", MeasureMode::CrackWidth},
        {"freeSection", MeasureMode::FreeCrossSection},
    };
    for (const auto &[name, mode] : modes) {
        for (const int points : {10, 100, 1000, 10000, 100000}) {
            registerPaint(
                std::string("growth/") + name + numbered("points", points),
                [=, m = mode] { return straightPipe(m, points); }, ViewStyle::MeasureOnly, 1080);
        }
    }
    return 0;
}();

} // namespace
