// The sample pictures are measured by the program at the pixels that their truth names.
#include "RunProgram.h"
#include "support/PictureFiles.h"

#include "measuring/SessionFile.h"
#include "support/TestCase.h"

#include <QPainterPath>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

namespace {

QString samplePath(const QString &name)
{
    return QStringLiteral(ZALENTO_SAMPLES "/") + name;
}

QJsonObject truthOf(const QString &scene)
{
    return QJsonDocument::fromJson(readBytes(samplePath(scene + ".truth.json"))).object();
}

QVector<QPointF> pointsOf(const QJsonValue &list)
{
    QVector<QPointF> points;
    for (const QJsonValue &point : list.toArray()) {
        points += QPointF(point.toArray()[0].toDouble(), point.toArray()[1].toDouble());
    }
    return points;
}

QString pointText(const QPointF &point)
{
    return QStringLiteral("%1,%2").arg(point.x(), 0, 'g', 17).arg(point.y(), 0, 'g', 17);
}

QStringList alignment(const QJsonObject &truth)
{
    const QJsonObject camera = truth["camera"].toObject();
    const auto number = [](const QJsonValue &value) { return QString::number(value.toDouble()); };
    return {"--kind",          truth["kind"].toString(),
            "--diameter",      number(truth["pipe"].toObject()["diameterMm"]),
            "--fov",           number(camera["fovDeg"]),
            "--camera-height", number(camera["heightPercent"])};
}

// The first value; its number is NaN when there is none.
QJsonObject measuredValue(const QStringList &arguments)
{
    const QStringList command = words("measure --format jsonl");
    return valuesOf(runProgram(command + arguments).output)[0].toObject();
}

double measuredNumber(const QStringList &arguments)
{
    return measuredValue(arguments)["number"].toDouble(qQNaN());
}

// Clicks of joints are rounded to half a pixel: of a length 0.3 % are left.
constexpr double clickTolerance = 0.005;

const QString waterColour = QStringLiteral("#00ffff");
const QString modelColour = QStringLiteral("#ffff00");

// What lies within a pixel across and up of the lines of a colour in an SVG overlay. Of the water
// its surface: below it all rings are wet.
QPainterPath nearLinesIn(const QByteArray &svg, const QString &colour)
{
    static const QRegularExpression elements(
        QStringLiteral("<g [^>]*stroke=\"(#\\w+)\"|<polyline[^>]*points=\"([^\"]*)\""));
    QPainterPath lines;
    QString stroke;
    for (auto found = elements.globalMatch(QString::fromUtf8(svg)); found.hasNext();) {
        const auto element = found.next();
        stroke = element.captured(1).isEmpty() ? stroke : element.captured(1);
        QPolygonF line;
        const QString points = stroke == colour ? element.captured(2) : QString();
        for (const QString &point : points.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            line +=
                QPointF(point.section(',', 0, 0).toDouble(), point.section(',', 1, 1).toDouble());
        }
        if (colour != waterColour || line.size() == 2) {
            lines.addPolygon(line);
        }
    }
    QPainterPathStroker stroker;
    stroker.setWidth(2 * std::sqrt(2.0));
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(lines);
}

} // namespace

class TestSamples : public TestCase
{
    Q_OBJECT

private slots:
    void clicksMeasureTheTruth_data();
    void clicksMeasureTheTruth();
    void modelLiesOnTheTruth_data();
    void modelLiesOnTheTruth();
    void jointsGiveTheCamera_data();
    void jointsGiveTheCamera();
    void sessionsMeasureTheTruth_data();
    void sessionsMeasureTheTruth();
    void fitsAreTold();

private:
    QPainterPath nearModel(const QString &scene, const QStringList &options,
                           const QString &colour) const;

    QTemporaryDir m_dir;
};

void TestSamples::clicksMeasureTheTruth_data()
{
    QTest::addColumn<QString>("scene");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QVector<QPointF>>("points");
    QTest::addColumn<double>("expected");

    const QJsonObject crack = truthOf("crack");
    const auto laser = pointsOf(crack["laser"].toObject()["clicks"]);
    QTest::newRow("crack") << "crack"
                           << QStringList{"--laser", pointText(laser[0]), pointText(laser[1])}
                           << pointsOf(crack["crack"].toObject()["clicks"])
                           << crack["crack"].toObject()["widthMm"].toDouble();
    for (const QJsonValue &value : truthOf("dimension")["dimensions"].toArray()) {
        const QJsonObject length = value.toObject();
        QTest::newRow(qPrintable(length["name"].toString()))
            << "dimension" << QStringList() << pointsOf(length["clicks"])
            << length["lengthMm"].toDouble();
    }
    const QJsonObject section = truthOf("section")["section"].toObject();
    QTest::newRow("cross-section")
        << "section" << QStringList{"--percentage", QString::number(section["percent"].toDouble())}
        << pointsOf(section["clicks"]) << section["areaMm2"].toDouble();
}

