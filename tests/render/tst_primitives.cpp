#include "render/Label.h"
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

const QPen penBefore(QColor(0x12, 0x34, 0x56), 7, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);

// "before" for the pen that the operation found, else colour and width.
QString penName(const QPen &pen)
{
    if (pen == penBefore)
        return "before";
    return penText(pen)
        .replace("#ffff0000", "red")
        .replace("#5aff0000", "faint")
        .replace("#ff0000ff", "blue")
        .replace("#ff000000", "black");
}

HitPoint hitPoint(const Vec2 &screenPos, bool isVisible = true)
{
    HitPoint point(Vec3(9, 9, 9));
    point.screenPos = screenPos;
    point.isVisible = isVisible;
    return point;
}

// Takes scene x and y as pixels and draws z 30 times as far to the right; each of its matrices
// is needed for that.
MiniGL pixelCamera()
{
    MiniGL camera;
    camera.modelViewMatrix[8] = 30;
    camera.projectionMatrix.translation(-5, 7, 0, true);
    camera.viewportMatrix.translation(5, -7, 0, true);
    return camera;
}

} // namespace

Q_DECLARE_METATYPE(Paint)
Q_DECLARE_METATYPE(Drevon::Zalento::Vec2)
Q_DECLARE_METATYPE(Outline)

