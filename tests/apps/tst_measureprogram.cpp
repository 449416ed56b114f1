// The built program itself: what main() sets up before the rest runs.
#include "PictureFiles.h"

#include "session/MeasuredValues.h"
#include "session/SessionFile.h"
#include "session/SessionItem.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Apps;
using namespace Drevon::Zalento::Test;

namespace {

struct Outcome
{
    int code = -1;
    QByteArray output;
    QByteArray messages;
};

Outcome start(const QStringList &arguments, const QStringList &environment = {},
              const QString &outputFile = {})
{
    QProcess process;
    QStringList variables = QProcess::systemEnvironment();
    variables.removeAll(QStringLiteral("QT_QPA_PLATFORM=offscreen"));
    process.setEnvironment(variables + environment);
    if (!outputFile.isEmpty()) {
        process.setStandardOutputFile(outputFile);
    }
    process.start(QStringLiteral(ZALENTO_MEASURE), arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

const QStringList water{"measure", "--kind", "WaterLevel", "--percentage", "12.5"};

} // namespace

class TestMeasureProgram : public TestCase
{
    Q_OBJECT

private slots:
    void surroundingsChangeNothing_data();
    void surroundingsChangeNothing();
    void agreesWithTheItemToTheBit();
    void noticesAFullOutput();
    void exitsAsToldByUsage();
};

void TestMeasureProgram::surroundingsChangeNothing_data()
{
    QTest::addColumn<QStringList>("environment");
    QTest::newRow("decimal comma") << QStringList{"LC_ALL=de_DE.UTF-8", "LANG=de_DE.UTF-8"};
    QTest::newRow("plain locale") << QStringList{"LC_ALL=C", "LANG=C"};
    QTest::newRow("window system that is not there")
        << QStringList{"QT_QPA_PLATFORM=xcb", "DISPLAY=", "XDG_RUNTIME_DIR="};
}

void TestMeasureProgram::surroundingsChangeNothing()
{
    QFETCH(QStringList, environment);
    const QTemporaryDir dir;
    const QString picture = dir.filePath(QStringLiteral("Rohr ä.png"));
    QVERIFY(greyPicture(QSize(64, 48)).save(picture));
    const Outcome outcome =
        start(water + QStringList{"--overlay", "svg", "--save-session", picture}, environment);
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.output, picture.toUtf8() + ": waterLevel 13 % (12.5 %)\n");
    QCOMPARE(outcome.messages.count('\n'), 2);
    QCOMPARE(outcome.messages.count("zalento-measure: wrote "), 2);
    const QByteArray svg = readBytes(dir.filePath(QStringLiteral("Rohr ä.overlay.svg")));
    QVERIFY(svg.contains("viewBox=\"0 0 64 48\""));
    QVERIFY(readBytes(sessionPathOf(picture)).contains("\"percentage\": 12.5,"));
}

void TestMeasureProgram::agreesWithTheItemToTheBit()
{
    const QTemporaryDir dir;
    const QString picture = dir.filePath(QStringLiteral("a.png"));
    QVERIFY(greyPicture(QSize(801, 600)).save(picture));
    Session session;
    session.picture.path = picture;
    session.kind = QStringLiteral("CrossSection");
    session.diameterMM = 217.3;
    session.rollDEG = 11.1;
    session.rearCircleX = 4.4;
    session.percentage = 13.7;
    for (const QPointF &pixel : {QPointF(300.25, 200.5), QPointF(480, 210), QPointF(470, 390.75),
                                 QPointF(330, 380), QPointF(301, 201)}) {
        session.points.append({pixel, {}, {}});
    }
    const QString clicked = dir.filePath(QStringLiteral("clicked.json"));
    QCOMPARE(saveSession(session, clicked, Overwrite::Refuse), QString());
    ZaItem item;
    layOutItem(item, QSize(801, 600));
    QVERIFY(applySession(session, item).isEmpty());
    const Measurement expected = measure(item);
    QCOMPARE(expected.values.size(), 2);
    const QString placed = dir.filePath(QStringLiteral("placed.json"));
    QCOMPARE(saveSession(session, placed, Overwrite::Refuse), QString());

    for (const QString &path : {clicked, placed}) {
        const Outcome outcome = start({"measure", "--session", path, "--format", "jsonl"});
        QCOMPARE(outcome.code, 0);
        const QJsonObject result = QJsonDocument::fromJson(outcome.output).object();
        const QJsonArray values = result[QLatin1String("values")].toArray();
        QCOMPARE(values.size(), 2);
        for (int i = 0; i < 2; ++i) {
            const QJsonObject value = values[i].toObject();
            COMPARE_EXACT(value[QLatin1String("number")].toDouble(), expected.values[i].number);
            QCOMPARE(value[QLatin1String("text")].toString(), expected.values[i].text);
        }
    }
}

void TestMeasureProgram::noticesAFullOutput()
{
    const Outcome outcome = start({"kinds"}, {}, QStringLiteral("/dev/full"));
    QCOMPARE(outcome.code, 3);
    QVERIFY2(outcome.messages.contains("the values cannot be written"), outcome.messages);
}

void TestMeasureProgram::exitsAsToldByUsage()
{
    QCOMPARE(start({}).code, 2);
    QCOMPARE(start({"-platform", "xcb"}).code, 2); // not an option of ours, nor swallowed by Qt
    const Outcome version = start({"--version"});
    QCOMPARE(version.code, 0);
    QVERIFY(version.output.startsWith("zalento-measure 1."));
    QVERIFY(version.messages.isEmpty());
}

QTEST_MAIN(TestMeasureProgram)
#include "tst_measureprogram.moc"
