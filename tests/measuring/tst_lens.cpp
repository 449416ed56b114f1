// Lenses held against OpenCV's own projection, and pictures taken through them.
#include "Camera.h"
#include "Render.h"
#include "measuring/LensEstimate.h"
#include "measuring/Measurands.h"
#include "measuring/SessionFit.h"
#include "measuring/SessionLens.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QTemporaryDir>
#include <QTest>

#include <opencv2/calib3d.hpp>

#include <random>

using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

Q_DECLARE_METATYPE(Drevon::Zalento::Measuring::Lens)

namespace {

constexpr QSize wide(1280, 720);
// Half of a thousandth of a pixel: Newton's method ends far below.
constexpr double mappingTolerancePX = 1e-7;

Lens lensWith(const QVector<double> &distortion, double focalPX = 900.0,
              const QPointF &centre = {639.5, 359.5})
{
    Lens lens;
    lens.name = QStringLiteral("test");
    lens.size = wide;
    lens.cameraMatrix = {focalPX, 0, centre.x(), 0, focalPX, centre.y(), 0, 0, 1};
    lens.distortion = distortion;
    return lens;
}

// Where OpenCV projects a direction, counted from the picture's corner.
QPointF projectedByOpenCv(const Lens &lens, const cv::Point3d &direction)
{
    std::vector<cv::Point2d> pixels;
    const cv::Mat matrix(cv::Matx33d(lens.cameraMatrix.data()));
    const std::vector<double> distortion(lens.distortion.begin(), lens.distortion.end());
    cv::projectPoints(std::vector<cv::Point3d>{direction}, cv::Vec3d(), cv::Vec3d(), matrix,
                      distortion, pixels);
    return {pixels[0].x + 0.5, pixels[0].y + 0.5};
}

double distance(const QPointF &a, const QPointF &b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

// Clicks on joints before a lens in the middle of the picture.
Session clickedThrough(const PipePicture::CameraSettings &settings, const QVector<double> &depthsMM,
                       double spreadPX)
{
    constexpr double diameterM = 0.3;
    constexpr int clicksPerJoint = 10;
    constexpr double mmPerM = 1000.0;
    const PipePicture::Camera camera(settings, diameterM);
    std::mt19937_64 engine(7);
    std::normal_distribution<double> spread(0.0, spreadPX);
    Session session;
    session.picture.size = settings.picture;
    session.fovYDEG = settings.fovDeg;
    for (const double depthMM : depthsMM) {
        RingClicks ring{depthMM, {}};
        for (int i = 0; i < clicksPerJoint; ++i) {
            const double angle = 2 * M_PI * i / clicksPerJoint;
            const QPointF seen =
                camera.project({0.5 * diameterM * std::cos(angle),
                                0.5 * diameterM * std::sin(angle), -depthMM / mmPerM});
            ring.points += seen + QPointF(spread(engine), spread(engine));
        }
        session.rings += ring;
    }
    return session;
}

} // namespace

class TestLens : public TestCase
{
    Q_OBJECT

private slots:
    void mapsAsOpenCvDoes_data();
    void mapsAsOpenCvDoes();
    void largestSquareIsFull_data() { mapsAsOpenCvDoes_data(); }
    void largestSquareIsFull();
    void picturesAreStraight();
    void readsFilesOfCameras_data();
    void readsFilesOfCameras();
    void clicksFollowThePicture();
    void jointsTellTheLens_data();
    void jointsTellTheLens();
};

void TestLens::mapsAsOpenCvDoes_data()
{
    QTest::addColumn<Lens>("lens");
    QTest::newRow("straight") << lensWith({0, 0, 0, 0});
    QTest::newRow("barrel") << lensWith({-0.3, 0.1, 0, 0});
    QTest::newRow("cushion") << lensWith({0.25, 0.02, 0.001, -0.002, 0.01});
    QTest::newRow("quotient, beside the middle")
        << lensWith({0.4, 0.1, 0.0005, 0.0003, 0.01, 0.7, 0.15, 0.02}, 700.0, {610.25, 372.5});
    QTest::newRow("folds beside the corner") << lensWith({-0.15, 0, 0, 0, 0}, 800.0);
}

void TestLens::mapsAsOpenCvDoes()
{
    QFETCH(Lens, lens);
    const Result<LensMapping> square = LensMapping::of(lens);
    lens.view = LensView::All;
    const Result<LensMapping> all = LensMapping::of(lens);
    QVERIFY(square && all);
    QVERIFY(all->fovYDEG() >= square->fovYDEG() - 1e-9);

    for (const LensMapping *mapping : {&*square, &*all}) {
        for (double x = 1; x < wide.width(); x += 160) {
            for (double y = 1; y < wide.height(); y += 90) {
                const std::optional<QPointF> shown = mapping->toShown({x, y});
                QVERIFY(shown);
                const QPointF direction = (*shown - QPointF(640, 360)) / mapping->focalLengthPX();
                const QPointF taken = projectedByOpenCv(lens, {direction.x(), direction.y(), 1});
                QVERIFY(distance(taken, {x, y}) < mappingTolerancePX);
                QVERIFY(distance(*mapping->toTaken(*shown), {x, y}) < mappingTolerancePX);
            }
        }
    }
}

void TestLens::largestSquareIsFull()
{
    QFETCH(Lens, lens);
    QImage white(wide, QImage::Format_RGB32);
    white.fill(Qt::white);
    const Result<QImage> shown = undistorted(white, lens);
    QVERIFY(shown);
    QCOMPARE(shown->size(), wide);
    const QRect square((wide.width() - wide.height()) / 2, 0, wide.height(), wide.height());
    QImage expected(square.size(), QImage::Format_RGB32);
    expected.fill(Qt::white);
    QCOMPARE(shown->copy(square), expected);

    // A larger one would not be: its edge touches that of the picture.
    const LensMapping mapping = *LensMapping::of(lens);
    double nearest = wide.width();
    for (int i = 0; i <= square.height(); ++i) {
        for (const QPointF &place :
             {QPointF(square.left(), i), QPointF(square.left() + square.width(), i),
              QPointF(square.left() + i, 0), QPointF(square.left() + i, square.height())}) {
            const QPointF taken = *mapping.toTaken(place);
            nearest = std::min({nearest, taken.x(), taken.y(), wide.width() - taken.x(),
                                wide.height() - taken.y()});
        }
    }
    QVERIFY2(std::abs(nearest) < 0.01, qPrintable(QString::number(nearest)));

    // All that was taken is in the picture of all of it.
    lens.view = LensView::All;
    const LensMapping all = *LensMapping::of(lens);
    for (const QPointF &corner :
         {QPointF(0, 0), QPointF(wide.width(), 0), QPointF(0, wide.height()), QPointF(640, 0)}) {
        const QPointF place = *all.toShown(corner);
        QVERIFY(QRectF(-0.1, -0.1, wide.width() + 0.2, wide.height() + 0.2).contains(place));
    }
}

// The same pipe before a lens and before the pinhole that its picture is to be of.
void TestLens::picturesAreStraight()
{
    PipePicture::SceneSettings scene = PipePicture::presetScene(PipePicture::SceneKind::Dimension);
    scene.camera.picture = QSize(640, 480);
    scene.camera.fovDeg = 60.0;
    scene.camera.yawDeg = 4.0;
    scene.camera.k1 = -0.22;
    scene.camera.k2 = 0.05;
    scene.lens.noise = 0.0;
    scene.lens.vignette = 0.0;
    Lens lens = lensWith({scene.camera.k1, scene.camera.k2, 0, 0}, 0.0, {319.5, 239.5});
    lens.size = scene.camera.picture;
    lens.cameraMatrix[0] = lens.cameraMatrix[4] =
        240.0 / std::tan(scene.camera.fovDeg * M_PI / 360.0);
    const QImage taken = PipePicture::renderPicture(scene);
    const Result<QImage> shown = undistorted(taken, lens);
    QVERIFY(shown);

    // The generator puts the eye where the mouth fills the picture, whatever the field of view.
    const PipePicture::Camera bent(scene.camera, scene.diameterM());
    const LensMapping mapping = *LensMapping::of(lens);
    Session session;
    session.picture.size = scene.camera.picture;
    session.diameterMM = scene.diameterMm;
    session.fovYDEG = scene.camera.fovDeg;
    for (const double depthM : {0.0, -0.4}) {
        RingClicks ring{-depthM * 1000.0, {}};
        for (int clock = 0; clock < 360; clock += 45) {
            const PipePicture::Vec place = PipePicture::clockDirection(clock);
            ring.points +=
                bent.project({place.x * scene.radiusM(), place.y * scene.radiusM(), depthM});
        }
        session.rings += ring;
    }
    QVERIFY(!takeLens(session, lens));
    COMPARE_EXACT(session.fovYDEG, mapping.fovYDEG());
    const Result<AlignmentFit> fit = fitSession(session);
    QVERIFY(fit);
    QVERIFY2(fit->largestPX < 0.5, qPrintable(QString::number(fit->largestPX)));
    // The item's turn counts in half fields of view of its drawing area, which the mouth fills.
    constexpr double unitsPerHalfFov = 85.0;
    const double turned = unitsPerHalfFov * scene.camera.yawDeg / (0.5 * scene.camera.fovDeg);
    QVERIFY(std::abs(session.rearCircleX + turned) < 0.01);

    // The taken picture's light is where the mapping has it.
    double difference = 0.0;
    int counted = 0;
    for (int y = 20; y < 460; y += 7) {
        for (int x = 100; x < 540; x += 7) {
            const QPointF from = *mapping.toTaken({x + 0.5, y + 0.5});
            difference += std::abs(qGray(shown->pixel(x, y)) -
                                   qGray(taken.pixel(int(from.x()), int(from.y()))));
            ++counted;
        }
    }
    QVERIFY2(difference / counted < 4.0, qPrintable(QString::number(difference / counted)));
}

void TestLens::readsFilesOfCameras_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected"); // name or problem
    const QByteArray size = "image_width: 1280\nimage_height: 720\n";
    const QByteArray matrix =
        "camera_matrix:\n  rows: 3\n  cols: 3\n  data: [900, 0, 639.5, 0, 900., 359.5, 0, 0, 1]\n";
    const QByteArray distortion = "distortion_coefficients:\n  rows: 1\n  cols: 5\n"
                                  "  data: [-0.3, 0.1, 0., 1.0e-3, 0]\n";
    QTest::newRow("robot software")
        << size + "camera_name: crawler 7\ndistortion_model: plumb_bob\n" + matrix + distortion
        << "crawler 7";
    QTest::newRow("OpenCV's YAML")
        << QByteArray("%YAML:1.0\n---\nimage_width: 1280\nimage_height: 720\n"
                      "camera_matrix: !!opencv-matrix\n   rows: 3\n   cols: 3\n   dt: d\n"
                      "   data: [ 900., 0., 639.5, 0., 900., 359.5, 0., 0., 1. ]\n"
                      "distortion_coefficients: !!opencv-matrix\n   rows: 5\n   cols: 1\n   dt: d\n"
                      "   data: [ -0.3, 0.1, 0., 1.0e-03, 0. ]\n")
        << "camera";
    QTest::newRow("JSON with lists of rows")
        << QByteArray("{\"name\": \"j\", \"image_size\": [1280, 720], \"cameraMatrix\": "
                      "[[900, 0, 639.5], [0, 900, 359.5], [0, 0, 1]], "
                      "\"distortion\": [-0.3, 0.1, 0, 0.001, 0]}")
        << "j";
    QTest::newRow("no size") << matrix + distortion << "expected a width and a height";
    QTest::newRow("no matrix") << size + distortion << "camera_matrix: expected a list of 9";
    QTest::newRow("no distortion") << size + matrix << "expected 4, 5 or 8 numbers, found 0";
    QTest::newRow("another model")
        << size + "distortion_model: equidistant\n" + matrix + distortion
        << "expected plumb_bob or rational_polynomial, found equidistant";
    QTest::newRow("skew") << size + "camera_matrix: [900, 1, 639.5, 0, 900, 359.5, 0, 0, 1]\n" +
                                 distortion
                          << "lens.cameraMatrix: expected fx, 0, cx";
    QTest::newRow("a text") << QByteArray("hello: [") << "is no file of a camera";
    QTest::newRow("empty") << QByteArray() << "is no file of a camera";
    QTest::newRow("huge") << QByteArray(2 * 1024 * 1024, 'a') << "too large";
}

