#pragma once

#include "measuring/Session.h"

#include <QPointF>
#include <QSize>

namespace Drevon::Zalento {

/**
 * The session with its model dragged by @p moved picture pixels, so that the pipe's mouth stays
 * under the pointer; while the rear circle is active its far end is dragged instead.
 */
Measuring::Session modelDragged(const Measuring::Session &start, const QPointF &moved,
                                const QSize &pictureSize);

} // namespace Drevon::Zalento
