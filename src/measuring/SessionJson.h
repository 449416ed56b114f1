#pragma once

#include "measuring/Export.h"
#include "measuring/Session.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace Drevon::Zalento::Measuring {

/** The session as UTF-8 JSON: the schema first, unknown fields last. */
ZALENTO_MEASURING_EXPORT QByteArray sessionToJson(const Session &session);

/**
 * Reads a session. Missing fields have their defaults, unknown ones are kept. A problem names the
 * field and what was expected there.
 */
ZALENTO_MEASURING_EXPORT Result<Session> sessionFromJson(const QByteArray &json);

} // namespace Drevon::Zalento::Measuring
