#include "support/PaintedObject.h"

#include "zalento/math/angles.h"
#include "zalento/pipes/Pipe.h"
#include "zalento/pipes/PipeBend.h"
#include "zalento/pipes/PipeJoint.h"
#include "zalento/pipes/PipeLateral.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Benchmarks {

namespace {

constexpr double diameterM = 0.3;
constexpr double mmPerM = 1000;
constexpr double waterLevel = 0.25;
constexpr double planeShare = 0.3;
constexpr double millimetresPerPixel = 0.5;
constexpr double branchShare = 0.6;
constexpr double branchDeg = 60;
constexpr double bendDeg = 45;
constexpr double jointDeg = 10;
constexpr double continuationShare = 0.5;
constexpr int usualPoints = 9;

std::unique_ptr<PipeBase> lateral()
{
    auto pipe = std::make_unique<PipeLateral>();
    pipe->setDiameterM(diameterM);
    pipe->setLateralDiameterPercent(branchShare);
    pipe->setAngleDeg(branchDeg);
    return pipe;
}

std::unique_ptr<PipeBase> bend()
{
    auto pipe = std::make_unique<PipeBend>();
    pipe->setDiameterM(diameterM);
    pipe->setAngleDeg(bendDeg);
    return pipe;
}

std::unique_ptr<PipeBase> joint()
{
    auto pipe = std::make_unique<PipeJoint>();
    pipe->setDiameterM(diameterM);
    pipe->setAngleDeg(jointDeg);
    pipe->setOffsetZ_Percent(continuationShare);
    return pipe;
}

ObjectKind straight(const char *name, MeasureMode mode, int points)
{
    ObjectKind kind{name, [=] { return straightPipe(mode, points); }, {}};
    if (points > 0 || mode == MeasureMode::WaterLevel) {
        kind.styles.push_back(ViewStyle::MeasureOnly);
    }
    kind.styles.insert(kind.styles.end(), {ViewStyle::Ends, ViewStyle::Full});
    return kind;
}

} // namespace

const std::vector<ObjectKind> &objectKinds()
{
    static const std::vector<ObjectKind> kinds{
        straight("straight", MeasureMode::NoMeasure, 0),
        straight("dimension", MeasureMode::PipeDimension, usualPoints),
        straight("section", MeasureMode::CrossSection, usualPoints),
        straight("water", MeasureMode::WaterLevel, 0),
        straight("crack", MeasureMode::CrackWidth, usualPoints),
        straight("freeSection", MeasureMode::FreeCrossSection, usualPoints),
        {"lateral", lateral, {ViewStyle::Ends, ViewStyle::Full}},
        {"bend", bend, {ViewStyle::Ends, ViewStyle::Full}},
        {"joint", joint, {ViewStyle::Ends}},
    };
    return kinds;
}

std::unique_ptr<PipeBase> straightPipe(MeasureMode mode, int points)
{
    auto pipe = std::make_unique<Pipe>();
    pipe->setDiameterM(diameterM);
    pipe->diameterMM = diameterM * mmPerM;
    pipe->measureMode = mode;
    pipe->laserScale = millimetresPerPixel;
    pipe->cylinder.waterLevelPercent = waterLevel;
    pipe->cylinder.crossSectDistancePercent = planeShare;

    const bool onPicture = mode == MeasureMode::CrackWidth;
    const double middle = onPicture ? 0.5 : 0;
    const double radius = onPicture ? 0.2 : 0.4 * diameterM;
    const double depth = planeShare * pipe->cylinder.lengthM;
    pipe->hitPoints.reserve(static_cast<std::size_t>(points));
    for (int k = 0; k < points; ++k) {
        const double a = twoPi * k / std::max(points - 1, 1);
        pipe->hitPoints.emplace_back(
            Vec3(middle + radius * std::sin(a), middle + radius * std::cos(a), -depth));
    }
    if (points > 1) {
        pipe->hitPoints.back() = pipe->hitPoints.front();
    }
    return pipe;
}

void paintObject(PipeBase &pipe, QPainter &painter, ViewStyle style)
{
    static const ZASettings settings;
    const Vec3 rotation(0.1, -0.05, 0);
    pipe.render(painter, style, settings, rotation, QPoint(0, 0));
}

} // namespace Drevon::Zalento::Benchmarks
