#include "support/Tolerances.h"

#include <cmath>
#include <cstring>
#include <vector>

namespace Drevon::Zalento::Test {

namespace {

struct NamedValues
{
    QByteArray name;
    double got;
    double expected;
};

using Parts = std::vector<NamedValues>;

Parts parts(double got, double expected)
{
    return {{"", got, expected}};
}

Parts parts(const QPointF &got, const QPointF &expected)
{
    return {{"x: ", got.x(), expected.x()}, {"y: ", got.y(), expected.y()}};
}

Parts parts(const Vec2 &got, const Vec2 &expected)
{
    return {{"x: ", got.x, expected.x}, {"y: ", got.y, expected.y}};
}

Parts parts(const Vec3 &got, const Vec3 &expected)
{
    return {{"x: ", got.x, expected.x}, {"y: ", got.y, expected.y}, {"z: ", got.z, expected.z}};
}

Parts parts(const Mat4 &got, const Mat4 &expected)
{
    Parts result;
    for (int i = 0; i < 16; ++i) {
        result.push_back({"m[" + QByteArray::number(i) + "]: ", got.m[i], expected.m[i]});
    }
    return result;
}

bool isNear(const NamedValues &part, double limit)
{
    return part.got == part.expected || (std::isnan(part.got) && std::isnan(part.expected)) ||
           std::abs(part.got - part.expected) <= limit;
}

bool isExact(const NamedValues &part)
{
    return std::memcmp(&part.got, &part.expected, sizeof part.got) == 0 ||
           (std::isnan(part.got) && std::isnan(part.expected));
}

// One sentence for each part that is not equal.
template <class IsEqual>
Comparison compare(const Parts &parts, const QByteArray &limit, const IsEqual &isEqual)
{
    const auto digits = [](double value) { return QByteArray::number(value, 'g', 17); };
    Comparison result{true, {}};
    for (const NamedValues &part : parts) {
        if (!isEqual(part)) {
            result.equal = false;
            result.message += part.name + "expected " + digits(part.expected) + ", got " +
                              digits(part.got) + ", difference " +
                              digits(part.got - part.expected) + ", limit " + limit + "; ";
        }
    }
    return result;
}

Comparison allNear(const Parts &parts, const Tolerance &tolerance)
{
    return compare(parts, QByteArray::number(tolerance.limit) + ' ' + tolerance.unit,
                   [&](const NamedValues &part) { return isNear(part, tolerance.limit); });
}

Comparison allExact(const Parts &parts)
{
    return compare(parts, "none", isExact);
}

} // namespace

Comparison compareNear(double got, double expected, const Tolerance &tolerance)
{
    return allNear(parts(got, expected), tolerance);
}

Comparison compareNear(const QPointF &got, const QPointF &expected, const Tolerance &tolerance)
{
    return allNear(parts(got, expected), tolerance);
}

Comparison compareNear(const Vec2 &got, const Vec2 &expected, const Tolerance &tolerance)
{
    return allNear(parts(got, expected), tolerance);
}

Comparison compareNear(const Vec3 &got, const Vec3 &expected, const Tolerance &tolerance)
{
    return allNear(parts(got, expected), tolerance);
}

Comparison compareNear(const Mat4 &got, const Mat4 &expected, const Tolerance &tolerance)
{
    return allNear(parts(got, expected), tolerance);
}

Comparison compareExact(double got, double expected)
{
    return allExact(parts(got, expected));
}

Comparison compareExact(const Vec2 &got, const Vec2 &expected)
{
    return allExact(parts(got, expected));
}

Comparison compareExact(const Vec3 &got, const Vec3 &expected)
{
    return allExact(parts(got, expected));
}

Comparison compareExact(const Mat4 &got, const Mat4 &expected)
{
    return allExact(parts(got, expected));
}

} // namespace Drevon::Zalento::Test
