#include "zalento/pipes/PipeJoint.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

namespace {

constexpr double smallestFraction = 0.01;
constexpr double largestFraction = 0.99;

} // namespace

PipeJoint::PipeJoint()
{
    init();
}

void PipeJoint::init()
{
    diameterMM = initialDiameterMM;
    PipeBendBase::setDiameterM(initialDiameterM);
    offset = Vec3::Zero;
    observable = ObservableType::BendAngle;
}

void PipeJoint::setOffsetZ_Percent(double p)
{
    const double z = getDiameterM() * std::clamp(p, smallestFraction, largestFraction);
    // A diameter set later does not rescale the length, so a bad one must not stay in it.
    if (std::isfinite(z)) {
        offset.z = z;
    }
}

double PipeJoint::getOffsetZ_Percent() const
{
    return offset.z / getDiameterM();
}

void PipeJoint::render(QPainter &painter, ViewStyle /*viewStyle*/, const ZASettings &settings,
                       Vec3 rotation, QPoint viewOffset)
{
    renderBase(painter, true, ViewStyle::Ends, settings, offset.z, rotation, viewOffset);
}

} // namespace Drevon::Zalento
