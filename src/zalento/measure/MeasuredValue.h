#pragma once

namespace Drevon::Zalento {

/** What a value is; decides its unit. */
enum class Quantity {
    Length,   ///< in mm
    Area,     ///< in mm²
    Fraction, ///< of a whole: 1 is all of it
    Percent,  ///< of a whole: 100 is all of it
    Angle,    ///< in degrees
};

/** Why there is no value. */
enum class NoValue {
    None, ///< there is one
    TooFewPoints,
    NoScale,   ///< a length in the picture whose millimetres per pixel are not known
    SamePlace, ///< the points lie on one place
    NotFinite, ///< a point or the pipe is beyond what can be computed with
};

/** A value, or why there is none. */
struct MeasuredValue
{
    Quantity quantity = Quantity::Length; ///< what was measured
    double number = 0.0;                  ///< in the unit of #quantity
    NoValue why = NoValue::TooFewPoints;  ///< NoValue::None for a value

    /** There is a value. */
    bool isMeasured() const { return why == NoValue::None; }
};

} // namespace Drevon::Zalento
