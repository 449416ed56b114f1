#pragma once

#include "measuring/Session.h"

#include <QPointF>

namespace Drevon::Zalento {

/**
 * The session with its model dragged by @p moved picture pixels, so that the pipe's mouth stays
 * under the pointer; while the rear circle is active its far end is dragged instead.
 */
Measuring::Session modelDragged(const Measuring::Session &start, const QPointF &moved);

/** The session with the mouth's circle larger by @p factor, its centre where it was. */
Measuring::Session mouthScaled(const Measuring::Session &start, double factor);

/** The mouth's circle in the picture, in its pixels; seen straight on. */
struct MouthCircle
{
    QPointF centre;
    double radius = 0.0;
};
MouthCircle mouthCircle(const Measuring::Session &session);

} // namespace Drevon::Zalento
