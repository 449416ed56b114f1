#include "ZalentoPlugin.h"

#include <zalento/item/registerTypes.h>

void ZalentoPlugin::registerTypes(const char *uri)
{
    Q_ASSERT(QLatin1String(uri) == QLatin1String("Drevon.Zalento"));
    Drevon::Zalento::registerTypes(uri);
}
