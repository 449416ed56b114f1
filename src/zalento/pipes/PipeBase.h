#pragma once

#include "zalento/Export.h"
#include "zalento/math/Vec3.h"
#include "zalento/measure/MeasureMode.h"
#include "zalento/pipes/CircleRotationCorrector.h"
#include "zalento/pipes/ViewStyle.h"
#include "zalento/render/MiniGL.h"
#include "zalento/settings/ZASettings.h"

#include <QObject>
#include <QPainter>
#include <QPoint>

namespace Drevon::Zalento {

/**
 * A pipe that is laid over the picture, with a camera of its own.
 *
 * Pipe frame (metres): the axis is z, the front circle lies at z = 0, the pipe runs towards -z;
 * the camera stands on the +z side.
 */
class ZALENTO_EXPORT PipeBase : public QObject
{
    Q_OBJECT

public:
    MiniGL camera;                                     ///< that the object is drawn with
    CircleRotationCorrector rotationCorrector{camera}; ///< keeps the front circle in its place
    double cameraHeight = 0.5;     ///< of the eye across the diameter, [0, 1]; 0.5 is the axis
    bool rearCircleActive = false; ///< the item's rear-circle mode; kept here for it
    ObservableType observable = ObservableType::NothingObserved; ///< kind of the last measure
    double measure1 = 0.0;   ///< first measured value, in the unit of #observable
    double measure2 = 0.0;   ///< second measured value
    double diameterM = 0.0;  ///< in metres; objects with a Cylinder keep theirs there
    double diameterMM = 0.0; ///< nominal diameter in millimetres
    double clockDeg = 0.0;   ///< further rotation about the pipe axis, in degrees

    PipeBase() = default;

    /** Sets the diameter in metres and rebuilds what depends on it. */
    virtual void setDiameterM(double d) { diameterM = d; }
    /** The diameter in metres that is drawn. */
    virtual double getDiameterM() const { return diameterM; }

    /**
     * Draws the object.
     * @param rotation view rotation: x and y in touch units, z the roll in degrees
     * @param offset of the model in gesture units; 576 are one diameter, only x counts
     * @throws std::range_error when the eye coincides with the point it looks at, or is too far
     *         away for the direction to be told; the camera's stack is as before then.
     */
    virtual void render(QPainter &painter, ViewStyle viewStyle, const ZASettings &settings,
                        Vec3 rotation, QPoint offset) = 0;

    /**
     * Places the camera before a pipe of diameter @p d metres so that the front circle fills the
     * vertical field of view with a margin of 2 %, shifted sideways by @p offset.
     */
    void setupMiniGL(double d, QPoint offset);

    /** Turns the model about the pipe axis by #clockDeg and the roll. */
    void applyZRotation(Vec3 rotation);

    /**
     * The view rotation with which the far end stays visible through the near end.
     * @param rotation x and y the requested offsets of the rear circle, z the roll in degrees
     * @return x and y in touch units, z as given
     */
    Vec3 getNewImageRotationToKeepRearCircleInsideFrontCircle(QPoint offset, Vec3 rotation);

protected:
    /** Turns the placed camera by the view rotation and the clock rotation. */
    void applyViewRotation(Vec3 rotation);
};

} // namespace Drevon::Zalento
