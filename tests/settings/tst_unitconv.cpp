#include "support/CommaLocale.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/settings/UnitConv.h"

#include <climits>
#include <limits>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

const double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

constexpr auto metric = MeasureUnit::Metric;
constexpr auto imperial = MeasureUnit::Imperial;

enum Size { BySize, Large, Small, LargeAndSmall };

} // namespace

Q_DECLARE_METATYPE(Drevon::Zalento::MeasureUnit)

class TestUnitConv : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup();
    void convertsToInt_data();
    void convertsToInt();
    void lengthText_data();
    void lengthText();
    void areaText_data();
    void areaText();
    void clockToAngle_data();
    void clockToAngle();
    void angleToClock_data();
    void angleToClock();
};

void TestUnitConv::cleanup()
{
    UnitConv::decimalSeparator = '.';
    TestCase::cleanup();
}

void TestUnitConv::convertsToInt_data()
{
    QTest::addColumn<int>("got");
    QTest::addColumn<int>("expected");
    QTest::newRow("254 mm") << UnitConv::mmToInch100(254) << 1000;
    QTest::newRow("-1 mm") << UnitConv::mmToInch100(-1) << -3;
    QTest::newRow("more hundredths than an int holds") << UnitConv::mmToInch100(INT_MAX) << INT_MAX;
    QTest::newRow("fewer than an int holds") << UnitConv::mmToInch100(INT_MIN) << INT_MIN;
    QTest::newRow("a hundredth of an inch") << UnitConv::inch100Tomm(1) << 0;
    QTest::newRow("-10 inches") << UnitConv::inch100Tomm(-1000) << -254;
    QTest::newRow("a foot") << UnitConv::ftTomm(1.0) << 304;
    QTest::newRow("-a foot") << UnitConv::ftTomm(-1.0) << -304;
    QTest::newRow("1e300 ft") << UnitConv::ftTomm(1e300) << INT_MAX;
    QTest::newRow("-infinite ft") << UnitConv::ftTomm(-infinity) << INT_MIN;
    QTest::newRow("NaN ft") << UnitConv::ftTomm(notANumber) << 0;
}

void TestUnitConv::convertsToInt()
{
    QFETCH(int, got);
    QTEST(got, "expected");
}

void TestUnitConv::lengthText_data()
{
    QTest::addColumn<double>("mm");
    QTest::addColumn<MeasureUnit>("unit");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("expected");
    const auto row = [](double mm, MeasureUnit unit, Size size, const char *expected) {
        const char *const sizes[] = {"by size", "large", "small", "large and small"};
        QTest::addRow("%.17g mm, %s, %s", mm, unit == metric ? "metric" : "imperial", sizes[size])
            << mm << unit << int(size) << QString(expected);
    };
    row(0, metric, BySize, "0 mm");
    row(-0.4, metric, BySize, "0 mm");
    row(0.49999999999999994, metric, BySize, "0 mm"); // adding a half would round it up
    row(2.5, metric, BySize, "3 mm");
    row(-2.5, metric, BySize, "-3 mm");
    row(99.4, metric, BySize, "99 mm");
    row(99.5, metric, BySize, "100 mm");
    row(100, metric, BySize, "10.0 cm");
    row(-100, metric, BySize, "-10.0 cm");
    row(250, metric, BySize, "25.0 cm");
    row(999.99, metric, BySize, "100.0 cm");
    row(1000, metric, BySize, "1.000 m");
    row(-1500, metric, BySize, "-1.500 m");
    row(2500, metric, BySize, "2.500 m");
    row(1234567890.1, metric, BySize, "1234567.890 m");
    row(4, metric, Large, "0.004 m");
    row(5000, metric, Small, "5000 mm");
    row(5000, metric, LargeAndSmall, "5000 mm");
    row(3e9, metric, Small, "3000000000 mm");
    row(1e300, metric, Small, "9223372036854775807 mm");
    row(-infinity, metric, Small, "-9223372036854775808 mm");
    row(notANumber, metric, Small, "0 mm");
    row(notANumber, metric, BySize, "nan cm");
    row(infinity, metric, BySize, "inf m");
    row(45, imperial, BySize, "1.77''");
    row(0, imperial, BySize, "0.00''");
    row(400, imperial, BySize, "1.312'");
    row(304.8, imperial, BySize, "1.000'");
    row(304.79, imperial, BySize, "12.00''");
    row(-304.8, imperial, BySize, "-1.000'");
    row(25.4, imperial, Large, "0.083'");
    row(609.6, imperial, Small, "24.00''");
    row(609.6, imperial, LargeAndSmall, "24.00''");
    row(250, MeasureUnit(7), BySize, "9.84''"); // every other value is imperial
}

