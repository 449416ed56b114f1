#include "pipes/PipeDrawing.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QLineF>
#include <QPolygonF>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double degree = M_PI / 180;

// The least that a pipe object has to add: it draws nothing.
class BarePipe : public PipeBase
{
public:
    BarePipe()
    {
        setDiameterM(0.3);
        camera.onResize(drawingArea);
    }
    void render(QPainter &, ViewStyle, const ZASettings &, Vec3, QPoint) override {}
};

// The near and the far end on the screen, found without the corrector.
struct Ends
{
    double farInsideNear = 0.0; // px from the near circle's outline; negative outside
    double separation = 0.0;    // px between the two centres
    Vec2 axis;                  // unit, from the near to the far centre
};

Ends endsOf(BarePipe &pipe, const Vec3 &rotation, const QPoint &offset)
{
    const double r = pipe.diameterM / 2;
    const double far = -10 * pipe.diameterM;
    QPolygonF outline;
    for (double a = 0; a < 360; a += 0.5) {
        outline << pixelOf(pipe, {r * std::sin(a * degree), r * std::cos(a * degree), 0}, rotation,
                           offset);
    }
    const QLineF axis(pixelOf(pipe, Vec3::Zero, rotation, offset),
                      pixelOf(pipe, {0, 0, far}, rotation, offset));
    const QLineF unit = axis.unitVector();
    Ends ends;
    ends.separation = axis.length();
    ends.axis = Vec2(unit.dx(), unit.dy());
    // Drawn mirrored: what lies towards +x on the screen lies towards -x in the pipe.
    const QPointF point = pixelOf(pipe, {-unit.dx() * r, -unit.dy() * r, far}, rotation, offset);
    double nearest = infinity;
    for (const QPointF &p : qAsConst(outline)) {
        nearest = std::min(nearest, QLineF(p, point).length());
    }
    ends.farInsideNear = outline.containsPoint(point, Qt::OddEvenFill) ? nearest : -nearest;
    return ends;
}

// A correction leads the far circle's point this near to the outline, in px.
constexpr double walkTolerancePx = 2.0;
// Nearer to the outline than this, in px, either side is as good.
constexpr double undecidedPx = 0.5;

} // namespace

class TestPipeBase : public TestCase
{
    Q_OBJECT

private slots:
    void cameraPlacement()
    {
        BarePipe pipe;
        pipe.cameraHeight = 0.25;
        pipe.setupMiniGL(0.3, QPoint(100, 7));
        // 100/576 in single precision is 0.1736111044883728.
        COMPARE_EXACT(pipe.camera.eye.x, -0.3 * 0.1736111044883728);
        COMPARE_EXACT(pipe.camera.eye.y, 0.3 * 0.25 - 0.3 * 0.5);
        COMPARE_NEAR(pipe.camera.eye.z, 0.15 / std::tan(18.75 * degree) * 1.02, roundingTolerance);
        const Mat4 placed = pipe.camera.modelViewMatrix;
        pipe.setupMiniGL(0.3, QPoint(100, -3000));
        QVERIFY(std::equal(placed.m, placed.m + 16, pipe.camera.modelViewMatrix.m));
        QVERIFY(pipe.camera.modelViewStack.empty());
    }

    void frontCircleFillsThePicture()
    {
        BarePipe pipe;
        // The lower edge is 2 % of the half height away.
        COMPARE_NEAR(pixelOf(pipe, {0, -0.15, 0}), QPointF(384, 288 + 288 / 1.02), pixelTolerance);
        COMPARE_NEAR(pixelOf(pipe, {-0.15, 0, 0}), QPointF(384 + 288 / 1.02, 288), pixelTolerance);
        // 576 gesture units are one diameter; what is drawn mirrored goes left. The camera looks at
        // a point 1000 km away, which turns it a little.
        COMPARE_NEAR(pixelOf(pipe, Vec3::Zero, Vec3::Zero, QPoint(144, 0)),
                     QPointF(384 - 144 / 1.02, 288), (Tolerance{1e-3, "px"}));
    }

