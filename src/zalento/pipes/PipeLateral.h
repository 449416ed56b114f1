#pragma once

#include "zalento/geometry/Cylinder.h"
#include "zalento/pipes/PipeBase.h"

namespace Drevon::Zalento {

/** A thinner branch pipe that joins the main pipe; its angle is the measured value. */
class ZALENTO_EXPORT PipeLateral : public PipeBase
{
public:
    Cylinder mainCylinder{0.1};          ///< the pipe that the branch joins
    Cylinder lateralCylinder{0.1};       ///< the branch; its angleDeg is the branch angle
    double lateralDiameterPercent = 0.1; ///< branch / main diameter, [0.01, 0.999]

    PipeLateral() = default;

    /** The main pipe's diameter in metres. */
    double getDiameterM() const override { return mainCylinder.diameterM; }
    void setDiameterM(double d) override;

    /** Branch / main diameter; 1 from 0.99 on. */
    double getLateralDiameterPercent() const;
    /** Sets it, kept in [0.01, 0.999]; NaN changes nothing. */
    void setLateralDiameterPercent(double p);

    /** Angle in degrees between the branch and the main pipe's direction away from the camera. */
    double getAngleDeg() const { return lateralCylinder.angleDeg; }
    /** Sets that angle; it is also the measured value. */
    void setAngleDeg(double a);

    void render(QPainter &painter, ViewStyle viewStyle, const ZASettings &settings, Vec3 rotation,
                QPoint offset) override;

private:
    void invalidateGrids();
};

} // namespace Drevon::Zalento
