#include "measuring/registerMeasuringTypes.h"

#include "measuring/OverlayMeasurement.h"

#include <QtQml>

namespace Drevon::Zalento::Measuring {

void registerMeasuringTypes(const char *uri)
{
    constexpr int majorVersion = 1;
    constexpr int minorVersion = 0;
    qmlRegisterType<OverlayMeasurement>(uri, majorVersion, minorVersion, "Measurement");
}

} // namespace Drevon::Zalento::Measuring
