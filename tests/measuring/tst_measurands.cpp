// Several measurands of one session: what becomes of them when others come, go and are edited.
#include "measuring/Editing.h"
#include "measuring/Measurands.h"
#include "measuring/OverlayExport.h"
#include "measuring/Replay.h"
#include "measuring/SessionFit.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <QTest>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

namespace {

constexpr QSize pictureSize(800, 600);

QString namesOf(const Session &session)
{
    QStringList names;
    for (const Measurand &measurand : measurandsOf(session)) {
        names += measurand.name;
    }
    names[measurandAtHand(session)].prepend('*');
    return names.join(", ");
}

// A length on the wall, then a crack of two points in another corner, which is at hand.
Session lengthAndCrack()
{
    Session session;
    session.picture.size = pictureSize;
    session.mmPerPixel = 0.1;
    clickPoint(session, {250.5, 200.5});
    clickPoint(session, {300.5, 160.5});
    addMeasurand(session, Kind::CrackWidth);
    clickPoint(session, {600.5, 500.5});
    clickPoint(session, {640.5, 520.5});
    return session;
}

bool differs(const QImage &a, const QImage &b, const QRect &part)
{
    return a.copy(part) != b.copy(part);
}

} // namespace

class TestMeasurands : public TestCase
{
    Q_OBJECT

private slots:
    void keepsWhatIsMeasured();
    void namesAreOneOfAKind();
    void modelMovesThePointsOfAll();
    void overlayOfAll();
};

void TestMeasurands::keepsWhatIsMeasured()
{
    Session session = lengthAndCrack();
    const Session measured = session;
    QCOMPARE(namesOf(session), "Pipe dimension, *Crack width");

    // An empty one gives way, and the same is at hand again.
    changeKind(session, Kind::WaterLevel);
    QCOMPARE(namesOf(session), "Pipe dimension, Crack width, *Water level");
    QVERIFY(!session.isSet && session.points.isEmpty());
    changeKind(session, Kind::BranchAngle);
    QCOMPARE(namesOf(session), "Pipe dimension, Crack width, *Branch angle");
    changeKind(session, Kind::CrackWidth);
    QVERIFY(session == measured);

    addMeasurand(session, Kind::CrackWidth);
    QCOMPARE(namesOf(session), "Pipe dimension, Crack width, *Crack width 2");
    removeMeasurand(session, 0);
    QCOMPARE(namesOf(session), "Crack width, *Crack width 2");
    removeMeasurand(session, 1);
    removeMeasurand(session, 0); // the last one stays
    QCOMPARE(namesOf(session), "*Crack width");
    QVERIFY(session.points == measured.points);
}

void TestMeasurands::namesAreOneOfAKind()
{
    Session session = lengthAndCrack();
    QVERIFY(!renameMeasurand(session, 0, "joint A"));
    const Session before = session;
    for (const char *name : {"joint A", "", " b", "two\nlines"}) {
        QVERIFY2(!renameMeasurand(session, 1, name)->what.isEmpty(), name);
    }
    QVERIFY(session == before);
    takeMeasurand(session, *measurandNamed(session, "joint A"));
    changeKind(session, Kind::CrossSection);
    QCOMPARE(namesOf(session), "joint A, Crack width, *Cross section");
}

void TestMeasurands::modelMovesThePointsOfAll()
{
    Session session = lengthAndCrack();
    const Session before = session;
    session.rearCircleX = 40.0;
    pickPointsAnew(session);
    QCOMPARE(measurandAtHand(session), 1);
    QVERIFY(session.points == before.points); // a crack lies in the picture
    const Measurand &length = session.measurandsBefore.first();
    QVERIFY(!(length.points == before.measurandsBefore.first().points));
    takeMeasurand(session, 0);
    Session alone = session;
    removeMeasurand(alone, 1);
    pickPointsAnew(alone);
    QVERIFY(alone.points == session.points);
}

void TestMeasurands::overlayOfAll()
{
    const Session session = lengthAndCrack();
    const QImage picture =
        greyPicture(pictureSize).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    ZaItem item;
    showSession(session, item);
    const QImage alone = pictureWithOverlay({item, 1.0, nullptr}, picture);
    const OtherOverlays others(session, 1.0);
    const QImage all = pictureWithOverlay({item, 1.0, &others}, picture);
    const QRect aroundLength(240, 155, 70, 50);
    const QRect aroundCrack(595, 495, 50, 30);
    const QRect aboveCrack(560, 440, 120, 40); // its name
    QVERIFY(!differs(alone, picture, aroundLength) && differs(all, picture, aroundLength));
    QVERIFY(differs(alone, picture, aroundCrack) && !differs(all, alone, aroundCrack));
    QVERIFY(!differs(alone, picture, aboveCrack) && differs(all, picture, aboveCrack));
}

QTEST_MAIN(TestMeasurands)
#include "tst_measurands.moc"
