#include "AlignmentTrial.h"

#include "measuring/Count.h"
#include "measuring/FitProblem.h"
#include "support/TestCase.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;
using namespace Drevon::Zalento::Tools;

Q_DECLARE_METATYPE(Situation)
Q_DECLARE_METATYPE(RingClicks)

namespace {

constexpr int seed = 7;

// Rounding the offset moves curves by less than a third of a pixel, and lengths by less than 1/300.
constexpr double roundingPX = 0.3;
constexpr double roundingShare = 1.0 / 300;

AlignmentTrial trialOf(Situation situation, double spreadPX)
{
    std::mt19937_64 random(seed);
    return drawTrial(situation, random, spreadPX);
}

Result<AlignmentFit> fitOf(const AlignmentTrial &trial, const Alignment &start)
{
    return fitAlignment(trial.clicks, start, trial.diameterMM, trial.picture);
}

void addSituations()
{
    QTest::addColumn<Situation>("situation");
    QTest::newRow("two joints, known distance") << Situation::KnownDistance;
    QTest::newRow("two joints, known distance, field of view") << Situation::KnownDistanceAndFov;
    QTest::newRow("two joints, unknown distance") << Situation::UnknownDistance;
    QTest::newRow("a third of two joints") << Situation::PartialJoints;
    QTest::newRow("a joint and three lines") << Situation::JointAndLines;
}

QString namesOf(const QVector<AlignmentField> &fields)
{
    QStringList names;
    for (const AlignmentField field : fields) {
        names += alignmentFieldName(field);
    }
    return names.join(QLatin1Char(' '));
}

// Across the curve: away from the middle of the ring.
void push(QVector<QPointF> &ring, int click, double px)
{
    QPointF middle;
    for (const QPointF &p : ring) {
        middle += p / countOf(ring);
    }
    const QPointF way = ring[click] - middle;
    ring[click] += way * (px / std::hypot(way.x(), way.y()));
}

RingClicks circle(const QPointF &middle, double radiusPX)
{
    return {{},
            {middle + QPointF(radiusPX, 0), middle + QPointF(0, radiusPX),
             middle - QPointF(radiusPX, 0), middle - QPointF(0, radiusPX)}};
}

} // namespace

class TestAlignmentFit : public TestCase
{
    Q_OBJECT

private slots:
    void derivativesAreThoseOfTheDistances();
    void exactClicksGiveTheTruth_data() { addSituations(); }
    void exactClicksGiveTheTruth();
    void operatorsGetWhatIsStated_data() { addSituations(); }
    void operatorsGetWhatIsStated();
    void aWrongClickIsNamed();
    void whatWasClickedIsDescribed();
    void whatIsNotDeterminedStays_data();
    void whatIsNotDeterminedStays();
    void aProblemIsSaid_data();
    void aProblemIsSaid();
};

void TestAlignmentFit::derivativesAreThoseOfTheDistances()
{
    // A turned camera, a ring 200 mm behind the mouth, a line at three o'clock.
    FitProblem problem{QSize(800, 600), 300.0, {20, 45, 12, -8, 80, 50, 200, 90}, {}, {}};
    problem.free = {5, 0, 1, 2, 7, 3, 4, 6};
    problem.clicks = {{{250, 200}, {false, 0, 0}, 6},
                      {{520, 330}, {false, 0, 1}, 6},
                      {{600, 310}, {true, 0, 0}, 7},
                      {{500, 290}, {true, 0, 1}, 7}};
    const Eigen::MatrixXd slopes = derivatives(problem);
    // Differences of 1e-5 units: errors of 1e-10 from both the third derivative and rounding.
    constexpr double step = 1e-5;
    for (std::size_t column = 0; column < problem.free.size(); ++column) {
        double &value = problem.values[static_cast<std::size_t>(problem.free[column])];
        const double at = value;
        value = at + step;
        const Eigen::VectorXd above = distances(problem);
        value = at - step;
        const Eigen::VectorXd below = distances(problem);
        value = at;
        const Eigen::VectorXd difference = (above - below) / (2 * step);
        const double error =
            (slopes.col(static_cast<Eigen::Index>(column)) - difference).cwiseAbs().maxCoeff();
        QVERIFY2(error < 1e-6,
                 qPrintable(QStringLiteral("number %1: %2").arg(problem.free[column]).arg(error)));
    }
}

void TestAlignmentFit::exactClicksGiveTheTruth()
{
    QFETCH(Situation, situation);
    const AlignmentTrial trial = trialOf(situation, 0.0);
    Alignment start;
    if (!trial.clicks.fitsFov) {
        start.fovYDEG = trial.truth.fovYDEG;
    }
    const auto fit = fitOf(trial, start);
    QVERIFY2(fit, fit ? "" : qPrintable(fit.problem().text()));
    QCOMPARE(namesOf(fit->undetermined), QString());
    QCOMPARE(fit->alignment.offset, std::round(trial.truth.offset));
    QVERIFY2(fit->largestPX < roundingPX, QByteArray::number(fit->largestPX));
    const double length = lengthMM(trial, fit->alignment);
    QVERIFY2(std::abs(length / trial.lengthMM - 1) < roundingShare, QByteArray::number(length));

    // As when a saved session is fitted again.
    const auto again = fitOf(trial, fit->alignment);
    QVERIFY(again);
    QCOMPARE(again->alignment.numbers(), fit->alignment.numbers());
}

