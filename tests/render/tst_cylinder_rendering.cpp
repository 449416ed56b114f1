// What the painter is told about the pipe: rings, water, cross-section disc.
#include "geometry/PipeView.h"
#include "render/Label.h"
#include "support/PaintRecorder.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/geometry/Cylinder.h"

#include <array>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

using Kind = PaintCall::Kind;
using Points = QVector<QPointF>;

namespace {

const QColor cylinderColor(10, 20, 30, 200);
const QColor measureColor(40, 50, 60, 210);

const Vec3 turned(0.2, -0.1, 25);

const QString mouthRing = "line 361 #c80a141e 3";
const QString innerRing = "line 361 #500a141e 2";
const QString lastRing = "line 361 #c80a141e 1";

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
    const QString pen = penText(call.pen);
    const QString brush =
        call.brush.style() == Qt::SolidPattern ? call.brush.color().name(QColor::HexArgb) : "none";
    switch (call.kind) {
    case Kind::PolylineFloat:
        return QString("line %1 %2").arg(call.points.size()).arg(pen);
    case Kind::LinesFloat:
        return "segment " + pen;
    case Kind::Path:
        return QString("path %1 %2 on %3").arg(call.points.size()).arg(pen, brush);
    case Kind::Text:
        return "text \"" + call.text + "\" " + pen;
    case Kind::RectsFloat:
        return "box " + pen + " on " + brush;
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
    for (const PaintCall &call : result.calls)
        result.summary.append(summaryOf(call));
    return result;
}

Cylinder pipeWithWater(double level)
{
    Cylinder pipe(0.3);
    pipe.waterLevelPercent = level;
    pipe.createVerticesInWorldCoord(MeasureMode::WaterLevel);
    return pipe;
}

QPointF pixels(const PipeView &view, const Vec3 &point)
{
    const Vec2 s = view.project(point);
    return {s.x, s.y};
}

// QVector<QPointF> compares fuzzily.
bool isSame(const Points &a, const Points &b)
{
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(),
        [](const QPointF &p, const QPointF &q) { return p.x() == q.x() && p.y() == q.y(); });
}

// Vertices first, ... last of a ring, up or down.
Points ringPixels(const PipeView &view, const Cylinder &pipe, int ring, int first, int last)
{
    Points points;
    for (int j = first; first <= last ? j <= last : j >= last; j += first <= last ? 1 : -1)
        points.append(pixels(view, pipe.vertices[std::size_t(ring)][std::size_t(j)]));
    return points;
}

} // namespace

Q_DECLARE_METATYPE(MeasureMode)

class TestCylinderRendering : public TestCase
{
    Q_OBJECT

private slots:
    void callsOfEachMode_data()
    {
        QTest::addColumn<MeasureMode>("mode");
        QTest::addColumn<int>("ringStep");
        QTest::addColumn<double>("level");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, MeasureMode mode, int ringStep, double level,
                            const QStringList &expected) {
            QTest::newRow(name) << mode << ringStep << level << expected;
        };
        constexpr MeasureMode none = MeasureMode::NoMeasure;
        constexpr MeasureMode water = MeasureMode::WaterLevel;
        const QStringList allRings = QStringList(mouthRing) +
                                     QVector<QString>(9, innerRing).toList() +
                                     QStringList(lastRing);
        const QStringList ends{mouthRing, lastRing};
        const QStringList disc{"path 361 none on #3228323c", "path 361 #d228323c 3 on none"};
        const auto label = [](int percent) {
            return QStringList{"box none on #b4000000",
                               QString("text \" %1 % \" #d228323c 1").arg(percent)};
        };
        const QStringList edges{"segment #d228323c 1", "segment #d228323c 1"};
        const auto wet = [](const QString &points, const QString &pen) {
            return QStringList{"line " + points + pen, "segment" + pen};
        };
        const auto wetRings = [&](const QString &points) {
            QStringList calls = wet(points, " #d228323c 2");
            for (int i = 1; i < 10; ++i)
                calls += wet(points, " #5028323c 1");
            return calls + wet(points, " #d228323c 1");
        };
        const auto wetEnds = [&](const QString &points) {
            return wet(points, " #d228323c 2") + wet(points, " #d228323c 1") + edges;
        };
        QStringList dryArcs = allRings;
        dryArcs.replaceInStrings("361", "241");

