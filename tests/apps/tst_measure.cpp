#include "PictureFiles.h"
#include "RunProgram.h"

#include "session/MeasuredValues.h"
#include "session/SessionFile.h"
#include "session/SessionItem.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Apps;
using namespace Drevon::Zalento::Test;

namespace {

const QStringList water{"measure", "--kind", "WaterLevel", "--percentage", "12.5"};

QByteArray sha256Of(const QString &path)
{
    return QCryptographicHash::hash(readBytes(path), QCryptographicHash::Sha256).toHex();
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
    void listsKinds();
    void wrongUsageTouchesNothing();
    void saysWhyThereIsNoValue_data();
    void saysWhyThereIsNoValue();
    void unreadableFilesStopARun_data();
    void unreadableFilesStopARun();
    void writesOverlays();
    void overwritesOnlyWhenForced();
    void picturesOfOneNameDoNotMeet();
    void savedSessionMeasuresTheSame();
    void takesTheSessionBesideThePicture();
    void keepsWhatALaterVersionWrote();
    void anotherPictureIsNotOverwritten();
    void oneSessionForManyPictures();
    void optionsMoveTheSessionsPlane();
    void foldersAreSorted();
    void namesComeFromTheInput();

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
    QTest::newRow("csv") << "csv"
                         << QByteArray("picture,kind,status,name,number,unit,text,message\n"
                                       "a.png,WaterLevel,measured,waterLevel,12.5,%,13 %,\n"
                                       "none.png,,failed,,,,,none.png: there is no such file\n");
    QTest::newRow("jsonl")
        << "jsonl"
        << QByteArray("{\"picture\": \"a.png\", \"size\": [64,48], \"sha256\": \"HASH\", "
                      "\"kind\": \"WaterLevel\", \"status\": \"measured\", \"values\": "
                      "[{\"name\": \"waterLevel\", \"number\": 12.5, \"unit\": \"%\", \"text\": "
                      "\"13 %\"}], \"message\": \"\", \"written\": []}\n"
                      "{\"picture\": \"none.png\", \"kind\": \"\", \"status\": \"failed\", "
                      "\"values\": [], \"message\": \"none.png: there is no such file\", "
                      "\"written\": []}\n");
}

void TestMeasure::printsEveryFormat()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, expected);
    const Outcome outcome =
        runProgram(water + QStringList{"--format", format, "a.png", "none.png"});
    QCOMPARE(outcome.code, int(SomeNotMeasured));
    QCOMPARE(outcome.output, expected.replace("HASH", sha256Of(path("a.png"))));
    QCOMPARE(outcome.messages, QByteArray("zalento-measure: none.png: there is no such file\n"));

    // The lists of JSON have the same objects as its lines.
    const Outcome list = runProgram(water + QStringList{"--format", "json", "a.png", "none.png"});
    const QJsonArray array = QJsonDocument::fromJson(list.output).array();
    QCOMPARE(array.size(), 2);
    if (format == QLatin1String("jsonl")) {
        const QByteArrayList lines = outcome.output.split('\n');
        QCOMPARE(array[0].toObject(), QJsonDocument::fromJson(lines[0]).object());
        QCOMPARE(array[1].toObject(), QJsonDocument::fromJson(lines[1]).object());
    }
}

void TestMeasure::listsKinds()
{
    const Outcome text = runProgram({"kinds"});
    QCOMPARE(text.code, int(AllMeasured));
    QVERIFY(text.output.contains("\n    options: --percentage --angle --clock\n"));
    const Outcome json = runProgram({"kinds", "--format", "json"});
    QCOMPARE(QJsonDocument::fromJson(json.output).array().size(), 6);
    const Outcome csv = runProgram({"kinds", "--format", "csv"});
    QVERIFY(csv.output.contains("\nBendAngle,Bend angle,\"Angle of a bend, in steps"));
}

void TestMeasure::wrongUsageTouchesNothing()
{
    const QByteArray before = folderState(m_dir->path());
    const Outcome outcome = runProgram(
        water + QStringList{"--overlay", "png", "--output", "new", "a.png", "--fov", "x"});
    QCOMPARE(outcome.code, int(WrongUsage));
    QVERIFY(outcome.output.isEmpty());
    QVERIFY(outcome.messages.startsWith("zalento-measure: --fov: expected a number"));
    QCOMPARE(folderState(m_dir->path()), before);
    QVERIFY(!QDir(path("new")).exists());
}

void TestMeasure::saysWhyThereIsNoValue_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const char *options, const char *status,
                        const char *message) {
        QTest::newRow(name) << options << status << message;
    };
    row("no kind", "", "failed", "--kind is missing");
    row("no level", "--kind WaterLevel", "no value", "needs --percentage");
    row("point outside", "--kind CrackWidth --click 64,1", "failed",
        "the point 64,1 lies outside the picture of 64 x 48 pixels");
    row("laser spots on one pixel", "--kind CrackWidth --laser 1,1 1,1", "failed", "same pixel");
    row("point beside the pipe", "--kind PipeDimension --offset 2000 --click 9,24", "failed",
        "the point 9,24 meets no wall");
}

