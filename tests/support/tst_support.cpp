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
#include <sstream>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

class TestSupport : public TestCase
{
    Q_OBJECT

private slots:
    void recordsCallsWithTheirState()
    {
        PaintRecorder recorder;
        QPainter painter(&recorder);
        painter.drawLine(1, 2, 3, 4);
        painter.drawLine(QLineF(-1e300, 2, 3, 0.1));
        painter.setPen(QPen(QColor(1, 2, 3, 90), 2.5, Qt::DotLine, Qt::FlatCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF(QVector<QPointF>{{1, 2}, {3, 4.5}}));
        painter.drawPolygon(QPolygonF(QVector<QPointF>{{1, 2}, {3, 4}, {5, 6}}));
        painter.setPen(Qt::red);
        painter.drawEllipse(1, 2, 3, 4);
        painter.drawEllipse(QRectF(1, 2, 3, 4.5));
        painter.drawText(QPointF(1, 2.5), "3,4 mm");
        painter.fillRect(QRectF(1, 2, 3, 4.5), Qt::blue);
        QPainterPath path;
        path.lineTo(5, 0);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(1, 1);
        painter.setClipRect(0, 0, 9, 9);
        painter.strokePath(path, QPen(Qt::green));
        const QString dotted = " pen #5a010203 2.5 cap 0 join 128 style 3";
        const QString red = " pen #ffff0000 1";
        const QStringList expected{
            "LinesInt (1, 2) (3, 4) pen #ff000000 1",
            "LinesFloat (-1e+300, 2) (3, 0.1) pen #ff000000 1",
            "PolylineFloat (1, 2) (3, 4.5)" + dotted,
            "PolygonFloat (1, 2) (3, 4) (5, 6)" + dotted,
            "EllipseInt (1, 2) (3, 4)" + red,
            "EllipseFloat (1, 2) (3, 4.5)" + red,
            "Text (1, 2.5) \"3,4 mm\"" + red,
            "RectsFloat (1, 2) (3, 4.5) pen none brush #ff0000ff",
            "Path (0, 0) (5, 0) pen #ff00ff00 1 antialiased clipped transformed"};
        QCOMPARE(recorder.log().join('\n'), expected.join('\n'));
        QCOMPARE(recorder.calls(PaintCall::Kind::EllipseInt).size(), 1);
        const QFontMetrics metrics = painter.fontMetrics();
        QVERIFY(metrics.height() > 0);
        QVERIFY(metrics.horizontalAdvance("123 mm") > metrics.horizontalAdvance("1"));
    }

    void comparesNumbers()
    {
        const Tolerance quarter{0.25, "m"};
        QVERIFY(compareNear(1.25, 1.0, quarter).equal);
        QVERIFY(compareNear(std::nan(""), std::nan(""), quarter).equal);
        QVERIFY(compareNear(-HUGE_VAL, -HUGE_VAL, quarter).equal);
        QVERIFY(!compareNear(-HUGE_VAL, HUGE_VAL, quarter).equal);
        QVERIFY(!compareNear(std::nan(""), 1.0, quarter).equal);
        QVERIFY(!compareNear(Vec3(0, 0, 1), Vec3(0, 0, 2), quarter).equal);
        QCOMPARE(compareNear(Vec2(1, 2), Vec2(1, 1.5), quarter).message,
                 QByteArray("number 1: expected 1.5, got 2, difference 0.5, limit 0.25 m; "));
        QVERIFY(compareExact(0.1 + 0.2, 0.30000000000000004).equal);
        QVERIFY(!compareExact(0.1 + 0.2, 0.3).equal);
        QVERIFY(!compareExact(-0.0, 0.0).equal);
        QVERIFY(compareExact(Vec3(1, std::nan(""), 2), Vec3(1, std::nan("1"), 2)).equal);
    }

    void commaLocaleReachesEveryFormatter()
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

    void noticesUnannouncedAndMissingWarnings()
    {
        expectWarning("scale unknown");
        expectWarning("never logged");
        qWarning("The laser scale unknown here");
        qInfo("Information is no warning");
        QCOMPARE(warningFaults(), QStringList("not logged: never logged"));
        qCritical("This line in the log belongs to the test");
        QCOMPARE(warningFaults().size(), 2);
        forgetWarnings();
    }
};

QTEST_MAIN(TestSupport)
#include "tst_support.moc"
