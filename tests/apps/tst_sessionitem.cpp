#include "PictureFiles.h"

#include "measuring/Kind.h"
#include "measuring/Measurement.h"
#include "measuring/OverlayExport.h"
#include "measuring/Replay.h"
#include "measuring/SessionJson.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QTest>

#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

Q_DECLARE_METATYPE(Drevon::Zalento::Measuring::Session)

namespace {

constexpr QSize pictureSize(800, 600);

void addClicks(Session &session, const QVector<QPointF> &pixels)
{
    for (const QPointF &pixel : pixels) {
        session.points.append({pixel, {}, {}});
    }
}

// A session with everything that the kind uses, and an alignment that is off the axis.
Session exampleSession(const QString &kind)
{
    Session session;
    session.kind = kind;
    session.diameterMM = 217.5;
    session.offset = 12.5;
    session.rollDEG = 7.25;
    session.cameraHeightPercent = 42.0;
    session.fovYDEG = 44.4;
    session.rearCircleX = 6.5;
    session.rearCircleY = -4.5;
    session.percentage = 30.0;
    session.angleDEG = 60.0;
    session.clockDEG = 30;
    session.mmPerPixel = 0.37;
    if (findMeasurementKind(kind)->usesPoints) {
        addClicks(session, {{250, 200}, {420, 190}, {430, 380}, {300, 390}});
    }
    if (kind == QLatin1String("CrossSection")) {
        addClicks(session, {{251, 201}}); // closes the outline
    }
    return session;
}

struct Shown
{
    Measurement measurement;
    QImage overlay;
};

Shown show(ZaItem &item)
{
    return {measure(item), pictureWithOverlay(item, greyPicture(pictureSize))};
}

bool sameValues(const Measurement &a, const Measurement &b)
{
    if (a.values.size() != b.values.size() || a.state != b.state) {
        return false;
    }
    for (int i = 0; i < a.values.size(); ++i) {
        const MeasuredValue &x = a.values[i];
        const MeasuredValue &y = b.values[i];
        if (!compareExact(x.number, y.number).equal || x.text != y.text || x.name != y.name) {
            return false;
        }
    }
    return true;
}

// An open quadrilateral on the cross-section plane.
Session openOutline()
{
    Session session = exampleSession(QStringLiteral("CrossSection"));
    session.points.removeLast();
    return session;
}

} // namespace

class TestSessionItem : public TestCase
{
    Q_OBJECT

private slots:
    void replaysWhateverWasBefore_data();
    void replaysWhateverWasBefore();
    void everyFieldShows_data();
    void everyFieldShows();
    void measuresValuesAndTexts_data();
    void measuresValuesAndTexts();
    void saysWhyThereIsNoValue();
    void clickClosesAndRestarts();
    void missedPointsAreReported();
    void movesPoints();
    void planeTakesItsPointsAlong();
    void laserSpotsGiveTheScale();
};

void TestSessionItem::replaysWhateverWasBefore_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("joint");
    for (const MeasurementKind &kind : measurementKinds()) {
        QTest::newRow(qPrintable(kind.name)) << kind.name << false;
    }
    QTest::newRow("joint") << "BendAngle" << true;
}

// The first item has the clicks, the second the file's scene positions after every other kind.
void TestSessionItem::replaysWhateverWasBefore()
{
    QFETCH(QString, kind);
    QFETCH(bool, joint);
    Session session = exampleSession(kind);
    session.jointShown = joint;
    ZaItem first;
    layOutItem(first, pictureSize);
    QVERIFY(applySession(session, first).isEmpty());
    const Shown expected = show(first);
    QCOMPARE(expected.measurement.state, MeasureState::Measured);

    QString problem;
    std::optional<Session> stored = sessionFromJson(sessionToJson(session), problem);
    QVERIFY2(stored, qPrintable(problem));
    ZaItem second;
    layOutItem(second, pictureSize);
    for (const MeasurementKind &before : measurementKinds()) {
        Session other = exampleSession(before.name);
        other.percentage = 77;
        other.calibrationText = QStringLiteral("218;10;20");
        other.jointShown = !joint;
        other.viewDownstream = false;
        applySession(other, second);
        show(second);
        applySession(*stored, second);
        const Shown replayed = show(second);
        QVERIFY2(sameValues(replayed.measurement, expected.measurement), qPrintable(before.name));
        QCOMPARE(replayed.overlay, expected.overlay);
        QVERIFY(*stored == session);
    }
}

