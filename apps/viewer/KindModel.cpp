#include "KindModel.h"

#include "measuring/Kind.h"

namespace Drevon::Zalento {

int KindModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(Measuring::kinds().size());
}

QVariant KindModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Measuring::KindInfo &info = Measuring::kinds()[static_cast<std::size_t>(index.row())];
    switch (role) {
    case NameRole:
        return info.nameText();
    case TitleRole:
        return Measuring::translated(info.title);
    case DescriptionRole:
        return QLatin1String(info.description);
    default:
        return {};
    }
}

void KindModel::retranslate()
{
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), {TitleRole});
}

QHash<int, QByteArray> KindModel::roleNames() const
{
    return {{NameRole, "name"}, {TitleRole, "title"}, {DescriptionRole, "description"}};
}

} // namespace Drevon::Zalento
