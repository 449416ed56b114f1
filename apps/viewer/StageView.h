#pragma once

#include <QObject>
#include <QPointF>
#include <QSizeF>

namespace Drevon::Zalento {

/**
 * Which part of the picture the stage shows, and how large.
 *
 * View coordinates are those of the stage, in its own pixels from its top-left corner; picture
 * coordinates are pixels of the upright picture. view = picture * scale + offset.
 */
class StageView : public QObject
{
    Q_OBJECT

    /** Size of the stage. */
    Q_PROPERTY(QSizeF viewSize READ viewSize WRITE setViewSize NOTIFY changed)
    /** Size of the picture; an empty one shows nothing. Setting another fits it into the stage. */
    Q_PROPERTY(QSizeF pictureSize READ pictureSize WRITE setPictureSize NOTIFY changed)
    /** Stage pixels per picture pixel. */
    Q_PROPERTY(double scale READ scale NOTIFY changed)
    /** Where the picture's top-left corner lies on the stage. */
    Q_PROPERTY(QPointF offset READ offset NOTIFY changed)
    /** Picture point at the stage's top-left corner. */
    Q_PROPERTY(QPointF origin READ origin NOTIFY changed)
    /** The whole picture is shown, and stays so when the stage is resized. */
    Q_PROPERTY(bool isFitted READ isFitted NOTIFY changed)

public:
    /**
     * Also of a picture that is fitted: the overlay's lines grow with the picture, and those of a
     * tiny one that filled the stage would be hundreds of pixels wide, which takes seconds to draw.
     */
    static constexpr double largestScale = 32.0;

    using QObject::QObject;

    QSizeF viewSize() const { return m_viewSize; }
    void setViewSize(const QSizeF &size);
    QSizeF pictureSize() const { return m_pictureSize; }
    void setPictureSize(const QSizeF &size);
    double scale() const { return m_scale; }
    QPointF offset() const { return m_offset; }
    QPointF origin() const { return toPicture(QPointF()); }
    bool isFitted() const { return m_isFitted; }

    Q_INVOKABLE QPointF toPicture(const QPointF &viewPoint) const;
    Q_INVOKABLE QPointF toView(const QPointF &picturePoint) const;

    /** Multiplies the scale by @p factor; the picture point under @p viewPoint stays there. */
    Q_INVOKABLE void zoomAt(const QPointF &viewPoint, double factor);
    /** As zoomAt() the middle of the stage. */
    Q_INVOKABLE void zoom(double factor);
    /** One picture pixel a stage pixel. */
    Q_INVOKABLE void actualSize();
    Q_INVOKABLE void fit();
    Q_INVOKABLE void panBy(double dx, double dy);

Q_SIGNALS:
    void changed();

private:
    double fittedScale() const;
    void placeFitted();
    void keepInSight();

    QSizeF m_viewSize;
    QSizeF m_pictureSize;
    double m_scale = 1.0;
    QPointF m_offset;
    bool m_isFitted = true;
};

} // namespace Drevon::Zalento
