#include "pipes/PipeDrawing.h"
#include "support/CommaLocale.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/pipes/Pipe.h"

#include <QSignalSpy>
#include <QTest>

#include <clocale>
#include <cmath>
#include <limits>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// State before the reading, recognisable when it is kept.
constexpr double oldScale = 0.75;
constexpr double oldDistance = 33;

std::string repeated(const std::string &text, std::size_t bytes)
{
    std::string result;
    while (result.size() < bytes) {
        result += text;
    }
    return result;
}

} // namespace

Q_DECLARE_METATYPE(std::string)

class TestPipeCalibration : public TestCase
{
    Q_OBJECT

private slots:
    void reading_data()
    {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<double>("diameterMM");
        QTest::addColumn<double>("scale");
        QTest::addColumn<bool>("calibrated");
        QTest::addColumn<double>("distance");
        const auto row = [](const char *name, const std::string &text, double diameterMM,
                            double scale, bool calibrated, double distance = oldDistance) {
            QTest::newRow(name) << text << diameterMM << scale << calibrated << distance;
        };
        const std::string table = "150;768;120\n300;768;240\n";

        row("default text", "LASER;;;50", 300, oldScale, false, 50);
        row("laser distance with comma and blanks", "LASER;a;b; 50,25 mm", 300, oldScale, false,
            50.25);
        row("mixed case", "lAsEr;;;40", 300, oldScale, false, 40);
        row("laser record too short", "LASER;;50\n" + table, 300, oldScale, false);
        row("laser record too long", "LASER;;;50;\n" + table, 300, oldScale, false);
        row("laser distance that is no number", "LASER;;;wide\n" + table, 300, oldScale, false);
        row("laser distance missing", "LASER;;;", 300, oldScale, false);
        row("laser distance beyond a double", "LASER;;;1e400", 300, oldScale, false);
        row("laser ends the reading", "LASER;;;50\n" + table, 300, oldScale, false, 50);
        row("records before a laser record are dropped", table + "LASER;;;50", 200, oldScale, false,
            50);
        row("a match before a laser record ends it", table + "LASER;;;50", 300, 240.0 / 768, true);
        row("no laser: a longer word", "LASERS;;;50", 300, oldScale, false);

        row("match", table, 150, 120.0 / 768, true);
        row("match of the rounded diameter", table, 299.6, 240.0 / 768, true);
        row("halves round away from zero", "151;1;2\n", 150.5, 2, true);
        row("a match wins over interpolation", table, 150.2, 120.0 / 768, true);
        row("the first of two matches", "300;1;2\n300;1;3\n", 300, 2, true);
        row("interpolated", table, 200, (240.0 / 768 - 120.0 / 768) * 50 / 150 + 120.0 / 768, true);
        row("interpolated, in any order", "400;1;4\n300;768;240\n100;1;1\n150;768;120", 200,
            (240.0 / 768 - 120.0 / 768) * 50 / 150 + 120.0 / 768, true);
        row("duplicates, interpolated from the later", "150;1;9\n150;1;1\n300;1;4\n", 200, 2, true);
        row("below the table", table, 100, oldScale, false);
        row("above the table", table, 301, oldScale, false);
        row("a single record", "150;768;120\n", 200, oldScale, false);
        row("nothing", "", 300, oldScale, false);

        row("CR LF and blanks", " 150;768;120 \r\n\r\n \t\r\n300;768;240\r\n", 300, 240.0 / 768,
            true);
        row("decimal comma", "300,0;76,8;24,0", 300, 24.0 / 76.8, true);
        row("text behind numbers", "300mm;768px;240mm", 300, 240.0 / 768, true);
        row("hexadecimal", "0x12c;1;2", 300, 2, true);
        row("two fields, four fields", "300;2\n300;1;2;3\n300;1;5", 300, 5, true);
        row("diameter that is no number", "wide;1;2\n" + table, 300, 240.0 / 768, true);
        row("divisor that is no number", "300;;2\n" + table, 300, 240.0 / 768, true);
        row("dividend that is no number", "300;1;-\n" + table, 300, 240.0 / 768, true);
        row("beyond a double", "300;1e999;2\n300;1;-1e999\n300;1;2e-999\n" + table, 300,
            240.0 / 768, true);
        row("bad lines leave the table", "150;1;1\n200;x;9\n300;1;4\n", 200, 2, true);
        row("zero divisor", "300;0;240", 300, infinity, true);
        row("a diameter that is not a number", "nan;1;2\n150;1;1\n300;1;4\nNaN;1;2\n", 200, 2,
            true);
        row("NUL ends a field", std::string("300\0xyz;1\0;2\0", 13), 300, 2, true);
        row("NUL bytes alone", std::string(1000, '\0'), 300, oldScale, false);
        row("other bytes", "\xff\xfe;\x80;\xe9\n" + table, 300, 240.0 / 768, true);
        row("a megabyte of records", repeated("100;1;1\n400;1;4\n", 1 << 20), 200, 2, true);
        row("a megabyte in one line", repeated(";", 1 << 20) + "\n" + table, 300, 240.0 / 768,
            true);
    }

