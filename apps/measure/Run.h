#pragma once

#include <QIODevice>
#include <QStringList>

namespace Drevon::Zalento::Apps {

enum ExitCode {
    AllMeasured = 0,
    SomeNotMeasured = 1,
    WrongUsage = 2,
    CannotReadOrWrite = 3,
};

/**
 * Runs the program on its arguments without its name.
 * @param input list of pictures, read when asked for
 * @param output gets values only
 * @param messages gets everything that is for people
 */
ExitCode run(const QStringList &arguments, QIODevice &input, QIODevice &output,
             QIODevice &messages);

} // namespace Drevon::Zalento::Apps
