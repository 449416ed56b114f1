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