        row("rings alone", none, 1, 0, allRings);
        row("pipe dimension", MeasureMode::PipeDimension, 1, 0, allRings);
        row("mouth and end", none, 10, 0, ends);
        row("every third ring", none, 3, 0, {mouthRing, innerRing, innerRing, innerRing});
        row("step beyond the end", none, 2147483647, 0, {mouthRing});
        row("step 0", none, 0, 0, {});
        row("no rings", none, -1, 0, {});
        row("cross section", MeasureMode::CrossSection, 10, 0, ends + disc);
        row("free cross section, no rings", MeasureMode::FreeCrossSection, -1, 0, disc);
        row("no water", water, 1, 0, allRings + label(0));
        row("less water than a segment", water, 10, 1e-5, ends + label(0));
        row("a segment of water, no rings", water, -1, 1e-4, wetEnds("4") + label(0));
        row("quarter full", water, 1, 0.25, dryArcs + wetRings("122") + edges + label(25));
        row("quarter full, no rings", water, -1, 0.25, wetEnds("122") + label(25));
        row("full", water, 1, 1, wetRings("362") + label(100));
    }

    void callsOfEachMode()
    {
        QFETCH(MeasureMode, mode);
        QFETCH(int, ringStep);
        QFETCH(double, level);
        QFETCH(QStringList, expected);
        PipeView view = frontView(0.3, QRectF(20, 10, 400, 300), turned);
        const Mat4 modelView = view.camera.modelViewMatrix;
        const Painted painted = paint(view, pipeWithWater(level), ringStep, mode);
        QCOMPARE(painted.summary.join('\n'), expected.join('\n'));
        QVERIFY(painted.brushKept);
        COMPARE_EXACT(view.camera.modelViewMatrix, modelView);
        QVERIFY(view.camera.modelViewStack.empty());
        const bool writes =
            mode == MeasureMode::CrossSection || mode == MeasureMode::FreeCrossSection;
        QCOMPARE(painted.observable,
                 writes ? ObservableType::NothingObserved : ObservableType::BendAngle);
        // What strokes and labels set is taken back; the last ring's or water line's pen stays.
        QPen left(Qt::black);
        for (const PaintCall &call : painted.calls) {
            const bool isLine = call.kind == Kind::PolylineFloat || call.kind == Kind::LinesFloat;
            left = isLine ? call.pen : left;
        }
        QCOMPARE(painted.penLeft, left);
    }

    void pointsOfRingsAndWater()
    {
        PipeView view = frontView(0.3, QRectF(20, 10, 401, 299), turned);
        const Cylinder pipe = pipeWithWater(0.25);
        const QVector<PaintCall> calls = paint(view, pipe, 5, MeasureMode::WaterLevel).calls;
        for (int k = 0; k < 3; ++k) {
            const auto ring = [&](int a, int b) { return ringPixels(view, pipe, 5 * k, a, b); };
            QVERIFY(isSame(calls[k].points, ring(60, 300)));
            const Points arc = ring(60, 0) + ring(360, 300);
            QVERIFY(isSame(calls[3 + 2 * k].points, arc));
            QVERIFY(isSame(calls[4 + 2 * k].points, {arc.first(), arc.last()}));
        }
        for (int k = 0; k < 2; ++k) {
            const int edge = k == 0 ? 300 : 60;
            QVERIFY(isSame(calls[9 + k].points, ringPixels(view, pipe, 0, edge, edge) +
                                                    ringPixels(view, pipe, 10, edge, edge)));
        }
        // Vertex 90 stands at the right of the picture, 180 at its top.
        const PipeView straight = frontView(0.3);
        QVERIFY(pixels(straight, pipe.vertices[0][90]).x() > 500);
        QVERIFY(pixels(straight, pipe.vertices[0][180]).y() < 50);
    }

    void labelStandsAtTheWaterLine_data()
    {
        QTest::addColumn<double>("level");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("lineOffset");
        QTest::newRow("3 percent") << 0.03 << " 3 % " << -0.25;
        QTest::newRow("rounds down to 3 percent") << 0.03499 << " 3 % " << -0.25;
        QTest::newRow("rounds up to 4 percent") << 0.0351 << " 4 % " << 1.25;
        QTest::newRow("half") << 0.5 << " 50 % " << 1.25;
    }

    void labelStandsAtTheWaterLine()
    {
        QFETCH(double, level);
        QFETCH(double, lineOffset);
        PipeView view = frontView(0.3);
        const Painted painted = paint(view, pipeWithWater(level), -1, MeasureMode::WaterLevel);
        const PaintCall &label = painted.calls.last();
        QTEST(label.text, "text");
        // The mouth fills the square of 576 pixels but for 2 %; water stands on its lowest point,
        // and is drawn on whole segments of a degree.
        const double degree = std::acos(-1.0) / 180;
        const double segments = std::round(std::acos(1 - 2 * level) / degree);
        const double y = 288 + 0.5 * std::cos(segments * degree) * 576 / 1.02;
        const PaintCall &box = painted.calls[painted.calls.size() - 2];
        QCOMPARE(labelFaults(box, label, QPointF(288, y), lineOffset), QByteArray());
    }

    void discLiesInThePickedPlane()
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

    void cutRingsKeepTheirArcs()
    {
        PipeView view = frontView(0.3);
        Cylinder pipe = pipeWithWater(0);
        const std::array<QPair<int, int>, 3> arcs{{{7, 350}, {200, 200}, {200, 201}}};
        for (std::size_t i = 0; i < arcs.size(); ++i) {
            pipe.waterLevelStart[i + 1] = arcs[i].first;
            pipe.waterLevelEnd[i + 1] = arcs[i].second;
        }
        const Painted painted = paint(view, pipe, 1, MeasureMode::NoMeasure);
        QCOMPARE(painted.calls.size(), 10); // an arc of a single point is no line
        QVERIFY(isSame(painted.calls[1].points, ringPixels(view, pipe, 1, 7, 350)));
        QVERIFY(isSame(painted.calls[2].points, ringPixels(view, pipe, 3, 200, 201)));
        QVERIFY(isSame(painted.calls[3].points, ringPixels(view, pipe, 4, 0, 360)));
    }

    void singleRingIsDrawnOnce()
    {
        PipeView view = frontView(0.3);
        Cylinder pipe = pipeWithWater(0.5);
        pipe.vertices.resize(1);
        for (const int ringStep : {-1, 1, 2}) {
            QStringList expected{"line 182 #d228323c 2",  "segment #d228323c 2",
                                 "segment #d228323c 1",   "segment #d228323c 1",
                                 "box none on #b4000000", "text \" 50 % \" #d228323c 1"};
            if (ringStep > 0)
                expected.prepend("line 181 #c80a141e 3");
            QCOMPARE(paint(view, pipe, ringStep, MeasureMode::WaterLevel).summary, expected);
        }
    }
};

QTEST_MAIN(TestCylinderRendering)
#include "tst_cylinder_rendering.moc"
