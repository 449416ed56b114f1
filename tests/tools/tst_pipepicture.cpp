#include "Marks.h"
#include "Options.h"
#include "Render.h"
#include "Shape.h"
#include "Truth.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>

using namespace PipePicture;
using Drevon::Zalento::Test::roundingTolerance;
using Drevon::Zalento::Test::TestCase;
using Drevon::Zalento::Test::Tolerance;

namespace {

// A truth is written with seven decimals.
constexpr Tolerance writtenTolerance{1e-6, ""};
// The march through a bend stops up to a millionth of the radius from the wall, seen aslant.
constexpr Tolerance hitTolerance{1e-5, "m"};
// An edge found between pixel centres in a picture of 8 bits without blur or noise.
constexpr Tolerance edgeTolerance{0.75, "px"};
// A laser spot lies on the slanting wall, so its light is not even on both sides of its middle.
constexpr Tolerance spotTolerance{1.0, "px"};

SceneSettings cleanScene(SceneKind kind)
{
    SceneSettings scene = presetScene(kind);
    scene.clean = true;
    scene.lens.blurPx = 0.0;
    scene.lens.noise = 0.0;
    scene.lens.vignette = 0.0;
    return scene;
}

QJsonObject truthOf(const SceneSettings &scene)
{
    return PipePicture::truthOf(scene, QStringLiteral("a.png"));
}

QPointF pixel(const QJsonValue &value)
{
    return {value.toArray().at(0).toDouble(), value.toArray().at(1).toDouble()};
}

Vec point(const QJsonValue &value)
{
    const QJsonArray p = value.toArray();
    return {p.at(0).toDouble(), p.at(1).toDouble(), p.at(2).toDouble()};
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

/** Distance from @p from, towards @p to, at which the picture changes most. */
double steepestChange(const QImage &picture, const QPointF &from, const QPointF &to)
{
    const double whole = std::hypot(to.x() - from.x(), to.y() - from.y());
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
    return best;
}

/** Centre of the brightest red within @p reach pixels. */
QPointF redCentre(const QImage &picture, const QPointF &about, int reach)
{
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

Q_DECLARE_METATYPE(PipePicture::Vec)

class TestPipePicture : public TestCase
{
    Q_OBJECT

private slots:
    void projectsLikeAPinhole_data();
    void projectsLikeAPinhole();
    void placesBranch_data();
    void placesBranch();
    void placesBend_data();
    void placesBend();
    void clickMeetsItsScenePoint_data();
    void clickMeetsItsScenePoint();
    void measuresAreTrue();
    void outlineClosesOnce();
    void jointRingIsWhereTruthSays();
    void crackAndLaserAreWhereTruthSays();
    void waterEdgeIsWhereTruthSays();
    void optionReachesTruth_data();
    void optionReachesTruth();
    void refuses_data();
    void refuses();
    void programWritesSameBytesTwice();
    void samplesAreWhatTheScriptDraws();
};

void TestPipePicture::projectsLikeAPinhole_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("heightShare");
    QTest::addColumn<double>("rollDeg");
    QTest::addColumn<double>("yawDeg");
    QTest::addColumn<Vec>("scenePoint");
    QTest::addColumn<QPointF>("expected");

    // Distance of the eye from the mouth for 37.5 degrees and 1 m: 1.5023983 m. The side of the
    // square covers 2 tan(18.75 degrees) of the depth.
    const double tangent = std::tan(radians(18.75));
    const double eyeZ = 0.51 / tangent;
    const double mouth = 288.0 / 1.02;
    const auto row = [](const char *name, QSize size, double height, double roll, double yaw, Vec p,
                        QPointF expected) {
        QTest::newRow(name) << size << height << roll << yaw << p << expected;
    };
    const QSize wide(768, 576);
    row("mouth at twelve o'clock", wide, 0.5, 0, 0, {0, 0.5, 0}, {384, 288 - mouth});
    row("mouth at nine o'clock", wide, 0.5, 0, 0, {0.5, 0, 0}, {384 - mouth, 288});
    row("axis seen from above it", wide, 0.7, 0, 0, {0, 0, -10},
        {384, 288 + 288 * 0.2 / tangent / (eyeZ + 10)});
    row("upright picture, square by its width", {576, 768}, 0.5, 0, 0, {0, -0.5, 0},
        {288, 384 + mouth});
    row("rolled a quarter, top comes to three o'clock", wide, 0.5, 90, 0, {0, 0.5, 0},
        {384 + mouth, 288});
    row("yawed, far end moves to the right", wide, 0.5, 0, 10, {0, 0, -10},
        {384 + 288 * 10 * std::sin(radians(10)) / tangent / (eyeZ + 10 * std::cos(radians(10))),
         288});
}

void TestPipePicture::projectsLikeAPinhole()
{
    QFETCH(QSize, size);
    QFETCH(double, heightShare);
    QFETCH(double, rollDeg);
    QFETCH(double, yawDeg);
    QFETCH(Vec, scenePoint);
    QFETCH(QPointF, expected);
    CameraSettings settings;
    settings.picture = size;
    settings.heightShare = heightShare;
    settings.rollDeg = rollDeg;
    settings.yawDeg = yawDeg;
    const Camera camera(settings, 1.0);
    const QPointF got = camera.project(scenePoint);
    COMPARE_NEAR(got, expected, Drevon::Zalento::Test::pixelTolerance);

    const Ray ray = camera.rayThrough(got.x(), got.y());
    const Vec back = ray.at(dot(scenePoint - ray.origin, ray.direction)) - scenePoint;
    COMPARE_NEAR(length(back), 0.0, roundingTolerance);
}

void TestPipePicture::placesBranch_data()
{
    QTest::addColumn<double>("angleDeg");
    QTest::addColumn<double>("clockDeg");
    QTest::addColumn<Vec>("side"); // towards the branch
    QTest::newRow("straight out at three o'clock") << 90.0 << 90.0 << Vec{-1, 0, 0};
    QTest::newRow("leading away at twelve o'clock") << 45.0 << 0.0 << Vec{0, 1, 0};
    QTest::newRow("leading back at nine o'clock") << 120.0 << 270.0 << Vec{1, 0, 0};
}

void TestPipePicture::placesBranch()
{
    QFETCH(double, angleDeg);
    QFETCH(double, clockDeg);
    QFETCH(Vec, side);
    SceneSettings scene = presetScene(SceneKind::Branch);
    scene.branch.angleDeg = angleDeg;
    scene.branch.clockDeg = clockDeg;
    const double radius = scene.radiusM();
    const double sine = std::sin(radians(angleDeg));
    std::vector<double> inPlane;
    for (const QJsonValue &value :
         truthOf(scene)["branch"].toObject()["rim"].toObject()["scene"].toArray()) {
        const Vec p = point(value);
        COMPARE_NEAR(std::hypot(p.x, p.y), radius, writtenTolerance);
        // Distance from the branch's axis, written with the coordinates along the pipe, towards
        // the branch and across.
        const double out = dot(p, side);
        const double across2 = squared(radius) - squared(out);
        const double axisZ =
            -0.5 * radius / sine - (out - radius) * std::cos(radians(angleDeg)) / sine;
        COMPARE_NEAR(std::sqrt(across2 + squared((p.z - axisZ) * sine)), 0.5 * radius,
                     writtenTolerance);
        QVERIFY(out > 0.0);
        if (out > radius - writtenTolerance.limit)
            inPlane.push_back(p.z);
    }
    QCOMPARE(int(inPlane.size()), 2);
    std::sort(inPlane.rbegin(), inPlane.rend());
    // The opening's two points in the plane of both axes.
    COMPARE_NEAR(inPlane[0], 0.0, writtenTolerance);
    COMPARE_NEAR(inPlane[1], -radius / sine, writtenTolerance);
}

void TestPipePicture::placesBend_data()
{
    QTest::addColumn<double>("clockDeg");
    QTest::addColumn<Vec>("side");
    QTest::newRow("to the right") << 90.0 << Vec{-1, 0, 0};
    QTest::newRow("to the left") << 270.0 << Vec{1, 0, 0};
    QTest::newRow("up") << 0.0 << Vec{0, 1, 0};
}

void TestPipePicture::placesBend()
{
    QFETCH(double, clockDeg);
    QFETCH(Vec, side);
    SceneSettings scene = presetScene(SceneKind::Bend);
    scene.bend.angleDeg = 60.0;
    scene.bend.clockDeg = clockDeg;
    scene.bend.straightShare = 2.0;
    const double radius = scene.radiusM();
    // The turn axis touches the wall: the inner side stays where it is, the axis turns about it.
    const Vec endCentre = side * (radius * 0.5) + Vec{0, 0, -radius * std::sin(radians(60))};
    const Vec ahead = side * std::sin(radians(60)) + Vec{0, 0, -0.5};
    const Vec nextCentre = endCentre + ahead * (4.0 * radius);
    const QJsonArray rings = truthOf(scene)["bend"].toObject()["rings"].toArray();
    QCOMPARE(rings.size(), 3);
    const Vec centres[] = {Vec{}, endCentre, nextCentre};
    for (int i = 0; i < 3; ++i) {
        Vec sum;
        for (const QJsonValue &value : rings[i].toObject()["scene"].toArray()) {
            COMPARE_NEAR(length(point(value) - centres[i]), radius, writtenTolerance);
            if (i > 0)
                COMPARE_NEAR(dot(point(value) - centres[i], ahead), 0.0, writtenTolerance);
            sum += point(value) * (1.0 / 12.0);
        }
        COMPARE_NEAR(length(sum - centres[i]), 0.0, writtenTolerance);
    }
}

void TestPipePicture::clickMeetsItsScenePoint_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("path"); // to an object with clicks and scene
    const auto row = [](const char *name, SceneKind kind, const QStringList &path) {
        QTest::newRow(name) << int(kind) << path;
    };
    row("joint at the mouth", SceneKind::Dimension, {"joints", "0"});
    row("crack", SceneKind::Crack, {"crack"});
    row("laser spots", SceneKind::Crack, {"laser"});
    row("spall length", SceneKind::Dimension, {"dimensions", "0"});
    row("spall width", SceneKind::Dimension, {"dimensions", "1"});
    row("pipe length", SceneKind::Dimension, {"dimensions", "3"});
    row("water's edge", SceneKind::Water, {"water", "edges", "1"});
    row("begin of a bend", SceneKind::Bend, {"bend", "rings", "0"});
    row("end of a turned joint", SceneKind::Joint, {"bend", "rings", "1"});
    row("joint after a turned joint", SceneKind::Joint, {"bend", "rings", "2"});
}

void TestPipePicture::clickMeetsItsScenePoint()
{
    QFETCH(int, kind);
    QFETCH(QStringList, path);
    SceneSettings scene = presetScene(SceneKind(kind));
    if (scene.kind != SceneKind::Water)
        scene.waterShare = 0.0;
    scene.camera.rollDeg = 4.0;
    scene.camera.yawDeg = -1.5;
    scene.camera.pitchDeg = 1.0;
    scene.camera.heightShare = 0.55;
    QJsonValue value = truthOf(scene);
    for (const QString &step : path)
        value = value.isArray() ? value.toArray().at(step.toInt()) : value.toObject()[step];
    const QJsonArray clicks = value.toObject()["clicks"].toArray();
    const QJsonArray points = value.toObject()["scene"].toArray();
    QVERIFY(!clicks.isEmpty());
    QCOMPARE(clicks.size(), points.size());

    const Camera camera(scene.camera, scene.diameterM());
    const Shape shape(scene);
    for (int i = 0; i < clicks.size(); ++i) {
        const QPointF click = pixel(clicks[i]);
        const Hit hit = shape.trace(camera.rayThrough(click.x(), click.y()));
        COMPARE_NEAR(length(hit.point - point(points[i])), 0.0, hitTolerance);
    }
}

void TestPipePicture::measuresAreTrue()
{
    SceneSettings scene = presetScene(SceneKind::Crack);
    const QJsonObject truth = truthOf(scene);
    for (const char *name : {"crack", "laser"}) {
        const QJsonObject mark = truth[QLatin1String(name)].toObject();
        const double expected = mark[name[0] == 'c' ? "widthMm" : "distanceMm"].toDouble();
        const QJsonArray ends = mark["scene"].toArray();
        COMPARE_NEAR(length(point(ends[0]) - point(ends[1])) * 1000.0, expected,
                     (Tolerance{2e-4, "mm"}));
        const QLineF clicked(pixel(mark["clicks"].toArray()[0]),
                             pixel(mark["clicks"].toArray()[1]));
        COMPARE_NEAR(clicked.length() * mark["mmPerPixel"].toDouble(), expected,
                     (Tolerance{2e-4, "mm"}));
    }
    scene = presetScene(SceneKind::Dimension);
    const QJsonArray dimensions = truthOf(scene)["dimensions"].toArray();
    const double lengths[] = {scene.spall.lengthMm, scene.spall.widthMm, 300.0, 1000.0};
    for (int i = 0; i < 4; ++i)
        COMPARE_NEAR(dimensions[i].toObject()["lengthMm"].toDouble(), lengths[i], writtenTolerance);
}

void TestPipePicture::outlineClosesOnce()
{
    const SceneSettings scene = presetScene(SceneKind::Section);
    const QJsonObject section = truthOf(scene)["section"].toObject();
    const QJsonArray corners = section["scene"].toArray();
    const Vec first = point(corners.first());
    QCOMPARE(corners.last(), corners.first());
    const double snap = 0.12 * scene.diameterM();
    for (int i = 3; i + 1 < corners.size(); ++i) {
        const Vec p = point(corners[i]);
        QVERIFY2(std::fabs(p.x - first.x) > snap || std::fabs(p.y - first.y) > snap,
                 "a click on this corner would close the outline");
    }
    // The front's area counted over a fine grid that the tracer sees.
    const Shape shape(scene);
    constexpr int steps = 600;
    const double cell = scene.diameterM() / steps;
    int inside = 0;
    for (int i = 0; i < steps * steps; ++i) {
        const Vec from{(i % steps + 0.5) * cell - scene.radiusM(),
                       (i / steps + 0.5) * cell - scene.radiusM(), 0.0};
        const bool inPipe = std::hypot(from.x, from.y) < scene.radiusM();
        inside += inPipe && shape.traceDry({from, {0, 0, -1}}).part == Part::DepositFront ? 1 : 0;
    }
    const double counted = inside * squared(cell) * 1e6;
    COMPARE_NEAR(section["depositAreaMm2"].toDouble() / counted, 1.0, (Tolerance{0.005, ""}));
    QVERIFY(section["areaMm2"].toDouble() < section["depositAreaMm2"].toDouble());
}

void TestPipePicture::jointRingIsWhereTruthSays()
{
    SceneSettings scene = cleanScene(SceneKind::Dimension);
    scene.waterShare = 0.0;
    scene.camera.heightShare = 0.6;
    scene.pipeLengthMm = 400.0; // a second ring still wide enough to be measured
    const QImage picture = renderPicture(scene);
    const QJsonArray joints = truthOf(scene)["joints"].toArray();
    const Camera camera(scene.camera, scene.diameterM());
    for (const int joint : {0, 1}) {
        for (const QJsonValue &value : joints[joint].toObject()["scene"].toArray()) {
            const Vec p = point(value);
            // Along the pipe from just before the ring to just behind it.
            const double reach = 0.018 * scene.diameterM();
            const QPointF from = camera.project(p + Vec{0, 0, reach});
            const QPointF to = camera.project(p - Vec{0, 0, reach});
            const QPointF ring = camera.project(p);
            if (!QRectF(2, 2, 764, 572).contains(from))
                continue;
            const double expected = QLineF(from, ring).length();
            const QPointF longer = (to - from) / QLineF(from, to).length() * 1.5;
            COMPARE_NEAR(steepestChange(picture, from - longer, to + longer) - 1.5, expected,
                         edgeTolerance);
        }
    }
}

void TestPipePicture::crackAndLaserAreWhereTruthSays()
{
    SceneSettings scene = cleanScene(SceneKind::Crack);
    scene.camera.picture = QSize(1024, 768);
    const QImage picture = renderPicture(scene);
    const QJsonObject truth = truthOf(scene);
    for (const QJsonValue &spot : truth["laser"].toObject()["clicks"].toArray()) {
        const QPointF expected = pixel(spot);
        COMPARE_NEAR(redCentre(picture, expected, 8), expected, spotTolerance);
    }
    // Without the spots' glow: from outside of the crack to its middle.
    scene.laser.distanceMm = 0.0;
    const QImage crack = renderPicture(scene);
    const QJsonArray edges = truth["crack"].toObject()["clicks"].toArray();
    const QPointF middle = (pixel(edges[0]) + pixel(edges[1])) / 2;
    for (const QJsonValue &edge : edges) {
        const QPointF outside = middle + (pixel(edge) - middle) * 2.0;
        const double expected = QLineF(outside, pixel(edge)).length();
        COMPARE_NEAR(steepestChange(crack, outside, middle), expected, edgeTolerance);
    }
}

void TestPipePicture::waterEdgeIsWhereTruthSays()
{
    SceneSettings scene = cleanScene(SceneKind::Water);
    scene.pipeLengthMm = 5000.0;
    const QImage picture = renderPicture(scene);
    const Camera camera(scene.camera, scene.diameterM());
    const double y = scene.radiusM() * (2.0 * scene.waterShare - 1.0);
    const double half = std::sqrt(squared(scene.radiusM()) - squared(y));
    for (const double side : {-1.0, 1.0}) {
        for (const double depth : {0.05, 0.1, 0.2}) {
            const QPointF edge = camera.project({side * half, y, -depth});
            const QPointF wall = edge + QPointF(-side * 4.0, -4.0);
            const QPointF open = edge + QPointF(side * 2.0, 2.0);
            COMPARE_NEAR(steepestChange(picture, wall, open), QLineF(wall, edge).length(),
                         edgeTolerance);
        }
    }
}

void TestPipePicture::optionReachesTruth_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<double>("expected");
    const auto row = [](const char *name, const QString &options, const QString &path,
                        double expected) {
        QTest::newRow(name) << options.split(' ') << path.split('/') << expected;
    };
    row("diameter", "--diameter 225", "pipe/diameterMm", 225);
    row("pipe length", "--pipe-length 1500", "pipe/pipeLengthMm", 1500);
    row("field of view", "--fov 50", "camera/fovDeg", 50);
    row("camera height", "--camera-height 60", "camera/heightPercent", 60);
    row("sideways shift", "--offset-x 20", "camera/offsetPx", 20);
    row("roll", "--roll -3", "camera/rollDeg", -3);
    row("yaw as the overlay's rear circle", "--yaw -3.75", "camera/rearCircle/0", 17);
    row("pitch as the overlay's rear circle", "--pitch 3.75", "camera/rearCircle/1", -10);
    row("water in percent", "--water 12.5", "water/share", 0.125);
    row("crack width", "--scene crack --crack-width 5", "crack/widthMm", 5);
    row("crack clock", "--scene crack --crack-clock 300", "crack/clockDeg", 300);
    row("laser distance", "--scene crack --laser-distance 40", "laser/distanceMm", 40);
    row("spall length", "--spall-length 75", "dimensions/0/lengthMm", 75);
    row("spall width", "--spall-width 55", "dimensions/1/lengthMm", 55);
    row("branch share", "--scene branch --branch-share 33", "branch/percent", 33);
    row("branch angle", "--scene branch --branch-angle 120", "branch/angleDeg", 120);
    row("branch clock", "--scene branch --branch-clock 45", "branch/clockDeg", 45);
    row("bend angle", "--scene bend --bend-angle 45", "bend/angleDeg", 45);
    row("bend clock", "--scene joint --bend-clock 180", "bend/clockDeg", 180);
    row("straight piece", "--scene joint --bend-straight 40", "bend/straightPercent", 40);
    row("deposit depth", "--scene section --deposit-depth 8", "section/percent", 8);
    row("size", "--size 1024x768", "picture/square/2", 768);
}

