#pragma once

#include "measuring/Export.h"

#include "zalento/item/ZaItem.h"

#include <QString>
#include <QVector>

namespace Drevon::Zalento::Measuring {

/** A measured value. */
struct MeasuredValue
{
    QString name;        ///< "crackWidth", "area", ... ; stable
    double number = 0.0; ///< in #unit
    QString unit;        ///< "mm", "mm²", "%" or "deg", whatever unit the texts have
    QString text;        ///< as the overlay shows it, in the session's unit
};

/** Why there is a value, or none. */
enum class MeasureState {
    Measured,
    NeedsPoints, ///< too few points
    NoScale,     ///< a crack in a picture whose millimetres per pixel are not known yet
};

struct Measurement
{
    MeasureState state = MeasureState::NeedsPoints;
    QVector<MeasuredValue> values; ///< empty unless measured
    QString note;                  ///< what to do when nothing is measured; else empty
};

/** Settles the item and reads what it measures. GUI thread only. */
ZALENTO_MEASURING_EXPORT Measurement measure(ZaItem &item);

/** True when the item knows how many millimetres a picture pixel has; for the kind CrackWidth. */
ZALENTO_MEASURING_EXPORT bool hasScale(ZaItem &item);

} // namespace Drevon::Zalento::Measuring
