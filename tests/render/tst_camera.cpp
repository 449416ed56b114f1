#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/render/MiniGL.h"

#include <cmath>
#include <limits>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

const double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

MiniGL cameraOver(const QRectF &viewport)
{
    MiniGL camera;
    camera.modelViewMatrix.lookAt(camera.eye, camera.center, camera.up);
    camera.onResize(viewport);
    return camera;
}

Vec2 projected(const MiniGL &camera, const Vec3 &point)
{
    Mat4 toPixels;
    camera.combinedMatrix(toPixels);
    Vec2 pixel;
    toPixels.multiply(point, pixel);
    return pixel;
}

} // namespace

Q_DECLARE_METATYPE(Drevon::Zalento::Vec2)
Q_DECLARE_METATYPE(Drevon::Zalento::Vec3)

class TestCamera : public TestCase
{
    Q_OBJECT

private slots:
    void startsWithDefaults();
    void projects_data();
    void projects();
    void combinesFromViewportToModel();
    void onResize_data();
    void onResize();
    void fieldOfViewKeepsTheViewport();
    void screenDistanceIsSquared();
    void screenDirection_data();
    void screenDirection();
    void turnsByTouch();
    void restoresNestedMatrices();
};

void TestCamera::startsWithDefaults()
{
    const MiniGL camera;
    COMPARE_EXACT(camera.eye, Vec3(0, 0, 1));
    COMPARE_EXACT(camera.center, Vec3(0, 0, 1000000));
    COMPARE_EXACT(camera.up, Vec3(0, -1, 0));
    COMPARE_EXACT(camera.modelViewMatrix, Mat4());
    COMPARE_EXACT(camera.fovYDEG, 37.5);
    QCOMPARE(camera.viewport, QRectF(0, 0, 0, 0));
    QCOMPARE(camera.textBackgroundBrush, QBrush(QColor(0, 0, 0, 180), Qt::SolidPattern));
    COMPARE_EXACT(projected(camera, Vec3(3, -4, 7)), Vec2(3, -4)); // pixels until it has a size
}

void TestCamera::projects_data()
{
    QTest::addColumn<QRectF>("viewport");
    QTest::addColumn<Vec3>("point");
    QTest::addColumn<Vec2>("expected");
    const QRectF square(0, 0, 400, 400);
    const QRectF wide(10, 20, 600, 400);
    // 0.1 m at a depth of 1 m, in pixels of a viewport 400 pixels high.
    const double tenth = 0.1 / std::tan(37.5 / 2 * 0.017453292519943295) * 200;
    QTest::newRow("on the axis") << square << Vec3(0, 0, 2) << Vec2(200, 200);
    QTest::newRow("in front: +x right, +y down")
        << square << Vec3(0.1, 0.1, 2) << Vec2(200 + tenth, 200 + tenth);
    QTest::newRow("twice as deep") << square << Vec3(0.1, 0, 3) << Vec2(200 + tenth / 2, 200);
    QTest::newRow("pipe mouth: mirrored")
        << square << Vec3(-0.1, -0.1, 0) << Vec2(200 + tenth, 200 + tenth);
    QTest::newRow("wide viewport, square pixels")
        << wide << Vec3(-0.1, 0.1, 0) << Vec2(310 + tenth, 220 - tenth);
    QTest::newRow("on the camera plane")
        << square << Vec3(0.1, -0.1, 1) << Vec2(infinity, -infinity);
    QTest::newRow("at the eye") << square << Vec3(0, 0, 1) << Vec2(notANumber, notANumber);
}

void TestCamera::projects()
{
    QFETCH(QRectF, viewport);
    QFETCH(Vec3, point);
    QFETCH(Vec2, expected);
    COMPARE_NEAR(projected(cameraOver(viewport), point), expected, pixelTolerance);
}

void TestCamera::combinesFromViewportToModel()
{
    const MiniGL camera = cameraOver(QRectF(3, 5, 641, 479));
    Mat4 expected(camera.viewportMatrix);
    expected.multiply(camera.projectionMatrix);
    expected.multiply(camera.modelViewMatrix);
    Mat4 combined;
    camera.combinedMatrix(combined);
    COMPARE_EXACT(combined, expected);
}

