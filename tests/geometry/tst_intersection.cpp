// Where a lateral meets the main pipe, against two cylinders whose axes meet.
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

constexpr double mainDiameterM = 0.3;

// The bisection along the branch ends at a bracket of 1e-6 m.
constexpr Tolerance curveTolerance{1e-6, "m"};

struct Joint
{
    Cylinder main{mainDiameterM};
    Cylinder branch;

    Joint(double share, double angleDeg)
        : branch(share * mainDiameterM)
    {
        branch.angleDeg = angleDeg;
        build();
    }

    void build()
    {
        main.createVerticesInWorldCoord(branch);
        branch.createVerticesInWorldCoord(main);
        main.buildIntersectionLine(branch);
    }

    /** Depth of the last ring along the branch's axis, in metres. */
    double lastRingM() const { return 10 * branch.diameterM; }

    /**
     * Point of the branch's generator line at the angle @p v from the side of the mouth, on the
     * wall of the main pipe: x = sqrt(R^2 - y^2), and from there back along the axis
     * (sin A, 0, -cos A), which the generator line runs along at the distance r.
     */
    Vec3 curvePoint(double v, double &depthM) const
    {
        const double a = branch.angleDeg * pi / 180;
        const double sideways = -branch.radiusM * std::cos(v);
        const double y = branch.radiusM * std::sin(v);
        const double x = std::sqrt(main.radiusSquared - y * y);
        depthM = (x - sideways * std::cos(a)) / std::sin(a);
        return {x, y, branch.axisStart.z + sideways * std::sin(a) - depthM * std::cos(a)};
    }
};

double distanceFromAxis(const Cylinder &pipe, const Vec3 &point)
{
    Vec3 axis = pipe.axisEnd - pipe.axisStart;
    axis.normalize();
    return (point - pipe.axisStart).cross(axis).length();
}

bool isSame(const Cylinder &a, const Cylinder &b)
{
    return a.vertices == b.vertices && a.intersectionLine == b.intersectionLine &&
           a.waterLevelStart == b.waterLevelStart && a.waterLevelEnd == b.waterLevelEnd;
}

} // namespace

class TestIntersection : public TestCase
{
    Q_OBJECT

private slots:
    void curveMatchesClosedForm_data()
    {
        QTest::addColumn<double>("angleDeg");
        for (int angle = 30; angle <= 150; angle += 5)
            QTest::addRow("%d degrees", angle) << double(angle);
    }

    void curveMatchesClosedForm()
    {
        QFETCH(double, angleDeg);
        int shares = 0;
        for (int percent = 1; percent <= 99; ++percent) {
            const Joint joint(percent / 100.0, angleDeg);
            QCOMPARE(joint.main.intersectionLine.size(), std::size_t(180));
            std::vector<Vec3> expected;
            double longest = 0;
            for (int i = 0; i < 180; ++i) {
                double depthM = 0;
                expected.push_back(joint.curvePoint(i * pi / 90, depthM));
                longest = std::max(longest, depthM);
            }
            if (joint.lastRingM() <= longest)
                continue;
            ++shares;
            for (std::size_t i = 0; i < 180; ++i)
                COMPARE_NEAR(joint.main.intersectionLine[i], expected[i], curveTolerance);
        }
        QVERIFY2(shares >= 75, QByteArray::number(shares).constData());
    }

    void curveOfShortBranchStaysAtItsEnd()
    {
        // Ten diameters of the thin branch do not reach the wall: the whole line is inside, and
        // the search closes in on the last ring.
        const Joint joint(0.02, 90);
        QVERIFY(joint.lastRingM() < joint.main.radiusM / 2);
        for (std::size_t i = 0; i < 180; ++i) {
            COMPARE_NEAR(joint.main.intersectionLine[i], joint.branch.vertices.back()[2 * i],
                         curveTolerance);
        }
    }

    void holeEndsOnBranchWall_data()
    {
        QTest::addColumn<double>("share");
        QTest::addColumn<double>("angleDeg");
        QTest::addColumn<int>("cutRings");
        // The footprint begins at the mouth and is share / sin(angle) main diameters long: the
        // second ring is met when that is more than 1, the third one never.
        QTest::newRow("shallow, grazed") << 0.51 << 30.0 << 1;
        QTest::newRow("shallow, thick") << 0.999 << 30.0 << 1;
        QTest::newRow("45 degrees") << 0.8 << 45.0 << 1;
        QTest::newRow("square") << 0.5 << 90.0 << 0;
        QTest::newRow("nearly square") << 0.99 << 75.0 << 1;
        QTest::newRow("square, nearly as thick") << 0.999 << 90.0 << 0;
        QTest::newRow("towards the mouth") << 0.9 << 120.0 << 1;
    }

