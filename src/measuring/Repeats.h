#pragma once

#include "measuring/Export.h"
#include "measuring/Measurement.h"
#include "measuring/Session.h"

#include <optional>

namespace Drevon::Zalento::Measuring {

/** What the results of a measurement that was repeated say of it (JCGM 100, 4.2). */
struct RepeatStatistics
{
    int count = 0;
    double mean = 0.0;
    double standardDeviation = 0.0; ///< of one result
    double standardDeviationOfMean = 0.0;
};

/** Keeps the session's values as an earlier result and takes away what was measured: its points,
    or the value that was set. False when nothing is measured. */
ZALENTO_MEASURING_EXPORT bool measureAgain(Session &session);

/** The kept results and the one on view; nothing for fewer than two. */
ZALENTO_MEASURING_EXPORT std::optional<RepeatStatistics> repeatStatistics(const Session &session,
                                                                          const Value &value);

} // namespace Drevon::Zalento::Measuring
