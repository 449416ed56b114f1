#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"
#include "measuring/Session.h"

#include <QPointF>
#include <QVector>

#include <optional>

/**
 * @file
 * What an operator does to the measurand at hand of a session: functions of the session alone,
 * without an item. Pixels are those of the upright picture, whose size the session has to know.
 */
namespace Drevon::Zalento::Measuring {

/**
 * Measures another kind: without points, with the numbers that the kind begins with, and not set
 * where they are set by eye.
 */
ZALENTO_MEASURING_EXPORT void startKind(Session &session, Kind kind);

/** What a click did to the points. */
enum class ClickResult {
    Added,
    Restarted, ///< the polygon was closed: the point starts a new one
    Missed,    ///< nothing is there, or the kind takes no points
};

/** Adds the point that a click means; a cross-section closes when it lies near the first one. */
ZALENTO_MEASURING_EXPORT ClickResult clickPoint(Session &session, const QPointF &pixel);

/**
 * Adds the point that a click means, also where clickPoint() would close the outline: near the
 * first point an outline can have another one.
 */
ZALENTO_MEASURING_EXPORT ClickResult addPoint(Session &session, const QPointF &pixel);

/** Whether clickPoint() at @p pixel would close the open outline. */
ZALENTO_MEASURING_EXPORT bool closesOutline(const Session &session, const QPointF &pixel);

/**
 * The edge of the area around the first point in which clickPoint() closes the outline, as pixels
 * that follow each other around it. Empty while no click closes.
 */
ZALENTO_MEASURING_EXPORT QVector<QPointF> closingEdge(const Session &session);

/**
 * Clicks the points that have no position yet, in their order.
 * @return the pixels of those that met nothing; they are no longer in the session
 */
ZALENTO_MEASURING_EXPORT QVector<QPointF> placePoints(Session &session);

/**
 * Points of the session on the wall beyond the modelled pipe, as indices: so far down the pipe that
 * the ray of a click hardly meets the wall, and their place says little.
 */
ZALENTO_MEASURING_EXPORT QVector<int> pointsBeyondModel(const Session &session);

/** How far down the pipe a position on the wall lies behind the mouth, in diameters. */
ZALENTO_MEASURING_EXPORT double depthInDiameters(const Session &session, const Vec3 &position);

/**
 * Moves a point to where a click at @p pixel lies; the point where a polygon starts and ends moves
 * as one.
 * @return false, and nothing changed, when there is no such point or nothing at the pixel
 */
ZALENTO_MEASURING_EXPORT bool movePoint(Session &session, int index, const QPointF &pixel);

/**
 * Looks the points of all measurands up where they were clicked, for a session whose alignment has
 * changed. One that meets nothing there keeps its place on the model.
 */
ZALENTO_MEASURING_EXPORT void pickPointsAnew(Session &session);

/** Sets the percentage; a cross-section's points move with its plane. */
ZALENTO_MEASURING_EXPORT void changePercentage(Session &session, double percent);

/** The water level in percent whose surface meets the wall at @p pixel; nothing on a miss. */
ZALENTO_MEASURING_EXPORT std::optional<double> waterLevelAt(const Session &session,
                                                            const QPointF &pixel);

/** Sets that level. @return false, and nothing changed, on a miss */
ZALENTO_MEASURING_EXPORT bool setWaterLevelAt(Session &session, const QPointF &pixel);

/**
 * Takes the scale that two clicks on the camera's laser spots give, with the distance that the
 * session's calibration text names. On a problem the session stays as it was.
 */
ZALENTO_MEASURING_EXPORT Outcome takeLaserScale(Session &session, const QPointF &first,
                                                const QPointF &second);

/** Sets a scale that was typed, in mm per pixel, or none. */
ZALENTO_MEASURING_EXPORT void setScale(Session &session, std::optional<double> mmPerPixel);

/** Distance of the laser spots in mm that the session's calibration text names. */
ZALENTO_MEASURING_EXPORT std::optional<double> laserDistanceOf(const Session &session);

/** Millimetres per picture pixel: those of the session, else those of its calibration text. */
ZALENTO_MEASURING_EXPORT std::optional<double> scaleOf(const Session &session);

/** True when the points are a closed outline. */
ZALENTO_MEASURING_EXPORT bool isClosedOutline(const Session &session);

} // namespace Drevon::Zalento::Measuring