void TestAlignmentFit::operatorsGetWhatIsStated()
{
    QFETCH(Situation, situation);
    constexpr int trials = 300;
    const TrialTally tally = runTrials(situation, trials, clickSpreadPX);

    // 97 % of 300 less 3.1 binomial standard deviations.
    QVERIFY2(tally.fitted >= 282, QByteArray::number(tally.fitted));
    // 1 % for full joints. The true medians are below 0.5 %, and 0.8 % for partial ones.
    const double median = tally.medianLengthError();
    QVERIFY2(median < 0.01, QByteArray::number(median));
    // 0.9 to 1.1, and 3.1 standard deviations of the root of chi-square over 300.
    for (const double ratio : tally.errorOverUncertainty) {
        QVERIFY2(ratio == 0.0 || (ratio > 0.9 - 0.127 && ratio < 1.1 + 0.127),
                 QByteArray::number(ratio));
    }
    const auto fovRatio =
        tally.errorOverUncertainty[static_cast<std::size_t>(AlignmentField::FovYDEG)];
    QCOMPARE(fovRatio > 0.0, situation == Situation::KnownDistanceAndFov);
}

void TestAlignmentFit::aWrongClickIsNamed()
{
    std::mt19937_64 random(seed);
    constexpr int trials = 50;
    int named = 0;
    for (int i = 0; i < trials; ++i) {
        AlignmentTrial trial = drawTrial(Situation::UnknownDistance, random, clickSpreadPX);
        push(trial.clicks.rings[1].points, i % 6, i % 2 == 0 ? 30.0 : -20.0);
        const auto fit = fitOf(trial, trial.truth);
        if (fit && fit->suspicious.size() == 1) {
            const ClickIndex &wrong = fit->suspicious.first();
            named += !wrong.isLine && wrong.feature == 1 && wrong.point == i % 6 ? 1 : 0;
        }
    }
    // Of a thousand such clicks five are missed; 2 of 50 are 3.5 binomial standard deviations
    // beyond.
    QVERIFY2(named >= trials - 2, QByteArray::number(named));
}

// Looking straight along the axis: rings are circles around the middle, lines run away from it.
void TestAlignmentFit::whatWasClickedIsDescribed()
{
    constexpr double diameterMM = 300.0;
    const QPointF middle(400, 300);
    AlignmentClicks clicks;
    for (const double radiusPX : {200.0, 100.0}) {
        const RingClicks four = circle(middle, radiusPX);
        clicks.rings.append(four);
        for (const QPointF &p : four.points) {
            const QPointF way = (p - middle) * std::sqrt(0.5);
            clicks.rings.last().points += middle + way + QPointF(-way.y(), way.x());
        }
    }
    clicks.rings.append({{}, {{1, 1}, {2, 2}}});
    clicks.rings[0].points[0] += QPointF(30, 0);
    // One line slips by a pixel to both sides: 1.17 and 0.73 from the nearest one from the middle.
    clicks.lines = {
        {{{500, 301}, {560, 299}}}, {{{400, 420}, {400, 500}}}, {{{200, 300}, {300, 300}}}};
    const auto fit = fitAlignment(clicks, Alignment(), diameterMM, QSize(800, 600));
    QVERIFY2(fit, fit ? "" : qPrintable(fit.problem().text()));

    const auto isNear = [](double found, double expected, double limit) {
        return std::abs(found - expected) < limit;
    };
    // The clicks off the curves turn the fit by a tenth of a pixel.
    constexpr double slackPX = 0.15;
    const double focalPX = 300 / std::tan(0.5 * 37.5 * M_PI / 180);
    QCOMPARE(*fit->ringDepthsMM[0], 0.0);
    const double depthMM = focalPX * 0.5 * diameterMM * (1.0 / 100 - 1.0 / 200);
    QVERIFY2(isNear(*fit->ringDepthsMM[1], depthMM, 1.0),
             QByteArray::number(*fit->ringDepthsMM[1]));
    QVERIFY(!fit->ringDepthsMM[2] && fit->ringResiduals[2].isEmpty());
    const double clocksDEG[] = {90, 180, 270};
    for (int line = 0; line < 3; ++line) {
        QVERIFY2(isNear(*fit->lineClocksDEG[line], clocksDEG[line], 0.3),
                 QByteArray::number(*fit->lineClocksDEG[line]));
    }
    QCOMPARE(fit->suspicious.size(), 1);
    const QPointF off = fit->ringResiduals[0][0] - QPointF(30, 0);
    QVERIFY2(std::hypot(off.x(), off.y()) < slackPX, QByteArray::number(off.x()));
    const QPointF below = fit->lineResiduals[0][0];
    QVERIFY2(isNear(below.y(), 1.17, slackPX), QByteArray::number(below.y()));
    QVERIFY2(isNear(fit->largestPX, 1.17, slackPX), QByteArray::number(fit->largestPX));
    constexpr int countedClicks = 15 + 6;
    QVERIFY2(isNear(fit->rmsPX, std::hypot(1.17, 0.73) / std::sqrt(countedClicks), 0.03),
             QByteArray::number(fit->rmsPX));
}

