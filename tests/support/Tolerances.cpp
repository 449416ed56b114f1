#include "support/Tolerances.h"

#include <cmath>
#include <cstring>

namespace Drevon::Zalento::Test {

namespace {

bool isEqual(double got, double expected, const Tolerance *tolerance)
{
    if (std::isnan(got) && std::isnan(expected))
        return true;
    if (!tolerance)
        return std::memcmp(&got, &expected, sizeof got) == 0;
    return got == expected || std::abs(got - expected) <= tolerance->limit;
}

QByteArray digits(double value)
{
    return QByteArray::number(value, 'g', 17);
}

} // namespace

Comparison compare(const Numbers &got, const Numbers &expected, const Tolerance *tolerance)
{
    const QByteArray limit =
        tolerance ? QByteArray::number(tolerance->limit) + ' ' + tolerance->unit : "none";
    Comparison result{true, {}};
    for (std::size_t i = 0; i < got.size(); ++i) {
        if (!isEqual(got[i], expected.at(i), tolerance)) {
            result.equal = false;
            result.message += "number " + QByteArray::number(int(i)) + ": expected " +
                              digits(expected[i]) + ", got " + digits(got[i]) + ", difference " +
                              digits(got[i] - expected[i]) + ", limit " + limit + "; ";
        }
    }
    return result;
}

} // namespace Drevon::Zalento::Test
