#include "RunProgram.h"
#include "support/PictureFiles.h"

#include "measuring/Measurands.h"
#include "measuring/Measurement.h"
#include "measuring/SessionFile.h"
#include "measuring/ValueTable.h"
#include "support/TestCase.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Apps;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

namespace {

const QStringList water{"measure", "--kind", "WaterLevel", "--percentage", "12.5"};

QByteArray sha256Of(const QString &path)
{
    return QCryptographicHash::hash(readBytes(path), QCryptographicHash::Sha256).toHex();
}

// What is computed of the uncertainty, replaced by what it is.
QByteArray withoutNumbers(const QByteArray &output)
{
    Session session;
    session.kind = Kind::WaterLevel;
    session.percentage = 12.5;
    session.picture.size = QSize(64, 48);
    const Value value = measureWithUncertainty(session, {}).values.first();
    QString text = QString::fromUtf8(output);
    text.replace(numberText(value.uncertainty->standard), "SD");
    text.replace(numberText(value.uncertainty->expanded()), "U2");
    text.replace(value.fullText(), "TEXT");
    text.replace(QRegularExpression("\\[\\{\"source[^\\]]*\\]"), "BUDGET");
    return text.toUtf8();
}

// Two water levels, and a branch that nobody has set.
Session threeMeasurands()
{
    Session session;
    session.picture.path = QStringLiteral("three.png");
    session.kind = Kind::WaterLevel;
    session.name = QStringLiteral("low");
    session.percentage = 20.0;
    addMeasurand(session, Kind::BranchAngle);
    const Outcome isRefused = renameMeasurand(session, 1, QStringLiteral("branch"));
    addMeasurand(session, Kind::WaterLevel);
    session.name = QStringLiteral("deep");
    session.percentage = 80.0;
    session.isSet = true;
    return isRefused ? Session() : session;
}

} // namespace

class TestMeasure : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void printsEveryFormat_data();
    void printsEveryFormat();
    void answers_data();
    void answers();
    void writesOverlays();
    void anotherPictureIsNotOverwritten();
    void foldersAreSorted();
    void namesComeFromTheInput();
    void jobsChangeNothing();

private:
    QString path(const char *name) const { return m_dir->filePath(QLatin1String(name)); }
    bool addPicture(const char *name, const QSize &size = QSize(64, 48)) const
    {
        return greyPicture(size).save(path(name));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestMeasure::init()
{
    TestCase::init();
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(addPicture("a.png"));
    QDir::setCurrent(m_dir->path());
}

void TestMeasure::cleanup()
{
    QDir::setCurrent(QDir::rootPath());
    m_dir.reset();
    TestCase::cleanup();
}

void TestMeasure::printsEveryFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("expected"); // HASH stands for the picture's
    QTest::newRow("csv")
        << "csv"
        << QByteArray("picture,kind,status,name,number,unit,text,message,standardUncertainty,"
                      "expandedUncertainty,coverageFactor,method,intervalLow,intervalHigh,"
                      "textWithUncertainty,decision,diameterMM,fovYDEG,mmPerPixel,measurement,"
                      "counterM,film,filmSeconds\r\n"
                      "a.png,WaterLevel,measured,waterLevel,12.5,%,13 %,,SD,U2,2,first-order,,,"
                      "TEXT,,300,37.5,,,,,\r\n"
                      "none.png,,failed,,,,,there is no such file,,,,,,,,,,,,,,,\r\n");
    QTest::newRow("jsonl")
        << "jsonl"
        << QByteArray(
               "{\"picture\": \"a.png\", \"size\": [64,48], \"sha256\": \"HASH\", "
               "\"kind\": \"WaterLevel\", \"status\": \"measured\", \"values\": "
               "[{\"name\": \"waterLevel\", \"number\": 12.5, \"unit\": \"%\", \"text\": "
               "\"13 %\", \"textWithUncertainty\": \"TEXT\", \"standardUncertainty\": SD, "
               "\"expandedUncertainty\": U2, \"coverageFactor\": 2, \"method\": "
               "\"first-order\", \"budget\": BUDGET, \"diameterMM\": 300, "
               "\"fovYDEG\": 37.5}], \"alignment\": {\"fitted\": [], \"rings\": 0, \"lines\": 0, "
               "\"rmsPX\": null, \"largestPX\": null, \"offset\": 0, "
               "\"cameraHeightPercent\": 50, \"rearCircle\": [0,0], \"mouthPercent\": 100, "
               "\"fovYDEG\": 37.5, \"standardUncertainties\": {}, \"undetermined\": []}, "
               "\"message\": \"\", \"written\": []}\n"
               "{\"picture\": \"none.png\", \"kind\": \"\", \"status\": \"failed\", "
               "\"values\": [], \"message\": \"there is no such file\", "
               "\"written\": []}\n");
}

