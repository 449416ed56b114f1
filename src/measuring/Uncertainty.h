#pragma once

#include "measuring/AlignmentFit.h"
#include "measuring/Export.h"
#include "measuring/Limit.h"
#include "measuring/Session.h"

#include <QString>
#include <QVector>

#include <optional>
#include <utility>

/**
 * @file
 * How far measured values can be trusted, after the Guide to the expression of uncertainty in
 * measurement (JCGM 100:2008) and its supplement on Monte Carlo (JCGM 101:2008).
 */
namespace Drevon::Zalento::Measuring {

/** What makes a value uncertain. */
enum class UncertaintySource {
    Clicks,      ///< where the operator clicked
    Pixels,      ///< the picture tells places in whole pixels
    Alignment,   ///< where the model lies, fitted or by eye
    Diameter,    ///< nominal diameter
    FieldOfView, ///< unless it was fitted
    Laser,       ///< distance of the laser spots, and the clicks on them
    Scale,       ///< millimetres per pixel that were typed
    Setting,     ///< what was matched by eye: level, angle, depth of the plane
};

/** "clicks", "pixels", "alignment", "diameter", "fieldOfView", "laser", "scale", "setting". */
ZALENTO_MEASURING_EXPORT QString uncertaintySourceName(UncertaintySource source);

/** What one source adds to a value's uncertainty. */
struct BudgetRow
{
    UncertaintySource source;         ///< what it comes from
    double standardUncertainty = 0.0; ///< in the value's unit
    double share = 0.0;               ///< of the variance, 0 to 1; all shares add up to 1
};

/** How an uncertainty was found. */
enum class UncertaintyMethod {
    FirstOrder, ///< law of propagation, JCGM 100 section 5
    MonteCarlo, ///< propagation of distributions, JCGM 101
};

/** "first-order", "monte-carlo". */
ZALENTO_MEASURING_EXPORT QString uncertaintyMethodName(UncertaintyMethod method);

/** Coverage factor of expanded uncertainties: about 95 percent of a normal distribution. */
constexpr double coverageFactor = 2.0;

/** The uncertainty of one value, in the value's unit. */
struct Uncertainty
{
    double standard = 0.0;                                    ///< u, one standard deviation
    UncertaintyMethod method = UncertaintyMethod::FirstOrder; ///< how it was found
    /** Holds 95 percent of the values drawn, as many lie below it as above (Monte Carlo). */
    std::optional<std::pair<double, double>> interval;
    /** Of the first order, the largest share first; without sources that add nothing. */
    QVector<BudgetRow> budget;
    /** What the session's limit says of the value; nothing for a limit of another quantity. */
    std::optional<Decision> decision;

    /** U = k u. */
    double expanded() const { return coverageFactor * standard; }
};

/** Which method to use. */
enum class UncertaintyEffort {
    FirstOrder, ///< quick enough to follow a drag
    Checked,    ///< Monte Carlo where a small run of it says that the first order does not hold
    MonteCarlo, ///< always 10,000 draws
};

/**
 * The uncertainty of each value of measure(), in its order; nothing for a value that is so near to
 * where it could not be measured that its uncertainty has no number. Empty when nothing is
 * measured. The same session gives the same bits.
 *
 * @param fit of the session's alignment, if it has one
 */
ZALENTO_MEASURING_EXPORT QVector<std::optional<Uncertainty>>
uncertaintiesOf(const Session &session, const std::optional<AlignmentFit> &fit,
                UncertaintyEffort effort = UncertaintyEffort::Checked);

} // namespace Drevon::Zalento::Measuring
