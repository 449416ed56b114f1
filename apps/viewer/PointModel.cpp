#include "PointModel.h"

#include "measuring/Count.h"

#include <QLineF>

namespace Drevon::Zalento {

QVariantList PointModel::pixels() const
{
    QVariantList list;
    for (const QPointF &point : m_points) {
        list.append(point);
    }
    return list;
}

int PointModel::nearest(const QPointF &pixel, double radius) const
{
    int found = -1;
    double smallest = radius;
    for (int i = 0; i < m_points.size(); ++i) {
        const double distance = QLineF(pixel, m_points.at(i)).length();
        if (distance <= smallest) {
            smallest = distance;
            found = i;
        }
    }
    return found;
}

// Rows that stay keep their delegates: a handle is not made anew with every move.
void PointModel::setPoints(const QVector<QPointF> &points)
{
    if (points == m_points) {
        return;
    }
    const bool isOtherCount = points.size() != m_points.size();
    resizeTo(Measuring::countOf(points));
    m_points = points;
    if (!m_points.isEmpty()) {
        Q_EMIT dataChanged(index(0), index(Measuring::countOf(m_points) - 1), {PixelRole});
    }
    if (isOtherCount) {
        Q_EMIT countChanged();
    }
    Q_EMIT pixelsChanged();
}

void PointModel::resizeTo(int count)
{
    if (count > m_points.size()) {
        beginInsertRows({}, Measuring::countOf(m_points), count - 1);
        m_points.resize(count);
        endInsertRows();
    } else if (count < m_points.size()) {
        beginRemoveRows({}, count, Measuring::countOf(m_points) - 1);
        m_points.resize(count);
        endRemoveRows();
    }
}

int PointModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Measuring::countOf(m_points);
}

QVariant PointModel::data(const QModelIndex &index, int role) const
{
    return checkIndex(index, CheckIndexOption::IndexIsValid) && role == PixelRole
               ? QVariant(m_points.at(index.row()))
               : QVariant();
}

QHash<int, QByteArray> PointModel::roleNames() const
{
    return {{PixelRole, "pixel"}};
}

} // namespace Drevon::Zalento
