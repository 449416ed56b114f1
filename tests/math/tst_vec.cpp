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
const double smallest = std::numeric_limits<double>::denorm_min();

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
    void arithmetic();
    void writesIntoAnOperand();
    void dividesByMultiplyingWithTheReciprocal();
    void normalize_data();
    void normalize();
    void normalize2D_data();
    void normalize2D();
    void comparisons();
    void indexing();
    void sphericalCoordinates();
    void toString_data();
    void toString();
    void scalesWithoutClamping();
    void truncatesEveryDouble_data();
    void truncatesEveryDouble();
};

void TestVec::arithmetic()
{
    const Vec3 a(3, -5, 0.1);
    const Vec3 b(7, 11, 0.2);
    COMPARE_EXACT(a + b, Vec3(10, 6, 0.1 + 0.2));
    COMPARE_EXACT(a + 0.2, Vec3(3.2, -5 + 0.2, 0.1 + 0.2));
    COMPARE_EXACT(a - b, Vec3(-4, -16, 0.1 - 0.2));
    COMPARE_EXACT(a - 0.2, Vec3(2.8, -5.2, 0.1 - 0.2));
    COMPARE_EXACT(Vec3::subtract(0.2, a), Vec3(0.2 - 3, 5.2, 0.2 - 0.1));
    COMPARE_EXACT(a * 0.3, Vec3(3 * 0.3, -5 * 0.3, 0.1 * 0.3));
    COMPARE_EXACT(0.3 * a, a * 0.3);
    COMPARE_EXACT(-a, Vec3(-3, 5, -0.1));
    COMPARE_EXACT(a.cross(b), Vec3(-5 * 0.2 - 0.1 * 11, 0.1 * 7 - 3 * 0.2, 33 + 35));
    COMPARE_EXACT(a.dot(b), 3.0 * 7 + -5.0 * 11 + 0.1 * 0.2);
    COMPARE_EXACT(Vec3(1, -1, 0) / 0, Vec3(infinity, -infinity, notANumber));
    Vec3 low(1, 5, 3);
    low.setMin({2, -1, notANumber});
    COMPARE_EXACT(low, Vec3(1, -1, 3));
    Vec3 high(1, 5, 3);
    high.setMax({2, -1, notANumber});
    COMPARE_EXACT(high, Vec3(2, 5, 3));
}

void TestVec::writesIntoAnOperand()
{
    const Vec3 a(3, -5, 0.1);
    const Vec3 b(7, 11, 0.2);
    COMPARE_EXACT(inPlace(a, [&](Vec3 &r) { Vec3::add(r, b, r); }), a + b);
    COMPARE_EXACT(inPlace(a, [](Vec3 &r) { Vec3::add(r, 0.2, r); }), a + 0.2);
    COMPARE_EXACT(inPlace(b, [&](Vec3 &r) { Vec3::subtract(a, r, r); }), a - b);
    COMPARE_EXACT(inPlace(a, [](Vec3 &r) { Vec3::subtract(r, 0.2, r); }), a - 0.2);
    COMPARE_EXACT(inPlace(a, [](Vec3 &r) { Vec3::subtract(0.2, r, r); }), Vec3::subtract(0.2, a));
    COMPARE_EXACT(inPlace(a, [](Vec3 &r) { Vec3::multiply(r, 0.3, r); }), a * 0.3);
    COMPARE_EXACT(inPlace(b, [&](Vec3 &r) { Vec3::divide(a, r, r); }), Vec3::divide(a, b));
    COMPARE_EXACT(inPlace(a, [](Vec3 &r) { Vec3::divide(r, 7, r); }), a / 7);
    COMPARE_EXACT(inPlace(a, [](Vec3 &r) { Vec3::divide(7, r, r); }), 7 / a);
    COMPARE_EXACT(inPlace(a, [&](Vec3 &r) { Vec3::cross(r, b, r); }), a.cross(b));
    COMPARE_EXACT(inPlace(b, [&](Vec3 &r) { Vec3::cross(a, r, r); }), a.cross(b));
}

void TestVec::dividesByMultiplyingWithTheReciprocal()
{
    const double reciprocal = 1 / 49.0;
    QVERIFY(49 * reciprocal != 1.0); // so that the two ways differ
    COMPARE_EXACT(Vec3(49, 98, -49) / 49, Vec3(49 * reciprocal, 98 * reciprocal, -49 * reciprocal));
    COMPARE_EXACT(Vec3::divide(Vec3(49, 98, 147), Vec3(49, 49, 49)), Vec3(1, 2, 3));
    COMPARE_EXACT(49 / Vec3(49, 49, 49), Vec3(1, 1, 1));
}

