#include "measuring/SessionFile.h"

#include "measuring/SessionJson.h"
#include "measuring/Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Drevon::Zalento::Measuring {

namespace {

// Sessions have some kilobytes.
constexpr qint64 largestSessionBytes = 16 * 1024 * 1024;

Result<QByteArray> readSessionFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return Problem{path, Text::tr("there is no such file")};
    }
    if (!info.isFile()) {
        return Problem{path, Text::tr("is not a regular file")};
    }
    if (info.size() > largestSessionBytes) {
        return Problem{path, Text::tr("is too large for a session")};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Problem{path, Text::tr("cannot be read: %1").arg(file.errorString())};
    }
    return file.readAll();
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

Result<Session> loadSession(const QString &path)
{
    const Result<QByteArray> content = readSessionFile(path);
    if (!content) {
        return content.problem();
    }
    Result<Session> session = sessionFromJson(*content);
    if (!session) {
        return session.problem().in(path);
    }
    session->picture.path = pathFromSessionFolder(path, session->picture.path);
    if (session->film) {
        session->film->path = pathFromSessionFolder(path, session->film->path);
    }
    return session;
}

Outcome saveSession(const Session &session, const QString &path, Overwrite overwrite)
{
    if (const Outcome problem = checkSession(session)) {
        return problem->in(path);
    }
    Session stored = session;
    stored.picture.path = pathFromFolderOf(path, session.picture.path);
    if (stored.film) {
        stored.film->path = pathFromFolderOf(path, stored.film->path);
    }
    return writeFile(path, sessionToJson(stored), overwrite);
}

std::optional<QString> pictureDifference(const PictureIdentity &expected,
                                         const PictureIdentity &found)
{
    if (!expected.size.isEmpty() && expected.size != found.size) {
        return Text::tr("the session was made on a picture of %1 x %2 pixels, this one has "
                        "%3 x %4")
            .arg(expected.size.width())
            .arg(expected.size.height())
            .arg(found.size.width())
            .arg(found.size.height());
    }
    if (!expected.sha256.isEmpty() && expected.sha256 != found.sha256) {
        return Text::tr("the picture's content is not the one that the session was made on");
    }
    return {};
}

} // namespace Drevon::Zalento::Measuring
