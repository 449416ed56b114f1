#include "MeasuringPlugin.h"

#include <measuring/registerMeasuringTypes.h>

void MeasuringPlugin::registerTypes(const char *uri)
{
    Q_ASSERT(QLatin1String(uri) == QLatin1String("Drevon.Zalento.Measuring"));
    Drevon::Zalento::Measuring::registerMeasuringTypes(uri);
}
