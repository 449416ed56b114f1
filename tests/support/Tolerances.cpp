#include "support/Tolerances.h"

#include <cmath>
#include <cstring>
#include <initializer_list>

namespace Drevon::Zalento::Test {

namespace {

struct NamedValues
{
    const char *name;
    double got;
    double expected;
};

QByteArray digits(double value)
{
    return QByteArray::number(value, 'g', 17);
}

Comparison allNear(std::initializer_list<NamedValues> parts, const Tolerance &tolerance)
{
    Comparison result{true, {}};
    for (const NamedValues &part : parts) {
        const double difference = std::abs(part.got - part.expected);
        const bool same = part.got == part.expected ||
                          (std::isnan(part.got) && std::isnan(part.expected)) ||
                          difference <= tolerance.limit;
        if (same)
            continue;
        result.equal = false;
        result.message += QByteArray(part.name) + "expected " + digits(part.expected) + ", got " +
                          digits(part.got) + ", difference " + digits(difference) + ", limit " +
                          digits(tolerance.limit) + ' ' + tolerance.unit + "; ";
    }
    return result;
}

bool sameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

Comparison allExact(std::initializer_list<NamedValues> parts)
{
    Comparison result{true, {}};
    for (const NamedValues &part : parts) {
        if (sameBits(part.got, part.expected))
            continue;
        result.equal = false;
        result.message += QByteArray(part.name) + "expected exactly " + digits(part.expected) +
                          ", got " + digits(part.got) + ", difference " +
                          digits(part.got - part.expected) + ", limit 0; ";
    }
    return result;
}

} // namespace

Comparison compareNear(double got, double expected, const Tolerance &tolerance)
{
    return allNear({{"", got, expected}}, tolerance);
}

Comparison compareNear(const QPointF &got, const QPointF &expected, const Tolerance &tolerance)
{
    return allNear({{"x: ", got.x(), expected.x()}, {"y: ", got.y(), expected.y()}}, tolerance);
}

Comparison compareNear(const Vec2 &got, const Vec2 &expected, const Tolerance &tolerance)
{
    return allNear({{"x: ", got.x, expected.x}, {"y: ", got.y, expected.y}}, tolerance);
}

Comparison compareNear(const Vec3 &got, const Vec3 &expected, const Tolerance &tolerance)
{
    return allNear(
        {{"x: ", got.x, expected.x}, {"y: ", got.y, expected.y}, {"z: ", got.z, expected.z}},
        tolerance);
}

Comparison compareExact(double got, double expected)
{
    return allExact({{"", got, expected}});
}

Comparison compareExact(const Vec2 &got, const Vec2 &expected)
{
    return allExact({{"x: ", got.x, expected.x}, {"y: ", got.y, expected.y}});
}

Comparison compareExact(const Vec3 &got, const Vec3 &expected)
{
    return allExact(
        {{"x: ", got.x, expected.x}, {"y: ", got.y, expected.y}, {"z: ", got.z, expected.z}});
}

} // namespace Drevon::Zalento::Test
