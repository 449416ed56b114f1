#include "measuring/SessionFile.h"

#include "measuring/SessionJson.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Drevon::Zalento::Measuring {

namespace {

// Sessions have some kilobytes.
constexpr qint64 largestSessionBytes = 16 * 1024 * 1024;

QString readSessionFile(const QString &path, QByteArray &content)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return QStringLiteral("there is no such file");
    }
    if (!info.isFile()) {
        return QStringLiteral("is not a regular file");
    }
    if (info.size() > largestSessionBytes) {
        return QStringLiteral("is too large for a session");
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("cannot be read: %1").arg(file.errorString());
    }
    content = file.readAll();
    return {};
}

// Keeps short relative paths short.
QString pathFromSessionFolder(const QString &sessionPath, const QString &picturePath)
{
    if (picturePath.isEmpty() || QFileInfo(picturePath).isAbsolute()) {
        return picturePath;
    }
    return QDir::cleanPath(QFileInfo(sessionPath).dir().filePath(picturePath));
}

QString pathFromFolderOf(const QString &sessionPath, const QString &picturePath)
{
    if (picturePath.isEmpty()) {
        return picturePath;
    }
    return QFileInfo(sessionPath)
        .absoluteDir()
        .relativeFilePath(QFileInfo(picturePath).absoluteFilePath());
}

} // namespace

const char *const sessionSuffix = ".zalento.json";

QString sessionPathOf(const QString &picturePath)
{
    return picturePath + QLatin1String(sessionSuffix);
}

std::optional<Session> loadSession(const QString &path, QString &problem)
{
    QByteArray content;
    problem = readSessionFile(path, content);
    std::optional<Session> session;
    if (problem.isEmpty()) {
        session = sessionFromJson(content, problem);
    }
    if (!session) {
        problem = QStringLiteral("%1: %2").arg(path, problem);
        return std::nullopt;
    }
    session->picture.path = pathFromSessionFolder(path, session->picture.path);
    return session;
}

QString saveSession(const Session &session, const QString &path, Overwrite overwrite)
{
    const QString problem = sessionProblem(session);
    if (!problem.isEmpty()) {
        return QStringLiteral("%1: %2").arg(path, problem);
    }
    Session stored = session;
    stored.picture.path = pathFromFolderOf(path, session.picture.path);
    return writeFile(path, sessionToJson(stored), overwrite);
}

QString pictureDifference(const PictureIdentity &expected, const PictureIdentity &found)
{
    if (!expected.size.isEmpty() && expected.size != found.size) {
        return QStringLiteral("the session was made on a picture of %1 x %2 pixels, this one has "
                              "%3 x %4")
            .arg(expected.size.width())
            .arg(expected.size.height())
            .arg(found.size.width())
            .arg(found.size.height());
    }
    if (!expected.sha256.isEmpty() && expected.sha256 != found.sha256) {
        return QStringLiteral("the picture's content is not the one that the session was made on");
    }
    return {};
}

} // namespace Drevon::Zalento::Measuring
