#include "drevon/CDomainObject.h"

namespace Drevon::Database {

QVariant CDomainObject::readValue(const QString &field) const
{
    return m_values.value(field);
}

void CDomainObject::writeValue(const QString &field, const QVariant &value)
{
    m_values.insert(field, value);
}

} // namespace Drevon::Database
