#pragma once

#include "zalento/Export.h"

namespace Drevon::Zalento {

/**
 * Registers the item for QML: `ZaItem`, and `CommonConstants` for its enumerations alone.
 *
 * The QML module Drevon.Zalento calls it when it is imported. An application that links the library
 * calls it instead of installing the module, before its first QML is loaded:
 *
 * @code
 * Drevon::Zalento::registerTypes("Drevon.Zalento"); // import Drevon.Zalento 1.0
 * @endcode
 *
 * @param uri name of the QML module, of the application's choice; the version is 1.0
 */
ZALENTO_EXPORT void registerTypes(const char *uri);

} // namespace Drevon::Zalento
