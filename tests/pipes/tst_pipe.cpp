#include "pipes/PipeDrawing.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/pipes/Pipe.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

Q_DECLARE_METATYPE(Drevon::Zalento::MeasureMode)

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double planeShare = 0.3;
constexpr double planeZ = -3.0 * planeShare;

// Places that the click flows speak of, as fractions of the radius. A click at a snaps to A, one
// at x does not: 12 % of the diameter are 0.24 radii.
const QHash<QChar, QPointF> &places()
{
    static const QHash<QChar, QPointF> result{
        {'A', {0.7, 0.0}}, {'B', {0.0, 0.7}}, {'C', {-0.7, 0.0}}, {'D', {0.0, -0.7}},
        {'a', {0.5, 0.2}}, {'x', {0.4, 0.1}}, {'H', {0.6, 0.6}}};
    return result;
}

Vec3 placeOf(QChar name, double radius)
{
    const QPointF place = places().value(name) * radius;
    return {place.x(), place.y(), planeZ};
}

class MeasuredPipe : public Pipe
{
public:
    explicit MeasuredPipe(MeasureMode mode = MeasureMode::NoMeasure)
    {
        camera.onResize(drawingArea);
        diameterMM = 300;
        setDiameterM(0.3);
        cylinder.createVerticesInWorldCoord(mode);
        setCrossSectDistancePercent(planeShare);
        measureMode = mode;
        setupMiniGL(getDiameterM(), {});
        connect(this, &Pipe::hitPointListSizeChanged, this,
                [this](int size) { signalLog << QString::number(size); });
        connect(this, &Pipe::measure1Changed, this,
                [this](double m) { signalLog << QString("first %1").arg(m); });
        connect(this, &Pipe::measure2Changed, this,
                [this](double m) { signalLog << QString("second %1").arg(m); });
    }

    // On the wall a place means its direction from the axis.
    Vec3 target(QChar name) const
    {
        const bool onPlane = measureMode == MeasureMode::CrossSection ||
                             measureMode == MeasureMode::FreeCrossSection;
        Vec3 p = placeOf(name, cylinder.radiusM);
        if (!onPlane) {
            const double stretch = cylinder.radiusM / std::hypot(p.x, p.y);
            p = Vec3(p.x * stretch, p.y * stretch, p.z);
        }
        return p;
    }

    void click(QChar name)
    {
        const QPointF pixel = pixelOf(*this, target(name)) - drawingArea.topLeft();
        addMeasurePoint(QPoint(int(pixel.x()), int(pixel.y())), 1, Vec3::Zero);
    }

    void perform(const QString &step)
    {
        if (step == "undo") {
            undoHitPointList();
        } else if (step == "miss") {
            addMeasurePoint(QPoint(288, 288), 1, Vec3(notANumber, 0, 0));
        } else if (step == "select") {
            selectedIndex = 0;
        } else if (step == "highlight") {
            highlightPoint = placeOf('H', cylinder.radiusM);
        } else if (step == "level") {
            setWaterLevelPercent(0.2);
        } else if (step == "dry") {
            setWaterLevelPercent(-0.0);
        } else {
            click(step.at(0));
        }
    }

    // "A B C A": a place is named within two pixels on the plane.
    QString pointNames() const
    {
        constexpr double twoPixelsM = 0.0035;
        QStringList names;
        for (const HitPoint &point : hitPoints) {
            QString name = "?";
            for (auto it = places().begin(); it != places().end(); ++it) {
                const Vec3 wanted = target(it.key());
                if (std::hypot(point.position.x - wanted.x, point.position.y - wanted.y) <
                    twoPixelsM) {
                    name = it.key();
                }
            }
            names << name;
        }
        return names.join(' ');
    }

    QStringList signalLog;
};

} // namespace

