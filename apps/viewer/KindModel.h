#pragma once

#include <QAbstractListModel>

namespace Drevon::Zalento {

/** The kinds in the order in which they are offered. */
class KindModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { NameRole = Qt::UserRole, TitleRole, DescriptionRole };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /** To be called when the language has changed. */
    void retranslate();
};

} // namespace Drevon::Zalento