class TestPrimitives : public TestCase
{
    Q_OBJECT

private slots:
    void paints_data()
    {
        QTest::addColumn<Paint>("paint");
        QTest::addColumn<QStringList>("expected"); // the calls with their pens, the pen left
        const auto row = [](const char *name, const Paint &paint, const QStringList &expected) {
            QTest::newRow(name) << paint << expected;
        };
        const QColor c(Qt::red);
        const Points corner{{10, 20, 0}, {30.5, 20, 0}, {30.5, -1.75, 0}};
        const Points crossing{
            {50, 50, 0}, {60.5, 50, 0}, {140.5, 50, 0}, {140.5, 60, 0}, {60.5, 60, 0}};
        // clang-format off
        row("point", [=](QPainter &p, const MiniGL &gl) {
                gl.renderPoint(p, c, 2.5, {100.7, 50.2, 0}, 4);
                gl.renderPoint(p, c, 2.5, {1, -9, 0}, 1.75); // towards zero
            }, {"EllipseInt (96, 46) (8, 8) red 2.5", "EllipseInt (0, -10) (3, 3) red 2.5",
                "red 2.5"});
        row("lines with marks", [=](QPainter &p, const MiniGL &gl) {
                gl.renderLines(p, c, 2.5, corner, true);
            }, {"EllipseFloat (7, 17) (6, 6) red 2.5",
                "LinesFloat (10, 20) (30.5, 20) red 2.5", "EllipseFloat (9, 19) (2, 2) red 2.5",
                "LinesFloat (30.5, 20) (30.5, -1.75) red 2.5",
                "EllipseFloat (29.5, 19) (2, 2) red 2.5", "red 2.5"});
        row("lines without marks", [=](QPainter &p, const MiniGL &gl) {
                gl.renderLines(p, c, 2.5, {corner[0], corner[1]}, false);
            }, {"EllipseFloat (7, 17) (6, 6) red 2.5", "LinesFloat (10, 20) (30.5, 20) red 2.5",
                "red 2.5"});
        row("no lines set the pen", [=](QPainter &p, const MiniGL &gl) {
                gl.renderLines(p, c, 2.5, {}, true);
            }, {"red 2.5"});
        row("curve, closed, with marks", [=](QPainter &p, const MiniGL &gl) {
                gl.renderCurve(p, c, 2.5, corner, true);
            }, {"PolylineFloat (10, 20) (30.5, 20) (30.5, -1.75) (10, 20) red 2.5",
                "EllipseFloat (8, 18) (4, 4) red 1", "EllipseFloat (28.5, 18) (4, 4) red 1",
                "EllipseFloat (28.5, -3.75) (4, 4) red 1", "EllipseFloat (8, 18) (4, 4) red 1",
                "red 1"});
        row("curve of one point", [=](QPainter &p, const MiniGL &gl) {
                gl.renderCurve(p, c, 2.5, {corner[0]}, false);
            }, {"PolylineFloat (10, 20) (10, 20) red 2.5", "red 2.5"});
        row("empty curve leaves the pen", [=](QPainter &p, const MiniGL &gl) {
                gl.renderCurve(p, c, 2.5, {}, true);
            }, {"before"});
        row("plain outline, open, with marks", [=](QPainter &p, const MiniGL &gl) {
                gl.renderEllipse(p, c, 2.5, corner, true, true, nullptr);
            }, {"EllipseInt (7, 17) (6, 6) red 2.5",
                "LinesInt (10, 20) (30, 20) red 2.5", "EllipseInt (9, 19) (2, 2) red 2.5",
                "LinesInt (30, 20) (30, -1) red 2.5", "EllipseInt (29, 19) (2, 2) red 2.5",
                "red 2.5"});
        row("empty outline sets the pen", [=](QPainter &p, const MiniGL &gl) {
                gl.renderEllipse(p, c, 2.5, {}, true, false, nullptr);
            }, {"red 2.5"});
        row("recorded outline", [=](QPainter &p, const MiniGL &gl) {
                Outline recorded(7);
                gl.renderEllipse(p, c, 2.5, {{10.5, 20, 0}, {200, 20, 0}}, false, true, &recorded);
                gl.drawPolyLine(p, recorded);
            }, {"EllipseInt (7, 17) (6, 6) red 2.5", "LinesInt (10, 20) (200, 20) red 2.5",
                "PolylineFloat (10.5, 20) (200, 20) red 2.5", "red 2.5"});
        row("clipped outline, with marks", [=](QPainter &p, const MiniGL &gl) {
                Outline outline(square);
                gl.renderEllipse(p, c, 2.5, crossing, true, false, &outline);
            }, {"EllipseInt (47, 47) (6, 6) red 2.5", // inside, to the edge, outside, from the edge
                "LinesInt (50, 50) (60, 50) red 2.5", "EllipseInt (49, 49) (2, 2) red 2.5",
                "LinesInt (60, 50) (99, 50) red 2.5", "EllipseInt (59, 49) (2, 2) red 2.5",
                "LinesInt (140, 50) (140, 60) faint 2.5", "EllipseInt (139, 49) (2, 2) faint 2.5",
                "LinesInt (99, 60) (60, 60) red 2.5", "EllipseInt (98, 59) (2, 2) red 2.5",
                "red 2.5"});
        row("clipped by no outline, without marks", [=](QPainter &p, const MiniGL &gl) {
                Outline triangle(square.begin(), square.begin() + 3);
                gl.renderEllipse(p, c, 2.5, {{50, 50, 0}, {60, 50, 0}}, false, false, &triangle);
            }, {"EllipseInt (47, 47) (6, 6) red 2.5", "LinesInt (50, 50) (60, 50) faint 2.5",
                "red 2.5"});
        row("coordinate axes", [](QPainter &p, const MiniGL &gl) {
                gl.render3DCoordinateAxis(p);
            }, {"EllipseInt (-3, -4) (8, 8) blue 1", "LinesFloat (0, 0) (0.1, 0) blue 1",
                "EllipseInt (-4, -3) (8, 8) red 1", "LinesFloat (0, 0) (0, 0.1) red 1",
                "EllipseInt (-7, -4) (8, 8) black 1", "LinesFloat (0, 0) (-3, 0) black 1",
                "EllipseInt (-4, -4) (8, 8) blue 1", "before"});
        row("line, polylines", [](QPainter &p, const MiniGL &gl) {
                gl.drawLine(p, {1.5, 2}, {3, -4.25});
                gl.drawPolyLine(p, Outline{{1.5, 2}, {3, 4}, {5, 6}});
                gl.drawPolyLine(p, Outline{{1, 2}});
                gl.drawPolyLine(p, {hitPoint({7.5, 2}), hitPoint({3, 4}, false)});
            }, {"LinesFloat (1.5, 2) (3, -4.25) before",
                "PolylineFloat (1.5, 2) (3, 4) (5, 6) before",
                "PolylineFloat (7.5, 2) (3, 4) before", "before"});
        row("hit points", [=](QPainter &p, const MiniGL &) {
                hitPoint({20.9, 2.9}).draw(p, c);
                hitPoint({20, 30}, false).draw(p, c);
                HitPoint point = hitPoint({20.9, 2.9});
                point.isHighlighted = true;
                point.isAnchor = false;
                point.draw(p, c);
            }, {"EllipseInt (17, 0) (6, 6) red 2", "EllipseInt (10, -7) (20, 20) red 1",
                "EllipseInt (17, 0) (6, 6) black 2", "before"});
        row("ellipse", [](QPainter &p, const MiniGL &) {
                Ellipse(10.5, 20, 3.75, 22.5).draw(p, QPen(Qt::blue));
            }, {"EllipseInt (6, -2) (7, 45) blue 1", "before"});
        // clang-format on
    }

