#include "support/PaintRecorder.h"

#include <QLocale>
#include <QMetaEnum>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <iterator>

namespace Drevon::Zalento::Test {

namespace {

constexpr int dotsPerInch = 96;

using Kind = PaintCall::Kind;

// Shortest text that reads back as the same number.
QString numberText(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QVector<QPointF> rectPoints(const QRectF &rect)
{
    return {rect.topLeft(), QPointF(rect.width(), rect.height())};
}

} // namespace

QString penText(const QPen &pen)
{
    if (pen.style() == Qt::NoPen)
        return "none";
    QString text = pen.color().name(QColor::HexArgb) + ' ' + numberText(pen.widthF());
    if (pen.capStyle() != Qt::SquareCap || pen.joinStyle() != Qt::BevelJoin)
        text += QString(" cap %1 join %2").arg(pen.capStyle()).arg(pen.joinStyle());
    return pen.style() == Qt::SolidLine ? text : text + QString(" style %1").arg(pen.style());
}

QString PaintCall::shape() const
{
    QString result = QMetaEnum::fromType<Kind>().valueToKey(static_cast<int>(kind));
    for (const QPointF &point : points)
        result += QString(" (%1, %2)").arg(numberText(point.x()), numberText(point.y()));
    return kind == Kind::Text ? result + " \"" + text + '"' : result;
}

QString PaintCall::toString() const
{
    QString result = shape() + " pen " + penText(pen);
    if (brush.style() != Qt::NoBrush)
        result += " brush " + brush.color().name(QColor::HexArgb);
    if (antialiased)
        result += " antialiased";
    if (clipped)
        result += " clipped";
    return transform.isIdentity() ? result : result + " transformed";
}

class PaintRecorder::Engine : public QPaintEngine
{
public:
    explicit Engine(QVector<PaintCall> &target)
        : QPaintEngine(QPaintEngine::AllFeatures)
        , m_target(target)
    {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    Type type() const override { return QPaintEngine::User; }

    void drawLines(const QLine *lines, int count) override
    {
        add(Kind::LinesInt, linePoints(lines, count));
    }
    void drawLines(const QLineF *lines, int count) override
    {
        add(Kind::LinesFloat, linePoints(lines, count));
    }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        QVector<QPointF> corners;
        std::copy_n(points, count, std::back_inserter(corners));
        add(mode == PolylineMode ? Kind::PolylineFloat : Kind::PolygonFloat, corners);
    }
    void drawRects(const QRectF *rects, int count) override
    {
        for (int i = 0; i < count; ++i)
            add(Kind::RectsFloat, rectPoints(rects[i]));
    }
    void drawEllipse(const QRect &rect) override { add(Kind::EllipseInt, rectPoints(rect)); }
    void drawEllipse(const QRectF &rect) override { add(Kind::EllipseFloat, rectPoints(rect)); }
    void drawPath(const QPainterPath &path) override
    {
        QVector<QPointF> points;
        for (int i = 0; i < path.elementCount(); ++i)
            points.append(path.elementAt(i));
        add(Kind::Path, points);
    }
    void drawTextItem(const QPointF &position, const QTextItem &item) override
    {
        add(Kind::Text, QVector<QPointF>{position}).text = item.text();
    }
    void drawPixmap(const QRectF &rect, const QPixmap &, const QRectF &) override
    {
        add(Kind::Image, rectPoints(rect));
    }

private:
    template <class Line>
    static QVector<QPointF> linePoints(const Line *lines, int count)
    {
        QVector<QPointF> points;
        for (int i = 0; i < count; ++i)
            points << lines[i].p1() << lines[i].p2();
        return points;
    }

    PaintCall &add(Kind kind, const QVector<QPointF> &points)
    {
        PaintCall call;
        call.kind = kind;
        call.points = points;
        call.pen = painter()->pen();
        call.brush = painter()->brush();
        call.font = painter()->font();
        call.transform = painter()->transform();
        call.antialiased = painter()->testRenderHint(QPainter::Antialiasing);
        call.clipped = painter()->hasClipping();
        m_target.append(call);
        return m_target.last();
    }

    QVector<PaintCall> &m_target;
};

PaintRecorder::PaintRecorder(const QSize &size)
    : m_size(size)
    , m_engine(std::make_unique<Engine>(m_calls))
{}

PaintRecorder::~PaintRecorder() = default;

QVector<PaintCall> PaintRecorder::calls(PaintCall::Kind kind) const
{
    QVector<PaintCall> result;
    std::copy_if(m_calls.begin(), m_calls.end(), std::back_inserter(result),
                 [kind](const PaintCall &call) { return call.kind == kind; });
    return result;
}

QStringList PaintRecorder::log() const
{
    QStringList lines;
    for (const PaintCall &call : m_calls)
        lines.append(call.toString());
    return lines;
}

QPaintEngine *PaintRecorder::paintEngine() const
{
    return m_engine.get();
}

int PaintRecorder::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return qRound(devicePixelRatioFScale());
    default: // resolutions; painters ask for nothing else
        return dotsPerInch;
    }
}

} // namespace Drevon::Zalento::Test
