#include "pipes/PipeDrawing.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/pipes/PipeBend.h"
#include "zalento/pipes/PipeJoint.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double degree = M_PI / 180;
constexpr double drawnShare = 0.9512;

// The calls of one circle: a mark of 6 pixels, then 72 segments, each with a mark of 2 pixels.
struct Circle
{
    QPointF start; // top-left corner of the first mark
    QString pen;
    int segments = 0;
    int translucent = 0;
    bool isComplete = true;

    // "red 2", and "faint" when every segment is translucent.
    QString name() const
    {
        if (!isComplete || segments != 72) {
            return "incomplete";
        }
        return pen + (translucent == 0 ? "" : translucent == segments ? " faint" : " partly faint");
    }
};

QVector<Circle> circlesOf(const QVector<PaintCall> &calls)
{
    QVector<Circle> circles;
    for (int i = 0; i < calls.size(); ++i) {
        const PaintCall &call = calls[i];
        const bool isMark = call.kind == PaintCall::Kind::EllipseInt;
        if (isMark && call.points[1] == QPointF(6, 6)) {
            circles.append(Circle{call.points[0], penName(call.pen)});
        } else if (!circles.isEmpty() && isMark && call.points[1] == QPointF(2, 2)) {
            circles.last().isComplete &=
                calls[i - 1].kind == PaintCall::Kind::LinesInt && call.pen == calls[i - 1].pen;
        } else if (!circles.isEmpty() && call.kind == PaintCall::Kind::LinesInt) {
            ++circles.last().segments;
            circles.last().translucent += call.pen.color().alpha() == 90;
        } else {
            circles.append(Circle{{}, "unexpected " + call.toString()});
        }
    }
    return circles;
}

QString namesOf(const QVector<Circle> &circles)
{
    QStringList names;
    for (const Circle &circle : circles) {
        addCounted(names, circle.name());
    }
    return names.join(", ");
}

template <typename Object>
Object &sized(Object &object)
{
    object.camera.onResize(drawingArea);
    object.diameterMM = 300;
    object.setDiameterM(0.3);
    return object;
}

} // namespace

class TestPipeBend : public TestCase
{
    Q_OBJECT

private slots:
    void angles_data()
    {
        QTest::addColumn<double>("given");
        QTest::addColumn<double>("kept");
        QTest::newRow("down") << 47.4 << 45.0;
        QTest::newRow("halves away from zero") << 47.5 << 50.0;
        QTest::newRow("below half a step") << 2.4 << 0.0;
        QTest::newRow("right angle") << 90.0 << 90.0;
        QTest::newRow("just below zero") << -2.4 << 0.0;
        QTest::newRow("negative") << -2.5 << -5.0;
    }

    void angles()
    {
        QFETCH(double, given);
        QFETCH(double, kept);
        PipeBend bend;
        bend.setAngleDeg(given);
        COMPARE_EXACT(bend.angleDeg, kept);
        COMPARE_EXACT(bend.measure1, kept);
        QCOMPARE(bend.observable, ObservableType::BendAngle);
    }

    void theCircle()
    {
        PipeBend bend;
        sized(bend);
        COMPARE_EXACT(bend.straightLengthM, 0.3 * 0.65);
        const double r = 0.15 * drawnShare;
        for (int i = 0; i <= 72; ++i) {
            const double a = i * 5 * degree;
            COMPARE_NEAR(bend.circlePoints[std::size_t(i)],
                         Vec3(r * std::cos(a) - r, -r * std::sin(a), 0), roundingTolerance);
        }
    }

    void drawing_data()
    {
        QTest::addColumn<bool>("downstream");
        QTest::addColumn<double>("angle");
        QTest::addColumn<int>("viewStyle");
        QTest::addColumn<QString>("circles");
        const QString mouth = "green 2 x2, green 3.5";
        const QString ends = mouth + ", yellow 1 faint";
        const QString upstreamEnds = "yellow 3.5, yellow 1, green 1 faint";
        const QHash<int, QString> turns{{0, ""},
                                        {4, ""},
                                        {5, ", red 2 faint"},
                                        {45, ", red 2 faint x9"},
                                        {90, ", red 2 faint x18"}};
        for (const int angle : {0, 4, 5, 45, 90}) {
            const QString full = mouth + turns[angle] + ", yellow 1 faint x6";
            const QString upstreamFull =
                "yellow 3.5, yellow 1 x6" + turns[angle] + ", green 1 faint x2";
            const auto row = [angle](const char *direction, int style, const QString &circles) {
                QTest::addRow("%s, %d degrees, style %d", direction, angle, style)
                    << (direction[0] == 'd') << double(angle) << style << circles;
            };
            row("downstream", 0, "");
            row("downstream", 1, ends);
            row("downstream", 2, full);
            row("upstream", 0, "");
            row("upstream", 1, upstreamEnds);
            row("upstream", 2, upstreamFull);
        }
        QTest::newRow("an unknown style shows the ends") << true << 45.0 << 7 << ends;
    }

