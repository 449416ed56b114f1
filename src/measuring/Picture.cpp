#include "measuring/Picture.h"

#include "measuring/CompletePicture.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr qint64 pixelsPerMegapixel = 1'000'000;
// A file beyond this is no picture of an inspection, and would not fit into memory twice.
constexpr qint64 largestFileBytes = 512 * 1024 * 1024;

QString fileProblem(const QFileInfo &info)
{
    if (!info.exists()) {
        return QStringLiteral("there is no such file");
    }
    if (!info.isFile()) {
        return info.isDir() ? QStringLiteral("is a folder, not a picture")
                            : QStringLiteral("is not a regular file");
    }
    if (info.size() == 0) {
        return QStringLiteral("the file is empty");
    }
    if (info.size() > largestFileBytes) {
        return QStringLiteral("the file is too large: %1 MiB, at most %2 are read")
            .arg(info.size() / 1024 / 1024)
            .arg(largestFileBytes / 1024 / 1024);
    }
    return {};
}

QString sizeProblem(const QSize &size)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    if (pixels > largestPictureMegapixels * pixelsPerMegapixel) {
        return QStringLiteral("the picture is too large: %1 x %2 pixels, at most %3 megapixels are "
                              "read")
            .arg(size.width())
            .arg(size.height())
            .arg(largestPictureMegapixels);
    }
    return {};
}

// The size stands at the start of a picture file: it is known without decoding.
QString headerProblem(QImageReader &reader)
{
    if (!reader.canRead() || !pictureFormats().contains(reader.format())) {
        return QStringLiteral("is not a picture in a known format");
    }
    const QSize size = reader.size();
    if (size.isEmpty()) {
        return QStringLiteral("the picture has no size: its header is damaged or cut off, or tells "
                              "a size of zero");
    }
    return sizeProblem(size);
}

QString decode(const QByteArray &content, QImage &image)
{
    QBuffer buffer;
    buffer.setData(content);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QString problem = headerProblem(reader);
    if (!problem.isEmpty()) {
        return problem;
    }
    if (!isCompletePicture(content, reader.format())) {
        return QStringLiteral("the picture is cut off: the file ends too early");
    }
    if (!reader.read(&image) || image.isNull()) {
        return QStringLiteral("the picture is damaged or cut off: %1").arg(reader.errorString());
    }
    return {};
}

QString load(const QString &path, Picture &picture)
{
    const QFileInfo info(path);
    const QString problem = fileProblem(info);
    if (!problem.isEmpty()) {
        return problem;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("cannot be read: %1").arg(file.errorString());
    }
    const QByteArray content = file.readAll();
    if (content.size() != info.size()) {
        return QStringLiteral("cannot be read to its end");
    }
    picture.identity.path = path;
    picture.identity.sha256 = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
    const QString decodeProblem = decode(content, picture.image);
    picture.identity.size = picture.image.size();
    return decodeProblem;
}

} // namespace

// Icons and drawings are no pictures of a pipe, and an overlay in SVG is not to be measured.
const QList<QByteArray> &pictureFormats()
{
    static const QList<QByteArray> formats = [] {
        QList<QByteArray> readable;
        for (const char *format :
             {"bmp", "jpeg", "jpg", "pbm", "pgm", "png", "ppm", "tif", "tiff", "webp"}) {
            if (QImageReader::supportedImageFormats().contains(format)) {
                readable += format;
            }
        }
        return readable;
    }();
    return formats;
}

std::optional<Picture> loadPicture(const QString &path, QString &problem)
{
    Picture picture;
    problem = load(path, picture);
    if (!problem.isEmpty()) {
        problem = QStringLiteral("%1: %2").arg(path, problem);
        return std::nullopt;
    }
    return picture;
}

} // namespace Drevon::Zalento::Measuring
