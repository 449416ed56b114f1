// A flat picture of 12 million pixels from a picture of as many, and its axes.
#include "support/require.h"

#include "measuring/UnrollExport.h"

#include <benchmark/benchmark.h>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Benchmarks;
using namespace Drevon::Zalento::Measuring;

namespace {

constexpr QSize pictureSize(4000, 3000);

struct Scene
{
    QImage picture{pictureSize, QImage::Format_RGB32};
    Unrolling unrolling;
};

// 4000 columns around a pipe of 300 mm, and 3000 rows.
Scene scene()
{
    Session session;
    session.picture.size = pictureSize;
    const double mmPerPixel = 3.14159265358979 * session.diameterMM / pictureSize.width();
    auto unrolling = Unrolling::of(session, {mmPerPixel, 0.0, pictureSize.height() * mmPerPixel});
    require(unrolling && unrolling->size() == pictureSize, "the flat picture has another size");
    Scene result{QImage(pictureSize, QImage::Format_RGB32), std::move(*unrolling)};
    result.picture.fill(Qt::gray);
    return result;
}

void flatten(benchmark::State &state)
{
    const Scene given = scene();
    require(qAlpha(given.unrolling.flattened(given.picture).pixel(2000, 1500)) == 255,
            "the wall is not in the picture");
    for (auto _ : state) {
        benchmark::DoNotOptimize(given.unrolling.flattened(given.picture));
    }
}

void frame(benchmark::State &state)
{
    const Scene given = scene();
    const QImage flat = given.unrolling.flattened(given.picture);
    for (auto _ : state) {
        benchmark::DoNotOptimize(withAxes(given.unrolling, flat));
    }
}

// Scaling the picture to the same size by Qt, smoothly.
void control(benchmark::State &state)
{
    const Scene given = scene();
    for (auto _ : state) {
        benchmark::DoNotOptimize(given.picture.scaled(
            pictureSize - QSize(1, 1), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
}

} // namespace

BENCHMARK(flatten)->Name("unrolling/flatten")->Unit(benchmark::kMillisecond);
BENCHMARK(frame)->Name("unrolling/axes")->Unit(benchmark::kMillisecond);
BENCHMARK(control)->Name("unrolling/control")->Unit(benchmark::kMillisecond);
