// A curve through 361 scene points, beside the bare painter call with points already projected.
#include "support/Scene.h"
#include "support/clearVectorRegisters.h"
#include "support/require.h"

#include <QImage>
#include <QPainter>
#include <QPen>

#include <benchmark/benchmark.h>
#include <ctime>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Benchmarks;

namespace {

constexpr int pointCount = 361;
constexpr double lineWidthPx = 1.5;
const QColor color(0, 255, 0);

class Canvas
{
public:
    Canvas()
    {
        image.fill(Qt::transparent);
        painter.begin(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        QPen pen(color);
        pen.setWidthF(lineWidthPx);
        painter.setPen(pen);
    }

    QImage image{viewportPx, viewportPx, QImage::Format_ARGB32_Premultiplied};
    QPainter painter;
};

const MiniGL camera = pipeCamera();
const std::vector<Vec3> points = ring(pointCount);

void paintCurve(Canvas &canvas)
{
    camera.renderCurve(canvas.painter, color, lineWidthPx, points, false);
}

class BareCurve
{
public:
    BareCurve()
    {
        Mat4 toPixels;
        camera.combinedMatrix(toPixels);
        for (const Vec3 &point : points) {
            Vec2 pixel;
            toPixels.multiply(point, pixel);
            m_polyline.append(QPointF(pixel.x, pixel.y));
        }
        m_polyline.append(m_polyline.first());
    }

    void paint(Canvas &canvas) const { canvas.painter.drawPolyline(m_polyline); }

private:
    QPolygonF m_polyline;
};

void requireSamePicture()
{
    Canvas ours;
    Canvas bare;
    paintCurve(ours);
    BareCurve().paint(bare);
    Canvas blank;
    require(ours.image != blank.image, "empty curve");
    require(ours.image == bare.image, "curve differs from the bare polyline");
}

void curve(benchmark::State &state)
{
    requireSamePicture();
    Canvas canvas;
    for (auto _ : state) {
        paintCurve(canvas);
    }
}
BENCHMARK(curve);

void curveBare(benchmark::State &state)
{
    const BareCurve bare;
    Canvas canvas;
    for (auto _ : state) {
        bare.paint(canvas);
    }
}
BENCHMARK(curveBare);

// Processor time of this thread in nanoseconds; other programs on the machine don't add to it.
double threadTimeNs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

// Processor time of one call, with cleared vector registers if asked for.
template <class Paint>
double paintTimeNs(bool cleared, const Paint &paint)
{
    if (cleared) {
        clearVectorRegisters();
    }
    const double start = threadTimeNs();
    paint();
    return threadTimeNs() - start;
}

// Both in turn, so that a busy machine slows both; "ratio" is the time of ours over the bare one.
void curveOverhead(benchmark::State &state)
{
    requireSamePicture();
    const bool cleared = state.range(0) != 0;
    const BareCurve bare;
    Canvas canvas;
    double ours = 0;
    double control = 0;
    for (auto _ : state) {
        ours += paintTimeNs(cleared, [&] { paintCurve(canvas); });
        control += paintTimeNs(cleared, [&] { bare.paint(canvas); });
    }
    state.counters["ratio"] = ours / control;
}
BENCHMARK(curveOverhead)->ArgName("cleared")->Arg(0)->Arg(1);

} // namespace
