#pragma once

#include <QSortFilterProxyModel>

namespace Drevon::Zalento {

/** A FolderListModel's rows in the order of measuring/Picture.h: folders first, then by name. */
class FileOrder : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit FileOrder(QObject *parent = nullptr);

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
};

} // namespace Drevon::Zalento
