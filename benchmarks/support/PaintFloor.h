#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

#include <functional>
#include <vector>

namespace Drevon::Zalento::Benchmarks {

/**
 * The floor of a paint: what a bare painter takes that is handed the very same calls, with pens,
 * coordinates and texts ready made.
 */
class PaintFloor
{
public:
    /** Records what @p paint draws on a device of @p size pixels. */
    PaintFloor(const std::function<void(QPainter &)> &paint, const QSize &size);

    void paint(QPainter &painter) const;
    std::size_t callCount() const { return m_calls.size(); }

private:
    std::vector<std::function<void(QPainter &)>> m_calls;
};

/** A transparent picture of the item's kind with an open, antialiasing painter. */
class Canvas
{
public:
    explicit Canvas(const QSize &size);

    QImage image;
    QPainter painter;
};

} // namespace Drevon::Zalento::Benchmarks
