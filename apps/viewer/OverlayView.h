#pragma once

#include "MeasurementModel.h"

#include <zalento/item/ZaItem.h>

#include <QImage>
#include <QPointF>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QVariantList>

namespace Drevon::Zalento {

/**
 * Shows the measuring item through a view: the stage, or the loupe.
 *
 * The item itself lies at the picture's own pixel size, in large pictures at a fraction of it. Its
 * own texture would grow with the square of the zoom; this one is as large as the view and is
 * painted through contentsScale, so lines and labels are crisp at every zoom.
 */
class OverlayView : public QQuickPaintedItem
{
    Q_OBJECT

    /** The item whose overlay is shown; it may be invisible. */
    Q_PROPERTY(Drevon::Zalento::ZaItem *item READ item WRITE setItem NOTIFY itemChanged)
    /** That the item is shown with: picture pixels to one of its own. */
    Q_PROPERTY(double itemScale READ itemScale WRITE setItemScale NOTIFY itemScaleChanged)
    /** What the overlays of the other measurements are taken from; may be null. */
    Q_PROPERTY(Drevon::Zalento::MeasurementModel *measurements READ measurements WRITE
                   setMeasurements NOTIFY measurementsChanged)
    /** Picture point at the view's top-left corner, in picture pixels. */
    Q_PROPERTY(QPointF origin READ origin WRITE setOrigin NOTIFY originChanged)
    /** Painted under the overlay, every picture pixel a square; a null image paints nothing. */
    Q_PROPERTY(QImage picture READ picture WRITE setPicture NOTIFY pictureChanged)
    /** Points marked with a ring, in picture pixels. */
    Q_PROPERTY(QVariantList marks READ marks WRITE setMarks NOTIFY marksChanged)
    /** Paints the item; default true. */
    Q_PROPERTY(bool isOverlayShown READ isOverlayShown WRITE setIsOverlayShown NOTIFY
                   isOverlayShownChanged)
    /** Height of the overlay's labels in view pixels, whatever the zoom. */
    Q_PROPERTY(double labelPx READ labelPx WRITE setLabelPx NOTIFY labelPxChanged)

public:
    explicit OverlayView(QQuickItem *parent = nullptr);

    ZaItem *item() const { return m_item; }
    void setItem(ZaItem *item);
    double itemScale() const { return m_itemScale; }
    void setItemScale(double scale);
    MeasurementModel *measurements() const { return m_measurements; }
    void setMeasurements(MeasurementModel *measurements);
    QPointF origin() const { return m_origin; }
    void setOrigin(const QPointF &origin);
    QImage picture() const { return m_picture; }
    void setPicture(const QImage &picture);
    QVariantList marks() const { return m_marks; }
    void setMarks(const QVariantList &marks);
    bool isOverlayShown() const { return m_isOverlayShown; }
    void setIsOverlayShown(bool shown);
    double labelPx() const { return m_labelPx; }
    void setLabelPx(double px);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void itemChanged();
    void itemScaleChanged();
    void measurementsChanged();
    void originChanged();
    void pictureChanged();
    void marksChanged();
    void isOverlayShownChanged();
    void labelPxChanged();

private:
    void paintPicture(QPainter &painter) const;
    void paintOverlays(QPainter &painter) const;
    void paintMarks(QPainter &painter) const;

    QPointer<ZaItem> m_item;
    double m_itemScale = 1.0;
    QPointer<MeasurementModel> m_measurements;
    QPointF m_origin;
    QImage m_picture;
    QVariantList m_marks;
    bool m_isOverlayShown = true;
    double m_labelPx = 15.0;
};

} // namespace Drevon::Zalento