void TestMeasure::printsEveryFormat()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, expected);
    const Run outcome = runProgram(water + QStringList{"--format", format, "a.png", "none.png"});
    QCOMPARE(outcome.code, int(SomeNotMeasured));
    QCOMPARE(withoutNumbers(outcome.output), expected.replace("HASH", sha256Of(path("a.png"))));
    QCOMPARE(outcome.messages, QByteArray("zalento-measure: none.png: there is no such file\n"));

    // The lists of JSON have the same objects as its lines.
    const Run list = runProgram(water + QStringList{"--format", "json", "a.png", "none.png"});
    const QJsonArray array = QJsonDocument::fromJson(list.output).array();
    QCOMPARE(array.size(), 2);
    if (format == QLatin1String("jsonl")) {
        const QByteArrayList lines = outcome.output.split('\n');
        QCOMPARE(array[0].toObject(), QJsonDocument::fromJson(lines[0]).object());
        QCOMPARE(array[1].toObject(), QJsonDocument::fromJson(lines[1]).object());
    }
}

void TestMeasure::answers_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("messages");
    const auto row = [](const char *name, const char *arguments, ExitCode code, const char *output,
                        const char *messages) {
        QTest::newRow(name) << arguments << int(code) << output << messages;
    };
    row("kinds", "kinds", AllMeasured, "\n    options: --percentage --angle --clock\n", "");
    row("kinds in JSON", "kinds --format json", AllMeasured, "\"CrossSection\"", "");
    row("kinds in CSV", "kinds --format csv", AllMeasured, "\nBendAngle,Bend angle,\"Angle of", "");
    row("session beside", "measure w.png", AllMeasured, "w.png: waterLevel 13 %", "");
    row("session changed", "measure --percentage 40 w.png", AllMeasured, "waterLevel 40 %", "");
    row("session of all", "measure --session w.png.zalento.json a.png", AllMeasured, "13 %", "");
    row("overlay forced", "measure --overlay png --force w.png", AllMeasured, "13 %", "wrote ");

    row("one of several", "measure --measurement deep three.zalento.json", AllMeasured,
        "three.png: deep: waterLevel 80 %", "");
    row("several", "measure --format csv three.zalento.json", SomeNotMeasured, ",80 %,",
        "three.png: branch: needs --angle");
    row("unknown measurement", "measure --measurement x three.zalento.json", SomeNotMeasured,
        "failed", "there is no \"x\" but \"low\", \"branch\", \"deep\"; --kind adds one");
    row("measurement added",
        "measure --measurement x --kind WaterLevel --percentage 33 three.zalento.json", AllMeasured,
        "three.png: x: waterLevel 33 %", "");

    row("options change the chosen one", "measure --percentage 70 three.zalento.json",
        SomeNotMeasured, "three.png: deep: waterLevel 70 %", "branch");

    row("session ignored", "measure --no-session w.png", SomeNotMeasured,
        "not measured: there is no session", "--kind is missing");
    row("nothing to draw", "render --no-session w.png", SomeNotMeasured, "", "--kind is missing");
    row("session of another kind", "measure --angle 40 w.png", SomeNotMeasured, "failed",
        "the kind WaterLevel takes no --angle");
    row("session without a picture", "measure --session w.png.zalento.json", SomeNotMeasured,
        "failed", "the session names no picture");
    row("no level", "measure --kind WaterLevel a.png", SomeNotMeasured, "not set",
        "needs --percentage or --click");
    row("branch turned only", "measure --kind BranchAngle --clock 90 a.png", SomeNotMeasured,
        "not set", "needs --angle");
    row("overlay of no level", "render --kind WaterLevel --output out a.png", AllMeasured, "",
        "nobody has set what the overlay shows");
    row("level clicked", "measure --click 12,24 w.png", AllMeasured, "waterLevel 50 %", "");
    row("limit", "measure --limit \">=90%\" w.png", AllMeasured, "%): below", "");
    row("wall to its own scale",
        "unroll --kind PipeDimension --diameter 300 --mm-per-pixel 5 --from 100 --to 300 --force "
        "a.png",
        AllMeasured, "", "wrote ");
    row("limit of another unit", "measure --limit \"<2 mm\" w.png", AllMeasured, "13 %",
        "the limit \"<2 mm\" is of another unit");
    row("level clicked beside the pipe", "measure --offset 2000 --click 9,24 w.png",
        SomeNotMeasured, "failed", "the point 9,24 meets no wall");
    row("angle between steps", "measure --kind BendAngle --angle 12 --diameter 300 a.png",
        AllMeasured, "(10 deg)", "an angle of 12 degrees is drawn as 10");
    row("point beyond the model",
        "measure --kind PipeDimension --diameter 300 --click 9,24 --click 33,24 a.png", AllMeasured,
        "length", "point 2 lies 33.8 diameters down the pipe, beyond the modelled 10:");
    row("point outside", "measure --kind CrackWidth --click 64,1 a.png", SomeNotMeasured, "failed",
        "the point 64,1 lies outside the picture of 64 x 48 pixels");
    row("view fitted to nothing", "measure --kind PipeDimension --fit-fov a.png", SomeNotMeasured,
        "failed", "--fit-fov needs --ring");
    row("clicks that give nothing", "measure --session stray.zalento.json a.png", AllMeasured,
        "13 %", "the alignment stays as it was saved");
    row("laser spots on one pixel", "measure --kind CrackWidth --laser 1,1 1,1 a.png",
        SomeNotMeasured, "failed", "same pixel");
    row("point beside the pipe", "measure --kind PipeDimension --offset 2000 --click 9,24 a.png",
        SomeNotMeasured, "failed", "the point 9,24 meets no wall");
    row("folder", "measure .", SomeNotMeasured, "failed", "is a folder: use --recursive");
    row("empty list", "measure -", SomeNotMeasured, "", "the list holds no picture");

    row("overlay of all, of none", "measure --overlay-all w.png", WrongUsage, "",
        "--overlay-all needs --overlay");
    row("wrong usage", "measure --save-session --output new --fov x w.png", WrongUsage, "",
        "--fov: expected a number");

    row("no session", "measure --session none.json a.png", CannotReadOrWrite, "",
        "none.json: there is no such file");
    row("broken session", "measure bad.zalento.json", CannotReadOrWrite, "failed",
        "bad.zalento.json: not a JSON object");
    row("no calibration", "measure --calibration none.ini a.png", CannotReadOrWrite, "",
        "none.ini: cannot be read");
    row("calibration without one", "measure --calibration bad.zalento.json a.png",
        CannotReadOrWrite, "", "holds no calibration");
    row("output is a file", "measure --overlay png --output bad.zalento.json w.png",
        CannotReadOrWrite, "", "cannot be made");
    row("report of the user's", "report --output old.pdf w.png", CannotReadOrWrite, "",
        "old.pdf: exists already");
    row("report nowhere", "report --output none/a.pdf w.png", CannotReadOrWrite, "",
        "none/a.pdf: cannot be written: No such");
    row("no record", "report --output new.pdf --record none w.png", CannotReadOrWrite, "",
        "none: cannot be read");
    row("record of a list", "report --output new.pdf --record list.json w.png", CannotReadOrWrite,
        "", "list.json: expected a JSON object");
    row("overlay of the user's", "measure --overlay png w.png", CannotReadOrWrite, "13 %",
        "w.overlay.png: exists already");
    row("two pictures of one name",
        "measure --overlay png --output out --session w.png.zalento.json w.png w.bmp",
        CannotReadOrWrite, "w.bmp: waterLevel ", "was written for another picture of this run");
}

