// The sample pictures are measured by the program at the pixels that their truth names. A click is
// off by up to a pixel, because it means a whole pixel: the limits are what that makes.
#include "PictureFiles.h"

#include "measure/Run.h"
#include "session/SessionFile.h"
#include "support/TestCase.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineF>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Apps;
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

QByteArray runProgram(const QStringList &arguments)
{
    QBuffer input;
    input.open(QIODevice::ReadOnly);
    QBuffer output;
    output.open(QIODevice::WriteOnly);
    QBuffer messages;
    messages.open(QIODevice::WriteOnly);
    const ExitCode code = run(arguments, input, output, messages);
    return code == AllMeasured ? output.data() : QByteArray();
}

// NaN when there is no value.
double measuredNumber(const QString &picture, const QStringList &options)
{
    const QByteArray json = runProgram(
        QStringList{"measure", "--no-session", "--format", "jsonl", samplePath(picture)} + options);
    const QJsonArray values = QJsonDocument::fromJson(json).object()["values"].toArray();
    return values.isEmpty() ? qQNaN() : values[0].toObject()["number"].toDouble();
}

struct Clicks
{
    QStringList options;
    QVector<QPointF> laser;
    QVector<QPointF> points;
};

double measuredAt(const QString &picture, const Clicks &clicks)
{
    QStringList options = clicks.options;
    if (!clicks.laser.isEmpty()) {
        options += {"--laser", pointText(clicks.laser[0]), pointText(clicks.laser[1])};
    }
    for (const QPointF &point : clicks.points) {
        options += {"--click", pointText(point)};
    }
    return measuredNumber(picture, options);
}

// How far the value moves when every click moves by a pixel across and up, at worst.
double errorOfOnePixel(const QString &picture, const Clicks &clicks, double value)
{
    double error = 0.0;
    const auto add = [&](QVector<QPointF> Clicks::*list, int i) {
        for (const QPointF &axis : {QPointF(1, 0), QPointF(0, 1)}) {
            double largest = 0.0;
            for (const double sign : {-1.0, 1.0}) {
                Clicks moved = clicks;
                (moved.*list)[i] += sign * axis;
                const double change = std::abs(measuredAt(picture, moved) - value);
                largest = std::isnan(change) ? largest : std::max(largest, change);
            }
            error += largest;
        }
    };
    for (int i = 0; i < clicks.laser.size(); ++i) {
        add(&Clicks::laser, i);
    }
    for (int i = 0; i < clicks.points.size(); ++i) {
        add(&Clicks::points, i);
    }
    return error;
}

/** The lines of a colour in an SVG overlay. */
QVector<QVector<QPointF>> linesIn(const QByteArray &svg, const QString &colour)
{
    QVector<QVector<QPointF>> lines;
    QString stroke;
    for (QXmlStreamReader xml(svg); !xml.atEnd(); xml.readNext()) {
        if (!xml.isStartElement()) {
            continue;
        }
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == QLatin1String("g") && attributes.hasAttribute("stroke")) {
            stroke = attributes.value("stroke").toString();
        } else if (xml.name() == QLatin1String("polyline") && stroke == colour) {
            QVector<QPointF> line;
            const QString points = attributes.value("points").toString();
            for (const QString &point : points.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
                line += QPointF(point.section(',', 0, 0).toDouble(),
                                point.section(',', 1, 1).toDouble());
            }
            lines += line;
        }
    }
    return lines;
}

double distanceToSegment(const QPointF &p, const QPointF &a, const QPointF &b)
{
    const QPointF along = b - a;
    const double squared = QPointF::dotProduct(along, along);
    const double t =
        squared > 0 ? qBound(0.0, QPointF::dotProduct(p - a, along) / squared, 1.0) : 0.0;
    return QLineF(p, a + t * along).length();
}

double distanceToLines(const QPointF &p, const QVector<QVector<QPointF>> &lines)
{
    double smallest = 1e9;
    for (const QVector<QPointF> &line : lines) {
        for (int i = 1; i < line.size(); ++i) {
            smallest = std::min(smallest, distanceToSegment(p, line[i - 1], line[i]));
        }
    }
    return smallest;
}

} // namespace

class TestSamples : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void clicksMeasureTheTruth_data();
    void clicksMeasureTheTruth();
    void modelLiesOnTheTruth_data();
    void modelLiesOnTheTruth();
    void sessionsMeasureTheTruth_data();
    void sessionsMeasureTheTruth();

private:
    double farthest(const QString &scene, const QStringList &options, const QString &colour,
                    const QVector<QPointF> &points) const;

    QTemporaryDir m_dir;
};

void TestSamples::initTestCase()
{
    QVERIFY(m_dir.isValid());
}

void TestSamples::clicksMeasureTheTruth_data()
{
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QVector<QPointF>>("laser");
    QTest::addColumn<QVector<QPointF>>("points");
    QTest::addColumn<double>("expected");

    const QJsonObject crack = truthOf("crack");
    QTest::newRow("crack") << "crack.jpg" << alignment(crack)
                           << pointsOf(crack["laser"].toObject()["clicks"])
                           << pointsOf(crack["crack"].toObject()["clicks"])
                           << crack["crack"].toObject()["widthMm"].toDouble();
    const QJsonObject dimension = truthOf("dimension");
    for (const QJsonValue &value : dimension["dimensions"].toArray()) {
        const QJsonObject length = value.toObject();
        QTest::newRow(qPrintable(length["name"].toString()))
            << "dimension.jpg" << alignment(dimension) << QVector<QPointF>()
            << pointsOf(length["clicks"]) << length["lengthMm"].toDouble();
    }
    const QJsonObject sectionTruth = truthOf("section");
    const QJsonObject section = sectionTruth["section"].toObject();
    QTest::newRow("cross-section")
        << "section.jpg"
        << alignment(sectionTruth) +
               QStringList{"--percentage", QString::number(section["percent"].toDouble())}
        << QVector<QPointF>() << pointsOf(section["clicks"]) << section["areaMm2"].toDouble();
}

