#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"
#include "measuring/Session.h"

#include "zalento/item/ZaItem.h"

namespace Drevon::Zalento::Measuring {

/**
 * What is on an item, as a session: the way back of showSession(). The item counts as laid out over
 * its picture, so that the session's pixels are the item's; the session knows no file. What a kind
 * does not use is left out. The item does not know whether what is set by eye was set:
 * Session::isSet is true. GUI thread only.
 *
 * The problem names the item's property, or the session's field, that does not go with a
 * measurement: a kind of no known name, an object on view that does not exist or that the kind is
 * not measured on, a number beyond the limits of sessions.
 */
ZALENTO_MEASURING_EXPORT Result<Session> sessionOf(ZaItem &item);

} // namespace Drevon::Zalento::Measuring
