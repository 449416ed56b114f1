#include "support/PictureFiles.h"

#include "measuring/CalibrationFile.h"
#include "measuring/SessionFile.h"
#include "measuring/SessionJson.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

Q_DECLARE_METATYPE(Drevon::Zalento::Measuring::Session)

namespace {

// No field has its default, and no number is a short decimal.
Session fullSession()
{
    Session session;
    session.picture = {QStringLiteral("Rohr \"ä\".jpg"),
                       QSize(1024, 768),
                       QByteArray(64, 'a'),
                       {{QStringLiteral("camera"), QStringLiteral("front")}}};
    session.lens = Lens{QStringLiteral("wide \"ö\""),
                        QSize(1024, 768),
                        {1.0 / 3.0 + 700, 0, 511.5, 0, 700, 383.5, 0, 0, 1},
                        {-0.2, 1.0 / 7.0, 1e-5, -1e-5, 0.02},
                        LensView::All,
                        1.0 / 9.0,
                        {{QStringLiteral("serial"), 12}}};
    session.kind = Kind::CrackWidth;
    session.unit = MeasureUnit::Imperial;
    double value = 1.0 / 3.0;
    for (const SessionNumber &number : sessionNumbers()) {
        session.*number.member = value += 1.1;
    }
    session.rearCircleActive = true;
    session.clockDEG = -90;
    session.viewDownstream = false;
    session.jointShown = true;
    session.isSet = false;
    session.viewStyle = ViewStyle::Ends;
    session.calibrationText = QStringLiteral("150;768;120\n300;768;240\n");
    session.mmPerPixel = 0.1 + 0.2;
    session.laserSpots = {QPointF(0.1, 2), QPointF(30, 4)};
    session.standardUncertainties = {0.1, 0.2, 0.3, 0.4, 0.5, 0.6};
    session.repeats = {{{QStringLiteral("crackWidth"), 0.7}}, {}};
    session.limit = QStringLiteral("< 0.5 mm");
    session.rings = {{-1.0 / 3.0, {{0.1 + 0.2, 1e5}, {-2, 3}}}, {{}, {}}};
    session.lines = {{{{1.0 / 7.0, 4}}}};
    session.fitsFov = true;
    session.points = {
        {QPointF(1.0 / 7.0, 1e15 + 0.5), Vec3(-1.0 / 3.0, 5e-324, 1.7976931348623157e308), {}},
        {QPointF(12, 34), {}, {{QStringLiteral("label"), QJsonArray{1, 2}}}}};
    session.film = {
        QStringLiteral("run.mpg"), 312, 12.48, {{QStringLiteral("tape"), QStringLiteral("7")}}};
    session.counterM = 1.0 / 3.0;
    session.name = QStringLiteral("crack \"Ä\"");
    Measurand first;
    first.name = QStringLiteral("water");
    first.kind = Kind::WaterLevel;
    Measurand last = session;
    last.name = QStringLiteral("crack B");
    last.unknownMembers = {{QStringLiteral("colour"), QStringLiteral("red")}};
    session.measurandsBefore = {first};
    session.measurandsBehind = {last};
    session.unknownFields = {{QStringLiteral("remark"), QJsonObject{{QStringLiteral("a"), 0.1}}}};
    session.schemaMinor = 7;
    return session;
}

QByteArray minimal(const QByteArray &field)
{
    return "{\"schema\": \"zalento-session 1.0\", " + field + "}";
}

} // namespace

class TestSession : public TestCase
{
    Q_OBJECT

private slots:
    void readsBackBitForBit_data();
    void readsBackBitForBit();
    void refusesMalformed_data();
    void refusesMalformed();
    void firstStandsWhereOneDid();
    void savesBesideThePicture();
    void refusedSaveKeepsTheOldFile();
    void readsCalibrationFiles_data();
    void readsCalibrationFiles();
};

void TestSession::readsBackBitForBit_data()
{
    QTest::addColumn<Session>("session");
    QTest::newRow("defaults") << Session();
    QTest::newRow("every field set") << fullSession();
    Session upper;
    for (const SessionNumber &number : sessionNumbers()) {
        upper.*number.member = number.largest;
    }
    QTest::newRow("largest numbers") << upper;
}

