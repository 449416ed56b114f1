#pragma once

#include "measuring/Export.h"
#include "measuring/Measurement.h"

#include <QString>

namespace Drevon::Zalento::Measuring {

/**
 * A value with its expanded uncertainty, in the unit of the value's own text: "15.9 cm ± 0.3 cm",
 * "15 % ± 3 %". The uncertainty has one digit, two where it begins with 1 or 2; the value ends at
 * the same place (JCGM 100, 7.2.6).
 */
ZALENTO_MEASURING_EXPORT QString textWithUncertainty(const Value &value, double expanded);

/** The uncertainty alone: "± 0.3 cm". */
ZALENTO_MEASURING_EXPORT QString uncertaintyText(const Value &value, double expanded);

/**
 * The value with a text for tables, and wherever one is read after the other: the overlay's "15.9
 * cm" becomes "159 mm". Lengths are in mm or inches and areas in cm² or square inches, whatever
 * their size; the last digit stands for as much as the overlay's. With its uncertainty, fullText()
 * ends at the uncertainty's place.
 */
ZALENTO_MEASURING_EXPORT Value inTableUnit(Value value);

} // namespace Drevon::Zalento::Measuring
