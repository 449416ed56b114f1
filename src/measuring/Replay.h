#pragma once

#include "measuring/Export.h"
#include "measuring/Session.h"

#include "zalento/item/ZaItem.h"

/**
 * @file
 * Sessions on the item. The session is the record: programs change the session and show it, and the
 * item is the same whatever was on it before. Nothing is painted. GUI thread only.
 */
namespace Drevon::Zalento::Measuring {

/**
 * Puts everything of the session on the item; points without a position are left out. The item is
 * laid out over the session's picture in picture pixels, see itemLayout(): show it at its position,
 * and zoom by transforming it, not by its size.
 */
ZALENTO_MEASURING_EXPORT void showSession(const Session &session, ZaItem &item);

} // namespace Drevon::Zalento::Measuring
