#pragma once

#include <QElapsedTimer>
#include <QIODevice>

namespace Drevon::Zalento::Apps {

/** True for a file that is a terminal. */
bool isTerminal(const QIODevice &device);

/**
 * The last line of a terminal: "312 of 1000, 2:10 left". What is left is estimated from what was
 * done. Elsewhere than on a terminal it shows nothing.
 */
class Progress
{
public:
    /** The work begins now. @param messages where the line is shown if it is a terminal */
    explicit Progress(QIODevice &messages);

    /** Other work begins now, whose end is estimated by itself. */
    void restart() { m_sinceStart.start(); }

    /** Shows the line, now and then; once everything is done, none. */
    void show(int done, int count);
    /** Makes way for another line. */
    void clear();

private:
    QIODevice &m_messages;
    bool m_isTerminal;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceShown;
    int m_width = 0; // of the line that is shown
};

} // namespace Drevon::Zalento::Apps
