// Uncertainties: that the model behind them is what is measured and drawn, that they add up, that
// they hold for simulated operators, and how they are told.
#include "AlignmentTrial.h"
#include "MeasuringTrial.h"
#include "measuring/Editing.h"
#include "measuring/MatchedCurve.h"
#include "measuring/Measurement.h"
#include "measuring/PlaceUncertainty.h"
#include "measuring/Repeats.h"
#include "measuring/Replay.h"
#include "measuring/SessionFit.h"
#include "measuring/Uncertainty.h"
#include "measuring/UncertaintyText.h"
#include "support/PaintRecorder.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QLineF>
#include <QTest>

#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;
using namespace Drevon::Zalento::Tools;

Q_DECLARE_METATYPE(Drevon::Zalento::Measuring::Session)
Q_DECLARE_METATYPE(Task)
Q_DECLARE_METATYPE(AlignedBy)

namespace {

constexpr int seed = 3;
constexpr double mouthPX = 300 / 1.02; // radius of the mouth in the picture of onAxis()

// A kind with an alignment off the axis, and points where it takes them.
Session exampleSession(Kind kind)
{
    Session session;
    session.picture.size = QSize(800, 600);
    session.kind = kind;
    session.diameterMM = 217.5;
    session.offset = 12.5;
    session.rollDEG = 7.25;
    session.cameraHeightPercent = 42.0;
    session.fovYDEG = 44.4;
    session.rearCircleX = 6.5;
    session.rearCircleY = -4.5;
    session.mouthPercent = 90.0;
    session.percentage = 30.0;
    session.angleDEG = 60.0;
    session.clockDEG = 30;
    session.mmPerPixel = 0.37;
    if (infoOf(kind).has(Uses::Points)) {
        for (const QPointF &pixel : {QPointF(250.5, 200.5), {420.5, 190.5}, {430.5, 380.5}}) {
            session.points.append({pixel, {}, {}});
        }
    }
    placePoints(session);
    return session;
}

// A square picture along the axis; a click alone is uncertain.
Session onAxis()
{
    Session session;
    session.picture.size = QSize(600, 600);
    session.fovYDEG = 60.0;
    StandardUncertainties &known = session.standardUncertainties;
    known.clickPX = 2.0;
    known.alignmentPX = known.fovDEG = known.diameterMM = 0.0;
    return session;
}

Session closedOutline()
{
    Session session = exampleSession(Kind::CrossSection);
    session.points.append(session.points.first());
    return session;
}

Uncertainty firstUncertainty(const Session &session, UncertaintyEffort effort)
{
    return *uncertaintiesOf(session, {}, effort).first();
}

double partOf(const Uncertainty &uncertainty, UncertaintySource source)
{
    for (const BudgetRow &row : uncertainty.budget) {
        if (row.source == source) {
            return row.standardUncertainty;
        }
    }
    return 0.0;
}

// Every line that the item draws for a session, in picture pixels.
QVector<QLineF> drawnLines(const Session &session)
{
    ZaItem item;
    showSession(session, item);
    PaintRecorder recorder(item.size().toSize());
    QPainter painter(&recorder);
    item.paint(&painter);
    painter.end();
    QVector<QLineF> lines;
    for (const PaintCall &call : recorder.calls()) {
        for (int i = 1; i < call.points.size(); ++i) {
            const QPointF at = item.position();
            lines += QLineF(call.transform.map(call.points[i - 1]) + at,
                            call.transform.map(call.points[i]) + at);
        }
    }
    return lines;
}

double distance(const QPointF &p, const QLineF &line)
{
    const QPointF along = line.p2() - line.p1();
    const double squared = QPointF::dotProduct(along, along);
    const double at = squared > 0.0 ? QPointF::dotProduct(p - line.p1(), along) / squared : 0.0;
    return QLineF(p, line.pointAt(qBound(0.0, at, 1.0))).length();
}

// In the picture the ellipse of a click is a circle around it.
void verifyCircle(const QPolygonF &ellipse, const QPointF &middle, double radius)
{
    QVERIFY(ellipse.size() > 20);
    for (const QPointF &corner : ellipse) {
        COMPARE_NEAR(QLineF(middle, corner).length() / radius, 1.0, (Tolerance{0.05, ""}));
    }
}

} // namespace

