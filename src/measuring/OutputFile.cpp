#include "measuring/OutputFile.h"

#include "measuring/Text.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>

namespace Drevon::Zalento::Measuring {

namespace {

Problem notWritten(const QSaveFile &file)
{
    return {file.fileName(), Text::tr("cannot be written: %1").arg(file.errorString())};
}

} // namespace

Outcome openForReplacing(QSaveFile &file, Overwrite overwrite)
{
    const QFileInfo existing(file.fileName());
    // A symbolic link that leads nowhere is something of the user's, too.
    if (overwrite == Overwrite::Refuse && (existing.exists() || existing.isSymLink())) {
        return Problem{file.fileName(), Text::tr("exists already and was left as it is")};
    }
    return file.open(QIODevice::WriteOnly) ? Outcome() : notWritten(file);
}

Outcome replaceWith(QSaveFile &file)
{
    // What flush() reports of a full disk, commit() would not: it would replace the old file by
    // what fitted. And it forgets why something was not written before.
    const bool isWhole = file.error() == QFileDevice::NoError && file.flush();
    return isWhole && file.commit() ? Outcome() : notWritten(file);
}

Outcome writeFile(const QString &path, const QByteArray &content, Overwrite overwrite)
{
    QSaveFile file(path);
    if (const Outcome problem = openForReplacing(file, overwrite)) {
        return problem;
    }
    return file.write(content) == content.size() ? replaceWith(file) : notWritten(file);
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
