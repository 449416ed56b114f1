#include "support/PaintRecorder.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/render/Ellipse.h"
#include "zalento/render/MiniGL.h"
#include "zalento/render/truncatedRect.h"

#include <QImage>
#include <QPainter>
#include <climits>
#include <cmath>
#include <functional>
#include <limits>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

using Paint = std::function<void(QPainter &, const MiniGL &)>;
using Points = std::vector<Vec3>;
using Outline = std::vector<Vec2>;

const double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

// Clockwise on the screen and closed.
const Outline square{{0, 0}, {100, 0}, {100, 100}, {0, 100}, {0, 0}};

const QString found("#ff123456 7 flat round"); // the pen before each operation
const QString red("#ffff0000 2.5 square bevel");
const QString faintRed("#5aff0000 2.5 square bevel");
const QString plainRed("#ffff0000 1 square bevel");
const QString plainBlue("#ff0000ff 1 square bevel");
const QString plainBlack("#ff000000 1 square bevel");

HitPoint hitPoint(const Vec2 &screenPos)
{
    HitPoint point(Vec3(9, 9, 9));
    point.screenPos = screenPos;
    return point;
}

} // namespace

Q_DECLARE_METATYPE(Paint)
Q_DECLARE_METATYPE(Drevon::Zalento::Vec2)
Q_DECLARE_METATYPE(Outline)

class TestPrimitives : public TestCase
{
    Q_OBJECT

private slots:
    void paints_data();
    void paints();
    void projectsOntoTheScreen();
    void recordsScreenPoints();
    void drawString_data();
    void drawString();
    void survivesEveryCoordinate_data();
    void survivesEveryCoordinate();
    void insideConvex_data();
    void insideConvex();
    void pointOnOutline_data();
    void pointOnOutline();
    void hitPointDefaults();
    void pointInsideEllipse();
};