void TestLens::readsFilesOfCameras()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, expected);
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("camera.yaml"));
    QVERIFY(writeBytes(path, content));
    const Result<Lens> lens = loadLens(path);
    if (!lens) {
        QVERIFY2(lens.problem().text().contains(expected), qPrintable(lens.problem().text()));
        QCOMPARE(lens.problem().place, path);
        return;
    }
    Lens wanted = lensWith({-0.3, 0.1, 0, 0.001, 0});
    wanted.name = expected;
    QVERIFY(*lens == wanted);
}

void TestLens::clicksFollowThePicture()
{
    Session session;
    session.kind = Kind::CrackWidth;
    session.picture.size = wide;
    session.mmPerPixel = 0.5;
    session.points = {{QPointF(300, 200), Drevon::Zalento::Vec3(0.3, 0.2, 0), {}}};
    session.rings = {{0.0, {{700, 100}, {1200, 600}, {20, 40}}}};
    session.lines = {{{{640, 360}, {30, 700}}}};
    addMeasurand(session, Kind::CrackWidth);
    session.points = {{QPointF(900, 600), Drevon::Zalento::Vec3(0.9, 0.8, 0), {}}};
    takeMeasurand(session, 0);
    const Session before = session;
    Lens lens = lensWith({-0.3, 0.1, 0, 0});
    QVERIFY(!takeLens(session, lens));
    const LensMapping mapping = *LensMapping::of(lens);
    for (int i = 0; i < 3; ++i) {
        const QPointF &clicked = before.rings[0].points[i];
        QVERIFY(distance(*mapping.toTaken(session.rings[0].points[i]), clicked) <
                mappingTolerancePX);
    }
    QVERIFY(distance(session.points[0].pixel, {300, 200}) > 1.0);
    QVERIFY(distance(*mapping.toTaken(withMeasurand(session, 1).points[0].pixel), {900, 600}) <
            mappingTolerancePX);
    COMPARE_NEAR(*session.mmPerPixel, 0.5 * 900.0 / mapping.focalLengthPX(), roundingTolerance);

    lens.view = LensView::All;
    QVERIFY(!takeLens(session, lens));
    QVERIFY(!takeLens(session, std::nullopt));
    QVERIFY(distance(session.lines[0].points[1], {30, 700}) < mappingTolerancePX);
    QVERIFY(distance(session.points[0].pixel, {300, 200}) < mappingTolerancePX);
    COMPARE_NEAR(*session.mmPerPixel, 0.5, roundingTolerance);

    lens.size = QSize(640, 480);
    const Session kept = session;
    QVERIFY(takeLens(session, lens)->text().contains("640 x 480"));
    QVERIFY(session == kept);
}