class TestUncertainty : public TestCase
{
    Q_OBJECT

private slots:
    void modelGivesWhatIsMeasured_data();
    void modelGivesWhatIsMeasured();
    void curvesAreThoseThatAreDrawn_data();
    void curvesAreThoseThatAreDrawn();
    void fitFollowsWhatItIsNotAskedFor();
    void refitsMoveValuesByTheirUncertainty();
    void sourcesAddUp();
    void settingsErrByWhatTheEyeLetsPass();
    void drawsTakeOverWhereTheFirstOrderFails();
    void theEyeMovesPlaces();
    void placesAreWorthTheirPixels();
    void operatorsAreCovered_data();
    void operatorsAreCovered();
    void isTold_data();
    void isTold();
    void limitsAreRead();
    void limitsDecide_data();
    void limitsDecide();
    void repeatsAreKept();
};

void TestUncertainty::modelGivesWhatIsMeasured_data()
{
    QTest::addColumn<Session>("session");
    for (const KindInfo &info : kinds()) {
        QTest::newRow(info.name) << exampleSession(info.kind);
    }
    QTest::newRow("closed outline") << closedOutline();
    Session corrected = exampleSession(Kind::PipeDimension);
    corrected.rearCircleX = 300.0;
    placePoints(corrected);
    QTest::newRow("corrected far end") << corrected;
    // Its points stay on the wall where they were clicked before.
    Session moved = exampleSession(Kind::PipeDimension);
    moved.offset = -40.0;
    QTest::newRow("moved model") << moved;
}

void TestUncertainty::modelGivesWhatIsMeasured()
{
    QFETCH(Session, session);
    const Measurement measurement = measure(session);
    const MeasuringModel model(session);
    const Eigen::VectorXd values = model.values(model.inputs());
    QCOMPARE(static_cast<int>(values.size()), measurement.values.size());
    for (int i = 0; i < measurement.values.size(); ++i) {
        // The overlay computes in single precision here and there.
        COMPARE_NEAR(values[i] / measurement.values[i].number, 1.0, (Tolerance{1e-4, ""}));
    }
}

void TestUncertainty::curvesAreThoseThatAreDrawn_data()
{
    QTest::addColumn<Session>("session");
    QTest::newRow("water") << exampleSession(Kind::WaterLevel);
    QTest::newRow("branch") << exampleSession(Kind::BranchAngle);
    Session steep = exampleSession(Kind::BranchAngle);
    steep.angleDEG = 130.0;
    QTest::newRow("branch towards the camera") << steep;
    Session bend = exampleSession(Kind::BendAngle);
    QTest::newRow("bend") << bend;
    bend.viewDownstream = false;
    QTest::newRow("bend from behind") << bend;
    bend.jointShown = true;
    QTest::newRow("joint") << bend;
    QTest::newRow("plane") << exampleSession(Kind::CrossSection);
}

void TestUncertainty::curvesAreThoseThatAreDrawn()
{
    QFETCH(Session, session);
    const QVector<QLineF> lines = drawnLines(session);
    const MeasuringModel model(session);
    const std::vector<QPointF> curve = MatchedCurve(session).pixels(model.inputs());
    int seen = 0;
    for (const QPointF &point : curve) {
        if (!std::isfinite(point.x())) {
            continue;
        }
        double nearest = 1e9;
        for (const QLineF &line : lines) {
            nearest = std::min(nearest, distance(point, line));
        }
        ++seen;
        // Drawn curves are chords, and water stands in whole degrees of the wall.
        QVERIFY2(nearest < 3.0,
                 qPrintable(
                     QStringLiteral("point %1 lies %2 px from every line").arg(seen).arg(nearest)));
    }
    QVERIFY(seen > 40);
}

