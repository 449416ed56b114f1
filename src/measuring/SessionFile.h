#pragma once

#include "measuring/Export.h"
#include "measuring/OutputFile.h"
#include "measuring/Session.h"

#include <QString>

#include <optional>

namespace Drevon::Zalento::Measuring {

/** End of every session file's name. */
extern ZALENTO_MEASURING_EXPORT const char *const sessionSuffix;

/** Where a picture's session stands: "<picture file name>.zalento.json" beside it. */
ZALENTO_MEASURING_EXPORT QString sessionPathOf(const QString &picturePath);

/**
 * Loads a session file. The paths of its picture and film become some from the working folder, or
 * absolute. A problem names the file. The fields are those of the file: fitSession() fits them to
 * its joints and lines.
 */
ZALENTO_MEASURING_EXPORT Result<Session> loadSession(const QString &path);

/**
 * Saves a session; the paths of its picture and film are written relative to the session's folder.
 * Either the whole file is written or the old one stays. The picture is not touched.
 */
ZALENTO_MEASURING_EXPORT Outcome saveSession(const Session &session, const QString &path,
                                             Overwrite overwrite);

/**
 * Compares the picture that a session was made on with the one at hand.
 * @return what differs, for a warning; nothing when they are the same or the session names none
 */
ZALENTO_MEASURING_EXPORT std::optional<QString> pictureDifference(const PictureIdentity &expected,
                                                                  const PictureIdentity &found);

} // namespace Drevon::Zalento::Measuring
