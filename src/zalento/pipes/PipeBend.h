#pragma once

#include "zalento/pipes/PipeBendBase.h"

namespace Drevon::Zalento {

/** A pipe bend; its angle is the measured value. */
class ZALENTO_EXPORT PipeBend : public PipeBendBase
{
public:
    double straightLengthM = 0.0; ///< of the continuation behind the bend: 0.65 diameters
    bool viewDownstream = true;   ///< seen from the straight pipe, else from the continuation

    PipeBend();

    /** A diameter of 110 mm. */
    void init();

    void setDiameterM(double d) override;
    /** Whether the bend is seen from the straight pipe. */
    ///@{
    void setViewDownstream(bool downstream) { viewDownstream = downstream; }
    bool getViewDownstream() const { return viewDownstream; }
    ///@}

    void render(QPainter &painter, ViewStyle viewStyle, const ZASettings &settings, Vec3 rotation,
                QPoint offset) override;
};

} // namespace Drevon::Zalento
