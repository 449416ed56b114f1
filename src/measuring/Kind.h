#pragma once

#include "measuring/Export.h"

#include "zalento/measure/MeasureMode.h"
#include "zalento/pipes/ViewObject.h"

#include <QFlags>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace Drevon::Zalento::Measuring {

/** What can be measured, in the order in which it is offered. */
enum class Kind {
    CrackWidth,
    PipeDimension,
    WaterLevel,
    BranchAngle,
    BendAngle,
    CrossSection,
};

/** What the operator sets for a kind, beside the alignment. */
enum class Uses {
    Points = 0x01,
    Scale = 0x02, ///< millimetres per picture pixel
    Percentage = 0x04,
    Angle = 0x08,
    Clock = 0x10,
    Direction = 0x20, ///< seen downstream or upstream, as a bend or a joint
    Diameter = 0x40,  ///< the value grows with the nominal diameter
    Model = 0x80,     ///< a pipe is laid over the picture
    Clicks = 0x100,   ///< what is measured is clicked: points, or the water's edge
    SetByEye = 0x200, ///< the value is a number that the operator sets until the model matches
};
Q_DECLARE_FLAGS(UsesFlags, Uses)
Q_DECLARE_OPERATORS_FOR_FLAGS(UsesFlags)

/** What a kind's percentage sets. */
struct PercentageRow
{
    double initial = 0.0;     ///< what a new session has, in percent
    const char *label = "";   ///< "Water level"
    const char *meaning = ""; ///< "water level in percent of the diameter"
};

/** The angles that a kind can have. */
struct AngleRow
{
    double initialDEG = 90.0;  ///< what a new session has
    double smallestDEG = 0.0;  ///< inclusive, as is the largest
    double largestDEG = 180.0; ///< see #smallestDEG
    double stepDEG = 1.0;      ///< to which the item rounds, or by which a key moves
};

/** Everything that depends on the kind alone. Texts for people are translated by translated(). */
struct KindInfo
{
    Kind kind;                ///< the kind of this row
    const char *name;         ///< in files, on the command line and of the item
    const char *title;        ///< for people: "Crack width"
    const char *description;  ///< one sentence: what is measured, and how
    ViewObject object;        ///< on view
    MeasureMode mode;         ///< of the straight pipe
    UsesFlags uses;           ///< fields of a session that matter
    PercentageRow percentage; ///< for Uses::Percentage
    AngleRow angle;           ///< for Uses::Angle
    /** What to do next: without points, with one, with more, and after a closed outline. */
    std::array<const char *, 4> guidance;

    /** The name as Qt takes it. */
    QString nameText() const { return QLatin1String(name); }
    /** Whether the kind uses that field of a session. */
    bool has(Uses use) const { return uses.testFlag(use); }
};

/** The table of kinds. */
ZALENTO_MEASURING_EXPORT const std::array<KindInfo, 6> &kinds();

/** The row of a kind. */
ZALENTO_MEASURING_EXPORT const KindInfo &infoOf(Kind kind);

/** The kind of this exact name. */
ZALENTO_MEASURING_EXPORT std::optional<Kind> kindNamed(const QString &name);

/** The names of all kinds. */
ZALENTO_MEASURING_EXPORT QStringList kindNames();

/** A text of the table in the user's language. */
ZALENTO_MEASURING_EXPORT QString translated(const char *kindText);

} // namespace Drevon::Zalento::Measuring
