#include "support/PaintFloor.h"

#include "support/PaintRecorder.h"
#include "support/require.h"

#include <QPainterPath>

#include <algorithm>

namespace Drevon::Zalento::Benchmarks {

namespace {

using Test::PaintCall;

// The recorder's 96 dots an inch, on which the size of text depends.
constexpr int dotsPerMetre = 3780;

QRectF boxOf(const PaintCall &call)
{
    return {call.points[0], QSizeF(call.points[1].x(), call.points[1].y())};
}

QPainterPath pathOf(const PaintCall &call)
{
    QPainterPath path(call.points.front());
    std::for_each(call.points.begin() + 1, call.points.end(),
                  [&path](const QPointF &point) { path.lineTo(point); });
    return path;
}

std::function<void(QPainter &)> replayOf(const PaintCall &call)
{
    using Kind = PaintCall::Kind;
    switch (call.kind) {
    case Kind::PolylineFloat:
        return [points = call.points](QPainter &p) {
            p.drawPolyline(points.constData(), points.size());
        };
    case Kind::LinesFloat:
        return
            [line = QLineF(call.points[0], call.points[1])](QPainter &p) { p.drawLines(&line, 1); };
    case Kind::LinesInt:
        return [line = QLineF(call.points[0], call.points[1]).toLine()](QPainter &p) {
            p.drawLine(line);
        };
    case Kind::EllipseInt:
        return [box = boxOf(call).toRect()](QPainter &p) { p.drawEllipse(box); };
    case Kind::EllipseFloat:
        return [box = boxOf(call)](QPainter &p) { p.drawEllipse(box); };
    case Kind::RectsFloat:
        return [box = boxOf(call), brush = call.brush](QPainter &p) { p.fillRect(box, brush); };
    case Kind::Text:
        return [base = call.points[0], text = call.text](QPainter &p) { p.drawText(base, text); };
    case Kind::Path:
        if (call.pen.style() == Qt::NoPen) {
            return
                [path = pathOf(call), brush = call.brush](QPainter &p) { p.fillPath(path, brush); };
        }
        return [path = pathOf(call), pen = call.pen](QPainter &p) { p.strokePath(path, pen); };
    default:
        require(false, "a call that cannot be made again");
        return {};
    }
}

// Calls that bring a pen or a brush of their own leave the painter's pen alone.
bool takesPen(const PaintCall &call)
{
    return call.kind != PaintCall::Kind::RectsFloat && call.kind != PaintCall::Kind::Path;
}

} // namespace

PaintFloor::PaintFloor(const std::function<void(QPainter &)> &paint, const QSize &size)
{
    Test::PaintRecorder recorder(size);
    QPainter painter(&recorder);
    paint(painter);
    QPen current(Qt::NoPen);
    for (const PaintCall &call : recorder.calls()) {
        if (takesPen(call) && call.pen != current) {
            current = call.pen;
            m_calls.emplace_back([pen = current](QPainter &p) { p.setPen(pen); });
        }
        m_calls.push_back(replayOf(call));
    }
}

void PaintFloor::paint(QPainter &painter) const
{
    for (const auto &call : m_calls) {
        call(painter);
    }
}

Canvas::Canvas(const QSize &size)
    : image(size, QImage::Format_ARGB32_Premultiplied)
{
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.fill(Qt::transparent);
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
}

} // namespace Drevon::Zalento::Benchmarks
