#include "FeatureModel.h"

#include "measuring/Count.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

namespace {

// The largest distance of a feature's clicks from what is drawn.
double largestOf(const QVector<QPointF> &residuals)
{
    double largest = 0.0;
    for (const QPointF &residual : residuals) {
        largest = std::max(largest, std::hypot(residual.x(), residual.y()));
    }
    return largest;
}

QString noteOf(int clicks, int needed, const QVector<QPointF> &residuals)
{
    if (clicks < needed) {
        return FeatureModel::tr("%n more click(s)", nullptr, needed - clicks);
    }
    return residuals.isEmpty()
               ? FeatureModel::tr("not used")
               : FeatureModel::tr("up to %1 px off").arg(largestOf(residuals), 0, 'f', 1);
}

} // namespace

void FeatureModel::setFeatures(const Measuring::Session &session,
                               const std::optional<Measuring::AlignmentFit> &fit)
{
    QVector<Row> rows;
    for (int i = 0; i < session.rings.size(); ++i) {
        const Measuring::RingClicks &ring = session.rings[i];
        const auto residuals = fit ? fit->ringResiduals.value(i) : QVector<QPointF>();
        rows.append(
            {tr("Joint %1").arg(i + 1), false,
             ring.distanceMM ? QString::number(*ring.distanceMM) : QString(),
             noteOf(Measuring::countOf(ring.points), Measuring::smallestRingClicks, residuals)});
    }
    for (int i = 0; i < session.lines.size(); ++i) {
        const auto residuals = fit ? fit->lineResiduals.value(i) : QVector<QPointF>();
        rows.append({tr("Line %1").arg(i + 1),
                     true,
                     {},
                     noteOf(Measuring::countOf(session.lines[i].points),
                            Measuring::smallestLineClicks, residuals)});
    }
    setRows(rows);
}

void FeatureModel::clear()
{
    setRows({});
}

void FeatureModel::setRows(const QVector<Row> &rows)
{
    if (rows.size() != m_rows.size()) {
        beginResetModel();
        m_rows = rows;
        endResetModel();
        Q_EMIT countChanged();
        return;
    }
    m_rows = rows;
    if (!m_rows.isEmpty()) {
        Q_EMIT dataChanged(index(0), index(Measuring::countOf(m_rows) - 1));
    }
}

int FeatureModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Measuring::countOf(m_rows);
}

QVariant FeatureModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case TitleRole:
        return row.title;
    case IsLineRole:
        return row.isLine;
    case DistanceRole:
        return row.distance;
    case NoteRole:
        return row.note;
    default:
        return {};
    }
}

QHash<int, QByteArray> FeatureModel::roleNames() const
{
    return {{TitleRole, "title"},
            {IsLineRole, "isLine"},
            {DistanceRole, "distance"},
            {NoteRole, "note"}};
}

} // namespace Drevon::Zalento