    void paints()
    {
        QFETCH(Paint, paint);
        QFETCH(QStringList, expected);
        PaintRecorder recorder;
        QPainter painter(&recorder);
        const QBrush brush(QColor(1, 2, 3));
        painter.setPen(penBefore);
        painter.setBrush(brush);
        paint(painter, pixelCamera());
        QStringList painted;
        for (const PaintCall &call : recorder.calls()) {
            QCOMPARE(call.brush, brush);
            QVERIFY(!call.antialiased && !call.clipped && call.transform.isIdentity());
            painted.append(call.shape() + ' ' + penName(call.pen));
        }
        painted.append(penName(painter.pen()));
        QCOMPARE(painted.join('\n'), expected.join('\n'));
        QCOMPARE(painter.brush(), brush);
    }

    void survivesEveryCoordinate_data()
    {
        QTest::addColumn<Vec2>("position");
        QTest::addColumn<QRect>("box"); // of a circle of 4 pixels around it
        const auto row = [](const char *name, const Vec2 &at, const QPoint &first,
                            const QPoint &last) {
            QTest::newRow(name) << at << QRect(first, last);
        };
        row("NaN", {notANumber, notANumber}, {0, 0}, {7, 7});
        row("infinite", {infinity, -infinity}, {INT_MAX, INT_MIN}, {INT_MAX, INT_MIN + 7});
        row("beyond an int", {-3e9, 3e9}, {INT_MIN, INT_MAX}, {INT_MIN + 7, INT_MAX});
        row("largest double", {1.7e308, 0}, {INT_MAX, -4}, {INT_MAX, 3});
        row("last full circle", {INT_MAX - 3.0, 0}, {INT_MAX - 7, -4}, {INT_MAX, 3});
    }

    void survivesEveryCoordinate()
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

    void pointOnOutline_data()
    {
        QTest::addColumn<Vec2>("inside");
        QTest::addColumn<Vec2>("outside");
        QTest::addColumn<Vec2>("expected");
        const auto row = [](const char *name, const Vec2 &inside, const Vec2 &outside,
                            const Vec2 &expected) {
            QTest::newRow(name) << inside << outside << expected;
        };
        row("along the edge's normal", {60.5, 50}, {140.5, 50}, {99.875, 50});
        row("at a slant", {50, 50}, {150, 260}, {73.4375, 99.21875});
        row("a little more than a pixel apart", {99.25, 50}, {100.375, 50}, {99.8125, 50});
        row("exactly a pixel apart", {99.25, 50}, {100.25, 50}, {99.25, 50});
        row("outside at infinity", {50, 50}, {infinity, 50}, {50, 50});
        row("inside at infinity", {-infinity, 50}, {50, 50}, {-infinity, 50});
        row("NaN", {50, 50}, {notANumber, 50}, {50, 50});
        row("midpoint overflows", {1.7e308, 50}, {1.6e308, 50}, {1.7e308, 50});
        row("neighbours far out", {1e300, 0}, {1e300 * (1 + 2e-16), 0}, {1e300, 0});
    }

    void pointOnOutline()
    {
        QFETCH(Vec2, inside);
        QFETCH(Vec2, outside);
        QFETCH(Vec2, expected);
        COMPARE_EXACT(MiniGL().pointOnPolygon(inside, outside, square), expected);
    }
};

QTEST_MAIN(TestPrimitives)
#include "tst_primitives.moc"