void TestMeasure::saysWhyThereIsNoValue()
{
    QFETCH(QString, options);
    QFETCH(QString, status);
    QFETCH(QString, message);
    const QStringList words = options.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const Outcome outcome =
        runProgram(QStringList{"measure", "--format", "jsonl", "a.png"} + words);
    QCOMPARE(outcome.code, int(SomeNotMeasured));
    const QJsonObject result = QJsonDocument::fromJson(outcome.output).object();
    QCOMPARE(result[QLatin1String("status")].toString(), status);
    QVERIFY2(result[QLatin1String("message")].toString().contains(message), outcome.output);
    QVERIFY(result[QLatin1String("values")].toArray().isEmpty());
    QVERIFY(outcome.messages.contains(message.toUtf8()));
}

void TestMeasure::unreadableFilesStopARun_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const char *name, const char *arguments, const char *message) {
        QTest::newRow(name) << arguments << QByteArray(message);
    };
    row("no session", "--session none.json", "none.json: there is no such file");
    row("session among the pictures", "bad.zalento.json", "bad.zalento.json: not a JSON object");
    row("no calibration", "--calibration none.ini", "none.ini: cannot be read");
    row("calibration without one", "--calibration bad.zalento.json", "holds no calibration");
    row("output is a file", "--overlay png --output bad.zalento.json", "cannot be made");
}

void TestMeasure::unreadableFilesStopARun()
{
    QFETCH(QString, arguments);
    QFETCH(QByteArray, message);
    QVERIFY(writeBytes(path("bad.zalento.json"), "bad"));
    const Outcome outcome =
        runProgram(words("measure a.png --kind CrackWidth") + arguments.split(QLatin1Char(' ')));
    QCOMPARE(outcome.code, int(CannotReadOrWrite));
    QVERIFY2(outcome.messages.contains(message), outcome.messages);
}

void TestMeasure::writesOverlays()
{
    const QByteArray before = readBytes(path("a.png"));
    const Outcome outcome = runProgram(
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
}

void TestMeasure::overwritesOnlyWhenForced()
{
    QVERIFY(writeBytes(path("a.overlay.png"), "mine"));
    const QStringList arguments = water + QStringList{"--overlay", "png", "a.png"};
    Outcome outcome = runProgram(arguments);
    QCOMPARE(outcome.code, int(CannotReadOrWrite));
    QVERIFY(outcome.messages.contains("a.overlay.png exists already"));
    QVERIFY(outcome.output.contains("waterLevel 13 %"));
    QCOMPARE(readBytes(path("a.overlay.png")), QByteArray("mine"));
    outcome = runProgram(arguments + QStringList{"--force"});
    QCOMPARE(outcome.code, int(AllMeasured));
    QCOMPARE(QImage(path("a.overlay.png")).size(), QSize(64, 48));
}

void TestMeasure::picturesOfOneNameDoNotMeet()
{
    QVERIFY(addPicture("a.bmp", QSize(10, 10)));
    const Outcome outcome = runProgram(
        water + QStringList{"--overlay", "png", "--output", "out", "--force", "a.png", "a.bmp"});
    QCOMPARE(outcome.code, int(CannotReadOrWrite));
    QVERIFY(outcome.messages.contains("was written for another picture of this run"));
    QCOMPARE(QImage(path("out/a.overlay.png")).size(), QSize(64, 48));
}

void TestMeasure::savedSessionMeasuresTheSame()
{
    const Outcome first = runProgram(
        words("measure --save-session a.png --kind PipeDimension --diameter 217.3 --fov 41.1 "
              "--roll 3.3 --offset 7 --click 20.5,10.25 --click 40,33.75 --format jsonl"));
    QCOMPARE(first.code, int(AllMeasured));
    QString problem;
    std::optional<Session> session = loadSession(path("a.png.zalento.json"), problem);
    QVERIFY2(session, qPrintable(problem));
    ZaItem item;
    layOutItem(item, QSize(64, 48));
    applySession(*session, item);
    COMPARE_EXACT(valuesOf(first.output)[0].toObject()["number"].toDouble(),
                  measure(item).values[0].number);
    // Points have their place in the scene: the alignment does not change what was measured.
    for (const char *line : {"measure --format jsonl a.png.zalento.json",
                             "measure --format jsonl --session a.png.zalento.json --roll 90"}) {
        QCOMPARE(valuesOf(runProgram(words(line)).output), valuesOf(first.output));
    }
}

void TestMeasure::keepsWhatALaterVersionWrote()
{
    const QByteArray newer = R"({"schema": "zalento-session 1.7", "kind": "PipeDimension",
        "picture": {"camera": "front"}, "later": [1, {"a": null}], "points":
        [{"pixel": [20, 10], "label": "A"}, {"pixel": [40, 33], "label": "B"}]})";
    QVERIFY(writeBytes(path("a.png.zalento.json"), newer));
    const QStringList save = words("measure --fov 50 --save-session --force a.png");
    QCOMPARE(runProgram(save).code, int(AllMeasured));
    const QByteArray saved = readBytes(path("a.png.zalento.json"));
    for (const char *kept :
         {"zalento-session 1.7", "\"later\": [1,{\"a\":null}]", "\"fovYDEG\": 50",
          "\"camera\": \"front\"", "\"label\": \"A\"", "\"label\": \"B\""}) {
        QVERIFY2(saved.contains(kept), kept);
    }

    QVERIFY(writeBytes(path("a.png.zalento.json"), "{\"schema\": \"zalento-session 2.0\"}"));
    const QByteArray before = folderState(m_dir->path());
    const Outcome refused = runProgram(save);
    QCOMPARE(refused.code, int(CannotReadOrWrite));
    QVERIFY(refused.messages.contains("please use a newer Zalento"));
    QCOMPARE(folderState(m_dir->path()), before);
}

