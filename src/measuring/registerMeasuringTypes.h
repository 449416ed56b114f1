#pragma once

#include "measuring/Export.h"

namespace Drevon::Zalento::Measuring {

/**
 * Registers `Measurement` for QML, see OverlayMeasurement. The QML module Drevon.Zalento.Measuring
 * calls it when it is imported; an application that links the library may call it instead, beside
 * Drevon::Zalento::registerTypes().
 *
 * @param uri name of the QML module, of the application's choice; the version is 1.0
 */
ZALENTO_MEASURING_EXPORT void registerMeasuringTypes(const char *uri);

} // namespace Drevon::Zalento::Measuring
