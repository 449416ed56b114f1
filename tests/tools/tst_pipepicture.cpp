// The samples' truths are measured by the tests of the programs; here they are drawn again.
#include "Options.h"
#include "Render.h"
#include "Shape.h"
#include "Truth.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QFile>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

using namespace PipePicture;
using namespace Drevon::Zalento::Test;

namespace {

// A truth is written with seven decimals.
constexpr Tolerance writtenTolerance{1e-6, ""};
// The march through a bend stops up to a millionth of the radius from the wall, seen aslant.
constexpr Tolerance hitTolerance{1e-5, "m"};
// An edge found between pixel centres in a picture of 8 bits without blur or noise.
constexpr Tolerance edgeTolerance{0.75, "px"};
// A laser spot lies on the slanting wall, so its light is not even on both sides of its middle.
constexpr Tolerance spotTolerance{1.0, "px"};

// The value at "joints/0/scene" in a scene's truth.
QJsonValue truthAt(const SceneSettings &scene, const QString &path)
{
    QJsonValue value = truthOf(scene, "a.png");
    for (const QString &step : path.split('/'))
        value = value.isArray() ? value.toArray().at(step.toInt()) : value.toObject()[step];
    return value;
}

QPointF pixel(const QJsonValue &value)
{
    return {value.toArray().at(0).toDouble(), value.toArray().at(1).toDouble()};
}

double grey(const QImage &picture, const QPointF &at)
{
    // Bilinear between pixel centres, which lie at halves.
    const int x = int(std::floor(at.x() - 0.5));
    const int y = int(std::floor(at.y() - 0.5));
    const double u = at.x() - 0.5 - x;
    const double v = at.y() - 0.5 - y;
    const auto value = [&](int dx, int dy) { return double(qGray(picture.pixel(x + dx, y + dy))); };
    return mix(mix(value(0, 0), value(1, 0), u), mix(value(0, 1), value(1, 1), u), v);
}

// How far beyond @p edge, coming from @p from, the picture changes most on the way to @p to.
double edgeError(const QImage &picture, const QPointF &from, const QPointF &edge, const QPointF &to)
{
    const double whole = QLineF(from, to).length();
    const QPointF step = (to - from) / whole;
    double best = 0.0;
    double bestChange = -1.0;
    for (double s = 0.5; s < whole - 0.5; s += 0.05) {
        const double change = std::fabs(grey(picture, from + step * (s + 0.5)) -
                                        grey(picture, from + step * (s - 0.5)));
        if (change > bestChange) {
            best = s;
            bestChange = change;
        }
    }
    return best - QLineF(from, edge).length();
}

// Centre of the brightest red near a place.
QPointF redCentre(const QImage &picture, const QPointF &about)
{
    constexpr int reach = 8;
    QPointF sum;
    double weights = 0.0;
    for (int y = int(about.y()) - reach; y <= int(about.y()) + reach; ++y) {
        for (int x = int(about.x()) - reach; x <= int(about.x()) + reach; ++x) {
            const QRgb colour = picture.pixel(x, y);
            const double weight = squared(std::max(qRed(colour) + qGreen(colour) - 320, 0));
            sum += QPointF(x + 0.5, y + 0.5) * weight;
            weights += weight;
        }
    }
    return sum / weights;
}

QByteArray contents(const QString &file)
{
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

} // namespace

class TestPipePicture : public TestCase
{
    Q_OBJECT

private slots:
    void projectsLikeAPinhole()
    {
        // 37.5 degrees and 1 m: the square covers 2 tan(18.75 degrees) of the depth.
        const double tangent = std::tan(radians(18.75));
        const double eyeZ = 0.51 / tangent;
        const double mouth = 288.0 / 1.02;
        const double far = 288 / tangent / (eyeZ + 10);
        const double turned =
            2880 * std::sin(radians(10)) / tangent / (eyeZ + 10 * std::cos(radians(10)));
        const QSize wide(768, 576);
        const struct
        {
            const char *name;
            CameraSettings camera; // picture, field of view, height, offset, roll, yaw, pitch
            Vec scenePoint;
            QPointF expected;
        } cases[] = {
            {"mouth at nine o'clock", {wide}, {0.5, 0, 0}, {384 - mouth, 288}},
            {"axis from above", {wide, 37.5, 0.7}, {0, 0, -10}, {384, 288 + 0.2 * far}},
            {"axis from the left", {wide, 37.5, 0.5, 57.6}, {0, 0, -10}, {384 - 0.1 * far, 288}},
            {"upright picture", {{576, 768}}, {0, -0.5, 0}, {288, 384 + mouth}},
            {"top rolled to three o'clock",
             {wide, 37.5, 0.5, 0, 90},
             {0, 0.5, 0},
             {384 + mouth, 288}},
            {"yawed to the right", {wide, 37.5, 0.5, 0, 0, 10}, {0, 0, -10}, {384 + turned, 288}},
            {"pitched up", {wide, 37.5, 0.5, 0, 0, 0, 10}, {0, 0, -10}, {384, 288 - turned}},
        };
        for (const auto &c : cases) {
            const Camera camera(c.camera, 1.0);
            const QPointF got = camera.project(c.scenePoint);
            const Comparison result = compareNear(got, c.expected, pixelTolerance);
            QVERIFY2(result.equal, c.name + (": " + result.message));
            const Ray ray = camera.rayThrough(got.x(), got.y());
            const Vec back = ray.at(dot(c.scenePoint - ray.origin, ray.direction)) - c.scenePoint;
            COMPARE_NEAR(length(back), 0.0, roundingTolerance);
        }
    }