void TestAlignmentFit::whatIsNotDeterminedStays_data()
{
    QTest::addColumn<int>("rings");
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("fitsFov");
    QTest::addColumn<QString>("undetermined");
    const QString direction = QStringLiteral("rearCircleX rearCircleY");
    QTest::newRow("a joint") << 1 << 0 << 0 << direction;
    QTest::newRow("a joint, field of view") << 1 << 0 << 1 << direction + " fovYDEG";
    QTest::newRow("a joint and a line") << 1 << 1 << 0 << direction;
    QTest::newRow("a joint and one line twice") << 1 << -2 << 0 << direction;
    QTest::newRow("a joint, two lines, field of view") << 1 << 2 << 1 << QStringLiteral("fovYDEG");
    QTest::newRow("lines") << 0 << 3 << 0
                           << QStringLiteral("offset cameraHeightPercent mouthPercent");
}

void TestAlignmentFit::whatIsNotDeterminedStays()
{
    QFETCH(int, rings);
    QFETCH(int, lines);
    QFETCH(int, fitsFov);
    QFETCH(QString, undetermined);
    AlignmentTrial trial = trialOf(Situation::JointAndLines, clickSpreadPX);
    trial.clicks.rings.resize(rings);
    trial.clicks.lines.resize(std::abs(lines));
    if (lines < 0) {
        trial.clicks.lines[1] = trial.clicks.lines[0];
    }
    trial.clicks.fitsFov = fitsFov != 0;
    const auto fit = fitOf(trial, trial.truth);
    QVERIFY2(fit, fit ? "" : qPrintable(fit.problem().text()));
    QCOMPARE(namesOf(fit->undetermined), undetermined);
    for (const AlignmentField field : fit->undetermined) {
        const auto i = static_cast<std::size_t>(field);
        QCOMPARE(fit->alignment.numbers()[i], trial.truth.numbers()[i]);
    }
    // Lines have their place on the wall even where they do not count, and do not shift the rings.
    for (const QVector<QPointF> &feature : fit->ringResiduals + fit->lineResiduals) {
        for (const QPointF &way : feature) {
            QVERIFY2(std::hypot(way.x(), way.y()) < 10 * clickSpreadPX,
                     QByteArray::number(std::hypot(way.x(), way.y())));
        }
    }
}

void TestAlignmentFit::aProblemIsSaid_data()
{
    const AlignmentTrial trial = trialOf(Situation::UnknownDistance, clickSpreadPX);
    const RingClicks ring = trial.clicks.rings.first();
    const auto moved = [&](double share) {
        RingClicks result = trial.clicks.rings.last();
        for (QPointF &p : result.points) {
            p += QPointF(share * trial.picture.width(), 0);
        }
        return result;
    };
    QTest::addColumn<QVector<RingClicks>>("rings");
    QTest::addColumn<QString>("part");
    QTest::newRow("nothing") << QVector<RingClicks>() << QStringLiteral("expected three clicks");
    QTest::newRow("two clicks") << QVector<RingClicks>{{{}, {{1, 1}, {9, 9}}}}
                                << QStringLiteral("expected three clicks");
    QTest::newRow("not a number") << QVector<RingClicks>{{std::numeric_limits<double>::quiet_NaN(),
                                                          ring.points}}
                                  << QStringLiteral("found other numbers");
    QTest::newRow("one place") << QVector<RingClicks>{{{}, QVector<QPointF>(4, {99, 99})}}
                               << QStringLiteral("too near to each other");
    QTest::newRow("rings of two pipes")
        << QVector<RingClicks>{ring, moved(0.5)} << QStringLiteral("no round pipe");
    // Looking along a pipe from one diameter beside its axis.
    const QPointF middle(trial.picture.width() * 0.5, trial.picture.height() * 0.5);
    QTest::newRow("a camera beside the pipe")
        << QVector<RingClicks>{circle(middle + QPointF(200, 0), 100),
                               circle(middle + QPointF(100, 0), 50)}
        << QStringLiteral("outside of the pipe");
}

void TestAlignmentFit::aProblemIsSaid()
{
    QFETCH(QVector<RingClicks>, rings);
    QFETCH(QString, part);
    AlignmentTrial trial = trialOf(Situation::UnknownDistance, clickSpreadPX);
    trial.clicks.rings = rings;
    const auto fit = fitOf(trial, trial.truth);
    QVERIFY(!fit);
    QVERIFY2(fit.problem().text().contains(part), qPrintable(fit.problem().text()));
}

QTEST_MAIN(TestAlignmentFit)
#include "tst_alignmentfit.moc"
