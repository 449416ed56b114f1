#include "RunProgram.h"
#include "support/PictureFiles.h"

#include "measure/CommandLine.h"
#include "measuring/SessionJson.h"
#include "support/TestCase.h"

#include <QRegularExpression>
#include <QTest>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Apps;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

namespace {

Session appliedTo(const Session &session, const char *line)
{
    Session changed = session;
    const auto outcome = parseCommandLine(words(line));
    if (outcome.command) {
        outcome.command->session.applyTo(changed);
    }
    return changed;
}

} // namespace

class TestCommandLine : public TestCase
{
    Q_OBJECT

private slots:
    void refusesWrongUsage_data();
    void refusesWrongUsage();
    void optionsReachTheSession();
    void laserSpotsAreTwoWordsOrOne();
    void helpAndManualNameEveryOption();
    void examplesAreUnderstood();
};

void TestCommandLine::refusesWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *line, const char *expected) {
        QTest::newRow(name) << words(line) << QString::fromUtf8(expected);
    };
    row("nothing", "", "a verb is missing");
    row("unknown verb", "mesure a.png", "unknown verb \"mesure\"");
    row("unknown option", "measure --colour red a.png", "colour");
    row("no picture", "measure --kind WaterLevel", "no picture");
    row("kind in lower case", "measure --kind waterlevel a", "--kind: expected one of CrackWidth");
    row("decimal comma", "measure --diameter 300,5 a", "--diameter: expected a number such as");
    row("no number", "measure --roll nan a", "--roll: expected a number from");
    row("out of range", "measure --fov 180 a", "--fov: expected a number from 1 to 170");
    row("fractional clock", "measure --clock 1.5 a", "--clock: expected a whole number");
    row("given twice", "measure --angle 30 --angle 40 a", "--angle is given 2 times");
    row("click without y", "measure --click 12 a", "--click: expected X,Y");
    row("far end out of sight", "measure --rear-circle 1e9,0 a",
        "--rear-circle: expected a number");
    row("one laser spot", "measure --laser 1,2 a", "--laser: expected two points");
    row("two scales", "measure --laser 1,2 3,4 --mm-per-pixel 1 a", "both give the scale");
    row("unknown unit", "measure --unit inch a", "--unit: expected metric or imperial");
    row("unknown format", "measure --format xml a", "--format: expected text, json, jsonl or csv");
    row("unknown overlay", "measure --overlay gif a", "--overlay: expected png, svg or both");
    row("click on a branch", "measure --kind BranchAngle --click 1,2 a", "takes no --click");
    row("two clicks on water", "measure --kind WaterLevel --click 1,2 --click 3,4 a", "takes one");
    row("two water levels", "measure --kind WaterLevel --click 1,2 --percentage 5 a", "both give");
    row("scale of a dimension", "measure --kind PipeDimension --laser 1,2 3,4 a",
        "takes no --laser");
    row("bend beyond 90 degrees", "measure --kind BendAngle --angle 95 a", "from 0 to 90");
    row("branch below 30 degrees", "measure --kind BranchAngle --angle 29 a", "from 30 to 150");
    row("ring of two", "measure --ring \"1,2 3,4\" a", "--ring: expected three points or more");
    row("ring with a bad distance", "measure --ring \"1,2 3,4 5,6 @x\" a", "--ring: expected");
    row("line of one", "measure --line 1,2 a", "--line: expected two points or more");
    row("ring of a crack", "measure --kind CrackWidth --ring \"1,2 3,4 5,6\" a", "takes no --ring");
    row("mouth too small", "measure --mouth 4 a", "--mouth: expected a number from 5 to 400");
    row("negative uncertainty", "measure --click-sd -1 a", "--click-sd: expected a number from 0");
    row("limit without a unit", "measure --limit <2 a", "--limit: expected a limit such as");
    row("session and none", "measure --session s --no-session a", "contradict");
    row("empty session", "measure --session= a", "--session is empty");
    row("format of files", "render --format csv a", "it takes no --format");
    row("nothing to write", "measure --output out a", "--output needs something to write");
    row("report over a picture", "report --force --output a.png a.png", "that ends in .pdf");
    row("report and overlay", "report --output a.pdf --overlay png a", "takes no --overlay");
    row("record of values", "measure --record r.json a", "--record belongs to report");
    row("no job", "measure --jobs 0 a", "--jobs: expected a whole number from 1 to 256");
    row("kinds of a picture", "kinds a.png", "kinds takes no pictures");
    row("lens and field of view", "measure --lens l.yaml --fov 60 a",
        "both give the field of view");
    row("lens twice", "measure --lens l.yaml --fit-lens a", "both give the lens");
    row("view of a lens", "measure --lens-view half a", "--lens-view: expected square or all");
    row("board of one number", "lens --board 9 --square 25 --output c a",
        "--board: expected inner");
    row("board without a size", "lens --board 9x6 --output c a", "--square: expected the side");
    row("lens to nowhere", "lens --board 9x6 --square 25 a", "--output is missing");
    row("lens of a kind", "lens --kind CrackWidth --board 9x6 --square 25 --output c a",
        "lens takes no --kind");
    row("board of a picture", "measure --board 9x6 a", "--board belongs to lens");
    row("crack that fits the view", "measure --kind CrackWidth --fit-fov a", "takes no --fit-fov");
    const auto clicks = [](const char *name, const char *option, const char *value,
                           const char *expected) {
        QTest::newRow(name) << QStringList{"measure", option, value, "a"} << QString(expected);
    };
    clicks("joint of two clicks", "--ring", "1,1 9,1 @5", "--ring: expected three points");
    clicks("joint nowhere", "--ring", "1,1 9,1 5,9 @far", "found \"1,1 9,1 5,9 @far\"");
    clicks("joint out of reach", "--ring", "1,1 9,1 5,9 @2e7", "--ring: expected a number from");
    clicks("line of one click", "--line", "1,1", "--line: expected two points");
}

