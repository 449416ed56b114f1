#include "measure/Progress.h"

#include "measuring/Count.h"

#include <QFileDevice>

#include <unistd.h>

namespace Drevon::Zalento::Apps {

namespace {

constexpr qint64 leastPauseMS = 100; // between two lines

// "2:10" or, from an hour on, "1:02:10".
QString durationText(qint64 ms)
{
    constexpr qint64 msPerSecond = 1000;
    constexpr qint64 secondsPerMinute = 60;
    const qint64 seconds = (ms + msPerSecond / 2) / msPerSecond;
    const qint64 minutes = seconds / secondsPerMinute;
    const QString rest =
        QStringLiteral(":%1").arg(seconds % secondsPerMinute, 2, 10, QLatin1Char('0'));
    if (minutes < secondsPerMinute) {
        return QString::number(minutes) + rest;
    }
    return QStringLiteral("%1:%2%3")
        .arg(minutes / secondsPerMinute)
        .arg(minutes % secondsPerMinute, 2, 10, QLatin1Char('0'))
        .arg(rest);
}

} // namespace

bool isTerminal(const QIODevice &device)
{
    const auto *file = qobject_cast<const QFileDevice *>(&device);
    return file && isatty(file->handle()) == 1;
}

Progress::Progress(QIODevice &messages)
    : m_messages(messages)
    , m_isTerminal(isTerminal(messages))
{
    m_sinceStart.start();
}

void Progress::show(int done, int count)
{
    if (done == count) {
        clear();
        return;
    }
    const bool isShownLately = m_width > 0 && m_sinceShown.elapsed() < leastPauseMS;
    if (!m_isTerminal || isShownLately) {
        return;
    }
    const qint64 leftMS = m_sinceStart.elapsed() * (count - done) / done;
    const QByteArray line =
        QStringLiteral("%1 of %2, %3 left").arg(done).arg(count).arg(durationText(leftMS)).toUtf8();
    m_messages.write('\r' + line.leftJustified(m_width));
    m_width = Measuring::countOf(line);
    m_sinceShown.start();
}

void Progress::clear()
{
    if (m_width > 0) {
        m_messages.write('\r' + QByteArray(m_width, ' ') + '\r');
        m_width = 0;
    }
}

} // namespace Drevon::Zalento::Apps
