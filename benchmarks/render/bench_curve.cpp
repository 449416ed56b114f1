// A curve through 361 scene points, beside the bare painter call with points already projected.
#include "support/PairedTimes.h"
#include "support/Scene.h"
#include "support/require.h"

#include <QImage>
#include <QPainter>
#include <QPen>

#include <benchmark/benchmark.h>

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

// Both in turn; "ratio" is the time of ours over the bare one.
void curveOverhead(benchmark::State &state)
{
    requireSamePicture();
    const BareCurve bare;
    Canvas canvas;
    PairedTimes times;
    for (auto _ : state) {
        times.run([&] { paintCurve(canvas); }, [&] { bare.paint(canvas); });
    }
    state.counters["ratio"] = times.ratio();
}
BENCHMARK(curveOverhead)->MinTime(1);

} // namespace