// The camera without a size takes scene x and y as pixels.
void TestPrimitives::paints_data()
{
    QTest::addColumn<Paint>("paint");
    QTest::addColumn<QStringList>("calls"); // each with its pen
    QTest::addColumn<QString>("penLeft");
    const auto row = [](const char *name, const Paint &paint, const QStringList &calls,
                        const QString &penLeft) {
        QTest::newRow(name) << paint << calls << penLeft;
    };
    const QColor c(Qt::red);
    const Points corner{{10, 20, 0}, {30.5, 20, 0}, {30.5, -1.5, 0}};

    row(
        "point",
        [=](QPainter &p, const MiniGL &gl) {
            gl.renderPoint(p, c, 2.5, {100.7, 50.2, 0}, 4);
        },
        {"EllipseInt (96, 46) (8, 8) pen " + red}, red);
    row(
        "point, truncated towards zero",
        [=](QPainter &p, const MiniGL &gl) {
            gl.renderPoint(p, c, 2.5, {1, -9, 0}, 1.75);
        },
        {"EllipseInt (0, -10) (3, 3) pen " + red}, red);
    row(
        "lines with marks",
        [=](QPainter &p, const MiniGL &gl) { gl.renderLines(p, c, 2.5, corner, true); },
        {"EllipseFloat (7, 17) (6, 6) pen " + red, "LinesFloat (10, 20) (30.5, 20) pen " + red,
         "EllipseFloat (9, 19) (2, 2) pen " + red, "LinesFloat (30.5, 20) (30.5, -1.5) pen " + red,
         "EllipseFloat (29.5, 19) (2, 2) pen " + red},
        red);
    row(
        "lines without marks",
        [=](QPainter &p, const MiniGL &gl) { gl.renderLines(p, c, 2.5, corner, false); },
        {"EllipseFloat (7, 17) (6, 6) pen " + red, "LinesFloat (10, 20) (30.5, 20) pen " + red,
         "LinesFloat (30.5, 20) (30.5, -1.5) pen " + red},
        red);
    row(
        "no lines set the pen",
        [=](QPainter &p, const MiniGL &gl) { gl.renderLines(p, c, 2.5, {}, true); }, {}, red);
    row(
        "curve, closed, with marks",
        [=](QPainter &p, const MiniGL &gl) { gl.renderCurve(p, c, 2.5, corner, true); },
        {"PolylineFloat (10, 20) (30.5, 20) (30.5, -1.5) (10, 20) pen " + red,
         "EllipseFloat (8, 18) (4, 4) pen " + plainRed,
         "EllipseFloat (28.5, 18) (4, 4) pen " + plainRed,
         "EllipseFloat (28.5, -3.5) (4, 4) pen " + plainRed,
         "EllipseFloat (8, 18) (4, 4) pen " + plainRed},
        plainRed);
    row(
        "curve without marks, one point",
        [=](QPainter &p, const MiniGL &gl) {
            gl.renderCurve(p, c, 2.5, {{10, 20, 0}}, false);
        },
        {"PolylineFloat (10, 20) (10, 20) pen " + red}, red);
    row(
        "empty curve leaves the pen",
        [=](QPainter &p, const MiniGL &gl) { gl.renderCurve(p, c, 2.5, {}, true); }, {}, found);
    row(
        "plain outline, open, with marks",
        [=](QPainter &p, const MiniGL &gl) {
            gl.renderEllipse(p, c, 2.5, corner, true, true, nullptr);
        },
        {"EllipseInt (7, 17) (6, 6) pen " + red, "LinesInt (10, 20) (30, 20) pen " + red,
         "EllipseInt (9, 19) (2, 2) pen " + red, "LinesInt (30, 20) (30, -1) pen " + red,
         "EllipseInt (29, 19) (2, 2) pen " + red},
        red);
    row(
        "empty outline sets the pen",
        [=](QPainter &p, const MiniGL &gl) {
            gl.renderEllipse(p, c, 2.5, {}, true, false, nullptr);
        },
        {}, red);
    const Points crossing{
        {50, 50, 0}, {60.5, 50, 0}, {140.5, 50, 0}, {140.5, 60, 0}, {60.5, 60, 0}};
    row(
        "clipped outline, with marks",
        [=](QPainter &p, const MiniGL &gl) {
            Outline outline(square);
            gl.renderEllipse(p, c, 2.5, crossing, true, false, &outline);
        },
        {"EllipseInt (47, 47) (6, 6) pen " + red,        //
         "LinesInt (50, 50) (60, 50) pen " + red,        // inside
         "EllipseInt (49, 49) (2, 2) pen " + red,        //
         "LinesInt (60, 50) (99, 50) pen " + red,        // as far as the edge
         "EllipseInt (59, 49) (2, 2) pen " + red,        //
         "LinesInt (140, 50) (140, 60) pen " + faintRed, // outside
         "EllipseInt (139, 49) (2, 2) pen " + faintRed,  //
         "LinesInt (99, 60) (60, 60) pen " + red,        // from the edge
         "EllipseInt (98, 59) (2, 2) pen " + red},
        red);
    row(
        "clipped by no outline, without marks",
        [=](QPainter &p, const MiniGL &gl) {
            Outline triangle(square.begin(), square.begin() + 3);
            gl.renderEllipse(p, c, 2.5, {{50, 50, 0}, {60, 50, 0}}, false, false, &triangle);
        },
        {"EllipseInt (47, 47) (6, 6) pen " + red, "LinesInt (50, 50) (60, 50) pen " + faintRed},
        red);
    row(
        "coordinate axes", [](QPainter &p, const MiniGL &gl) { gl.render3DCoordinateAxis(p); },
        {"EllipseInt (-3, -4) (8, 8) pen " + plainBlue,
         "LinesFloat (0, 0) (0.1, 0) pen " + plainBlue,
         "EllipseInt (-4, -3) (8, 8) pen " + plainRed, "LinesFloat (0, 0) (0, 0.1) pen " + plainRed,
         "EllipseInt (-4, -4) (8, 8) pen " + plainBlack,
         "LinesFloat (0, 0) (0, 0) pen " + plainBlack,
         "EllipseInt (-4, -4) (8, 8) pen " + plainBlue},
        found);
    row(
        "line",
        [](QPainter &p, const MiniGL &gl) {
            gl.drawLine(p, {1.5, 2}, {3, -4.25});
        },
        {"LinesFloat (1.5, 2) (3, -4.25) pen " + found}, found);
    row(
        "polyline",
        [](QPainter &p, const MiniGL &gl) {
            gl.drawPolyLine(p, Outline{{1.5, 2}, {3, 4}, {5, 6}});
        },
        {"PolylineFloat (1.5, 2) (3, 4) (5, 6) pen " + found}, found);
    row(
        "polyline of one point",
        [](QPainter &p, const MiniGL &gl) {
            gl.drawPolyLine(p, Outline{{1, 2}});
        },
        {}, found);
    row(
        "polyline through hit points, hidden ones too",
        [](QPainter &p, const MiniGL &gl) {
            std::vector<HitPoint> points{hitPoint({1.5, 2}), hitPoint({3, 4})};
            points[1].isVisible = false;
            gl.drawPolyLine(p, points);
        },
        {"PolylineFloat (1.5, 2) (3, 4) pen " + found}, found);
    row(
        "hit point",
        [=](QPainter &p, const MiniGL &) {
            hitPoint({20.9, 2.9}).draw(p, c);
        },
        {"EllipseInt (17, 0) (6, 6) pen #ffff0000 2 square bevel"}, found);
    row(
        "highlighted point that is no anchor",
        [=](QPainter &p, const MiniGL &) {
            HitPoint point = hitPoint({20.9, 2.9});
            point.isHighlighted = true;
            point.isAnchor = false;
            point.draw(p, c);
        },
        {"EllipseInt (10, -7) (20, 20) pen " + plainRed,
         "EllipseInt (17, 0) (6, 6) pen #ff000000 2 square bevel"},
        found);
    row(
        "hidden hit point",
        [=](QPainter &p, const MiniGL &) {
            HitPoint point = hitPoint({20, 30});
            point.isVisible = false;
            point.draw(p, c);
        },
        {}, found);
    row(
        "ellipse",
        [](QPainter &p, const MiniGL &) {
            Ellipse(10.5, 20, 3.75, 22.5).draw(p, QPen(QColor(Qt::blue), 1, Qt::SolidLine));
        },
        {"EllipseInt (6, -2) (7, 45) pen " + plainBlue}, found);
}