void TestSamples::clicksMeasureTheTruth()
{
    QFETCH(QString, scene);
    QFETCH(QStringList, options);
    QFETCH(QVector<QPointF>, points);
    QFETCH(double, expected);
    for (const QPointF &point : points) {
        options += {"--click", pointText(point)};
    }
    const double value = measuredNumber(QStringList{"--no-session", samplePath(scene + ".jpg")} +
                                        alignment(truthOf(scene)) + options);
    QVERIFY2(std::abs(value - expected) <= clickTolerance * expected,
             qPrintable(QStringLiteral("%1, not %2").arg(value).arg(expected)));
}

void TestSamples::modelLiesOnTheTruth_data()
{
    QTest::addColumn<QString>("scene");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("colour");
    QTest::addColumn<QVector<QPointF>>("points");
    QTest::addColumn<QString>("control");
    QTest::addColumn<double>("expected");

    const auto text = [](const QJsonValue &value) { return QString::number(value.toDouble()); };
    const QJsonObject water = truthOf("water")["water"].toObject();
    QVector<QPointF> edges;
    for (const QJsonValue &edge : water["edges"].toArray()) {
        edges += pointsOf(edge.toObject()["clicks"]);
    }
    QTest::newRow("water level") << "water" << QStringList() << waterColour << edges
                                 << "--percentage" << water["percent"].toDouble();
    const QJsonObject branch = truthOf("branch")["branch"].toObject();
    QTest::newRow("branch angle") << "branch"
                                  << QStringList{"--percentage", text(branch["percent"]), "--clock",
                                                 text(branch["clockDeg"])}
                                  << modelColour << pointsOf(branch["rim"].toObject()["clicks"])
                                  << "--angle" << branch["angleDeg"].toDouble();
    for (const QString &scene : {QStringLiteral("bend"), QStringLiteral("joint")}) {
        const QJsonObject bend = truthOf(scene)["bend"].toObject();
        const QJsonObject ring = bend["rings"].toArray().last().toObject();
        QStringList options{"--clock", text(bend["clockDeg"])};
        if (scene == QLatin1String("joint")) {
            options += {"--joint", "--percentage", text(bend["straightPercent"])};
        }
        QTest::newRow(qPrintable(scene + " angle"))
            << scene << options << modelColour << pointsOf(ring["clicks"]) << "--angle"
            << bend["angleDeg"].toDouble();
    }
}

// Turning the control until the model matches is how an operator measures these.
void TestSamples::modelLiesOnTheTruth()
{
    QFETCH(QString, scene);
    QFETCH(QStringList, options);
    QFETCH(QString, colour);
    QFETCH(QVector<QPointF>, points);
    QFETCH(QString, control);
    QFETCH(double, expected);
    QVERIFY(points.size() > 5);
    const auto matches = [&](double value) {
        const QPainterPath near =
            nearModel(scene, options + QStringList{control, QString::number(value)}, colour);
        return std::all_of(points.begin(), points.end(),
                           [&near](const QPointF &point) { return near.contains(point); });
    };
    QVERIFY(matches(expected));
    QVERIFY(!matches(expected - 5));
    QVERIFY(!matches(expected + 5));
}

QPainterPath TestSamples::nearModel(const QString &scene, const QStringList &options,
                                    const QString &colour) const
{
    runProgram(QStringList{"render", "--no-session", "--overlay", "svg", "--force", "--output",
                           m_dir.path(), samplePath(scene + ".jpg")} +
               alignment(truthOf(scene)) + options);
    return nearLinesIn(readBytes(m_dir.filePath(scene + QStringLiteral(".overlay.svg"))), colour);
}

void TestSamples::jointsGiveTheCamera_data()
{
    QTest::addColumn<QString>("distance");
    QTest::addColumn<double>("givenFovDEG");
    QTest::addColumn<QString>("undetermined");
    QTest::addColumn<QString>("message");
    QTest::newRow("with its distance") << " @700" << 45.0 << ""
                                       << "determine fovYDEG: the option";
    QTest::newRow("without") << "" << 52.0 << "fovYDEG"
                             << "";
}

