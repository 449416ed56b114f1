// Sizes, grid, water level and searches of the pipe's model.
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/geometry/Cylinder.h"

#include <cmath>
#include <limits>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

const double pi = std::acos(-1.0);
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// The angle is an arcsine of a number near 1 when the pipe is nearly half full; its rounding
// counts about five hundred times at 1/1000 from there.
constexpr Tolerance wetAngleTolerance{1e-12, "rad"};
// 360 additions of a segment's angle.
constexpr Tolerance ringTolerance{1e-13, "m"};
// The expected values of the lateral's placement have six decimals.
constexpr Tolerance placementTolerance{5e-7, "m"};

Cylinder builtPipe(double diameterM, double waterLevel = 0.0)
{
    Cylinder pipe(diameterM);
    pipe.waterLevelPercent = waterLevel;
    pipe.createVerticesInWorldCoord(MeasureMode::WaterLevel);
    return pipe;
}

} // namespace

class TestCylinder : public TestCase
{
    Q_OBJECT

private slots:
    void derivesSizes_data()
    {
        QTest::addColumn<double>("diameterM");
        QTest::addColumn<int>("rings");
        QTest::newRow("a third of a metre") << 1.0 / 3 << 11;
        QTest::newRow("smallest number") << std::numeric_limits<double>::denorm_min() << 11;
        QTest::newRow("negative") << -0.3 << 11;
        QTest::newRow("zero") << 0.0 << 1;
        QTest::newRow("not a number") << notANumber << 1;
        QTest::newRow("infinite") << infinity << 1;
        QTest::newRow("length overflows") << 1e308 << 1;
    }

    void derivesSizes()
    {
        QFETCH(double, diameterM);
        QFETCH(int, rings);
        Cylinder pipe = builtPipe(0.1);
        pipe.setDiameterM(diameterM);
        QVERIFY(!pipe.verticesUpToDate);
        COMPARE_EXACT(pipe.diameterM, diameterM);
        COMPARE_EXACT(pipe.lengthM, 10 * diameterM);
        COMPARE_EXACT(pipe.radiusM, diameterM / 2);
        COMPARE_EXACT(pipe.lengthSquared, pipe.lengthM * pipe.lengthM);
        COMPARE_EXACT(pipe.radiusSquared, pipe.radiusM * pipe.radiusM);
        COMPARE_EXACT(pipe.ringSpacingM, diameterM);
        pipe.setLengthM(-2);
        COMPARE_EXACT(pipe.lengthSquared, 4.0);
        pipe.createVerticesInWorldCoord(MeasureMode::NoMeasure);
        QCOMPARE(int(pipe.vertices.size()), rings);
        QCOMPARE(pipe.vertices.back().size(), std::size_t(361));
        QCOMPARE(int(pipe.waterLevelEnd.size()), rings);
        QCOMPARE(int(pipe.screenVertices.size()), rings);
        QCOMPARE(pipe.screenVertices.back().size(), std::size_t(361));
    }

    void buildsStraightGrid()
    {
        QVERIFY(Cylinder(0.1).vertices.empty());
        const Cylinder pipe = builtPipe(0.1);
        double depth = 0; // depth and angle add up
        for (const std::vector<Vec3> &ring : pipe.vertices) {
            double angle = -pi;
            for (const Vec3 &vertex : ring) {
                COMPARE_EXACT(vertex, Vec3(0.05 * std::sin(angle), 0.05 * std::cos(angle), depth));
                angle += 2 * pi / 360;
            }
            depth -= 0.1;
        }
        // At the bottom of the picture, its right and its top.
        COMPARE_NEAR(pipe.vertices[0][0], Vec3(0, -0.05, 0), ringTolerance);
        COMPARE_NEAR(pipe.vertices[0][90], Vec3(-0.05, 0, 0), ringTolerance);
        COMPARE_NEAR(pipe.vertices[0][180], Vec3(0, 0.05, 0), ringTolerance);
        QVERIFY(pipe.frontCircle == pipe.vertices[0]);
        COMPARE_EXACT(pipe.axisStart, Vec3(0, 0, 0));
        COMPARE_EXACT(pipe.axisEnd, Vec3(0, 0, -1));
        QVERIFY(pipe.verticesUpToDate);
    }

