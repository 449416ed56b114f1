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
 *
 * @param scale picture pixels to a pixel of the item, for lines and labels that are so many times
 * as large: the painter is to be scaled by it. Values and places in the picture are the same.
 */
ZALENTO_MEASURING_EXPORT void showSession(const Session &session, ZaItem &item, double scale = 1.0);

/**
 * The scale with which overlays are as easy to see in a large picture as in one of 720 lines, the
 * smaller side counted: the item's lines are 1 to 3 pixels wide. 1 in smaller pictures.
 */
ZALENTO_MEASURING_EXPORT double overlayScale(const QSize &picture);

} // namespace Drevon::Zalento::Measuring
