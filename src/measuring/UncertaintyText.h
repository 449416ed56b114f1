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

} // namespace Drevon::Zalento::Measuring
