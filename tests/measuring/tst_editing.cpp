// What sessions measure, what editing does to them, and that the item shows the same.
#include "measuring/Editing.h"
#include "measuring/ItemSession.h"
#include "measuring/Measurement.h"
#include "measuring/OverlayExport.h"
#include "measuring/PipeView.h"
#include "measuring/Replay.h"
#include "measuring/SessionJson.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QTest>

#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

Q_DECLARE_METATYPE(Drevon::Zalento::Measuring::Session)
Q_DECLARE_METATYPE(Drevon::Zalento::Measuring::MeasureState)

namespace {

constexpr QSize pictureSize(800, 600);

void addClicks(Session &session, const QVector<QPointF> &pixels)
{
    for (const QPointF &pixel : pixels) {
        session.points.append({pixel, {}, {}});
    }
}

// A session with everything that the kind uses, and an alignment that is off the axis. Clicks lie
// in the middle of pixels, where the item takes them.
Session exampleSession(Kind kind)
{
    Session session;
    session.picture.size = pictureSize;
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
    if (infoOf(kind).has(Uses::Points)) {
        addClicks(session, {{250.5, 200.5}, {420.5, 190.5}, {430.5, 380.5}, {300.5, 390.5}});
    }
    if (kind == Kind::CrossSection) {
        addClicks(session, {{251.5, 201.5}}); // closes the outline
    }
    placePoints(session);
    return session;
}

Session emptySession(Kind kind)
{
    Session session = exampleSession(kind);
    session.points.clear();
    return session;
}

QImage painted(const Session &session, ZaItem &item)
{
    showSession(session, item);
    return pictureWithOverlay({item, 1.0, nullptr}, greyPicture(pictureSize));
}

} // namespace

class TestEditing : public TestCase
{
    Q_OBJECT

private slots:
    void itemShowsWhatIsMeasured_data();
    void itemShowsWhatIsMeasured();
    void replaysWhateverWasBefore_data();
    void replaysWhateverWasBefore();
    void largePicturesHaveLargerLines_data();
    void largePicturesHaveLargerLines();
    void everyFieldShows_data();
    void everyFieldShows();
    void measuresValuesAndTexts_data();
    void measuresValuesAndTexts();
    void saysWhyThereIsNoValue_data();
    void saysWhyThereIsNoValue();
    void clickClosesAndRestarts();
    void missedPointsAreReported();
    void movesPoints();
    void planeTakesItsPointsAlong();
    void laserSpotsGiveTheScale();
};

void TestEditing::itemShowsWhatIsMeasured_data()
{
    QTest::addColumn<Session>("session");
    for (const Kind kind : {Kind::CrackWidth, Kind::PipeDimension, Kind::CrossSection}) {
        const QByteArray name = infoOf(kind).name;
        Session session = exampleSession(kind);
        QTest::newRow(name) << session;
        session.rearCircleX = 90; // the item turns the view back
        placePoints(session);
        QTest::newRow(name + ", view corrected") << session;
        session.points.removeLast();
        QTest::newRow(name + ", open") << session;
    }
}

// The item is clicked and painted; the session is computed alone. To the last bit the same.
void TestEditing::itemShowsWhatIsMeasured()
{
    QFETCH(Session, session);
    const QVector<SessionPoint> clicked = session.points;
    session.points.clear();
    ZaItem item;
    painted(session, item); // the item knows its view from painting
    for (const SessionPoint &point : clicked) {
        item.mouseClick(point.pixel.x(), point.pixel.y());
        session.points.append({point.pixel, {}, {}});
    }
    QVERIFY(placePoints(session).isEmpty());
    pictureWithOverlay({item, 1.0, nullptr}, greyPicture(pictureSize));
    const PipeView view(session);
    const auto &hitPoints = static_cast<Pipe &>(item.getCurrentViewObject()).hitPoints;
    QCOMPARE(int(hitPoints.size()), session.points.size());
    for (int i = 0; i < session.points.size(); ++i) {
        const HitPoint &shown = hitPoints[std::size_t(i)];
        if (session.kind == Kind::CrackWidth) {
            continue; // the item keeps the pixel, the session the place in it
        }
        QVERIFY(shown.position == *session.points[i].position);
        COMPARE_EXACT(view.project(shown.position).x(), shown.screenPos.x);
        COMPARE_EXACT(view.project(shown.position).y(), shown.screenPos.y);
    }
    COMPARE_NEAR(measure(session).values[0].number, item.measure1(), millimetreTolerance);
}

