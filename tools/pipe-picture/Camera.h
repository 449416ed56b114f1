#pragma once

#include "Geometry.h"

#include <QPointF>
#include <QRectF>
#include <QSize>

namespace PipePicture {

/** How the camera stands before the mouth of the pipe. */
struct CameraSettings
{
    QSize picture{768, 576};  ///< pixels
    double fovDeg = 37.5;     ///< angle seen by the side of the centred square, vertical
    double heightShare = 0.5; ///< eye above the invert as a share of the diameter
    double offsetPx = 0.0;    ///< sideways shift: the diameter times this / 576
    double rollDeg = 0.0;     ///< pipe turned about its axis
    double yawDeg = 0.0;      ///< pipe turned about the vertical through the mouth's centre
    double pitchDeg = 0.0;    ///< pipe turned about the horizontal through the mouth's centre
    double k1 = 0.0;          ///< radial distortion (D. C. Brown): below 0 a barrel
    double k2 = 0.0;          ///< the same, with the fourth power
};

/**
 * Camera before the mouth of a pipe: a pinhole, or a lens with its middle in the picture's.
 *
 * Frames: *pipe frame*, metres, origin in the centre of the mouth, the pipe along −z, +y up and +x
 * to the left of somebody who looks into the pipe, so that angles about the axis grow clockwise in
 * the picture. *View frame*: the pipe frame after
 * roll, pitch and yaw, in which the camera looks along −z. *Picture*: pixels, x to the right, y
 * down, pixel (i, j) covers [i, i + 1) × [j, j + 1).
 *
 * The eye stands where the ring of the mouth fills the side of the picture's largest centred square
 * but for 2 %: distance = 1.02 · (diameter / 2) / tan(fov / 2).
 */
class Camera
{
public:
    Camera(const CameraSettings &settings, double diameterM);

    /** Eye in the view frame, metres. */
    Vec eye() const { return m_eye; }
    /** Eye in the pipe frame, metres. */
    Vec eyeInPipe() const { return m_pose.inverse(m_eye); }
    /** The largest centred square of the picture, pixels. */
    QRectF square() const { return m_square; }

    /** Picture position of a point of the pipe frame that lies before the eye. */
    QPointF project(const Vec &pipePoint) const;
    /** Metres across one pixel for an object parallel to the picture at \a pipePoint. */
    double metresPerPixel(const Vec &pipePoint) const;
    /** Angle across a pixel in the middle of the picture, radians. */
    double pixelAngle() const { return 1.0 / m_pixelsPerTangent; }
    /** Ray of the pipe frame that is seen at a picture position. */
    Ray rayThrough(double x, double y) const;

private:
    double distortion(const QPointF &direction) const;
    double depthOf(const Vec &viewPoint) const { return m_eye.z - viewPoint.z; }

    Rotation m_pose;
    Vec m_eye;
    QRectF m_square;
    QPointF m_centre;
    double m_pixelsPerTangent = 1.0;
    double m_k1 = 0.0;
    double m_k2 = 0.0;
};

} // namespace PipePicture
