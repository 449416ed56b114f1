#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"

#include <QByteArray>
#include <QImage>
#include <QSaveFile>
#include <QString>

namespace Drevon::Zalento::Measuring {

enum class Overwrite { Refuse, Allow };

/** Writes the whole file or, on any failure, leaves what was there. */
ZALENTO_MEASURING_EXPORT Outcome writeFile(const QString &path, const QByteArray &content,
                                           Overwrite overwrite);

/**
 * Opens a file that takes the place of what is at its name only when replaceWith() says so. What is
 * not put there leaves no trace.
 */
ZALENTO_MEASURING_EXPORT Outcome openForReplacing(QSaveFile &file, Overwrite overwrite);

/** Puts a whole file in its place or, on any failure, leaves what was there. */
ZALENTO_MEASURING_EXPORT Outcome replaceWith(QSaveFile &file);

/** "<stem><end>" in @p folder; beside the picture when empty. */
ZALENTO_MEASURING_EXPORT QString pathBeside(const QString &picturePath, const QString &folder,
                                            const QString &end);

/** A picture as a PNG file's bytes; keeps its dots per metre. */
ZALENTO_MEASURING_EXPORT QByteArray pngBytes(const QImage &image);

} // namespace Drevon::Zalento::Measuring
