#pragma once

#include "drevon/CDomainObject.h"

#include <QMap>
#include <QObject>
#include <QSharedPointer>

namespace Drevon {

/** Keeps all records and the number of the active one. */
class AppState : public QObject
{
    Q_OBJECT

public:
    static AppState *instance();
    QSharedPointer<Database::CDomainObject> getActiveStructure() const;
    void addRecord(int number, const QString &nominalSize);
    void openRecord(int number);

Q_SIGNALS:
    void activeStructureChanged(const QSharedPointer<Drevon::Database::CDomainObject> &structure);

private:
    int m_number = -1;
    QMap<int, QSharedPointer<Database::CDomainObject>> m_records;
};

} // namespace Drevon
