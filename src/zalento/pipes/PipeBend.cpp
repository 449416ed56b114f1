#include "zalento/pipes/PipeBend.h"

namespace Drevon::Zalento {

namespace {

constexpr double straightLengthInDiameters = 0.65;

} // namespace

PipeBend::PipeBend()
{
    init();
}

void PipeBend::init()
{
    diameterMM = initialDiameterMM;
    PipeBend::setDiameterM(initialDiameterM);
}

void PipeBend::setDiameterM(double d)
{
    PipeBendBase::setDiameterM(d);
    straightLengthM = diameterM * straightLengthInDiameters;
}

void PipeBend::render(QPainter &painter, ViewStyle viewStyle, const ZASettings &settings,
                      Vec3 rotation, QPoint offset)
{
    renderBase(painter, getViewDownstream(), viewStyle, settings, straightLengthM, rotation,
               offset);
}

} // namespace Drevon::Zalento
