#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"

#include <QString>

namespace Drevon::Zalento::Measuring {

/** What a value is held against, such as "< 0.5 mm" or "> 20 %". */
struct Limit
{
    double number = 0.0; ///< in #unit
    QString unit;        ///< as in Value::unit: "mm", "mm²", "%" or "deg"
};

/**
 * Reads a limit: "<", "<=", ">" or ">=", a number, and a unit: mm, cm, m, in, '' or ", ft or ',
 * these squared with ² or 2 behind, %, deg or °. The comma is understood as a decimal mark.
 */
ZALENTO_MEASURING_EXPORT Result<Limit> limitFromText(const QString &text);

/** Where a value lies, as far as its uncertainty lets it be told (JCGM 106:2012, 8.3). */
enum class Decision { Below, Above, Undecided };

/** "below", "above" or "cannot be decided at 95 %". */
ZALENTO_MEASURING_EXPORT QString decisionText(Decision decision);

/** The probability from which on a decision is made. */
constexpr double decisionProbability = 0.95;

/** @param probabilityBelow that the measured quantity lies below the limit */
ZALENTO_MEASURING_EXPORT Decision decisionFor(double probabilityBelow);

} // namespace Drevon::Zalento::Measuring
