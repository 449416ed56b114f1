#pragma once

#include <QColor>
#include <QPainter>
#include <QPen>

namespace Drevon::Zalento {

/** A solid pen @p widthPx pixels wide. */
inline QPen solidPen(const QColor &color, double widthPx)
{
    QPen pen(color);
    pen.setWidthF(widthPx);
    return pen;
}

/** @p color with @p alpha in 0 (transparent) to 255 (opaque). */
inline QColor withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

/** Gives the painter back the pen that it had. */
class PenScope
{
public:
    /** Keeps the pen of this painter. */
    explicit PenScope(QPainter &painter)
        : m_painter(painter)
        , m_pen(painter.pen())
    {}
    ~PenScope() { m_painter.setPen(m_pen); }
    PenScope(const PenScope &) = delete;
    PenScope &operator=(const PenScope &) = delete;

private:
    QPainter &m_painter;
    QPen m_pen;
};

} // namespace Drevon::Zalento