    void rollAndClock_data()
    {
        QTest::addColumn<double>("clock");
        QTest::addColumn<double>("roll");
        QTest::addColumn<bool>("touched");
        QTest::newRow("neither") << 0.0 << 0.0 << false;
        QTest::newRow("negative zero") << -0.0 << -0.0 << false;
        QTest::newRow("clock alone") << 90.0 << 0.0 << true;
        QTest::newRow("roll alone") << 0.0 << 30.0 << true;
        QTest::newRow("both add up") << 90.0 << 45.0 << true;
        QTest::newRow("they cancel, yet the matrix is multiplied") << 90.0 << -90.0 << true;
    }

    void rollAndClock()
    {
        QFETCH(double, clock);
        QFETCH(double, roll);
        QFETCH(bool, touched);
        BarePipe pipe;
        pipe.clockDeg = clock;
        // A product with any rotation about z, even by 0, turns this into +0.
        pipe.camera.modelViewMatrix.m[8] = -0.0;
        pipe.applyZRotation(Vec3(5, 5, roll));
        QCOMPARE(std::signbit(pipe.camera.modelViewMatrix.m[8]), !touched);
        const double a = (clock + roll) * degree;
        COMPARE_NEAR(pipe.camera.modelViewMatrix.multiply(Vec3::XAxis),
                     Vec3(std::cos(a), std::sin(a), 0), roundingTolerance);
    }

    void farEndStaysVisible_data()
    {
        QTest::addColumn<int>("sideways");
        QTest::addColumn<double>("height");
        for (const int sideways : {-185, -50, 0, 100}) {
            for (const double height : {0.2, 0.5, 0.8}) {
                QTest::addRow("shifted by %d, camera height %g", sideways, height)
                    << sideways << height;
            }
        }
    }

    void farEndStaysVisible()
    {
        QFETCH(int, sideways);
        QFETCH(double, height);
        const QPoint offset(sideways, 0);
        BarePipe pipe;
        pipe.cameraHeight = height;
        int requests = 0;
        int insideBefore = 0;
        int insideAfter = 0;
        for (double x = -85; x <= 85; x += 17) {
            for (double y = -50; y <= 50; y += 12.5) {
                const Vec3 asked(x / 85, y / 50, 11);
                const Ends before = endsOf(pipe, {asked.x, asked.y, 0}, offset);
                const Vec3 got = pipe.getNewImageRotationToKeepRearCircleInsideFrontCircle(
                    offset, Vec3(x, y, 11));
                const Ends after = endsOf(pipe, {got.x, got.y, 0}, offset);
                const QByteArray where = QByteArray::number(x) + ", " + QByteArray::number(y);
                ++requests;
                insideBefore += before.farInsideNear > 0;
                insideAfter += after.farInsideNear > 0;
                COMPARE_EXACT(got.z, 11.0);
                if (before.farInsideNear > undecidedPx) {
                    COMPARE_NEAR(got, asked, roundingTolerance);
                } else if (before.farInsideNear < -undecidedPx) {
                    const Vec2 moved(got.x - asked.x, -(got.y - asked.y));
                    const double across = moved.x * before.axis.y - moved.y * before.axis.x;
                    const double along = moved.x * before.axis.x + moved.y * before.axis.y;
                    COMPARE_NEAR(across, 0.0, roundingTolerance);
                    QVERIFY2(along > 0, where);
                    QVERIFY2(after.separation < before.separation, where);
                    QVERIFY2(after.farInsideNear < walkTolerancePx, where);
                }
                QVERIFY2(after.farInsideNear > -walkTolerancePx, where);
            }
        }
        qInfo("far point inside the near circle: %d of %d requests, %d after correction",
              insideBefore, requests, insideAfter);
    }

