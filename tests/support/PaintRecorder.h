#pragma once

#include <QBrush>
#include <QFont>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPen>
#include <QPointF>
#include <QStringList>
#include <QTransform>
#include <QVector>
#include <memory>

namespace Drevon::Zalento::Test {

/** One call as it reached the paint engine, with the painter's state at that moment. */
struct PaintCall
{
    Q_GADGET

public:
    /** Integer and floating lines and ellipses are kinds of their own: an engine rasterises them
        differently. Qt turns other integer calls into floating ones. */
    enum class Kind {
        LinesInt,
        LinesFloat,
        PolylineFloat,
        PolygonFloat,
        RectsFloat,
        EllipseInt,
        EllipseFloat,
        Path,
        Text,
        Image
    };
    Q_ENUM(Kind)

    Kind kind = Kind::Path;
    /** Device-independent coordinates as handed over, before the transform. Lines: two points each;
        rectangles and ellipses: top left corner and (width, height); path: its elements; text: the
        base point. */
    QVector<QPointF> points;
    /** Text alone. */
    QString text;
    /** Qt::NoPen under fillRect and fillPath. */
    QPen pen;
    /** Qt::NoBrush under strokePath. */
    QBrush brush;
    QFont font;
    QTransform transform;
    bool antialiased = false;
    bool clipped = false;

    /** The call's name and coordinates: "LinesInt (1, 2) (3, 4)". */
    QString shape() const;
    /** One line for a failure message: shape, pen, brush, and what else is not the default. */
    QString toString() const;
};

/** "#ff102030 2", alpha first; caps, joins and style where they are not QPen's own; "none" without
    a pen. */
QString penText(const QPen &pen);

/** A paint device that draws nothing and keeps every call that reaches its engine, in order. The
    engine claims every feature, so calls arrive as they were made, not taken apart. */
class PaintRecorder : public QPaintDevice
{
public:
    /** @param size of the device in pixels, at 96 dots an inch. */
    explicit PaintRecorder(const QSize &size = QSize(800, 600));
    ~PaintRecorder() override;

    const QVector<PaintCall> &calls() const { return m_calls; }
    /** The calls of one kind, in order. */
    QVector<PaintCall> calls(PaintCall::Kind kind) const;
    /** toString() of each call. */
    QStringList log() const;

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;

    QSize m_size;
    QVector<PaintCall> m_calls;
    std::unique_ptr<Engine> m_engine;
};

} // namespace Drevon::Zalento::Test