// The joints as they are, from a program that draws them by itself; a saved fit stays as it is.
void TestSamples::jointsGiveTheCamera()
{
    QFETCH(QString, distance);
    QFETCH(double, givenFovDEG);
    QFETCH(QString, undetermined);
    QFETCH(QString, message);
    const QJsonObject truth = truthOf(QStringLiteral("tilted"));
    const auto clicksOf = [](const QJsonValue &list) {
        QStringList clicks;
        for (const QPointF &point : pointsOf(list)) {
            clicks += pointText(point);
        }
        return clicks.join(QLatin1Char(' '));
    };
    const QJsonArray joints = truth["joints"].toArray();
    const Run run = runProgram({"measure",
                                "--no-session",
                                "--kind",
                                "PipeDimension",
                                "--diameter",
                                "300",
                                "--fov",
                                QString::number(givenFovDEG),
                                "--fit-fov",
                                "--ring",
                                clicksOf(joints[0]["clicks"]),
                                "--ring",
                                clicksOf(joints[1]["clicks"]) + distance,
                                "--line",
                                "335.2225683,688.1983342 "
                                "442.2872838,555.7288419",
                                "--click",
                                "253.1,187.9",
                                "--click",
                                "336.7,252.1",
                                "--format",
                                "jsonl",
                                "--save-session",
                                "--force",
                                "--output",
                                m_dir.path(),
                                samplePath("tilted.jpg")});
    QVERIFY2(run.messages.contains(message.toUtf8()), run.messages);
    const QJsonObject alignment =
        QJsonDocument::fromJson(run.output).object()["alignment"].toObject();
    const QJsonObject camera = truth["camera"].toObject();
    QCOMPARE(alignment["rings"].toInt(), 2);
    QCOMPARE(alignment["lines"].toInt(), 1);
    QCOMPARE(alignment["offset"], camera["offsetPx"]);
    const auto isTrue = [](const QJsonValue &found, const QJsonValue &expected) {
        return std::abs(found.toDouble() - expected.toDouble()) < 0.01;
    };
    QVERIFY(isTrue(alignment["cameraHeightPercent"], camera["heightPercent"]));
    QVERIFY(isTrue(alignment["rearCircle"][0], camera["rearCircle"][0]));
    QVERIFY(isTrue(alignment["rearCircle"][1], camera["rearCircle"][1]));
    QVERIFY(isTrue(alignment["mouthPercent"], 100.0));
    QVERIFY(isTrue(alignment["fovYDEG"], camera["fovDeg"]));
    QVERIFY(alignment["largestPX"].toDouble() < 0.05);
    QCOMPARE(alignment["undetermined"][0].toString(), undetermined);
    QCOMPARE(alignment["fitted"].toArray().size(), undetermined.isEmpty() ? 6 : 5);
    for (const QJsonValue name : alignment["fitted"].toArray()) {
        QVERIFY(alignment["standardUncertainties"][name.toString()].toDouble() > 0.0);
    }

    const QString saved = m_dir.filePath(QStringLiteral("tilted.jpg.zalento.json"));
    const Run again = runProgram({"measure", "--session", saved, "--format", "jsonl"});
    const QJsonObject other = QJsonDocument::fromJson(again.output).object();
    QCOMPARE(other["alignment"].toObject(), alignment);
    QCOMPARE(valuesOf(again.output), valuesOf(run.output));
    // A kind without points has no value, but the alignment is told.
    QVERIFY(runProgram({"measure", "--session", saved, "--kind", "CrossSection"})
                .output.contains("alignment fitted to 2 joints and 1 line, rms 0.0"));
}

void TestSamples::sessionsMeasureTheTruth_data()
{
    QTest::addColumn<double>("expected");
    const auto row = [](const char *scene, const char *object, const char *field) {
        QTest::newRow(scene) << truthOf(QLatin1String(scene))[object].toObject()[field].toDouble();
    };
    row("crack", "crack", "widthMm");
    row("water", "water", "percent");
    row("branch", "branch", "angleDeg");
    row("bend", "bend", "angleDeg");
    row("joint", "bend", "angleDeg");
    row("section", "section", "areaMm2");
    const auto length = [](const char *scene, int number) {
        const QJsonArray lengths = truthOf(QLatin1String(scene))["dimensions"].toArray();
        QTest::newRow(scene) << lengths[number].toObject()["lengthMm"].toDouble();
    };
    length("dimension", 1);
    length("tilted", 0); // aligned by their joints
    length("flooded", 0);
}

// Every sample has a session that belongs to it.
void TestSamples::sessionsMeasureTheTruth()
{
    QFETCH(double, expected);
    const QString picture = samplePath(QString::fromLatin1(QTest::currentDataTag()) + ".jpg");
    const auto session = loadSession(sessionPathOf(picture));
    QVERIFY(session);
    QCOMPARE(session->picture.sha256,
             QCryptographicHash::hash(readBytes(picture), QCryptographicHash::Sha256).toHex());
    // Angles and levels are set, the others clicked.
    const double limit = session->points.isEmpty() ? 0.0 : clickTolerance * expected;
    const QJsonObject value = measuredValue({"--session", sessionPathOf(picture)});
    const double error = std::abs(value["number"].toDouble(qQNaN()) - expected);
    QVERIFY(error <= limit);
    // The operator's clicks were good: the uncertainty says more, but not out of proportion.
    const double expanded = value["expandedUncertainty"].toDouble();
    QVERIFY(error < expanded && expanded < 0.45 * expected);
}

void TestSamples::fitsAreTold()
{
    const QString session = sessionPathOf(samplePath(QStringLiteral("flooded.jpg")));
    const Run told = runProgram({"measure", "--session", session});
    QVERIFY2(told.output.contains(": alignment fitted to 2 joints, rms 0.11 px, largest 0.22 px"),
             told.output);
}

QTEST_MAIN(TestSamples)
#include "tst_samples.moc"