void TestEditing::replaysWhateverWasBefore_data()
{
    QTest::addColumn<Session>("session");
    for (const KindInfo &info : kinds()) {
        QTest::newRow(info.name) << exampleSession(info.kind);
    }
    Session joint = exampleSession(Kind::BendAngle);
    joint.jointShown = true;
    QTest::newRow("joint") << joint;
}

void TestEditing::replaysWhateverWasBefore()
{
    QFETCH(Session, session);
    ZaItem first;
    const QImage expected = painted(session, first);
    const auto stored = sessionFromJson(sessionToJson(session));
    QVERIFY(stored && *stored == session);
    ZaItem second;
    for (const KindInfo &before : kinds()) {
        Session other = exampleSession(before.kind);
        other.percentage = 77;
        other.calibrationText = QStringLiteral("218;10;20");
        other.jointShown = !session.jointShown;
        other.viewDownstream = false;
        painted(other, second);
        QCOMPARE(painted(*stored, second), expected);
    }
}

void TestEditing::largePicturesHaveLargerLines_data()
{
    replaysWhateverWasBefore_data();
}

// Three times the pixels and their clicks: the same overlay, three times as large.
void TestEditing::largePicturesHaveLargerLines()
{
    constexpr int scale = 3;
    QFETCH(Session, session);
    session.mouthPercent = 80;
    Session large = session;
    large.picture.size *= scale;
    large.mmPerPixel.reset();
    large.calibrationText = QStringLiteral("218;10;20");
    session.mmPerPixel = scale * scaleOf(large).value_or(0.0);

    ZaItem item;
    showSession(session, item);
    QImage expected =
        greyPicture(large.picture.size).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&expected);
    painter.scale(scale, scale);
    PaintedOverlay{item, 1.0, nullptr}.paint(painter);
    painter.end();
    showSession(large, item, scale);
    QCOMPARE(pictureWithOverlay({item, scale, nullptr}, greyPicture(large.picture.size)), expected);
    QCOMPARE(overlayScale({5120, 2880}), 4.0);
    QCOMPARE(overlayScale({1280, 720}), 1.0);
    QCOMPARE(overlayScale({320, 240}), 1.0);
}

void TestEditing::everyFieldShows_data()
{
    QTest::addColumn<Session>("session");
    QTest::addColumn<Session>("changed");
    const auto row = [](const char *name, Kind kind, auto change) {
        Session session = exampleSession(kind);
        change(session);
        QTest::newRow(name) << exampleSession(kind) << session;
    };
    row("diameter", Kind::CrossSection, [](Session &s) { s.diameterMM = 500; });
    row("offset", Kind::WaterLevel, [](Session &s) { s.offset = 30; });
    row("roll", Kind::WaterLevel, [](Session &s) { s.rollDEG = 0; });
    row("camera height", Kind::WaterLevel, [](Session &s) { s.cameraHeightPercent = 55; });
    row("field of view", Kind::WaterLevel, [](Session &s) { s.fovYDEG = 50; });
    row("rear circle across", Kind::WaterLevel, [](Session &s) { s.rearCircleX = -10; });
    row("rear circle up", Kind::WaterLevel, [](Session &s) { s.rearCircleY = 10; });
    row("percentage", Kind::WaterLevel, [](Session &s) { s.percentage = 40; });
    row("branch angle", Kind::BranchAngle, [](Session &s) { s.angleDEG = 90; });
    row("clock", Kind::BranchAngle, [](Session &s) { s.clockDEG = 120; });
    row("direction", Kind::BendAngle, [](Session &s) { s.viewDownstream = false; });
    row("joint", Kind::BendAngle, [](Session &s) { s.jointShown = true; });
    row("view style", Kind::WaterLevel, [](Session &s) { s.viewStyle = ViewStyle::Ends; });
    row("unit", Kind::PipeDimension, [](Session &s) { s.unit = MeasureUnit::Imperial; });
    row("scale", Kind::CrackWidth, [](Session &s) { s.mmPerPixel = 0.74; });
    row("calibration", Kind::CrackWidth, [](Session &s) {
        s.mmPerPixel.reset();
        s.calibrationText = QStringLiteral("218;10;20");
    });
    row("points", Kind::PipeDimension, [](Session &s) { s.points.removeLast(); });
}