    void drawing()
    {
        QFETCH(bool, downstream);
        QFETCH(double, angle);
        QFETCH(int, viewStyle);
        PipeBend bend;
        sized(bend).angleDeg = angle; // 4 is no angle that the setter makes
        bend.setViewDownstream(downstream);
        bend.clockDeg = 30;
        QTEST(namesOf(circlesOf(painted(bend, viewStyle, Vec3(0.1, 0.2, 15)))), "circles");
        QVERIFY(bend.camera.modelViewStack.empty());
    }

    void anyStyleDrawsAJointByItsEnds()
    {
        PipeJoint joint;
        sized(joint).setAngleDeg(45);
        joint.setOffsetZ_Percent(0.5);
        for (const int viewStyle : {0, 1, 2}) {
            QCOMPARE(namesOf(circlesOf(painted(joint, viewStyle))),
                     QString("green 2 x2, green 3.5, yellow 1 faint"));
        }
    }

    void whereTheCirclesLie_data()
    {
        QTest::addColumn<bool>("downstream");
        QTest::addColumn<double>("angle");
        QTest::newRow("straight, downstream") << true << 0.0;
        QTest::newRow("bent, downstream") << true << 45.0;
        QTest::newRow("right angle, upstream") << false << 90.0;
    }

    // The mark of a circle stands at its point on the turn axis (r, 0): there z is the way along
    // the straight parts, and behind the bend that way is turned about the axis.
    void whereTheCirclesLie()
    {
        QFETCH(bool, downstream);
        QFETCH(double, angle);
        PipeBend bend;
        sized(bend).setAngleDeg(angle);
        bend.setViewDownstream(downstream);
        const Vec3 rotation(0.1, -0.15, 20);
        const QVector<Circle> circles = circlesOf(painted(bend, 2, rotation));
        const int turns = int(angle) / 5;
        const double r = 0.15 * drawnShare;
        const double step = 0.3 * 0.65 / 6;
        QVector<Vec3> expected;
        const auto behindTheBend = [&](double straight, double way) {
            const Vec3 along(std::sin(angle * degree), 0, -std::cos(angle * degree));
            return Vec3(r, 0, -straight) + along * way;
        };
        if (downstream) {
            expected << Vec3(r, 0, 0.12) << Vec3(r, 0, 0.06) << Vec3(r, 0, 0);
            expected.append(QVector<Vec3>(turns, Vec3(r, 0, 0)));
            for (int m = 1; m <= 6; ++m) {
                expected << behindTheBend(0, m * step);
            }
        } else {
            for (int m = 0; m <= 6; ++m) {
                expected << Vec3(r, 0, -m * step);
            }
            expected.append(QVector<Vec3>(turns, Vec3(r, 0, -6 * step)));
            expected << behindTheBend(6 * step, 0.06) << behindTheBend(6 * step, 0.12);
        }
        QCOMPARE(circles.size(), expected.size());
        for (int i = 0; i < circles.size(); ++i) {
            const QPointF mark = pixelOf(bend, expected[i], rotation) - QPointF(3, 3);
            // The corner loses its fraction.
            QCOMPARE(circles[i].start, QPointF(int(mark.x()), int(mark.y())));
        }
    }

    void jointLength_data()
    {
        QTest::addColumn<double>("share");
        QTest::addColumn<double>("kept");
        QTest::newRow("within") << 0.5 << 0.5;
        QTest::newRow("nothing") << 0.0 << 0.01;
        QTest::newRow("too long") << 2.0 << 0.99;
        QTest::newRow("not a number keeps the old one") << notANumber << 0.25;
    }

    void jointLength()
    {
        QFETCH(double, share);
        QFETCH(double, kept);
        PipeJoint joint;
        sized(joint).setOffsetZ_Percent(0.25);
        joint.setOffsetZ_Percent(share);
        COMPARE_EXACT(joint.offset.z, 0.3 * drawnShare * kept);
        COMPARE_NEAR(joint.getOffsetZ_Percent(), kept, roundingTolerance);
        joint.setDiameterM(0.6);
        COMPARE_EXACT(joint.offset.z, 0.3 * drawnShare * kept);
        COMPARE_NEAR(joint.getOffsetZ_Percent(), kept / 2, roundingTolerance);
    }

    void noFiniteLength()
    {
        PipeJoint joint;
        sized(joint).setOffsetZ_Percent(0.25);
        joint.setDiameterM(std::numeric_limits<double>::infinity());
        joint.setOffsetZ_Percent(0.5);
        COMPARE_EXACT(joint.offset.z, 0.3 * drawnShare * 0.25);
    }
};

QTEST_MAIN(TestPipeBend)
#include "tst_pipebend.moc"
