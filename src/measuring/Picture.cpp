#include "measuring/Picture.h"

#include "measuring/CompletePicture.h"
#include "measuring/Text.h"

#include <QBuffer>
#include <QCollator>
#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <optional>

namespace Drevon::Zalento::Measuring {

namespace {

// How the names of pictures end that were made of other pictures: overlay, map, flat wall.
const std::array<QLatin1String, 3> madeMarks{QLatin1String(".overlay"), QLatin1String(".map"),
                                             QLatin1String(".unrolled")};

constexpr qint64 pixelsPerMegapixel = 1'000'000;
// A file beyond this is no picture of an inspection, and would not fit into memory twice.
constexpr qint64 largestFileBytes = 512 * 1024 * 1024;

std::optional<QString> fileProblem(const QFileInfo &info)
{
    if (!info.exists()) {
        return Text::tr("there is no such file");
    }
    if (!info.isFile()) {
        return info.isDir() ? Text::tr("is a folder, not a picture")
                            : Text::tr("is not a regular file");
    }
    if (info.size() == 0) {
        return Text::tr("the file is empty");
    }
    if (info.size() > largestFileBytes) {
        return Text::tr("the file is too large: %1 MiB, at most %2 are read")
            .arg(info.size() / 1024 / 1024)
            .arg(largestFileBytes / 1024 / 1024);
    }
    return {};
}

std::optional<QString> sizeProblem(const QSize &size)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    if (pixels > largestPictureMegapixels * pixelsPerMegapixel) {
        return Text::tr("the picture is too large: %1 x %2 pixels, at most %3 megapixels are "
                        "read")
            .arg(size.width())
            .arg(size.height())
            .arg(largestPictureMegapixels);
    }
    return {};
}

// "BMP, GIF, JPEG, ...": each format by one of its names.
QString formatNames()
{
    QStringList names;
    for (const QByteArray &format : pictureFormats()) {
        if (format != "jpg" && format != "tif") {
            names += QString::fromLatin1(format.toUpper());
        }
    }
    return names.join(QLatin1String(", "));
}

// The size stands at the start of a picture file: it is known without decoding.
std::optional<QString> headerProblem(QImageReader &reader)
{
    if (!reader.canRead() || !pictureFormats().contains(reader.format())) {
        return Text::tr("is no picture in a format that is read here: %1").arg(formatNames());
    }
    const QSize size = reader.size();
    if (size.isEmpty()) {
        return Text::tr("the picture has no size: its header is damaged or cut off, or tells "
                        "a size of zero");
    }
    return sizeProblem(size);
}

// A reader of its own: one that has read does not count from the start.
int frameCount(QBuffer &content)
{
    content.seek(0);
    return std::max(1, QImageReader(&content).imageCount()); // 0 where the format knows but one
}

// In the file's own orientation, which a camera may have been turned against.
QSize sizeWithin(const QSize &bounds, const QImageReader &reader)
{
    const bool isTurned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    const QSize size = reader.size();
    const QSize within = size.scaled(isTurned ? bounds.transposed() : bounds, Qt::KeepAspectRatio);
    return within.width() < size.width() ? within.expandedTo({1, 1}) : size;
}

// With bounds it is read small.
std::optional<QString> decode(QBuffer &content, QImage &image, const QSize &bounds = {})
{
    QImageReader reader(&content);
    reader.setAutoTransform(true);
    if (const std::optional<QString> problem = headerProblem(reader)) {
        return problem;
    }
    if (!isCompletePicture(content.data(), reader.format())) {
        return Text::tr("the picture is cut off: the file ends too early");
    }
    if (!bounds.isEmpty()) {
        reader.setScaledSize(sizeWithin(bounds, reader));
    }
    if (!reader.read(&image) || image.isNull()) {
        return Text::tr("the picture is damaged or cut off: %1").arg(reader.errorString());
    }
    return {};
}

Result<QByteArray> contentOf(const QString &path)
{
    const QFileInfo info(path);
    if (const std::optional<QString> problem = fileProblem(info)) {
        return Problem{path, *problem};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Problem{path, Text::tr("cannot be read: %1").arg(file.errorString())};
    }
    const QByteArray content = file.readAll();
    if (content.size() != info.size()) {
        return Problem{path, Text::tr("cannot be read to its end")};
    }
    return content;
}

} // namespace

