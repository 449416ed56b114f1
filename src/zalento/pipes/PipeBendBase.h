#pragma once

#include "zalento/pipes/PipeBase.h"

#include <vector>

namespace Drevon::Zalento {

/**
 * A pipe that turns about an axis through its wall, parallel to the frame's y axis: a chain of
 * circles, every 5 degrees one. It is drawn with 0.9512 times its diameter.
 */
class ZALENTO_EXPORT PipeBendBase : public PipeBase
{
public:
    double angleDeg = 0.0;          ///< a multiple of 5 when set by setAngleDeg()
    int segmentCount = 72;          ///< of a circle
    std::vector<Vec3> circlePoints; ///< one point more than segments; starts at the turn axis

    /** Sets the angle to the nearest multiple of 5 degrees; it is also the measured value. */
    void setAngleDeg(double a);

    void setDiameterM(double d) override;
    /** The drawn diameter in metres: 0.9512 times the one that was set. */
    double getDiameterM() const override;

    /** Rebuilds #circlePoints from the diameter. */
    void constructCirclePoints();

    /**
     * Draws the chain of circles.
     * @param downstream seen from the straight pipe, else from the continuation
     * @param straightLength of the continuation, in metres
     */
    void renderBase(QPainter &painter, bool downstream, ViewStyle viewStyle,
                    const ZASettings &settings, double straightLength, Vec3 rotation,
                    QPoint offset);

protected:
    static constexpr double initialDiameterMM = 110.0; ///< before the host sets one
    static constexpr double initialDiameterM = 0.11;   ///< the same

private:
    class CircleChain;
    void renderDownstream(CircleChain &chain, double straightLength) const;
    void renderUpstream(CircleChain &chain, double straightLength) const;
    int turnCount() const;
};

} // namespace Drevon::Zalento