// Refitted with another field of view and another diameter.
void TestUncertainty::fitFollowsWhatItIsNotAskedFor()
{
    std::mt19937_64 random(seed);
    constexpr double spreadPX = 0.2;
    const AlignmentTrial trial = drawTrial(Situation::KnownDistance, random, spreadPX);
    const auto fitOf = [&trial](double moreDEG, double moreMM) {
        Alignment start = trial.truth;
        start.fovYDEG += moreDEG;
        return *fitAlignment(trial.clicks, start, trial.diameterMM + moreMM, trial.picture);
    };
    const AlignmentFit fit = fitOf(0.0, 0.0);
    constexpr double byDEG = 0.5;
    constexpr double byMM = 2.0;
    const AlignmentNumbers ofFov = fitOf(byDEG, 0.0).alignment.numbers();
    const AlignmentNumbers ofDiameter = fitOf(0.0, byMM).alignment.numbers();
    const AlignmentNumbers before = fit.alignment.numbers();
    for (const AlignmentField field : fit.fitted) {
        const auto i = static_cast<std::size_t>(field);
        const auto fov = static_cast<std::size_t>(AlignmentField::FovYDEG);
        const double bySlope = byDEG * fit.response[i][fov];
        const double byDiameter = byMM * fit.diameterResponse[i];
        // The offset is rounded to whole units, and the others follow it.
        const Tolerance rounding{1.0 + 0.1 * std::abs(bySlope), "units"};
        COMPARE_NEAR(ofFov[i] - before[i], bySlope, rounding);
        COMPARE_NEAR(ofDiameter[i] - before[i], byDiameter, rounding);
    }
    // The direction of a wider view is another one.
    QVERIFY(std::abs(fit.response[2][5]) + std::abs(fit.response[3][5]) > 0.1);
}

// The field of view and the diameter move a length on the wall as aligning anew moves it.
void TestUncertainty::refitsMoveValuesByTheirUncertainty()
{
    std::mt19937_64 random(seed);
    const AlignmentTrial trial = drawTrial(Situation::KnownDistance, random, 0.2);
    const auto refitted = [&trial](double moreDEG, double moreMM) {
        Session session;
        session.picture.size = trial.picture;
        session.kind = Kind::PipeDimension;
        setAlignment(session, trial.truth);
        session.fovYDEG += moreDEG;
        session.diameterMM = trial.diameterMM + moreMM;
        session.rings = trial.clicks.rings;
        session.lines = trial.clicks.lines;
        session.standardUncertainties.diameterMM = 1.0;
        const AlignmentFit fit = *fitSession(session);
        for (const QPointF &pixel : trial.wallPixels) {
            session.points.append({pixel, {}, {}});
        }
        return std::pair(measure(session).values.first().number,
                         *uncertaintiesOf(session, fit, UncertaintyEffort::FirstOrder).first());
    };
    const Uncertainty known = refitted(0, 0).second;
    const double byFov = (refitted(2, 0).first - refitted(-2, 0).first) / 4;
    const double byDiameter = (refitted(0, 4).first - refitted(0, -4).first) / 8;
    const Tolerance rounding{0.05, ""}; // the offset is rounded to whole units
    COMPARE_NEAR(partOf(known, UncertaintySource::FieldOfView) / std::abs(byFov), 1.0, rounding);
    COMPARE_NEAR(partOf(known, UncertaintySource::Diameter) / std::abs(byDiameter), 1.0, rounding);
}

