// Films of frames that bear their numbers, written by ffmpeg.
#include "measuring/Film.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <random>

using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

namespace {

constexpr QSize frameSize(352, 288);
constexpr int frameCount = 60;
constexpr double framesPerSecond = 25.0;
constexpr int bits = 6; // of a frame's number, white for 1
constexpr int bitWidth = frameSize.width() / bits;

// Everything else moves, so that frames are made from each other.
QImage numbered(int number)
{
    QImage image(frameSize, QImage::Format_RGB888);
    image.fill(QColor(90, 80, 70));
    QPainter painter(&image);
    painter.fillRect(3 * number, 150 + number, 60, 60, QColor(200, 160, 30));
    painter.fillRect(300 - 4 * number, 200 - number, 40, 70, QColor(20, 60, 120));
    for (int bit = 0; bit < bits; ++bit) {
        painter.fillRect(bit * bitWidth, 0, bitWidth, 100,
                         (number >> bit) & 1 ? Qt::white : Qt::black);
    }
    return image;
}

int numberIn(const QImage &image)
{
    int number = 0;
    for (int bit = 0; bit < bits; ++bit) {
        const int x = (2 * bit + 1) * image.width() / (2 * bits);
        number |= (qGray(image.pixel(x, image.height() / 6)) > 127 ? 1 : 0) << bit;
    }
    return number;
}

void runFfmpeg(const QStringList &arguments)
{
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral(FFMPEG), QStringList{"-v", "error", "-y"} + arguments);
    QVERIFY2(ffmpeg.waitForFinished() && ffmpeg.exitCode() == 0, ffmpeg.readAllStandardError());
}

} // namespace

class TestFilm : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyFrameByItsNumber_data();
    void everyFrameByItsNumber();
    void pixelsAreSquareAndUpright();
    void damageIsTold_data();
    void damageIsTold();
    void saysWhatIsNoFilm();

private:
    // A film in the folder.
    QString film(const QString &name, const QString &options)
    {
        const QString path = m_folder.filePath(name);
        runFfmpeg(QStringList{"-f", "rawvideo", "-pix_fmt", "rgb24", "-s", "352x288", "-r", "25",
                              "-i", m_folder.filePath("frames"), "-pix_fmt", "yuv420p"} +
                  options.split(' ', Qt::SkipEmptyParts) + QStringList{path});
        return path;
    }

    QTemporaryDir m_folder;
};

void TestFilm::initTestCase()
{
    QByteArray frames;
    for (int number = 0; number < frameCount; ++number) {
        const QImage image = numbered(number);
        frames.append(reinterpret_cast<const char *>(image.constBits()),
                      static_cast<int>(image.sizeInBytes()));
    }
    QVERIFY(writeBytes(m_folder.filePath("frames"), frames));
}

void TestFilm::everyFrameByItsNumber_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("options");
    const auto row = [](const char *situation, const char *name, const char *options) {
        QTest::newRow(situation) << name << options;
    };
    row("H.264 in MP4", "a.mp4", "-c:v libx264 -g 12 -bf 2");
    row("H.264, open groups, in a transport stream", "a.ts",
        "-c:v libx264 -bf 3 -x264-params open-gop=1:keyint=12");
    row("H.264 without key frames but the first", "b.ts",
        "-c:v libx264 -x264-params intra-refresh=1:keyint=20");
    row("H.264 in AVI, which tells the order of decoding only", "a.avi",
        "-c:v libx264 -g 12 -bf 2");
    row("H.264 in Matroska", "a.mkv", "-c:v libx264 -g 12 -bf 2");
    row("MPEG-2 in a program stream", "a.mpg", "-c:v mpeg2video -g 12 -bf 2 -q:v 2 -f vob");
    row("MPEG-2 in a transport stream", "c.ts", "-c:v mpeg2video -g 12 -bf 2 -q:v 2");
    row("MPEG-2 in AVI", "b.avi", "-c:v mpeg2video -g 12 -bf 2 -q:v 2");
    row("MPEG-2 alone", "a.m2v", "-c:v mpeg2video -g 12 -bf 2 -q:v 2");
    row("MPEG-4 in AVI", "c.avi", "-c:v mpeg4 -g 12 -bf 2 -q:v 2");
}

