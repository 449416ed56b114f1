#include "Inspection.h"

#include <drevon/AppState.h>
#include <drevon/CLocaleSupport.h>
#include <measuring/ItemSession.h>
#include <measuring/SessionFile.h>

#include <QFileInfo>
#include <QSettings>

using namespace Drevon;
using namespace Drevon::Zalento::Measuring;

Inspection::Inspection(const PictureIdentity &picture)
    : m_picture(picture)
{}

void Inspection::setNominalSize(int sizeMM)
{
    const QString field = QStringLiteral("OBJ_Size1");
    Shared::CLocaleSupport::setCatalogTemplateColumnUnit(field, QStringLiteral("mm"));
    const auto record = QSharedPointer<Database::CDomainObject>::create();
    record->writeValue(field, sizeMM);
    AppState::instance()->setActiveStructure(record);
}

QUrl Inspection::picture() const
{
    return QUrl::fromLocalFile(QFileInfo(m_picture.path).absoluteFilePath());
}

void Inspection::decorate(Zalento::ZaItem *item) const
{
    QSettings store;
    Zalento::ZASettings display;
    display.Load(store);
    item->setSettings(display);
}

void Inspection::save(Zalento::ZaItem *item)
{
    m_message = saved(*item);
    Q_EMIT messageChanged();
}

QString Inspection::saved(Zalento::ZaItem &item) const
{
    Result<Session> session = sessionOf(item);
    if (!session) {
        return session.problem().text();
    }
    session->picture = m_picture;
    const QString path = sessionPathOf(m_picture.path);
    const Outcome problem = saveSession(*session, path, Overwrite::Refuse);
    return problem ? problem->text() : tr("Saved as %1").arg(path);
}