void TestSession::readsBackBitForBit()
{
    QFETCH(Session, session);
    const QByteArray json = sessionToJson(session);
    QVERIFY(json.startsWith("{\n  \"schema\": \"zalento-session 1."));
    QVERIFY(*sessionFromJson(minimal("\"clockDEG\": 0")) == Session());
    const auto read = sessionFromJson(json);
    QVERIFY(read);
    QVERIFY(*read == session);
    for (const SessionNumber &number : sessionNumbers()) {
        COMPARE_EXACT((*read).*number.member, session.*number.member);
    }
    QCOMPARE(sessionToJson(*read), json);

    Session other = session;
    other.points.append({QPointF(1, 1), {}, {}});
    QVERIFY(other != session);
}

void TestSession::refusesMalformed_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &json, const char *expected) {
        QTest::newRow(name) << json << QString::fromLatin1(expected);
    };
    row("cut off in line 2", "{\n\"schema\": ", "in line 2");
    row("a list", "[]", "not a JSON object");
    row("no schema", "{}", "schema: expected \"zalento-session 1.1\", found nothing");
    row("another program's schema", "{\"schema\": \"other 1.0\"}", "found the text \"other 1.0\"");
    row("major version that never was", "{\"schema\": \"zalento-session 0.9\"}",
        "schema: expected \"zalento-session 1.1\"");
    row("newer major version", "{\"schema\": \"zalento-session 2.1\"}",
        "version 2.1, this program reads up to version 1; please use a newer Zalento");
    row("text for a number", minimal("\"diameterMM\": \"300\""),
        "diameterMM: expected a number, found the text \"300\"");
    row("number below its range", minimal("\"fovYDEG\": 0"),
        "fovYDEG: expected a number from 1 to 170, found 0");
    row("camera above the pipe", minimal("\"cameraHeightPercent\": 101"),
        "cameraHeightPercent: expected a number from 0 to 100, found 101");
    row("fraction for a whole number", minimal("\"clockDEG\": 1.5"),
        "clockDEG: expected a whole number, found the number 1.5");
    row("null for a flag", minimal("\"jointShown\": null"),
        "jointShown: expected true or false, found null");
    row("unknown kind", minimal("\"kind\": \"crackwidth\""), "kind: expected one of CrackWidth,");
    row("scale of zero", minimal("\"mmPerPixel\": 0"), "mmPerPixel: expected a number from");
    row("picture with half a size", minimal("\"picture\": {\"size\": [3]}"),
        "picture.size: expected a list of width and height in whole pixels");
    row("upper-case hash", minimal("\"picture\": {\"sha256\": \"ABC\"}"),
        "picture.sha256: expected 64 lower-case hexadecimal digits");
    const QByteArray lens =
        "\"size\": [640, 480], \"cameraMatrix\": [500, 0, 320, 0, 500, 240, 0, 0, 1]";
    row("lens with three coefficients",
        minimal("\"lens\": {" + lens + ", \"distortion\": [0, 0, 0]}"),
        "lens.distortion: expected 4, 5 or 8 numbers, found 3");
    row("lens with eight numbers of nine",
        minimal("\"lens\": {\"cameraMatrix\": [500, 0, 320, 0, 500, 240, 0, 0]}"),
        "lens.cameraMatrix: expected a list of 9 numbers");
    row("lens of another size",
        minimal("\"picture\": {\"size\": [640, 481]}, \"lens\": {" + lens +
                ", \"distortion\": [0, 0, 0, 0]}"),
        "lens.size: the lens is for pictures of 640 x 480 pixels, this one has 640 x 481");
    row("points as an object", minimal("\"points\": {}"), "points: expected a list");
    row("point as a list", minimal("\"points\": [[1, 2]]"), "points[0]: expected an object");
    row("second point without x", minimal("\"points\": [{\"pixel\": [1, 2]}, {\"pixel\": [2]}]"),
        "points[1].pixel: expected a list of x and y");
    row("measurement without a name", minimal("\"name\": \"a\", \"measurements\": [{}]"),
        "measurements[0].name: expected a name of one line");
    row("two of one name", minimal("\"name\": \"a\", \"measurements\": [{\"name\": \"a\"}]"),
        "measurements[0].name: another measurement is named \"a\"");
    row("point of the second that is nowhere",
        minimal("\"name\": \"a\", \"measurements\": [{\"name\": \"b\", \"points\": [{}]}]"),
        "measurements[0].points[0]: expected a pixel");
    row("clock of the second",
        minimal("\"name\": \"a\", \"measurements\": [{\"name\": \"b\", "
                "\"clockDEG\": 4000}]"),
        "measurements[0].clockDEG: expected a number from");
    row("nobody chosen", minimal("\"name\": \"a\", \"chosen\": \"b\""),
        "chosen: expected the name of a measurement, found the text \"b\"");
    row("point that is nowhere", minimal("\"points\": [{}]"), "points[0]: expected a pixel");
}