class TestPipe : public TestCase
{
    Q_OBJECT

private slots:
    void clicks_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("sizes");
        QTest::addColumn<QString>("points");
        QTest::addColumn<MeasureMode>("mode");
        const auto row = [](const char *name, const QString &steps, const QString &sizes,
                            const QString &points, MeasureMode mode = MeasureMode::CrossSection) {
            QTest::newRow(name) << steps << sizes << points << mode;
        };
        row("open polygon", "A B C D", "1 2 3 4", "A B C D");
        row("two points do not snap", "A B a", "1 2 3", "A B a");
        row("the third closes by snapping", "A B C a", "1 2 3 4", "A B C A");
        row("beyond the snap distance", "A B C x", "1 2 3 4", "A B C x");
        row("a click on a closed polygon starts anew", "A B C a B", "1 2 3 4 0 1", "B");
        row("near the old start, the new one still snaps", "A B C a a", "1 2 3 4 0 1", "A");
        row("selected first point closes, click dropped", "A B C select D", "1 2 3 4", "A B C A");
        row("selected first of two is no polygon", "A B select D", "1 2 3", "A B D");
        row("starting anew forgets the selection", "A B C select D B C D A", "1 2 3 4 0 1 2 3 4",
            "B C D A");
        row("a highlighted wall point is taken", "A B C highlight D", "1 2 3 4", "A B C H");
        row("a highlighted point wins over the snap", "A B C highlight a", "1 2 3 4", "A B C H");
        row("undo opens a closed polygon", "A B C a undo D", "1 2 3 4 3 4", "A B C D");
        row("undo of nothing is silent", "A undo undo", "1 0", "");
        row("a miss reports the size", "miss A miss", "0 1 1", "A");
        row("a miss leaves a closed polygon", "A B C a miss", "1 2 3 4 4", "A B C A");
        row("water clears", "A B level", "1 2 0", "");
        row("water clears nothing, loudly", "level", "0", "");
        row("no water keeps the points", "A B dry", "1 2", "A B");
        row("free cross section closes too", "A B C a D", "1 2 3 4 0 1", "D",
            MeasureMode::FreeCrossSection);
        for (const int mode : {0, 1, 3, 17}) {
            const QByteArray name =
                "no snap, closing or highlight in mode " + QByteArray::number(mode);
            row(name, "A B C select highlight A miss D", "1 2 3 4 4 5", "A B C A D",
                MeasureMode(mode));
        }
    }

    void clicks()
    {
        QFETCH(MeasureMode, mode);
        QFETCH(QString, steps);
        MeasuredPipe pipe(mode);
        const QStringList list = steps.split(' ');
        for (const QString &step : list) {
            pipe.perform(step);
        }
        QTEST(pipe.pointNames(), "points");
        QTEST(pipe.signalLog.join(' '), "sizes");
        const QStringList names = pipe.pointNames().split(' ');
        const bool closed = names.size() > 1 && names.first() == names.last();
        if (closed && mode == MeasureMode::CrossSection) {
            COMPARE_EXACT(pipe.hitPoints.back().position, pipe.hitPoints.front().position);
        }
    }

    void snapping()
    {
        MeasuredPipe pipe;
        const std::vector<HitPoint> list{HitPoint({0.1, 0, 0})};
        const Vec3 near(0.1 + 0.0359, -0.0359, 0.0359);
        COMPARE_EXACT(pipe.snapToFirst(list, near), near); // the pipe itself holds no points
        pipe.hitPoints.assign(3, HitPoint({9, 9, 9}));
        COMPARE_EXACT(pipe.snapToFirst(list, near), list[0].position);
        const Vec3 beyond(0.1, 0, 0.0361);
        COMPARE_EXACT(pipe.snapToFirst(list, beyond), beyond);
        COMPARE_EXACT(pipe.snapToFirst({}, near), near);
    }

    void crackPointsAreFractionsOfThePicture()
    {
        Pipe pipe;
        pipe.measureMode = MeasureMode::CrackWidth;
        QSignalSpy sizes(&pipe, &Pipe::hitPointListSizeChanged);
        pipe.addMeasurePoint(QPoint(384, 288), 1, Vec3::Zero); // before the picture has a size
        QCOMPARE(sizes.takeFirst().at(0).toInt(), 0);
        pipe.camera.onResize(QRectF(100, 50, 768, 576));
        pipe.addMeasurePoint(QPoint(384, 288), 1, Vec3(notANumber, notANumber, notANumber));
        COMPARE_EXACT(pipe.hitPoints.at(0).position, Vec3(0.5, 0.5, 0));
        pipe.addMeasurePoint(QPoint(-384, 1152), 1, Vec3::Zero);
        COMPARE_EXACT(pipe.hitPoints.at(1).position, Vec3(-0.5, 2, 0));
    }

    void crossSectionDistance_data()
    {
        QTest::addColumn<double>("share");
        QTest::addColumn<double>("kept");
        QTest::newRow("within") << 0.5 << 0.5;
        QTest::newRow("beyond the end") << 1.5 << 1.0;
        QTest::newRow("before the mouth") << -0.1 << 0.0;
        QTest::newRow("not a number") << notANumber << planeShare;
    }

    void crossSectionDistance()
    {
        QFETCH(double, share);
        QFETCH(double, kept);
        MeasuredPipe pipe(MeasureMode::CrossSection);
        pipe.click('A');
        pipe.hitPoints.emplace_back(Vec3(1, 2, 3));
        pipe.setCrossSectDistancePercent(planeShare);
        pipe.signalLog.clear();
        pipe.setCrossSectDistancePercent(share);
        COMPARE_EXACT(pipe.cylinder.crossSectDistancePercent, kept);
        for (const HitPoint &point : pipe.hitPoints) {
            COMPARE_EXACT(point.position.z, -(pipe.cylinder.lengthM * kept));
        }
        COMPARE_EXACT(pipe.hitPoints[1].position.y, 2.0);
        QVERIFY(pipe.signalLog.isEmpty());
    }
};

QTEST_MAIN(TestPipe)
#include "tst_pipe.moc"