void TestMeasure::takesTheSessionBesideThePicture()
{
    QCOMPARE(runProgram(water + QStringList{"--save-session", "a.png"}).code, int(AllMeasured));
    QVERIFY(runProgram({"measure", "a.png"}).output.contains("waterLevel 13 %"));
    QVERIFY(runProgram({"measure", "--percentage", "40", "a.png"}).output.contains("40 %"));
    const Outcome ignored = runProgram({"measure", "--no-session", "a.png"});
    QVERIFY(ignored.output.contains("there is no session"));
    const Outcome misfit = runProgram({"measure", "--click", "1,1", "a.png"});
    QVERIFY(misfit.output.contains("the kind WaterLevel takes no --click"));
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
    Outcome outcome = runProgram(arguments);
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

void TestMeasure::oneSessionForManyPictures()
{
    QVERIFY(addPicture("b.png"));
    Session session;
    session.kind = QStringLiteral("WaterLevel");
    session.percentage = 66;
    QCOMPARE(saveSession(session, path("all.json"), Overwrite::Refuse), QString());
    Outcome outcome = runProgram({"measure", "--session", "all.json", "a.png", "b.png"});
    QCOMPARE(outcome.code, int(AllMeasured));
    QCOMPARE(outcome.output.count("waterLevel 66 %"), 2);
    outcome = runProgram({"measure", "--session", "all.json"});
    QVERIFY(outcome.messages.contains("the session names no picture"));
}

void TestMeasure::optionsMoveTheSessionsPlane()
{
    QCOMPARE(runProgram(words("measure --save-session a.png --kind CrossSection --diameter 200 "
                              "--percentage 10 --click 25,20 --click 40,20"))
                 .code,
             0);
    const Outcome moved =
        runProgram(words("measure --percentage 20 --save-session --output out a.png"));
    QCOMPARE(moved.code, int(AllMeasured));
    QString problem;
    const auto session = loadSession(path("out/a.png.zalento.json"), problem);
    QVERIFY2(session, qPrintable(problem));
    QCOMPARE(session->points[1].position->z, -0.4);
}

void TestMeasure::foldersAreSorted()
{
    QVERIFY(QDir(m_dir->path()).mkpath(QStringLiteral("d/sub")));
    for (const char *name : {"d/b.png", "d/a.PNG", "d/sub/c.png", "d/a.overlay.png"}) {
        QVERIFY(greyPicture(QSize(8, 8)).save(path(name), "PNG"));
    }
    QVERIFY(writeBytes(path("d/notes.txt"), "notes"));
    QVERIFY(writeBytes(path("d/bad.png"), "no picture"));
    QVERIFY(QFile::link(QStringLiteral("nowhere"), path("d/gone.png")));
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("none")));
    const Outcome outcome = runProgram(water + QStringList{"--recursive", "d", "none"});
    QCOMPARE(outcome.code, int(SomeNotMeasured));
    const QByteArrayList starts{"d/a.PNG: waterLevel",     "d/b.png: waterLevel",
                                "d/bad.png: failed",       "d/gone.png: failed",
                                "d/sub/c.png: waterLevel", "none: failed"};
    const QByteArrayList lines = outcome.output.split('\n');
    QCOMPARE(lines.size(), starts.size() + 1);
    for (int i = 0; i < starts.size(); ++i) {
        QVERIFY2(lines[i].startsWith(starts[i]), lines[i]);
    }
    QVERIFY(runProgram(water + QStringList{"d"}).output.contains("use --recursive"));
}

void TestMeasure::namesComeFromTheInput()
{
    const Outcome outcome = runProgram(water + QStringList{"-"}, "a.png\r\n\nnone ä.png");
    QCOMPARE(outcome.code, int(SomeNotMeasured));
    QVERIFY(outcome.output.startsWith("a.png: waterLevel"));
    QVERIFY(outcome.output.contains("none ä.png: failed"));
    QCOMPARE(runProgram(water + QStringList{"-"}).code, int(SomeNotMeasured));
}

QTEST_MAIN(TestMeasure)
#include "tst_measure.moc"
