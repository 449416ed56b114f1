#pragma once

namespace Drevon::Zalento {

/** How much of a pipe object is drawn. */
enum class ViewStyle : int {
    MeasureOnly = 0, ///< no rings; lateral and bend draw nothing
    Ends = 1,        ///< the first and the last ring, the circles where a bend starts and ends
    Full = 2,        ///< every ring and circle
};

} // namespace Drevon::Zalento
