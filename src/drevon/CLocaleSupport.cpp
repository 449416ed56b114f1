#include "drevon/CLocaleSupport.h"

#include <QHash>

namespace Drevon::Shared {

namespace {

QHash<QString, QString> &columnUnits()
{
    static QHash<QString, QString> units;
    return units;
}

} // namespace

QString CLocaleSupport::catalogTemplateColumnUnit(const QString &column)
{
    return columnUnits().value(column);
}

void CLocaleSupport::setCatalogTemplateColumnUnit(const QString &column, const QString &unit)
{
    columnUnits().insert(column, unit);
}

} // namespace Drevon::Shared
