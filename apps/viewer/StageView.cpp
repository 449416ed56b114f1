#include "StageView.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

namespace {

// A picture is never shown smaller than half of what fits.
constexpr double smallestShareOfFitted = 0.5;

// Offset along one axis that centres a picture narrower than the view and else leaves no gap
// larger than half of the view.
double keptInSight(double offset, double length, double viewLength)
{
    if (length <= viewLength) {
        return (viewLength - length) * 0.5;
    }
    return std::clamp(offset, viewLength * 0.5 - length, viewLength * 0.5);
}

} // namespace

void StageView::setViewSize(const QSizeF &size)
{
    if (size == m_viewSize) {
        return;
    }
    m_viewSize = size;
    if (m_isFitted) {
        placeFitted();
    } else {
        keepInSight();
    }
    Q_EMIT changed();
}

void StageView::setPictureSize(const QSizeF &size)
{
    if (size == m_pictureSize) {
        return;
    }
    m_pictureSize = size;
    fit();
}

QPointF StageView::toPicture(const QPointF &viewPoint) const
{
    return (viewPoint - m_offset) / m_scale;
}

QPointF StageView::toView(const QPointF &picturePoint) const
{
    return picturePoint * m_scale + m_offset;
}

void StageView::zoomAt(const QPointF &viewPoint, double factor)
{
    if (!std::isfinite(factor) || factor <= 0.0) {
        return;
    }
    const QPointF held = toPicture(viewPoint);
    const double smallest = std::min(1.0, fittedScale() * smallestShareOfFitted);
    m_scale = std::clamp(m_scale * factor, smallest, largestScale);
    m_offset = viewPoint - held * m_scale;
    m_isFitted = false;
    keepInSight();
    Q_EMIT changed();
}

void StageView::zoom(double factor)
{
    zoomAt(QPointF(m_viewSize.width() * 0.5, m_viewSize.height() * 0.5), factor);
}

void StageView::actualSize()
{
    zoom(1.0 / m_scale);
}

void StageView::fit()
{
    m_isFitted = true;
    placeFitted();
    Q_EMIT changed();
}

void StageView::panBy(double dx, double dy)
{
    m_offset += QPointF(dx, dy);
    m_isFitted = false;
    keepInSight();
    Q_EMIT changed();
}

double StageView::fittedScale() const
{
    if (m_viewSize.isEmpty() || m_pictureSize.isEmpty()) {
        return 1.0;
    }
    return std::min({m_viewSize.width() / m_pictureSize.width(),
                     m_viewSize.height() / m_pictureSize.height(), largestScale});
}

void StageView::placeFitted()
{
    m_scale = fittedScale();
    keepInSight();
}

void StageView::keepInSight()
{
    m_offset =
        QPointF(keptInSight(m_offset.x(), m_pictureSize.width() * m_scale, m_viewSize.width()),
                keptInSight(m_offset.y(), m_pictureSize.height() * m_scale, m_viewSize.height()));
}

} // namespace Drevon::Zalento
