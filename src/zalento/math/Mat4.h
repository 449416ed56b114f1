#pragma once

#include "zalento/Export.h"
#include "zalento/math/Vec2.h"
#include "zalento/math/Vec3.h"

#include <QRect>
#include <QRectF>

namespace Drevon::Zalento {

/**
 * A 4x4 homogeneous transform with the conventions of the fixed-function OpenGL pipeline: points
 * are column vectors, storage is column-major, translate(), rotate() and scale() post-multiply
 * (the last one called acts on points first), rotations are right-handed and take degrees.
 */
struct Mat4
{
    /** Element in row i and column j stands at m[4 * j + i]; m[12..14] are the translation. */
    double m[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

    /** The identity. */
    Mat4() = default;

    /** Elements row by row, in reading order. */
    Mat4(double a00, double a01, double a02, double a03, double a10, double a11, double a12,
         double a13, double a20, double a21, double a22, double a23, double a30, double a31,
         double a32, double a33)
        : m{a00, a10, a20, a30, a01, a11, a21, a31, a02, a12, a22, a32, a03, a13, a23, a33}
    {}

    /** Takes all elements of @p other. */
    void set(const Mat4 &other) { *this = other; }

    /** Elements row by row, in reading order. */
    void set(double a00, double a01, double a02, double a03, double a10, double a11, double a12,
             double a13, double a20, double a21, double a22, double a23, double a30, double a31,
             double a32, double a33)
    {
        *this =
            Mat4(a00, a01, a02, a03, a10, a11, a12, a13, a20, a21, a22, a23, a30, a31, a32, a33);
    }

    /** Becomes the identity. */
    void identity() { *this = Mat4(); }

    /**
     * Storage element @p i (column-major, see #m).
     * @throws std::out_of_range for i >= 16.
     */
    ///@{
    double &operator[](unsigned i)
    {
        checkIndex(i);
        return m[i];
    }
    double operator[](unsigned i) const
    {
        checkIndex(i);
        return m[i];
    }
    ///@}

    /** this = this * b: @p b acts on points first. */
    void multiply(const Mat4 &b)
    {
        *this = Mat4(product(b, 0, 0), product(b, 0, 1), product(b, 0, 2), product(b, 0, 3),
                     product(b, 1, 0), product(b, 1, 1), product(b, 1, 2), product(b, 1, 3),
                     product(b, 2, 0), product(b, 2, 1), product(b, 2, 2), product(b, 2, 3),
                     product(b, 3, 0), product(b, 3, 1), product(b, 3, 2), product(b, 3, 3));
    }

    /**
     * Transforms the point (p.x, p.y, p.z, 1) and divides by w. There is no test of w: a point on
     * the camera plane comes out as infinities or NaN.
     */
    Vec3 multiply(const Vec3 &p) const
    {
        const double k = 1 / w(p);
        return {(m[0] * p.x + m[4] * p.y + m[8] * p.z + m[12]) * k,
                (m[1] * p.x + m[5] * p.y + m[9] * p.z + m[13]) * k,
                (m[2] * p.x + m[6] * p.y + m[10] * p.z + m[14]) * k};
    }

    /** The same, x and y alone. */
    void multiply(const Vec3 &p, Vec2 &out) const
    {
        const double k = 1 / w(p);
        out.x = (m[0] * p.x + m[4] * p.y + m[8] * p.z + m[12]) * k;
        out.y = (m[1] * p.x + m[5] * p.y + m[9] * p.z + m[13]) * k;
    }

    /**
     * The inverse, from the adjugate and the determinant.
     * @throws std::out_of_range when |determinant| <= 1e-10; the matrix is unchanged then.
     */
    ZALENTO_EXPORT Mat4 inverse() const;
    /** this = inverse() */
    void invert() { *this = inverse(); }

    /** Rows become columns. */
    ///@{
    void transpose() { *this = transposed(); }
    Mat4 transposed() const
    {
        return {m[0], m[1], m[2],  m[3],  m[4],  m[5],  m[6],  m[7],
                m[8], m[9], m[10], m[11], m[12], m[13], m[14], m[15]};
    }
    ///@}

    /** The perspective frustum matrix of glFrustum. */
    ZALENTO_EXPORT void setFrustum(double left, double right, double bottom, double top,
                                   double near, double far);

    /**
     * The symmetric frustum of gluPerspective.
     * @param fovYDeg vertical field of view in degrees
     * @param width,height of the viewport; a height of 0 makes the aspect equal to the width
     */
    ZALENTO_EXPORT void setPerspective(double fovYDeg, double width, double height, double near,
                                       double far);

    /**
     * Maps normalised device coordinates to item pixels: x in [-1, 1] to [r.x, r.x + r.width], y
     * in [-1, 1] to [r.y + r.height, r.y] (y turns downwards), z in [-1, 1] to [0, 1].
     */
    ///@{
    ZALENTO_EXPORT void setViewPort(const QRectF &r);
    ZALENTO_EXPORT void setViewPort(const QRect &r);
    ///@}

    /**
     * The viewing transform of gluLookAt: the camera stands at @p eye and looks along its own -z
     * towards @p center. An @p up of zero means the scene's y axis.
     * @throws std::range_error when eye equals center or up is parallel to the viewing direction;
     *         the matrix is unchanged then.
     */
    ///@{
    ZALENTO_EXPORT void lookAt(const Vec3 &eye, const Vec3 &center, const Vec3 &up);
    void lookAt(double eyeX, double eyeY, double eyeZ, double centerX, double centerY,
                double centerZ, double upX, double upY, double upZ)
    {
        lookAt(Vec3(eyeX, eyeY, eyeZ), Vec3(centerX, centerY, centerZ), Vec3(upX, upY, upZ));
    }
    ///@}

    /**
     * Reads a rigid viewing transform back.
     * @param[out] eye camera position
     * @param[out] direction unit viewing direction
     * @param[out] up unit up direction
     */
    ZALENTO_EXPORT void getLookAt(Vec3 &eye, Vec3 &direction, Vec3 &up) const;

    /** Sets the translation; the other elements become those of the identity or are kept. */
    ///@{
    ZALENTO_EXPORT void translation(double x, double y, double z, bool keepOthers);
    void translation(const Vec3 &v, bool keepOthers) { translation(v.x, v.y, v.z, keepOthers); }
    ///@}

    /**
     * Sets the right-handed rotation by @p angleDeg about an axis through the origin. The axis is
     * normalised unless its squared length lies within 1e-4 of 1; an axis of zero gives
     * diag(cos, cos, cos). The translation becomes 0 or is kept.
     */
    ///@{
    ZALENTO_EXPORT void rotation(double angleDeg, double x, double y, double z, bool keepOthers);
    void rotation(double angleDeg, const Vec3 &axis, bool keepOthers)
    {
        rotation(angleDeg, axis.x, axis.y, axis.z, keepOthers);
    }
    ///@}

    /** Sets the scaling; the translation becomes 0 or is kept. */
    ///@{
    ZALENTO_EXPORT void scaling(double x, double y, double z, bool keepOthers);
    void scaling(const Vec3 &v, bool keepOthers) { scaling(v.x, v.y, v.z, keepOthers); }
    ///@}

    /** this = this * translation */
    ///@{
    void translate(double x, double y, double z)
    {
        Mat4 t;
        t.translation(x, y, z, true);
        multiply(t);
    }
    void translate(const Vec3 &v) { translate(v.x, v.y, v.z); }
    ///@}

    /** this = this * rotation */
    ///@{
    void rotate(double angleDeg, double x, double y, double z)
    {
        Mat4 r;
        r.rotation(angleDeg, x, y, z, false);
        multiply(r);
    }
    void rotate(double angleDeg, const Vec3 &axis) { rotate(angleDeg, axis.x, axis.y, axis.z); }
    ///@}

    /** this = this * scaling */
    ///@{
    void scale(double x, double y, double z)
    {
        Mat4 s;
        s.scaling(x, y, z, false);
        multiply(s);
    }
    void scale(const Vec3 &v) { scale(v.x, v.y, v.z); }
    ///@}

private:
    static void checkIndex(unsigned i)
    {
        if (i >= 16) {
            throw std::out_of_range("index too large");
        }
    }

    double w(const Vec3 &p) const { return m[3] * p.x + m[7] * p.y + m[11] * p.z + m[15]; }

    double product(const Mat4 &b, int i, int j) const
    {
        const double *column = b.m + 4 * j;
        return m[i] * column[0] + m[4 + i] * column[1] + m[8 + i] * column[2] +
               m[12 + i] * column[3];
    }

    void clearTranslationUnless(bool kept)
    {
        if (!kept) {
            m[12] = m[13] = m[14] = 0;
        }
    }
    void setUpperRows(const Vec3 &row0, const Vec3 &row1, const Vec3 &row2);
};

} // namespace Drevon::Zalento
