#pragma once

#include "measuring/Export.h"
#include "measuring/Session.h"

#include "zalento/item/ZaItem.h"

#include <QSize>

/**
 * @file
 * Sessions on the item. The session is the record: programs change the session and show it, and the
 * item is the same whatever was on it before. The item is as large as the upright picture, so that
 * item pixels are picture pixels. Nothing is painted. GUI thread only.
 */
namespace Drevon::Zalento::Measuring {

/** Makes the item as large as the picture; zoom by transforming it, not by its size. */
ZALENTO_MEASURING_EXPORT void layOutItem(ZaItem &item, const QSize &pictureSize);

/** Puts everything of the session on the item; points without a position are left out. */
ZALENTO_MEASURING_EXPORT void showSession(const Session &session, ZaItem &item);

} // namespace Drevon::Zalento::Measuring