    void pictureShowsWhatTheTruthSays()
    {
        SceneSettings scene = presetScene(SceneKind::Crack);
        scene.clean = true;
        scene.lens.blurPx = 0.0;
        scene.lens.noise = 0.0;
        scene.lens.vignette = 0.0;
        scene.camera.picture = QSize(1024, 768);
        QImage picture = renderPicture(scene);
        for (const QJsonValue &spot : truthAt(scene, "laser/clicks").toArray())
            COMPARE_NEAR(redCentre(picture, pixel(spot)), pixel(spot), spotTolerance);
        // Without the spots' glow: from outside of the crack to its middle.
        scene.laser.distanceMm = 0.0;
        picture = renderPicture(scene);
        const QJsonArray edges = truthAt(scene, "crack/clicks").toArray();
        const QPointF middle = (pixel(edges[0]) + pixel(edges[1])) / 2;
        for (const QJsonValue &edge : edges) {
            const QPointF outside = middle + (pixel(edge) - middle) * 2.0;
            COMPARE_NEAR(edgeError(picture, outside, pixel(edge), middle), 0.0, edgeTolerance);
        }
    }

    void refuses()
    {
        const char *const cases[][2] = {
            {"--scene crack", "one picture"},
            {"a.png b.png", "one picture"},
            {"a.bmp", ".png"},
            {"--colour red a.png", "colour"},
            {"--scene roof a.png", "no scene \"roof\""},
            {"--material steel a.png", "no material \"steel\""},
            {"--size 768 a.png", "768x576"},
            {"--size 99999x99999 a.png", "4096"},
            {"--water high a.png", "--water needs a number"},
            {"--water nan a.png", "--water needs a number"},
            {"--water 101 a.png", "water level"},
            {"--water 60 a.png", "under water"},
            {"--offset-x 400 a.png", "outside"},
            {"--fov 170 a.png", "field of view"},
            {"--crack-width 100 a.png", "crack"},
            {"--branch-share 50 --bend-angle 30 a.png", "either"},
            {"--scene branch --branch-angle 20 a.png", "branch's angle"},
            {"--quality 101 a.jpg", "--quality needs a whole number"},
        };
        for (const auto &[arguments, part] : cases) {
            const ParsedOptions parsed =
                parseOptions(QString("pipe-picture %1").arg(arguments).split(' '));
            QVERIFY2(parsed.action == ParsedOptions::Action::Refuse, arguments);
            QVERIFY2(parsed.text.contains(part), qPrintable(parsed.text));
        }
    }

    void samplesAreWhatTheScriptDraws()
    {
        const QString folder = SAMPLES_FOLDER "/";
        int drawn = 0;
        for (const QByteArray &line : contents(folder + "make-samples.sh").split('\n')) {
            QStringList words = QString::fromUtf8(line).split(' ', Qt::SkipEmptyParts);
            if (words.value(0) != "draw" || words.size() < 3)
                continue;
            words[0] = "pipe-picture";
            words[1] += ".jpg";
            const ParsedOptions parsed = parseOptions(words);
            QVERIFY2(parsed.action == ParsedOptions::Action::Draw, qPrintable(parsed.text));
            const Request &request = parsed.request;
            QCOMPARE(QJsonDocument::fromJson(contents(folder + request.truthFile)).object(),
                     truthOf(request.scene, request.pictureFile));
            QCOMPARE(QImageReader(folder + request.pictureFile).size(),
                     request.scene.camera.picture);
            ++drawn;
        }
        QCOMPARE(drawn, int(sceneKinds().size()));
    }
};

QTEST_GUILESS_MAIN(TestPipePicture)
#include "tst_pipepicture.moc"
