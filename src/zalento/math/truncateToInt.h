#pragma once

#include <cmath>
#include <limits>

namespace Drevon::Zalento {

/**
 * @p value without its fraction (towards zero) as an Integer. Defined for every double: values
 * beyond the integer's range give its nearest end, NaN gives 0.
 */
template <typename Integer>
Integer truncateTo(double value)
{
    // Both ends as doubles: the minimum is exact, the maximum is the power of two above it.
    constexpr double lowest = static_cast<double>(std::numeric_limits<Integer>::min());
    constexpr double beyond = -lowest;
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= beyond) {
        return std::numeric_limits<Integer>::max();
    }
    if (value <= lowest) {
        return std::numeric_limits<Integer>::min();
    }
    return static_cast<Integer>(value);
}

/** truncateTo() for pixel coordinates. */
inline int truncateToInt(double value)
{
    return truncateTo<int>(value);
}

/** @p value to the nearest integer, halves away from zero; ends and NaN as in truncateTo(). */
template <typename Integer>
Integer roundTo(double value)
{
    return truncateTo<Integer>(std::round(value));
}

} // namespace Drevon::Zalento
