// The samples' truths are measured by the tests of the programs; here they are drawn again.
#include "Options.h"
#include "Render.h"
#include "Shape.h"
#include "Truth.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

using namespace PipePicture;
using namespace Drevon::Zalento::Test;

namespace {

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
        QCOMPARE(drawn, QDir(QStringLiteral(SAMPLES_FOLDER)).entryList({"*.jpg"}).size());
    }
};

QTEST_GUILESS_MAIN(TestPipePicture)
#include "tst_pipepicture.moc"
