#include "pipes/PipeDrawing.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/pipes/PipeLateral.h"

#include <QTest>

#include <cmath>
#include <functional>
#include <limits>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
const Vec3 marker(7, 8, 9);

using Change = std::function<void(PipeLateral &)>;

class SizedLateral : public PipeLateral
{
public:
    explicit SizedLateral(double angle = 60)
    {
        camera.onResize(drawingArea);
        setDiameterM(0.3);
        setLateralDiameterPercent(0.5);
        if (angle != 0) {
            setAngleDeg(angle);
        }
    }
};

// "line green 3 361": pen and number of points of every polyline.
QStringList linesOf(const QVector<PaintCall> &calls)
{
    QStringList lines;
    for (const PaintCall &call : calls) {
        lines << (call.kind == PaintCall::Kind::PolylineFloat
                      ? QString("%1, %2").arg(penName(call.pen)).arg(call.points.size())
                      : call.toString());
    }
    return lines;
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestPipeLateral : public TestCase
{
    Q_OBJECT

private slots:
    void branchDiameter_data()
    {
        QTest::addColumn<double>("share");
        QTest::addColumn<double>("kept");
        QTest::addColumn<double>("read");
        QTest::newRow("half") << 0.5 << 0.5 << 0.5;
        QTest::newRow("nothing") << 0.0 << 0.01 << 0.01;
        QTest::newRow("negative") << -3.0 << 0.01 << 0.01;
        QTest::newRow("just below full") << 0.989 << 0.989 << 0.989;
        QTest::newRow("reads as full") << 0.99 << 0.99 << 1.0;
        QTest::newRow("full") << 1.0 << 0.999 << 1.0;
        QTest::newRow("not a number") << notANumber << 0.25 << 0.25;
    }

    void branchDiameter()
    {
        QFETCH(double, share);
        QFETCH(double, kept);
        QFETCH(double, read);
        PipeLateral lateral;
        lateral.setDiameterM(0.3);
        lateral.setLateralDiameterPercent(0.25);
        lateral.setLateralDiameterPercent(share);
        COMPARE_EXACT(lateral.lateralDiameterPercent, kept);
        COMPARE_EXACT(lateral.getLateralDiameterPercent(), read);
        COMPARE_EXACT(lateral.lateralCylinder.diameterM, kept * 0.3);
        lateral.setDiameterM(0.6);
        COMPARE_EXACT(lateral.lateralCylinder.diameterM, kept * 0.6);
    }

    void settersTakeEffectAtOnce()
    {
        SizedLateral lateral(0);
        const std::function<void()> setters[] = {[&] { lateral.setAngleDeg(45); },
                                                 [&] { lateral.setDiameterM(0.3); },
                                                 [&] { lateral.setLateralDiameterPercent(0.5); }};
        for (const auto &set : setters) {
            lateral.mainCylinder.verticesUpToDate = lateral.lateralCylinder.verticesUpToDate = true;
            set();
            QVERIFY(!lateral.mainCylinder.verticesUpToDate);
            QVERIFY(!lateral.lateralCylinder.verticesUpToDate);
        }
        COMPARE_EXACT(lateral.getAngleDeg(), 45.0);
        COMPARE_EXACT(lateral.measure1, 45.0);
        QCOMPARE(lateral.observable, ObservableType::BranchAngle);
    }

    void drawing()
    {
        SizedLateral lateral(90);
        lateral.clockDeg = 90;
        QCOMPARE(linesOf(painted(lateral, 0)), QStringList());
        const QStringList ends = linesOf(painted(lateral, 1));
        QCOMPARE(ends, (QStringList{"green 3, 361", "green 1, 361", "yellow 2, 181"}));
        QCOMPARE(linesOf(painted(lateral, 5)), ends);
        const QStringList full = linesOf(painted(lateral, 2));
        QCOMPARE(full.size(), 12);
        QCOMPARE(full.first(), ends[0]);
        // The branch ends 0.25 diameters before the second ring.
        QCOMPARE(full.filter("green/80 2, 361").size(), 9);
        QCOMPARE(full.mid(10), ends.mid(1));
        QVERIFY(lateral.camera.modelViewStack.empty());
    }

    void theHoleIsNotDrawn()
    {
        SizedLateral lateral(30); // long enough along the pipe to reach the second ring
        QStringList cut;
        const QStringList full = linesOf(painted(lateral, 2));
        for (int ring = 1; ring < 10; ++ring) {
            const auto i = std::size_t(ring);
            const int points =
                lateral.mainCylinder.waterLevelEnd[i] - lateral.mainCylinder.waterLevelStart[i] + 1;
            QCOMPARE(full[ring], QString("green/80 2, %1").arg(points));
            cut << (points < 361 ? QString::number(ring) : QString());
        }
        cut.removeAll(QString());
        QVERIFY2(!cut.isEmpty() && cut.size() < 9, qPrintable(cut.join(' ')));
    }

    void theCurveLiesOnBothPipes_data()
    {
        QTest::addColumn<double>("angle");
        QTest::newRow("away from the mouth") << 40.0;
        QTest::newRow("square") << 90.0;
        QTest::newRow("towards the mouth") << 130.0;
    }

    void theCurveLiesOnBothPipes()
    {
        QFETCH(double, angle);
        SizedLateral lateral(angle);
        painted(lateral, 1);
        const Cylinder &branch = lateral.lateralCylinder;
        Vec3 axis = branch.axisEnd - branch.axisStart;
        axis.normalize();
        QCOMPARE(lateral.mainCylinder.intersectionLine.size(), std::size_t(180));
        const Tolerance bisection{2e-6, "m"}; // the search ends at 1e-6 m along the branch
        for (const Vec3 &p : lateral.mainCylinder.intersectionLine) {
            COMPARE_NEAR(std::hypot(p.x, p.y), 0.15, bisection);
            COMPARE_NEAR((p - branch.axisStart).cross(axis).length(), 0.075, roundingTolerance);
        }
    }

    void anAngleThatWasNeverSet()
    {
        SizedLateral lateral(0);
        const QStringList lines = linesOf(painted(lateral, 2));
        QCOMPARE(lines.size(), 11);
        QCOMPARE(lines.filter("361").size(), 11);
        QVERIFY(lateral.mainCylinder.intersectionLine.empty());
        lateral.setAngleDeg(90);
        QCOMPARE(linesOf(painted(lateral, 2)).last(), QString("yellow 2, 181"));
    }

    void rebuilding_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("viewStyle");
        QTest::addColumn<bool>("mainRebuilt");
        QTest::addColumn<bool>("branchRebuilt");
        const auto row = [](const char *name, const Change &change, int style, bool main,
                            bool branch = true) {
            QTest::newRow(name) << change << style << main << branch;
        };
        row(
            "no change", [](PipeLateral &) {}, 2, false);
        row(
            "angle", [](PipeLateral &l) { l.setAngleDeg(60); }, 1, true);
        row(
            "diameter", [](PipeLateral &l) { l.setDiameterM(0.3); }, 2, true);
        row(
            "branch diameter", [](PipeLateral &l) { l.setLateralDiameterPercent(0.5); }, 2, true);
        row(
            "no number as branch diameter",
            [](PipeLateral &l) { l.setLateralDiameterPercent(notANumber); }, 2, false);
        row(
            "clock, camera",
            [](PipeLateral &l) {
                l.clockDeg = 90;
                l.cameraHeight = 0.2;
            },
            2, false);
        row(
            "nothing is painted", [](PipeLateral &l) { l.setAngleDeg(70); }, 0, false, false);
    }

    void rebuilding()
    {
        QFETCH(Change, change);
        QFETCH(int, viewStyle);
        SizedLateral lateral;
        painted(lateral, 2);
        QVERIFY(lateral.mainCylinder.verticesUpToDate && !lateral.lateralCylinder.verticesUpToDate);
        lateral.mainCylinder.vertices[3][7] = marker;
        lateral.mainCylinder.intersectionLine[7] = marker;
        lateral.lateralCylinder.vertices[3][7] = marker;
        change(lateral);
        painted(lateral, viewStyle);
        QTEST(lateral.mainCylinder.vertices[3][7] != marker, "mainRebuilt");
        QTEST(lateral.mainCylinder.intersectionLine[7] != marker, "mainRebuilt");
        QTEST(lateral.lateralCylinder.vertices[3][7] != marker, "branchRebuilt");
    }
};

QTEST_MAIN(TestPipeLateral)
#include "tst_pipelateral.moc"