    void requestsBeyondTheControl()
    {
        // A turn walks 1/20 touch unit; the far end meets the near one at 1.03 units.
        BarePipe pipe;
        for (const Vec3 &met : {Vec3(3.4, 0, 0), Vec3(0, 3.4, 0)}) { // after 48 of 50 turns
            const Vec3 got = pipe.getNewImageRotationToKeepRearCircleInsideFrontCircle(
                {}, Vec3(met.x * 85, met.y * 50, 0));
            QVERIFY(std::hypot(got.x, got.y) < 1.1);
        }
        for (const Vec3 &missed : {Vec3(3.6, 0, 0), Vec3(0, -3.6, 0)}) {
            const Vec3 got = pipe.getNewImageRotationToKeepRearCircleInsideFrontCircle(
                {}, Vec3(missed.x * 85, missed.y * 50, 0));
            COMPARE_NEAR(got, missed, roundingTolerance);
        }
    }

    void searchOnTheFrontCircle_data()
    {
        QTest::addColumn<double>("farDeg");
        QTest::addColumn<double>("turnedDeg");
        QTest::newRow("ahead, found") << 20.0 << 20.0;
        QTest::newRow("behind, found after turning back") << -12.0 << -12.0;
        QTest::newRow("farther than 50 turns of a degree") << 120.0 << 50.0;
    }

    void searchOnTheFrontCircle()
    {
        QFETCH(double, farDeg);
        QFETCH(double, turnedDeg);
        BarePipe pipe;
        pipe.setupMiniGL(0.3, {});
        const Vec3 far(0.15 * std::cos(farDeg * degree), 0.15 * std::sin(farDeg * degree), -3);
        const Vec3 p =
            pipe.rotationCorrector.correctedPositionOfPointOnFrontCircleToBeNearPointOnRearCircle(
                {0.15, 0, 0}, far);
        // It settles when a turn changes the squared distance by less than 0.1 px².
        COMPARE_NEAR(std::atan2(p.y, p.x) / degree, turnedDeg, (Tolerance{0.5, "deg"}));
        COMPARE_NEAR(std::hypot(p.x, p.y), 0.15, roundingTolerance);
    }

    void noDirectionOnTheScreen()
    {
        BarePipe pipe;
        const Vec3 got = pipe.getNewImageRotationToKeepRearCircleInsideFrontCircle({}, Vec3::Zero);
        COMPARE_NEAR(got, Vec3::Zero, roundingTolerance);
        QVERIFY(pipe.rotationCorrector.direction.isZeroLengthVector());
        pipe.setupMiniGL(0.3, {});
        COMPARE_EXACT(pipe.rotationCorrector.correctAngleBetweenPointOnFrontCircleAndRearCircle(),
                      120.0);
        COMPARE_EXACT(pipe.rotationCorrector.frontPoint, Vec3::Zero);
    }

    void cameraAfterwards()
    {
        // Kept, corrected, never met, and no request at all.
        for (const Vec3 &request : {Vec3(10, 5, 0), Vec3(120, 60, 20), Vec3(400, 0, 0),
                                    Vec3(notANumber, 3, 0), Vec3(infinity, -infinity, 0)}) {
            BarePipe pipe;
            pipe.camera.modelViewMatrix.translate(1, 2, 3);
            const Mat4 before = pipe.camera.modelViewMatrix;
            pipe.getNewImageRotationToKeepRearCircleInsideFrontCircle(QPoint(50, 0), request);
            QVERIFY(std::equal(before.m, before.m + 16, pipe.camera.modelViewMatrix.m));
            QVERIFY(pipe.camera.modelViewStack.empty());
            // The eye is where the drawing expects it.
            const Vec3 eye = pipe.camera.eye;
            pipe.setupMiniGL(pipe.getDiameterM(), QPoint(50, 0));
            COMPARE_EXACT(eye, pipe.camera.eye);
        }
    }
};

QTEST_MAIN(TestPipeBase)
#include "tst_pipebase.moc"
