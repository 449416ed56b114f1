#pragma once

#include "measuring/Export.h"
#include "measuring/Unrolling.h"

#include <QImage>
#include <QString>

namespace Drevon::Zalento::Measuring {

/** "<stem>.unrolled.png" in @p folder; beside the picture when empty. */
ZALENTO_MEASURING_EXPORT QString unrolledPathOf(const QString &picturePath, const QString &folder);

/**
 * A flat picture with clock hours across (a plane: millimetres), millimetres along, and a scale
 * bar. Rows in which a pixel of the session's picture covers many of the flat one turn grey.
 * @param flat of Unrolling::flattened()
 */
ZALENTO_MEASURING_EXPORT QImage withAxes(const Unrolling &unrolling, const QImage &flat);

} // namespace Drevon::Zalento::Measuring
