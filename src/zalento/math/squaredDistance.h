#pragma once

#include "zalento/math/Vec2.h"

namespace Drevon::Zalento {

/** Squared distance between two points, in their unit squared. */
inline double squaredDistance(const Vec2 &a, const Vec2 &b)
{
    return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

} // namespace Drevon::Zalento
