#pragma once

#include "measuring/Count.h"

#include <QAbstractListModel>
#include <QPointF>
#include <QVariantList>
#include <QVector>

namespace Drevon::Zalento {

/** Where the points of the measurement lie in the picture; a closed outline's end is its start. */
class PointModel : public QAbstractListModel
{
    Q_OBJECT

    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /** The same as a list of points. */
    Q_PROPERTY(QVariantList pixels READ pixels NOTIFY pixelsChanged)

public:
    enum Role { PixelRole = Qt::UserRole };

    using QAbstractListModel::QAbstractListModel;

    int count() const { return Measuring::countOf(m_points); }
    QVariantList pixels() const;
    QPointF at(int index) const { return m_points.at(index); }
    /** The point within @p radius pixels of @p pixel that is nearest to it, or -1. */
    int nearest(const QPointF &pixel, double radius) const;

    void setPoints(const QVector<QPointF> &points);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();
    void pixelsChanged();

private:
    void resizeTo(int count);

    QVector<QPointF> m_points;
};

} // namespace Drevon::Zalento
