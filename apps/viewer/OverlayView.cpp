#include "OverlayView.h"

#include "measuring/OverlayExport.h"

#include <QPainter>

#include <cmath>

namespace Drevon::Zalento {

namespace {

// In view pixels.
constexpr double markRadiusPx = 9.0;
constexpr double markPenPx = 2.0;
constexpr double markHaloPx = 4.0;

} // namespace

OverlayView::OverlayView(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &QQuickPaintedItem::contentsScaleChanged, this, [this] { update(); });
}

void OverlayView::setItem(ZaItem *item)
{
    if (item == m_item) {
        return;
    }
    m_item = item;
    update();
    Q_EMIT itemChanged();
}

void OverlayView::setItemScale(double scale)
{
    if (scale == m_itemScale) {
        return;
    }
    m_itemScale = scale;
    update();
    Q_EMIT itemScaleChanged();
}

void OverlayView::setMeasurements(MeasurementModel *measurements)
{
    if (measurements == m_measurements) {
        return;
    }
    m_measurements = measurements;
    connect(measurements, &MeasurementModel::othersChanged, this, [this] { update(); });
    update();
    Q_EMIT measurementsChanged();
}

void OverlayView::setOrigin(const QPointF &origin)
{
    if (origin == m_origin) {
        return;
    }
    m_origin = origin;
    update();
    Q_EMIT originChanged();
}

void OverlayView::setPicture(const QImage &picture)
{
    m_picture = picture;
    update();
    Q_EMIT pictureChanged();
}

void OverlayView::setMarks(const QVariantList &marks)
{
    m_marks = marks;
    update();
    Q_EMIT marksChanged();
}

void OverlayView::setIsOverlayShown(bool shown)
{
    if (shown == m_isOverlayShown) {
        return;
    }
    m_isOverlayShown = shown;
    update();
    Q_EMIT isOverlayShownChanged();
}

void OverlayView::setLabelPx(double px)
{
    if (px == m_labelPx) {
        return;
    }
    m_labelPx = px;
    update();
    Q_EMIT labelPxChanged();
}

// The painter arrives scaled by contentsScale.
void OverlayView::paint(QPainter *painter)
{
    painter->translate(-m_origin);
    paintPicture(*painter);
    if (m_item && m_isOverlayShown) {
        painter->save();
        paintOverlays(*painter);
        painter->restore();
    }
    paintMarks(*painter);
}

void OverlayView::paintOverlays(QPainter &painter) const
{
    const double scale = m_itemScale * contentsScale();
    QFont font = painter.font();
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(m_labelPx / scale))));
    painter.setFont(font);
    const Measuring::OtherOverlays *others = m_measurements ? m_measurements->others() : nullptr;
    Measuring::PaintedOverlay{*m_item, m_itemScale, others}.paint(painter);
}

void OverlayView::paintPicture(QPainter &painter) const
{
    const QRectF shown(m_origin, QSizeF(width(), height()) / contentsScale());
    const QRect source = shown.toAlignedRect().intersected(m_picture.rect());
    if (!source.isEmpty()) {
        painter.drawImage(source.topLeft(), m_picture, source);
    }
}

void OverlayView::paintMarks(QPainter &painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = markRadiusPx / contentsScale();
    for (const QVariant &mark : m_marks) {
        painter.setPen(QPen(Qt::black, markHaloPx / contentsScale()));
        painter.drawEllipse(mark.toPointF(), radius, radius);
        painter.setPen(QPen(Qt::white, markPenPx / contentsScale()));
        painter.drawEllipse(mark.toPointF(), radius, radius);
    }
}

} // namespace Drevon::Zalento