void TestUncertainty::sourcesAddUp()
{
    // Two clicks 200 px apart with a typed scale: the propagation can be written down.
    Session crack;
    crack.picture.size = QSize(800, 600);
    crack.kind = Kind::CrackWidth;
    crack.mmPerPixel = 0.5;
    crack.standardUncertainties.clickPX = 0.8;
    crack.standardUncertainties.scalePercent = 3.0;
    crack.points = {{QPointF(100, 300), {}, {}}, {QPointF(300, 300), {}, {}}};
    const Uncertainty width = firstUncertainty(crack, UncertaintyEffort::FirstOrder);
    const Tolerance tolerance{1e-6, "mm"};
    COMPARE_NEAR(partOf(width, UncertaintySource::Clicks), 0.5 * 0.8 * std::sqrt(2), tolerance);
    COMPARE_NEAR(partOf(width, UncertaintySource::Pixels), 0.5 * std::sqrt(2.0 / 12), tolerance);
    COMPARE_NEAR(partOf(width, UncertaintySource::Scale), 0.03 * 100, tolerance);

    // From laser spots: 1 percent of their distance, and 0.8 px of each of two clicks.
    QVERIFY(!takeLaserScale(crack, QPointF(200, 100), QPointF(300, 100)));
    const Uncertainty byLaser = firstUncertainty(crack, UncertaintyEffort::FirstOrder);
    const double spots = std::sqrt(2 * (0.8 * 0.8 + 1.0 / 12)) / 100;
    COMPARE_NEAR(partOf(byLaser, UncertaintySource::Laser), 100 * std::hypot(0.01, spots),
                 tolerance);
    QCOMPARE(partOf(byLaser, UncertaintySource::Scale), 0.0);

    // An area grows with the square of the diameter; its share not at all.
    Session outline = closedOutline();
    outline.standardUncertainties.diameterMM = 0.01 * outline.diameterMM;
    const auto both = uncertaintiesOf(outline, {}, UncertaintyEffort::FirstOrder);
    const double area = measure(outline).values.first().number;
    COMPARE_NEAR(partOf(*both[0], UncertaintySource::Diameter) / area, 0.02, (Tolerance{1e-4, ""}));
    QVERIFY(partOf(*both[1], UncertaintySource::Diameter) < 1e-9);
    double shares = 0.0;
    double variance = 0.0;
    for (const BudgetRow &row : both[0]->budget) {
        shares += row.share;
        variance += row.standardUncertainty * row.standardUncertainty;
    }
    COMPARE_NEAR(shares, 1.0, roundingTolerance);
    COMPARE_NEAR(std::sqrt(variance) / both[0]->standard, 1.0, roundingTolerance);
}

void TestUncertainty::settingsErrByWhatTheEyeLetsPass()
{
    // The mouth is 600 / 1.02 px high: 2 px are 0.34 percent of it where the level's line counts
    // alone; its edges along the wall move less.
    Session water = exampleSession(Kind::WaterLevel);
    water.percentage = 50.0;
    const double level =
        partOf(firstUncertainty(water, UncertaintyEffort::FirstOrder), UncertaintySource::Setting);
    QVERIFY2(level > 0.3 && level < 1.0, qPrintable(QString::number(level)));

    // A full pipe's edges spread quickly when the water falls.
    for (const double limit : {0.0, 100.0}) {
        water.percentage = limit;
        QVERIFY(firstUncertainty(water, UncertaintyEffort::FirstOrder).standard < 0.1);
    }

    // A branch near a right angle hardly moves its mouth.
    Session branch = exampleSession(Kind::BranchAngle);
    const auto settingAt = [&branch](double angleDEG) {
        branch.angleDEG = angleDEG;
        return partOf(firstUncertainty(branch, UncertaintyEffort::FirstOrder),
                      UncertaintySource::Setting);
    };
    QVERIFY2(settingAt(90.0) > 8.0, qPrintable(QString::number(settingAt(90.0))));
    QVERIFY2(settingAt(40.0) < 4.0, qPrintable(QString::number(settingAt(40.0))));

    // A bend is drawn in steps of 5 degrees, whatever the eye can tell.
    Session bend = exampleSession(Kind::BendAngle);
    bend.standardUncertainties.alignmentPX = 0.0;
    COMPARE_NEAR(
        partOf(firstUncertainty(bend, UncertaintyEffort::FirstOrder), UncertaintySource::Setting),
        5.0 / std::sqrt(12.0), (Tolerance{1e-6, "deg"}));
}