void TestSession::refusesMalformed()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, expected);
    const auto read = sessionFromJson(json);
    QVERIFY(!read);
    QVERIFY2(read.problem().text().contains(expected), qPrintable(read.problem().text()));
}

// A program that knows but one measurement shows the first, and keeps the others.
void TestSession::firstStandsWhereOneDid()
{
    const QJsonObject file = QJsonDocument::fromJson(sessionToJson(fullSession())).object();
    QCOMPARE(file.value("kind").toString(), "WaterLevel");
    QVERIFY(file.value("points").toArray().isEmpty());
    const QByteArray one = sessionToJson(Session());
    QVERIFY(!one.contains("name") && !one.contains("chosen") && !one.contains("measurements"));
}

void TestSession::savesBesideThePicture()
{
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("pictures/day 1")));
    const QString picture = dir.filePath(QStringLiteral("pictures/day 1/a.b.jpg"));
    QVERIFY(writeBytes(picture, "picture"));
    Session session = fullSession();
    session.picture.path = picture;
    session.film->path = dir.filePath(QStringLiteral("pictures/run.mpg"));

    const QString beside = sessionPathOf(picture);
    QVERIFY(beside.endsWith(QLatin1String("/a.b.jpg.zalento.json")));
    const QString above = dir.filePath(QStringLiteral("other.zalento.json"));
    for (const QString &path : {beside, above}) {
        QVERIFY(!saveSession(session, path, Overwrite::Refuse));
        const auto read = loadSession(path);
        QVERIFY(read && *read == session);
    }
    QVERIFY(readBytes(beside).contains("\"path\": \"a.b.jpg\""));
    QVERIFY(readBytes(beside).contains("\"path\": \"../run.mpg\""));
    QVERIFY(readBytes(above).contains("\"path\": \"pictures/day 1/a.b.jpg\""));
    QCOMPARE(readBytes(picture), QByteArray("picture"));
}

void TestSession::refusedSaveKeepsTheOldFile()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("old.json"));
    QVERIFY(writeBytes(path, "old"));
    Session session;
    QVERIFY(saveSession(session, path, Overwrite::Refuse)->text().contains("exists already"));
    session.diameterMM = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(saveSession(session, path, Overwrite::Allow)->text().contains("diameterMM: expected"));
    QCOMPARE(folderState(dir.path()), QByteArray("old.json old\n"));
}

void TestSession::readsCalibrationFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("laser spots") << QByteArray("LASER;;;50") << "LASER;;;50"
                                 << "";
    QTest::newRow("byte order mark and line ends of Windows") << QByteArray("\xef\xbb\xbf"
                                                                            "150;768;120\r\n")
                                                              << "150;768;120\r\n"
                                                              << "";
    QTest::newRow("prose") << QByteArray("hello\n") << ""
                           << "holds no calibration";
    QTest::newRow("empty") << QByteArray() << ""
                           << "holds no calibration";
    QTest::newRow("huge") << QByteArray(2 * 1024 * 1024, '\n') << ""
                          << "too large";
}

void TestSession::readsCalibrationFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("camera.ini"));
    QVERIFY(writeBytes(path, content));
    const auto read = loadCalibration(path);
    QCOMPARE(bool(read), expected.isEmpty());
    QCOMPARE(read ? *read : QString(), text);
    QVERIFY(read || read.problem().text().contains(expected));
}

QTEST_GUILESS_MAIN(TestSession)
#include "tst_session.moc"
