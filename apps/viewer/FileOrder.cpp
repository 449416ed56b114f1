#include "FileOrder.h"

#include "measuring/Picture.h"

namespace Drevon::Zalento {

FileOrder::FileOrder(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    sort(0);
}

bool FileOrder::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const QHash<int, QByteArray> roles = sourceModel()->roleNames();
    const int folderRole = roles.key("fileIsDir");
    const bool isFolder = left.data(folderRole).toBool();
    if (isFolder != right.data(folderRole).toBool()) {
        return isFolder;
    }
    const int nameRole = roles.key("fileName");
    return Measuring::isBefore(left.data(nameRole).toString(), right.data(nameRole).toString());
}

} // namespace Drevon::Zalento