void TestUncertainty::drawsTakeOverWhereTheFirstOrderFails()
{
    Session session = exampleSession(Kind::PipeDimension);
    session.points.resize(2);
    const Uncertainty near = firstUncertainty(session, UncertaintyEffort::Checked);
    QCOMPARE(near.method, UncertaintyMethod::FirstOrder);
    QVERIFY(!near.interval);

    const Uncertainty drawn = firstUncertainty(session, UncertaintyEffort::MonteCarlo);
    const Uncertainty again = firstUncertainty(session, UncertaintyEffort::MonteCarlo);
    QCOMPARE(drawn.method, UncertaintyMethod::MonteCarlo);
    QCOMPARE(*drawn.interval, *again.interval);
    COMPARE_NEAR(drawn.standard / near.standard, 1.0, (Tolerance{0.05, ""}));
    COMPARE_NEAR((drawn.interval->second - drawn.interval->first) / (2 * 1.96 * near.standard), 1.0,
                 (Tolerance{0.05, ""}));

    // Pixels alone are rectangles.
    Session crack = exampleSession(Kind::CrackWidth);
    crack.standardUncertainties.clickPX = crack.standardUncertainties.scalePercent = 0.0;
    COMPARE_NEAR(firstUncertainty(crack, UncertaintyEffort::MonteCarlo).standard /
                     firstUncertainty(crack, UncertaintyEffort::FirstOrder).standard,
                 1.0, (Tolerance{0.03, ""}));

    // A point near where all lines along the pipe meet may be much deeper, hardly less deep.
    session.points[1] = {QPointF(405, 275), {}, {}};
    const double length = measure(session).values.first().number;
    const Uncertainty deep = firstUncertainty(session, UncertaintyEffort::Checked);
    QCOMPARE(deep.method, UncertaintyMethod::MonteCarlo);
    QVERIFY(deep.interval->second - length > 1.2 * (length - deep.interval->first));
}

// Two pixels of the mouth's place, its size and the far ring's place move a place above the axis
// along the pipe: by f / r of what the axis moves up there, and by the radius times its slope.
void TestUncertainty::theEyeMovesPlaces()
{
    Session session = onAxis();
    session.standardUncertainties.alignmentPX = 2.0;
    session.standardUncertainties.clickPX = 0.0;
    const double r = 200.0;
    const double f = 300 * std::sqrt(3.0);
    const double lengthMM = 10 * session.diameterMM;
    const double mouthMM = f * 150 / mouthPX;
    const double depthMM = f * 150 / r - mouthMM;
    const double part = depthMM / lengthMM;
    const double slope = 150 / lengthMM;
    const double byMouth = 2 * mouthMM / f * ((1 - part) * f / r - slope);
    const double byFarRing = 2 * (mouthMM + lengthMM) / f * (part * f / r + slope);
    const double bySize = 2 * mouthMM / mouthPX;
    const double byPixels = std::sqrt(1.0 / 12) * (mouthMM + depthMM) / r;
    const double along = std::hypot(std::hypot(byMouth, byFarRing), std::hypot(bySize, byPixels));
    const auto place = PlaceUncertainty(session, {}).at(QPointF(300, 300 - r));
    COMPARE_NEAR(place->alongMM / (2 * along), 1.0, (Tolerance{0.01, ""}));
}

