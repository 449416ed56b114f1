#pragma once

#include "drevon/Export.h"

#include <QHash>
#include <QString>
#include <QVariant>

namespace Drevon::Database {

/** A record of the host's inspection database: named fields with values of any type. */
class DREVON_EXPORT CDomainObject
{
public:
    /** The value of @p field; an invalid QVariant for an unknown field. */
    QVariant readValue(const QString &field) const;

    /** Stores @p value under @p field, replacing what stood there. */
    void writeValue(const QString &field, const QVariant &value);

private:
    QHash<QString, QVariant> m_values;
};

} // namespace Drevon::Database
