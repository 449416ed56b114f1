#include "measuring/OutputFile.h"

#include "measuring/Text.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace Drevon::Zalento::Measuring {

Outcome writeFile(const QString &path, const QByteArray &content, Overwrite overwrite)
{
    const QFileInfo existing(path);
    // A symbolic link that leads nowhere is something of the user's, too.
    if (overwrite == Overwrite::Refuse && (existing.exists() || existing.isSymLink())) {
        return Problem{path, Text::tr("exists already and was left as it is")};
    }
    QSaveFile file(path);
    // What flush() reports of a full disk, commit() would not: it would replace the old file by
    // what fitted.
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.flush() || !file.commit()) {
        return Problem{path, Text::tr("cannot be written: %1").arg(file.errorString())};
    }
    return {};
}

QString pathBeside(const QString &picturePath, const QString &folder, const QString &end)
{
    const QFileInfo info(picturePath);
    const QDir target = folder.isEmpty() ? info.dir() : QDir(folder);
    return target.filePath(info.completeBaseName() + end);
}

QByteArray pngBytes(const QImage &image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

} // namespace Drevon::Zalento::Measuring
