#pragma once

#include "zalento/Export.h"
#include "zalento/measure/MeasuredValue.h"
#include "zalento/measure/measureLine.h"
#include "zalento/settings/MeasureUnit.h"

#include <QString>

namespace Drevon::Zalento {

/**
 * @file
 * Texts of measured values: those of the overlay's labels, which the programs show and export too.
 * Lengths and areas have UnitConv::decimalSeparator, all other numbers '.'.
 */

/**
 * A value with its unit: a length or an area as UnitConv writes it, a fraction in whole percent, a
 * percentage with one decimal ("50.0 %"), an angle as short as it can be ("45°").
 */
ZALENTO_EXPORT QString valueText(const MeasuredValue &value, MeasureUnit unit);

/** A line's length, and its share of the diameter where it has one: "15.0 cm (50.0 %)". */
ZALENTO_EXPORT QString lengthWithShareText(const LineMeasure &measure, MeasureUnit unit);

/** A water level in whole percent of the diameter; @p fraction 1 is a full pipe. */
ZALENTO_EXPORT int waterLevelInPercent(double fraction);
/** The same with its sign: "25 %". */
ZALENTO_EXPORT QString waterLevelText(double fraction);

} // namespace Drevon::Zalento
