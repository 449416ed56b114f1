#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/render/MiniGL.h"

#include <cmath>
#include <limits>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

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
    void startsWithDefaults()
    {
        const MiniGL camera;
        COMPARE_EXACT(camera.eye, Vec3(0, 0, 1));
        COMPARE_EXACT(camera.center, Vec3(0, 0, 1000000));
        COMPARE_EXACT(camera.up, Vec3(0, -1, 0));
        COMPARE_EXACT(camera.fovYDEG, 37.5);
        QCOMPARE(camera.textBackgroundBrush, QBrush(QColor(0, 0, 0, 180), Qt::SolidPattern));
        // Scene positions are pixels until it has a size.
        COMPARE_EXACT(projected(camera, Vec3(3, -4, 7)), Vec2(3, -4));
    }

    void projects_data()
    {
        QTest::addColumn<QRectF>("viewport");
        QTest::addColumn<Vec3>("point");
        QTest::addColumn<Vec2>("expected");
        const QRectF square(0, 0, 400, 400);
        const QRectF wide(10, 20, 600, 400);
        const double infinity = std::numeric_limits<double>::infinity();
        const double notANumber = std::numeric_limits<double>::quiet_NaN();
        // 0.1 m at a depth of 1 m, in pixels of a viewport 400 pixels high.
        const double tenth = 0.1 / std::tan(37.5 / 2 * 0.017453292519943295) * 200;
        QTest::newRow("in front: +x right, +y down")
            << square << Vec3(0.1, 0.1, 2) << Vec2(200 + tenth, 200 + tenth);
        QTest::newRow("twice as deep") << square << Vec3(0.1, 0, 3) << Vec2(200 + tenth / 2, 200);
        QTest::newRow("pipe mouth: mirrored, square pixels")
            << wide << Vec3(-0.1, 0.1, 0) << Vec2(310 + tenth, 220 - tenth);
        QTest::newRow("on the camera plane")
            << square << Vec3(0.1, -0.1, 1) << Vec2(infinity, -infinity);
        QTest::newRow("at the eye") << square << Vec3(0, 0, 1) << Vec2(notANumber, notANumber);
    }

    void projects()
    {
        QFETCH(QRectF, viewport);
        QFETCH(Vec3, point);
        QFETCH(Vec2, expected);
        COMPARE_NEAR(projected(cameraOver(viewport), point), expected, pixelTolerance);
    }

    void matricesOfARectangle()
    {
        for (const QRectF &rect : {QRectF(3, 5, 641, 479), QRectF(0, 0, 300, 0),
                                   QRectF(0, 0, 300, 0.25), QRectF(0, 0, 0, 200)}) {
            MiniGL camera = cameraOver(rect);
            const QRectF viewport(rect.topLeft(),
                                  QSizeF(rect.width(), rect.height() == 0 ? 1 : rect.height()));
            for (const double fovYDEG : {37.5, 90.0}) {
                camera.setFovYDEG(fovYDEG);
                COMPARE_EXACT(camera.fovYDEG, fovYDEG);
                QCOMPARE(camera.viewport, viewport);
                Mat4 projection;
                projection.setPerspective(fovYDEG, viewport.width(), viewport.height(), 0.1, 10.0);
                COMPARE_EXACT(camera.projectionMatrix, projection);
                Mat4 expected;
                expected.setViewPort(viewport);
                COMPARE_EXACT(camera.viewportMatrix, expected);
                expected.multiply(projection);
                expected.multiply(camera.modelViewMatrix);
                Mat4 combined;
                camera.combinedMatrix(combined);
                COMPARE_EXACT(combined, expected);
            }
        }
    }

    void screenDistanceAndDirection()
    {
        const MiniGL camera;
        const Vec3 from(1, 2, 9);
        COMPARE_EXACT(camera.getScreenDistance(from, Vec3(4, -2, 5)), 25.0); // squared
        const auto direction = [&](const Vec3 &to) {
            return camera.calculate2DDirectionVectorOnScreenFromTwo3DPoints(from, to);
        };
        COMPARE_NEAR(direction(Vec3(4, -2, 5)), Vec2(0.6, -0.8), roundingTolerance);
        COMPARE_EXACT(direction(Vec3(1, 2, -9)), Vec2(0, 0)); // same pixel, other depth
    }

    void turnsByTouchAndBack()
    {
        MiniGL camera = cameraOver(QRectF(0, 0, 400, 400));
        const Mat4 outer(camera.modelViewMatrix);
        Mat4 inner(outer);
        inner.rotate(-0.3 * 37.5 * 0.5, 0, 1, 0);
        inner.rotate(0.7 * 37.5 * 0.5, 1, 0, 0);
        camera.pushModelViewMatrix();
        camera.rotateByTouchRotationVector(Vec2(0.3, -0.7));
        camera.pushModelViewMatrix();
        camera.modelViewMatrix.scale(2, 3, 4);
        camera.popModelViewMatrix();
        COMPARE_EXACT(camera.modelViewMatrix, inner);
        camera.popModelViewMatrix();
        COMPARE_EXACT(camera.modelViewMatrix, outer);
        QVERIFY(camera.modelViewStack.empty());
    }
};

QTEST_APPLESS_MAIN(TestCamera)
#include "tst_camera.moc"
