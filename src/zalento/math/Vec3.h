#pragma once

#include "zalento/Export.h"

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

namespace Drevon::Zalento {

/**
 * A point or direction in the pipe scene, in metres.
 *
 * Every arithmetic family exists as a static function that returns a vector, one that writes into
 * @c out (which may be one of the operands) and, where it reads well, an operator. Nothing but
 * normalize() and operator[] reports errors: divisions by zero give infinities and NaN.
 */
struct Vec3
{
    /** Components along the scene's axes. */
    ///@{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    ///@}

    static const Vec3 Zero;  ///< (0, 0, 0)
    static const Vec3 XAxis; ///< (1, 0, 0)
    static const Vec3 YAxis; ///< (0, 1, 0)
    static const Vec3 ZAxis; ///< (0, 0, 1)

    constexpr Vec3() = default;
    /** From its components. */
    constexpr Vec3(double xValue, double yValue, double zValue)
        : x(xValue)
        , y(yValue)
        , z(zValue)
    {}

    /** a + b; a number is added to every component. */
    ///@{
    static Vec3 add(const Vec3 &a, const Vec3 &b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
    static Vec3 add(const Vec3 &a, double s) { return {a.x + s, a.y + s, a.z + s}; }
    static void add(const Vec3 &a, const Vec3 &b, Vec3 &out) { out = add(a, b); }
    static void add(const Vec3 &a, double s, Vec3 &out) { out = add(a, s); }
    ///@}

    /** a - b; a number stands for a vector with three such components. */
    ///@{
    static Vec3 subtract(const Vec3 &a, const Vec3 &b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
    static Vec3 subtract(const Vec3 &a, double s) { return {a.x - s, a.y - s, a.z - s}; }
    static Vec3 subtract(double s, const Vec3 &a) { return {s - a.x, s - a.y, s - a.z}; }
    static void subtract(const Vec3 &a, const Vec3 &b, Vec3 &out) { out = subtract(a, b); }
    static void subtract(const Vec3 &a, double s, Vec3 &out) { out = subtract(a, s); }
    static void subtract(double s, const Vec3 &a, Vec3 &out) { out = subtract(s, a); }
    ///@}

    /** a s */
    ///@{
    static Vec3 multiply(const Vec3 &a, double s) { return {a.x * s, a.y * s, a.z * s}; }
    static void multiply(const Vec3 &a, double s, Vec3 &out) { out = multiply(a, s); }
    ///@}

    /**
     * a / b component by component; a number in front stands for three such components. Division by
     * a number multiplies by its reciprocal, which is computed once.
     */
    ///@{
    static Vec3 divide(const Vec3 &a, const Vec3 &b) { return {a.x / b.x, a.y / b.y, a.z / b.z}; }
    static Vec3 divide(const Vec3 &a, double s) { return multiply(a, 1 / s); }
    static Vec3 divide(double s, const Vec3 &a) { return {s / a.x, s / a.y, s / a.z}; }
    static void divide(const Vec3 &a, const Vec3 &b, Vec3 &out) { out = divide(a, b); }
    static void divide(const Vec3 &a, double s, Vec3 &out) { out = divide(a, s); }
    static void divide(double s, const Vec3 &a, Vec3 &out) { out = divide(s, a); }
    ///@}

    /** -a */
    static Vec3 negate(const Vec3 &a) { return {-a.x, -a.y, -a.z}; }

    /** a × b, right-handed; without @p a of this vector. */
    ///@{
    static Vec3 cross(const Vec3 &a, const Vec3 &b)
    {
        return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
    }
    static void cross(const Vec3 &a, const Vec3 &b, Vec3 &out) { out = cross(a, b); }
    Vec3 cross(const Vec3 &b) const { return cross(*this, b); }
    ///@}

    /** a · b; without @p a of this vector. */
    ///@{
    static double dot(const Vec3 &a, const Vec3 &b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
    double dot(const Vec3 &b) const { return dot(*this, b); }
    ///@}

    /** The function of the same meaning: add(), subtract(), negate(), multiply(), divide(). */
    ///@{
    Vec3 operator+(const Vec3 &b) const { return add(*this, b); }
    Vec3 operator+(double s) const { return add(*this, s); }
    Vec3 operator-(const Vec3 &b) const { return subtract(*this, b); }
    Vec3 operator-(double s) const { return subtract(*this, s); }
    Vec3 operator-() const { return negate(*this); }
    Vec3 operator*(double s) const { return multiply(*this, s); }
    Vec3 operator/(double s) const { return divide(*this, s); }
    ///@}

    /** In m². */
    double lengthSquared() const { return x * x + y * y + z * z; }
    /** In m. */
    double length() const { return std::sqrt(lengthSquared()); }

    /**
     * Scales to length 1. A vector so short that its squared length underflows is brought to a
     * largest component of 1 first; one so long that it overflows becomes zero.
     * @throws std::range_error when all three components are 0; the vector is unchanged then.
     */
    void normalize()
    {
        if (lengthSquared() < std::numeric_limits<double>::min()) {
            scaleLargestComponentToOne();
        }
        *this = multiply(*this, 1 / length());
    }

    /** Takes every component of @p v that is smaller. */
    void setMin(const Vec3 &v)
    {
        x = v.x < x ? v.x : x;
        y = v.y < y ? v.y : y;
        z = v.z < z ? v.z : z;
    }

    /** Takes every component of @p v that is larger. */
    void setMax(const Vec3 &v)
    {
        x = v.x > x ? v.x : x;
        y = v.y > y ? v.y : y;
        z = v.z > z ? v.z : z;
    }

    /** True when no component differs by more than @p eps; false when a difference is NaN. */
    static bool approxEqual(const Vec3 &a, const Vec3 &b, double eps)
    {
        return std::abs(a.x - b.x) <= eps && std::abs(a.y - b.y) <= eps &&
               std::abs(a.z - b.z) <= eps;
    }

    /** Equality of all components, exactly. */
    ///@{
    bool operator==(const Vec3 &b) const { return x == b.x && y == b.y && z == b.z; }
    bool operator!=(const Vec3 &b) const { return !(*this == b); }
    ///@}

    /** Holds for every component: no order, two vectors can be neither < nor >=. */
    ///@{
    bool operator<(const Vec3 &b) const { return x < b.x && y < b.y && z < b.z; }
    bool operator>(const Vec3 &b) const { return x > b.x && y > b.y && z > b.z; }
    bool operator<=(const Vec3 &b) const { return x <= b.x && y <= b.y && z <= b.z; }
    bool operator>=(const Vec3 &b) const { return x >= b.x && y >= b.y && z >= b.z; }
    ///@}

    /**
     * Component @p i: 0 is x, 1 is y, 2 is z.
     * @throws std::out_of_range for any other index.
     */
    ///@{
    double &operator[](unsigned i)
    {
        switch (i) {
        case 0:
            return x;
        case 1:
            return y;
        case 2:
            return z;
        default:
            throw std::out_of_range("index too large");
        }
    }
    double operator[](unsigned i) const { return Vec3(*this)[i]; }
    ///@}

    /** Angles in radians; @p polar is measured from +z, @p azimuth from +x towards +y. */
    static Vec3 fromSphericalCoords(double azimuth, double polar, double radius)
    {
        return {radius * std::sin(polar) * std::cos(azimuth),
                radius * std::sin(polar) * std::sin(azimuth), radius * std::cos(polar)};
    }

    /** Inverse of fromSphericalCoords(); the zero vector has no polar angle (NaN). */
    void toSphericalCoords(double &azimuth, double &polar, double &radius) const
    {
        radius = length();
        polar = std::acos(z / radius);
        azimuth = std::atan2(y, x);
    }

    /** "(x, y, z)" with six decimals and '.', cut at 99 characters, in every locale. */
    ZALENTO_EXPORT std::string toString() const;

    /**
     * "(x, y, z)", each component written with the printf @p format of one double and cut at 49
     * characters; '.' is the decimal mark in every locale.
     */
    ZALENTO_EXPORT std::string toString(const std::string &format) const;

private:
    void scaleLargestComponentToOne()
    {
        const double largest = std::fmax(std::fmax(std::abs(x), std::abs(y)), std::abs(z));
        if (largest == 0.0) {
            throw std::range_error("Trying to normalize a vector with length of zero.");
        }
        // Not by the reciprocal: that of a denormal number overflows.
        *this = {x / largest, y / largest, z / largest};
    }
};

inline constexpr Vec3 Vec3::Zero{0.0, 0.0, 0.0};
inline constexpr Vec3 Vec3::XAxis{1.0, 0.0, 0.0};
inline constexpr Vec3 Vec3::YAxis{0.0, 1.0, 0.0};
inline constexpr Vec3 Vec3::ZAxis{0.0, 0.0, 1.0};

/** True when no component is infinite or NaN. */
inline bool isFinite(const Vec3 &v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

/** Vec3::multiply(), or Vec3::divide() of a number by a vector. */
///@{
inline Vec3 operator*(double s, const Vec3 &a)
{
    return Vec3::multiply(a, s);
}

inline Vec3 operator/(double s, const Vec3 &a)
{
    return Vec3::divide(s, a);
}
///@}

} // namespace Drevon::Zalento
