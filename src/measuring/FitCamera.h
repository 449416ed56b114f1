#pragma once

#include "measuring/AlignmentFit.h"

#include "zalento/math/angles.h"
#include "zalento/pipes/gestureUnits.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Drevon::Zalento::Measuring {

/** A vector of any number type: the fit takes numbers that carry their derivatives. */
template <typename T>
struct FitVector
{
    /** Components in metres. */
    ///@{
    T x;
    T y;
    T z;
    ///@}
};

/** A pixel's distance from a curve that cannot be seen from there, in pixels: far enough that no
    step of a search ends at it. */
constexpr double outOfSightPX = 1e5;

/**
 * The overlay's camera as a formula of the alignment, for any number type; PipeBase::setupMiniGL()
 * and MiniGL::rotateByTouchRotationVector() in one, without single precision and whole gesture
 * units. Lengths are pipe diameters, in the pipe's frame before its roll: the axis is z, the mouth
 * lies at z = 0, the pipe runs towards -z.
 *
 * The drawing area has the side k·min(w, h) and the field of view 2·atan(k·tan(F/2)), so that the
 * focal length in pixels is that of the picture whatever k is.
 */
template <typename T>
class FitCamera
{
public:
    /** @param fields in the order of AlignmentField */
    FitCamera(const std::array<T, alignmentFieldCount> &fields, const QSize &picture)
        : m_centre(picture.width() * 0.5, picture.height() * 0.5)
    {
        using std::atan2;
        using std::cos;
        using std::sin;
        using std::tan;
        const auto at = [&](AlignmentField f) { return fields[static_cast<std::size_t>(f)]; };
        const T tangent = tan(at(AlignmentField::FovYDEG) * (radiansPerDegree * 0.5));
        const T areaTangent = at(AlignmentField::MouthPercent) * 0.01 * tangent;
        const T touch = atan2(areaTangent, T(1.0)); // the turn of one touch unit
        const T aboutY = at(AlignmentField::RearCircleX) * touch * (-1 / rearCircleRangeX);
        const T aboutX = at(AlignmentField::RearCircleY) * touch * (-1 / rearCircleRangeY);
        m_sinY = sin(aboutY);
        m_cosY = cos(aboutY);
        m_sinX = sin(aboutX);
        m_cosX = cos(aboutX);
        m_perPixel = tangent * (2.0 / std::min(picture.width(), picture.height()));
        m_eye = turned({at(AlignmentField::Offset) * (-1 / unitsPerDiameter),
                        (at(AlignmentField::CameraHeightPercent) - centredPercent) * 0.01,
                        T(0.5 * frontCircleMargin) / areaTangent});
    }

    /** Where the camera stands. */
    const FitVector<T> &eye() const { return m_eye; }

    /**
     * Distance in pixels of a pixel from the circle at @p depth diameters behind the mouth,
     * positive outside. First order: the distance in the circle's own plane over its gradient. A
     * click 3 px off is a hundredth of a pixel wrong at most, one 10 px off a tenth, with the
     * camera turned by a quarter of its field of view.
     */
    T ringDistance(const QPointF &pixel, const T &depth) const
    {
        using std::sqrt;
        const FitVector<T> ray = rayThrough(pixel);
        const T before = depth + m_eye.z;
        if (!(ray.z < T(-grazing)) || !(before > T(grazing))) {
            return T(outOfSightPX);
        }
        const T reach = before / (-ray.z);
        const T x = m_eye.x + reach * ray.x;
        const T y = m_eye.y + reach * ray.y;
        const T radius = sqrt(x * x + y * y + T(tiny));
        const auto growth = [&](const FitVector<T> &step) {
            const T slant = step.z / ray.z;
            const T dx = reach * (step.x - ray.x * slant);
            const T dy = reach * (step.y - ray.y * slant);
            return T((x * dx + y * dy) / radius);
        };
        const T gx = growth(rayStepX());
        const T gy = growth(rayStepY());
        return (radius - 0.5) / sqrt(gx * gx + gy * gy + T(tiny));
    }

    /** Distance in pixels of a pixel from the line along the wall at @p clockDEG, clockwise from
        the top of the mouth; exact, the sign tells the side. */
    T lineDistance(const QPointF &pixel, const T &clockDEG) const
    {
        using std::cos;
        using std::sin;
        using std::sqrt;
        const T angle = clockDEG * radiansPerDegree;
        // Normal of the plane through the eye and the line. The top is at +y, the right at -x.
        const T nx = m_eye.y - cos(angle) * 0.5;
        const T ny = -sin(angle) * 0.5 - m_eye.x;
        const auto across = [&](const FitVector<T> &v) { return T(nx * v.x + ny * v.y); };
        const T gx = across(rayStepX());
        const T gy = across(rayStepY());
        return across(rayThrough(pixel)) / sqrt(gx * gx + gy * gy + T(tiny));
    }

    /** Where a place of the scene is seen; a place behind the camera has no meaning. */
    QPointF pixelOf(const FitVector<T> &place) const
    {
        const FitVector<T> v =
            turnedBack({place.x - m_eye.x, place.y - m_eye.y, place.z - m_eye.z});
        const T scale = T(-1.0) / (v.z * m_perPixel);
        return {m_centre.x() - v.x * scale, m_centre.y() - v.y * scale};
    }

    /** Direction from the eye through a pixel; its length is free. The camera shows the scene
        mirrored through its centre of projection. */
    FitVector<T> rayThrough(const QPointF &pixel) const
    {
        return turned({m_perPixel * (m_centre.x() - pixel.x()),
                       m_perPixel * (m_centre.y() - pixel.y()), T(-1.0)});
    }

private:
    // A ray or a place nearer than this to the mouth's plane sees no circle, in diameters.
    static constexpr double grazing = 1e-3;
    // Keeps derivatives of roots of 0 finite.
    static constexpr double tiny = 1e-30;

    FitVector<T> rayStepX() const { return turned({-m_perPixel, T(0.0), T(0.0)}); }
    FitVector<T> rayStepY() const { return turned({T(0.0), -m_perPixel, T(0.0)}); }

    // From the scene to the pipe: the view's turns about y and then x, taken back.
    FitVector<T> turned(const FitVector<T> &v) const
    {
        const T z = m_sinY * v.x + m_cosY * v.z;
        return {m_cosY * v.x - m_sinY * v.z, m_cosX * v.y + m_sinX * z, m_cosX * z - m_sinX * v.y};
    }

    // The inverse of turned().
    FitVector<T> turnedBack(const FitVector<T> &v) const
    {
        const T z = m_sinX * v.y + m_cosX * v.z;
        return {m_cosY * v.x + m_sinY * z, m_cosX * v.y - m_sinX * v.z, m_cosY * z - m_sinY * v.x};
    }

    QPointF m_centre;
    T m_perPixel; // tangent of the angle of one pixel in the picture's middle
    T m_sinY, m_cosY, m_sinX, m_cosX;
    FitVector<T> m_eye;
};

} // namespace Drevon::Zalento::Measuring