void TestUnitConv::lengthText()
{
    QFETCH(double, mm);
    QFETCH(MeasureUnit, unit);
    QFETCH(int, size);
    QFETCH(QString, expected);
    const bool large = size == Large || size == LargeAndSmall;
    const bool small = size == Small || size == LargeAndSmall;
    const CommaLocale comma; // has no influence
    QCOMPARE(UnitConv::lenStr(mm, unit, large, true, small), expected);
    const auto numberEnd = expected.indexOf(unit == metric ? ' ' : '\'');
    QCOMPARE(UnitConv::lenStr(mm, unit, large, false, small), expected.left(numberEnd));
}

void TestUnitConv::areaText_data()
{
    QTest::addColumn<double>("mm2");
    QTest::addColumn<MeasureUnit>("unit");
    QTest::addColumn<QString>("expected");
    const auto row = [](double mm2, MeasureUnit unit, const char *expected) {
        QTest::addRow("%.17g mm2, %s", mm2, unit == metric ? "metric" : "imperial")
            << mm2 << unit << QString::fromUtf8(expected);
    };
    const double squareFoot = 645.16 * 144;
    row(0, metric, "0.0 cm²");
    row(12345, metric, "123.5 cm²");
    row(99999, metric, "1000.0 cm²");
    row(100000, metric, "0.10 m²");
    row(2500000, metric, "2.50 m²");
    row(-2500000, metric, "-25000.0 cm²"); // a negative area is small
    row(notANumber, metric, "nan m²");
    row(squareFoot, imperial, "1.00 ft²");
    row(squareFoot * 0.999, imperial, "143.9 inch²");
    row(-2 * squareFoot, imperial, "-288.0 inch²");
    row(1e6, imperial, "10.76 ft²");
}

void TestUnitConv::areaText()
{
    QFETCH(double, mm2);
    QFETCH(MeasureUnit, unit);
    const CommaLocale comma; // has no influence
    QTEST(UnitConv::areaStr(mm2, unit), "expected");
}

void TestUnitConv::clockToAngle_data()
{
    QTest::addColumn<double>("hours");
    QTest::addColumn<double>("angle");
    const auto row = [](double hours, double angle) {
        QTest::addRow("%g h", hours) << hours << angle;
    };
    row(3, 0);
    row(12, 90);
    row(0, 90);
    row(9, 180);
    row(6, 270);
    row(4.5, 315);
    row(11, 120);
    row(12.5, 75);
    row(24, 90);
    row(36, 450 - 720 % 360 - 720); // twelve hours are taken off once
    row(3.99, -29 + 360);           // the fraction of a degree is dropped first
    row(-0.99, 479 - 360);
    row(notANumber, 90);
    row(infinity, double((450LL - INT_MAX) % 360));
    row(-1e300, double((450LL - INT_MIN) % 360));
}

void TestUnitConv::clockToAngle()
{
    QFETCH(double, hours);
    QFETCH(double, angle);
    COMPARE_EXACT(UnitConv::clockH2AngleDEG(hours), angle);
    COMPARE_EXACT(UnitConv::clockH2AngleRAD(hours), angle * 0.017453292519943295);
}

void TestUnitConv::angleToClock_data()
{
    QTest::addColumn<double>("angle");
    QTest::addColumn<double>("hours");
    const auto row = [](double angle, double hours) {
        QTest::addRow("%g degrees", angle) << angle << hours;
    };
    row(0, 3);
    row(90, 0);
    row(180, 9);
    row(270, 6);
    row(-90, 6);
    row(-300, 13);
    row(765, 1.5);
    row(100, 3.0 - 100.0 / 30.0 + 12.0);
    row(infinity, notANumber);
}

void TestUnitConv::angleToClock()
{
    QFETCH(double, angle);
    QFETCH(double, hours);
    COMPARE_EXACT(UnitConv::angleDEG2ClockH(angle), hours);
    const double angleRAD = angle * 0.017453292519943295;
    COMPARE_EXACT(UnitConv::angleRAD2ClockH(angleRAD),
                  UnitConv::angleDEG2ClockH(angleRAD * 57.29577951308232));
}

QTEST_APPLESS_MAIN(TestUnitConv)
#include "tst_unitconv.moc"
