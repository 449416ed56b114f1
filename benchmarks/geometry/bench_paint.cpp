// A paint of the straight pipe, beside a bare painter that draws the same recorded calls into the
// same kind of picture; and what it allocates.
//
// Both are painted in turns and timed by the thread's own clock, so that a busy machine slows both
// alike; the ratio is that of the medians.
#include "support/PaintRecorder.h"
#include "zalento/pipes/Pipe.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <new>

using namespace Drevon::Zalento;
using Test::PaintCall;

namespace {

std::size_t allocations = 0;

} // namespace

void *operator new(std::size_t size)
{
    ++allocations;
    void *memory = std::malloc(size > 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace {

constexpr double diameterM = 0.3;
constexpr double waterLevel = 0.25;
constexpr double planeShare = 0.3;
constexpr double millimetresPerPixel = 0.5;
const Vec3 rotation(0.1, -0.05, 0);

struct Scene
{
    Pipe pipe;
    ZASettings settings;
    ViewStyle style;

    Scene(MeasureMode mode, ViewStyle viewStyle, int sizePx, int points)
        : style(viewStyle)
    {
        pipe.setDiameterM(diameterM);
        pipe.diameterMM = diameterM * 1000;
        pipe.measureMode = mode;
        pipe.laserScale = millimetresPerPixel;
        pipe.camera.onResize(QRectF(0, 0, sizePx, sizePx));
        pipe.cylinder.waterLevelPercent = waterLevel;
        pipe.cylinder.crossSectDistancePercent = planeShare;
        addPoints(points);
    }

    void paint(QPainter &painter) { pipe.render(painter, style, settings, rotation, QPoint(0, 0)); }

private:
    // A closed outline on the plane, or for cracks around the middle of the picture.
    void addPoints(int count)
    {
        const bool onPicture = pipe.measureMode == MeasureMode::CrackWidth;
        const double middle = onPicture ? 0.5 : 0;
        const double radius = onPicture ? 0.2 : 0.4 * diameterM;
        for (int k = 0; k < count; ++k) {
            const double a = 2 * std::acos(-1.0) * k / std::max(count - 1, 1);
            pipe.hitPoints.emplace_back(Vec3(middle + radius * std::sin(a),
                                             middle + radius * std::cos(a),
                                             -planeShare * pipe.cylinder.lengthM));
        }
        if (count > 1) {
            pipe.hitPoints.back() = pipe.hitPoints.front();
        }
    }
};

// One recorded call, ready to be made again.
std::function<void(QPainter &)> replayOf(const PaintCall &call)
{
    using Kind = PaintCall::Kind;
    const QVector<QPointF> points = call.points;
    const QPen pen = call.pen;
    const QBrush brush = call.brush;
    switch (call.kind) {
    case Kind::PolylineFloat:
        return [=](QPainter &p) {
            p.setPen(pen);
            p.drawPolyline(points.constData(), points.size());
        };
    case Kind::LinesFloat:
        return [pen, line = QLineF(points[0], points[1])](QPainter &p) {
            p.setPen(pen);
            p.drawLines(&line, 1);
        };
    case Kind::EllipseInt:
        return [pen, box = QRectF(points[0], QSizeF(points[1].x(), points[1].y())).toRect()](
                   QPainter &p) {
            p.setPen(pen);
            p.drawEllipse(box);
        };
    case Kind::RectsFloat:
        return [brush, box = QRectF(points[0], QSizeF(points[1].x(), points[1].y()))](QPainter &p) {
            p.fillRect(box, brush);
        };
    case Kind::Text:
        return [pen, points, text = call.text](QPainter &p) {
            p.setPen(pen);
            p.drawText(points[0], text);
        };
    case Kind::Path: {
        QPainterPath path(points[0]);
        std::for_each(points.begin() + 1, points.end(),
                      [&path](const QPointF &point) { path.lineTo(point); });
        if (pen.style() == Qt::NoPen) {
            return [path, brush](QPainter &p) { p.fillPath(path, brush); };
        }
        return [path, pen](QPainter &p) { p.strokePath(path, pen); };
    }
    default:
        return {};
    }
}

std::vector<std::function<void(QPainter &)>> recorded(Scene &scene, const QSize &size)
{
    Test::PaintRecorder recorder(size);
    QPainter painter(&recorder);
    scene.paint(painter);
    std::vector<std::function<void(QPainter &)>> result;
    for (const PaintCall &call : recorder.calls()) {
        result.push_back(replayOf(call));
    }
    return result;
}

// A transparent picture of the item's kind with an open, antialiasing painter.
struct Canvas
{
    QImage image;
    QPainter painter;

    explicit Canvas(int sizePx)
        : image(sizePx, sizePx, QImage::Format_ARGB32_Premultiplied)
    {
        // The recorder's 96 dots an inch, on which the size of text depends.
        constexpr int dotsPerMetre = 3780;
        image.setDotsPerMeterX(dotsPerMetre);
        image.setDotsPerMeterY(dotsPerMetre);
        image.fill(Qt::transparent);
        painter.begin(&image);
        painter.setRenderHint(QPainter::Antialiasing);
    }
};

double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

double timeOf(const std::function<void()> &action)
{
    const double start = threadSeconds();
    action();
    return threadSeconds() - start;
}

double median(std::vector<double> &values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

int usualPoints(MeasureMode mode)
{
    return mode == MeasureMode::NoMeasure || mode == MeasureMode::WaterLevel ? 0 : 9;
}

void paint(benchmark::State &state)
{
    const auto mode = static_cast<MeasureMode>(state.range(0));
    const int size = static_cast<int>(state.range(2));
    Scene scene(mode, static_cast<ViewStyle>(state.range(1)), size, usualPoints(mode));
    const auto calls = recorded(scene, QSize(size, size));
    Canvas ours(size);
    Canvas bare(size);
    const std::function<void()> paintOurs = [&] { scene.paint(ours.painter); };
    const std::function<void()> paintBare = [&] {
        for (const auto &call : calls) {
            call(bare.painter);
        }
    };
    paintOurs();
    paintBare();
    if (ours.image != bare.image) {
        state.SkipWithError("the recorded calls paint another picture");
        return;
    }
    std::vector<double> oursSeconds;
    std::vector<double> bareSeconds;
    for (auto _ : state) {
        // Whoever comes second finds the caches as the first one left them.
        const bool oursFirst = oursSeconds.size() % 2 == 0;
        const double first = timeOf(oursFirst ? paintOurs : paintBare);
        const double second = timeOf(oursFirst ? paintBare : paintOurs);
        oursSeconds.push_back(oursFirst ? first : second);
        bareSeconds.push_back(oursFirst ? second : first);
        state.SetIterationTime(oursSeconds.back());
    }
    const double oursMedian = median(oursSeconds);
    const double bareMedian = median(bareSeconds);
    state.counters["us"] = 1e6 * oursMedian;
    state.counters["bare_us"] = 1e6 * bareMedian;
    state.counters["ratio"] = bareMedian > 0 ? oursMedian / bareMedian : 0;
}

// Allocations of a steady paint, less those of the bare painter.
void allocationsOfPaint(benchmark::State &state)
{
    constexpr int size = 576;
    Scene scene(static_cast<MeasureMode>(state.range(0)), static_cast<ViewStyle>(state.range(1)),
                size, static_cast<int>(state.range(2)));
    const auto calls = recorded(scene, QSize(size, size));
    Canvas ours(size);
    Canvas bare(size);
    std::size_t oursCount = 0;
    std::size_t bareCount = 0;
    for (auto _ : state) {
        const std::size_t before = allocations;
        scene.paint(ours.painter);
        const std::size_t between = allocations;
        for (const auto &call : calls) {
            call(bare.painter);
        }
        oursCount = between - before;
        bareCount = allocations - between;
    }
    state.counters["all"] = static_cast<double>(oursCount);
    state.counters["ours"] = static_cast<double>(oursCount) - static_cast<double>(bareCount);
}

} // namespace

BENCHMARK(paint)
    ->ArgNames({"mode", "style", "px"})
    ->ArgsProduct({{0, 1, 2, 3, 4, 5}, {0, 1, 2}, {576, 1080, 2160}})
    ->UseManualTime()
    ->MinTime(0.2)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(allocationsOfPaint)
    ->Name("allocations")
    ->ArgNames({"mode", "style", "points"})
    ->ArgsProduct({{0, 2, 3, 4, 5}, {1, 2}, {0, 4, 361}})
    ->Iterations(5);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
