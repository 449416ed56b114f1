#include "pipes/PipeDrawing.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/pipes/Pipe.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

constexpr double degree = M_PI / 180;

class Contour : public Pipe
{
public:
    Contour()
    {
        camera.onResize(drawingArea);
        diameterMM = 300;
        setDiameterM(0.3);
        measureMode = MeasureMode::CrossSection;
        setupMiniGL(getDiameterM(), {});
        deformHitPointList();
    }

    // Point of the contour at an index, from the circle that it is made of.
    Vec3 onCircle(double index, double share = 1) const
    {
        const double a = (index - 180) * degree;
        return {share * 0.15 * std::sin(a), share * 0.15 * std::cos(a), 0};
    }

    // What a click at the place picks: the pixel's centre.
    QPoint pixel(const Vec3 &place)
    {
        const QPointF p = pixelOf(*this, place) - drawingArea.topLeft();
        return {int(p.x()), int(p.y())};
    }

    std::vector<Vec3> positions() const
    {
        std::vector<Vec3> result;
        for (const HitPoint &point : hitPoints) {
            result.push_back(point.position);
        }
        return result;
    }

    // First and last index whose position differs from before; (-1, -1) for none.
    QPair<int, int> changed(const std::vector<Vec3> &before) const
    {
        QPair<int, int> range(-1, -1);
        for (int i = 0; i < int(before.size()); ++i) {
            if (before[std::size_t(i)] != hitPoints[std::size_t(i)].position) {
                range.first = range.first < 0 ? i : range.first;
                range.second = i;
            }
        }
        return range;
    }
};

// A pixel at the mouth of the 300 mm pipe.
const Tolerance onePixel{0.0006, "m"};

} // namespace

class TestPipeContour : public TestCase
{
    Q_OBJECT

private slots:
    void aNewContour()
    {
        Contour pipe;
        pipe.setCrossSectDistancePercent(0.4);
        QSignalSpy sizes(&pipe, &Pipe::hitPointListSizeChanged);
        pipe.cylinder.verticesUpToDate = false;
        pipe.deformHitPointList();
        QCOMPARE(sizes.count(), 1);
        QCOMPARE(sizes[0][0].toInt(), 361);
        QVERIFY(pipe.cylinder.verticesUpToDate);
        for (int i = 0; i < 361; ++i) {
            const HitPoint &point = pipe.hitPoints[std::size_t(i)];
            QCOMPARE(point.isAnchor, i % 90 == 0);
            QCOMPARE(point.isVisible, i % 15 == 0 && i < 360);
            QVERIFY(!point.isHighlighted);
            const Vec3 circle = pipe.onCircle(i);
            COMPARE_NEAR(point.position, Vec3(circle.x, circle.y, -1.2), roundingTolerance);
        }
        COMPARE_EXACT(pipe.hitPoints[360].position, pipe.hitPoints[0].position);
    }

    void finding_data()
    {
        QTest::addColumn<double>("index");
        QTest::addColumn<double>("share");
        QTest::addColumn<int>("found");
        QTest::addColumn<bool>("wall");
        QTest::newRow("on a visible point") << 45.0 << 1.0 << 45 << true;
        QTest::newRow("on the start, not its twin") << 0.0 << 1.0 << 0 << true;
        QTest::newRow("on an invisible point, wall alone") << 52.0 << 1.0 << -1 << true;
        QTest::newRow("just inside the wall") << 52.0 << 0.99 << -1 << true;
        QTest::newRow("five pixels inside") << 45.0 << 0.982 << -1 << false;
        QTest::newRow("on the axis") << 45.0 << 0.0 << -1 << false;
    }

    void finding()
    {
        QFETCH(double, index);
        QFETCH(double, share);
        QFETCH(int, found);
        QFETCH(bool, wall);
        Contour pipe;
        pipe.selectedIndex = 7;
        pipe.highlightPoint = Vec3::XAxis;
        pipe.hitPoints[15].isHighlighted = true;
        pipe.hitPoints[16].isHighlighted = true;
        QCOMPARE(pipe.findNearestHitPoint(pipe.pixel(pipe.onCircle(index, share)), Vec3::Zero),
                 found);
        QCOMPARE(pipe.selectedIndex, found);
        QCOMPARE(pipe.highlightPoint != Vec3::Zero, wall);
        if (wall) {
            COMPARE_NEAR(pipe.highlightPoint, pipe.onCircle(index), onePixel);
            COMPARE_NEAR(std::hypot(pipe.highlightPoint.x, pipe.highlightPoint.y), 0.15,
                         roundingTolerance);
        }
        QVERIFY(!pipe.hitPoints[15].isHighlighted);
        QVERIFY(pipe.hitPoints[16].isHighlighted); // not visible, not touched
    }