// On the axis the wall is seen at r = f R / d pixels from the middle for a place d before the eye:
// a pixel there is worth d^2 / (f R) along the pipe and d / f around it.
void TestUncertainty::placesAreWorthTheirPixels()
{
    const Session session = onAxis();
    const double focalPX = 300 * std::sqrt(3.0);
    const double r = 200.0;
    const double d = focalPX * 150 / r;
    const double alongMM = d * d / (focalPX * 150);
    const double expandedPX = 2 * std::sqrt(2.0 * 2.0 + 1.0 / 12);

    const PlaceUncertainty places(session, {});
    const Tolerance tolerance{1e-3, "mm"};
    for (const QPointF &pixel : {QPointF(300, 300 - r), QPointF(300 + 0.6 * r, 300 + 0.8 * r)}) {
        const auto place = places.at(pixel);
        COMPARE_NEAR(place->mmPerPixel, alongMM, tolerance);
        COMPARE_NEAR(place->alongMM, expandedPX * alongMM, tolerance);
        COMPARE_NEAR(place->aroundMM, expandedPX * d / focalPX, tolerance);
        COMPARE_NEAR(place->largestMM, place->alongMM, tolerance);
        verifyCircle(places.ellipse(pixel), pixel, 2.4477 * expandedPX / 2);
    }
    QVERIFY(!places.at(QPointF(300, 297))); // beyond the modelled pipe

    // On a plane a pixel is worth d / f in all directions.
    Session section = session;
    section.kind = Kind::CrossSection;
    section.percentage = 10.0;
    const double planeMM = focalPX * 150 / mouthPX + 0.1 * 10 * session.diameterMM;
    const PlaceUncertainty onPlane(section, {});
    const auto place = onPlane.at(QPointF(350, 260));
    COMPARE_NEAR(place->aroundMM, expandedPX * planeMM / focalPX, tolerance);
    COMPARE_NEAR(place->alongMM, expandedPX * planeMM / focalPX, tolerance);
    verifyCircle(onPlane.ellipse(QPointF(350, 260)), QPointF(350, 260), 2.4477 * expandedPX / 2);

    const QImage map = wallMap(session, {}, MapQuantity::Scale, 300);
    QCOMPARE(map.size(), QSize(300, 300));
    QCOMPARE(qAlpha(map.pixel(150, 150)), 0);
    const auto colourFor = [](double mm) {
        const auto &steps = mapSteps();
        return std::find_if(steps.begin(), steps.end(),
                            [mm](const MapStep &s) { return mm <= s.upToMM; })
                   ->colour &
               RGB_MASK;
    };
    QCOMPARE(map.pixel(150, 50) & RGB_MASK, colourFor(alongMM));
    QCOMPARE(map.pixel(150, 120) & RGB_MASK, colourFor(alongMM * 11.5));
}

void TestUncertainty::operatorsAreCovered_data()
{
    QTest::addColumn<Task>("task");
    QTest::addColumn<AlignedBy>("aligned");
    QTest::newRow("length, joints") << Task::Length << AlignedBy::Joints;
    QTest::newRow("length, by eye") << Task::Length << AlignedBy::Eye;
    QTest::newRow("area, joints") << Task::Area << AlignedBy::Joints;
    QTest::newRow("area, by eye") << Task::Area << AlignedBy::Eye;
    QTest::newRow("crack, laser") << Task::CrackWidth << AlignedBy::Eye;
    QTest::newRow("water, joints") << Task::WaterLevel << AlignedBy::Joints;
    QTest::newRow("water, by eye") << Task::WaterLevel << AlignedBy::Eye;
}