    void placesLateral_data()
    {
        QTest::addColumn<double>("angleDeg");
        QTest::addColumn<double>("startZ");
        QTest::addColumn<double>("lengthM");
        QTest::newRow("away from the mouth") << 45.0 << 0.043934 << 0.358915;
        QTest::newRow("square") << 90.0 << -0.075 << 0.3;
        QTest::newRow("towards the mouth") << 120.0 << -0.173205 << 0.270633;
    }

    void placesLateral()
    {
        QFETCH(double, angleDeg);
        QFETCH(double, startZ);
        QFETCH(double, lengthM);
        Cylinder branch(0.15);
        branch.angleDeg = angleDeg;
        branch.createVerticesInWorldCoord(Cylinder(0.3));
        const double angle = angleDeg * pi / 180;
        COMPARE_NEAR(branch.lengthM, lengthM, placementTolerance);
        COMPARE_NEAR(branch.axisStart, Vec3(0, 0, startZ), placementTolerance);
        COMPARE_NEAR(branch.axisEnd,
                     Vec3(lengthM * std::sin(angle), 0, startZ - lengthM * std::cos(angle)),
                     placementTolerance);
        COMPARE_EXACT(branch.lengthSquared, branch.lengthM * branch.lengthM);
        QVERIFY(!branch.verticesUpToDate);
    }

    void mainPipeFacesLateral()
    {
        Cylinder main(0.3);
        main.createVerticesInWorldCoord(Cylinder(0.15));
        COMPARE_NEAR(main.vertices[0][0], Vec3(0.15, 0, 0), ringTolerance);
        COMPARE_EXACT(main.axisEnd, Vec3(0, 0, -3));
        // A pipe as thick as the other stays in its own frame and starts on the opposite side.
        Cylinder twin(0.3);
        twin.createVerticesInWorldCoord(main);
        COMPARE_NEAR(twin.vertices[0][0], Vec3(-0.15, 0, 0), ringTolerance);
        twin.verticesUpToDate = true;
        twin.setLengthM(5);
        twin.createVerticesInWorldCoord(main);
        COMPARE_EXACT(twin.axisEnd, Vec3(0, 0, -3));
    }

    void wetAngleOfFilling()
    {
        const Cylinder any(0.2);
        for (const double diameterM : {0.1, 0.3, 7.0}) {
            for (int k = 0; k <= 1000; ++k) {
                const double f = k / 1000.0;
                // 2 acos(1 - 2f), written so that it keeps its digits at both ends.
                COMPARE_NEAR(any.circleSegmentAngleRAD(f, diameterM), 4 * std::asin(std::sqrt(f)),
                             wetAngleTolerance);
            }
        }
        COMPARE_EXACT(any.circleSegmentAngleRAD(-1e-9, 1), 0.0);
        COMPARE_EXACT(any.circleSegmentAngleRAD(-infinity, 1), 0.0);
        COMPARE_EXACT(any.circleSegmentAngleRAD(1.0000001, 1), 6.283185307179586);
        QVERIFY(std::isnan(any.circleSegmentAngleRAD(notANumber, 1)));
    }

    void dryArcOfLevel_data()
    {
        QTest::addColumn<double>("diameterM");
        QTest::addColumn<double>("level");
        QTest::addColumn<int>("start");
        QTest::newRow("below half a segment") << 0.1 << 1e-6 << 0;
        QTest::newRow("a tenth") << 0.1 << 0.1 << 37;
        QTest::newRow("three quarters") << 0.3 << 0.75 << 120;
        QTest::newRow("full") << 0.1 << 1.0 << 180;
        QTest::newRow("above full") << 0.1 << 1.5 << 180;
        QTest::newRow("negative level") << 0.1 << -0.2 << 0;
        QTest::newRow("level not a number") << 0.1 << notANumber << 0;
        QTest::newRow("pipe without a diameter") << 0.0 << 0.5 << 0;
        QTest::newRow("diameter not a number") << notANumber << 0.7 << 0;
        // The wet angle is negative, or more than a full turn.
        QTest::newRow("negative diameter") << -0.1 << 0.25 << 0;
        QTest::newRow("negative diameter, three quarters") << -0.1 << 0.75 << 240;
    }

    void dryArcOfLevel()
    {
        QFETCH(double, diameterM);
        QFETCH(double, level);
        QFETCH(int, start);
        const Cylinder pipe = builtPipe(diameterM, level);
        for (std::size_t i = 0; i < pipe.vertices.size(); ++i) {
            QCOMPARE(pipe.waterLevelStart[i], start);
            QCOMPARE(pipe.waterLevelEnd[i], 360 - start);
        }
    }