void TestPrimitives::paints()
{
    QFETCH(Paint, paint);
    QFETCH(QStringList, calls);
    QFETCH(QString, penLeft);
    PaintRecorder recorder;
    QPainter painter(&recorder);
    const QBrush brush(QColor(1, 2, 3));
    painter.setPen(QPen(QColor(0x12, 0x34, 0x56), 7, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.setBrush(brush);
    const MiniGL camera;
    paint(painter, camera);
    QStringList painted;
    for (const PaintCall &call : recorder.calls()) {
        QCOMPARE(call.brush, brush);
        QVERIFY(!call.antialiased && !call.clipped && call.transform.isIdentity());
        painted.append(call.shape() + " pen " + penText(call.pen));
    }
    QCOMPARE(painted.join('\n'), calls.join('\n'));
    QCOMPARE(penText(painter.pen()), penLeft);
    QCOMPARE(painter.brush(), brush);
}

void TestPrimitives::projectsOntoTheScreen()
{
    using Kind = PaintCall::Kind;
    MiniGL camera;
    camera.modelViewMatrix.lookAt(camera.eye, camera.center, camera.up);
    camera.onResize(QRectF(0, 0, 401, 401));
    PaintRecorder recorder;
    QPainter painter(&recorder);
    const Points axis{{0, 0, 0}, {0, 0, -3}};
    std::vector<Vec2> screenPoints;
    camera.renderPoint(painter, Qt::red, 1, axis[0], 0.5);
    camera.renderLines(painter, Qt::red, 1, axis, false);
    camera.renderCurve(painter, Qt::red, 1, axis, false);
    camera.renderEllipse(painter, Qt::red, 1, axis, false, true, &screenPoints);
    const QPointF centre(200.5, 200.5);
    QCOMPARE(recorder.calls(Kind::EllipseInt).at(0).points[0], QPointF(200, 200));
    COMPARE_NEAR(recorder.calls(Kind::LinesFloat).at(0).points[1], centre, pixelTolerance);
    COMPARE_NEAR(recorder.calls(Kind::PolylineFloat).at(0).points[1], centre, pixelTolerance);
    QCOMPARE(recorder.calls(Kind::LinesInt).at(0).points[1], QPointF(200, 200));
    COMPARE_NEAR(screenPoints.at(1), Vec2(200.5, 200.5), pixelTolerance);
}

void TestPrimitives::recordsScreenPoints()
{
    PaintRecorder recorder;
    QPainter painter(&recorder);
    std::vector<Vec2> screenPoints(7);
    const Points points{{10.5, 20, 0}, {200, 20, 0}};
    MiniGL().renderEllipse(painter, Qt::red, 1, points, false, true, &screenPoints);
    QCOMPARE(screenPoints.size(), points.size());
    COMPARE_EXACT(screenPoints[0], Vec2(10.5, 20));
    COMPARE_EXACT(screenPoints[1], Vec2(200, 20));
    const QStringList plain{"EllipseInt (7, 17) (6, 6)", "LinesInt (10, 20) (200, 20)"};
    QCOMPARE(recorder.shapes(), plain);
}

void TestPrimitives::drawString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("lineOffset");
    QTest::newRow("baseline at the position") << "12,5 cm" << 0.0;
    QTest::newRow("a line lower") << "12,5 cm" << 1.0;
    QTest::newRow("half a line higher") << "gy" << -0.5;
}

void TestPrimitives::drawString()
{
    QFETCH(QString, text);
    QFETCH(double, lineOffset);
    PaintRecorder recorder;
    QPainter painter(&recorder);
    painter.setPen(QPen(Qt::green, 3));
    painter.setFont(QFont("DejaVu Sans", 17));
    const QFont font = painter.font();
    const QRect box = painter.fontMetrics().boundingRect(text);
    MiniGL().drawString(painter, text, QPointF(100.25, 50.5), lineOffset, Qt::red,
                        QColor(0, 0, 0, 180));
    const QPointF origin(100.25 - box.width() * 0.5, 50.5 + lineOffset * box.height());
    const QVector<PaintCall> &calls = recorder.calls();
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls[0].kind, PaintCall::Kind::RectsFloat);
    COMPARE_NEAR(calls[0].points[0], origin + box.topLeft(), pixelTolerance);
    QCOMPARE(calls[0].points[1], QPointF(box.width(), box.height()));
    QCOMPARE(calls[0].brush, QBrush(QColor(0, 0, 0, 180)));
    QCOMPARE(penText(calls[0].pen), QString("none"));
    QCOMPARE(calls[1].text, text);
    COMPARE_NEAR(calls[1].points[0], origin, pixelTolerance);
    QCOMPARE(penText(calls[1].pen), plainRed);
    QCOMPARE(calls[1].font, font);
    QCOMPARE(painter.pen(), QPen(Qt::green, 3));
}

