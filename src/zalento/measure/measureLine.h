#pragma once

#include "zalento/Export.h"
#include "zalento/math/Vec3.h"
#include "zalento/measure/MeasureMode.h"
#include "zalento/measure/MeasuredValue.h"

#include <vector>

namespace Drevon::Zalento {

/** What the points of a measuring line are measured with. */
struct LineScale
{
    double pipeRadiusMM = 0.0;    ///< inside
    double viewportWidthPx = 0.0; ///< in which the points of a crack are fractions
    double mmPerPixel = 0.0;      ///< of the picture; 0 when unknown
};

/** What a measuring line measures. */
struct LineMeasure
{
    ObservableType observable = ObservableType::NothingObserved; ///< which measure the numbers are
    MeasuredValue value; ///< length; the area inside or, in FreeCrossSection mode, outside of it
    /** The area's fraction of the section, or two points' distance in percent of the diameter. */
    MeasuredValue share;
};

/**
 * Measures a line through points: the length of an open one, the area of a closed one.
 *
 * Nothing is observed for fewer than two points, and for a crack whose length is 0: without a
 * scale, or on one place.
 *
 * @param points positions in metres, in CrackWidth mode fractions of the viewport
 */
ZALENTO_EXPORT LineMeasure measureLine(const std::vector<Vec3> &points, MeasureMode mode,
                                       const LineScale &scale);

/** True for three points and more in a cross-section mode whose last is at the first. */
ZALENTO_EXPORT bool isClosedPolygon(const std::vector<Vec3> &points, MeasureMode mode);

/** Whether a polygon of @p count points from @p first to @p last is closed. */
ZALENTO_EXPORT bool isClosedPolygon(const Vec3 &first, const Vec3 &last, std::size_t count,
                                    MeasureMode mode);

} // namespace Drevon::Zalento
