#include "measuring/Film.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr qint64 msPerSecond = 1000;
constexpr qint64 secondsPerMinute = 60;
constexpr qint64 minutesPerHour = 60;

QString digits(qint64 number, int count)
{
    return QStringLiteral("%1").arg(number, count, 10, QLatin1Char('0'));
}

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

QString framePathOf(const QString &filmPath, double seconds)
{
    const qint64 ms = std::llround(seconds * msPerSecond);
    const qint64 whole = ms / msPerSecond;
    const qint64 minutes = whole / secondsPerMinute;
    return QStringLiteral("%1.%2-%3-%4.%5.png")
        .arg(filmPath, digits(minutes / minutesPerHour, 1), digits(minutes % minutesPerHour, 2),
             digits(whole % secondsPerMinute, 2), digits(ms % msPerSecond, 3));
}

} // namespace Drevon::Zalento::Measuring