// Of what the user has nothing is lost, and a failure leaves nothing behind.
void TestMeasure::answers()
{
    QFETCH(QString, arguments);
    QFETCH(int, code);
    QFETCH(QString, output);
    QFETCH(QString, messages);
    Session session;
    session.kind = Kind::WaterLevel;
    session.percentage = 12.5;
    QVERIFY(!saveSession(session, path("w.png.zalento.json"), Overwrite::Refuse));
    session.rings = {{{}, {{1, 1}}}};
    QVERIFY(!saveSession(session, path("stray.zalento.json"), Overwrite::Refuse));
    QVERIFY(!saveSession(threeMeasurands(), path("three.zalento.json"), Overwrite::Refuse));
    QVERIFY(addPicture("three.png"));
    QVERIFY(addPicture("w.png") && addPicture("w.bmp", QSize(10, 10)));
    QVERIFY(writeBytes(path("bad.zalento.json"), "bad"));
    QVERIFY(writeBytes(path("w.overlay.png"), "mine"));
    QVERIFY(writeBytes(path("old.pdf"), "mine"));
    QVERIFY(writeBytes(path("list.json"), "[1]"));
    const QByteArray before = folderState(m_dir->path());
    const Run outcome = runProgram(words(qPrintable(arguments)));
    QCOMPARE(outcome.code, code);
    QVERIFY2(outcome.output.contains(output.toUtf8()), outcome.output);
    QCOMPARE(outcome.output.isEmpty(), output.isEmpty());
    QVERIFY2(outcome.messages.contains(messages.toUtf8()), outcome.messages);
    QCOMPARE(outcome.messages.isEmpty(), messages.isEmpty());
    QCOMPARE(folderState(m_dir->path()) == before, !arguments.contains("--force"));
    QVERIFY(!QDir(path("new")).exists());
}

