#include "support/CommaLocale.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/math/scaleValue.h"
#include "zalento/math/truncateToInt.h"

#include <climits>
#include <cmath>
#include <limits>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

const double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

// The message of the exception that f throws, "" without one.
template <class Exception, class Function>
QByteArray thrown(const Function &f)
{
    try {
        f();
    } catch (const Exception &e) {
        return e.what();
    }
    return "";
}

// What f leaves in a vector that is its operand and its result.
template <class Function>
Vec3 inPlace(Vec3 operand, const Function &f)
{
    f(operand);
    return operand;
}

} // namespace

Q_DECLARE_METATYPE(Drevon::Zalento::Vec2)
Q_DECLARE_METATYPE(Drevon::Zalento::Vec3)

class TestVec : public TestCase
{
    Q_OBJECT

private slots:
    void arithmetic()
    {
        const Vec3 a(3, -5, 0.1);
        const Vec3 b(7, 11, 0.2);
        const Vec3 sum(10, 6, 0.1 + 0.2);
        const Vec3 cross(-5 * 0.2 - 0.1 * 11, 0.1 * 7 - 3 * 0.2, 33 + 35);
        const Vec3 quotient(3 / 7.0, -5 / 11.0, 0.1 / 0.2);
        const double part = 1 / 49.0; // dividing by a number multiplies with its reciprocal
        QVERIFY(49 * part != 1.0);
        const auto leastOf = [](const Vec3 &v) {
            return inPlace({1, 5, 3}, [&v](Vec3 &r) { r.setMin(v); });
        };
        const auto greatestOf = [](const Vec3 &v) {
            return inPlace({1, 5, 3}, [&v](Vec3 &r) { r.setMax(v); });
        };
        const struct
        {
            const char *name;
            Vec3 got;
            Vec3 expected;
        } cases[] = {
            {"a + b", a + b, sum},
            {"add", inPlace(a, [&](Vec3 &r) { Vec3::add(r, b, r); }), sum},
            {"a + s", a + 0.2, {3.2, -5 + 0.2, 0.1 + 0.2}},
            {"add s", inPlace(a, [](Vec3 &r) { Vec3::add(r, 0.2, r); }), a + 0.2},
            {"a - b", a - b, {-4, -16, 0.1 - 0.2}},
            {"subtract", inPlace(b, [&](Vec3 &r) { Vec3::subtract(a, r, r); }), a - b},
            {"a - s", a - 0.2, {2.8, -5.2, 0.1 - 0.2}},
            {"subtract s", inPlace(a, [](Vec3 &r) { Vec3::subtract(r, 0.2, r); }), a - 0.2},
            {"s - a", inPlace(a, [](Vec3 &r) { Vec3::subtract(0.2, r, r); }), -(a - 0.2)},
            {"a * s", a * 0.3, {3 * 0.3, -5 * 0.3, 0.1 * 0.3}},
            {"s * a", 0.3 * a, a * 0.3},
            {"multiply", inPlace(a, [](Vec3 &r) { Vec3::multiply(r, 0.3, r); }), a * 0.3},
            {"a / b", inPlace(b, [&](Vec3 &r) { Vec3::divide(a, r, r); }), quotient},
            {"a / s", Vec3(49, 98, -49) / 49, {49 * part, 98 * part, -49 * part}},
            {"divide", inPlace(a, [](Vec3 &r) { Vec3::divide(r, 7, r); }), a / 7},
            {"s / a", 49 / Vec3(49, 7, -98), {1, 7, -0.5}},
            {"divide s", inPlace(a, [](Vec3 &r) { Vec3::divide(7, r, r); }), 7 / a},
            {"a / 0", Vec3(1, -1, 0) / 0, {infinity, -infinity, notANumber}},
            {"-a", -a, {-3, 5, -0.1}},
            {"a x b", a.cross(b), cross},
            {"cross", inPlace(a, [&](Vec3 &r) { Vec3::cross(r, b, r); }), cross},
            {"cross, second", inPlace(b, [&](Vec3 &r) { Vec3::cross(a, r, r); }), cross},
            {"min", leastOf({2, -1, notANumber}), {1, -1, 3}},
            {"min of NaN and z", leastOf({notANumber, 6, 2}), {1, 5, 2}},
            {"max", greatestOf({2, -1, notANumber}), {2, 5, 3}},
        };
        for (const auto &c : cases) {
            const Comparison result = compareExact(c.got, c.expected);
            QVERIFY2(result.equal, c.name + (": " + result.message));
        }
        COMPARE_EXACT(Vec3(0.1, 0.2, 0.3).dot({1, 1, 1}), 0.1 + 0.2 + 0.3);
        COMPARE_EXACT(Vec3(0.3, 0.4, 0.7).lengthSquared(), 0.3 * 0.3 + 0.4 * 0.4 + 0.7 * 0.7);
    }

    void normalize_data()
    {
        QTest::addColumn<Vec3>("vector");
        QTest::addColumn<Vec3>("expected");
        const double smallest = std::numeric_limits<double>::denorm_min();
        QTest::newRow("by the reciprocal") << Vec3(0, 0, 49) << Vec3(0, 0, 49 * (1 / 49.0));
        QTest::newRow("squared length underflows") << Vec3(1e-300, 0, 0) << Vec3(1, 0, 0);
        QTest::newRow("smallest double") << Vec3(0, -smallest, 0) << Vec3(0, -1, 0);
        QTest::newRow("diagonal that underflows")
            << Vec3(3e-200, 0, -4e-200) << Vec3(3e-200 / 4e-200 * (1 / 1.25), 0, -1 / 1.25);
        QTest::newRow("squared length is subnormal")
            << Vec3(3e-160, 0, -4e-160) << Vec3(3e-160 / 4e-160 * (1 / 1.25), 0, -1 / 1.25);
        QTest::newRow("squared length overflows") << Vec3(1e200, 0, 0) << Vec3(0, 0, 0);
        QTest::newRow("NaN") << Vec3(notANumber, 0, 1) << Vec3(notANumber, notANumber, notANumber);
        QTest::newRow("zero throws") << Vec3(-0.0, 0, -0.0) << Vec3(-0.0, 0, -0.0);
    }

    void normalize()
    {
        QFETCH(Vec3, vector);
        QFETCH(Vec3, expected);
        const bool isZero = vector == Vec3::Zero;
        QCOMPARE(thrown<std::range_error>([&v = vector] { v.normalize(); }),
                 isZero ? QByteArray("Trying to normalize a vector with length of zero.") : "");
        COMPARE_EXACT(vector, expected);
    }

    void truncatesEveryDouble()
    {
        QCOMPARE(truncateToInt(2.9), 2);
        QCOMPARE(truncateToInt(-2.9), -2);
        QCOMPARE(truncateToInt(INT_MAX + 0.5), INT_MAX);
        QCOMPARE(truncateToInt(2147483648.0), INT_MAX);
        QCOMPARE(truncateToInt(INT_MIN - 0.5), INT_MIN);
        QCOMPARE(truncateToInt(infinity), INT_MAX);
        QCOMPARE(truncateToInt(-infinity), INT_MIN);
        QCOMPARE(truncateToInt(notANumber), 0);
        QCOMPARE(roundTo<int>(-2.5), -3);
        QCOMPARE(roundTo<int>(0.49999999999999994), 0);
    }
};

QTEST_APPLESS_MAIN(TestVec)
#include "tst_vec.moc"