void TestSamples::clicksMeasureTheTruth()
{
    QFETCH(QString, picture);
    QFETCH(QStringList, options);
    QFETCH(QVector<QPointF>, laser);
    QFETCH(QVector<QPointF>, points);
    QFETCH(double, expected);
    const Clicks clicks{options, laser, points};
    const double value = measuredAt(picture, clicks);
    QVERIFY(!std::isnan(value));
    const double limit = errorOfOnePixel(picture, clicks, value);
    qInfo("expected %g, measured %g, off by %.3g, limit %.3g", expected, value,
          std::abs(value - expected), limit);
    QVERIFY(std::abs(value - expected) <= limit);
}

void TestSamples::modelLiesOnTheTruth_data()
{
    QTest::addColumn<QString>("scene");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("colour");
    QTest::addColumn<QVector<QPointF>>("points");
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("smallest"); // of the control, in steps of five
    QTest::addColumn<int>("largest");
    QTest::addColumn<double>("expected");

    const QString waterColour = QStringLiteral("#00ffff");
    const QString modelColour = QStringLiteral("#ffff00");
    const auto text = [](const QJsonValue &value) { return QString::number(value.toDouble()); };
    const QJsonObject water = truthOf("water")["water"].toObject();
    QVector<QPointF> edges;
    for (const QJsonValue &edge : water["edges"].toArray()) {
        edges += pointsOf(edge.toObject()["clicks"]);
    }
    QTest::newRow("water level") << "water" << QStringList() << waterColour << edges
                                 << "--percentage" << 5 << 95 << water["percent"].toDouble();
    const QJsonObject branch = truthOf("branch")["branch"].toObject();
    QTest::newRow("branch angle") << "branch"
                                  << QStringList{"--percentage", text(branch["percent"]), "--clock",
                                                 text(branch["clockDeg"])}
                                  << modelColour << pointsOf(branch["rim"].toObject()["clicks"])
                                  << "--angle" << 30 << 150 << branch["angleDeg"].toDouble();
    for (const QString &scene : {QStringLiteral("bend"), QStringLiteral("joint")}) {
        const QJsonObject bend = truthOf(scene)["bend"].toObject();
        const QJsonObject ring = bend["rings"].toArray().last().toObject();
        QStringList options{"--clock", text(bend["clockDeg"])};
        if (scene == QLatin1String("joint")) {
            options += {"--joint", "--percentage", text(bend["straightPercent"])};
        }
        QTest::newRow(qPrintable(scene + " angle"))
            << scene << options << modelColour << pointsOf(ring["clicks"]) << "--angle" << 0 << 90
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
    QFETCH(int, smallest);
    QFETCH(int, largest);
    QFETCH(double, expected);
    QVERIFY(points.size() > 5);
    double best = qQNaN();
    double bestDistance = 1e9;
    for (int value = smallest; value <= largest; value += 5) {
        const QStringList set = options + QStringList{control, QString::number(value)};
        const double distance = farthest(scene, set, colour, points);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = value;
        }
    }
    qInfo("expected %g, matches best at %g, farthest point off by %.2f pixels", expected, best,
          bestDistance);
    QCOMPARE(best, expected);
    QVERIFY(bestDistance <= std::sqrt(2.0)); // a pixel across and up
}

double TestSamples::farthest(const QString &scene, const QStringList &options,
                             const QString &colour, const QVector<QPointF> &points) const
{
    runProgram(QStringList{"render", "--no-session", "--overlay", "svg", "--force", "--output",
                           m_dir.path(), samplePath(scene + ".jpg")} +
               alignment(truthOf(scene)) + options);
    const auto lines =
        linesIn(readBytes(m_dir.filePath(scene + QStringLiteral(".overlay.svg"))), colour);
    double largest = 0.0;
    for (const QPointF &point : points) {
        largest = std::max(largest, distanceToLines(point, lines));
    }
    return largest;
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
    const QJsonArray lengths = truthOf(QStringLiteral("dimension"))["dimensions"].toArray();
    QTest::newRow("dimension") << lengths[1].toObject()["lengthMm"].toDouble();
}

// Every sample has a session that belongs to it.
void TestSamples::sessionsMeasureTheTruth()
{
    QFETCH(double, expected);
    const QString picture = samplePath(QString::fromLatin1(QTest::currentDataTag()) + ".jpg");
    QString problem;
    const auto session = loadSession(sessionPathOf(picture), problem);
    QVERIFY2(session, qPrintable(problem));
    QCOMPARE(session->picture.sha256,
             QCryptographicHash::hash(readBytes(picture), QCryptographicHash::Sha256).toHex());
    const QByteArray json =
        runProgram({"measure", "--format", "jsonl", "--session", sessionPathOf(picture)});
    const QJsonArray values = QJsonDocument::fromJson(json).object()["values"].toArray();
    QVERIFY(!values.isEmpty());
    // Angles and levels are set; the pixels of the others stand for one percent at most.
    const double limit = session->points.isEmpty() ? 0.0 : 0.01 * expected;
    QVERIFY(std::abs(values[0].toObject()["number"].toDouble() - expected) <= limit);
}

QTEST_MAIN(TestSamples)
#include "tst_samples.moc"
