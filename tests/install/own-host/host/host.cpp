#include "drevon/AppState.h"
#include "drevon/CLocaleSupport.h"

namespace Drevon {

AppState *AppState::instance()
{
    static auto *state = new AppState;
    return state;
}

QSharedPointer<Database::CDomainObject> AppState::getActiveStructure() const
{
    return m_records.value(m_number);
}

void AppState::addRecord(int number, const QString &nominalSize)
{
    auto record = QSharedPointer<Database::CDomainObject>::create();
    record->setProperty("OBJ_Size1", nominalSize);
    m_records.insert(number, record);
}

void AppState::openRecord(int number)
{
    m_number = number;
    Q_EMIT activeStructureChanged(getActiveStructure());
}

QVariant Database::CDomainObject::readValue(QString const &field) const
{
    return property(field.toUtf8());
}

QString Shared::CLocaleSupport::catalogTemplateColumnUnit(QString const &column)
{
    return column == QLatin1String("OBJ_Size1") ? QStringLiteral("inch") : QString();
}

} // namespace Drevon
