#pragma once

#include "zalento/math/truncateToInt.h"

#include <QRect>

#include <algorithm>
#include <limits>

namespace Drevon::Zalento {

/**
 * The integer rectangle of a corner and a size in pixels, each truncated as by truncateToInt().
 * The far edges saturate as well: a rectangle that would reach beyond an int is cut there.
 */
inline QRect truncatedRect(double x, double y, double width, double height)
{
    const auto lastPixel = [](int first, int count) {
        using Limits = std::numeric_limits<int>;
        const long long last = static_cast<long long>(first) + count - 1;
        return static_cast<int>(std::clamp<long long>(last, Limits::min(), Limits::max()));
    };
    const int left = truncateToInt(x);
    const int top = truncateToInt(y);
    return {QPoint(left, top),
            QPoint(lastPixel(left, truncateToInt(width)), lastPixel(top, truncateToInt(height)))};
}

} // namespace Drevon::Zalento
