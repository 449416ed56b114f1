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

/** What a place of the picture is worth on the pipe's wall. */
struct WallPlace
{
    double mmPerPixel = 0.0; ///< in the direction in which a pixel is worth most
    double aroundMM = 0.0;   ///< expanded uncertainty of a point there, around the pipe
    double alongMM = 0.0;    ///< the same along the pipe
    double largestMM = 0.0;  ///< the same in the direction in which it is largest
};

/**
 * How well places on the wall are known under a session's alignment, first order. Clicks, pixels,
 * alignment, field of view and diameter count.
 */
class ZALENTO_MEASURING_EXPORT PlaceUncertainty
{
public:
    PlaceUncertainty(const Session &session, const std::optional<AlignmentFit> &fit);
    ~PlaceUncertainty();

    /** Nothing where a pixel meets no wall. */
    std::optional<WallPlace> at(const QPointF &pixel) const;

    /** What holds 95 percent of the places that a click may mean, in picture pixels; empty where it
        meets no wall. */
    QPolygonF ellipse(const QPointF &pixel) const;

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

/** What a map tells of each pixel. */
enum class MapQuantity {
    Scale,       ///< WallPlace::mmPerPixel
    Uncertainty, ///< WallPlace::largestMM
};

/** One colour of a map, for all up to a number of millimetres. */
struct MapStep
{
    double upToMM; ///< infinite for the last one
    QRgb colour;
};

/** From the least to the most; colours differ in lightness, too, for all kinds of sight. */
ZALENTO_MEASURING_EXPORT const QVector<MapStep> &mapSteps();

/**
 * A picture of the quantity, translucent, to be laid over the session's picture and scaled to it.
 * Where no wall is, and beyond the modelled pipe, it is clear.
 * @param width in pixels; the height follows
 */
ZALENTO_MEASURING_EXPORT QImage wallMap(const Session &session,
                                        const std::optional<AlignmentFit> &fit,
                                        MapQuantity quantity, int width);

} // namespace Drevon::Zalento::Measuring