void TestMeasure::writesOverlays()
{
    const QByteArray before = readBytes(path("a.png"));
    const Run outcome = runProgram(
        {"render", "--kind", "WaterLevel", "--overlay", "both", "--output", "out/x", "a.png"});
    QCOMPARE(outcome.code, int(AllMeasured));
    QVERIFY(outcome.output.isEmpty());
    QVERIFY(outcome.messages.contains("wrote out/x/a.overlay.png"));
    const QImage overlay(path("out/x/a.overlay.png"));
    QCOMPARE(overlay.size(), QSize(64, 48));
    const QImage original(path("a.png"));
    QVERIFY(overlay.convertToFormat(original.format()) != original);
    QCOMPARE(overlay.pixelColor(0, 0), original.pixelColor(0, 0)); // the model leaves the corners
    QVERIFY(readBytes(path("out/x/a.overlay.svg")).contains("viewBox=\"0 0 64 48\""));
    QCOMPARE(readBytes(path("a.png")), before);

    QVERIFY(addPicture("three.png"));
    QVERIFY(!saveSession(threeMeasurands(), path("three.zalento.json"), Overwrite::Refuse));
    const QStringList render{"render", "--overlay", "svg", "--force", "three.zalento.json"};
    QCOMPARE(runProgram(render).code, int(AllMeasured));
    QVERIFY(!readBytes(path("three.overlay.svg")).contains("low"));
    QCOMPARE(runProgram(render + QStringList{"--overlay-all"}).code, int(AllMeasured));
    QVERIFY(readBytes(path("three.overlay.svg")).contains("low"));
}

void TestMeasure::anotherPictureIsNotOverwritten()
{
    QCOMPARE(runProgram(water + QStringList{"--save-session", "a.png"}).code, int(AllMeasured));
    const QByteArray session = readBytes(path("a.png.zalento.json"));
    QImage changed = greyPicture(QSize(64, 48));
    changed.setPixelColor(0, 0, Qt::red);
    QVERIFY(changed.save(path("a.png")));

    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("out")));
    const QStringList arguments{"measure", "--save-session", "--output", "out", "a.png"};
    Run outcome = runProgram(arguments);
    QCOMPARE(outcome.code, int(CannotReadOrWrite));
    QVERIFY(outcome.output.contains("waterLevel 13 %"));
    QVERIFY(outcome.messages.contains("warning: the picture's content is not the one"));
    QCOMPARE(readBytes(path("a.png.zalento.json")), session);
    QVERIFY(!QFile::exists(path("out/a.png.zalento.json")));
    outcome = runProgram(arguments + QStringList{"--force"});
    QCOMPARE(outcome.code, int(AllMeasured));
    QVERIFY(readBytes(path("out/a.png.zalento.json")).contains(sha256Of(path("a.png"))));
    QVERIFY(readBytes(path("out/a.png.zalento.json")).contains("\"../a.png\""));
}