void TestEditing::everyFieldShows()
{
    QFETCH(Session, session);
    QFETCH(Session, changed);
    ZaItem item;
    const QImage before = painted(session, item);
    const QImage after = painted(changed, item);
    QVERIFY(after != before);
    const Result<Session> told = sessionOf(item);
    ZaItem another;
    QCOMPARE(painted(*told, another), after);
}

void TestEditing::measuresValuesAndTexts_data()
{
    QTest::addColumn<Session>("session");
    QTest::addColumn<QStringList>("expected"); // name, unit and text of each value
    QTest::addColumn<QVector<double>>("numbers");
    const QVector<SessionPoint> square{{{}, Vec3(-0.05, -0.05, -0.3), {}},
                                       {{}, Vec3(0.05, -0.05, -0.3), {}},
                                       {{}, Vec3(0.05, 0.05, -0.3), {}},
                                       {{}, Vec3(-0.05, 0.05, -0.3), {}},
                                       {{}, Vec3(-0.05, -0.05, -0.3), {}}};
    const auto row = [](
                         const char *name, Kind kind, const QVector<SessionPoint> &points,
                         const QStringList &expected, const QVector<double> &numbers,
                         const std::function<void(Session &)> &change = [](Session &) {}) {
        Session session;
        session.picture.size = pictureSize;
        session.kind = kind;
        session.points = points;
        change(session);
        QTest::newRow(name) << session << expected << numbers;
    };
    row("pipe dimension", Kind::PipeDimension, square.mid(0, 2), {"length mm 10.0 cm"}, {100});
    row("pipe dimension in inches", Kind::PipeDimension, square.mid(0, 2), {"length mm 3.94''"},
        {100}, [](Session &s) { s.unit = MeasureUnit::Imperial; });
    row("closed outline", Kind::CrossSection, square, {"area mm² 100.0 cm²", "areaShare % 14 %"},
        {10000, 100 * 10000 / (M_PI * 150 * 150)});
    row("two points", Kind::CrossSection, square.mid(0, 2),
        {"length mm 10.0 cm", "diameterShare % 33.3 %"}, {100, 100.0 / 3});
    row("open outline", Kind::CrossSection, square.mid(0, 3), {"length mm 20.0 cm"}, {200});
    row("water level, rounded as drawn", Kind::WaterLevel, {}, {"waterLevel % 13 %"}, {12.5},
        [](Session &s) { s.percentage = 12.5; });
    row("branch angle", Kind::BranchAngle, {}, {"branchAngle deg 67.5°"}, {67.5},
        [](Session &s) { s.angleDEG = 67.5; });
    row("bend angle in steps", Kind::BendAngle, {}, {"bendAngle deg 70°"}, {70},
        [](Session &s) { s.angleDEG = 67.5; });
    const QVector<SessionPoint> crack{{{}, Vec3(0.25, 0.5, 0), {}}, {{}, Vec3(0.75, 0.5, 0), {}}};
    row("crack of 300 pixels", Kind::CrackWidth, crack, {"crackWidth mm 30 mm"}, {30},
        [](Session &s) { s.mmPerPixel = 0.1; });
    row("path along a crack", Kind::CrackWidth, crack + crack.mid(0, 1), {"length mm 60 mm"}, {60},
        [](Session &s) { s.mmPerPixel = 0.1; });
    row("crack, scale of a table", Kind::CrackWidth, crack, {"crackWidth mm 60 mm"}, {60},
        [](Session &s) { s.calibrationText = QStringLiteral("200;10;1\n400;10;3"); });
}

