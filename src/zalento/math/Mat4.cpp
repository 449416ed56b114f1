#include "zalento/math/Mat4.h"

#include "zalento/math/angles.h"

#include <cmath>
#include <stdexcept>

namespace Drevon::Zalento {

namespace {

// Below this the inverse's elements are mostly rounding errors.
constexpr double smallestDeterminant = 1e-10;

// An axis whose squared length lies between these is taken as a unit vector.
constexpr double unitSquaredLengthMin = 0.9999;
constexpr double unitSquaredLengthMax = 1.0001;

Vec3 nearlyUnitAxis(double x, double y, double z)
{
    Vec3 axis(x, y, z);
    const double q = axis.lengthSquared();
    if (q > unitSquaredLengthMax || (q < unitSquaredLengthMin && q != 0.0)) {
        axis.normalize();
    }
    return axis;
}

} // namespace

// Laplace expansion: s are the 2x2 minors of the first two rows, c those of the last two.
Mat4 Mat4::inverse() const
{
    const double s0 = m[0] * m[5] - m[1] * m[4];
    const double s1 = m[0] * m[9] - m[1] * m[8];
    const double s2 = m[0] * m[13] - m[1] * m[12];
    const double s3 = m[4] * m[9] - m[5] * m[8];
    const double s4 = m[4] * m[13] - m[5] * m[12];
    const double s5 = m[8] * m[13] - m[9] * m[12];
    const double c0 = m[2] * m[7] - m[3] * m[6];
    const double c1 = m[2] * m[11] - m[3] * m[10];
    const double c2 = m[2] * m[15] - m[3] * m[14];
    const double c3 = m[6] * m[11] - m[7] * m[10];
    const double c4 = m[6] * m[15] - m[7] * m[14];
    const double c5 = m[10] * m[15] - m[11] * m[14];

    const Mat4 adjugate(m[5] * c5 - m[9] * c4 + m[13] * c3, -m[4] * c5 + m[8] * c4 - m[12] * c3,
                        m[7] * s5 - m[11] * s4 + m[15] * s3, -m[6] * s5 + m[10] * s4 - m[14] * s3,
                        -m[1] * c5 + m[9] * c2 - m[13] * c1, m[0] * c5 - m[8] * c2 + m[12] * c1,
                        -m[3] * s5 + m[11] * s2 - m[15] * s1, m[2] * s5 - m[10] * s2 + m[14] * s1,
                        m[1] * c4 - m[5] * c2 + m[13] * c0, -m[0] * c4 + m[4] * c2 - m[12] * c0,
                        m[3] * s4 - m[7] * s2 + m[15] * s0, -m[2] * s4 + m[6] * s2 - m[14] * s0,
                        -m[1] * c3 + m[5] * c1 - m[9] * c0, m[0] * c3 - m[4] * c1 + m[8] * c0,
                        -m[3] * s3 + m[7] * s1 - m[11] * s0, m[2] * s3 - m[6] * s1 + m[10] * s0);

    // The first column of the adjugate holds the cofactors of the first row.
    const double determinant =
        m[0] * adjugate.m[0] + m[4] * adjugate.m[1] + m[8] * adjugate.m[2] + m[12] * adjugate.m[3];
    if (std::abs(determinant) <= smallestDeterminant) {
        throw std::out_of_range("Matrix is singular. Inversion impossible.");
    }

    const double factor = 1 / determinant;
    Mat4 result;
    for (unsigned i = 0; i < 16; ++i) {
        result.m[i] = adjugate.m[i] * factor;
    }
    return result;
}

void Mat4::setFrustum(double left, double right, double bottom, double top, double near, double far)
{
    set(2 * near / (right - left), 0, (right + left) / (right - left), 0,   //
        0, 2 * near / (top - bottom), (top + bottom) / (top - bottom), 0,   //
        0, 0, -(far + near) / (far - near), -2 * far * near / (far - near), //
        0, 0, -1, 0);
}

void Mat4::setPerspective(double fovYDeg, double width, double height, double near, double far)
{
    const double aspect = height == 0.0 ? width : width / height;
    const double top = near * std::tan(fovYDeg * 0.5 * radiansPerDegree);
    const double right = top * aspect;
    setFrustum(-right, right, -top, top, near, far);
}

void Mat4::setViewPort(const QRectF &r)
{
    set(r.width() / 2, 0, 0, r.x() + r.width() / 2,    //
        0, -r.height() / 2, 0, r.y() + r.height() / 2, //
        0, 0, 0.5, 0.5,                                //
        0, 0, 0, 1);
}

void Mat4::setViewPort(const QRect &r)
{
    setViewPort(QRectF(r.left(), r.top(), double(r.right()) - r.left() + 1,
                       double(r.bottom()) - r.top() + 1));
}

void Mat4::lookAt(const Vec3 &eye, const Vec3 &center, const Vec3 &up)
{
    Vec3 f = eye - center;
    f.normalize();
    // Without an up direction the scene's y axis serves: YAxis x f.
    Vec3 s = up == Vec3::Zero ? Vec3(f.z, 0, -f.x) : up.cross(f);
    Vec3 u = f.cross(s);
    s.normalize();
    u.normalize();
    const Vec3 t = -eye;
    set(s.x, s.y, s.z, s.dot(t), //
        u.x, u.y, u.z, u.dot(t), //
        f.x, f.y, f.z, f.dot(t), //
        0, 0, 0, 1);
}

void Mat4::getLookAt(Vec3 &eye, Vec3 &direction, Vec3 &up) const
{
    // The inverse of a rotation is its transpose.
    Mat4 inverseRotation(*this);
    inverseRotation.clearTranslationUnless(false);
    inverseRotation.transpose();
    eye = inverseRotation.multiply(Vec3(-m[12], -m[13], -m[14]));
    direction = Vec3(-m[2], -m[6], -m[10]);
    up = Vec3(m[1], m[5], m[9]);
}

void Mat4::translation(double x, double y, double z, bool keepOthers)
{
    if (!keepOthers) {
        identity();
    }
    m[12] = x;
    m[13] = y;
    m[14] = z;
}

void Mat4::rotation(double angleDeg, double x, double y, double z, bool keepOthers)
{
    const double ca = std::cos(angleDeg * radiansPerDegree);
    const double sa = std::sin(angleDeg * radiansPerDegree);
    const Vec3 given(x, y, z);
    if (given == Vec3::XAxis) {
        setUpperRows({1, 0, 0}, {0, ca, -sa}, {0, sa, ca});
    } else if (given == Vec3::YAxis) {
        setUpperRows({ca, 0, sa}, {0, 1, 0}, {-sa, 0, ca});
    } else if (given == Vec3::ZAxis) {
        setUpperRows({ca, -sa, 0}, {sa, ca, 0}, {0, 0, 1});
    } else {
        const Vec3 a = nearlyUnitAxis(x, y, z);
        const double xx = a.x * a.x;
        const double yy = a.y * a.y;
        const double zz = a.z * a.z;
        const double xy = a.x * a.y * (1 - ca);
        const double xz = a.x * a.z * (1 - ca);
        const double yz = a.y * a.z * (1 - ca);
        setUpperRows({xx + (1 - xx) * ca, xy - a.z * sa, xz + a.y * sa},
                     {xy + a.z * sa, yy + (1 - yy) * ca, yz - a.x * sa},
                     {xz - a.y * sa, yz + a.x * sa, zz + (1 - zz) * ca});
    }
    clearTranslationUnless(keepOthers);
}

void Mat4::scaling(double x, double y, double z, bool keepOthers)
{
    setUpperRows({x, 0, 0}, {0, y, 0}, {0, 0, z});
    clearTranslationUnless(keepOthers);
}

// Sets everything but the translation.
void Mat4::setUpperRows(const Vec3 &row0, const Vec3 &row1, const Vec3 &row2)
{
    set(row0.x, row0.y, row0.z, m[12], //
        row1.x, row1.y, row1.z, m[13], //
        row2.x, row2.y, row2.z, m[14], //
        0, 0, 0, 1);
}

} // namespace Drevon::Zalento