void TestVec::normalize_data()
{
    QTest::addColumn<Vec3>("vector");
    QTest::addColumn<Vec3>("expected");
    QTest::newRow("by the reciprocal of the length")
        << Vec3(0, 0, 49) << Vec3(0, 0, 49 * (1 / 49.0));
    QTest::newRow("squared length underflows") << Vec3(1e-300, 0, 0) << Vec3(1, 0, 0);
    QTest::newRow("smallest double") << Vec3(0, -smallest, 0) << Vec3(0, -1, 0);
    QTest::newRow("diagonal that underflows")
        << Vec3(3e-200, 0, -4e-200) << Vec3(3e-200 / 4e-200 * (1 / 1.25), 0, -1 / 1.25);
    QTest::newRow("squared length overflows") << Vec3(1e200, 0, 0) << Vec3(0, 0, 0);
    QTest::newRow("NaN") << Vec3(notANumber, 0, 1) << Vec3(notANumber, notANumber, notANumber);
    QTest::newRow("zero throws") << Vec3(-0.0, 0, -0.0) << Vec3(-0.0, 0, -0.0);
}

void TestVec::normalize()
{
    QFETCH(Vec3, vector);
    QFETCH(Vec3, expected);
    const bool isZero = vector == Vec3::Zero;
    QCOMPARE(thrown<std::range_error>([&v = vector] { v.normalize(); }),
             isZero ? QByteArray("Trying to normalize a vector with length of zero.") : "");
    COMPARE_EXACT(vector, expected);
}

void TestVec::normalize2D_data()
{
    QTest::addColumn<Vec2>("vector");
    QTest::addColumn<bool>("isZero");
    QTest::addColumn<Vec2>("expected");
    QTest::newRow("by the reciprocal") << Vec2(49, 0) << false << Vec2(49 * (1 / 49.0), 0);
    QTest::newRow("just long enough") << Vec2(1.1e-12, 0) << false << Vec2(1, 0);
    QTest::newRow("just too short") << Vec2(0, 0.9e-12) << true << Vec2(0, 0.9e-12);
    QTest::newRow("zero") << Vec2() << true << Vec2();
    QTest::newRow("NaN") << Vec2(notANumber, 1) << false << Vec2(notANumber, notANumber);
    QTest::newRow("infinite") << Vec2(infinity, 1) << false << Vec2(notANumber, 0);
}

void TestVec::normalize2D()
{
    QFETCH(Vec2, vector);
    QFETCH(bool, isZero);
    QFETCH(Vec2, expected);
    QCOMPARE(vector.isZeroLengthVector(), isZero);
    QCOMPARE(thrown<std::range_error>([&v = vector] { v.normalize(); }),
             isZero ? QByteArray("Trying to normalize a 2D vector with length of zero.") : "");
    COMPARE_EXACT(vector, expected);
}

void TestVec::comparisons()
{
    const Vec3 a(1, 2, 3);
    const Vec3 mixed(1, 5, 3);
    const Vec3 b(2, 3, 4);
    QVERIFY(a < b && b > a && a <= b && b >= a && a <= a && a >= a && !(a < a) && !(a > a));
    QVERIFY(!(mixed < b) && !(mixed >= b) && !(mixed > b) && !(mixed <= b));
    QVERIFY(a != b && Vec3(0, -0.0, 0) == Vec3::Zero);
    QVERIFY(Vec3(notANumber, 0, 0) != Vec3(notANumber, 0, 0));
    QVERIFY(Vec3::approxEqual({1, 2, 3}, {1.25, 1.75, 3}, 0.25));
    for (unsigned i = 0; i < 3; ++i) {
        Vec3 other(a);
        other[i] += 0.5;
        QVERIFY(a != other && !(a < other) && a <= other && !Vec3::approxEqual(a, other, 0.25));
        other[i] = notANumber;
        QVERIFY(!Vec3::approxEqual(other, other, infinity));
    }
}