void TestCamera::onResize_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRectF>("viewport");
    QTest::newRow("offset") << QRectF(10, 20, 300, 200) << QRectF(10, 20, 300, 200);
    QTest::newRow("no height") << QRectF(0, 0, 300, 0) << QRectF(0, 0, 300, 1);
    QTest::newRow("a quarter of a pixel high")
        << QRectF(0, 0, 300, 0.25) << QRectF(0, 0, 300, 0.25);
    QTest::newRow("no width") << QRectF(0, 0, 0, 200) << QRectF(0, 0, 0, 200);
}

void TestCamera::onResize()
{
    QFETCH(QRectF, rect);
    QFETCH(QRectF, viewport);
    MiniGL camera;
    camera.onResize(rect);
    QCOMPARE(camera.viewport, viewport);
    Mat4 expected;
    expected.setPerspective(37.5, viewport.width(), viewport.height(), 0.1, 10.0);
    COMPARE_EXACT(camera.projectionMatrix, expected);
    expected.setViewPort(viewport);
    COMPARE_EXACT(camera.viewportMatrix, expected);
}

void TestCamera::fieldOfViewKeepsTheViewport()
{
    MiniGL camera = cameraOver(QRectF(10, 20, 300, 200));
    camera.setFovYDEG(90);
    COMPARE_EXACT(camera.fovYDEG, 90.0);
    QCOMPARE(camera.viewport, QRectF(10, 20, 300, 200));
    // At 90 degrees the upper edge lies as far from the axis as it is deep.
    COMPARE_NEAR(projected(camera, Vec3(0, -1, 2)), Vec2(160, 20), pixelTolerance);
}

void TestCamera::screenDistanceIsSquared()
{
    COMPARE_EXACT(MiniGL().getScreenDistance(Vec3(1, 2, 9), Vec3(4, -2, 5)), 25.0);
    COMPARE_EXACT(MiniGL().getScreenDistance(Vec3(1, 2, 9), Vec3(1, 2, -9)), 0.0);
}

void TestCamera::screenDirection_data()
{
    QTest::addColumn<Vec3>("to");
    QTest::addColumn<Vec2>("expected");
    QTest::newRow("towards the other point") << Vec3(4, -2, 0) << Vec2(0.6, -0.8);
    QTest::newRow("same point") << Vec3(1, 2, 0) << Vec2(0, 0);
    QTest::newRow("same pixel, other depth") << Vec3(1, 2, 5) << Vec2(0, 0);
}

void TestCamera::screenDirection()
{
    QFETCH(Vec3, to);
    QFETCH(Vec2, expected);
    const Vec2 direction =
        MiniGL().calculate2DDirectionVectorOnScreenFromTwo3DPoints(Vec3(1, 2, 0), to);
    COMPARE_NEAR(direction, expected, roundingTolerance);
}

void TestCamera::turnsByTouch()
{
    MiniGL camera = cameraOver(QRectF(0, 0, 400, 400));
    Mat4 expected(camera.modelViewMatrix);
    expected.rotate(-0.3 * 37.5 * 0.5, 0, 1, 0);
    expected.rotate(0.7 * 37.5 * 0.5, 1, 0, 0);
    camera.rotateByTouchRotationVector(Vec2(0.3, -0.7));
    COMPARE_EXACT(camera.modelViewMatrix, expected);
}

void TestCamera::restoresNestedMatrices()
{
    MiniGL camera = cameraOver(QRectF(0, 0, 400, 400));
    const Mat4 outer(camera.modelViewMatrix);
    camera.pushModelViewMatrix();
    camera.rotateByTouchRotationVector(Vec2(0.3, 0.7));
    const Mat4 inner(camera.modelViewMatrix);
    camera.pushModelViewMatrix();
    camera.modelViewMatrix.scale(2, 3, 4);
    camera.popModelViewMatrix();
    COMPARE_EXACT(camera.modelViewMatrix, inner);
    camera.popModelViewMatrix();
    COMPARE_EXACT(camera.modelViewMatrix, outer);
    QVERIFY(camera.modelViewStack.empty());
}

QTEST_APPLESS_MAIN(TestCamera)
#include "tst_camera.moc"