void TestLens::jointsTellTheLens_data()
{
    QTest::addColumn<double>("k1");
    QTest::addColumn<bool>("fitsFov");
    QTest::addColumn<QVector<double>>("depthsMM");
    QTest::addColumn<QString>("refusal");
    const QVector<double> three{0, 150, 400};
    QTest::newRow("barrel") << -0.2 << false << three << "";
    QTest::newRow("cushion") << 0.15 << false << three << "";
    QTest::newRow("barrel and field of view")
        << -0.2 << true << QVector<double>{0, 100, 250, 500} << "";
    QTest::newRow("straight") << 0.0 << false << three << "from a straight one: k1 is";
    QTest::newRow("two joints") << -0.2 << false << QVector<double>{0, 150}
                                << "expected 3 joints with three clicks or more, found 2";
}

void TestLens::jointsTellTheLens()
{
    QFETCH(double, k1);
    QFETCH(bool, fitsFov);
    QFETCH(QVector<double>, depthsMM);
    QFETCH(QString, refusal);
    PipePicture::CameraSettings settings;
    settings.picture = wide;
    settings.fovDeg = 60.0;
    settings.yawDeg = 5.0;
    settings.heightShare = 0.55;
    settings.k1 = k1;
    Session session = clickedThrough(settings, depthsMM, 0.5);
    session.fitsFov = fitsFov;
    session.fovYDEG += fitsFov ? 4.0 : 0.0;
    session.rings[1].points[3] += QPointF(0, refusal.isEmpty() ? 40 : 0); // a wrong one
    const Result<RadialEstimate> estimate = estimateRadial(session);
    if (!refusal.isEmpty()) {
        QVERIFY(!estimate);
        QVERIFY2(estimate.problem().text().contains(refusal),
                 qPrintable(estimate.problem().text()));
        return;
    }
    QVERIFY2(estimate, qPrintable(estimate ? QString() : estimate.problem().text()));
    constexpr double coverage = 3.0; // standard uncertainties
    QVERIFY2(std::abs(estimate->k1 - k1) < coverage * estimate->standardUncertainty,
             qPrintable(
                 QStringLiteral("%1 +- %2").arg(estimate->k1).arg(estimate->standardUncertainty)));
    QVERIFY(estimate->standardUncertainty < 0.2 * std::abs(k1));
    QVERIFY(!takeLens(session, estimate->lens));
    QVERIFY(std::abs(estimate->lens.fy() - 360.0 / std::tan(M_PI / 6)) < 30.0);
    QVERIFY(estimateRadial(session).problem().text().contains("has a lens already"));
}

QTEST_GUILESS_MAIN(TestLens)
#include "tst_lens.moc"
