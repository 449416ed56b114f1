// What the painter is told about the pipe: rings, water, cross-section disc.
#include "geometry/PipeView.h"
#include "support/PaintRecorder.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/geometry/Cylinder.h"

#include <QFontMetrics>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

using Kind = PaintCall::Kind;

namespace {

const QColor cylinderColor(10, 20, 30, 200);
const QColor measureColor(40, 50, 60, 210);

const Vec3 turned(0.2, -0.1, 25);

const char *const mouthRing = "line 361 #c80a141e 3 square bevel";
const char *const innerRing = "line 361 #500a141e 2 square bevel";
const char *const lastRing = "line 361 #c80a141e 1 square bevel";

struct Painted
{
    QVector<PaintCall> calls;
    QStringList summary;
    QPen penLeft;
    bool brushKept = false;
    ObservableType observable = ObservableType::BendAngle;
};

// Kind, number of points, pen or brush; labels with their text.
QString summaryOf(const PaintCall &call)
{
    switch (call.kind) {
    case Kind::PolylineFloat:
        return QString("line %1 %2").arg(call.points.size()).arg(penText(call.pen));
    case Kind::LinesFloat:
        return QString("segment %1").arg(penText(call.pen));
    case Kind::Path:
        return QString("path %1 %2 on %3")
            .arg(call.points.size())
            .arg(penText(call.pen), call.brush.style() == Qt::SolidPattern
                                        ? call.brush.color().name(QColor::HexArgb)
                                        : QString("nothing"));
    case Kind::Text:
        return QString("text \"%1\" %2").arg(call.text, penText(call.pen));
    case Kind::RectsFloat:
        return QString("box %1 on %2")
            .arg(penText(call.pen), call.brush.color().name(QColor::HexArgb));
    default:
        return call.toString();
    }
}

Painted paint(PipeView &view, const Cylinder &pipe, int ringStep, MeasureMode mode)
{
    PaintRecorder recorder;
    QPainter painter(&recorder);
    painter.setBrush(QBrush(Qt::green, Qt::Dense3Pattern));
    const QBrush brush = painter.brush();
    Painted result;
    view.camera.renderCylinder(painter, cylinderColor, measureColor, pipe, ringStep, mode,
                               result.observable, MeasureUnit::Imperial);
    result.calls = recorder.calls();
    result.penLeft = painter.pen();
    result.brushKept = painter.brush() == brush;
    for (const PaintCall &call : result.calls) {
        result.summary.append(summaryOf(call));
    }
    return result;
}

Cylinder pipeWithWater(double level)
{
    Cylinder pipe(0.3);
    pipe.waterLevelPercent = level;
    pipe.createVerticesInWorldCoord(MeasureMode::WaterLevel);
    return pipe;
}

QStringList allRings()
{
    QStringList rings{mouthRing};
    for (int i = 1; i < 10; ++i) {
        rings.append(innerRing);
    }
    return rings << lastRing;
}

QPointF pixels(const PipeView &view, const Vec3 &point)
{
    const Vec2 s = view.project(point);
    return {s.x, s.y};
}

// QVector<QPointF> compares fuzzily.
bool isSame(const QVector<QPointF> &a, const QVector<QPointF> &b)
{
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(),
        [](const QPointF &p, const QPointF &q) { return p.x() == q.x() && p.y() == q.y(); });
}

QVector<QPointF> ringPixels(const PipeView &view, const Cylinder &pipe, int ring,
                            const QVector<int> &indices)
{
    QVector<QPointF> points;
    for (const int j : indices) {
        points.append(pixels(view, pipe.vertices[std::size_t(ring)][std::size_t(j)]));
    }
    return points;
}

QVector<int> steps(int first, int last)
{
    QVector<int> result;
    for (int j = first; j != last; j += first < last ? 1 : -1) {
        result.append(j);
    }
    result.append(last);
    return result;
}

} // namespace

Q_DECLARE_METATYPE(MeasureMode)

class TestCylinderRendering : public TestCase
{
    Q_OBJECT

private slots:
    void callsOfEachMode_data();
    void callsOfEachMode();
    void ringsAboveTheWaterLine();
    void waterOfEachRing();
    void labelStandsAtTheWaterLine_data();
    void labelStandsAtTheWaterLine();
    void discLiesInThePickedPlane();
    void cutRingKeepsItsArc();
    void singleRingIsDrawnOnce();
    void shortFormDrawsRingsAlone();
    void pipesWithoutExtentArePainted_data();
    void pipesWithoutExtentArePainted();
};

