#pragma once

#include "measuring/AlignmentFit.h"
#include "measuring/Export.h"
#include "measuring/Session.h"

#include <QImage>
#include <QPolygonF>
#include <QVector>

#include <memory>
#include <optional>

namespace Drevon::Zalento::Measuring {

/** What a place of the picture is worth in the pipe. */
struct PipePlace
{
    double mmPerPixel = 0.0; ///< in the direction in which a pixel is worth most
    /** Expanded uncertainty of a point there around the pipe; on a cross section, to the right. */
    double aroundMM = 0.0;
    /** The same along the pipe; on a cross section, up. */
    double alongMM = 0.0;
    double largestMM = 0.0; ///< the same in the direction in which it is largest
};

/**
 * How well places are known under a session's alignment, first order: on the plane of a cross
 * section, else on the wall. Clicks, pixels, alignment, field of view, diameter and the depth of
 * the plane count.
 */
class ZALENTO_MEASURING_EXPORT PlaceUncertainty
{
public:
    /** @param fit of the session's alignment, whose covariance then counts */
    PlaceUncertainty(const Session &session, const std::optional<AlignmentFit> &fit);
    ~PlaceUncertainty();

    /** Nothing where a pixel meets no place of the modelled pipe. */
    std::optional<PipePlace> at(const QPointF &pixel) const;

    /** What holds 95 percent of the places that a click may mean, in picture pixels; empty where it
        meets none. */
    QPolygonF ellipse(const QPointF &pixel) const;

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

/** What a map tells of each pixel. */
enum class MapQuantity {
    Scale,       ///< PipePlace::mmPerPixel
    Uncertainty, ///< PipePlace::largestMM
};

/** One colour of a map, for all up to a number of millimetres. */
struct MapStep
{
    double upToMM; ///< infinite for the last one
    QRgb colour;   ///< of such pixels
};

/** From the least to the most; colours differ in lightness, too, for all kinds of sight. */
ZALENTO_MEASURING_EXPORT const QVector<MapStep> &mapSteps();

/**
 * A picture of the quantity, translucent, to be laid over the session's picture and scaled to it.
 * It tells of the wall, whatever the kind. Where no wall is, and
 * beyond the modelled pipe, it is clear.
 * @param width in pixels; the height follows
 */
ZALENTO_MEASURING_EXPORT QImage wallMap(const Session &session,
                                        const std::optional<AlignmentFit> &fit,
                                        MapQuantity quantity, int width);

} // namespace Drevon::Zalento::Measuring
