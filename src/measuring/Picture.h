#pragma once

#include "measuring/Export.h"
#include "measuring/Session.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>

#include <optional>

namespace Drevon::Zalento::Measuring {

/** A picture from inside a pipe. */
struct Picture
{
    QImage image;             ///< upright: the orientation stored in the file is applied
    PictureIdentity identity; ///< its path is the one it was loaded from
};

/** More pixels than any inspection camera has; such a file is refused before it is decoded. */
constexpr qint64 largestPictureMegapixels = 100;

/** Formats of photographs that can be read, in lower case: "jpg", "png", ... */
ZALENTO_MEASURING_EXPORT const QList<QByteArray> &pictureFormats();

/**
 * Loads a picture.
 * @param problem on failure: what is wrong, naming the file
 */
ZALENTO_MEASURING_EXPORT std::optional<Picture> loadPicture(const QString &path, QString &problem);

} // namespace Drevon::Zalento::Measuring
