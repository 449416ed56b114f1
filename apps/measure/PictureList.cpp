#include "measure/PictureList.h"

#include "measuring/Picture.h"
#include "measuring/SessionFile.h"

#include <QDirIterator>
#include <QFileDevice>
#include <QFileInfo>

namespace Drevon::Zalento::Apps {

using namespace Measuring;

namespace {

const QLatin1String overlayMark(".overlay");

bool isPictureName(const QFileInfo &info)
{
    return pictureFormats().contains(info.suffix().toLower().toLatin1()) &&
           !info.completeBaseName().endsWith(overlayMark);
}

QStringList picturesIn(const QString &folder)
{
    QStringList pictures;
    // A link that leads nowhere, or a name that is not UTF-8, is no file to Qt; it is listed to be
    // told of.
    QDirIterator files(folder, QDir::Files | QDir::System, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (isPictureName(files.fileInfo())) {
            pictures += path;
        }
    }
    pictures.sort();
    return pictures;
}

PictureRequest failed(const QString &path, const char *problem)
{
    return {path, false, QLatin1String(problem)};
}

QVector<PictureRequest> requestsOfFolder(const QString &folder, bool recursive)
{
    if (!recursive) {
        return {failed(folder, "is a folder: use --recursive")};
    }
    if (!QFileInfo(folder).isReadable()) {
        return {failed(folder, "the folder cannot be read")};
    }
    QVector<PictureRequest> requests;
    for (const QString &path : picturesIn(folder)) {
        requests.append({path, false, {}});
    }
    if (requests.isEmpty()) {
        return {failed(folder, "the folder holds no picture")};
    }
    return requests;
}

} // namespace

std::optional<QStringList> readNames(QIODevice &list, QString &problem)
{
    const QByteArray content = list.readAll();
    const auto *file = qobject_cast<QFileDevice *>(&list);
    if (file && file->error() != QFileDevice::NoError) {
        problem = QStringLiteral("the list of pictures cannot be read: %1").arg(list.errorString());
        return std::nullopt;
    }
    QStringList names;
    for (QByteArray line : content.split('\n')) {
        while (line.endsWith('\r')) {
            line.chop(1);
        }
        if (!line.isEmpty()) {
            names += QString::fromUtf8(line);
        }
    }
    return names;
}

QVector<PictureRequest> listPictures(const QStringList &names, bool recursive)
{
    QVector<PictureRequest> requests;
    for (const QString &name : names) {
        if (QFileInfo(name).isDir()) {
            requests += requestsOfFolder(name, recursive);
        } else {
            requests.append({name, name.endsWith(QLatin1String(sessionSuffix)), {}});
        }
    }
    return requests;
}

} // namespace Drevon::Zalento::Apps
