#include "support/PictureFiles.h"

#include "measuring/Picture.h"
#include "support/TestCase.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QImageWriter>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

namespace {

QByteArray encoded(const QImage &image, const char *format,
                   QImageIOHandler::Transformation stored = QImageIOHandler::TransformationNone)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setTransformation(stored);
    writer.write(image);
    return buffer.data();
}

QByteArray half(const QByteArray &content)
{
    return content.left(content.size() / 2);
}

// Noise has no short code: the header is a small part of the file.
QImage noisyPicture()
{
    QImage image(200, 100, QImage::Format_RGB32);
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32 *>(image.bits()), 200 * 100);
    return image;
}

// 225 megapixels in a small file.
QByteArray hugePng()
{
    QImage image(15000, 15000, QImage::Format_Mono);
    image.fill(0);
    return encoded(image, "png");
}

// Black but for one corner, so that turning it shows.
QImage markedPicture()
{
    QImage image(64, 32, QImage::Format_RGB32);
    image.fill(Qt::black);
    for (int i = 0; i < 64; ++i) {
        image.setPixelColor(i % 8, i / 8, Qt::white);
    }
    return image;
}

// Frames of one pixel, the first white and the second black.
QByteArray gif(int frames)
{
    const QByteArray screen("GIF89a\1\0\1\0\x80\0\0\xff\xff\xff\0\0\0", 19);
    const QByteArray image("\x2c\0\0\0\0\1\0\1\0\0\2\2", 12);
    const QByteArray white("\x44\1\0", 3);
    const QByteArray black("\x4c\1\0", 3);
    return screen + image + white + (frames == 2 ? image + black : QByteArray()) + ';';
}

} // namespace

class TestPicture : public TestCase
{
    Q_OBJECT

private slots:
    void refuses_data();
    void refuses();
    void refusesWhatIsNoFile();
    void countsFrames_data();
    void countsFrames();
    void standsUpright_data();
    void standsUpright();
};

void TestPicture::refuses_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    const QImage picture = noisyPicture();
    const QByteArray jpeg = encoded(picture, "jpg");
    QByteArray thumbnail = jpeg;
    // An embedded thumbnail ends in an end marker of its own.
    thumbnail.insert(2, QByteArray("\xff\xe1\x00\x06\xff\xd8\xff\xd9", 8));
    QByteArray noWidth = encoded(picture, "bmp");
    noWidth.replace(18, 4, QByteArray(4, '\0'));

    QTest::newRow("empty file") << QByteArray() << "the file is empty";
    QTest::newRow("prose") << QByteArray("no picture")
                           << "is no picture in a format that is read here: BMP, GIF, JPEG";
    QTest::newRow("drawing") << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\"/>")
                             << "is no picture in a format that is read here: BMP, GIF, JPEG";
    QTest::newRow("JPEG cut off") << half(jpeg) << "cut off";
    QTest::newRow("JPEG without its last byte") << jpeg.left(jpeg.size() - 1) << "cut off";
    QTest::newRow("JPEG with a thumbnail, cut off") << half(thumbnail) << "cut off";
    QTest::newRow("JPEG cut off in its header") << jpeg.left(20) << "cut off";
    QTest::newRow("JPEG that ends within a length")
        << jpeg.left(jpeg.indexOf("\xff\xda") + 3) << "cut off";
    QTest::newRow("PNG cut off") << half(encoded(picture, "png")) << "damaged or cut off";
    QTest::newRow("BMP cut off") << half(encoded(picture, "bmp")) << "cut off";
    QTest::newRow("GIF cut off") << gif(2).left(32) << "cut off";
    QTest::newRow("no width") << noWidth << "a size of zero";
    QTest::newRow("huge") << hugePng() << "too large: 15000 x 15000 pixels";
}

void TestPicture::refuses()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, expected);
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("bad.jpg"));
    QVERIFY(writeBytes(path, content));
    const auto picture = loadPicture(path);
    QVERIFY(!picture);
    const QString problem = picture.problem().text();
    QVERIFY2(problem.startsWith(path + ": ") && problem.contains(expected), qPrintable(problem));
    QVERIFY(loadThumbnail(path, {20, 10}).problem().text() == problem);
    forgetWarnings(); // decoders complain in their own words
}

void TestPicture::refusesWhatIsNoFile()
{
    const QPair<const char *, const char *> cases[] = {
        {"/", "is a folder"}, {"/none.png", "no such file"}, {"/dev/null", "not a regular file"}};
    for (const auto &[path, expected] : cases) {
        const auto picture = loadPicture(QLatin1String(path));
        QVERIFY2(!picture && picture.problem().what.contains(QLatin1String(expected)), path);
        QVERIFY(checkPicture(QLatin1String(path))->what == picture.problem().what);
    }
}

void TestPicture::countsFrames_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("frames");
    QImage white(1, 1, QImage::Format_RGB32);
    white.fill(Qt::white);
    QTest::newRow("GIF") << gif(1) << 1;
    QTest::newRow("animated GIF") << gif(2) << 2;
    QTest::newRow("TIFF") << encoded(white, "tiff") << 1;
    QTest::newRow("WebP") << encoded(white, "webp") << 1;
}

void TestPicture::countsFrames()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("white"));
    QVERIFY(writeBytes(path, content));
    const auto picture = loadPicture(path);
    QVERIFY2(picture, qPrintable(picture ? QString() : picture.problem().text()));
    QTEST(picture->frames, "frames");
    QVERIFY(picture->image.pixelColor(0, 0).lightness() > 250);
}

void TestPicture::standsUpright_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QPoint>("mark"); // in the upright picture
    QTest::newRow("as it is") << int(QImageIOHandler::TransformationNone) << QPoint(3, 3);
    QTest::newRow("a quarter turn")
        << int(QImageIOHandler::TransformationRotate90) << QPoint(28, 3);
    QTest::newRow("mirrored") << int(QImageIOHandler::TransformationMirror) << QPoint(60, 3);
}

void TestPicture::standsUpright()
{
    QFETCH(int, stored);
    QFETCH(QPoint, mark);
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("turned.jpg"));
    const QByteArray content =
        encoded(markedPicture(), "jpg", QImageIOHandler::Transformation(stored));
    QVERIFY(writeBytes(path, content));
    const auto picture = loadPicture(path);
    QVERIFY(picture);
    const bool isTurned = stored == QImageIOHandler::TransformationRotate90;
    QCOMPARE(picture->image.size(), isTurned ? QSize(32, 64) : QSize(64, 32));
    QCOMPARE(picture->identity.size, picture->image.size());
    QVERIFY(picture->image.pixelColor(mark).lightness() > 200);
    const auto thumbnail = loadThumbnail(path, {16, 16});
    QCOMPARE(thumbnail->size(), picture->image.size() / 4);
    QVERIFY(thumbnail->pixelColor(mark / 4).lightness() > 150);
    QCOMPARE(loadThumbnail(path, {500, 500})->size(), picture->image.size());
    QCOMPARE(picture->identity.sha256,
             QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
}

QTEST_GUILESS_MAIN(TestPicture)
#include "tst_picture.moc"
