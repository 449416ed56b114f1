#pragma once

#include "zalento/Export.h"

#include <QString>

namespace Drevon::Zalento {

/** What a measurement kind puts on view and measures. */
struct MeasureMentSettings
{
    int viewObject = 0;  ///< 0 straight pipe, 1 lateral, 2 bend, 3 joint
    int measureMode = 0; ///< the straight pipe's MeasureMode
    int measureType = 0; ///< ObservableType of the value
};

/**
 * The settings of a measurement kind: "CrackWidth", "PipeDimension", "WaterLevel", "BranchAngle",
 * "BendAngle" or "CrossSection", case-sensitive. Any other name gives the default settings.
 */
ZALENTO_EXPORT MeasureMentSettings measureMentSettingsOf(const QString &kind);

} // namespace Drevon::Zalento
