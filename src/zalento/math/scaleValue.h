#pragma once

namespace Drevon::Zalento {

/**
 * Maps @p value linearly from [inMin, inMax] to [outMin, outMax]. Nothing is clamped: a value
 * outside the input range lands outside the output range. An empty input range gives an infinity
 * or NaN.
 */
inline double scaleValue(double value, double inMin, double inMax, double outMin, double outMax)
{
    return (outMax - outMin) * (value - inMin) / (inMax - inMin) + outMin;
}

} // namespace Drevon::Zalento
