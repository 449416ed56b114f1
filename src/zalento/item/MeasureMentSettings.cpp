#include "zalento/item/MeasureMentSettings.h"

#include "zalento/render/MeasureMode.h"

#include <QHash>

namespace Drevon::Zalento {

namespace {

enum ViewObject { StraightPipe, Lateral, Bend };

MeasureMentSettings settingsOf(ViewObject object, MeasureMode mode, ObservableType type)
{
    return {object, static_cast<int>(mode), static_cast<int>(type)};
}

} // namespace

MeasureMentSettings measureMentSettingsOf(const QString &kind)
{
    const QHash<QString, MeasureMentSettings> kinds{
        {QStringLiteral("CrackWidth"),
         settingsOf(StraightPipe, MeasureMode::CrackWidth, ObservableType::Length)},
        {QStringLiteral("PipeDimension"),
         settingsOf(StraightPipe, MeasureMode::PipeDimension, ObservableType::Length)},
        {QStringLiteral("WaterLevel"),
         settingsOf(StraightPipe, MeasureMode::WaterLevel, ObservableType::WaterLevelPercent)},
        {QStringLiteral("BranchAngle"),
         settingsOf(Lateral, MeasureMode::NoMeasure, ObservableType::BranchAngle)},
        {QStringLiteral("BendAngle"),
         settingsOf(Bend, MeasureMode::NoMeasure, ObservableType::BendAngle)},
        {QStringLiteral("CrossSection"),
         settingsOf(StraightPipe, MeasureMode::CrossSection, ObservableType::Area)},
    };
    return kinds.value(kind);
}

} // namespace Drevon::Zalento
