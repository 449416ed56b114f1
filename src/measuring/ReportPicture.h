#pragma once

#include "measuring/Session.h"

#include <QImage>
#include <QPainter>
#include <QRectF>

namespace Drevon::Zalento::Measuring {

/** The largest size of a picture's shape within @p room. */
QSizeF sizeOnPaper(const QSize &picture, const QSizeF &room);

/**
 * Paints a picture no finer than paper shows.
 * @param box in the painter's units, @p unitsPerMM of them a millimetre of paper
 */
void paintPicture(QPainter &painter, const QRectF &box, double unitsPerMM, const QImage &picture);

enum class Overlays {
    AtHand,
    All, ///< those of the session's other measurands, too, and the names of all
};

/**
 * Paints a session's overlay as vectors. Lines and labels have the same size on paper whatever the
 * picture's.
 */
void paintOverlay(QPainter &painter, const QRectF &box, double unitsPerMM, const Session &session,
                  Overlays overlays);

} // namespace Drevon::Zalento::Measuring