void TestMeasure::foldersAreSorted()
{
    QVERIFY(QDir(m_dir->path()).mkpath(QStringLiteral("d/sub")));
    for (const char *name : {"d/b10.png", "d/B9.PNG", "d/sub/c.png", "d/a.overlay.png"}) {
        QVERIFY(greyPicture(QSize(8, 8)).save(path(name), "PNG"));
    }
    QVERIFY(writeBytes(path("d/notes.txt"), "notes"));
    QVERIFY(writeBytes(path("d/bad.png"), "no picture"));
    QVERIFY(QFile::link(QStringLiteral("nowhere"), path("d/gone.png")));
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("none")));
    const Run outcome = runProgram(water + QStringList{"--recursive", "d", "none"});
    QCOMPARE(outcome.code, int(SomeNotMeasured));
    const QByteArrayList starts{"d/B9.PNG: waterLevel",    "d/b10.png: waterLevel",
                                "d/bad.png: failed",       "d/gone.png: failed",
                                "d/sub/c.png: waterLevel", "none: failed"};
    const QByteArrayList lines = outcome.output.split('\n');
    QCOMPARE(lines.size(), starts.size() + 1);
    for (int i = 0; i < starts.size(); ++i) {
        QVERIFY2(lines[i].startsWith(starts[i]), lines[i]);
    }
}

void TestMeasure::namesComeFromTheInput()
{
    const Run outcome = runProgram(water + QStringList{"-"}, "a.png\r\n\nnone ä.png");
    QCOMPARE(outcome.code, int(SomeNotMeasured));
    QVERIFY(outcome.output.startsWith("a.png: waterLevel"));
    QVERIFY(outcome.output.contains("none ä.png: failed"));
}

// One after the other or many at a time: pictures of one name, one that an earlier one wrote, a
// session that an earlier one wrote, one that cannot be read.
void TestMeasure::jobsChangeNothing()
{
    const auto runJobs = [](const QString &jobs) {
        const QTemporaryDir dir;
        QDir::setCurrent(dir.path());
        QDir().mkdir("sub");
        const QImage large = greyPicture(QSize(400, 300));
        bool isSaved = large.save("a.png") && large.save("sub/a.png") && writeBytes("bad.png", "x");
        QStringList names{"a.png", "bad.png", "a.overlay.png", "sub/a.png", "sub/../a.png"};
        for (int i = 0; i < 20; ++i) {
            names += QString::number(i) + ".png";
            isSaved = isSaved && greyPicture(QSize(8 + 20 * i, 48)).save(names.last());
        }
        const QStringList options{"--overlay", "both", "--save-session", "--jobs", jobs};
        const Run outcome = runProgram(water + options + names + QStringList{"--output", "."});
        const QByteArray files = folderState(dir.path());
        QDir::setCurrent(QDir::rootPath());
        return isSaved ? QByteArrayList{QByteArray::number(outcome.code), outcome.output,
                                        outcome.messages, files}
                       : QByteArrayList();
    };
    const QByteArrayList one = runJobs("1");
    QCOMPARE(one.value(0), QByteArray::number(CannotReadOrWrite));
    QVERIFY(one[1].contains("\na.overlay.png: waterLevel"));
    QVERIFY(one[2].contains("a.overlay.png: was written for another picture of this run, not for"));
    QVERIFY(one[3].contains("\n19.png.zalento.json"));
    QCOMPARE(runJobs("8"), one);
}

QTEST_MAIN(TestMeasure)
#include "tst_measure.moc"