void TestPipePicture::optionReachesTruth()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, path);
    QFETCH(double, expected);
    const ParsedOptions parsed = parseOptions(QStringList{"pipe-picture", "a.png"} + options);
    QVERIFY2(parsed.action == ParsedOptions::Action::Draw, qPrintable(parsed.text));
    QJsonValue value = truthOf(parsed.request.scene);
    for (const QString &step : path)
        value = value.isArray() ? value.toArray().at(step.toInt()) : value.toObject()[step];
    QVERIFY(value.isDouble());
    COMPARE_NEAR(value.toDouble(), expected, writtenTolerance);
}

void TestPipePicture::refuses_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("part");
    const auto row = [](const char *name, const char *arguments, const char *part) {
        QTest::newRow(name) << QString(arguments) << QString(part);
    };
    row("no picture", "--scene crack", "one picture");
    row("two pictures", "a.png b.png", "one picture");
    row("other format", "a.bmp", ".png");
    row("unknown option", "--colour red a.png", "colour");
    row("unknown scene", "--scene roof a.png", "no scene \"roof\"");
    row("unknown material", "--material steel a.png", "no material \"steel\"");
    row("size without height", "--size 768 a.png", "768x576");
    row("size beyond memory", "--size 99999x99999 a.png", "4096");
    row("word for a number", "--water high a.png", "--water needs a number");
    row("not a number", "--water nan a.png", "--water needs a number");
    row("water above the pipe", "--water 101 a.png", "water level");
    row("camera under water", "--water 60 a.png", "under water");
    row("camera outside", "--offset-x 400 a.png", "outside");
    row("field of view too wide", "--fov 170 a.png", "field of view");
    row("crack wider than the wall", "--crack-width 100 a.png", "crack");
    row("branch and bend", "--branch-share 50 --bend-angle 30 a.png", "either");
    row("branch too steep", "--scene branch --branch-angle 20 a.png", "branch's angle");
    row("quality out of range", "--quality 101 a.jpg", "--quality needs a whole number");
}

