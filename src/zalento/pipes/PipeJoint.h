#pragma once

#include "zalento/pipes/PipeBendBase.h"

namespace Drevon::Zalento {

/** A joint between two pipe lengths that meet at an angle; always drawn by its ends. */
class ZALENTO_EXPORT PipeJoint : public PipeBendBase
{
public:
    Vec3 offset; ///< z: length of the straight continuation in metres; x and y are not used

    PipeJoint();

    /** A diameter of 110 mm, no continuation. */
    void init();

    /**
     * Sets the continuation's length as a fraction of the drawn diameter, kept in [0.01, 0.99].
     * Without a finite length nothing changes.
     */
    void setOffsetZ_Percent(double p);
    /** That fraction; a change of the diameter changes it. */
    double getOffsetZ_Percent() const;

    void render(QPainter &painter, ViewStyle viewStyle, const ZASettings &settings, Vec3 rotation,
                QPoint viewOffset) override;
};

} // namespace Drevon::Zalento