    void moving_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<double>("toIndex");
        QTest::addColumn<double>("share");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        QTest::newRow("between anchors") << 45 << 45.0 << 0.7 << 1 << 89;
        QTest::newRow("outwards") << 130 << 130.0 << 1.2 << 91 << 179;
        QTest::newRow("across the anchor behind it") << 75 << 110.0 << 0.8 << 1 << 89;
        QTest::newRow("an anchor itself, up to its neighbours") << 180 << 180.0 << 0.6 << 91 << 269;
        QTest::newRow("start and end together") << 0 << 0.0 << 0.6 << 0 << 360;
        QTest::newRow("onto an anchor: refused") << 45 << 90.0 << 1.0 << -1 << -1;
        QTest::newRow("level with an anchor: refused") << 45 << 90.0 << 0.5 << -1 << -1;
        QTest::newRow("the end alone has no anchor behind it") << 360 << 10.0 << 0.7 << -1 << -1;
    }

    void moving()
    {
        QFETCH(int, index);
        QFETCH(double, toIndex);
        QFETCH(double, share);
        Contour pipe;
        QSignalSpy sizes(&pipe, &Pipe::hitPointListSizeChanged);
        const std::vector<Vec3> before = pipe.positions();
        const Vec3 target = pipe.onCircle(toIndex, share);
        pipe.moveHitPoint(index, pipe.pixel(target), Vec3::Zero);
        QTEST(pipe.changed(before).first, "first");
        QTEST(pipe.changed(before).second, "last");
        QVERIFY(sizes.isEmpty());
        if (pipe.changed(before).first >= 0) {
            COMPARE_NEAR(pipe.hitPoints[std::size_t(index)].position, target, onePixel);
        }
        if (index == 0) {
            COMPARE_EXACT(pipe.hitPoints[360].position, pipe.hitPoints[0].position);
            COMPARE_EXACT(pipe.hitPoints[90].position, before[90]);
            COMPARE_EXACT(pipe.hitPoints[180].position, before[180]);
            COMPARE_EXACT(pipe.hitPoints[270].position, before[270]);
        }
    }

    void theStretchFollowsInProportion()
    {
        Contour pipe;
        const std::vector<Vec3> before = pipe.positions();
        pipe.moveHitPoint(45, pipe.pixel(pipe.onCircle(45, 0.7)), Vec3::Zero);
        const Vec3 moved = pipe.hitPoints[45].position;
        for (const auto &[i, anchor] : {std::pair(20, 0), std::pair(70, 90)}) {
            const Vec3 &a = before[std::size_t(anchor)];
            const Vec3 &was = before[std::size_t(i)];
            const Vec3 &is = pipe.hitPoints[std::size_t(i)].position;
            COMPARE_NEAR((is.x - a.x) / (moved.x - a.x), (was.x - a.x) / (before[45].x - a.x),
                         roundingTolerance);
            COMPARE_NEAR((is.y - a.y) / (moved.y - a.y), (was.y - a.y) / (before[45].y - a.y),
                         roundingTolerance);
            COMPARE_EXACT(is.z, was.z);
        }
    }

    void movingWithoutAnchors()
    {
        const std::pair<QVector<int>, int> cases[] = {
            {{}, 45},   {{0}, 45},          {{90}, 45}, // one behind and one before are needed
            {{45}, 45}, {{0, 90, 360}, -1}, {{0, 90, 360}, 361}};
        for (const auto &[anchors, index] : cases) {
            Contour pipe;
            for (int i = 0; i < 361; ++i) {
                pipe.hitPoints[std::size_t(i)].isAnchor = anchors.contains(i);
            }
            const std::vector<Vec3> before = pipe.positions();
            const QPoint target = pipe.pixel(pipe.onCircle(45, 0.7));
            pipe.moveHitPoint(index, target, Vec3::Zero);
            QCOMPARE(pipe.changed(before), qMakePair(-1, -1));
            pipe.hitPoints.clear();
            pipe.moveHitPoint(0, target, Vec3::Zero);
            QVERIFY(pipe.hitPoints.empty());
        }
    }
};

QTEST_MAIN(TestPipeContour)
#include "tst_pipecontour.moc"