void TestEditing::measuresValuesAndTexts()
{
    QFETCH(Session, session);
    QFETCH(QStringList, expected);
    QFETCH(QVector<double>, numbers);
    const Measurement measurement = measure(session);
    QCOMPARE(measurement.state, MeasureState::Measured);
    QCOMPARE(measurement.values.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        const Value &value = measurement.values[i];
        QCOMPARE(value.name + ' ' + value.unit + ' ' + value.text, expected[i]);
        COMPARE_NEAR(value.number, numbers[i], millimetreTolerance);
    }
}

void TestEditing::saysWhyThereIsNoValue_data()
{
    QTest::addColumn<Session>("session");
    QTest::addColumn<MeasureState>("state");
    const QPointF a(300, 200);
    const QPointF b(320, 200);
    const auto row = [](const char *name, Kind kind, bool hasScale, const QVector<QPointF> &clicks,
                        MeasureState state) {
        Session session = emptySession(kind);
        startKind(session, kind);
        if (!hasScale) {
            session.mmPerPixel.reset();
        }
        addClicks(session, clicks);
        QTest::newRow(name) << session << state;
    };
    row("crack without points", Kind::CrackWidth, true, {}, MeasureState::NeedsPoints);
    row("crack of one point", Kind::CrackWidth, true, {a}, MeasureState::NeedsPoints);
    row("crack on one place", Kind::CrackWidth, true, {a, a}, MeasureState::NeedsPoints);
    row("crack without a scale", Kind::CrackWidth, false, {a, b}, MeasureState::NoScale);
    row("neither points nor scale", Kind::CrackWidth, false, {}, MeasureState::NoScale);
    row("dimension of one point", Kind::PipeDimension, true, {a}, MeasureState::NeedsPoints);
    row("level that was only chosen", Kind::WaterLevel, true, {}, MeasureState::NotSet);
    row("bend that was only chosen", Kind::BendAngle, true, {}, MeasureState::NotSet);
}

void TestEditing::saysWhyThereIsNoValue()
{
    QFETCH(Session, session);
    QFETCH(MeasureState, state);
    const Measurement measurement = measure(session);
    QCOMPARE(measurement.state, state);
    QVERIFY(measurement.values.isEmpty() && !measurement.note.isEmpty());
}

void TestEditing::clickClosesAndRestarts()
{
    Session session = exampleSession(Kind::CrossSection);
    QVERIFY(isClosedOutline(session));
    session.points.removeLast();
    QVERIFY(!isClosedOutline(session));
    QCOMPARE(clickPoint(session, QPointF(252, 202)), ClickResult::Added);
    QCOMPARE(session.points.size(), 5);
    QVERIFY(*session.points.first().position == *session.points.last().position);
    QCOMPARE(session.points.last().pixel, QPointF(252, 202));
    QCOMPARE(clickPoint(session, QPointF(400, 300)), ClickResult::Restarted);
    QCOMPARE(session.points.size(), 1);
    QCOMPARE(session.points.first().pixel, QPointF(400, 300));
}

