#pragma once

#include "measuring/Export.h"
#include "measuring/Session.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace Drevon::Zalento::Measuring {

/** Version of the session files that are written: "zalento-session 1.0". */
constexpr int sessionSchemaMajor = 1;
constexpr int sessionSchemaMinor = 0;

/** The session as UTF-8 JSON: the schema first, unknown fields last. */
ZALENTO_MEASURING_EXPORT QByteArray sessionToJson(const Session &session);

/**
 * Reads a session. Missing fields have their defaults, unknown ones are kept.
 * @param problem on failure: what is wrong, naming the field and what was expected there
 */
ZALENTO_MEASURING_EXPORT std::optional<Session> sessionFromJson(const QByteArray &json,
                                                                QString &problem);

} // namespace Drevon::Zalento::Measuring
