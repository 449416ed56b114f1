#include "measure/PictureList.h"

#include "measuring/Picture.h"
#include "measuring/SessionFile.h"

#include <QFileDevice>
#include <QFileInfo>

namespace Drevon::Zalento::Apps {

using namespace Measuring;

namespace {

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
    for (const QString &path : picturesIn(folder, recursive)) {
        requests.append({path, false, {}});
    }
    if (requests.isEmpty()) {
        return {failed(folder, "the folder holds no picture")};
    }
    return requests;
}

} // namespace

Result<QStringList> readNames(QIODevice &list)
{
    const QByteArray content = list.readAll();
    const auto *file = qobject_cast<QFileDevice *>(&list);
    if (file && file->error() != QFileDevice::NoError) {
        return Problem{QStringLiteral("the list of pictures"),
                       QStringLiteral("cannot be read: %1").arg(list.errorString())};
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
