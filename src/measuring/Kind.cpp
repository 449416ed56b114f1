#include "measuring/Kind.h"

#include <QCoreApplication>

#include <algorithm>

namespace Drevon::Zalento::Measuring {

namespace {

const char *const lengthenLine = QT_TRANSLATE_NOOP(
    "Kind", "A click lengthens the line. Drag a point, or nudge it with the arrow keys.");

const char *const lengthenCrack = QT_TRANSLATE_NOOP(
    "Kind", "Two points are a width; with a third click the length of the path is measured. Drag a "
            "point, or nudge it with the arrow keys.");

const KindInfo crackWidth{
    Kind::CrackWidth,
    "CrackWidth",
    QT_TRANSLATE_NOOP("Kind", "Crack width"),
    "Width between two points in the plane of the picture, or the length of a path through more; "
    "needs a scale.",
    ViewObject::StraightPipe,
    MeasureMode::CrackWidth,
    Uses::Points | Uses::Clicks | Uses::Scale,
    {},
    {},
    {QT_TRANSLATE_NOOP("Kind", "Click one edge of the crack. A drag pans the picture."),
     QT_TRANSLATE_NOOP("Kind", "Click the other edge of the crack."), lengthenCrack,
     lengthenCrack}};

const KindInfo pipeDimension{
    Kind::PipeDimension,
    "PipeDimension",
    QT_TRANSLATE_NOOP("Kind", "Pipe dimension"),
    "Length of the line through points on the pipe's wall.",
    ViewObject::StraightPipe,
    MeasureMode::PipeDimension,
    Uses::Points | Uses::Clicks | Uses::Diameter | Uses::Model,
    {},
    {},
    {QT_TRANSLATE_NOOP(
         "Kind",
         "Click joints or drag the green pipe to align it, then click one end on the wall."),
     QT_TRANSLATE_NOOP("Kind", "Click the other end on the wall."), lengthenLine, lengthenLine}};

const char *const setWater =
    QT_TRANSLATE_NOOP("Kind", "Drag the pipe into place, then click where the water meets the "
                              "wall.");

const KindInfo waterLevel{
    Kind::WaterLevel,
    "WaterLevel",
    QT_TRANSLATE_NOOP("Kind", "Water level"),
    "Depth of the water in percent of the diameter; set until it matches.",
    ViewObject::StraightPipe,
    MeasureMode::WaterLevel,
    Uses::Clicks | Uses::Percentage | Uses::Model | Uses::SetByEye,
    {20.0, QT_TRANSLATE_NOOP("Kind", "Water level"), "water level in percent of the diameter"},
    {},
    {setWater, setWater, setWater, setWater}};

const char *const setBranch =
    QT_TRANSLATE_NOOP("Kind", "Drag the pipe into place; set angle, size and direction until the "
                              "yellow curve meets the branch.");

const KindInfo branchAngle{
    Kind::BranchAngle,
    "BranchAngle",
    QT_TRANSLATE_NOOP("Kind", "Branch angle"),
    "Angle between a branch and the pipe's direction away from the camera; set until the curve "
    "matches the branch's mouth.",
    ViewObject::Lateral,
    MeasureMode::NoMeasure,
    Uses::Percentage | Uses::Angle | Uses::Clock | Uses::Model | Uses::SetByEye,
    {50.0, QT_TRANSLATE_NOOP("Kind", "Branch size"),
     "diameter of the branch in percent of the pipe's"},
    {90.0, 30.0, 150.0, 1.0},
    {setBranch, setBranch, setBranch, setBranch}};

const char *const setBend =
    QT_TRANSLATE_NOOP("Kind", "Drag the pipe into place; set angle and direction until the circles "
                              "follow the bend.");

const KindInfo bendAngle{
    Kind::BendAngle,
    "BendAngle",
    QT_TRANSLATE_NOOP("Kind", "Bend angle"),
    "Angle of a bend, in steps of 5 degrees; set until the circles match. The joint of two pipe "
    "lengths is measured alike.",
    ViewObject::Bend,
    MeasureMode::NoMeasure,
    Uses::Percentage | Uses::Angle | Uses::Clock | Uses::Direction | Uses::Model | Uses::SetByEye,
    {50.0, QT_TRANSLATE_NOOP("Kind", "Piece length"),
     "length of a joint's continuation in percent of the diameter"},
    {45.0, 0.0, 90.0, 5.0},
    {setBend, setBend, setBend, setBend}};

const KindInfo crossSection{
    Kind::CrossSection,
    "CrossSection",
    QT_TRANSLATE_NOOP("Kind", "Cross section"),
    "Area inside the points on a plane across the pipe, closed by a last point at the first; two "
    "points measure a length and its share of the diameter.",
    ViewObject::StraightPipe,
    MeasureMode::CrossSection,
    Uses::Points | Uses::Clicks | Uses::Percentage | Uses::Diameter | Uses::Model,
    {0.0, QT_TRANSLATE_NOOP("Kind", "Plane depth"),
     "place of the plane in percent of the modelled length of 10 diameters"},
    {},
    {QT_TRANSLATE_NOOP("Kind", "Set the plane's depth, then click along the outline on the plane."),
     QT_TRANSLATE_NOOP("Kind",
                       "A click sets point %1 of the outline; two points measure a length."),
     QT_TRANSLATE_NOOP("Kind",
                       "A click sets point %1; one near the first point closes the outline."),
     QT_TRANSLATE_NOOP("Kind", "Closed. Drag a point to correct it; a click starts a new "
                               "outline.")}};

} // namespace

const std::array<KindInfo, 6> &kinds()
{
    static const std::array<KindInfo, 6> table{crackWidth,  pipeDimension, waterLevel,
                                               branchAngle, bendAngle,     crossSection};
    return table;
}

const KindInfo &infoOf(Kind kind)
{
    return kinds()[static_cast<std::size_t>(kind)];
}

std::optional<Kind> kindNamed(const QString &name)
{
    const auto &table = kinds();
    const auto found = std::find_if(table.begin(), table.end(), [&name](const KindInfo &info) {
        return name == QLatin1String(info.name);
    });
    return found == table.end() ? std::nullopt : std::optional<Kind>(found->kind);
}

QStringList kindNames()
{
    QStringList names;
    for (const KindInfo &info : kinds()) {
        names += info.nameText();
    }
    return names;
}

QString translated(const char *kindText)
{
    return QCoreApplication::translate("Kind", kindText);
}

} // namespace Drevon::Zalento::Measuring