void TestEditing::missedPointsAreReported()
{
    Session session = emptySession(Kind::WaterLevel);
    QCOMPARE(clickPoint(session, QPointF(250, 200)), ClickResult::Missed);
    session = Session();
    session.picture.size = pictureSize;
    session.offset = 2000; // the camera stands outside the pipe
    addClicks(session, {{110, 300}, {690, 300}});
    QCOMPARE(placePoints(session), (QVector<QPointF>{{110, 300}}));
    QCOMPARE(session.points.size(), 1);
    QCOMPARE(clickPoint(session, QPointF(110, 300)), ClickResult::Missed);
    // What is not met any more stays where it was on the model.
    const Session before = session;
    session.points[0].pixel = QPointF(110, 300);
    pickPointsAnew(session);
    QVERIFY(*session.points[0].position == *before.points[0].position);
}

void TestEditing::movesPoints()
{
    Session session = exampleSession(Kind::CrossSection);
    // Beside the first point: a click there would snap to it.
    QVERIFY(movePoint(session, 2, QPointF(255, 210)));
    QVERIFY(*session.points[2].position != *session.points[0].position);
    QVERIFY(movePoint(session, 4, QPointF(240, 210)));
    QVERIFY(*session.points[0].position == *session.points[4].position);
    QCOMPARE(session.points[0].pixel, QPointF(240, 210));

    // A model that moves is measured where the points were clicked; the outline stays closed.
    Session turned = session;
    turned.rearCircleX += 5;
    pickPointsAnew(turned);
    QVERIFY(isClosedOutline(turned));
    QVERIFY(*turned.points[1].position != *session.points[1].position);
    const QPointF moved = PipeView(turned).project(*turned.points[1].position) -
                          PipeView(session).project(*session.points[1].position);
    QVERIFY(moved.manhattanLength() <= 1.0);

    const Session before = session;
    QVERIFY(!movePoint(session, 5, QPointF(240, 210)));
    QVERIFY(!movePoint(session, -1, QPointF(240, 210)));
    QVERIFY(session == before);
}

void TestEditing::planeTakesItsPointsAlong()
{
    Session session = exampleSession(Kind::CrossSection);
    const double before = measure(session).values[0].number;
    changePercentage(session, 60.0);
    for (const SessionPoint &point : session.points) {
        COMPARE_NEAR(point.position->z, -0.6 * 2.175, sceneTolerance);
    }
    COMPARE_NEAR(measure(session).values[0].number, before, millimetreTolerance);
    Session water = emptySession(Kind::WaterLevel);
    changePercentage(water, 60.0);
    COMPARE_NEAR(measure(water).values[0].number, 60.0, millimetreTolerance);

    // A click on the wall at the axis' height is a pipe filled to a half.
    water = Session();
    water.kind = Kind::WaterLevel;
    water.picture.size = pictureSize;
    QVERIFY(std::abs(*waterLevelAt(water, QPointF(150.5, 300)) - 50.0) < 0.2);
    water.offset = 2000;
    QVERIFY(!waterLevelAt(water, QPointF(110, 300)));
}

void TestEditing::laserSpotsGiveTheScale()
{
    Session session = exampleSession(Kind::CrackWidth);
    const auto scaleTo = [&](const char *calibration, const QPointF &second) {
        session.calibrationText = QLatin1String(calibration);
        const bool isTaken = !takeLaserScale(session, QPointF(200, 300), second);
        return isTaken ? *session.mmPerPixel : 0.0;
    };
    COMPARE_NEAR(scaleTo("LASER;;;50", QPointF(400, 300)), 0.25, millimetreTolerance);
    COMPARE_NEAR(scaleTo("LASER;;;30", QPointF(200, 200)), 0.3, millimetreTolerance);
    QCOMPARE(scaleTo("LASER;;;50", QPointF(200, 300)), 0.0);  // the same pixel
    QCOMPARE(scaleTo("150;768;120", QPointF(400, 300)), 0.0); // no distance of the spots
}

QTEST_MAIN(TestEditing)
#include "tst_editing.moc"
