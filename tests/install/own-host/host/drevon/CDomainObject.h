#pragma once

#include <QObject>
#include <QVariant>

namespace Drevon::Database {

/** A record whose fields are dynamic properties. */
class CDomainObject : public QObject
{
    Q_OBJECT

public:
    virtual QVariant readValue(QString const &field) const;
};

} // namespace Drevon::Database