// Icons and drawings are no pictures of a pipe, and an overlay in SVG is not to be measured.
const QList<QByteArray> &pictureFormats()
{
    static const QList<QByteArray> formats = [] {
        QList<QByteArray> readable;
        for (const char *format :
             {"bmp", "gif", "jpeg", "jpg", "pbm", "pgm", "png", "ppm", "tif", "tiff", "webp"}) {
            if (QImageReader::supportedImageFormats().contains(format)) {
                readable += format;
            }
        }
        return readable;
    }();
    return formats;
}

QStringList pictureNamePatterns()
{
    QStringList patterns;
    for (const QByteArray &format : pictureFormats()) {
        patterns += QStringLiteral("*.") + QString::fromLatin1(format);
    }
    return patterns;
}

bool isPictureToMeasure(const QString &path)
{
    const QFileInfo info(path);
    return pictureFormats().contains(info.suffix().toLower().toLatin1()) &&
           std::none_of(madeMarks.begin(), madeMarks.end(), [&info](QLatin1String mark) {
               return info.completeBaseName().endsWith(mark);
           });
}

// The locale is one that sorts by language, which "C" does not; a collator is of one thread.
bool isBefore(const QString &name, const QString &other)
{
    thread_local const QCollator collator = [] {
        QCollator natural{QLocale(QLocale::English)};
        natural.setNumericMode(true);
        natural.setCaseSensitivity(Qt::CaseInsensitive);
        return natural;
    }();
    const int order = collator.compare(name, other);
    return order != 0 ? order < 0 : name < other;
}

QStringList picturesIn(const QString &folder, bool recursive)
{
    // A link that leads nowhere, or a name that is not UTF-8, is no file to Qt; it is listed to be
    // told of.
    QDirIterator files(folder, QDir::Files | QDir::System,
                       recursive ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
    QStringList pictures;
    while (files.hasNext()) {
        const QString path = files.next();
        if (isPictureToMeasure(path)) {
            pictures += path;
        }
    }
    std::sort(pictures.begin(), pictures.end(), isBefore);
    return pictures;
}

Result<Picture> loadPicture(const QString &path)
{
    const Result<QByteArray> content = contentOf(path);
    if (!content) {
        return content.problem();
    }
    QBuffer buffer;
    buffer.setData(*content);
    buffer.open(QIODevice::ReadOnly);
    Picture picture;
    if (const std::optional<QString> problem = decode(buffer, picture.image)) {
        return Problem{path, *problem};
    }
    picture.frames = frameCount(buffer);
    picture.identity.path = path;
    picture.identity.sha256 =
        QCryptographicHash::hash(*content, QCryptographicHash::Sha256).toHex();
    picture.identity.size = picture.image.size();
    return picture;
}

Result<QImage> loadThumbnail(const QString &path, const QSize &bounds)
{
    const Result<QByteArray> content = contentOf(path);
    if (!content) {
        return content.problem();
    }
    QBuffer buffer;
    buffer.setData(*content);
    buffer.open(QIODevice::ReadOnly);
    QImage image;
    if (const std::optional<QString> problem = decode(buffer, image, bounds)) {
        return Problem{path, *problem};
    }
    return image;
}

Outcome checkPicture(const QString &path)
{
    std::optional<QString> problem = fileProblem(QFileInfo(path));
    if (!problem) {
        QImageReader reader(path);
        reader.setDecideFormatFromContent(true);
        problem = headerProblem(reader);
    }
    return problem ? Outcome(Problem{path, *problem}) : Outcome();
}

} // namespace Drevon::Zalento::Measuring