void TestPrimitives::survivesEveryCoordinate_data()
{
    QTest::addColumn<Vec2>("position");
    QTest::addColumn<QRect>("box"); // of a circle of 4 pixels around it
    const auto row = [](const char *name, const Vec2 &position, const QRect &box) {
        QTest::newRow(name) << position << box;
    };
    const auto cut = [](int left, int top, int right, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };
    row("NaN", {notANumber, notANumber}, {0, 0, 8, 8});
    row("infinite", {infinity, -infinity}, cut(INT_MAX, INT_MIN, INT_MAX, INT_MIN + 7));
    row("beyond an int", {-3e9, 3e9}, cut(INT_MIN, INT_MAX, INT_MIN + 7, INT_MAX));
    row("largest double", {1.7e308, 0}, cut(INT_MAX, -4, INT_MAX, 3));
    row("last full circle", {INT_MAX - 3.0, 0}, cut(INT_MAX - 7, -4, INT_MAX, 3));
}

void TestPrimitives::survivesEveryCoordinate()
{
    QFETCH(Vec2, position);
    QTEST(truncatedRect(position.x - 4, position.y - 4, 8, 8), "box");
    if (!std::isfinite(position.x)) {
        expectWarning("parameter is NaN"); // Qt's, for the two floating circles
        expectWarning("parameter is NaN");
    }
    const MiniGL camera;
    const Points points{{5, 5, 0}, {position.x, position.y, 0}, {50, 50, 0}};
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    Outline outline(square);
    camera.renderPoint(painter, Qt::red, 1, points[1], 4);
    camera.renderLines(painter, Qt::red, 1, points, true);
    camera.renderCurve(painter, Qt::red, 1, points, true);
    camera.renderEllipse(painter, Qt::red, 1, points, true, false, &outline);
    hitPoint(position).draw(painter, Qt::red);
    Ellipse(position.x, position.y, position.x, 4).draw(painter, QPen(Qt::red));
    QCOMPARE(image.pixelColor(2, 5), QColor(Qt::red)); // the circle around (5, 5)
}

