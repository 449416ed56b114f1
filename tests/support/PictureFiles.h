#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QString>

namespace Drevon::Zalento::Test {

/** A grey picture, so that an overlay stands out. */
inline QImage greyPicture(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkGray);
    return image;
}

inline bool writeBytes(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

inline QByteArray readBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Names and contents of a folder's files, to see that nothing changed. */
inline QByteArray folderState(const QString &folder)
{
    QByteArray state;
    for (const QFileInfo &info : QDir(folder).entryInfoList(QDir::Files, QDir::Name)) {
        state += info.fileName().toUtf8() + ' ' + readBytes(info.filePath()) + '\n';
    }
    return state;
}

} // namespace Drevon::Zalento::Test