void TestCylinderRendering::callsOfEachMode_data()
{
    QTest::addColumn<MeasureMode>("mode");
    QTest::addColumn<int>("ringStep");
    QTest::addColumn<double>("level");
    QTest::addColumn<QStringList>("expected");
    const QString segment1 = "segment #d228323c 1 square bevel";
    const QStringList disc{"path 361 none on #3228323c",
                           "path 361 #d228323c 3 square bevel on nothing"};
    const auto label = [](int percent) {
        return QStringList{"box none on #b4000000",
                           QString("text \" %1 % \" #d228323c 1 square bevel").arg(percent)};
    };
    const auto dryAndWet = [&](int dryPoints, int wetPoints) {
        QStringList calls = allRings().replaceInStrings("361", QString::number(dryPoints));
        for (int i = 0; i <= 10; ++i) {
            const QString pen = i == 0    ? "#d228323c 2 square bevel"
                                : i == 10 ? "#d228323c 1 square bevel"
                                          : "#5028323c 1 square bevel";
            calls << QString("line %1 %2").arg(wetPoints).arg(pen) << "segment " + pen;
        }
        return calls;
    };
    const QStringList endRings{mouthRing, lastRing};
    const QStringList wetEnds{"line 122 #d228323c 2 square bevel",
                              "segment #d228323c 2 square bevel",
                              "line 122 #d228323c 1 square bevel",
                              segment1,
                              segment1,
                              segment1};
    const QStringList full = QStringList(dryAndWet(1, 362)).mid(11);

    QTest::newRow("rings alone") << MeasureMode::NoMeasure << 1 << 0.0 << allRings();
    QTest::newRow("pipe dimension") << MeasureMode::PipeDimension << 1 << 0.0 << allRings();
    QTest::newRow("mouth and end") << MeasureMode::NoMeasure << 10 << 0.0 << endRings;
    QTest::newRow("every third ring") << MeasureMode::NoMeasure << 3 << 0.0
                                      << QStringList{mouthRing, innerRing, innerRing, innerRing};
    QTest::newRow("step beyond the end")
        << MeasureMode::NoMeasure << 2147483647 << 0.0 << QStringList{mouthRing};
    QTest::newRow("no rings") << MeasureMode::NoMeasure << -1 << 0.0 << QStringList();
    QTest::newRow("cross section") << MeasureMode::CrossSection << 10 << 0.0 << endRings + disc;
    QTest::newRow("free cross section, no rings")
        << MeasureMode::FreeCrossSection << -1 << 0.0 << disc;
    QTest::newRow("no water") << MeasureMode::WaterLevel << 1 << 0.0 << allRings() + label(0);
    QTest::newRow("less water than a segment")
        << MeasureMode::WaterLevel << 10 << 1e-5 << endRings + label(0);
    QTest::newRow("quarter full") << MeasureMode::WaterLevel << 1 << 0.25
                                  << dryAndWet(241, 122) + QStringList{segment1, segment1} +
                                         label(25);
    QTest::newRow("quarter full, no rings")
        << MeasureMode::WaterLevel << -1 << 0.25 << wetEnds + label(25);
    QTest::newRow("full") << MeasureMode::WaterLevel << 1 << 1.0 << full + label(100);
}

void TestCylinderRendering::callsOfEachMode()
{
    QFETCH(MeasureMode, mode);
    QFETCH(int, ringStep);
    QFETCH(double, level);
    QFETCH(QStringList, expected);
    PipeView view = frontView(0.3, QRectF(20, 10, 400, 300), turned);
    const Mat4 modelView = view.camera.modelViewMatrix;
    const Painted painted = paint(view, pipeWithWater(level), ringStep, mode);
    QCOMPARE(painted.summary, expected);
    QVERIFY(painted.brushKept);
    QVERIFY(std::equal(modelView.m, modelView.m + 16, view.camera.modelViewMatrix.m));
    QVERIFY(view.camera.modelViewStack.empty());
    const bool writes = mode == MeasureMode::CrossSection || mode == MeasureMode::FreeCrossSection;
    QCOMPARE(painted.observable,
             writes ? ObservableType::NothingObserved : ObservableType::BendAngle);
    // What strokes and labels set is taken back; the last ring's or water line's pen stays.
    QPen left(Qt::black);
    for (const PaintCall &call : painted.calls) {
        left = call.kind == Kind::PolylineFloat || call.kind == Kind::LinesFloat ? call.pen : left;
    }
    QCOMPARE(painted.penLeft, left);
}

