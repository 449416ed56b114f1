#include "measuring/Kind.h"

#include <algorithm>

namespace Drevon::Zalento::Measuring {

namespace {

MeasurementKind crackWidth()
{
    MeasurementKind kind;
    kind.name = QStringLiteral("CrackWidth");
    kind.title = QStringLiteral("Crack width");
    kind.description = QStringLiteral(
        "Length of the line through the points, in the plane of the picture; needs a scale.");
    kind.usesPoints = true;
    kind.usesScale = true;
    return kind;
}

MeasurementKind pipeDimension()
{
    MeasurementKind kind;
    kind.name = QStringLiteral("PipeDimension");
    kind.title = QStringLiteral("Pipe dimension");
    kind.description = QStringLiteral("Length of the line through points on the pipe's wall.");
    kind.usesPoints = true;
    return kind;
}

MeasurementKind waterLevel()
{
    MeasurementKind kind;
    kind.name = QStringLiteral("WaterLevel");
    kind.title = QStringLiteral("Water level");
    kind.description =
        QStringLiteral("Depth of the water in percent of the diameter; set until it matches.");
    kind.usesPercentage = true;
    kind.initialPercentage = 20.0;
    kind.percentageMeaning = QStringLiteral("water level in percent of the diameter");
    return kind;
}

MeasurementKind branchAngle()
{
    MeasurementKind kind;
    kind.name = QStringLiteral("BranchAngle");
    kind.title = QStringLiteral("Branch angle");
    kind.description = QStringLiteral(
        "Angle between a branch and the pipe's direction away from the camera; set until the curve "
        "matches the branch's mouth.");
    kind.usesPercentage = true;
    kind.usesAngle = true;
    kind.usesClock = true;
    kind.initialPercentage = 50.0;
    kind.smallestAngleDEG = 30.0;
    kind.largestAngleDEG = 150.0;
    kind.percentageMeaning = QStringLiteral("diameter of the branch in percent of the pipe's");
    return kind;
}

MeasurementKind bendAngle()
{
    MeasurementKind kind;
    kind.name = QStringLiteral("BendAngle");
    kind.title = QStringLiteral("Bend angle");
    kind.description = QStringLiteral(
        "Angle of a bend, in steps of 5 degrees; set until the circles match. The joint of two "
        "pipe lengths is measured alike.");
    kind.usesPercentage = true;
    kind.usesAngle = true;
    kind.usesClock = true;
    kind.usesDirection = true;
    kind.initialPercentage = 50.0;
    kind.initialAngleDEG = 45.0;
    kind.largestAngleDEG = 90.0;
    kind.percentageMeaning =
        QStringLiteral("length of a joint's continuation in percent of the diameter");
    return kind;
}

MeasurementKind crossSection()
{
    MeasurementKind kind;
    kind.name = QStringLiteral("CrossSection");
    kind.title = QStringLiteral("Cross section");
    kind.description = QStringLiteral(
        "Area inside the points on a plane across the pipe, closed by a last point at the first; "
        "two points measure a length and its share of the diameter.");
    kind.usesPoints = true;
    kind.usesPercentage = true;
    kind.percentageMeaning =
        QStringLiteral("place of the plane in percent of the modelled length of 10 diameters");
    return kind;
}

} // namespace

const QVector<MeasurementKind> &measurementKinds()
{
    static const QVector<MeasurementKind> kinds{crackWidth(),  pipeDimension(), waterLevel(),
                                                branchAngle(), bendAngle(),     crossSection()};
    return kinds;
}

const MeasurementKind *findMeasurementKind(const QString &name)
{
    const auto &kinds = measurementKinds();
    const auto found =
        std::find_if(kinds.begin(), kinds.end(),
                     [&name](const MeasurementKind &kind) { return kind.name == name; });
    return found == kinds.end() ? nullptr : &*found;
}

} // namespace Drevon::Zalento::Measuring
