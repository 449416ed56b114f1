#pragma once

namespace Drevon::Zalento {

/** What the operator measures on the straight pipe; decides where clicked points lie. */
enum class MeasureMode : int {
    NoMeasure = 0,        ///< points on the wall, lengths
    PipeDimension = 1,    ///< points on the wall, lengths
    CrossSection = 2,     ///< points on the cross-section plane: lengths, area of a closed polygon
    WaterLevel = 3,       ///< no points: the level is set as a fraction of the diameter
    CrackWidth = 4,       ///< points in the picture, as fractions of the viewport: lengths
    FreeCrossSection = 5, ///< points on the cross-section plane: share left free by a polygon
};

/** Kind of value that the last measurement produced. */
enum class ObservableType : int {
    NothingObserved = 0,
    Length = 1,            ///< measure1 in mm
    Area = 2,              ///< measure1 in mm², measure2 its fraction of the pipe's section
    WaterLevelPercent = 3, ///< measure1 as a fraction of the diameter, in spite of the name
    FreeAreaPercent = 4,   ///< measure1 as a fraction of the section, in spite of the name
    BendAngle = 5,         ///< measure1 in degrees
    BranchAngle = 6,       ///< measure1 in degrees
};

} // namespace Drevon::Zalento
