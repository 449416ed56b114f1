// Joints found in pictures whose truth is known, and refusals where there is none to find.
#include "SnapTrial.h"
#include "measuring/SessionFit.h"
#include "measuring/Snap.h"
#include "support/TestCase.h"

#include <QPainter>
#include <QTest>

using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;
using namespace Drevon::Zalento::Tools;

namespace {

constexpr QSize pictureSize(400, 300);

QImage greyPicture()
{
    QImage picture(pictureSize, QImage::Format_RGB32);
    picture.fill(QColor(90, 90, 90));
    return picture;
}

// A light disc on a darker ground, with as much of its edge as @p degrees.
QImage discPicture(const QPointF &middle, double radius, int degrees)
{
    QImage picture = greyPicture();
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(170, 170, 170));
    constexpr int stepsPerDegree = 16;
    painter.drawPie(QRectF(middle.x() - radius, middle.y() - radius, 2 * radius, 2 * radius), 0,
                    degrees * stepsPerDegree);
    return picture;
}

Session roughSession()
{
    Session session;
    session.picture.size = pictureSize;
    session.mouthPercent = 66.0;
    return session;
}

} // namespace

class TestSnap : public TestCase
{
    Q_OBJECT

private slots:
    void jointsAreFoundBelowAPixel();
    void refusesWhatIsNotThere_data();
    void refusesWhatIsNotThere();
    void clicksSayWhereToLook();
};

void TestSnap::jointsAreFoundBelowAPixel()
{
    constexpr int trials = 6;
    const SnapTally tally = runSnapTrials(trials);
    QVERIFY(tally.found >= trials - 1);
    QCOMPARE(tally.exact, tally.found);
    QCOMPARE(tally.wrong, 0);
}

void TestSnap::refusesWhatIsNotThere_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::addColumn<QString>("why");
    QTest::newRow("nothing") << greyPicture() << "no edge runs along";
    QTest::newRow("a quarter") << discPicture({200, 150}, 98, 90) << "no edge runs along";
    // A light ring, either side of which may be the joint's edge.
    QImage ring = greyPicture();
    QPainter painter(&ring);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(170, 170, 170), 8));
    painter.drawEllipse(QPointF(200, 150), 88, 88);
    painter.end();
    QTest::newRow("two edges") << ring << "equally well";
}

void TestSnap::refusesWhatIsNotThere()
{
    QFETCH(QImage, picture);
    QFETCH(QString, why);
    Session session = roughSession();
    const Session before = session;
    const auto snap = snapToEdges(session, picture);
    QVERIFY(!snap);
    QVERIFY2(snap.problem().what.contains(why), qPrintable(snap.problem().what));
    QVERIFY(session == before);
}

void TestSnap::clicksSayWhereToLook()
{
    const QImage picture = discPicture({170, 140}, 60, 360);
    Session session = roughSession();
    session.rings = {{{}, {{113, 142}, {171, 82}, {233, 138}}}};
    const auto snap = snapToEdges(session, picture);
    QVERIFY(snap);
    QVERIFY(snap->edgePoints.size() > 200 && snap->rmsPX < 0.3);
    for (const QPointF &point : session.rings[0].points) {
        QVERIFY(std::abs(QLineF(QPointF(170, 140), point).length() - 60.0) < 0.3);
    }
    QVERIFY(fitOf(session)->rmsPX < 0.3);
}

QTEST_MAIN(TestSnap)
#include "tst_snap.moc"
