#include "measuring/Film.h"

#include <QDir>
#include <QFileInfo>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr int frameDigits = 6; // of eleven hours

} // namespace

QStringList filmNamePatterns()
{
    QStringList patterns;
    for (const char *suffix : {"avi", "m2ts", "m2v", "m4v", "mkv", "mov", "mp4", "mpeg", "mpg",
                               "mts", "ts", "vob", "webm", "wmv"}) {
        patterns += QStringLiteral("*.") + QLatin1String(suffix);
    }
    return patterns;
}

bool isFilm(const QString &path)
{
    return QDir::match(filmNamePatterns(), QFileInfo(path).fileName());
}

QString framePathOf(const QString &filmPath, int number)
{
    return QStringLiteral("%1.frame-%2.png")
        .arg(filmPath)
        .arg(number, frameDigits, 10, QLatin1Char('0'));
}

} // namespace Drevon::Zalento::Measuring
