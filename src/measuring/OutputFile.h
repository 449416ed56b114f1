#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"

#include <QByteArray>
#include <QImage>
#include <QString>

namespace Drevon::Zalento::Measuring {

enum class Overwrite { Refuse, Allow };

/** Writes the whole file or, on any failure, leaves what was there. */
ZALENTO_MEASURING_EXPORT Outcome writeFile(const QString &path, const QByteArray &content,
                                           Overwrite overwrite);

/** "<stem><end>" in @p folder; beside the picture when empty. */
ZALENTO_MEASURING_EXPORT QString pathBeside(const QString &picturePath, const QString &folder,
                                            const QString &end);

/** A picture as a PNG file's bytes; keeps its dots per metre. */
ZALENTO_MEASURING_EXPORT QByteArray pngBytes(const QImage &image);

} // namespace Drevon::Zalento::Measuring
