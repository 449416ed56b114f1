#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"
#include "measuring/Session.h"

#include <optional>

namespace Drevon::Zalento::Measuring {

/** The session's fields that place the model, the roll aside; and back. */
ZALENTO_MEASURING_EXPORT Alignment alignmentOf(const Session &session);
ZALENTO_MEASURING_EXPORT void setAlignment(Session &session, const Alignment &alignment);

/** True for a session with clicks that its alignment follows. */
ZALENTO_MEASURING_EXPORT bool hasAlignmentClicks(const Session &session);

/**
 * Fits the session's alignment to its rings and lines. The same clicks give the same bits, so a
 * session that was saved with its fit is the same after it. Where the alignment changes, points are
 * looked up where they were clicked. On a problem the session stays as it was.
 */
ZALENTO_MEASURING_EXPORT Result<AlignmentFit> fitSession(Session &session);

/** The fit that the session's alignment stands for; nothing without clicks, or where none fits. */
ZALENTO_MEASURING_EXPORT std::optional<AlignmentFit> fitOf(const Session &session);

} // namespace Drevon::Zalento::Measuring