void TestSessionItem::everyFieldShows_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<Session>("changed");
    const auto row = [](const char *name, const char *kind, auto change) {
        Session session = exampleSession(QLatin1String(kind));
        change(session);
        QTest::newRow(name) << QString::fromLatin1(kind) << session;
    };
    row("diameter", "CrossSection", [](Session &s) { s.diameterMM = 500; });
    row("offset", "WaterLevel", [](Session &s) { s.offset = 30; });
    row("roll", "WaterLevel", [](Session &s) { s.rollDEG = 0; });
    row("camera height", "WaterLevel", [](Session &s) { s.cameraHeightPercent = 55; });
    row("field of view", "WaterLevel", [](Session &s) { s.fovYDEG = 50; });
    row("rear circle across", "WaterLevel", [](Session &s) { s.rearCircleX = -10; });
    row("rear circle up", "WaterLevel", [](Session &s) { s.rearCircleY = 10; });
    row("percentage", "WaterLevel", [](Session &s) { s.percentage = 40; });
    row("branch angle", "BranchAngle", [](Session &s) { s.angleDEG = 90; });
    row("clock", "BranchAngle", [](Session &s) { s.clockDEG = 120; });
    row("direction", "BendAngle", [](Session &s) { s.viewDownstream = false; });
    row("joint", "BendAngle", [](Session &s) { s.jointShown = true; });
    row("view style", "WaterLevel", [](Session &s) { s.viewStyle = ViewStyle::Ends; });
    row("unit", "PipeDimension", [](Session &s) { s.unit = MeasureUnit::Imperial; });
    row("scale", "CrackWidth", [](Session &s) { s.mmPerPixel = 0.74; });
    row("calibration", "CrackWidth", [](Session &s) {
        s.mmPerPixel.reset();
        s.calibrationText = QStringLiteral("218;10;20");
    });
    row("points", "PipeDimension", [](Session &s) { s.points.removeLast(); });
}

void TestSessionItem::everyFieldShows()
{
    QFETCH(QString, kind);
    QFETCH(Session, changed);
    ZaItem item;
    layOutItem(item, pictureSize);
    Session session = exampleSession(kind);
    applySession(session, item);
    const QImage before = show(item).overlay;
    applySession(changed, item);
    QVERIFY(show(item).overlay != before);
}

