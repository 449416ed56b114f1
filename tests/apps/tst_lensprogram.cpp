// A camera whose lens is known takes pictures of a chessboard, and of a pipe.
#include "RunProgram.h"
#include "support/PictureFiles.h"

#include "measuring/SessionFile.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Apps;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

namespace {

constexpr QSize pictureSize(640, 480);
constexpr double focalPX = 420.0;
constexpr double k1 = -0.25;
constexpr double k2 = 0.06;
constexpr QPointF middle(324, 236); // of the lens, from the picture's corner
constexpr int cornersAcross = 9;
constexpr int cornersDown = 6;
constexpr double squareMM = 25.0;

// How the board is held: its middle before the camera in mm, and turned about x and y.
struct Pose
{
    double x, y, z;
    double aboutX, aboutY;
};

// Fixed point: a direction lies where the distortion there puts it.
QPointF directionOf(const QPointF &pixel)
{
    const QPointF seen = (pixel - middle) / focalPX;
    QPointF direction = seen;
    for (int i = 0; i < 12; ++i) {
        const double r2 = QPointF::dotProduct(direction, direction);
        direction = seen / (1.0 + r2 * (k1 + r2 * k2));
    }
    return direction;
}

// White around the fields of the board, grey around the board.
int greyAt(const QPointF &direction, const Pose &pose)
{
    const double cx = std::cos(pose.aboutX), sx = std::sin(pose.aboutX);
    const double cy = std::cos(pose.aboutY), sy = std::sin(pose.aboutY);
    const double right[3] = {cy, sx * sy, -cx * sy};
    const double down[3] = {0, cx, sx};
    const double normal[3] = {sy, -sx * cy, cx * cy};
    const double ray[3] = {direction.x(), direction.y(), 1};
    const double place[3] = {pose.x, pose.y, pose.z};
    double along = 0, against = 0;
    for (int i = 0; i < 3; ++i) {
        along += place[i] * normal[i];
        against += ray[i] * normal[i];
    }
    double u = 0, v = 0;
    for (int i = 0; i < 3; ++i) {
        const double offset = ray[i] * along / against - place[i];
        u += offset * right[i] / squareMM;
        v += offset * down[i] / squareMM;
    }
    u += 0.5 * (cornersAcross + 1);
    v += 0.5 * (cornersDown + 1);
    if (u < -0.7 || v < -0.7 || u > cornersAcross + 1.7 || v > cornersDown + 1.7) {
        return 120;
    }
    const bool isField = u >= 0 && v >= 0 && u < cornersAcross + 1 && v < cornersDown + 1;
    return isField && (int(u) + int(v)) % 2 == 0 ? 20 : 230;
}

QImage boardPicture(const Pose &pose)
{
    constexpr int samples = 2;
    QImage image(pictureSize, QImage::Format_Grayscale8);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            int sum = 0;
            for (int i = 0; i < samples * samples; ++i) {
                sum += greyAt(directionOf({x + (i % samples + 0.5) / samples,
                                           y + (i / samples + 0.5) / samples}),
                              pose);
            }
            image.scanLine(y)[x] = static_cast<uchar>(sum / (samples * samples));
        }
    }
    return image;
}

// As out of focus: enlarged from a picture with so many times fewer pixels.
QImage blurred(const QImage &image, int times)
{
    return image.scaled(image.size() / times, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

double sameShare(const QImage &a, const QImage &b)
{
    int same = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            same += a.pixel(x, y) == b.pixel(x, y) ? 1 : 0;
        }
    }
    return double(same) / (a.width() * a.height());
}

const QVector<Pose> goodPoses{{0, 0, 330, 0.0, 0.5},      {-40, 20, 360, 0.5, 0.0},
                              {50, -30, 340, -0.5, 0.1},  {60, 50, 380, 0.2, -0.5},
                              {-70, -50, 370, 0.4, 0.4},  {80, 10, 360, -0.3, -0.4},
                              {-20, 70, 380, -0.45, 0.3}, {0, -60, 350, 0.1, 0.1}};
