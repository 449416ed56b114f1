#pragma once

#include "measuring/Export.h"
#include "measuring/PictureIdentity.h"
#include "measuring/Result.h"

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
    int frames = 1;           ///< in the file; the image is the first of them
    PictureIdentity identity; ///< its path is the one it was loaded from
};

/** More pixels than any inspection camera has; such a file is refused before it is decoded. */
constexpr qint64 largestPictureMegapixels = 100;

/**
 * Formats of photographs that can be read here, in lower case: "jpg", "png", ... Some of them are
 * plugins of Qt that need not be there.
 */
ZALENTO_MEASURING_EXPORT const QList<QByteArray> &pictureFormats();

/** The same as patterns of file names: "*.jpg", ... */
ZALENTO_MEASURING_EXPORT QStringList pictureNamePatterns();

/**
 * How people sort names: numbers by their value, small and capital letters together; the same
 * whatever the locale. Names that differ are never equal.
 */
ZALENTO_MEASURING_EXPORT bool isBefore(const QString &name, const QString &other);

/** False for what a program of this project wrote over a picture, and for other formats. */
ZALENTO_MEASURING_EXPORT bool isPictureToMeasure(const QString &path);

/**
 * The pictures in a folder, in the natural order of their names.
 * @param recursive those of the folders in it, too, in the order of their paths
 */
ZALENTO_MEASURING_EXPORT QStringList picturesIn(const QString &folder, bool recursive);

/** Loads a picture. A problem names the file. */
ZALENTO_MEASURING_EXPORT Result<Picture> loadPicture(const QString &path);

/**
 * Loads a small image of a picture, upright and no larger than @p bounds. A JPEG is read in that
 * size, in a fraction of the time that the whole one takes. Fails where loadPicture() fails.
 */
ZALENTO_MEASURING_EXPORT Result<QImage> loadThumbnail(const QString &path, const QSize &bounds);

/** What the start of a picture's file tells without decoding it; damage behind it is not seen. */
ZALENTO_MEASURING_EXPORT Outcome checkPicture(const QString &path);

} // namespace Drevon::Zalento::Measuring
