#include "zalento/item/MeasureMentSettings.h"

#include "zalento/measure/MeasureMode.h"
#include "zalento/pipes/ViewObject.h"

#include <QHash>

namespace Drevon::Zalento {

namespace {

MeasureMentSettings settingsOf(ViewObject object, MeasureMode mode, ObservableType type)
{
    return {static_cast<int>(object), static_cast<int>(mode), static_cast<int>(type)};
}

} // namespace

MeasureMentSettings measureMentSettingsOf(const QString &kind)
{
    const QHash<QString, MeasureMentSettings> kinds{
        {QStringLiteral("CrackWidth"),
         settingsOf(ViewObject::StraightPipe, MeasureMode::CrackWidth, ObservableType::Length)},
        {QStringLiteral("PipeDimension"),
         settingsOf(ViewObject::StraightPipe, MeasureMode::PipeDimension, ObservableType::Length)},
        {QStringLiteral("WaterLevel"), settingsOf(ViewObject::StraightPipe, MeasureMode::WaterLevel,
                                                  ObservableType::WaterLevelPercent)},
        {QStringLiteral("BranchAngle"),
         settingsOf(ViewObject::Lateral, MeasureMode::NoMeasure, ObservableType::BranchAngle)},
        {QStringLiteral("BendAngle"),
         settingsOf(ViewObject::Bend, MeasureMode::NoMeasure, ObservableType::BendAngle)},
        {QStringLiteral("CrossSection"),
         settingsOf(ViewObject::StraightPipe, MeasureMode::CrossSection, ObservableType::Area)},
    };
    return kinds.value(kind);
}

} // namespace Drevon::Zalento
