#pragma once

#include "measuring/Session.h"

#include <QPainter>
#include <QRectF>

namespace Drevon::Zalento::Measuring {

/**
 * Paints the pipe's cross-section to scale, 12 o'clock at the top as the picture shows it: the
 * wall, and of what is measured its points or its outline, the water, or the direction of a branch
 * or a bend. Below it the scale is told.
 * @param box in the painter's units, @p unitsPerMM of them a millimetre of paper
 * @param session of a kind that lays a pipe over the picture
 * @param isMeasured else nobody has set what the session says, and the wall stands alone
 * @param name stands below, too, where it is not empty
 */
void paintSection(QPainter &painter, const QRectF &box, double unitsPerMM, const Session &session,
                  bool isMeasured, const QString &name);

} // namespace Drevon::Zalento::Measuring