    void levelSurvivesModeUntilRebuilt()
    {
        Cylinder pipe = builtPipe(0.1, 0.25);
        pipe.createVerticesInWorldCoord(MeasureMode::CrossSection);
        QCOMPARE(pipe.waterLevelPercent, 0.25);
        QCOMPARE(pipe.waterLevelStart[5], 60);

        pipe.waterLevelPercent = 0.5;
        pipe.setWaterLevelStartAndEnd();
        QCOMPARE(pipe.waterLevelStart[5], 90);

        pipe.verticesUpToDate = false;
        pipe.waterLevelPercent = 1.0;
        pipe.setWaterLevelStartAndEnd();
        QCOMPARE(pipe.waterLevelStart[5], 90);

        pipe.createVerticesInWorldCoord(MeasureMode::PipeDimension);
        QCOMPARE(pipe.waterLevelPercent, 0.0);
        QCOMPARE(pipe.waterLevelStart[5], 0);
        QCOMPARE(pipe.waterLevelEnd[5], 360);
    }

    void insideFiniteCylinder_data()
    {
        QTest::addColumn<double>("along");
        QTest::addColumn<double>("sideways");
        QTest::addColumn<bool>("inside");
        // Lengths in metres; exact in binary, so that the edges are met exactly.
        QTest::newRow("wall at the mouth") << 0.0 << 0.25 << true;
        QTest::newRow("wall at the end") << 5.0 << 0.25 << true;
        QTest::newRow("just in front of the mouth") << -1e-9 << 0.0 << false;
        QTest::newRow("just beyond the end") << 5.000001 << 0.0 << false;
        QTest::newRow("just beside the wall") << 2.5 << 0.25 * 1.0001 << false;
        QTest::newRow("not a number") << notANumber << 0.0 << false;
        QTest::newRow("infinitely far") << infinity << 0.0 << false;
    }

    void insideFiniteCylinder()
    {
        QFETCH(double, along);
        QFETCH(double, sideways);
        QFETCH(bool, inside);
        const Cylinder pipe = builtPipe(0.5);
        QCOMPARE(pipe.pointIsInside(Vec3(sideways, 0, -along)), inside);
        QCOMPARE(pipe.pointIsInside(Vec3(0, -sideways, -along)), inside);
    }

    void nearestVertexTakesFirstOfTies()
    {
        COMPARE_EXACT(Cylinder(0.1).nearestVertices(QPoint(3, 4)), Vec3(0, 0, 0));
        Cylinder pipe = builtPipe(0.1);
        pipe.screenVertices[2][7] = Vec2(4, 4);
        pipe.screenVertices[2][8] = Vec2(3, 3);
        pipe.screenVertices[3][0] = Vec2(2, 4);
        COMPARE_EXACT(pipe.nearestVertices(QPoint(3, 4)), pipe.vertices[2][7]);
        pipe.screenVertices[10][360] = Vec2(3.5, 4.5);
        COMPARE_EXACT(pipe.nearestVertices(QPoint(3, 4)), pipe.vertices[10][360]);
        for (std::vector<Vec2> &ring : pipe.screenVertices)
            ring.assign(ring.size(), Vec2(notANumber, 0));
        COMPARE_EXACT(pipe.nearestVertices(QPoint(3, 4)), Vec3(0, 0, 0));
    }

    void closestIndexTakesSecondOfTies()
    {
        Cylinder pipe = builtPipe(0.1);
        pipe.screenVertices[1][5] = Vec2(3, 0);
        pipe.screenVertices[4][9] = Vec2(0, -3);
        const auto closest = [&pipe](const Vec2 &p) {
            int ring = -1;
            int index = -1;
            double distSq = -1;
            pipe.closestIndex(1, 5, 4, 9, p, ring, index, distSq);
            return Vec3(ring, index, distSq);
        };
        COMPARE_EXACT(closest(Vec2(0, 0)), Vec3(4, 9, 9));
        COMPARE_EXACT(closest(Vec2(1, 0)), Vec3(1, 5, 4));
    }
};

QTEST_GUILESS_MAIN(TestCylinder)
#include "tst_cylinder.moc"