    void reading()
    {
        QFETCH(std::string, text);
        QFETCH(double, diameterMM);
        QFETCH(double, scale);
        QFETCH(double, distance);
        const auto check = [&] {
            Pipe pipe;
            pipe.setCameraCrackIni(text);
            pipe.laserScale = oldScale;
            pipe.laserDistance = oldDistance;
            pipe.cylinder.verticesUpToDate = true;
            pipe.diameterMM = diameterMM;
            pipe.setDiameterM(diameterMM * 0.001);
            COMPARE_EXACT(pipe.laserScale, scale);
            QTEST(pipe.laserCalibrated, "calibrated");
            COMPARE_EXACT(pipe.laserDistance, distance);
            COMPARE_EXACT(pipe.getDiameterM(), diameterMM * 0.001);
            QVERIFY(!pipe.cylinder.verticesUpToDate);
        };
        check();
        const CommaLocale comma;
        QCOMPARE(std::localeconv()->decimal_point, ",");
        check();
    }

    void laserSpots_data()
    {
        QTest::addColumn<QVector<double>>("spots");
        QTest::addColumn<double>("given");
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("pointsLeft");
        // The picture is 768 pixels wide, the lasers are 50 mm apart.
        QTest::newRow("384 px apart") << QVector<double>{0.25, 0.75} << 0.0 << 50.0 / 384 << 0;
        QTest::newRow("coinciding") << QVector<double>{0.5, 0.5} << 0.0 << oldScale << 0;
        QTest::newRow("three points") << QVector<double>{0.1, 0.2, 0.3} << 0.0 << oldScale << 3;
        QTest::newRow("one point") << QVector<double>{0.1} << -0.0 << oldScale << 1;
        QTest::newRow("scale given") << QVector<double>{0.25, 0.75} << 0.4 << 0.4 << 2;
        QTest::newRow("negative scale given") << QVector<double>{} << -2.0 << -2.0 << 0;
    }

    void laserSpots()
    {
        QFETCH(QVector<double>, spots);
        QFETCH(double, given);
        QFETCH(double, scale);
        Pipe pipe;
        pipe.setDiameterM(0.3);
        pipe.camera.onResize(QRectF(0, 0, 768, 576));
        pipe.laserScale = oldScale;
        for (const double x : qAsConst(spots)) {
            pipe.hitPoints.emplace_back(Vec3(x, 0.5, 0));
        }
        QSignalSpy sizes(&pipe, &Pipe::hitPointListSizeChanged);
        pipe.calibrateLaser(given);
        COMPARE_NEAR(pipe.laserScale, scale, roundingTolerance);
        QVERIFY(pipe.laserCalibrated);
        QTEST(int(pipe.hitPoints.size()), "pointsLeft");
        const bool cleared = pipe.hitPoints.size() < std::size_t(spots.size());
        QCOMPARE(sizes.count(), cleared ? 1 : 0);
    }

    void laserSpotsBeforeThePictureHasASize()
    {
        Pipe pipe;
        pipe.setDiameterM(0.3);
        pipe.laserScale = oldScale;
        pipe.hitPoints = {HitPoint({0.25, 0.5, 0}), HitPoint({0.75, 0.5, 0})};
        pipe.calibrateLaser(0);
        COMPARE_EXACT(pipe.laserScale, oldScale);
        QVERIFY(pipe.hitPoints.empty() && pipe.laserCalibrated);
    }
};

QTEST_MAIN(TestPipeCalibration)
#include "tst_pipecalibration.moc"
