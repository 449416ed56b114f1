#include "Camera.h"

namespace PipePicture {

namespace {

// The ring of the mouth leaves this margin to the edge of the square.
constexpr double mouthMargin = 1.02;
// Picture height on which the sideways shift is counted.
constexpr double offsetScalePx = 576.0;

Rotation product(const Rotation &a, const Rotation &b)
{
    const auto row = [&b](const Vec &r) { return b.row0 * r.x + b.row1 * r.y + b.row2 * r.z; };
    return {row(a.row0), row(a.row1), row(a.row2)};
}

} // namespace

Camera::Camera(const CameraSettings &settings, double diameterM)
    : m_pose(product(product(rotationY(settings.yawDeg), rotationX(settings.pitchDeg)),
                     rotationZ(settings.rollDeg)))
{
    const double width = settings.picture.width();
    const double height = settings.picture.height();
    const double side = std::fmin(width, height);
    const double tangent = std::tan(radians(settings.fovDeg) * 0.5);
    m_square = QRectF((width - side) * 0.5, (height - side) * 0.5, side, side);
    m_centre = QPointF(width * 0.5, height * 0.5);
    m_pixelsPerTangent = side * 0.5 / tangent;
    m_eye = {-diameterM * settings.offsetPx / offsetScalePx,
             diameterM * (settings.heightShare - 0.5), mouthMargin * diameterM * 0.5 / tangent};
}

QPointF Camera::project(const Vec &pipePoint) const
{
    const Vec p = m_pose * pipePoint;
    const double scale = m_pixelsPerTangent / depthOf(p);
    return {m_centre.x() - (p.x - m_eye.x) * scale, m_centre.y() - (p.y - m_eye.y) * scale};
}

double Camera::metresPerPixel(const Vec &pipePoint) const
{
    return depthOf(m_pose * pipePoint) / m_pixelsPerTangent;
}

Ray Camera::rayThrough(double x, double y) const
{
    const Vec view{(m_centre.x() - x) / m_pixelsPerTangent, (m_centre.y() - y) / m_pixelsPerTangent,
                   -1.0};
    return {eyeInPipe(), m_pose.inverse(normalized(view))};
}

} // namespace PipePicture
