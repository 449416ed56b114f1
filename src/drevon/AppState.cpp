#include "drevon/AppState.h"

#include <utility>

namespace Drevon {

AppState *AppState::instance()
{
    static AppState state;
    return &state;
}

QSharedPointer<Database::CDomainObject> AppState::getActiveStructure() const
{
    return m_activeStructure;
}

void AppState::setActiveStructure(QSharedPointer<Database::CDomainObject> structure)
{
    m_activeStructure = std::move(structure);
    Q_EMIT activeStructureChanged(m_activeStructure);
}

} // namespace Drevon