void TestSessionItem::measuresValuesAndTexts_data()
{
    QTest::addColumn<Session>("session");
    QTest::addColumn<QStringList>("expected"); // name, unit and text of each value
    QTest::addColumn<QVector<double>>("numbers");
    const QVector<SessionPoint> square{{{}, Vec3(-0.05, -0.05, -0.3), {}},
                                       {{}, Vec3(0.05, -0.05, -0.3), {}},
                                       {{}, Vec3(0.05, 0.05, -0.3), {}},
                                       {{}, Vec3(-0.05, 0.05, -0.3), {}},
                                       {{}, Vec3(-0.05, -0.05, -0.3), {}}};
    const auto row = [](const char *name, Session session, const QVector<SessionPoint> &points,
                        const QStringList &expected, const QVector<double> &numbers) {
        session.points = points;
        QTest::newRow(name) << session << expected << numbers;
    };
    Session session;
    row("pipe dimension", session, square.mid(0, 2), {"length mm 10.0 cm"}, {100});
    session.unit = MeasureUnit::Imperial;
    row("pipe dimension in inches", session, square.mid(0, 2), {"length mm 3.94''"}, {100});
    session = Session();
    session.kind = QStringLiteral("CrossSection");
    const double share = 100 * 10000 / (M_PI * 150 * 150);
    row("closed outline", session, square, {"area mm² 100.0 cm²", "areaShare % 14 %"},
        {10000, share});
    row("two points", session, square.mid(0, 2), {"length mm 10.0 cm", "diameterShare % 33.3 %"},
        {100, 100.0 / 3});
    row("open outline", session, square.mid(0, 3), {"length mm 20.0 cm"}, {200});
    session.kind = QStringLiteral("WaterLevel");
    session.percentage = 12.5;
    row("water level, rounded as drawn", session, {}, {"waterLevel % 13 %"}, {12.5});
    session.kind = QStringLiteral("BranchAngle");
    session.angleDEG = 67.5;
    row("branch angle", session, {}, {"branchAngle deg 67.5°"}, {67.5});
    session.kind = QStringLiteral("BendAngle");
    row("bend angle in steps", session, {}, {"bendAngle deg 70°"}, {70});
    session = Session();
    session.kind = QStringLiteral("CrackWidth");
    session.mmPerPixel = 0.1;
    row("crack of 300 pixels", session,
        {{{}, Vec3(0.25, 0.5, 0), {}}, {{}, Vec3(0.75, 0.5, 0), {}}}, {"crackWidth mm 30 mm"},
        {30});
}

void TestSessionItem::measuresValuesAndTexts()
{
    QFETCH(Session, session);
    QFETCH(QStringList, expected);
    QFETCH(QVector<double>, numbers);
    ZaItem item;
    layOutItem(item, pictureSize);
    applySession(session, item);
    const Measurement measurement = measure(item);
    QCOMPARE(measurement.state, MeasureState::Measured);
    QCOMPARE(measurement.values.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        const MeasuredValue &value = measurement.values[i];
        QCOMPARE(value.name + ' ' + value.unit + ' ' + value.text, expected[i]);
        COMPARE_NEAR(value.number, numbers[i], millimetreTolerance);
    }
}

void TestSessionItem::saysWhyThereIsNoValue()
{
    ZaItem item;
    layOutItem(item, pictureSize);
    const auto stateOf = [&item](Session session, const QVector<QPointF> &pixels) {
        session.points.clear();
        addClicks(session, pixels);
        applySession(session, item);
        const Measurement measurement = measure(item);
        return measurement.values.isEmpty() && !measurement.note.isEmpty() ? measurement.state
                                                                           : MeasureState::Measured;
    };
    Session crack = exampleSession(QStringLiteral("CrackWidth"));
    const QVector<QPointF> two{{300, 200}, {320, 200}};
    // The value of the measurement before must not show through.
    QCOMPARE(stateOf(crack, two), MeasureState::Measured);
    QCOMPARE(stateOf(crack, {}), MeasureState::NeedsPoints);
    QCOMPARE(stateOf(crack, two.mid(1)), MeasureState::NeedsPoints);
    QCOMPARE(stateOf(crack, {two[0], two[0]}), MeasureState::NeedsPoints);
    crack.mmPerPixel.reset();
    QCOMPARE(stateOf(crack, two), MeasureState::NoScale);
    QCOMPARE(stateOf(crack, {}), MeasureState::NoScale);
    QCOMPARE(stateOf(Session(), two.mid(1)), MeasureState::NeedsPoints);
}

void TestSessionItem::clickClosesAndRestarts()
{
    ZaItem item;
    layOutItem(item, pictureSize);
    Session session = openOutline();
    applySession(session, item);
    QCOMPARE(clickPoint(session, item, QPointF(252, 202)), ClickResult::Added);
    QCOMPARE(session.points.size(), 5);
    QVERIFY(*session.points.first().position == *session.points.last().position);
    QCOMPARE(session.points.last().pixel, QPointF(252, 202));
    QCOMPARE(clickPoint(session, item, QPointF(400, 300)), ClickResult::Restarted);
    QCOMPARE(session.points.size(), 1);
    QCOMPARE(session.points.first().pixel, QPointF(400, 300));
}

