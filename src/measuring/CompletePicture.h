#pragma once

#include "measuring/Export.h"

#include <QByteArray>

namespace Drevon::Zalento::Measuring {

/**
 * False when a file's content ends before its picture does. Decoders fill what is missing with grey
 * or black and report success: JPEG (no end marker), BMP (fewer bytes than the header promises) and
 * GIF (the first frame's data). True for every other format, whose decoders tell.
 */
ZALENTO_MEASURING_EXPORT bool isCompletePicture(const QByteArray &content,
                                                const QByteArray &format);

} // namespace Drevon::Zalento::Measuring