void TestCommandLine::refusesWrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, expected);
    const CommandLineOutcome outcome = parseCommandLine(arguments);
    QVERIFY(!outcome.command);
    QVERIFY(outcome.isProblem);
    QVERIFY2(outcome.text.contains(expected), qPrintable(outcome.text));
}

void TestCommandLine::optionsReachTheSession()
{
    const Session bend = appliedTo(
        Session(), "measure --kind BendAngle --diameter 217.5 --fov 40.25 --camera-height 30 "
                   "--offset -12.5 --roll -5 --percentage 45 --angle 60 --rear-circle -3.5,4 "
                   "--rear-circle-active --clock -90 --direction upstream --joint "
                   "--view-style measure --unit imperial a");
    const auto expected = sessionFromJson(R"({"schema": "zalento-session 1.0",
        "kind": "BendAngle", "diameterMM": 217.5, "fovYDEG": 40.25, "cameraHeightPercent": 30,
        "offset": -12.5, "rollDEG": -5, "percentage": 45, "angleDEG": 60, "rearCircleX": -3.5,
        "rearCircleY": 4, "rearCircleActive": true, "clockDEG": -90, "direction": "upstream",
        "jointShown": true, "viewStyle": "measure", "unit": "imperial"})");
    QCOMPARE(sessionToJson(bend), sessionToJson(*expected));

    const Session crack = appliedTo(
        Session(), "measure --kind CrackWidth --mm-per-pixel 0.25 --click 1.5,2 --click=-3,4 a");
    QCOMPARE(*crack.mmPerPixel, 0.25);
    QCOMPARE(crack.points.size(), 2);
    QCOMPARE(crack.points[1].pixel, QPointF(-3, 4));
    QVERIFY(!crack.points[1].position);

    const auto aligned =
        parseCommandLine({"measure", "--ring", "1,1 9,1 5,9", "--ring", "1,1 9,1 5,9.5 @-7.5",
                          "--line", "1,2 3,4", "--fit-fov", "--mouth", "62.5", "a"});
    Session pipe;
    aligned.command->session.applyTo(pipe);
    const auto clicked = sessionFromJson(R"({"schema": "zalento-session 1.1", "fitsFov": true,
        "rings": [{"distanceMM": null, "points": [[1, 1], [9, 1], [5, 9]]},
                  {"distanceMM": -7.5, "points": [[1, 1], [9, 1], [5, 9.5]]}],
        "lines": [{"points": [[1, 2], [3, 4]]}], "mouthPercent": 62.5})");
    QCOMPARE(sessionToJson(pipe), sessionToJson(*clicked));
}

void TestCommandLine::laserSpotsAreTwoWordsOrOne()
{
    const QString one = QStringLiteral("1.5,2 30,4");
    for (const QStringList &arguments :
         {words("measure --laser 1.5,2 30,4 a.png"), words("measure a.png --laser 1.5,2 30,4"),
          QStringList{"measure", "--laser", one, "a.png"},
          QStringList{"measure", "a.png", "--laser=" + one}}) {
        const auto outcome = parseCommandLine(arguments);
        QVERIFY2(outcome.command, qPrintable(outcome.text));
        QCOMPARE(outcome.command->inputs, QStringList{"a.png"});
        QCOMPARE(outcome.command->session.laserSpots, (QVector<QPointF>{{1.5, 2}, {30, 4}}));
    }
}

void TestCommandLine::helpAndManualNameEveryOption()
{
    const CommandLineOutcome help = parseCommandLine(words("measure --help --nonsense"));
    QVERIFY(!help.command && !help.isProblem);
    QString manual = QString::fromUtf8(readBytes(QStringLiteral(ZALENTO_MAN_PAGE)));
    manual.replace(QLatin1String("\\-"), QLatin1String("-"));
    QRegularExpression option(QStringLiteral("--[a-z-]+"));
    QStringList names;
    for (auto match = option.globalMatch(help.text); match.hasNext();) {
        names += match.next().captured();
    }
    names.removeDuplicates();
    QVERIFY(names.size() > 25);
    for (const QString &name : names) {
        QVERIFY2(manual.contains(name), qPrintable(name));
    }
    for (const char *section : {"Environment:", "Exit codes:", "Examples:"}) {
        QVERIFY(help.text.contains(QLatin1String(section)));
    }
}

void TestCommandLine::examplesAreUnderstood()
{
    QString text = parseCommandLine({QStringLiteral("--help")}).text;
    text = text.mid(text.indexOf(QLatin1String("Examples:"))).replace("\\\n", " ");
    QVector<Kind> seen;
    for (const QString &line : text.split(QLatin1Char('\n')).mid(1)) {
        if (line.isEmpty()) {
            continue;
        }
        const auto outcome =
            parseCommandLine(line.split(QLatin1Char(' '), Qt::SkipEmptyParts).mid(1));
        QVERIFY2(outcome.command, qPrintable(line + ": " + outcome.text));
        if (const auto kind = outcome.command->session.kind) {
            seen += *kind;
        }
    }
    for (const KindInfo &info : kinds()) {
        QVERIFY2(seen.contains(info.kind), info.name);
    }
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