void TestSessionItem::missedPointsAreReported()
{
    ZaItem item;
    layOutItem(item, pictureSize);
    Session session = exampleSession(QStringLiteral("WaterLevel"));
    applySession(session, item);
    QCOMPARE(clickPoint(session, item, QPointF(250, 200)), ClickResult::Missed);
    session = Session();
    session.offset = 2000; // the camera stands outside the pipe
    addClicks(session, {{110, 300}, {690, 300}});
    QCOMPARE(applySession(session, item), (QVector<QPointF>{{110, 300}}));
    QCOMPARE(session.points.size(), 1);
}

void TestSessionItem::movesPoints()
{
    ZaItem item;
    layOutItem(item, pictureSize);
    Session session = exampleSession(QStringLiteral("CrossSection"));
    applySession(session, item);
    const Session before = session;

    // Beside the first point: a click there would snap to it.
    QVERIFY(movePoint(session, item, 2, QPointF(255, 210)));
    QVERIFY(*session.points[2].position != *session.points[0].position);
    QCOMPARE(session.points.size(), before.points.size());
    QVERIFY(movePoint(session, item, 4, QPointF(240, 210)));
    QVERIFY(*session.points[0].position == *session.points[4].position);
    QCOMPARE(session.points[0].pixel, QPointF(240, 210));

    Session replayed = session;
    const Measurement moved = measure(item);
    applySession(replayed, item);
    QVERIFY(sameValues(measure(item), moved));

    QVERIFY(!movePoint(session, item, 5, QPointF(240, 210)));
    QVERIFY(!movePoint(session, item, -1, QPointF(240, 210)));
    QVERIFY(session == replayed);
}

void TestSessionItem::planeTakesItsPointsAlong()
{
    ZaItem item;
    layOutItem(item, pictureSize);
    Session session = exampleSession(QStringLiteral("CrossSection"));
    applySession(session, item);
    const Measurement before = measure(item);
    changePercentage(session, item, 60.0);
    for (const SessionPoint &point : session.points) {
        COMPARE_NEAR(point.position->z, -0.6 * 2.175, sceneTolerance);
    }
    COMPARE_NEAR(measure(item).values[0].number, before.values[0].number, millimetreTolerance);

    Session water = exampleSession(QStringLiteral("WaterLevel"));
    addClicks(water, {{1, 1}});
    applySession(water, item);
    changePercentage(water, item, 60.0);
    COMPARE_NEAR(measure(item).values[0].number, 60.0, millimetreTolerance);
}

void TestSessionItem::laserSpotsGiveTheScale()
{
    ZaItem item;
    layOutItem(item, pictureSize);
    Session session = exampleSession(QStringLiteral("CrackWidth"));
    const auto scaleTo = [&](const char *calibration, const QPointF &second) {
        session.calibrationText = QLatin1String(calibration);
        applySession(session, item);
        const Measurement before = measure(item);
        QString problem;
        const auto scale = laserScale(session, item, QPointF(200, 300), second, problem);
        const bool isTold = scale.has_value() == problem.isEmpty();
        return isTold && sameValues(measure(item), before) ? scale.value_or(0.0) : qQNaN();
    };
    COMPARE_NEAR(scaleTo("LASER;;;50", QPointF(400, 300)), 0.25, millimetreTolerance);
    COMPARE_NEAR(scaleTo("LASER;;;30", QPointF(200, 200)), 0.3, millimetreTolerance);
    QCOMPARE(scaleTo("LASER;;;50", QPointF(200, 300)), 0.0);  // the same pixel
    QCOMPARE(scaleTo("150;768;120", QPointF(400, 300)), 0.0); // no distance of the spots
}

QTEST_MAIN(TestSessionItem)
#include "tst_sessionitem.moc"