void TestFilm::everyFrameByItsNumber()
{
    QFETCH(QString, name);
    QFETCH(QString, options);
    const QString path = film(name, options);
    Result<Film> opened = Film::open(path);
    QVERIFY2(bool(opened), qPrintable(opened ? QString() : opened.problem().text()));
    QCOMPARE(opened->frameCount(), frameCount);
    QVector<QImage> images;
    for (int number = 0; number < frameCount; ++number) {
        const Result<QImage> image = opened->frame(number);
        QVERIFY2(bool(image), qPrintable(image ? QString() : image.problem().text()));
        QCOMPARE(numberIn(*image), number);
        COMPARE_NEAR(opened->secondsOf(number), number / framesPerSecond, millimetreTolerance);
        QCOMPARE(opened->frameAt((number + 0.5) / framesPerSecond), number);
        images += *image;
    }
    // Whatever was on view before, the same bits; also of a film that was just opened.
    std::mt19937 random(1);
    for (int i = 0; i < 2 * frameCount; ++i) {
        const int number = static_cast<int>(random() % frameCount);
        QVERIFY2(*opened->frame(number) == images[number], qPrintable(QString::number(number)));
    }
    Result<Film> again = Film::open(path);
    QVERIFY(*again->frame(frameCount - 1) == images.last());
}

void TestFilm::pixelsAreSquareAndUpright()
{
    Result<Film> wide = Film::open(film("wide.mpg", "-c:v mpeg2video -q:v 2 -aspect 16:9 -f vob"));
    const QImage image = *wide->frame(5);
    QCOMPARE(image.size(), QSize(512, 288));
    QCOMPARE(numberIn(image), 5);

    const QString turned = m_folder.filePath("turned.mp4");
    runFfmpeg({"-i", film("flat.mp4", "-c:v libx264"), "-c", "copy", "-metadata:s:v", "rotate=90",
               turned});
    const QImage upright = *Film::open(film("flat.mp4", "-c:v libx264"))->frame(5);
    const QImage shown = *Film::open(turned)->frame(5);
    QCOMPARE(shown.transformed(QTransform().rotate(90)), upright);
}

void TestFilm::damageIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("options");
    QTest::newRow("H.264") << "damaged.mkv"
                           << "-c:v libx264 -g 12 -bf 2";
    QTest::newRow("MPEG-2") << "damaged.mpg"
                            << "-c:v mpeg2video -g 12 -bf 2 -q:v 2 -f vob";
}

// What cannot be decoded gives no picture; the rest gives its own.
void TestFilm::damageIsTold()
{
    QFETCH(QString, name);
    QFETCH(QString, options);
    const QString path = film(name, options);
    Result<Film> whole = Film::open(path);
    QVector<QImage> images;
    for (int number = 0; number < frameCount; ++number) {
        images += *whole->frame(number);
    }
    QByteArray content = readBytes(path);
    content.replace(content.size() / 2, 300, QByteArray(300, '\x5a'));
    QVERIFY(writeBytes(path, content));
    Result<Film> film = Film::open(path);
    QVERIFY(bool(film));
    int damaged = 0;
    for (int number = 0; number < film->frameCount(); ++number) {
        const Result<QImage> image = film->frame(number);
        const auto place = std::lround(film->secondsOf(number) * framesPerSecond);
        damaged += image ? 0 : 1;
        QVERIFY(!image || *image == images[static_cast<int>(place)]);
    }
    QVERIFY(damaged > 0 && damaged <= 14);
}

void TestFilm::saysWhatIsNoFilm()
{
    const QString text = m_folder.filePath("text.mpg");
    QVERIFY(writeBytes(text, "no film"));
    QVERIFY(isFilm(text) && !isFilm(m_folder.filePath("a.png")));
    for (const QString &path : {text, m_folder.filePath("none.mp4"), m_folder.path()}) {
        const Result<Film> film = Film::open(path);
        QVERIFY(!film);
        QVERIFY2(film.problem().text().startsWith(path + ": cannot be read as a film"),
                 qPrintable(film.problem().text()));
    }
}

QTEST_GUILESS_MAIN(TestFilm)
#include "tst_film.moc"
