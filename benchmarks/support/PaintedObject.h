#pragma once

#include "zalento/pipes/PipeBase.h"
#include "zalento/pipes/ViewStyle.h"

#include <functional>
#include <memory>
#include <vector>

class QPainter;

namespace Drevon::Zalento::Benchmarks {

/** A pipe object as an operator has it on the screen, and the view styles in which it differs. */
struct ObjectKind
{
    const char *name;
    std::function<std::unique_ptr<PipeBase>()> make;
    std::vector<ViewStyle> styles;
};

/** The straight pipe in every measure mode, a lateral, a bend and a joint. */
const std::vector<ObjectKind> &objectKinds();

/**
 * A straight pipe in @p mode with @p points measurement points: a closed outline on the
 * cross-section plane, or for cracks around the middle of the picture.
 */
std::unique_ptr<PipeBase> straightPipe(MeasureMode mode, int points);

/** Paints @p pipe as the item does, a little turned. */
void paintObject(PipeBase &pipe, QPainter &painter, ViewStyle style);

} // namespace Drevon::Zalento::Benchmarks
