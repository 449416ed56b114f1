// From pixels to points of the pipe and back.
#include "geometry/PipeView.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/geometry/Cylinder.h"

#include <cmath>
#include <optional>
#include <random>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

/** Half a unit in the last place of a single-precision number near 1. */
constexpr double singleRounding = 0x1p-24;

constexpr int views = 4000;

// A double-precision ray keeps its direction to some 1e-15; a thousand pixels of focal length and
// two products of rotations leave this much room.
constexpr Tolerance wallRoundTripTolerance{1e-6, "px"};
// Single precision moves a point by less, for all these views; far below what an operator sees.
constexpr Tolerance planeRoundTripTolerance{0.05, "px"};

const Vec3 untouched(11, 22, 33);

// A camera whose only pixel's ray runs exactly along the viewing direction.
PipeView onePixelView(const Vec3 &eye, const Vec3 &center)
{
    PipeView view(QRectF(0, 0, 1, 1), 45, eye, Vec3::Zero);
    view.camera.center = center;
    return view;
}

struct RandomView
{
    PipeView view;
    Cylinder pipe;
    QPoint pixel;
};

class RandomViews
{
public:
    // Fields of view, camera heights, offsets, gestures, rolls and rectangles as operators meet
    // them and beyond: some look at the pipe from outside.
    RandomView next()
    {
        const int width = 1 + int(between(1, 2000));
        const int height = 1 + int(between(1, 2000));
        const QRectF viewport(between(-300, 300), between(-300, 300), width, height);
        const double diameter = between(0.05, 2);
        const double fov = between(10, 120);
        const double distance = diameter * 0.51 / std::tan(fov * std::acos(-1.0) / 360);
        const Vec3 eye(between(-0.6, 0.6) * diameter, between(-0.5, 0.5) * diameter, distance);
        RandomView result{
            PipeView(viewport, fov, eye, Vec3(between(-1, 1), between(-1, 1), between(-360, 360))),
            Cylinder(diameter), QPoint(int(between(0, width)), int(between(0, height)))};
        result.pipe.createVerticesInWorldCoord(MeasureMode::NoMeasure);
        result.pipe.crossSectDistancePercent = between(0, 1);
        return result;
    }

private:
    double between(double low, double high)
    {
        return std::uniform_real_distribution<double>(low, high)(m_generator);
    }

    std::mt19937_64 m_generator{20240521};
};

// Farthest meeting of what the pixel shows with the endless wall, solved as a quadratic equation
// in the pipe frame. None when the eye is not between the two meetings, or behind both.
std::optional<Vec3> wallSeenThrough(const RandomView &r)
{
    const Vec3 e = r.view.toPipeFrame(r.view.camera.eye);
    const Vec3 v = r.view.toPipeFrame(r.view.visibleDirection(r.pixel));
    const double a = v.x * v.x + v.y * v.y;
    const double b = e.x * v.x + e.y * v.y;
    const double c = e.x * e.x + e.y * e.y - r.pipe.radiusM * r.pipe.radiusM;
    const double root = std::sqrt(b * b - a * c);
    if (std::isnan(root) || -b - root > 0) {
        return std::nullopt;
    }
    return e + ((root - b) / a) * v;
}

Vec2 pixelCentre(const RandomView &r)
{
    const QPointF corner = r.view.camera.viewport.topLeft();
    return {corner.x() + r.pixel.x() + 0.5, corner.y() + r.pixel.y() + 0.5};
}

} // namespace

class TestPicking : public TestCase
{
    Q_OBJECT

private slots:
    void roundTrips()
    {
        RandomViews random;
        int hits = 0;
        for (int k = 0; k < views; ++k) {
            const RandomView r = random.next();
            const PipeView &view = r.view;
            const Vec3 visible = view.visibleDirection(r.pixel);
            Vec3 origin;
            Vec3 direction;
            r.pipe.rayVectors(r.pixel, view.camera, origin, direction);
            COMPARE_NEAR(origin, view.camera.eye, roundingTolerance);
            COMPARE_NEAR(direction, -visible / visible.length(), roundingTolerance);
            const Vec3 eye = view.toPipeFrame(origin);

            Vec3 onPlane;
            QVERIFY(r.pipe.intersectPlaneRay(r.pixel, view.camera, onPlane, view.rotation));
            COMPARE_NEAR(view.project(onPlane), pixelCentre(r), planeRoundTripTolerance);
            const double planeZ = -r.pipe.lengthM * r.pipe.crossSectDistancePercent;
            // About a dozen roundings of the three lengths, in each of three components.
            const double lengths = -planeZ + eye.length() + (onPlane - eye).length();
            COMPARE_NEAR(onPlane.z, planeZ, (Tolerance{24 * singleRounding * lengths, "m"}));

            const std::optional<Vec3> expected = wallSeenThrough(r);
            Vec3 onWall = untouched;
            const bool hit = r.pipe.intersectRay(r.pixel, view.camera, onWall, view.rotation);
            QCOMPARE(hit, expected.has_value());
            if (!hit) {
                COMPARE_EXACT(onWall, untouched);
                continue;
            }
            ++hits;
            COMPARE_NEAR(view.project(onWall), pixelCentre(r), wallRoundTripTolerance);
            // The axial position of a nearly parallel ray loses digits with the square of its
            // length.
            const double distance = (*expected - eye).length();
            const double magnification = 1 + distance * distance / r.pipe.radiusM;
            COMPARE_NEAR(onWall, *expected, (Tolerance{1e-13 * magnification, "m"}));
        }
        QVERIFY(hits > views / 2 && hits < views);
    }

    void rayAlongTheAxis()
    {
        // On the axis, on the wall, beside the pipe.
        for (const double eyeX : {0.0, 0.25, 0.2500001}) {
            Cylinder pipe(0.5);
            pipe.createVerticesInWorldCoord(MeasureMode::NoMeasure);
            const PipeView view = onePixelView(Vec3(eyeX, 0, 1), Vec3(eyeX, 0, 1000000));
            Vec3 picked = untouched;
            QCOMPARE(pipe.intersectRay(QPoint(0, 0), view.camera, picked, view.rotation),
                     eyeX <= 0.25);
            COMPARE_EXACT(picked, untouched);
        }
    }

    void planeSeenFromTheSideIsMissed()
    {
        Cylinder pipe(0.5);
        pipe.crossSectDistancePercent = 0.5;
        Vec3 picked = untouched;
        const PipeView aside = onePixelView(Vec3(0, 0, 1), Vec3(5, 0, 1));
        QVERIFY(!pipe.intersectPlaneRay(QPoint(0, 0), aside.camera, picked, Vec3::Zero));
        COMPARE_EXACT(picked, untouched);
        // One part in five out of the plane it meets it, on the side away from the centre.
        const PipeView slanting = onePixelView(Vec3(0, 0, 1), Vec3(5, 0, 2));
        QVERIFY(pipe.intersectPlaneRay(QPoint(0, 0), slanting.camera, picked, Vec3::Zero));
        COMPARE_NEAR(picked, Vec3(-17.5, 0, -2.5), (Tolerance{24 * singleRounding * 22, "m"}));
    }
};

QTEST_GUILESS_MAIN(TestPicking)
#include "tst_picking.moc"