void TestUncertainty::operatorsAreCovered()
{
    QFETCH(Task, task);
    QFETCH(AlignedBy, aligned);
    constexpr int trials = 80;
    const CoverageTally tally = Tools::runTrials(task, aligned, trials);
    QVERIFY(tally.trials > trials * 9 / 10);
    // Three standard deviations of what so few trials tell: of a share of 95 percent, and of a root
    // mean square of 1.
    const double covered = static_cast<double>(tally.covered) / tally.trials;
    QVERIFY2(covered > 0.95 - 3 * std::sqrt(0.95 * 0.05 / trials),
             qPrintable(QString::number(covered)));
    COMPARE_NEAR(tally.errorOverUncertainty, 1.0, (Tolerance{3 / std::sqrt(2.0 * trials), ""}));
    QCOMPARE(tally.agreeing, tally.firstOrder);
}

void TestUncertainty::isTold_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<double>("number");
    QTest::addColumn<double>("expanded");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QString>("tabled"); // without its uncertainty and with it
    const auto row = [](const char *text, const char *unit, double number, double expanded,
                        const char *told, const char *tabled) {
        QTest::newRow(told) << QString::fromUtf8(text) << QString::fromUtf8(unit) << number
                            << expanded << QString::fromUtf8(told) << QString::fromUtf8(tabled);
    };
    row("0 mm", "mm", 0.42, 0.22, "0.42 mm ± 0.22 mm", "0 mm, 0.42 mm ± 0.22 mm");
    row("0 mm", "mm", 0.42, 0.31, "0.4 mm ± 0.3 mm", "0 mm, 0.4 mm ± 0.3 mm");
    row("15.9 cm", "mm", 159.26, 2.902, "15.93 cm ± 0.29 cm", "159 mm, 159.3 mm ± 2.9 mm");
    row("15 %", "%", 15.3, 3.4, "15 % ± 3 %", "15 %, 15 % ± 3 %");
    row("15.9 cm", "mm", 159.26, 2.951, "15.9 cm ± 0.3 cm", "159 mm, 159 mm ± 3 mm");
    row("50.0 %", "%", 50.04, 0.0962, "50.04 % ± 0.10 %", "50.0 %, 50.04 % ± 0.10 %");
    row("12.345 m", "mm", 12345.6, 1234.0, "12.3 m ± 1.2 m", "12346 mm, 12300 mm ± 1200 mm");
    row("87 mm", "mm", 87.0, 39.0, "90 mm ± 40 mm", "87 mm, 90 mm ± 40 mm");
    row("6.27''", "mm", 159.26, 2.951, "6.27'' ± 0.12''", "6.27'', 6.27'' ± 0.12''");
    row("1.312'", "mm", 400.0, 30.48, "1.31' ± 0.10'", "15.75'', 15.7'' ± 1.2''");
    row("116.1 cm²", "mm²", 11613.4, 460.0, "116 cm² ± 5 cm²", "116.1 cm², 116 cm² ± 5 cm²");
    row("0.28 m²", "mm²", 282743.0, 4600.0, "0.283 m² ± 0.005 m²", "2800 cm², 2830 cm² ± 50 cm²");
    row("1.50 ft²", "mm²", 139355.0, 9290.3, "1.50 ft² ± 0.10 ft²",
        "216 inch², 216 inch² ± 14 inch²");
    row("45°", "deg", 45.0, 9.96, "45° ± 10°", "45°, 45° ± 10°");
    row("45°", "deg", 45.0, 0.0, "45° ± 0°", "45°, 45° ± 0°");
}

void TestUncertainty::isTold()
{
    QFETCH(QString, text);
    QFETCH(QString, unit);
    QFETCH(double, number);
    QFETCH(double, expanded);
    QFETCH(QString, told);
    const Value value{QStringLiteral("value"), number, unit, text, {}, {}};
    QCOMPARE(textWithUncertainty(value, expanded), told);
    const Value table = inTableUnit(value);
    QTEST(table.text + ", " + textWithUncertainty(table, expanded), "tabled");
}

