#pragma once

#include "measuring/Export.h"
#include "measuring/Measurement.h"
#include "measuring/Session.h"

#include <optional>

namespace Drevon::Zalento::Measuring {

/** Keeps the session's values as an earlier result and takes away what was measured: its points,
    or the value that was set. False when nothing is measured. */
ZALENTO_MEASURING_EXPORT bool measureAgain(Session &session);

/** The kept results and the one on view; nothing for fewer than two. */
ZALENTO_MEASURING_EXPORT std::optional<RepeatStatistics> repeatStatistics(const Session &session,
                                                                          const Value &value);

} // namespace Drevon::Zalento::Measuring