const QVector<Pose> flatPoses{{0, 0, 330, 0, 0},   {-60, 0, 360, 0, 0},  {50, -30, 340, 0, 0},
                              {60, 50, 380, 0, 0}, {-60, 40, 370, 0, 0}, {0, 60, 360, 0, 0}};

const QStringList calibrate{"lens", "--board", "9x6", "--square", "25", "--recursive", "--output"};

} // namespace

class TestLensProgram : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void boardsTellTheCamera();
    void refusesPoorBoards_data();
    void refusesPoorBoards();
    void lensesAreTakenOut();

private:
    void savePoses(const QVector<Pose> &poses, int blur = 1) const;

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestLensProgram::init()
{
    TestCase::init();
    m_dir = std::make_unique<QTemporaryDir>();
    QDir::setCurrent(m_dir->path());
    QVERIFY(QDir().mkdir("boards"));
}

void TestLensProgram::cleanup()
{
    QDir::setCurrent(QDir::rootPath());
    m_dir.reset();
    TestCase::cleanup();
}

void TestLensProgram::savePoses(const QVector<Pose> &poses, int blur) const
{
    for (int i = 0; i < poses.size(); ++i) {
        const QImage picture = boardPicture(poses[i]);
        QVERIFY((blur > 1 ? blurred(picture, blur) : picture)
                    .save(QStringLiteral("boards/%1.png").arg(i)));
    }
}

void TestLensProgram::boardsTellTheCamera()
{
    savePoses(goodPoses);
    QVERIFY(greyPicture(pictureSize).save("boards/none.png"));
    QVERIFY(boardPicture({1, 0, 331, 0.0, 0.5}).save("boards/same.png"));
    const Run outcome = runProgram(
        calibrate + QStringList{"camera.yaml", "--format", "json", "--name", "crawler", "boards"});
    QVERIFY2(outcome.code == AllMeasured, outcome.messages);
    QVERIFY(outcome.messages.contains("boards/none.png: left out: no board of 9 x 6 inner"));
    QVERIFY(
        outcome.messages.contains("boards/same.png: left out: shows the board as boards/0.png"));
    const QJsonObject told = QJsonDocument::fromJson(outcome.output).object();
    QVERIFY2(told["rmsPX"].toDouble() < 0.3, outcome.output);
    const QJsonObject deviations = told["standardDeviations"].toObject();
    const QJsonObject parameters = told["parameters"].toObject();
    const struct
    {
        const char *name;
        double truth;
    } truths[] = {{"fx", focalPX},
                  {"fy", focalPX},
                  {"cx", middle.x() - 0.5},
                  {"cy", middle.y() - 0.5},
                  {"k1", k1},
                  {"p1", 0},
                  {"p2", 0}};
    for (const auto &truth : truths) {
        const double error = parameters[truth.name].toDouble() - truth.truth;
        const double deviation = deviations[truth.name].toDouble();
        QVERIFY2(std::abs(error) < 4.0 * deviation, truth.name);
    }
    QVERIFY(deviations["fx"].toDouble() < 0.005 * focalPX);

    const Result<Lens> lens = loadLens("camera.yaml");
    QVERIFY(lens);
    QCOMPARE(lens->name, QStringLiteral("crawler"));
    COMPARE_EXACT(lens->fx(), parameters["fx"].toDouble());
    COMPARE_EXACT(*lens->focalLengthSDPX,
                  std::max(deviations["fx"].toDouble(), deviations["fy"].toDouble()));

    const QByteArray written = readBytes("camera.yaml");
    const Run again = runProgram(calibrate + QStringList{"camera.yaml", "boards"});
    QCOMPARE(again.code, int(CannotReadOrWrite));
    QCOMPARE(readBytes("camera.yaml"), written);
}

