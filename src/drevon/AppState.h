#pragma once

#include "drevon/CDomainObject.h"
#include "drevon/Export.h"

#include <QObject>
#include <QSharedPointer>

namespace Drevon {

/** State of the host application that all its parts share. GUI thread only. */
class DREVON_EXPORT AppState : public QObject
{
    Q_OBJECT

public:
    /** The one state of the process; it lives until the process ends. */
    static AppState *instance();

    /** The inspection record that is being worked on; null when there is none. */
    QSharedPointer<Database::CDomainObject> getActiveStructure() const;

    /**
     * Makes @p structure the active record (null: none) and emits activeStructureChanged(),
     * also when it was the active one already: its fields may have changed.
     */
    void setActiveStructure(QSharedPointer<Database::CDomainObject> structure);

Q_SIGNALS:
    /** Another record is active (null: none), or the fields of the active one have changed. */
    void activeStructureChanged(const QSharedPointer<Drevon::Database::CDomainObject> &structure);

private:
    AppState() = default;

    QSharedPointer<Database::CDomainObject> m_activeStructure;
};

} // namespace Drevon
