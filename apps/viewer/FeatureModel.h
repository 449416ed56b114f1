#pragma once

#include "measuring/AlignmentFit.h"
#include "measuring/Count.h"
#include "measuring/Session.h"

#include <QAbstractListModel>
#include <QString>
#include <QVector>

#include <optional>

namespace Drevon::Zalento {

/** The joints and lines that were clicked to align the model: joints first. */
class FeatureModel : public QAbstractListModel
{
    Q_OBJECT

    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role { TitleRole = Qt::UserRole, IsLineRole, DistanceRole, NoteRole };

    using QAbstractListModel::QAbstractListModel;

    void setFeatures(const Measuring::Session &session,
                     const std::optional<Measuring::AlignmentFit> &fit);
    void clear();

    int count() const { return Measuring::countOf(m_rows); }
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    struct Row
    {
        QString title;
        bool isLine = false;
        QString distance; ///< in mm; empty when it is not known
        QString note;     ///< how far the clicks lie off
    };

    void setRows(const QVector<Row> &rows);

    QVector<Row> m_rows;
};

} // namespace Drevon::Zalento
