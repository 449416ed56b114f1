#pragma once

#include "measuring/Export.h"
#include "measuring/Session.h"
#include "measuring/Uncertainty.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace Drevon::Zalento::Measuring {

/** What the results of a measurement that was repeated say of it (JCGM 100, 4.2). */
struct RepeatStatistics
{
    int count = 0;                        ///< results
    double mean = 0.0;                    ///< of the results, in the unit of the value
    double standardDeviation = 0.0;       ///< of one result
    double standardDeviationOfMean = 0.0; ///< of their mean
};

/** A measured value. */
struct Value
{
    QString name;        ///< "crackWidth", "area", ... ; stable. A path of a crack has a "length"
    double number = 0.0; ///< in #unit
    QString unit;        ///< "mm", "mm²", "%" or "deg", whatever unit the texts have
    QString text;        ///< as the overlay shows it, in the session's unit
    /** Filled by measureWithUncertainty(); nothing where it has no number. */
    std::optional<Uncertainty> uncertainty;
    /** Filled likewise, with the results that the session kept; nothing for fewer than two. */
    std::optional<RepeatStatistics> repeats;

    /** The text with the expanded uncertainty, where there is one; inTableUnit() for tables. */
    ZALENTO_MEASURING_EXPORT QString fullText() const;
};

/** Why there is a value, or none. */
enum class MeasureState {
    Measured,
    NeedsPoints, ///< too few points, or all on one place
    NoScale,     ///< a crack in a picture whose millimetres per pixel are not known yet
    NotSet,      ///< what is set by eye was neither set nor confirmed, see Session::isSet
};

/** What a session measures. */
struct Measurement
{
    MeasureState state = MeasureState::NeedsPoints; ///< whether there are values, or why not
    QVector<Value> values;                          ///< empty unless measured
    QString note; ///< what to do when nothing is measured; else empty
};

/** Measures a session; points without a position are looked up where they were clicked. */
ZALENTO_MEASURING_EXPORT Measurement measure(const Session &session);

/** The same with uncertainties. @param fit of the session's alignment, if it has one */
ZALENTO_MEASURING_EXPORT Measurement
measureWithUncertainty(const Session &session, const std::optional<AlignmentFit> &fit,
                       UncertaintyEffort effort = UncertaintyEffort::Checked);

/**
 * The angle in degrees that the model of the session's kind is drawn with: within the kind's
 * limits, and a bend's in whole steps.
 */
ZALENTO_MEASURING_EXPORT double drawnAngleDEG(const Session &session);

} // namespace Drevon::Zalento::Measuring
