#pragma once

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace Drevon::Zalento {

/** A point or direction on the screen, in pixels; y points downwards. */
struct Vec2
{
    double x = 0.0; ///< to the right
    double y = 0.0; ///< downwards

    constexpr Vec2() = default;
    /** From its components. */
    constexpr Vec2(double xValue, double yValue)
        : x(xValue)
        , y(yValue)
    {}

    /**
     * True for lengths up to about 1e-12: length + 1 equals 1 in the sense of Qt's fuzzy
     * comparison of doubles (relative tolerance 1e-12). False for NaN.
     */
    bool isZeroLengthVector() const
    {
        const double shifted = std::sqrt(x * x + y * y) + 1;
        return std::abs(1 - shifted) * 1e12 <= std::min(std::abs(shifted), 1.0);
    }

    /**
     * Scales to length 1.
     * @throws std::range_error when isZeroLengthVector(); the vector is unchanged then.
     */
    void normalize()
    {
        if (isZeroLengthVector()) {
            throw std::range_error("Trying to normalize a 2D vector with length of zero.");
        }
        const double factor = 1 / std::sqrt(x * x + y * y);
        x *= factor;
        y *= factor;
    }
};

} // namespace Drevon::Zalento