void TestLensProgram::refusesPoorBoards_data()
{
    QTest::addColumn<int>("poses");
    QTest::addColumn<int>("blur");
    QTest::addColumn<bool>("areFlat");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("too few") << 3 << 1 << false
                             << QByteArray("too few pictures that count: 3 of 3, at least 5");
    QTest::newRow("too similar") << 6 << 1 << true
                                 << QByteArray("the pictures are too similar: the board is held");
    QTest::newRow("blurred") << 5 << 6 << false << QByteArray("left out: the board is blurred");
}

void TestLensProgram::refusesPoorBoards()
{
    QFETCH(int, poses);
    QFETCH(int, blur);
    QFETCH(bool, areFlat);
    QFETCH(QByteArray, message);
    savePoses((areFlat ? flatPoses : goodPoses).mid(0, poses), blur);
    const Run outcome = runProgram(calibrate + QStringList{"camera.yaml", "boards"});
    QCOMPARE(outcome.code, int(SomeNotMeasured));
    QVERIFY2(outcome.messages.contains(message), outcome.messages);
    QVERIFY(!QFile::exists("camera.yaml"));
}

void TestLensProgram::lensesAreTakenOut()
{
    QVERIFY(writeBytes("camera.yaml", "image_width: 640\nimage_height: 480\n"
                                      "camera_matrix: [420, 0, 323.5, 0, 420, 235.5, 0, 0, 1]\n"
                                      "distortion_coefficients: [-0.25, 0.06, 0, 0]\n"));
    QVERIFY(boardPicture(goodPoses[0]).save("a.png"));
    const QStringList dimension{"--kind", "PipeDimension", "--diameter", "300"};
    const QStringList clicks{"--click", "200,200", "--click", "260,150"};
    const Run measured = runProgram(QStringList{"measure", "--lens", "camera.yaml",
                                                "--save-session", "--format", "json", "a.png"} +
                                    dimension + clicks);
    QVERIFY2(measured.code == AllMeasured, measured.messages);
    const QJsonObject picture = QJsonDocument::fromJson(measured.output).array()[0].toObject();
    const double fovYDEG = picture["alignment"].toObject()["fovYDEG"].toDouble();
    const Result<Lens> lens = loadLens("camera.yaml");
    COMPARE_EXACT(fovYDEG, LensMapping::of(*lens)->fovYDEG());
    QCOMPARE(picture["lens"].toObject()["name"].toString(), QStringLiteral("camera"));

    // The session carries it: nothing else is needed to measure the same, and to draw.
    const Run again = runProgram({"measure", "--format", "json", "a.png"});
    QCOMPARE(QJsonDocument::fromJson(again.output).array()[0].toObject()["values"],
             picture["values"]);
    QCOMPARE(runProgram({"render", "a.png"}).code, int(AllMeasured));
    const Result<QImage> shown = undistorted(QImage("a.png"), *lens);
    const QImage drawn("a.overlay.png");
    QCOMPARE(drawn.size(), pictureSize);
    QVERIFY(sameShare(drawn, *shown) > 0.8); // but for the pipe's lines
    QVERIFY(sameShare(drawn, *shown) > sameShare(drawn, QImage("a.png")) + 0.01);

    const struct
    {
        QStringList arguments;
        ExitCode code;
        const char *message;
    } refusals[] = {
        {{"--lens", "none.yaml"}, CannotReadOrWrite, "none.yaml: cannot be read"},
        {{"--fit-lens", "--no-session"}, SomeNotMeasured, "expected 3 joints with three clicks"},
    };
    for (const auto &refusal : refusals) {
        const Run run = runProgram(QStringList{"measure", "a.png"} + dimension + refusal.arguments);
        QCOMPARE(run.code, int(refusal.code));
        QVERIFY2(run.messages.contains(refusal.message), run.messages);
    }
    QVERIFY(greyPicture(QSize(320, 240)).save("small.png"));
    const Run small = runProgram(QStringList{"measure", "--lens", "camera.yaml", "small.png"} +
                                 dimension + clicks);
    QVERIFY(small.messages.contains("the lens is for pictures of 640 x 480 pixels"));
}

QTEST_MAIN(TestLensProgram)
#include "tst_lensprogram.moc"
