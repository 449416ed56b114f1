#pragma once

#include "measuring/Export.h"
#include "measuring/Session.h"

#include "zalento/item/ZaItem.h"

#include <QPointF>
#include <QSize>
#include <QString>
#include <QVector>

#include <optional>

/**
 * @file
 * Sessions and the item. The session is the record: programs change the session and apply it, and
 * the item shows the same whatever was on it before. The item is as large as the upright picture,
 * so that item pixels are picture pixels. GUI thread only.
 */
namespace Drevon::Zalento::Measuring {

/** Makes the item as large as the picture; zoom by transforming it, not by its size. */
ZALENTO_MEASURING_EXPORT void layOutItem(ZaItem &item, const QSize &pictureSize);

/**
 * Puts everything of the session on the item. Points without a scene position are clicked at their
 * pixels, and get one.
 * @return the pixels of the points that met nothing; they are no longer in the session
 */
ZALENTO_MEASURING_EXPORT QVector<QPointF> applySession(Session &session, ZaItem &item);

/** What a click did to the points. */
enum class ClickResult {
    Added,
    Restarted, ///< the polygon was closed: the point starts a new one
    Missed,    ///< no point there, or the kind takes none
};

/** Clicks on the picture, and keeps the session's points as the item's. */
ZALENTO_MEASURING_EXPORT ClickResult clickPoint(Session &session, ZaItem &item,
                                                const QPointF &pixel);

/**
 * Moves a point to where a click at @p pixel lies; the point where a polygon starts and ends moves
 * as one.
 * @return false, and nothing changed, when there is no such point or nothing at the pixel
 */
ZALENTO_MEASURING_EXPORT bool movePoint(Session &session, ZaItem &item, int index,
                                        const QPointF &pixel);

/** Sets the percentage; a cross-section's points move with its plane. */
ZALENTO_MEASURING_EXPORT void changePercentage(Session &session, ZaItem &item, double percent);

/**
 * The scale that two clicks on the camera's laser spots give, in mm per pixel, with the distance
 * that the session's calibration text names. The session is put on the item; it does not change.
 * @param problem on failure: why there is none
 */
ZALENTO_MEASURING_EXPORT std::optional<double> laserScale(const Session &session, ZaItem &item,
                                                          const QPointF &first,
                                                          const QPointF &second, QString &problem);

/** Computes what the item computes when it paints: the view rotation and the measures. */
ZALENTO_MEASURING_EXPORT void settle(ZaItem &item);

} // namespace Drevon::Zalento::Measuring
