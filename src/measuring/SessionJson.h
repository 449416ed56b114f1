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

/** A lens alone, as it stands in a session; and back. */
ZALENTO_MEASURING_EXPORT QByteArray lensToJson(const Lens &lens);
ZALENTO_MEASURING_EXPORT Result<Lens> lensFromJson(const QByteArray &json);

} // namespace Drevon::Zalento::Measuring
