#pragma once

#include "zalento/math/Mat4.h"
#include "zalento/math/Vec2.h"
#include "zalento/math/Vec3.h"

#include <QByteArray>
#include <QPointF>
#include <QTest>

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
/** Angles in degrees computed from scene points. */
constexpr Tolerance angleTolerance{1e-7, "deg"};
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

/** Equal within @p tolerance; NaN matches NaN and an infinity itself. */
Comparison compareNear(double got, double expected, const Tolerance &tolerance);
Comparison compareNear(const QPointF &got, const QPointF &expected, const Tolerance &tolerance);
Comparison compareNear(const Vec2 &got, const Vec2 &expected, const Tolerance &tolerance);
Comparison compareNear(const Vec3 &got, const Vec3 &expected, const Tolerance &tolerance);
Comparison compareNear(const Mat4 &got, const Mat4 &expected, const Tolerance &tolerance);

/** The same bits, so that -0 differs from 0; any NaN matches any NaN. (QCOMPARE takes doubles as
    equal that differ in the twelfth digit.) */
Comparison compareExact(double got, double expected);
Comparison compareExact(const Vec2 &got, const Vec2 &expected);
Comparison compareExact(const Vec3 &got, const Vec3 &expected);
Comparison compareExact(const Mat4 &got, const Mat4 &expected);

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