    void holeEndsOnBranchWall()
    {
        QFETCH(double, share);
        QFETCH(double, angleDeg);
        QFETCH(int, cutRings);
        const Joint joint(share, angleDeg);
        Cylinder uncut(mainDiameterM);
        uncut.createVerticesInWorldCoord(joint.branch);
        const double spacing = mainDiameterM * std::sin(pi / 360);
        int cut = 0;
        for (std::size_t r = 0; r <= 10; ++r) {
            std::vector<Vec3> expected = uncut.vertices[r];
            const int start = joint.main.waterLevelStart[r];
            const int end = joint.main.waterLevelEnd[r];
            QCOMPARE(end, 360 - start);
            if (start > 0) {
                ++cut;
                QVERIFY(r > 0);
                for (const int limit : {start, end}) {
                    const Vec3 &vertex = joint.main.vertices[r][std::size_t(limit)];
                    const double beyond =
                        distanceFromAxis(joint.branch, vertex) - joint.branch.radiusM;
                    QVERIFY2(beyond >= -1e-12 && beyond <= 0.01 * spacing,
                             QByteArray::number(beyond / spacing).constData());
                    COMPARE_NEAR(std::hypot(vertex.x, vertex.y), joint.main.radiusM,
                                 sceneTolerance);
                    COMPARE_NEAR(vertex.z, expected[std::size_t(limit)].z, sceneTolerance);
                    expected[std::size_t(limit)] = vertex;
                }
                for (int j = 0; j <= 360; ++j) {
                    // The branch begins on the axis: it meets the side of positive x alone.
                    const Vec3 &vertex = expected[std::size_t(j)];
                    const bool inside = vertex.x > 0 && distanceFromAxis(joint.branch, vertex) <
                                                            joint.branch.radiusM;
                    // Around vertex 0 lies the hole, nowhere else.
                    QCOMPARE(inside, j < start || j > end);
                }
            }
            QVERIFY(joint.main.vertices[r] == expected);
        }
        QCOMPARE(cut, cutRings);
    }

    void secondCallTouchesNothing()
    {
        Joint joint(0.8, 45);
        const Cylinder before = joint.main;
        QVERIFY(before.waterLevelStart[1] > 0);
        joint.build();
        QVERIFY(isSame(joint.main, before));
        // Even another branch waits until the grid is out of date.
        joint.branch.angleDeg = 30;
        joint.build();
        QVERIFY(isSame(joint.main, before));
        joint.main.verticesUpToDate = false;
        joint.build();
        QVERIFY(!isSame(joint.main, before));
        QVERIFY(isSame(joint.main, Joint(0.8, 30).main));
        // A single ring is not cut.
        joint.main.verticesUpToDate = false;
        joint.main.ringCount = 0;
        joint.build();
        QCOMPARE(joint.main.vertices.size(), std::size_t(1));
        QCOMPARE(joint.main.waterLevelStart[0], 0);
        QCOMPARE(joint.main.waterLevelEnd[0], 360);
        QVERIFY(joint.main.intersectionLine == Joint(0.8, 30).main.intersectionLine);
    }

    void searchesEnd()
    {
        Cylinder wall(0.5);
        wall.createVerticesInWorldCoord(MeasureMode::NoMeasure);
        const Vec3 inside(0, 0, -1);
        // The same point, one farther than its digits reach, and worse.
        for (const double at :
             {0.0, 1e20, std::numeric_limits<double>::max(), infinity, -infinity, notANumber}) {
            for (const Vec3 &far : {Vec3(at, 0, -1), Vec3(at, at, at)}) {
                Vec3 outside = far;
                wall.findExactIntersection(inside, outside, wall);
                outside = far;
                wall.findExactIntersection(outside, outside, wall);
                outside = far;
                wall.findExactIntersection(inside, outside, Vec3(0.1, 0.2, -1), wall);
                outside = Vec3(0.3, 0, -1);
                wall.findExactIntersection(inside, outside, far, wall);
                outside = Vec3(0.3, 0, -1);
                wall.findExactIntersection(far, outside, inside, wall);
            }
        }
    }

    void branchThatIsNotFiniteCutsNothing_data()
    {
        QTest::addColumn<double>("mainDiameter");
        QTest::addColumn<double>("branchDiameter");
        QTest::addColumn<double>("angleDeg");
        QTest::newRow("angle 0") << 0.3 << 0.15 << 0.0;
        QTest::newRow("angle not a number") << 0.3 << 0.15 << notANumber;
        QTest::newRow("angle infinite") << 0.3 << 0.15 << infinity;
        QTest::newRow("branch not a number") << 0.3 << notANumber << 90.0;
        QTest::newRow("branch infinite") << 0.3 << infinity << 90.0;
        QTest::newRow("main pipe not a number") << notANumber << 0.15 << 90.0;
    }

    void branchThatIsNotFiniteCutsNothing()
    {
        QFETCH(double, mainDiameter);
        QFETCH(double, branchDiameter);
        QFETCH(double, angleDeg);
        Joint joint(0.8, 45);
        joint.main.setDiameterM(mainDiameter);
        joint.branch.setDiameterM(branchDiameter);
        joint.branch.angleDeg = angleDeg;
        joint.build();
        QVERIFY(joint.main.verticesUpToDate);
        QCOMPARE(joint.main.waterLevelStart, std::vector<int>(joint.main.vertices.size(), 0));
        QCOMPARE(joint.main.waterLevelEnd, std::vector<int>(joint.main.vertices.size(), 360));
        if (!std::isnan(mainDiameter))
            QVERIFY(joint.main.intersectionLine.empty());
    }
};

QTEST_GUILESS_MAIN(TestIntersection)
#include "tst_intersection.moc"
