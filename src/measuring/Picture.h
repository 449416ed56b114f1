#pragma once

#include "measuring/Export.h"
#include "measuring/Session.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

namespace Drevon::Zalento::Measuring {

/** A picture from inside a pipe. */
struct Picture
{
    QImage image;             ///< upright: the orientation stored in the file is applied
    PictureIdentity identity; ///< its path is the one it was loaded from
};

/** More pixels than any inspection camera has; such a file is refused before it is decoded. */
constexpr qint64 largestPictureMegapixels = 100;

/** Formats of photographs that can be read here, in lower case: "jpg", "png", ... */
ZALENTO_MEASURING_EXPORT const QList<QByteArray> &pictureFormats();

/** The same as patterns of file names: "*.jpg", ... */
ZALENTO_MEASURING_EXPORT QStringList pictureNamePatterns();

/** False for what a program of this project wrote over a picture, and for other formats. */
ZALENTO_MEASURING_EXPORT bool isPictureToMeasure(const QString &path);

/**
 * The pictures in a folder, in the order of their names.
 * @param recursive those of the folders in it, too, in the order of their paths
 */
ZALENTO_MEASURING_EXPORT QStringList picturesIn(const QString &folder, bool recursive);

/** Loads a picture. A problem names the file. */
ZALENTO_MEASURING_EXPORT Result<Picture> loadPicture(const QString &path);

} // namespace Drevon::Zalento::Measuring