void TestUncertainty::limitsAreRead()
{
    const QVector<std::tuple<const char *, double, const char *>> rows{
        {"< 3 m", 3000.0, "mm"},    {"< 2 ft", 609.6, "mm"},      {"> 2''", 50.8, "mm"},
        {"< 7 mm2", 7.0, "mm²"},    {"< 2 m²", 2e6, "mm²"},       {"< 2 cm²", 200.0, "mm²"},
        {"< 1 in2", 645.16, "mm²"}, {"< 1 ft²", 92903.04, "mm²"}, {"> 20 %", 20.0, "%"},
        {">= 45 °", 45.0, "deg"}};
    for (const auto &[text, number, unit] : rows) {
        const auto limit = limitFromText(QString::fromUtf8(text));
        COMPARE_NEAR(limit->number / number, 1.0, roundingTolerance);
        QCOMPARE(limit->unit, QString::fromUtf8(unit));
    }
}

void TestUncertainty::limitsDecide_data()
{
    QTest::addColumn<QString>("limit");
    QTest::addColumn<QString>("decision"); // of 1.00 mm with a standard uncertainty of 0.1 mm
    QTest::newRow("well below") << "< 1.17 mm"
                                << "below";
    QTest::newRow("not quite below") << "< 1.16 mm"
                                     << "cannot be decided at 95 %";
    QTest::newRow("not quite above") << ">= 0,84 mm"
                                     << "cannot be decided at 95 %";
    QTest::newRow("well above") << ">0.83mm"
                                << "above";
    QTest::newRow("another unit") << "< 1 in"
                                  << "below";
    QTest::newRow("square millimetres") << "< 2 mm²"
                                        << "";
    QTest::newRow("no unit") << "< 2"
                             << "problem";
    QTest::newRow("no sign") << "2 mm"
                             << "problem";
    QTest::newRow("an unknown unit") << "< 2 furlongs"
                                     << "problem";
}

void TestUncertainty::limitsDecide()
{
    QFETCH(QString, limit);
    QFETCH(QString, decision);
    Session session;
    session.picture.size = QSize(800, 600);
    session.kind = Kind::CrackWidth;
    session.mmPerPixel = 0.01;
    session.standardUncertainties.clickPX = 0.0;
    session.standardUncertainties.scalePercent = std::sqrt(100 - 2.0 / 12);
    session.points = {{QPointF(100, 300), {}, {}}, {QPointF(200, 300), {}, {}}};
    session.limit = limit;
    if (decision == QLatin1String("problem")) {
        QCOMPARE(checkSession(session)->place, QStringLiteral("limit"));
        return;
    }
    for (const auto effort : {UncertaintyEffort::FirstOrder, UncertaintyEffort::MonteCarlo}) {
        const Uncertainty uncertainty = firstUncertainty(session, effort);
        QCOMPARE(uncertainty.decision ? decisionText(*uncertainty.decision) : QString(), decision);
    }
}

void TestUncertainty::repeatsAreKept()
{
    Session session = exampleSession(Kind::CrackWidth);
    const QVector<SessionPoint> points = session.points.mid(0, 2);
    for (const double scale : {1.0, 1.1, 1.2}) {
        session.points = points;
        session.mmPerPixel = scale;
        if (scale < 1.2) {
            QVERIFY(measureAgain(session));
            QVERIFY(!measureAgain(session)); // nothing is measured now
        }
    }
    const Value last = measureWithUncertainty(session, {}).values.first();
    const auto statistics = last.repeats;
    const double unit = last.number / 1.2;
    QCOMPARE(statistics->count, 3);
    const Tolerance tolerance{1e-9, "mm"};
    COMPARE_NEAR(statistics->mean, 1.1 * unit, tolerance);
    COMPARE_NEAR(statistics->standardDeviation, 0.1 * unit, tolerance);
    COMPARE_NEAR(statistics->standardDeviationOfMean, 0.1 * unit / std::sqrt(3.0), tolerance);
    session.repeats.clear();
    QVERIFY(!repeatStatistics(session, last));
}

QTEST_MAIN(TestUncertainty)
#include "tst_uncertainty.moc"