void TestPrimitives::insideConvex_data()
{
    QTest::addColumn<Outline>("outline");
    QTest::addColumn<Vec2>("point");
    QTest::addColumn<bool>("inside");
    const auto row = [](const char *name, const Outline &outline, const Vec2 &point, bool inside) {
        QTest::newRow(name) << outline << point << inside;
    };
    row("centre", square, {50, 50}, true);
    row("on an edge", square, {100, 50}, true);
    row("on a corner", square, {0, 100}, true);
    row("above", square, {50, -0.001}, false);
    row("right", square, {100.001, 50}, false);
    row("below", square, {50, 100.001}, false);
    row("left", square, {-0.001, 50}, false);
    row("three points", {square.begin(), square.begin() + 3}, {60, 50}, false);
    row("last edge missing", {square.begin(), square.end() - 1}, {-50, 50}, true);
    row("counter-clockwise", {square.rbegin(), square.rend()}, {50, 50}, false);
}

void TestPrimitives::insideConvex()
{
    QFETCH(Outline, outline);
    QFETCH(Vec2, point);
    QTEST(MiniGL().pointIsInsideConvex(point, outline), "inside");
}

void TestPrimitives::pointOnOutline_data()
{
    QTest::addColumn<Vec2>("inside");
    QTest::addColumn<Vec2>("outside");
    QTest::addColumn<Vec2>("expected");
    const auto row = [](const char *name, const Vec2 &inside, const Vec2 &outside,
                        const Vec2 &expected) {
        QTest::newRow(name) << inside << outside << expected;
    };
    row("bisects along the edge's normal", {60.5, 50}, {140.5, 50}, {99.875, 50});
    row("bisects at a slant", {50, 50}, {150, 260}, {73.4375, 99.21875});
    row("less than a pixel apart", {99.5, 50}, {100.3, 50}, {99.5, 50});
    row("exactly a pixel apart", {99.5, 50}, {100.5, 50}, {99.5, 50});
    row("outside at infinity", {50, 50}, {infinity, 50}, {50, 50});
    row("inside at infinity", {-infinity, 50}, {50, 50}, {-infinity, 50});
    row("NaN", {50, 50}, {notANumber, 50}, {50, 50});
    row("midpoint overflows", {1.7e308, 50}, {1.6e308, 50}, {1.7e308, 50});
    row("neighbours far out", {1e300, 0}, {1e300 * (1 + 2e-16), 0}, {1e300, 0});
}

void TestPrimitives::pointOnOutline()
{
    QFETCH(Vec2, inside);
    QFETCH(Vec2, outside);
    QFETCH(Vec2, expected);
    COMPARE_EXACT(MiniGL().pointOnPolygon(inside, outside, square), expected);
}

void TestPrimitives::hitPointDefaults()
{
    const HitPoint point(Vec3(1, 2, 3));
    COMPARE_EXACT(point.position, Vec3(1, 2, 3));
    COMPARE_EXACT(point.screenPos, Vec2(0, 0));
    QVERIFY(point.isAnchor && point.isVisible && !point.isHighlighted);
}

void TestPrimitives::pointInsideEllipse()
{
    const Ellipse wide(1, 2, 2, 1);
    QVERIFY(wide.pointIsInside(3, 2) && wide.pointIsInside(1, 1));
    QVERIFY(!wide.pointIsInside(3, 2.1) && !wide.pointIsInside(1, 3.001));
    QVERIFY(!wide.pointIsInside(notANumber, 2));
    QVERIFY(Ellipse().pointIsInside(0, -1) && !Ellipse().pointIsInside(0.8, 0.8));
    QVERIFY(!Ellipse(0, 0, 0, 1).pointIsInside(0.1, 0));
    COMPARE_EXACT(Ellipse(0, 0, 0, 4).invRadiusXSq, infinity);
    COMPARE_EXACT(Ellipse(0, 0, 0, 4).invRadiusYSq, 1 / 16.0);
}

QTEST_MAIN(TestPrimitives)
#include "tst_primitives.moc"
