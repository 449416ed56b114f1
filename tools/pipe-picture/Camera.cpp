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
    , m_k1(settings.k1)
    , m_k2(settings.k2)
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

double Camera::distortion(const QPointF &direction) const
{
    const double r2 = direction.x() * direction.x() + direction.y() * direction.y();
    return 1.0 + r2 * (m_k1 + r2 * m_k2);
}

QPointF Camera::project(const Vec &pipePoint) const
{
    const Vec p = m_pose * pipePoint;
    const QPointF direction = QPointF(m_eye.x - p.x, m_eye.y - p.y) / depthOf(p); // right and down
    return m_centre + direction * distortion(direction) * m_pixelsPerTangent;
}

double Camera::metresPerPixel(const Vec &pipePoint) const
{
    return depthOf(m_pose * pipePoint) / m_pixelsPerTangent;
}

Ray Camera::rayThrough(double x, double y) const
{
    // Fixed point: what is seen at a place lies where the distortion there puts it.
    constexpr int steps = 60;
    const QPointF seen = QPointF(x - m_centre.x(), y - m_centre.y()) / m_pixelsPerTangent;
    QPointF direction = seen;
    const bool isBent = m_k1 != 0.0 || m_k2 != 0.0;
    for (int i = 0; isBent && i < steps; ++i) {
        direction = seen / distortion(direction);
    }
    const Vec view{-direction.x(), -direction.y(), -1.0};
    return {eyeInPipe(), m_pose.inverse(normalized(view))};
}

} // namespace PipePicture
