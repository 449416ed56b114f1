#pragma once

namespace Drevon::Zalento {

/** The pipe objects that can be on view, as the item's property viewObject numbers them. */
enum class ViewObject : int {
    StraightPipe = 0, ///< also on view for every other number, but then takes no clicks
    Lateral = 1,
    Bend = 2,
    Joint = 3,
};

} // namespace Drevon::Zalento