void TestCylinderRendering::ringsAboveTheWaterLine()
{
    PipeView view = frontView(0.3, QRectF(20, 10, 401, 299), turned);
    const Cylinder pipe = pipeWithWater(0.25);
    const Painted painted = paint(view, pipe, 1, MeasureMode::NoMeasure);
    for (int ring = 0; ring <= 10; ++ring) {
        QVERIFY(isSame(painted.calls[ring].points, ringPixels(view, pipe, ring, steps(60, 300))));
    }
    // Vertex 90 stands at the right of the picture, 180 at its top.
    const PipeView straight = frontView(0.3);
    QVERIFY(pixels(straight, pipe.vertices[0][90]).x() > 500);
    QVERIFY(pixels(straight, pipe.vertices[0][180]).y() < 50);
}

void TestCylinderRendering::waterOfEachRing()
{
    PipeView view = frontView(0.3, QRectF(20, 10, 401, 299), turned);
    const Cylinder pipe = pipeWithWater(0.25);
    const QVector<PaintCall> calls = paint(view, pipe, 5, MeasureMode::WaterLevel).calls.mid(3);
    for (int k = 0; k < 3; ++k) {
        const QVector<QPointF> arc = ringPixels(view, pipe, 5 * k, steps(60, 0) + steps(360, 300));
        QVERIFY(isSame(calls[2 * k].points, arc));
        QVERIFY(isSame(calls[2 * k + 1].points, {arc.first(), arc.last()}));
    }
    for (int k = 0; k < 2; ++k) {
        const QVector<int> edge{k == 0 ? 300 : 60};
        QVERIFY(isSame(calls[6 + k].points,
                       ringPixels(view, pipe, 0, edge) + ringPixels(view, pipe, 10, edge)));
    }
}

void TestCylinderRendering::labelStandsAtTheWaterLine_data()
{
    QTest::addColumn<double>("level");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("lineOffset");
    QTest::newRow("dry") << 0.0 << " 0 % " << -0.25;
    QTest::newRow("3 percent") << 0.03 << " 3 % " << -0.25;
    QTest::newRow("rounds down to 3 percent") << 0.03499 << " 3 % " << -0.25;
    QTest::newRow("rounds up to 4 percent") << 0.0351 << " 4 % " << 1.25;
    QTest::newRow("half") << 0.5 << " 50 % " << 1.25;
    QTest::newRow("full") << 1.0 << " 100 % " << 1.25;
}

void TestCylinderRendering::labelStandsAtTheWaterLine()
{
    QFETCH(double, level);
    QFETCH(QString, text);
    QFETCH(double, lineOffset);
    PipeView view = frontView(0.3);
    const Painted painted = paint(view, pipeWithWater(level), -1, MeasureMode::WaterLevel);
    const PaintCall &label = painted.calls.last();
    QCOMPARE(label.text, text);
    const PaintRecorder device;
    const QRect box = QFontMetrics(label.font, &device).boundingRect(text);
    // The mouth fills the square of 576 pixels but for 2 %; water stands on its lowest point, and
    // is drawn on whole segments of a degree.
    const double segments = std::round(std::acos(1 - 2 * level) * 180 / std::acos(-1.0));
    const double depth = (1 - std::cos(segments * std::acos(-1.0) / 180)) / 2;
    const double y = 288 + (0.5 - depth) * 576 / 1.02;
    const QPointF origin(288 - box.width() * 0.5, y + lineOffset * box.height());
    COMPARE_NEAR(label.points[0], origin, textTolerance);
    const PaintCall &background = painted.calls[painted.calls.size() - 2];
    COMPARE_NEAR(background.points[0], origin + box.topLeft(), pixelTolerance);
    QCOMPARE(background.points[1], QPointF(box.width(), box.height()));
}

