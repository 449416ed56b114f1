#pragma once

#include "zalento/math/Mat4.h"
#include "zalento/math/Vec2.h"
#include "zalento/math/Vec3.h"

#include <QByteArray>
#include <QPointF>
#include <QTest>

#include <iterator>
#include <vector>

namespace Drevon::Zalento::Test {

/** How far a result may lie from what is expected, and why. */
struct Tolerance
{
    double limit;
    const char *unit;
};

/** A few roundings of numbers near 1: matrix products, unit vectors, cosines. */
constexpr Tolerance roundingTolerance{1e-12, ""};
/** Scene lengths of some metres through one projection and back: 1e-15 relative, times what the
    inverted camera matrix (depth range 0.1 m to 10 m) magnifies. */
constexpr Tolerance sceneTolerance{1e-9, "m"};
/** Screen positions up to some thousand pixels after a projection; far below what paints
    differently. */
constexpr Tolerance pixelTolerance{1e-8, "px"};
/** Qt places glyphs in 64ths of a pixel. */
constexpr Tolerance textTolerance{1.0 / 64, "px"};
/** Lengths that went through single precision (QVector3D, ray against plane): 2^-23 relative, at
    lengths of some metres. */
constexpr Tolerance singlePrecisionTolerance{2e-6, "m"};
/** Stored and shown millimetres are rounded results of double arithmetic. */
constexpr Tolerance millimetreTolerance{1e-6, "mm"};

/** Outcome of a comparison; the message names expected, got, difference and limit. */
struct Comparison
{
    bool equal = false;
    QByteArray message;
};

using Numbers = std::vector<double>;

inline Numbers numbersOf(double value)
{
    return {value};
}
inline Numbers numbersOf(const QPointF &p)
{
    return {p.x(), p.y()};
}
inline Numbers numbersOf(const Vec2 &v)
{
    return {v.x, v.y};
}
inline Numbers numbersOf(const Vec3 &v)
{
    return {v.x, v.y, v.z};
}
inline Numbers numbersOf(const Mat4 &m)
{
    return {std::begin(m.m), std::end(m.m)};
}

/** Number by number; without a tolerance bit by bit. */
Comparison compare(const Numbers &got, const Numbers &expected, const Tolerance *tolerance);

/** Equal within @p tolerance; NaN matches NaN and an infinity itself. */
template <class Got, class Expected>
Comparison compareNear(const Got &got, const Expected &expected, const Tolerance &tolerance)
{
    return compare(numbersOf(got), numbersOf(expected), &tolerance);
}

/** The same bits, so that -0 differs from 0; any NaN matches any NaN. (QCOMPARE takes doubles as
    equal that differ in the twelfth digit.) */
template <class Got, class Expected>
Comparison compareExact(const Got &got, const Expected &expected)
{
    return compare(numbersOf(got), numbersOf(expected), nullptr);
}

} // namespace Drevon::Zalento::Test

// Macros because a failure has to return from the test function and name its line.
#define COMPARE_NEAR(got, expected, tolerance)                                                     \
    do {                                                                                           \
        const auto comparison = Drevon::Zalento::Test::compareNear(got, expected, tolerance);      \
        QVERIFY2(comparison.equal, comparison.message.constData());                                \
    } while (false)
#define COMPARE_EXACT(got, expected)                                                               \
    do {                                                                                           \
        const auto comparison = Drevon::Zalento::Test::compareExact(got, expected);                \
        QVERIFY2(comparison.equal, comparison.message.constData());                                \
    } while (false)