void TestPipePicture::refuses()
{
    QFETCH(QString, arguments);
    QFETCH(QString, part);
    const ParsedOptions parsed = parseOptions(QStringList{"pipe-picture"} + arguments.split(' '));
    QVERIFY(parsed.action == ParsedOptions::Action::Refuse);
    QVERIFY2(parsed.text.contains(part), qPrintable(parsed.text));
}

void TestPipePicture::programWritesSameBytesTwice()
{
    const QTemporaryDir folder;
    const auto run = [&folder](const QStringList &arguments) {
        QProcess program;
        program.setWorkingDirectory(folder.path());
        program.start(QStringLiteral(PIPE_PICTURE_PROGRAM), arguments);
        program.waitForFinished();
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    };
    const auto file = [&folder](const char *name) {
        return contents(folder.filePath(QLatin1String(name)));
    };
    const QStringList small{"--scene", "water", "--size", "160x120"};
    QCOMPARE(run(small + QStringList{"a.jpg"}), 0);
    QCOMPARE(run(small + QStringList{"b.jpg"}), 0);
    QCOMPARE(run(small + QStringList{"--seed", "77", "c.jpg"}), 0);
    QVERIFY(!file("a.jpg").isEmpty());
    QCOMPARE(file("a.jpg"), file("b.jpg"));
    QVERIFY(file("a.jpg") != file("c.jpg"));
    QCOMPARE(file("a.truth.json").replace("a.jpg", "b.jpg"), file("b.truth.json"));

    const QByteArray before = file("a.jpg");
    QCOMPARE(run(small + QStringList{"--water", "10", "a.jpg"}), 3);
    QCOMPARE(file("a.jpg"), before);
    QCOMPARE(run(small + QStringList{"--water", "10", "--force", "a.jpg"}), 0);
    QVERIFY(file("a.jpg") != before);
    QCOMPARE(run(small + QStringList{"missing/a.jpg"}), 3);
    QCOMPARE(run({"--scene", "roof", "d.jpg"}), 2);
    QVERIFY(!QFileInfo::exists(folder.filePath("d.jpg")));
    QCOMPARE(run({"--help"}), 0);
}

void TestPipePicture::samplesAreWhatTheScriptDraws()
{
    const QString folder = QStringLiteral(SAMPLES_FOLDER "/");
    int drawn = 0;
    for (const QByteArray &line : contents(folder + "make-samples.sh").split('\n')) {
        QStringList words = QString::fromUtf8(line).split(' ', Qt::SkipEmptyParts);
        if (words.value(0) != QLatin1String("draw") || words.size() < 3)
            continue;
        words[0] = QStringLiteral("pipe-picture");
        words[1] += QStringLiteral(".jpg");
        const ParsedOptions parsed = parseOptions(words);
        QVERIFY2(parsed.action == ParsedOptions::Action::Draw, qPrintable(parsed.text));
        const Request &request = parsed.request;
        const QByteArray truth = contents(folder + request.truthFile);
        QCOMPARE(QJsonDocument::fromJson(truth).object(),
                 PipePicture::truthOf(request.scene, request.pictureFile));
        QCOMPARE(QImageReader(folder + request.pictureFile).size(), request.scene.camera.picture);
        ++drawn;
    }
    QCOMPARE(drawn, int(sceneKinds().size()));
}

QTEST_GUILESS_MAIN(TestPipePicture)
#include "tst_pipepicture.moc"