void TestVec::indexing()
{
    Vec3 v(1, 2, 3);
    v[1] = 7;
    const Vec3 &constant = v;
    COMPARE_EXACT(Vec3(constant[0], constant[1], constant[2]), Vec3(1, 7, 3));
    const QByteArray message("index too large");
    QCOMPARE(thrown<std::out_of_range>([&] { v[3] = 0; }), message);
    QCOMPARE(thrown<std::out_of_range>([&] { v[0] = constant[UINT_MAX]; }), message);
}

void TestVec::sphericalCoordinates()
{
    const double halfPi = std::acos(0.0);
    COMPARE_NEAR(Vec3::fromSphericalCoords(halfPi, halfPi, 2), Vec3(0, 2, 0), roundingTolerance);
    COMPARE_NEAR(Vec3::fromSphericalCoords(1, 0, 2), Vec3(0, 0, 2), roundingTolerance);
    Vec3 back;
    Vec3::fromSphericalCoords(-2.5, 0.75, 3).toSphericalCoords(back.x, back.y, back.z);
    COMPARE_NEAR(back, Vec3(-2.5, 0.75, 3), roundingTolerance);
    Vec3::Zero.toSphericalCoords(back.x, back.y, back.z);
    COMPARE_EXACT(back, Vec3(0, notANumber, 0));
}

void TestVec::toString_data()
{
    QTest::addColumn<Vec3>("vector");
    QTest::addColumn<QString>("format"); // empty: the operation without one
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const Vec3 &v, const char *format, const char *text) {
        QTest::newRow(name) << v << QString(format) << QString(text);
    };
    row("six decimals", {1, -2.5, 3}, "", "(1.000000, -2.500000, 3.000000)");
    // 2^100 has 31 digits.
    const double large = std::ldexp(1.0, 100);
    row("cut at 99 characters", {large, large, large}, "",
        "(1267650600228229401496703205376.000000, 1267650600228229401496703205376.000000, "
        "126765060022822940");
    row("own format", {1, 2, 3.26}, "%.1f", "(1.0, 2.0, 3.3)");
    row("format with text", {1, 2, 3}, "%g mm", "(1 mm, 2 mm, 3 mm)");
    row("parts cut at 49 characters", {1, 2.5, 3}, "%060.1f",
        "(0000000000000000000000000000000000000000000000000, "
        "0000000000000000000000000000000000000000000000000, "
        "0000000000000000000000000000000000000000000000000)");
    row("no number", {notANumber, infinity, -infinity}, "%f", "(nan, inf, -inf)");
}

void TestVec::toString()
{
    QFETCH(Vec3, vector);
    QFETCH(QString, format);
    QFETCH(QString, expected);
    const auto text = [&v = vector, &f = format] {
        return QString::fromStdString(f.isEmpty() ? v.toString() : v.toString(f.toStdString()));
    };
    QCOMPARE(text(), expected);
    const CommaLocale comma;
    QCOMPARE(text(), expected);
    QCOMPARE(std::to_string(0.5), std::string("0,500000")); // the process keeps its locale
}

void TestVec::scalesWithoutClamping()
{
    COMPARE_EXACT(scaleValue(0, -85, 85, -1, 1), 0.0);
    COMPARE_EXACT(scaleValue(170, -85, 85, -1, 1), 2.0);
    COMPARE_EXACT(scaleValue(0.7, 0.1, 0.4, 3, 0.2), (0.2 - 3) * (0.7 - 0.1) / (0.4 - 0.1) + 3);
    COMPARE_EXACT(scaleValue(1, 2, 2, 0, 1), -infinity);
}

void TestVec::truncatesEveryDouble_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("towards zero from above") << 2.9 << 2;
    QTest::newRow("towards zero from below") << -2.9 << -2;
    QTest::newRow("largest int and a fraction") << INT_MAX + 0.5 << INT_MAX;
    QTest::newRow("beyond the largest") << 2147483648.0 << INT_MAX;
    QTest::newRow("smallest int and a fraction") << INT_MIN - 0.5 << INT_MIN;
    QTest::newRow("infinite") << infinity << INT_MAX;
    QTest::newRow("negative infinite") << -infinity << INT_MIN;
    QTest::newRow("NaN") << notANumber << 0;
}

void TestVec::truncatesEveryDouble()
{
    QFETCH(double, value);
    QTEST(truncateToInt(value), "expected");
}

QTEST_APPLESS_MAIN(TestVec)
#include "tst_vec.moc"