void TestCylinderRendering::discLiesInThePickedPlane()
{
    PipeView view = frontView(0.3, QRectF(5, 5, 300, 300), turned);
    Cylinder pipe = pipeWithWater(0);
    pipe.crossSectDistancePercent = 0.3;
    const QVector<PaintCall> disc = paint(view, pipe, -1, MeasureMode::CrossSection).calls;
    for (int j = 0; j <= 360; ++j) {
        // 3 m long: the plane is that of the fourth ring.
        COMPARE_NEAR(disc[0].points[j], pixels(view, pipe.vertices[3][std::size_t(j)]),
                     pixelTolerance);
    }
    QVERIFY(isSame(disc[0].points, disc[1].points));
    pipe.frontCircle.resize(3);
    const Painted none = paint(view, pipe, -1, MeasureMode::FreeCrossSection);
    QVERIFY(none.calls.isEmpty());
    QCOMPARE(none.observable, ObservableType::NothingObserved);
}

void TestCylinderRendering::cutRingKeepsItsArc()
{
    PipeView view = frontView(0.3);
    Cylinder pipe = pipeWithWater(0);
    pipe.waterLevelStart[1] = 7;
    pipe.waterLevelEnd[1] = 350;
    pipe.waterLevelStart[2] = 200;
    pipe.waterLevelEnd[2] = 200;
    const Painted painted = paint(view, pipe, 1, MeasureMode::NoMeasure);
    QCOMPARE(painted.calls.size(), 10);
    QVERIFY(isSame(painted.calls[1].points, ringPixels(view, pipe, 1, steps(7, 350))));
    QVERIFY(isSame(painted.calls[2].points, ringPixels(view, pipe, 3, steps(0, 360))));
}

void TestCylinderRendering::singleRingIsDrawnOnce()
{
    PipeView view = frontView(0.3);
    Cylinder pipe = pipeWithWater(0.5);
    pipe.vertices.resize(1);
    for (const int ringStep : {-1, 1, 2}) {
        QStringList expected{"line 182 #d228323c 2 square bevel",
                             "segment #d228323c 2 square bevel",
                             "segment #d228323c 1 square bevel",
                             "segment #d228323c 1 square bevel",
                             "box none on #b4000000",
                             "text \" 50 % \" #d228323c 1 square bevel"};
        if (ringStep > 0) {
            expected.prepend("line 181 #c80a141e 3 square bevel");
        }
        QCOMPARE(paint(view, pipe, ringStep, MeasureMode::WaterLevel).summary, expected);
    }
}

void TestCylinderRendering::shortFormDrawsRingsAlone()
{
    PipeView view = frontView(0.3);
    PaintRecorder recorder;
    QPainter painter(&recorder);
    const Cylinder pipe = pipeWithWater(0);
    view.camera.renderCylinder(painter, cylinderColor, measureColor, pipe, 1);
    QCOMPARE(recorder.log(), [&] {
        QStringList log;
        for (const PaintCall &call : paint(view, pipe, 1, MeasureMode::NoMeasure).calls) {
            log.append(call.toString().remove(" brush #ff00ff00"));
        }
        return log;
    }());
}

void TestCylinderRendering::pipesWithoutExtentArePainted_data()
{
    QTest::addColumn<double>("diameterM");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -0.1;
    QTest::newRow("not a number") << std::nan("");
    QTest::newRow("infinite") << HUGE_VAL;
    QTest::newRow("length overflows") << 1e308;
    QTest::newRow("smallest number") << 5e-324;
}

void TestCylinderRendering::pipesWithoutExtentArePainted()
{
    QFETCH(double, diameterM);
    for (const double level : {0.25, 0.75}) {
        for (int mode = 0; mode <= 5; ++mode) {
            Cylinder pipe(diameterM);
            pipe.waterLevelPercent = level;
            pipe.createVerticesInWorldCoord(MeasureMode::WaterLevel);
            PipeView view = frontView(0.3);
            const Painted painted = paint(view, pipe, 1, MeasureMode(mode));
            QCOMPARE(painted.summary.filter("text").size(), mode == 3 ? 1 : 0);
        }
    }
}

QTEST_MAIN(TestCylinderRendering)
#include "tst_cylinder_rendering.moc"
