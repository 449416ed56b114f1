#include "support/CommaLocale.h"
#include "support/PaintRecorder.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QFontMetrics>
#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <cstdio>
#include <functional>
#include <limits>
#include <sstream>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

using Paint = std::function<void(QPainter &)>;

} // namespace

Q_DECLARE_METATYPE(Paint)

class TestSupport : public TestCase
{
    Q_OBJECT

private slots:
    void recordsCall_data();
    void recordsCall();
    void keepsOrderAndStateOfEachCall();
    void measuresText();
    void comparesWithinLimit();
    void comparesBits();
    void commaLocaleReachesEveryFormatter();
    void noticesUnannouncedAndMissingWarnings();
};

void TestSupport::recordsCall_data()
{
    QTest::addColumn<Paint>("paint");
    QTest::addColumn<QString>("shape");
    const auto row = [](const char *name, const Paint &paint, const char *shape) {
        QTest::newRow(name) << paint << QString(shape);
    };
    row(
        "integer line", [](QPainter &p) { p.drawLine(1, 2, 3, 4); }, "LinesInt (1, 2) (3, 4)");
    row(
        "floating line", [](QPainter &p) { p.drawLine(QLineF(1.5, 2, 3, 0.1)); },
        "LinesFloat (1.5, 2) (3, 0.1)");
    row(
        "integer polyline",
        [](QPainter &p) {
            p.drawPolyline(QPolygon(QVector<QPoint>{{1, 2}, {3, 4}}));
        },
        "PolylineInt (1, 2) (3, 4)");
    row(
        "floating polyline",
        [](QPainter &p) {
            p.drawPolyline(QPolygonF(QVector<QPointF>{{1, 2}, {3, 4}}));
        },
        "PolylineFloat (1, 2) (3, 4)");
    row(
        "polygon",
        [](QPainter &p) {
            p.drawPolygon(QPolygonF(QVector<QPointF>{{1, 2}, {3, 4}, {5, 6}}));
        },
        "PolygonFloat (1, 2) (3, 4) (5, 6)");
    row(
        "integer ellipse", [](QPainter &p) { p.drawEllipse(1, 2, 3, 4); },
        "EllipseInt (1, 2) (3, 4)");
    row(
        "floating ellipse", [](QPainter &p) { p.drawEllipse(QRectF(1, 2, 3, 4.5)); },
        "EllipseFloat (1, 2) (3, 4.5)");
    row(
        "filled rectangle", [](QPainter &p) { p.fillRect(QRectF(1, 2, 3, 4.5), Qt::red); },
        "RectsFloat (1, 2) (3, 4.5)");
    row(
        "text", [](QPainter &p) { p.drawText(QPointF(1, 2.5), "3,4 mm"); },
        "Text (1, 2.5) \"3,4 mm\"");
    row(
        "huge coordinates", [](QPainter &p) { p.drawLine(QLineF(-1e300, 2, 3, 4)); },
        "LinesFloat (-1e+300, 2) (3, 4)");
}

void TestSupport::recordsCall()
{
    QFETCH(Paint, paint);
    QFETCH(QString, shape);
    PaintRecorder recorder;
    QPainter painter(&recorder);
    paint(painter);
    QCOMPARE(recorder.shapes(), QStringList(shape));
}

void TestSupport::keepsOrderAndStateOfEachCall()
{
    PaintRecorder recorder;
    QPainter painter(&recorder);
    painter.setPen(QPen(QColor(1, 2, 3, 90), 2.5, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawLine(0, 0, 1, 0);
    QPainterPath path;
    path.lineTo(5, 0);
    painter.fillPath(path, Qt::blue);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(1, 1);
    painter.setClipRect(0, 0, 9, 9);
    painter.strokePath(path, QPen(Qt::red));
    const QStringList expected{
        "LinesInt (0, 0) (1, 0) pen #5a010203 2.5 flat round",
        "Path (0, 0) (5, 0) pen none brush #ff0000ff",
        "Path (0, 0) (5, 0) pen #ffff0000 1 square bevel antialiased clipped transformed"};
    QCOMPARE(recorder.log(), expected);
    QCOMPARE(recorder.calls(PaintCall::Kind::Path).size(), 2);
    recorder.clear();
    QVERIFY(recorder.calls().isEmpty());
}

void TestSupport::measuresText()
{
    PaintRecorder recorder;
    QPainter painter(&recorder);
    const QFontMetrics metrics = painter.fontMetrics();
    QVERIFY(metrics.height() > 0);
    QVERIFY(metrics.horizontalAdvance("123 mm") > metrics.horizontalAdvance("1"));
}

void TestSupport::comparesWithinLimit()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Tolerance quarter{0.25, "m"};
    QVERIFY(compareNear(1.25, 1, quarter).equal);
    QVERIFY(compareNear(nan, nan, quarter).equal);
    QVERIFY(compareNear(-HUGE_VAL, -HUGE_VAL, quarter).equal);
    QVERIFY(!compareNear(-HUGE_VAL, HUGE_VAL, quarter).equal);
    QVERIFY(!compareNear(nan, 1, quarter).equal);
    QVERIFY(!compareNear(Vec3(0, 0, 1), Vec3(0, 0, 2), quarter).equal);
    QCOMPARE(compareNear(Vec2(1, 2), Vec2(1, 1.5), quarter).message,
             QByteArray("y: expected 1.5, got 2, difference 0.5, limit 0.25 m; "));
}

void TestSupport::comparesBits()
{
    QVERIFY(compareExact(0.1 + 0.2, 0.30000000000000004).equal);
    QVERIFY(!compareExact(0.1 + 0.2, 0.3).equal);
    QVERIFY(!compareExact(-0.0, 0.0).equal);
    QVERIFY(compareExact(Vec3(1, std::nan(""), 2), Vec3(1, std::nan("1"), 2)).equal);
}

void TestSupport::commaLocaleReachesEveryFormatter()
{
    const auto printed = [] {
        char c[8];
        std::snprintf(c, sizeof c, "%.1f", 1.5);
        std::ostringstream stream;
        stream << 1.5;
        return QStringList{c, QString::fromStdString(stream.str()), QLocale().toString(1.5)};
    };
    QLocale::setDefault(QLocale::c());
    {
        const CommaLocale comma;
        QCOMPARE(printed(), QStringList({"1,5", "1,5", "1,5"}));
    }
    QCOMPARE(printed(), QStringList({"1.5", "1.5", "1.5"}));
}

void TestSupport::noticesUnannouncedAndMissingWarnings()
{
    expectWarning("scale unknown");
    expectWarning("never logged");
    qWarning("The laser scale unknown here");
    qInfo("Information is no warning");
    QCOMPARE(missingWarnings(), QStringList("never logged"));
    QVERIFY(unexpectedWarnings().isEmpty());
    qCritical("This line in the log belongs to the test");
    QCOMPARE(unexpectedWarnings().size(), 1);
    forgetWarnings();
}

QTEST_MAIN(TestSupport)
#include "tst_support.moc"
