#pragma once

namespace Drevon::Zalento {

/** System of units of the texts; every value but Metric is taken as imperial. */
enum class MeasureUnit : int {
    Metric = 0,   ///< millimetres, centimetres, metres
    Imperial = 1, ///< inches and feet
};

} // namespace Drevon::Zalento
